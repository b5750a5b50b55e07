// What a refresh of all values does, and what it tells.
#include "KTObjectInspector/InspectorWindowFixture.h"
#include "kt/vcl/grids/GridTypes.h"

namespace kt::tests {
namespace {

class InspectorRefreshTest : public TInspectorWindowTest {
 protected:
  /// From now on every cell wants to be edited as another text than it was.
  void ChangeEditTexts() {
    FInspector->OnGetEditText = [](TObject*, int, int, QString& text) { text = "other"; };
  }
};

TEST_F(InspectorRefreshTest, AnOpenEditorOfAValueShowsTheNewText) {
  Show({FSample.get()});
  Select("Text");
  ChangeEditTexts();
  FInspector->RefreshProperties();
  EXPECT_EQ("other", Editor().GetText());
  EXPECT_EQ(5, Editor().GetSelLength());
}

TEST_F(InspectorRefreshTest, AnOpenEditorOfANameKeepsItsText) {
  FInspector->SetPropertyOptions({propEdit});
  Show({FSample.get()});
  Select("Text");
  FInspector->SetCol(0);
  TWindowProbe::Settle();
  ASSERT_TRUE(IsEditorOpen());
  ASSERT_EQ("Text", Editor().GetText());
  ChangeEditTexts();
  FInspector->RefreshProperties();
  EXPECT_EQ("Text", Editor().GetText());
}

TEST_F(InspectorRefreshTest, AnOpenEditorKeepsItsTextWhileSeveralRowsAreSelected) {
  FInspector->SetOptions(FInspector->GetOptions() + TGridOptions{goRangeSelect});
  FSample->Text = "old";
  Show({FSample.get()});
  Select("Text");
  ASSERT_TRUE(IsEditorOpen());
  const int row = FInspector->GetRow();
  FInspector->SetSelection({1, row - 1, 1, row});
  FInspector->SetEditorMode(true);
  const QString before = Editor().GetText();
  ChangeEditTexts();
  FInspector->RefreshProperties();
  EXPECT_EQ(before, Editor().GetText());
}

TEST_F(InspectorRefreshTest, ItStopsAtTheFirstItemThatLeadsNowhere) {
  FSample->Partner = FOther.get();
  Inspect({FSample.get()});
  QStringList log;
  FInspector->OnRefreshValue = [&](TObject* sender, TKTItemProperty* item) {
    EXPECT_EQ(FInspector.get(), sender);
    log += item->GetFullPathName();
  };
  FInspector->RefreshProperties();
  EXPECT_EQ(FInspector->GetItemCount(), log.size());
  log.clear();
  FSample->Partner = nullptr;
  FInspector->RefreshProperties();
  // The one that failed is told of, too.
  EXPECT_EQ("Partner.Align", log.last());
  EXPECT_TRUE(log.contains("Align"));
  EXPECT_FALSE(log.contains("Whole"));
  FSample->Partner = nullptr;
}

TEST_F(InspectorRefreshTest, AfterAWriteThatFailsToRefreshTheChangeIsToldAndAScanFollows) {
  FSample->Partner = FOther.get();
  Inspect({FSample.get()});
  QStringList log;
  FInspector->OnPropertyChanged = [&](TObject* sender, TKTItemProperty* item) {
    EXPECT_EQ(FInspector.get(), sender);
    log += "changed " + item->GetName();
  };
  FInspector->OnAfterScan = [&](TObject*, TKTItemProperty* item) {
    if (!item) log += "scanned";
  };
  FSample->Partner = nullptr;
  FInspector->InvalidateProperty(Item("Big").GetAbsoluteIndex());
  EXPECT_EQ("", log.join(u'|'));
  Deliver();
  Deliver();
  EXPECT_EQ("changed Big|scanned", log.join(u'|'));
}

TEST_F(InspectorRefreshTest, BetweenTheSwitchToSeveralColumnsAndItsScanTheFirstObjectIsReadAndWritten) {
  Inspect({FSample.get(), FOther.get()});
  UseSeveralColumns();
  FSample->Big = 5;
  EXPECT_NO_THROW(FInspector->RefreshProperties());
  EXPECT_EQ("5", Value("Big"));
  EXPECT_NO_THROW(Edit("Whole", "3"));
  EXPECT_NO_THROW(Edit("Styles.ssBold", "True"));
  EXPECT_EQ(3, FSample->Whole);
  EXPECT_EQ(0, FOther->Whole);
  Deliver();
  EXPECT_EQ("3", Value("Whole"));
  EXPECT_EQ("0", Item("Whole").GetValueLine(1));
}

TEST_F(InspectorRefreshTest, WhatIsToldAfterAWriteSeesTheNewValues) {
  Inspect({FSample.get()});
  FInspector->FullExpand();
  QString value;
  FInspector->OnPropertyChanged = [&](TObject*, TKTItemProperty*) { value = Value("Double"); };
  Edit("Whole", "4");
  Deliver();
  EXPECT_EQ("8", value);
}

}  // namespace
}  // namespace kt::tests
