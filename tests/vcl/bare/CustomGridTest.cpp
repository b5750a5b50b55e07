// The grid as plain data: no window, no display, no application object.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/grids/CustomGrid.h"
#include "support/Expect.h"
#include "support/GridProbe.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TGridProbe;

class CustomGridTest : public testing::Test {
 protected:
  /// "col,row" of the cell at a position, as handlers of the mouse ask for it.
  QString CellUnder(int x, int y) {
    int col = 77;
    int row = 77;
    Grid.MouseToCell(x, y, col, row);
    return QStringLiteral("%1,%2").arg(col).arg(row);
  }

  std::unique_ptr<TGridProbe> FGrid = Make<TGridProbe>();
  TGridProbe& Grid = *FGrid;
};

TEST_F(CustomGridTest, StartsWithFiveColumnsAndRowsOfWhichOneIsFixed) {
  EXPECT_EQ(Grid.GetColCount(), 5);
  EXPECT_EQ(Grid.GetRowCount(), 5);
  EXPECT_EQ(Grid.GetFixedCols(), 1);
  EXPECT_EQ(Grid.GetFixedRows(), 1);
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-1,1 at 1,1");
}

TEST_F(CustomGridTest, StartsAsLargeAsItsCells) {
  EXPECT_EQ(Grid.GetWidth(), 320);
  EXPECT_EQ(Grid.GetHeight(), 120);
}

TEST_F(CustomGridTest, StartsWithTheFrameworksOptions) { EXPECT_EQ(Grid.GetOptions().Bits(), 31U); }

TEST_F(CustomGridTest, TheBitsOfAllOptionsAreThoseOfFormFiles) {
  EXPECT_EQ(TGridOptions{goFixedVertLine}.Bits(), 1U);
  EXPECT_EQ(TGridOptions{goFixedHorzLine}.Bits(), 2U);
  EXPECT_EQ(TGridOptions{goVertLine}.Bits(), 4U);
  EXPECT_EQ(TGridOptions{goHorzLine}.Bits(), 8U);
  EXPECT_EQ(TGridOptions{goRangeSelect}.Bits(), 16U);
  EXPECT_EQ(TGridOptions{goDrawFocusSelected}.Bits(), 32U);
  EXPECT_EQ(TGridOptions{goRowSizing}.Bits(), 64U);
  EXPECT_EQ(TGridOptions{goColSizing}.Bits(), 128U);
  EXPECT_EQ(TGridOptions{goRowMoving}.Bits(), 256U);
  EXPECT_EQ(TGridOptions{goColMoving}.Bits(), 512U);
  EXPECT_EQ(TGridOptions{goEditing}.Bits(), 1024U);
  EXPECT_EQ(TGridOptions{goTabs}.Bits(), 2048U);
  EXPECT_EQ(TGridOptions{goRowSelect}.Bits(), 4096U);
  EXPECT_EQ(TGridOptions{goAlwaysShowEditor}.Bits(), 8192U);
  EXPECT_EQ(TGridOptions{goThumbTracking}.Bits(), 16384U);
}

TEST_F(CustomGridTest, TheBorderIsNotPartOfTheClientArea) {
  EXPECT_EQ(Grid.GetClientWidth(), 316);
  Grid.SetBorderStyle(bsNone);
  EXPECT_EQ(Grid.GetClientWidth(), 320);
}

TEST_F(CustomGridTest, CountsBelowOneBecomeOne) {
  Grid.SetRowCount(-3);
  EXPECT_EQ(Grid.GetRowCount(), 1);
}

TEST_F(CustomGridTest, FixedRowsGiveWayToFewerRows) {
  Grid.SetRowCount(1);
  EXPECT_EQ(Grid.GetFixedRows(), 0);
}

TEST_F(CustomGridTest, AsManyFixedColumnsAsColumnsAreTooMany) {
  EXPECT_EQ(MessageOf<EInvalidGridOperation>([&] { Grid.SetFixedCols(5); }),
            "Fixed column count must be less than column count");
}

TEST_F(CustomGridTest, AsManyFixedRowsAsRowsAreTooMany) {
  EXPECT_EQ(MessageOf<EInvalidGridOperation>([&] { Grid.SetFixedRows(5); }),
            "Fixed row count must be less than row count");
}

TEST_F(CustomGridTest, FixedCountsAreNotNegative) {
  EXPECT_EQ(MessageOf<EInvalidGridOperation>([&] { Grid.SetFixedRows(-1); }), "Grid index out of range");
}

TEST_F(CustomGridTest, NewFixedCountsMakeTheFirstOtherCellCurrent) {
  Grid.SetRow(3);
  Grid.SetFixedRows(2);
  EXPECT_EQ(Grid.Where(), "1,2 sel 1,2-1,2 at 1,2");
}

