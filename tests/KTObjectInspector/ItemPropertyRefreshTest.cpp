// How an item reads its values again, and tells of changes of itself.
#include "KTObjectInspector/InspectorFixture.h"

#include <functional>

namespace kt::tests {
namespace {

class ItemPropertyRefreshTest : public TInspectorTest {
 protected:
  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
};

TEST_F(ItemPropertyRefreshTest, AnItemsOwnHandlerHearsOfARefreshInPlaceOfTheInspectors) {
  QStringList log;
  FInspector->OnRefreshValue = [&](TObject* sender, TKTItemProperty* item) {
    EXPECT_EQ(FInspector.get(), sender);
    log += "inspector " + item->GetName();
  };
  const auto part = Make<TSamplePart>();
  Inspect({part.get()});
  Item("Size").SetOnRefreshValue([&](TObject* sender, TKTItemProperty* item) {
    EXPECT_EQ(FInspector.get(), sender);
    log += "item " + item->GetName();
  });
  Item("Size").RefreshValue();
  Item("Title").RefreshValue();
  EXPECT_EQ("item Size|inspector Title", log.join(u'|'));
}

TEST_F(ItemPropertyRefreshTest, AnItemThatLeadsNowhereIsToldOfToo) {
  FSample->Partner = FOther.get();
  Inspect({FSample.get()});
  int told = 0;
  Item("Partner.Whole").SetOnRefreshValue([&](TObject*, TKTItemProperty*) { ++told; });
  EXPECT_TRUE(Item("Partner.Whole").RefreshValue());
  FSample->Partner = nullptr;
  EXPECT_FALSE(Item("Partner.Whole").RefreshValue());
  EXPECT_EQ(2, told);
}

TEST_F(ItemPropertyRefreshTest, AnItemWithNothingToReadIsToldOfToo) {
  int told = 0;
  FInspector->OnRefreshValue = [&](TObject*, TKTItemProperty*) { ++told; };
  TKTItemProperty* item = Items().Add();
  item->SetValue("own");
  EXPECT_TRUE(item->RefreshValue());
  EXPECT_EQ("own", item->GetValue());
  EXPECT_EQ(1, told);
}

TEST_F(ItemPropertyRefreshTest, TextAndRawValueAreReadAgain) {
  Inspect({FSample.get()});
  FSample->Whole = 5;
  EXPECT_TRUE(Item("Whole").RefreshValue());
  EXPECT_EQ("5", Value("Whole"));
  EXPECT_EQ(5, Item("Whole").GetRealValues()[0].ToInt());
}

TEST_F(ItemPropertyRefreshTest, WithSeveralColumnsEachObjectIsReadAgain) {
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  FSample->Whole = 5;
  FOther->Whole = 6;
  FOther->Styles = {ssItalic};
  FInspector->RefreshProperties();
  EXPECT_EQ("5", Item("Whole").GetValueLine(0));
  EXPECT_EQ("6", Item("Whole").GetValueLine(1));
  EXPECT_EQ(6, Item("Whole").GetRealValues()[1].ToInt());
  EXPECT_EQ("False", Item("Styles.ssItalic").GetValueLine(0));
  EXPECT_EQ("True", Item("Styles.ssItalic").GetValueLine(1));
}

TEST_F(ItemPropertyRefreshTest, AnElementShowsItsDisplayNameAgain) {
  FSample->GetItems().AddItem("one");
  FInspector->SetInplaceCollections(true);
  Inspect({FSample.get()});
  Item("Items.Items[0]").SetValueLine(0, "something");
  EXPECT_TRUE(Item("Items.Items[0]").RefreshValue());
  EXPECT_EQ("TSampleItem", Value("Items.Items[0]"));
}

TEST_F(ItemPropertyRefreshTest, AHandlerGivesTheTextAndTheRawValueStays) {
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  TKTItemProperty& item = Item("Part.Size");
  item.SetOnGetProperty([&](TObject* sender, TObject* instance, const QString& name, QString& value) {
    EXPECT_EQ(&item, sender);
    EXPECT_EQ("Size", name);
    EXPECT_EQ("Size", value);
    value = instance == &FSample->GetPart() ? "first" : "second";
  });
  FSample->GetPart().SetSize(99);
  EXPECT_TRUE(item.RefreshValue());
  EXPECT_EQ("first", item.GetValueLine(0));
  EXPECT_EQ("second", item.GetValueLine(1));
  EXPECT_EQ(8, item.GetRealValues()[0].ToInt());
}

TEST_F(ItemPropertyRefreshTest, AHandlerThatGivesNoTextLeavesTheName) {
  Inspect({FSample.get()});
  Item("Part.Size").SetOnGetProperty([](TObject*, TObject*, const QString&, QString&) {});
  Item("Part.Size").RefreshValue();
  EXPECT_EQ("Size", Value("Part.Size"));
}

// Changes of the item.

/// Counts the changes that its items tell.
class TCountingProperties : public TKTItemProperties {
 public:
  int Changes = 0;

 protected:
  explicit TCountingProperties(TPersistent* owner) : TKTItemProperties(owner) {}
  void Update(TCollectionItem* item) override {
    ++Changes;
    TKTItemProperties::Update(item);
  }
};

TEST_F(ItemPropertyRefreshTest, WhatAnItemStandsForTellsAChangeWhenItIsAnother) {
  const auto items = Make<TCountingProperties>(nullptr);
  TKTItemProperty* item = items->Add();
  const auto changes = [&](const std::function<void()>& set) {
    items->Changes = 0;
    set();
    return items->Changes;
  };
  const std::function<void()> setters[] = {[&] { item->SetTypeKind(tkInteger); }, [&] { item->SetTypeName("Integer"); },
                                           [&] { item->SetRealPropName("Whole"); }, [&] { item->SetAllEqual(true); }};
  for (const auto& set : setters) {
    EXPECT_EQ(1, changes(set)) << &set - setters;
    EXPECT_EQ(0, changes(set)) << &set - setters;
  }
  EXPECT_EQ(0, changes([&] { item->SetPropertyKind(pkSet); }));
  EXPECT_EQ(0, changes([&] { item->SetIsRealProperty(true); }));
  item->GetRealValues().resize(1);
  EXPECT_EQ(1, changes([&] { item->SetRealValues(0, 3); }));
  EXPECT_EQ(0, changes([&] { item->SetRealValues(0, 5); }));
}

}  // namespace
}  // namespace kt::tests
