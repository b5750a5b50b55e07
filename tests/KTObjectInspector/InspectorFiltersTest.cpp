// Which properties filters hide and keep.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/KTPropertyPresets.h"

namespace kt::tests {
namespace {

class InspectorFiltersTest : public TInspectorTest {
 protected:
  void InspectWith(const QString& filters, TILEFilterOptions options = {}) {
    FInspector->GetFilters().SetCommaText(filters);
    FInspector->SetFilterOptions(options);
    Inspect({FSample.get()});
  }

  std::unique_ptr<TSample> FSample = Make<TSample>();
};

TEST_F(InspectorFiltersTest, FiltersHideWhatTheyNameWhereverItIs) {
  const auto partner = Make<TSample>();
  FSample->Partner = partner.get();
  InspectWith("size,TAG");
  EXPECT_EQ(nullptr, Find("Tag"));
  EXPECT_EQ(nullptr, Find("Partner.Tag"));
  EXPECT_EQ("Style Title", NamesBelow("Part"));
  EXPECT_EQ("Style Title", NamesBelow("Partner.Part"));
  EXPECT_NE(nullptr, Find("Whole"));
}

TEST_F(InspectorFiltersTest, WhatIsHiddenTakesAllBelowItAlong) {
  InspectWith("Part");
  EXPECT_EQ(nullptr, Find("Part"));
  EXPECT_EQ(nullptr, Find("Part.Size"));
  EXPECT_EQ("ssBold ssItalic ssUnderline", NamesBelow("Styles"));
}

TEST_F(InspectorFiltersTest, MembersOfSetsAreHiddenByNameToo) {
  InspectWith("ssItalic");
  EXPECT_EQ("ssBold ssUnderline", NamesBelow("Styles"));
  EXPECT_EQ("ssBold ssUnderline", NamesBelow("Part.Style"));
}

TEST_F(InspectorFiltersTest, FullPathsNameOneItemAlone) {
  InspectWith("Part.Size,Part.Whole");
  EXPECT_EQ("Style Title", NamesBelow("Part"));
  EXPECT_NE(nullptr, Find("Whole"));
}

TEST_F(InspectorFiltersTest, InclusiveFiltersKeepWhatTheyName) {
  InspectWith("Part,Size,Tag,Title", {foInclusive});
  EXPECT_EQ("Part Tag", Names(Items()));
  EXPECT_EQ("Size Title", NamesBelow("Part"));
}

TEST_F(InspectorFiltersTest, WhatInclusiveFiltersNameGoesWithItsParent) {
  InspectWith("Size", {foInclusive});
  EXPECT_EQ(0, FInspector->GetItemCount());
}

TEST_F(InspectorFiltersTest, InclusiveFiltersNameFullPathsToo) {
  InspectWith("part,PART.Size,Title", {foInclusive});
  EXPECT_EQ("Part", Names(Items()));
  EXPECT_EQ("Size Title", NamesBelow("Part"));
}

TEST_F(InspectorFiltersTest, FiltersMindTheCaseWhenTheyAreToldTo) {
  InspectWith("tag,Whole,part.Size,Part.Title", {foCaseSensitive});
  EXPECT_NE(nullptr, Find("Tag"));
  EXPECT_EQ(nullptr, Find("Whole"));
  EXPECT_EQ("Size Style", NamesBelow("Part"));
}

TEST_F(InspectorFiltersTest, DisabledFiltersHideNothing) {
  FInspector->SetFiltersEnabled(false);
  InspectWith("Tag");
  EXPECT_NE(nullptr, Find("Tag"));
}

TEST_F(InspectorFiltersTest, NoFiltersHideNothingEvenInclusively) {
  InspectWith("", {foInclusive});
  EXPECT_NE(nullptr, Find("Tag"));
}

TEST_F(InspectorFiltersTest, FiltersSeeTheNameThatAnItemHasBeforeAPresetGivesItAnother) {
  FInspector->GetPresets().Clear();
  TKTPropertyPreset* preset = FInspector->GetPresets().Add();
  preset->GetPropNames().SetCommaText("Whole,Small");
  preset->SetAlias("Alias");
  InspectWith("Alias,Whole");
  // What was called Whole is gone, and what was called Small is not.
  ASSERT_NE(nullptr, Find("Alias"));
  EXPECT_EQ("Small", Item("Alias").GetRealPropName());
  int aliases = 0;
  for (int i = 0; i < Items().GetCount(); ++i) aliases += Items().GetItem(i)->GetName() == QLatin1StringView("Alias");
  EXPECT_EQ(1, aliases);
}

TEST_F(InspectorFiltersTest, CategoriesStandForNoPropertyAndStay) {
  FInspector->SetArrangeByCategory(true);
  InspectWith("Tag", {foInclusive});
  EXPECT_EQ("Tag", NamesBelow("Miscellaneous"));
}

TEST_F(InspectorFiltersTest, ACategoryIsNotHiddenByAFilterOfItsName) {
  FInspector->SetArrangeByCategory(true);
  InspectWith("Miscellaneous");
  EXPECT_NE(nullptr, Find("Miscellaneous.Tag"));
}

}  // namespace
}  // namespace kt::tests