TEST_F(CustomGridTest, NewCountsTellTheOldOnes) {
  Grid.SetRowCount(7);
  Grid.SetColCount(2);
  EXPECT_EQ(Grid.Log(), "SizeChanged(5,5) SizeChanged(5,7)");
}

TEST_F(CustomGridTest, TheCurrentCellStaysInsideWhenRowsGo) {
  Grid.SetRow(4);
  Grid.SetRowCount(3);
  EXPECT_EQ(Grid.GetRow(), 2);
}

TEST_F(CustomGridTest, TheCurrentCellStaysInsideEvenWhenTheLastRowRefusesIt) {
  Grid.SetRow(4);
  Grid.OnSelectCell = [](TObject*, int, int, bool& canSelect) { canSelect = false; };
  Grid.SetRowCount(3);
  EXPECT_EQ(Grid.GetRow(), 2);
}

TEST_F(CustomGridTest, AHandlerThatThrowsKeepsTheCounts) {
  Grid.SetRow(4);
  Grid.OnSelectCell = [](TObject*, int, int, bool&) { throw Exception(QStringLiteral("no")); };
  EXPECT_EQ(MessageOf<Exception>([&] { Grid.SetRowCount(3); }), "no");
  EXPECT_EQ(Grid.GetRowCount(), 5);
  EXPECT_EQ(Grid.GetRow(), 4);
}

