#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/WindowProbe.h"

#include <QScrollBar>

#include <algorithm>

namespace kt::tests {
namespace {

class TSizedEditor : public TKTItemListEditor {
 public:
  using TKTItemListEditor::CalcFixedInfo;
  using TKTItemListEditor::CalcSizingState;
  using TKTItemListEditor::SetDesigning;
  using TKTItemListEditor::TKTItemListEditor;
  int EffectiveRowHeight() const { return TCustomDrawGrid::GetDefaultRowHeight(); }
};

class ItemListEditorColumnsTest : public TItemListTest {
 protected:
  ItemListEditorColumnsTest() { FEditor = Make<TSizedEditor>(); }

  void Show(int width = 305) {
    FEditor->SetScrollBars(ssNone);
    FEditor->SetBorderStyle(bsNone);
    FWindow = std::make_unique<TWindowProbe>(*FEditor, QSize(width, 200));
  }
  std::string Widths() {
    QStringList widths;
    for (int i = 0; i < FEditor->GetColCount(); ++i) widths += QString::number(FEditor->GetColWidths(i));
    return widths.join(u' ').toStdString();
  }
  qsizetype ShownBars() {
    const auto bars = FWindow->Body()->findChildren<QScrollBar*>();
    return std::count_if(bars.begin(), bars.end(), [](const QScrollBar* bar) { return bar->isVisible(); });
  }
  TSizedEditor& Sized() { return static_cast<TSizedEditor&>(*FEditor); }
  /// What a press would size: "column 0" or "-".
  std::string SizedAt(int x, int y) {
    TGridState state = gsNormal;
    int index = 0;
    int position = 0;
    int offset = 0;
    TGridDrawInfo info = Sized().CalcFixedInfo();
    Sized().CalcSizingState(x, y, state, index, position, offset, info);
    if (state == gsNormal) return "-";
    return (state == gsColSizing ? "column " : "row ") + std::to_string(index);
  }

  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(ItemListEditorColumnsTest, WithoutAWindowTheColumnsKeepTheirWidths) {
  FEditor->SetWidth(500);
  EXPECT_EQ("150 150", Widths());
}

TEST_F(ItemListEditorColumnsTest, TheValuesTakeWhatTheNamesLeave) {
  Show();
  EXPECT_EQ("150 153", Widths());
}

TEST_F(ItemListEditorColumnsTest, ADraggedNameColumnKeepsItsWidth) {
  Show();
  FEditor->SetColWidths(0, 100);
  EXPECT_EQ("100 203", Widths());
}

TEST_F(ItemListEditorColumnsTest, WithoutAFixedKeyColumnTheColumnsHalveAndTheOddPixelGoesToTheValues) {
  Show();
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doKeyColFixed});
  // They fill the width already.
  EXPECT_EQ("150 153", Widths());
  FEditor->SetColWidths(0, 20);
  EXPECT_EQ("151 152", Widths());
}

TEST_F(ItemListEditorColumnsTest, SeveralValueColumnsShareAlikeAndLeaveWhatDoesNotDivide) {
  Show();
  FEditor->SetColCount(3);
  EXPECT_EQ("150 76 76", Widths());
}

TEST_F(ItemListEditorColumnsTest, WithoutAutoResizeWidthsStay) {
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doAutoColResize});
  Show();
  EXPECT_EQ("150 150", Widths());
}

TEST_F(ItemListEditorColumnsTest, TheColumnsFollowTheWindow) {
  Show();
  FWindow->Window()->resize(405, 200);
  TWindowProbe::Settle();
  EXPECT_EQ("150 253", Widths());
}

TEST_F(ItemListEditorColumnsTest, ClientWidthsBelowTwoMakeNegativeWidths) {
  Show();
  FEditor->SetWidth(1);
  ASSERT_EQ(1, FEditor->GetClientWidth());
  EXPECT_EQ("150 -151", Widths());
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doKeyColFixed});
  FEditor->SetWidth(0);
  ASSERT_EQ(0, FEditor->GetClientWidth());
  EXPECT_EQ("-1 -1", Widths());
}

TEST_F(ItemListEditorColumnsTest, ASingleFixedKeyColumnKeepsItsWidth) {
  Show();
  FEditor->SetColCount(1);
  EXPECT_EQ("150", Widths());
}

TEST_F(ItemListEditorColumnsTest, ASingleColumnThatIsNotFixedTakesHalfOfTheWidth) {
  Show();
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doKeyColFixed});
  FEditor->SetColCount(1);
  EXPECT_EQ("151", Widths());
}

TEST_F(ItemListEditorColumnsTest, AHiddenGridAdjustsItsColumnsWhenItShows) {
  Show();
  FEditor->SetVisible(false);
  FEditor->SetColWidths(0, 100);
  EXPECT_EQ("100 153", Widths());
  FEditor->SetVisible(true);
  TWindowProbe::Settle();
  EXPECT_EQ("100 203", Widths());
}

