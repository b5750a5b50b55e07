// What a new inspector is set to, and what it streams.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "support/FormText.h"

#include <gmock/gmock.h>

namespace kt::tests {
namespace {

class InspectorDefaultsTest : public TInspectorTest {
 protected:
  void SetUp() override { RegisterObjectInspector(); }
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

TEST_F(InspectorDefaultsTest, TheCategoryMapHasSixtyTwoLines) {
  TStringList& categories = Items().GetCategories();
  ASSERT_EQ(62, categories.GetCount());
  for (const char* line : {"Action=Action", "BiDiMode=Locale", "ParentBiDiMode=Linkage", "Width=Visual"}) {
    EXPECT_LE(0, categories.IndexOf(QString::fromLatin1(line))) << line;
  }
}

TEST_F(InspectorDefaultsTest, GridPropertiesThatAnInspectorMakesItselfAreNotPublished) {
  for (const char* name : {"CaseSensitive", "ColCount", "RowCount"}) {
    EXPECT_EQ(nullptr, GetPropInfo(TKTObjectInspector::Class(), QString::fromLatin1(name))) << name;
  }
  EXPECT_NE(nullptr, GetPropInfo(TKTObjectInspector::Class(), u"FixedRows"));
  EXPECT_FALSE(GetPropInfo(TKTObjectInspector::Class(), u"VisibleRowCount")->IsWritable());
  EXPECT_EQ(1, GetPropInfo(TKTObjectInspector::Class(), u"Sorted")->Default());
}

TEST_F(InspectorDefaultsTest, TheChangedFontFollowsTheValueFont) {
  FInspector->GetValueFont().SetHeight(-30);
  EXPECT_EQ(-30, FInspector->GetValueChangedFont().GetHeight());
  EXPECT_EQ(TFontStyles{fsBold}, FInspector->GetValueChangedFont().GetStyle());
  FInspector->GetFont().SetHeight(-20);
  EXPECT_EQ(-30, FInspector->GetValueChangedFont().GetHeight());
}

TEST_F(InspectorDefaultsTest, ItemsAreStreamedUnderANameOfTheirOwnAndComeBack) {
  const auto sample = Make<TSample>();
  Inspect({sample.get()});
  FInspector->GetObjects().Clear();
  Items().Add()->SetName("own");
  TKTItemProperty* item = Items().GetItem(0);
  item->SetTypeKind(tkSet);
  item->SetTypeName("TKinds");
  item->SetAllEqual(true);
  item->GetItems().Add()->SetName("below");
  const QByteArray form = WriteComponentToBinary(FInspector.get());
  EXPECT_THAT(TextOf(FInspector.get()), testing::HasSubstr("HItems = <"));
  const auto copy = Make<TKTObjectInspector>();
  TReader(form).ReadRootComponent(copy.get());
  ASSERT_EQ(1, copy->GetItems().GetCount());
  const TKTItemProperty* read = copy->GetItems().GetItem(0);
  EXPECT_EQ("own", read->GetName());
  EXPECT_EQ(tkSet, read->GetTypeKind());
  EXPECT_EQ("TKinds", read->GetTypeName());
  EXPECT_TRUE(read->IsAllEqual());
  EXPECT_EQ("below", copy->GetItems().GetItem(0)->GetItems().GetItem(0)->GetName());
}

TEST_F(InspectorDefaultsTest, PresetsAreStreamedUnderANameOfTheirOwnAndComeBack) {
  FInspector->GetPresets().Clear();
  TKTPropertyPreset* preset = FInspector->GetPresets().Add();
  preset->SetName("mine");
  EXPECT_THAT(TextOf(FInspector.get()), testing::HasSubstr("HPresets"));
  const auto copy = Make<TKTObjectInspector>();
  TReader(WriteComponentToBinary(FInspector.get())).ReadRootComponent(copy.get());
  ASSERT_EQ(1, copy->GetPresets().GetCount());
  EXPECT_EQ("mine", copy->GetPresets().GetItem(0)->GetName());
}

TEST_F(InspectorDefaultsTest, AnAssignmentCopiesAndEndsInTheErrorOfOneThatIsNotPossible) {
  const auto other = Make<TKTObjectInspector>();
  const auto sample = Make<TSample>();
  other->SetCollectionItemFormat("a%d");
  other->SetInplaceCollections(true);
  other->GetFilters().Add("Tag");
  other->GetObjects().Add(sample.get());
  try {
    FInspector->Assign(other.get());
    FAIL();
  } catch (const EConvertError& error) {
    EXPECT_EQ("Cannot assign a TKTObjectInspector to a TKTObjectInspector", error.Message());
  }
  EXPECT_EQ("a%d", FInspector->GetCollectionItemFormat());
  EXPECT_TRUE(FInspector->GetInplaceCollections());
  EXPECT_EQ("Tag", FInspector->GetFilters().GetStrings(0));
  EXPECT_EQ(sample.get(), FInspector->GetObjects().GetItem(0)->GetObjects());
}

}  // namespace
}  // namespace kt::tests