TEST_F(CustomGridTest, AMillionRowsOfTheUsualHeightAreMadeAtOnce) {
  Grid.SetRowCount(1'000'000'000);
  EXPECT_EQ(Grid.GetRowHeights(999'999'999), 24);
  Grid.SetRow(999'999'999);
  EXPECT_EQ(Grid.GetTopRow(), 999'999'997);
}

TEST_F(CustomGridTest, AColumnWidthOutsideTheGridIsTheDefault) { EXPECT_EQ(Grid.GetColWidths(77), 64); }

TEST_F(CustomGridTest, SettingAWidthOutsideTheGridFails) {
  EXPECT_EQ(MessageOf<EInvalidGridOperation>([&] { Grid.SetColWidths(5, 10); }), "Grid index out of range");
  EXPECT_EQ(MessageOf<EInvalidGridOperation>([&] { Grid.SetRowHeights(-1, 10); }), "Grid index out of range");
}

TEST_F(CustomGridTest, SizesOfTheirOwnAreForFewerRowsThanThat) {
  Grid.SetRowCount(TCustomGrid::MaxCustomExtents + 1);
  EXPECT_EQ(MessageOf<EInvalidGridOperation>([&] { Grid.SetRowHeights(2, 10); }), "Grid too large for operation");
}

TEST_F(CustomGridTest, AWidthIsToldWhenItChanges) {
  Grid.SetColWidths(2, 100);
  Grid.SetColWidths(2, 100);
  EXPECT_EQ(Grid.Log(), "ColWidthsChanged");
}

TEST_F(CustomGridTest, ANewDefaultHeightIsThatOfAllRows) {
  Grid.SetRowHeights(2, 100);
  Grid.SetDefaultRowHeight(18);
  EXPECT_EQ(Grid.GetRowHeights(2), 18);
}

TEST_F(CustomGridTest, RowsThatComeBackHaveTheUsualHeight) {
  Grid.SetRowHeights(4, 100);
  Grid.SetRowCount(4);
  Grid.SetRowCount(5);
  EXPECT_EQ(Grid.GetRowHeights(4), 24);
}

TEST_F(CustomGridTest, MovingTheCurrentCellClicks) {
  Grid.SetCol(2);
  EXPECT_EQ(Grid.Log(), "Click");
  EXPECT_EQ(Grid.Where(), "2,1 sel 2,1-2,1 at 1,1");
}

TEST_F(CustomGridTest, TheCellThatIsCurrentIsNotSelectedAgain) {
  Grid.SetCol(1);
  EXPECT_EQ(Grid.Log(), "");
}

TEST_F(CustomGridTest, ACellOutsideTheGridCannotBeCurrent) {
  EXPECT_EQ(MessageOf<EInvalidGridOperation>([&] { Grid.SetRow(5); }), "Grid index out of range");
}

TEST_F(CustomGridTest, ARefusedCellIsNotSelected) {
  Grid.OnSelectCell = [](TObject*, int col, int, bool& canSelect) { canSelect = col != 3; };
  Grid.SetCol(3);
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-1,1 at 1,1");
}

TEST_F(CustomGridTest, FocusingWithoutTheAnchorStretchesTheSelection) {
  Grid.FocusCell(3, 4, false);
  EXPECT_EQ(Grid.Where(), "3,4 sel 1,1-3,4 at 1,2");
}

TEST_F(CustomGridTest, WithoutRangeSelectionTheAnchorFollows) {
  Grid.SetOptions({goVertLine});
  Grid.FocusCell(3, 2, false);
  EXPECT_EQ(Grid.Where(), "3,2 sel 3,2-3,2 at 1,1");
}

TEST_F(CustomGridTest, RowSelectionSpansTheRow) {
  Grid.SetOptions({goRowSelect});
  Grid.SetRow(2);
  EXPECT_EQ(Grid.Where(), "1,2 sel 1,2-4,2 at 1,1");
}

TEST_F(CustomGridTest, RowSelectionEndsThePermanentEditor) {
  Grid.SetOptions({goEditing, goAlwaysShowEditor, goRowSelect});
  EXPECT_EQ(Grid.GetOptions(), (TGridOptions{goEditing, goRowSelect}));
}

TEST_F(CustomGridTest, ThePermanentEditorTurnsEditorModeOn) {
  Grid.SetOptions({goEditing, goAlwaysShowEditor});
  EXPECT_TRUE(Grid.IsEditorMode());
  EXPECT_EQ(Grid.InplaceEditor(), nullptr);
  EXPECT_FALSE(Grid.CanEditShow());
}

TEST_F(CustomGridTest, ASelectionMakesItsLastCellCurrentWithoutAsking) {
  Grid.OnSelectCell = [](TObject*, int, int, bool& canSelect) { canSelect = false; };
  Grid.SetSelection({2, 2, 3, 4});
  EXPECT_EQ(Grid.Where(), "3,4 sel 2,2-3,4 at 1,1");
}

TEST_F(CustomGridTest, ASelectionOutsideTheGridFails) {
  EXPECT_EQ(MessageOf<EInvalidGridOperation>([&] { Grid.SetSelection({1, 1, 5, 1}); }), "Grid index out of range");
}

TEST_F(CustomGridTest, ScrollingTellsAndKeepsTheCurrentCell) {
  Grid.SetTopRow(3);
  EXPECT_EQ(Grid.Log(), "TopLeftChanged");
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-1,1 at 1,3");
}

TEST_F(CustomGridTest, CellsHaveTheirPlaceBehindTheLines) { EXPECT_EQ(Grid.CellRect(2, 1), QRect(130, 25, 64, 24)); }

TEST_F(CustomGridTest, ScrolledCellsHaveNoPlace) {
  Grid.SetTopRow(3);
  EXPECT_TRUE(Grid.CellRect(1, 2).isEmpty());
  EXPECT_EQ(Grid.CellRect(1, 3).top(), 25);
}

TEST_F(CustomGridTest, FromRightToLeftTheFirstColumnIsOnTheRight) {
  Grid.SetBiDiMode(bdRightToLeft);
  EXPECT_EQ(Grid.CellRect(0, 0), QRect(316 - 64, 0, 64, 24));
  EXPECT_EQ(Grid.MouseCoord(300, 5), (TGridCoord{0, 0}));
}

TEST_F(CustomGridTest, APositionFindsItsCell) {
  EXPECT_EQ(Grid.MouseCoord(130, 25), (TGridCoord{2, 1}));
  EXPECT_EQ(Grid.MouseCoord(-1, 25), (TGridCoord{-1, -1}));
}

TEST_F(CustomGridTest, TheMousePositionsOfACellAreItsOwnAndThoseOfItsLines) {
  EXPECT_EQ(Grid.CellRect(1, 1), QRect(65, 25, 64, 24));
  EXPECT_EQ(CellUnder(65, 25), "1,1");
  EXPECT_EQ(CellUnder(128, 48), "1,1");
  EXPECT_EQ(CellUnder(129, 49), "1,1");
  EXPECT_EQ(CellUnder(130, 50), "2,2");
  EXPECT_EQ(CellUnder(64, 24), "0,0");
}

TEST_F(CustomGridTest, BesideTheCellsTheMouseIsOverNone) {
  Grid.SetBounds(0, 0, 600, 400);
  EXPECT_EQ(CellUnder(324, 124), "4,4");
  EXPECT_EQ(CellUnder(325, 124), "-1,-1");
  EXPECT_EQ(CellUnder(324, 125), "-1,-1");
  EXPECT_EQ(CellUnder(-1, 5), "-1,-1");
  EXPECT_EQ(CellUnder(5, -1), "-1,-1");
}

TEST_F(CustomGridTest, TheMouseIsOverTheCellsThatWereScrolledThere) {
  Grid.SetRowCount(100);
  Grid.SetTopRow(30);
  EXPECT_EQ(CellUnder(70, 30), "1,30");
  EXPECT_EQ(CellUnder(70, 5), "1,0");
}

TEST_F(CustomGridTest, FromRightToLeftTheMouseIsOverMirroredCells) {
  Grid.SetBounds(0, 0, 600, 400);
  Grid.SetBiDiMode(bdRightToLeft);
  EXPECT_EQ(CellUnder(595, 5), "0,0");
  EXPECT_EQ(CellUnder(271, 5), "4,0");
  EXPECT_EQ(CellUnder(270, 5), "-1,-1");
}

TEST_F(CustomGridTest, MovingARowTakesItsHeightAndTheCurrentCellAlong) {
  Grid.SetRowHeights(2, 50);
  Grid.SetRow(2);
  Grid.Log();
  Grid.MoveRow(2, 4);
  EXPECT_EQ(Grid.Log(), "RowMoved(2,4)");
  EXPECT_EQ(Grid.GetRowHeights(4), 50);
  EXPECT_EQ(Grid.GetRow(), 4);
}

TEST_F(CustomGridTest, MovingAColumnRaisesItsEvent) {
  QString log;
  Grid.OnColumnMoved = [&](TObject*, int from, int to) { log = QStringLiteral("%1>%2").arg(from).arg(to); };
  Grid.MoveColumn(3, 1);
  EXPECT_EQ(log, "3>1");
}

TEST_F(CustomGridTest, DeletingAColumnMovesItToTheEndFirst) {
  Grid.SetColWidths(3, 10);
  Grid.Log();
  Grid.DeleteColumn(2);
  EXPECT_EQ(Grid.Log(), "ColumnMoved(2,4) SizeChanged(5,5)");
  EXPECT_EQ(Grid.GetColWidths(2), 10);
}

TEST_F(CustomGridTest, ColumnEdgesAreOfferedInTheFixedRows) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goColSizing});
  TGridState state = gsNormal;
  int index = 0;
  int pos = 0;
  int ofs = 0;
  TGridDrawInfo info = Grid.CalcFixedInfo();
  Grid.CalcSizingState(127, 10, state, index, pos, ofs, info);
  EXPECT_EQ(state, gsColSizing);
  EXPECT_EQ(index, 1);
  EXPECT_EQ(pos, 129);
  EXPECT_EQ(ofs, 2);
  Grid.CalcSizingState(127, 40, state, index, pos, ofs, info);
  EXPECT_EQ(state, gsNormal);
}