TEST_F(ItemListEditorColumnsTest, AutoResizeThatIsSwitchedOnAdjustsAtOnce) {
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doAutoColResize});
  Show();
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() + TILEDisplayOptions{doAutoColResize});
  EXPECT_EQ("150 153", Widths());
}

TEST_F(ItemListEditorColumnsTest, WhereColumnsAreItemsTheItemsShareWhatTheTitlesLeave) {
  FEditor->SetOrientation(goHorizontal);
  Show();
  Fill("a b");
  EXPECT_EQ("150 76 76", Widths());
  FEditor->SetColWidths(0, 103);
  EXPECT_EQ("103 100 100", Widths());
}

TEST_F(ItemListEditorColumnsTest, AWindowHasNoScrollBarUntilItsRowsNeedOneAndTheColumnsMakeRoomForIt) {
  FWindow = std::make_unique<TWindowProbe>(*FEditor, QSize(305, 100));
  EXPECT_EQ(0, ShownBars());
  const int width = FEditor->GetClientWidth();
  Fill("a b c d e f g h");
  TWindowProbe::Settle();
  EXPECT_EQ(1, ShownBars());
  EXPECT_LT(FEditor->GetClientWidth(), width);
  EXPECT_EQ(FEditor->GetClientWidth() - 2, FEditor->GetColWidths(0) + FEditor->GetColWidths(1));
}

// Sizing.

TEST_F(ItemListEditorColumnsTest, TheDividerCanBeDraggedOnAnyRow) {
  Show();
  Fill("a b c");
  EXPECT_EQ("column 0", SizedAt(150, 9));
  EXPECT_EQ("column 0", SizedAt(150, 60));
  EXPECT_EQ("column 0", SizedAt(147, 60));
  EXPECT_EQ("-", SizedAt(100, 60));
}

TEST_F(ItemListEditorColumnsTest, TheDividerIsSevenPixelsWide) {
  Show();
  EXPECT_EQ("-", SizedAt(146, 60));
  EXPECT_EQ("column 0", SizedAt(147, 60));
  EXPECT_EQ("column 0", SizedAt(153, 60));
  EXPECT_EQ("-", SizedAt(154, 60));
}

TEST_F(ItemListEditorColumnsTest, WhereColumnsAreItemsTheirDividersCanBeDraggedOnAnyRow) {
  FEditor->SetOrientation(goHorizontal);
  Show();
  Fill("a b");
  EXPECT_EQ("column 1", SizedAt(227, 9));
  EXPECT_EQ("column 1", SizedAt(227, 28));
  EXPECT_EQ("column 1", SizedAt(227, 150));
  // The titles are fixed.
  EXPECT_EQ("-", SizedAt(150, 9));
}

TEST_F(ItemListEditorColumnsTest, FromRightToLeftTheDividerIsAsFarFromTheOtherSide) {
  FEditor->SetBiDiMode(bdRightToLeft);
  Show();
  EXPECT_EQ("column 0", SizedAt(305 - 150, 60));
  EXPECT_EQ("-", SizedAt(145, 60));
}

TEST_F(ItemListEditorColumnsTest, FromRightToLeftRowsAreSizedWhereTheyAre) {
  FEditor->SetBiDiMode(bdRightToLeft);
  Show();
  Fill("a b c");
  const int bottom = 19 + FEditor->CellRect(0, 1).height();
  FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goColSizing} + TGridOptions{goRowSizing});
  EXPECT_EQ("row 1", SizedAt(60, bottom));
  EXPECT_EQ("-", SizedAt(60, FEditor->GetClientHeight() - 1 - bottom));
}

TEST_F(ItemListEditorColumnsTest, ADividerOfMoreThanSevenPixelsCanBeDraggedWhereverItIsDrawn) {
  FEditor->SetGridLineWidth(11);
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doAutoColResize});
  Show();
  EXPECT_EQ("-", SizedAt(149, 60));
  EXPECT_EQ("column 0", SizedAt(150, 60));
  EXPECT_EQ("column 0", SizedAt(160, 60));
  EXPECT_EQ("-", SizedAt(161, 60));
}

TEST_F(ItemListEditorColumnsTest, AColumnThatTheEdgeCutsOffCanBeSizedThere) {
  FEditor->SetDisplayOptions(FEditor->GetDisplayOptions() - TILEDisplayOptions{doAutoColResize});
  Show();
  FEditor->SetColWidths(1, 400);
  EXPECT_EQ("column 1", SizedAt(304, 60));
  EXPECT_EQ("-", SizedAt(290, 60));
}

TEST_F(ItemListEditorColumnsTest, NothingIsSizedWithoutTheOptions) {
  Show();
  FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goColSizing});
  EXPECT_EQ("-", SizedAt(150, 9));
}

TEST_F(ItemListEditorColumnsTest, WithoutTheOptionsColumnsAreSizedAllTheSameWhileAFormIsDesigned) {
  Show();
  FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goColSizing});
  Sized().SetDesigning(true);
  EXPECT_EQ("column 0", SizedAt(150, 60));
}

