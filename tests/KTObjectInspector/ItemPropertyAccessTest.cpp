// The typed accessors of items that are no property, and of interfaces.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/objects/Exceptions.h"
#include "support/Expect.h"

#include <functional>

namespace kt::tests {
namespace {

class ItemPropertyAccessTest : public TInspectorTest {
 protected:
  ItemPropertyAccessTest() { FSample->SetName("Sample"); }
  /// "tkInteger 12": the kind and the text that an item without inspector has after a write.
  std::string Written(const std::function<void(TKTItemProperty&)>& write) {
    const auto items = Make<TKTItemProperties>(nullptr);
    TKTItemProperty* item = items->Add();
    item->SetValue("before");
    write(*item);
    return TEnumNames<TTypeKind>::Values[item->GetTypeKind()] + (" " + item->GetValue().toStdString());
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
};

TEST_F(ItemPropertyAccessTest, AnItemThatIsNoPropertyShowsWhatIsWritten) {
  EXPECT_EQ("tkInteger -12", Written([](auto& item) { item.SetOrdProperty(-12, -1); }));
  EXPECT_EQ("tkInt64 1099511627776", Written([](auto& item) { item.SetInt64Property(1LL << 40, -1); }));
  EXPECT_EQ("tkFloat 2.5", Written([](auto& item) { item.SetFloatProperty(2.5, -1); }));
  EXPECT_EQ("tkLString text", Written([](auto& item) { item.SetStringProperty("text", -1); }));
  EXPECT_EQ("tkVariant True", Written([](auto& item) { item.SetVariantProperty(true, -1); }));
  EXPECT_EQ("tkVariant ", Written([](auto& item) { item.SetVariantProperty(Variant::Null(), -1); }));
}

TEST_F(ItemPropertyAccessTest, AnItemThatIsNoPropertyShowsTheNamesOfObjects) {
  EXPECT_EQ("tkClass Sample", Written([&](auto& item) { item.SetObjectProperty(FSample.get(), -1); }));
  EXPECT_EQ("tkClass (TSamplePart)", Written([&](auto& item) { item.SetObjectProperty(&FSample->GetPart(), -1); }));
  EXPECT_EQ("tkClass ", Written([](auto& item) { item.SetObjectProperty(nullptr, -1); }));
  EXPECT_EQ("tkInterface Sample", Written([&](auto& item) { item.SetInterfaceProperty(FSample.get(), -1); }));
  EXPECT_EQ("tkInterface ", Written([](auto& item) { item.SetInterfaceProperty(nullptr, -1); }));
  const TNotifyEvent event(FSample.get(), &TSample::HandleAction);
  EXPECT_EQ("tkMethod HandleAction", Written([&](auto& item) { item.SetMethodProperty(event, -1); }));
  EXPECT_EQ("tkMethod ", Written([](auto& item) { item.SetMethodProperty({}, -1); }));
}

TEST_F(ItemPropertyAccessTest, AnApplicationsOwnItemTellsBeforeAndAfter) {
  QStringList log;
  FInspector->OnPropertyChanging = [&](TObject*, TKTItemProperty* item) { log += "changing " + item->GetValue(); };
  FInspector->OnPropertyChanged = [&](TObject*, TKTItemProperty* item) { log += "changed " + item->GetValue(); };
  TKTItemProperty* item = Items().Add();
  item->SetName("own");
  item->SetValue("old");
  item->SetFloatProperty(2.5, -1);
  EXPECT_EQ("2.5", item->GetValue());
  EXPECT_EQ("changing old", log.join(u'|'));
  Deliver();
  EXPECT_EQ("changing old|changed 2.5", log.join(u'|'));
}

TEST_F(ItemPropertyAccessTest, NoAccessorReadsAnItemThatIsNoProperty) {
  Inspect({FSample.get()});
  TKTItemProperty& member = Item("Styles.ssBold");
  const std::function<void()> reads[] = {
      [&] { member.GetOrdProperty(0); },     [&] { member.GetInt64Property(0); },
      [&] { member.GetFloatProperty(0); },   [&] { member.GetInterfaceProperty(0); },
      [&] { member.GetMethodProperty(0); },  [&] { member.GetObjectProperty(0); },
      [&] { member.GetVariantProperty(0); }, [&] { member.GetObjectPropertyClass(); }};
  for (const auto& read : reads) {
    EXPECT_EQ("Item \"Styles.ssBold\" is not a real property", MessageOf<ETORVException>(read)) << &read - reads;
  }
  EXPECT_EQ("False", member.GetStringProperty(0));
}

TEST_F(ItemPropertyAccessTest, AnInterfaceIsReadAndWrittenWhereItIsAProperty) {
  FSample->Reference = FOther.get();
  Inspect({FSample.get()});
  TKTItemProperty& item = Item("Reference");
  EXPECT_EQ("Item \"Reference\" is not a real property",
            MessageOf<ETORVException>([&] { item.GetInterfaceProperty(0); }));
  item.SetIsRealProperty(true);
  EXPECT_EQ(static_cast<IInterface*>(static_cast<IInterfaceComponentReference*>(FOther.get())),
            item.GetInterfaceProperty(0));
  item.SetInterfaceProperty(FSample.get(), -1);
  EXPECT_EQ(static_cast<IInterfaceComponentReference*>(FSample.get()), FSample->Reference);
  item.SetInterfaceProperty(nullptr, -1);
  EXPECT_EQ(nullptr, FSample->Reference);
  EXPECT_EQ(nullptr, item.GetInterfaceProperty(0));
}

TEST_F(ItemPropertyAccessTest, WithoutAnInspectorEveryAccessorReadsNothing) {
  const auto items = Make<TKTItemProperties>(nullptr);
  TKTItemProperty* item = items->Add();
  item->SetIsRealProperty(true);
  EXPECT_EQ(0, item->GetInt64Property(0));
  EXPECT_EQ(0.0, item->GetFloatProperty(0));
  EXPECT_EQ(nullptr, item->GetInterfaceProperty(0));
  EXPECT_FALSE(item->GetMethodProperty(0));
  EXPECT_EQ("", item->GetStringProperty(0));
  EXPECT_TRUE(item->GetVariantProperty(0).IsEmpty());
}

// Raw values.

TEST_F(ItemPropertyAccessTest, NewValueColumnsHaveUnassignedRawValues) {
  Inspect({FSample.get()});
  TKTItemProperty& item = Item("Whole");
  FInspector->SetColCount(4);
  ASSERT_EQ(3u, item.GetRealValues().size());
  EXPECT_EQ(0, item.GetRealValues()[0].ToInt());
  EXPECT_TRUE(item.GetRealValues()[1].IsEmpty());
  EXPECT_TRUE(item.GetRealValues()[2].IsEmpty());
  FInspector->SetColCount(2);
  EXPECT_EQ(1u, item.GetRealValues().size());
}

TEST_F(ItemPropertyAccessTest, WithoutAnInspectorThereAreAsManyRawValuesAsThereWere) {
  const auto items = Make<TKTItemProperties>(nullptr);
  TKTItemProperty* item = items->Add();
  EXPECT_TRUE(item->GetRealValues().empty());
  item->GetRealValues().resize(5);
  EXPECT_EQ(5u, item->GetRealValues().size());
}

}  // namespace
}  // namespace kt::tests