TEST_F(CustomGridTest, TheBandAroundAnEdgeIsSevenPixelsWide) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goColSizing});
  QString hits;
  for (int x = 120; x < 140; ++x) {
    TGridState state = gsNormal;
    int index = 0;
    int pos = 0;
    int ofs = 0;
    TGridDrawInfo info = Grid.CalcFixedInfo();
    Grid.CalcSizingState(x, 10, state, index, pos, ofs, info);
    hits += state == gsColSizing ? u'x' : u'.';
  }
  EXPECT_EQ(hits, "......xxxxxxx.......");
}

TEST_F(CustomGridTest, WithoutSizingOptionsNoEdgeIsOffered) {
  TGridState state = gsColSizing;
  int index = 0;
  int pos = 0;
  int ofs = 0;
  TGridDrawInfo info = Grid.CalcFixedInfo();
  Grid.CalcSizingState(129, 10, state, index, pos, ofs, info);
  EXPECT_EQ(state, gsNormal);
  EXPECT_EQ(index, -1);
}

TEST_F(CustomGridTest, TheEditingEventsGiveAndTakeTheTexts) {
  QString log;
  Grid.OnGetEditText = [](TObject*, int col, int row, QString& text) {
    text = QStringLiteral("%1/%2").arg(col).arg(row);
  };
  Grid.OnGetEditMask = [](TObject*, int, int, QString& mask) { mask = QStringLiteral("99"); };
  Grid.OnSetEditText = [&](TObject*, int, int, const QString& text) { log = text; };
  Grid.SetEditText(1, 1, QStringLiteral("new"));
  EXPECT_EQ(Grid.GetEditText(1, 2), "1/2");
  EXPECT_EQ(Grid.GetEditMask(1, 2), "99");
  EXPECT_EQ(log, "new");
}

TEST_F(CustomGridTest, EditorAndPaintRequestsNeedNoWindow) {
  Grid.ShowEditor();
  Grid.ShowEditorChar(u'a');
  Grid.InvalidateEditor();
  Grid.HideEditor();
  Grid.InvalidateCell(1, 1);
  Grid.InvalidateCol(1);
  Grid.InvalidateRow(1);
  EXPECT_FALSE(Grid.HandleAllocated());
}

}  // namespace
}  // namespace kt
