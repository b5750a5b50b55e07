// What each setting does to the tree: nothing at once, and what it says when the request that it posts is delivered.
#include "KTObjectInspector/InspectorFixture.h"
#include "KTObjectInspector/LinesHolder.h"
#include "kt/KTPropertyPresets.h"

namespace kt::tests {
namespace {

class InspectorSettersTest : public TInspectorTest {
 protected:
  InspectorSettersTest() {
    FSample->GetItems().AddItem("one");
    FHolder->GetLines().SetCommaText("y=1,x=2");
  }

  static QString TextOfTree(TKTItemProperties& items) {
    QStringList texts;
    for (int i = 0; i < items.GetCount(); ++i) {
      TKTItemProperty& item = *items.GetItem(i);
      texts += item.GetName() + (item.HasItems() ? "[" + TextOfTree(item.GetItems()) + "]" : QString());
    }
    return texts.join(u' ');
  }
  /// Changes a setting, which leaves the tree alone, and has its request delivered, which makes another one.
  template <class F>
  void Change(F change) {
    const QString before = TextOfTree(Items());
    TKTItemProperty* first = Items().GetItem(0);
    change(*FInspector);
    EXPECT_EQ(before, TextOfTree(Items()));
    EXPECT_EQ(first, Items().GetItem(0));
    Deliver();
    EXPECT_NE(before, TextOfTree(Items()));
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TSample> FOther = Make<TSample>();
  std::unique_ptr<TSamplePart> FPart = Make<TSamplePart>();
  std::unique_ptr<TLinesHolder> FHolder = Make<TLinesHolder>();
};

TEST_F(InspectorSettersTest, InplaceCollectionsListsElements) {
  Inspect({FSample.get()});
  Change([](auto& inspector) { inspector.SetInplaceCollections(true); });
  EXPECT_EQ("Items[0]", NamesBelow("Items"));
  Change([](auto& inspector) { inspector.SetInplaceCollections(false); });
  EXPECT_EQ("", NamesBelow("Items"));
}

TEST_F(InspectorSettersTest, InplaceComponentsListsWhatComponentsHave) {
  FSample->Partner = FOther.get();
  Inspect({FSample.get()});
  Change([](auto& inspector) { inspector.SetInplaceComponents(false); });
  EXPECT_EQ("", NamesBelow("Partner"));
  Change([](auto& inspector) { inspector.SetInplaceComponents(true); });
  EXPECT_NE("", NamesBelow("Partner"));
}

TEST_F(InspectorSettersTest, InplaceTStringsListsLines) {
  Inspect({FHolder.get()});
  Change([](auto& inspector) { inspector.SetInplaceTStrings(true); });
  EXPECT_EQ("Items[0] Items[1]", NamesBelow("Lines"));
  Change([](auto& inspector) { inspector.SetInplaceTStrings(false); });
  EXPECT_EQ("", NamesBelow("Lines"));
}

TEST_F(InspectorSettersTest, InplaceTStringsOptionsNameAndSortTheLines) {
  FInspector->SetInplaceTStrings(true);
  Inspect({FHolder.get()});
  Change([](auto& inspector) { inspector.SetInplaceTStringsOptions({isUseNameValue}); });
  EXPECT_EQ("y x", NamesBelow("Lines"));
  Change([](auto& inspector) { inspector.SetInplaceTStringsOptions({isUseNameValue, isSort}); });
  EXPECT_EQ("x y", NamesBelow("Lines"));
}

TEST_F(InspectorSettersTest, CollectionItemFormatNamesElements) {
  FInspector->SetInplaceCollections(true);
  Inspect({FSample.get()});
  Change([](auto& inspector) { inspector.SetCollectionItemFormat("No %d"); });
  EXPECT_EQ("No 0", NamesBelow("Items"));
}

TEST_F(InspectorSettersTest, StringsItemFormatNamesLines) {
  FInspector->SetInplaceTStrings(true);
  Inspect({FHolder.get()});
  Change([](auto& inspector) { inspector.SetStringsItemFormat("Line %d"); });
  EXPECT_EQ("Line 0 Line 1", NamesBelow("Lines"));
}

TEST_F(InspectorSettersTest, DisplayKindsChoosesProperties) {
  Inspect({FPart.get()});
  Change([](auto& inspector) { inspector.SetDisplayKinds({tkInteger}); });
  EXPECT_EQ("Size", Names(Items()));
}

TEST_F(InspectorSettersTest, FiltersEnabledSwitchesTheFilters) {
  FInspector->GetFilters().Add("Size");
  Inspect({FPart.get()});
  EXPECT_EQ("Style Title", Names(Items()));
  Change([](auto& inspector) { inspector.SetFiltersEnabled(false); });
  EXPECT_EQ("Size Style Title", Names(Items()));
  Change([](auto& inspector) { inspector.SetFiltersEnabled(true); });
  EXPECT_EQ("Style Title", Names(Items()));
}

TEST_F(InspectorSettersTest, FilterOptionsSayHowFiltersAreMeant) {
  FInspector->GetFilters().Add("size");
  Inspect({FPart.get()});
  Change([](auto& inspector) { inspector.SetFilterOptions({foInclusive}); });
  EXPECT_EQ("Size", Names(Items()));
  Change([](auto& inspector) { inspector.SetFilterOptions({foCaseSensitive}); });
  EXPECT_EQ("Size Style Title", Names(Items()));
  Change([](auto& inspector) { inspector.SetFilterOptions({}); });
  EXPECT_EQ("Style Title", Names(Items()));
}

TEST_F(InspectorSettersTest, FiltersAreReplacedAsAWhole) {
  FInspector->GetFilters().Add("Size");
  Inspect({FPart.get()});
  const auto others = Make<TStringList>();
  others->Add("Title");
  Change([&](auto& inspector) { inspector.SetFilters(*others); });
  EXPECT_EQ("Size Style", Names(Items()));
}

TEST_F(InspectorSettersTest, ArrangeByCategoryPutsPropertiesBelowCategories) {
  Inspect({FPart.get()});
  Change([](auto& inspector) { inspector.SetArrangeByCategory(true); });
  EXPECT_EQ("Size Style Title", NamesBelow("Miscellaneous"));
  Change([](auto& inspector) { inspector.SetArrangeByCategory(false); });
  EXPECT_EQ("Size Style Title", Names(Items()));
}

TEST_F(InspectorSettersTest, SeveralValueColumnsComeAndGoWithTheirOption) {
  FOther->Whole = 7;
  Inspect({FSample.get(), FOther.get()});
  UseSeveralColumns();
  EXPECT_EQ(2, FInspector->GetColCount());
  Deliver();
  EXPECT_EQ(3, FInspector->GetColCount());
  EXPECT_EQ("7", Item("Whole").GetValueLine(1));
  UseSeveralColumns(false);
  EXPECT_FALSE(Item("Tag").IsAllEqual());
  Deliver();
  EXPECT_EQ(2, FInspector->GetColCount());
  EXPECT_TRUE(Item("Tag").IsAllEqual());
  EXPECT_FALSE(Item("Whole").IsAllEqual());
}

TEST_F(InspectorSettersTest, OtherDisplayOptionsKeepTheTree) {
  Inspect({FPart.get()});
  TKTItemProperty* first = Items().GetItem(0);
  FInspector->SetDisplayOptions(FInspector->GetDisplayOptions() - TILEDisplayOptions{doShowReadOnly});
  Deliver();
  EXPECT_EQ(first, Items().GetItem(0));
}

// Presets.

TEST_F(InspectorSettersTest, APresetThatComesOrChangesHasWhatIsInspectedListedAnew) {
  FInspector->GetPresets().Clear();
  Inspect({FPart.get()});
  TKTPropertyPreset* preset = nullptr;
  int scans = 0;
  FInspector->OnAfterScan = [&](TObject*, TKTItemProperty* item) { scans += item ? 0 : 1; };
  preset = FInspector->GetPresets().Add();
  EXPECT_EQ(0, scans);
  Deliver();
  EXPECT_EQ(1, scans);
  preset->GetPropNames().Add("Size");
  preset->SetHint("how big");
  Deliver();
  EXPECT_EQ(2, scans);
  EXPECT_EQ("how big", Item("Size").GetHint());
  delete preset;
  Deliver();
  EXPECT_EQ(3, scans);
  EXPECT_EQ("", Item("Size").GetHint());
}

TEST_F(InspectorSettersTest, WithoutObjectsAPresetThatComesLeavesTheApplicationsItemsAlone) {
  Items().Add()->SetName("own");
  FInspector->GetPresets().Add()->SetName("preset");
  Deliver();
  EXPECT_EQ("own", Names(Items()));
}

}  // namespace
}  // namespace kt::tests
