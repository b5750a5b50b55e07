// What an item of the inspector knows, and its typed accessors.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/graphics/Font.h"

namespace kt::tests {
namespace {

class ItemPropertyTest : public TInspectorTest {
 protected:
  template <class F>
  static QString ErrorOf(F action) {
    try {
      action();
    } catch (const ETORVException& error) {
      return "ETORVException: " + error.Message();
    } catch (const Exception& error) {
      return error.Message();
    }
    return "none";
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
};

TEST_F(ItemPropertyTest, ThePathIsMadeOfThePropertiesNames) {
  Inspect({FSample.get()});
  TKTItemProperty& size = Item("Part.Size");
  size.SetName("Other");
  EXPECT_EQ("Part.Size", size.GetFullPathPropName());
  EXPECT_EQ("Part.Other", size.GetFullPathName());
  FInspector->SetPathDelimiter("->");
  EXPECT_EQ("Part->Size", size.GetFullPathPropName());
}

TEST_F(ItemPropertyTest, ItemsAboveAreFoundByTheirPartOrTheirType) {
  FSample->GetItems().AddItem("one");
  FInspector->SetInplaceCollections(true);
  Inspect({FSample.get()});
  TKTItemProperty& caption = Item("Items.Items[0].Caption");
  EXPECT_EQ(&Item("Items.Items[0]"), caption.GetParentItem(pkCollectionItem));
  EXPECT_EQ(&Item("Items"), caption.GetParentItem(pkCollection));
  EXPECT_EQ(nullptr, caption.GetParentItem(pkSet));
  EXPECT_EQ(&Item("Items.Items[0]"), caption.GetParentItem(tkClass, ""));
  EXPECT_EQ(&Item("Items"), caption.GetParentItem(tkClass, "tsampleitems"));
  EXPECT_EQ(nullptr, caption.GetParentItem(tkClass, "TFont"));
}

// Raw values.

TEST_F(ItemPropertyTest, ThereIsARawValueForEachValueColumn) {
  UseSeveralColumns();
  FOther->Whole = 4;
  Inspect({FSample.get(), FOther.get()});
  ASSERT_EQ(2u, Item("Whole").GetRealValues().size());
  EXPECT_EQ(4, Item("Whole").GetRealValues()[1].ToInt());
}

TEST_F(ItemPropertyTest, ARawValueIsReplacedOnlyByOneThatCannotBeComparedDeliberately) {
  FSample->Whole = 3;
  Inspect({FSample.get()});
  TKTItemProperty& item = Item("Whole");
  item.SetRealValues(0, 5);
  EXPECT_EQ(3, item.GetRealValues()[0].ToInt());
  item.SetRealValues(0, Variant::Null());
  EXPECT_TRUE(item.GetRealValues()[0].IsNull());
  item.GetRealValues()[0].Clear();
  item.SetRealValues(0, 5);
  EXPECT_EQ(5, item.GetRealValues()[0].ToInt());
  EXPECT_EQ("List index out of bounds (1)", ErrorOf([&] { item.SetRealValues(1, 5); }));
}

TEST_F(ItemPropertyTest, LessAndGreaterCountAsEqualDeliberately) {
  UseSeveralColumns();
  FOther->Whole = 4;
  Inspect({FSample.get(), FOther.get()});
  EXPECT_TRUE(Item("Whole").IsAllValuesEqual());
  Item("Whole").GetRealValues()[1] = Variant::Null();
  EXPECT_FALSE(Item("Whole").IsAllValuesEqual());
}

TEST_F(ItemPropertyTest, AMemberBeyondTheThirtySecondIsNeverInTheSet) {
  FSample->Styles = {ssBold};
  Inspect({FSample.get()});
  Item("Styles.ssBold").GetRealValues()[0] = 32;
  FInspector->RefreshProperties();
  EXPECT_EQ("False", Value("Styles.ssBold"));
}

// Reading.

TEST_F(ItemPropertyTest, AccessorsReadTheObjectOfTheirNumber) {
  FSample->Whole = 1;
  FOther->Whole = 2;
  FSample->Big = 3;
  FSample->Ratio = 4.5;
  FSample->Text = "text";
  FSample->Anything = 6;
  FSample->Partner = FOther.get();
  FSample->OnAction = {FSample.get(), &TSample::HandleAction};
  FInspector->SetDisplayKinds(tkAny);
  Inspect({FSample.get(), FOther.get()});
  EXPECT_EQ(1, Item("Whole").GetOrdProperty(0));
  EXPECT_EQ(2, Item("Whole").GetOrdProperty(1));
  EXPECT_EQ(3, Item("Big").GetInt64Property(0));
  EXPECT_EQ(4.5, Item("Ratio").GetFloatProperty(0));
  EXPECT_EQ("text", Item("Text").GetStringProperty(0));
  EXPECT_EQ(6, Item("Anything").GetVariantProperty(0).ToInt());
  EXPECT_EQ(FOther.get(), Item("Partner").GetObjectProperty(0));
  EXPECT_EQ(FSample.get(), Item("OnAction").GetMethodProperty(0).Instance());
  EXPECT_EQ(TSamplePart::Class(), Item("Part").GetObjectPropertyClass());
  EXPECT_EQ(8, Item("Part.Size").GetOrdProperty(0));
}

TEST_F(ItemPropertyTest, MinusOneMeansTheObjectOfTheCurrentColumn) {
  UseSeveralColumns();
  FOther->Whole = 2;
  Inspect({FSample.get(), FOther.get()});
  FInspector->SetCol(2);
  EXPECT_EQ(2, Item("Whole").GetOrdProperty(-1));
  FInspector->SetCol(1);
  EXPECT_EQ(0, Item("Whole").GetOrdProperty(-1));
}

TEST_F(ItemPropertyTest, AnElementsObjectIsTheItemOfTheCollection) {
  FSample->GetItems().AddItem("one");
  FSample->GetItems().AddItem("two");
  FInspector->SetInplaceCollections(true);
  Inspect({FSample.get()});
  EXPECT_EQ(FSample->GetItems().ItemAt(1), Item("Items.Items[1]").GetObjectProperty(-1));
}

TEST_F(ItemPropertyTest, WithoutAnInspectorThereIsNothingToRead) {
  const auto items = Make<TKTItemProperties>(nullptr);
  TKTItemProperty* item = items->Add();
  item->SetIsRealProperty(true);
  EXPECT_EQ(0, item->GetOrdProperty(0));
  EXPECT_EQ(nullptr, item->GetObjectProperty(0));
  EXPECT_EQ(nullptr, item->GetObjectPropertyClass());
  EXPECT_FALSE(item->IsModified());
  EXPECT_TRUE(item->RefreshValue());
}

// Writing.

TEST_F(ItemPropertyTest, AccessorsWriteToOneObjectOrToAll) {
  Inspect({FSample.get(), FOther.get()});
  Item("Whole").SetOrdProperty(3, 1);
  EXPECT_EQ(0, FSample->Whole);
  EXPECT_EQ(3, FOther->Whole);
  Item("Whole").SetOrdProperty(4, -1);
  EXPECT_EQ(4, FSample->Whole);
  EXPECT_EQ(4, FOther->Whole);
}

TEST_F(ItemPropertyTest, WithSeveralColumnsMinusOneMeansTheCurrentOne) {
  UseSeveralColumns();
  Inspect({FSample.get(), FOther.get()});
  FInspector->SetCol(2);
  Item("Whole").SetOrdProperty(4, -1);
  EXPECT_EQ(0, FSample->Whole);
  EXPECT_EQ(4, FOther->Whole);
}

TEST_F(ItemPropertyTest, EachAccessorWritesItsKind) {
  FInspector->SetDisplayKinds(tkAny);
  Inspect({FSample.get()});
  Item("Big").SetInt64Property(1LL << 40, -1);
  Item("Ratio").SetFloatProperty(2.5, -1);
  Item("Text").SetStringProperty("new", -1);
  Item("Anything").SetVariantProperty("any", -1);
  Item("Sibling").SetObjectProperty(FOther.get(), -1);
  Item("OnAction").SetMethodProperty(TNotifyEvent(FSample.get(), &TSample::HandleAction), -1);
  EXPECT_EQ(1LL << 40, FSample->Big);
  EXPECT_EQ(2.5, FSample->Ratio);
  EXPECT_EQ("new", FSample->Text);
  EXPECT_EQ("any", FSample->Anything.ToString());
  EXPECT_EQ(FOther.get(), FSample->Sibling);
  EXPECT_TRUE(FSample->OnAction);
}

TEST_F(ItemPropertyTest, WritingTellsBeforeAndAfter) {
  QStringList log;
  FInspector->OnPropertyChanging = [&](TObject*, TKTItemProperty*) { log += QString::number(FSample->Big); };
  FInspector->OnPropertyChanged = [&](TObject*, TKTItemProperty* item) { log += item->GetValueLine(0); };
  Inspect({FSample.get()});
  Item("Big").SetInt64Property(5, -1);
  Deliver();
  EXPECT_EQ("0 5", log.join(u' '));
}

// Copies.

TEST_F(ItemPropertyTest, ACopyStandsForTheSame) {
  FSample->Styles = {ssItalic};
  Inspect({FSample.get()});
  const auto items = Make<TKTItemProperties>(nullptr);
  TKTItemProperty* copy = items->Add();
  copy->Assign(&Item("Styles"));
  EXPECT_EQ("Styles", copy->GetRealPropName());
  EXPECT_EQ(tkSet, copy->GetTypeKind());
  EXPECT_EQ("TSampleStyles", copy->GetTypeName());
  EXPECT_EQ(pkSet, copy->GetPropertyKind());
  EXPECT_TRUE(copy->IsRealProperty());
  EXPECT_TRUE(copy->IsAllEqual());
  ASSERT_EQ(1u, copy->GetRealValues().size());
  EXPECT_EQ(2, copy->GetRealValues()[0].ToInt());
  EXPECT_EQ(3, copy->GetItems().GetCount());
}

TEST_F(ItemPropertyTest, EventsAreCopiedApart) {
  const auto items = Make<TKTItemProperties>(nullptr);
  TKTItemProperty* source = items->Add();
  TKTItemProperty* copy = items->Add();
  source->SetOnGetProperty([](TObject*, TObject*, const QString&, QString&) {});
  source->SetOnSetProperty([](TObject*, TObject*, const QString&, const QString&) {});
  source->SetOnRefreshValue([](TObject*, TKTItemProperty*) {});
  source->SetOnEditButtonClick([](TObject*) {});
  copy->AssignEvents(source);
  EXPECT_EQ(source->GetOnGetProperty(), copy->GetOnGetProperty());
  EXPECT_EQ(source->GetOnSetProperty(), copy->GetOnSetProperty());
  EXPECT_EQ(source->GetOnRefreshValue(), copy->GetOnRefreshValue());
  EXPECT_EQ(source->GetOnEditButtonClick(), copy->GetOnEditButtonClick());
}

// Rows.

TEST_F(ItemPropertyTest, ReadOnlyPropertiesThatLeadOnShowAlsoWhereReadOnlyOnesDoNot) {
  FSample->GetItems().AddItem("one");
  FInspector->SetInplaceCollections(true);
  FInspector->SetDisplayOptions(FInspector->GetDisplayOptions() - TILEDisplayOptions{doShowReadOnly});
  Inspect({FSample.get()});
  EXPECT_FALSE(Item("Double").IsVisible());
  EXPECT_FALSE(Item("Reference").IsVisible());
  EXPECT_TRUE(Item("Styles").IsVisible());
  EXPECT_TRUE(Item("Part").IsVisible());
  Item("Items").Expand();
  EXPECT_TRUE(Item("Items.Items[0]").IsVisible());
  EXPECT_LE(0, Item("Styles").GetAbsoluteVIndex());
  EXPECT_EQ(-1, Item("Double").GetAbsoluteVIndex());
}

}  // namespace
}  // namespace kt::tests
