// What a new inspector is set to, and what it publishes.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "support/FormText.h"

#include <gmock/gmock.h>

namespace kt::tests {
namespace {

class InspectorDefaultsTest : public TInspectorTest {
 protected:
  void SetUp() override { RegisterObjectInspector(); }
  /// The names, in alphabetical order.
  static QStringList PublishedBy(const TClassInfo* classInfo) {
    QStringList names;
    for (const TPropInfo* property : GetPropList(classInfo)) names += property->Name();
    names.sort();
    return names;
  }
};

constexpr TTypeKinds kListedKinds = tkAny - TTypeKinds{tkUnknown, tkMethod, tkArray, tkRecord, tkDynArray};

TEST_F(InspectorDefaultsTest, ANewInspectorIsSetUp) {
  EXPECT_FALSE(FInspector->GetInplaceCollections());
  EXPECT_TRUE(FInspector->GetInplaceComponents());
  EXPECT_FALSE(FInspector->GetInplaceTStrings());
  EXPECT_EQ(TInplaceTStringsOptions(), FInspector->GetInplaceTStringsOptions());
  EXPECT_EQ("Items[%d]", FInspector->GetCollectionItemFormat());
  EXPECT_EQ("Items[%d]", FInspector->GetStringsItemFormat());
  EXPECT_TRUE(FInspector->GetFiltersEnabled());
  EXPECT_EQ(TILEFilterOptions(), FInspector->GetFilterOptions());
  EXPECT_TRUE(FInspector->GetShowValueChangedFont());
  EXPECT_FALSE(FInspector->GetDynamicTitleCaptions());
  EXPECT_TRUE(FInspector->IsSorted());
  EXPECT_FALSE(FInspector->GetCaseSensitive());
  EXPECT_FALSE(FInspector->GetDeleteBlanks());
  EXPECT_EQ(clBtnFace, FInspector->GetColor());
  EXPECT_EQ(0x800000, FInspector->GetValueFont().GetColor());
  EXPECT_EQ(0x800000, FInspector->GetValueChangedFont().GetColor());
  EXPECT_EQ(TFontStyles{fsBold}, FInspector->GetValueChangedFont().GetStyle());
}

TEST_F(InspectorDefaultsTest, ANewInspectorListsOtherKindsThanTheDeclaredDefaultDeliberately) {
  EXPECT_EQ(kListedKinds, FInspector->GetDisplayKinds());
  const TPropInfo* property = GetPropInfo(TKTObjectInspector::Class(), u"DisplayKinds");
  EXPECT_EQ(qint64((tkAny - TTypeKinds{tkUnknown, tkMethod}).Bits()), property->Default());
  EXPECT_THAT(TextOf(FInspector.get()), testing::HasSubstr("DisplayKinds"));
}

TEST_F(InspectorDefaultsTest, ArraysAndRecordsAreNeverAmongTheDisplayedKinds) {
  FInspector->SetDisplayKinds(tkAny);
  EXPECT_EQ(tkAny - TTypeKinds({tkArray, tkRecord, tkDynArray}), FInspector->GetDisplayKinds());
}

TEST_F(InspectorDefaultsTest, WhatIsPublishedIsWhatAnItemListEditorPublishesAndWhatInspectorsAdd) {
  QStringList expected = PublishedBy(TKTItemListEditor::Class());
  // Rows and columns are the inspector's own business.
  for (const char* name : {"CaseSensitive", "ColCount", "RowCount"}) {
    EXPECT_EQ(1, expected.removeAll(QString::fromLatin1(name))) << name;
  }
  expected += QStringLiteral(
                  "DisplayKinds DynamicTitleCaptions VisibleRowCount OnRefreshValue OnAfterScan OnBeforeScan "
                  "InplaceCollections InplaceComponents InplaceTStrings InplaceTStringsOptions StringsItemFormat "
                  "CollectionItemFormat FiltersEnabled FilterOptions Filters OnCustomPreset OnMatchPreset "
                  "OnFiltersChanging OnFiltersChanged OnPropertyChanging OnPropertyChanged ShowValueChangedFont "
                  "ValueChangedFont Component Objects Presets")
                  .split(u' ');
  if (!expected.contains(QLatin1StringView("FixedRows"))) expected += QStringLiteral("FixedRows");
  expected.sort();
  EXPECT_EQ(expected.join(u' '), PublishedBy(TKTObjectInspector::Class()).join(u' '));
}

TEST_F(InspectorDefaultsTest, PropertiesArePublishedWithTheirTypesAndDefaults) {
  EXPECT_FALSE(GetPropInfo(TKTObjectInspector::Class(), u"VisibleRowCount")->IsWritable());
  EXPECT_EQ("TKTItemProperties", GetPropInfo(TKTObjectInspector::Class(), u"Items")->PropType()->Name());
  const std::pair<const char*, qint64> defaults[] = {
      {"Sorted", 1},           {"InplaceCollections", 0}, {"InplaceComponents", 1},    {"InplaceTStrings", 0},
      {"FiltersEnabled", 1},   {"FilterOptions", 0},      {"ShowValueChangedFont", 1}, {"DynamicTitleCaptions", 0},
      {"ArrangeByCategory", 0}};
  for (const auto& [name, value] : defaults) {
    EXPECT_EQ(value, GetPropInfo(TKTObjectInspector::Class(), QString::fromLatin1(name))->Default()) << name;
  }
  EXPECT_FALSE(GetPropInfo(TKTObjectInspector::Class(), u"InplaceTStringsOptions")->HasDefault());
}

TEST_F(InspectorDefaultsTest, TheChangedFontFollowsTheValueFont) {
  FInspector->GetValueFont().SetHeight(-30);
  EXPECT_EQ(-30, FInspector->GetValueChangedFont().GetHeight());
  EXPECT_EQ(TFontStyles{fsBold}, FInspector->GetValueChangedFont().GetStyle());
  FInspector->GetFont().SetHeight(-20);
  EXPECT_EQ(-30, FInspector->GetValueChangedFont().GetHeight());
}

}  // namespace
}  // namespace kt::tests