TEST_F(ItemListEditorColumnsTest, RowsAreSizedOnlyWhereColumnsAreNot) {
  Show();
  Fill("a b c");
  const int bottom = 19 + FEditor->CellRect(0, 1).height();
  FEditor->SetOptions(FEditor->GetOptions() + TGridOptions{goRowSizing});
  EXPECT_EQ("-", SizedAt(60, bottom));
  EXPECT_EQ("column 0", SizedAt(150, bottom));
  FEditor->SetOptions(FEditor->GetOptions() - TGridOptions{goColSizing});
  EXPECT_EQ("row 1", SizedAt(60, bottom));
  EXPECT_EQ("row 1", SizedAt(250, bottom));
}

TEST_F(ItemListEditorColumnsTest, ADragOfTheDividerSizesTheNamesAndTheValuesFollow) {
  Show();
  Fill("a b c");
  FWindow->Press({150, 60});
  FWindow->MoveTo({120, 60});
  FWindow->Release({120, 60});
  EXPECT_EQ("120 183", Widths());
}

// Row heights.

TEST_F(ItemListEditorColumnsTest, ASmallFontLeavesTheRowsAsTheyAre) {
  FEditor->GetFont().SetHeight(-10);
  Show();
  EXPECT_EQ(18, Sized().EffectiveRowHeight());
}

TEST_F(ItemListEditorColumnsTest, RowsAreAsHighAsALargeFontNeeds) {
  Show();
  FEditor->GetFont().SetHeight(-30);
  const int text = FEditor->GetCanvas().TextHeight(QStringLiteral("x"));
  EXPECT_GE(Sized().EffectiveRowHeight(), 32);
  EXPECT_LE(Sized().EffectiveRowHeight(), 60) << text;
  EXPECT_EQ(18, FEditor->GetDefaultRowHeight());
}

TEST_F(ItemListEditorColumnsTest, RowsFollowTheLargestOfTheFonts) {
  Show();
  FEditor->GetValueFont().SetHeight(-40);
  EXPECT_GE(Sized().EffectiveRowHeight(), 42);
  FEditor->GetValueFont().SetHeight(-10);
  EXPECT_LT(Sized().EffectiveRowHeight(), 42);
}

TEST_F(ItemListEditorColumnsTest, ARowIsAsHighAsTheFontsOfItsItemNeed) {
  Show();
  Fill("a b");
  Item("b").GetFont().SetHeight(-30);
  EXPECT_GE(Sized().EffectiveRowHeight(), 32);
  Item("a").GetValueFont().SetHeight(-40);
  EXPECT_GE(Sized().EffectiveRowHeight(), 42);
}

TEST_F(ItemListEditorColumnsTest, FontsThatItemsHadBeforeThereWasAWindowCountToo) {
  Fill("a [b]");
  Item("a.b").GetValueFont().SetHeight(-40);
  Show();
  EXPECT_GE(Sized().EffectiveRowHeight(), 42);
}

TEST_F(ItemListEditorColumnsTest, AnItemBringsItsFontsAlong) {
  Show();
  const auto other = Make<TKTItemListEditor>();
  TKTItemProp* item = other->GetItems().Add("a", {});
  item->GetItems().Add("b", {})->GetFont().SetHeight(-40);
  item->SetCollection(&Items());
  EXPECT_GE(Sized().EffectiveRowHeight(), 42);
}

TEST_F(ItemListEditorColumnsTest, AnItemThatKeepsALargeFontKeepsItsRow) {
  Show();
  Fill("a");
  FEditor->GetFont().SetHeight(-40);
  Item("a").SetParentFont(false);
  FEditor->GetFont().SetHeight(-10);
  EXPECT_GE(Sized().EffectiveRowHeight(), 42);
}

TEST_F(ItemListEditorColumnsTest, ItemsThatFollowALargeFontGiveTheirRoomBackWithIt) {
  Show();
  Fill("a");
  Item("a").GetFont();
  Item("a").GetValueFont();
  FEditor->GetFont().SetHeight(-40);
  FEditor->GetFont().SetHeight(-10);
  EXPECT_EQ(18, Sized().EffectiveRowHeight());
}

TEST_F(ItemListEditorColumnsTest, AHeightSetByHandStaysWhateverFontsItemsHave) {
  Show();
  Fill("a");
  FEditor->SetDefaultRowHeight(20);
  Item("a").GetFont().SetHeight(-40);
  EXPECT_EQ(20, Sized().EffectiveRowHeight());
}

TEST_F(ItemListEditorColumnsTest, AHeightSetByHandStays) {
  Show();
  FEditor->SetDefaultRowHeight(20);
  FEditor->GetFont().SetHeight(-40);
  EXPECT_EQ(20, Sized().EffectiveRowHeight());
}

TEST_F(ItemListEditorColumnsTest, AHeightOfOneRowSetByHandStays) {
  Show();
  Fill("a b");
  FEditor->SetRowHeights(2, 25);
  FEditor->GetFont().SetHeight(-40);
  EXPECT_EQ(25, FEditor->GetRowHeights(2));
  EXPECT_GE(FEditor->GetRowHeights(1), 42);
}

}  // namespace
}  // namespace kt::tests
