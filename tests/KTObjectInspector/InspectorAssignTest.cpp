// What an inspector takes over from another.
#include "KTObjectInspector/InspectorFixture.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/objects/Exceptions.h"
#include "support/Expect.h"

namespace kt::tests {
namespace {

/// An inspector that others may be assigned from.
class TGivingInspector : public TKTObjectInspector {
 public:
  int Given = 0;

 protected:
  TGivingInspector() = default;
  void AssignTo(TPersistent*) override { ++Given; }
};

/// An inspector whose list of objects asks for no scan.
class TQuietInspector : public TKTObjectInspector {
 protected:
  TQuietInspector() = default;
  void ListUpdate(TKTInspectorObject*) override {}
};

class InspectorAssignTest : public TInspectorTest {
 protected:
  std::unique_ptr<TGivingInspector> FSource = Make<TGivingInspector>();
  std::unique_ptr<TSample> FSample = Make<TSample>();
};

TEST_F(InspectorAssignTest, WhatIsListedAndHowIsTakenOver) {
  FSource->SetCollectionItemFormat("a%d");
  FSource->SetInplaceCollections(true);
  FSource->SetInplaceComponents(false);
  FSource->SetInplaceTStrings(true);
  FSource->SetInplaceTStringsOptions({isSort});
  FSource->SetStringsItemFormat("b%d");
  FSource->SetDisplayKinds({tkMethod, tkSet});
  FSource->GetFilters().SetCommaText("Tag,Name");
  FSource->SetFiltersEnabled(false);
  FSource->SetFilterOptions({foInclusive, foCaseSensitive});
  FInspector->Assign(FSource.get());
  EXPECT_EQ("a%d", FInspector->GetCollectionItemFormat());
  EXPECT_TRUE(FInspector->GetInplaceCollections());
  EXPECT_FALSE(FInspector->GetInplaceComponents());
  EXPECT_TRUE(FInspector->GetInplaceTStrings());
  EXPECT_EQ(TInplaceTStringsOptions{isSort}, FInspector->GetInplaceTStringsOptions());
  EXPECT_EQ("b%d", FInspector->GetStringsItemFormat());
  EXPECT_EQ((TTypeKinds{tkMethod, tkSet}), FInspector->GetDisplayKinds());
  EXPECT_EQ("Tag,Name", FInspector->GetFilters().GetCommaText());
  EXPECT_EQ(-1, FInspector->GetFilters().IndexOf(u"tag"));
  EXPECT_FALSE(FInspector->GetFiltersEnabled());
  EXPECT_EQ((TILEFilterOptions{foInclusive, foCaseSensitive}), FInspector->GetFilterOptions());
}

TEST_F(InspectorAssignTest, HowValuesAndTitlesAreShownIsTakenOver) {
  FSource->SetShowValueChangedFont(false);
  FSource->SetDynamicTitleCaptions(true);
  FSource->GetValueChangedFont().SetColor(clRed);
  FSource->GetValueChangedFont().SetStyle({fsItalic});
  FInspector->Assign(FSource.get());
  EXPECT_FALSE(FInspector->GetShowValueChangedFont());
  EXPECT_TRUE(FInspector->GetDynamicTitleCaptions());
  EXPECT_EQ(clRed, FInspector->GetValueChangedFont().GetColor());
  EXPECT_EQ(TFontStyles{fsItalic}, FInspector->GetValueChangedFont().GetStyle());
}

TEST_F(InspectorAssignTest, PresetsAndObjectsAreTakenOver) {
  FSource->GetPresets().Clear();
  FSource->GetPresets().Add()->SetName("mine");
  FSource->GetObjects().Add(FSample.get());
  FInspector->Assign(FSource.get());
  ASSERT_EQ(1, FInspector->GetPresets().GetCount());
  EXPECT_EQ("mine", FInspector->GetPresets().GetItem(0)->GetName());
  ASSERT_EQ(1, FInspector->GetObjects().GetCount());
  EXPECT_EQ(FSample.get(), FInspector->GetObjects().GetItem(0)->GetObjects());
  Deliver();
  EXPECT_NE(nullptr, Find("Whole"));
}

TEST_F(InspectorAssignTest, WhatIsNoMatterOfInspectingStaysAsItWas) {
  FSource->SetSorted(false);
  FSource->SetColor(clRed);
  FSource->SetPathDelimiter("/");
  FInspector->Assign(FSource.get());
  EXPECT_TRUE(FInspector->IsSorted());
  EXPECT_EQ(clBtnFace, FInspector->GetColor());
  EXPECT_EQ(".", FInspector->GetPathDelimiter());
}

TEST_F(InspectorAssignTest, TheFieldsThatAreCopiedAskForNoScan) {
  FInspector = Make<TQuietInspector>();
  // Filters that are on do, through their own list.
  FInspector->SetFiltersEnabled(false);
  FSource->SetFiltersEnabled(false);
  Deliver();
  FSource->SetInplaceCollections(true);
  FSource->SetInplaceComponents(false);
  FSource->SetInplaceTStrings(true);
  FSource->SetInplaceTStringsOptions({isSort});
  FSource->SetDisplayKinds({tkMethod});
  FSource->SetCollectionItemFormat("a%d");
  FSource->SetStringsItemFormat("b%d");
  FSource->SetFilterOptions({foInclusive});
  FSource->SetDynamicTitleCaptions(true);
  int scans = 0;
  FInspector->OnBeforeScan = [&scans](TObject*, TKTItemProperty*, bool&) { ++scans; };
  FInspector->Assign(FSource.get());
  Deliver();
  EXPECT_EQ(0, scans);
}

TEST_F(InspectorAssignTest, TheObjectsThatAreCopiedAskForTheirScanAsEver) {
  FSource->GetObjects().Add(FSample.get());
  QString scans;
  FInspector->OnBeforeScan = [&scans](TObject*, TKTItemProperty* item, bool&) {
    if (!item) scans += "scan ";
  };
  FInspector->Assign(FSource.get());
  EXPECT_EQ("", scans);
  Deliver();
  EXPECT_EQ("scan ", scans);
}

TEST_F(InspectorAssignTest, TheCopyEndsInTheErrorOfOneThatIsNotPossibleDeliberately) {
  const auto other = Make<TKTObjectInspector>();
  other->SetInplaceCollections(true);
  EXPECT_EQ("Cannot assign a TKTObjectInspector to a TKTObjectInspector",
            MessageOf<EConvertError>([&] { FInspector->Assign(other.get()); }));
  EXPECT_TRUE(FInspector->GetInplaceCollections());
}

TEST_F(InspectorAssignTest, ASourceThatGivesItselfIsAskedAfterTheCopy) {
  EXPECT_NO_THROW(FInspector->Assign(FSource.get()));
  EXPECT_EQ(1, FSource->Given);
}

TEST_F(InspectorAssignTest, ASourceThatIsNoInspectorCannotBeTakenOver) {
  FInspector->SetInplaceCollections(true);
  EXPECT_EQ("Cannot assign a TSample to a TKTObjectInspector",
            MessageOf<EConvertError>([&] { FInspector->Assign(FSample.get()); }));
  EXPECT_EQ("Cannot assign a nil to a TKTObjectInspector",
            MessageOf<EConvertError>([&] { FInspector->Assign(nullptr); }));
  EXPECT_TRUE(FInspector->GetInplaceCollections());
}

}  // namespace
}  // namespace kt::tests
