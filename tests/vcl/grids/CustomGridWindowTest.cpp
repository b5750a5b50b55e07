// The grid in a window: painting, scrolling, keys and mouse as a user has them.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/grids/GridScrollBar.h"
#include "support/Expect.h"
#include "support/GridProbe.h"
#include "support/WindowProbe.h"

#include <QStyle>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TGridProbe;
using tests::TWindowProbe;

/// A grid of 10 columns of 40 and 100 rows of 20 in a window that shows 5 columns and 6 rows beside the fixed ones and
/// the scroll bars.
class CustomGridWindowTest : public testing::Test {
 protected:
  CustomGridWindowTest() {
    Grid.SetDefaultColWidth(39);
    Grid.SetDefaultRowHeight(19);
    Grid.SetColCount(10);
    Grid.SetRowCount(100);
    Grid.OnDrawCell = [this](TObject*, int col, int row, const QRect&, TGridDrawState state) {
      FDrawn += QStringLiteral("%1,%2%3%4")
                    .arg(col)
                    .arg(row)
                    .arg(state.Has(gdSelected) ? QStringLiteral("s") : QString())
                    .arg(state.Has(gdFocused) ? QStringLiteral("f") : QString());
    };
    Show();
  }
  void Show() {
    FWindow = std::make_unique<TWindowProbe>(Grid, QSize(240 + 4 + BarWidth(), 140 + 4 + BarWidth()));
    Drawn();
    Grid.Log();
  }
  int BarWidth() { return Grid.GetHandle()->style()->pixelMetric(QStyle::PM_ScrollBarExtent); }
  /// The cells painted since the last call.
  QString Drawn() {
    TWindowProbe::Settle();
    return std::exchange(FDrawn, {}).join(u' ');
  }
  /// The middle of a cell in the window.
  QPoint At(int col, int row) { return Grid.CellRect(col, row).center() + QPoint(2, 2); }
  void Focus() {
    Grid.SetFocus();
    Drawn();
    Grid.Log();
  }

  std::unique_ptr<TGridProbe> FGrid = Make<TGridProbe>();
  TGridProbe& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FDrawn;
};

TEST_F(CustomGridWindowTest, ScrollBarsTakeRoomFromTheClientArea) {
  EXPECT_EQ(Grid.GetClientRect().size(), QSize(240, 140));
}

TEST_F(CustomGridWindowTest, OnlyCellsInViewArePainted) {
  Grid.Invalidate();
  EXPECT_EQ(Drawn().split(u' ').size(), 6 * 7);
}

TEST_F(CustomGridWindowTest, OneCellIsPaintedWhenOneIsAskedFor) {
  Grid.InvalidateCell(2, 3);
  EXPECT_EQ(Drawn(), "2,3");
}

TEST_F(CustomGridWindowTest, ARowIsPaintedWithItsFixedCell) {
  Grid.InvalidateRow(3);
  EXPECT_EQ(Drawn(), "0,3 1,3 2,3 3,3 4,3 5,3");
}

TEST_F(CustomGridWindowTest, AColumnOutOfViewIsNotPainted) {
  Grid.InvalidateCol(9);
  EXPECT_EQ(Drawn(), "");
}

TEST_F(CustomGridWindowTest, ThePaintedCellIsSelectedAndFocusedWhileTheGridIs) {
  Focus();
  Grid.InvalidateCell(1, 1);
  EXPECT_EQ(Drawn(), "1,1sf");
}

TEST_F(CustomGridWindowTest, AScrollStepPaintsTheNewRowOnly) {
  Grid.SetTopRow(2);
  EXPECT_EQ(Drawn(), "0,7 1,7 2,7 3,7 4,7 5,7");
}

TEST_F(CustomGridWindowTest, ALongWayPaintsAll) {
  Grid.SetTopRow(50);
  EXPECT_EQ(Drawn().split(u' ').size(), 6 * 7);
}

TEST_F(CustomGridWindowTest, TheScrollBarFollows) {
  Grid.SetTopRow(20);
  const auto* bar = Grid.GetHandle()->findChildren<TGridScrollBar*>()[1];
  EXPECT_EQ(bar->value(), 20);
  EXPECT_EQ(bar->maximum(), 94);
}

TEST_F(CustomGridWindowTest, TheScrollBarScrolls) {
  Grid.GetHandle()->findChildren<TGridScrollBar*>()[1]->setValue(30);
  EXPECT_EQ(Grid.GetTopRow(), 30);
}

TEST_F(CustomGridWindowTest, WithoutThumbTrackingTheCellsWaitForTheRelease) {
  auto* bar = Grid.GetHandle()->findChildren<TGridScrollBar*>()[1];
  bar->setSliderDown(true);
  bar->setSliderPosition(30);
  EXPECT_EQ(Grid.GetTopRow(), 1);
  bar->setSliderDown(false);
  EXPECT_EQ(Grid.GetTopRow(), 30);
}

TEST_F(CustomGridWindowTest, WithThumbTrackingTheCellsFollowTheThumb) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goThumbTracking});
  auto* bar = Grid.GetHandle()->findChildren<TGridScrollBar*>()[1];
  bar->setSliderDown(true);
  bar->setSliderPosition(30);
  EXPECT_EQ(Grid.GetTopRow(), 30);
  bar->setSliderDown(false);
}

TEST_F(CustomGridWindowTest, FewRowsNeedNoScrollBar) {
  Grid.SetRowCount(5);
  Grid.SetColCount(3);
  EXPECT_EQ(Grid.GetClientRect().size(), QSize(240 + BarWidth(), 140 + BarWidth()));
}

TEST_F(CustomGridWindowTest, TheWheelScrollsAndMovesNothingElse) {
  QWheelEvent event(QPointF(50, 50), QPointF(50, 50), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(Grid.GetHandle(), &event);
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-1,1 at 1,4");
}

TEST_F(CustomGridWindowTest, ArrowsMoveTheCurrentCellAndStopAtTheEdge) {
  Focus();
  TWindowProbe::Key(Qt::Key_Down);
  TWindowProbe::Key(Qt::Key_Right);
  TWindowProbe::Key(Qt::Key_Up);
  TWindowProbe::Key(Qt::Key_Up);
  EXPECT_EQ(Grid.Where(), "2,1 sel 2,1-2,1 at 1,1");
}

TEST_F(CustomGridWindowTest, ShiftedArrowsStretchTheSelection) {
  Focus();
  TWindowProbe::Key(Qt::Key_Down, Qt::ShiftModifier);
  TWindowProbe::Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Grid.Where(), "2,2 sel 1,1-2,2 at 1,1");
}

TEST_F(CustomGridWindowTest, PagesKeepThePlaceInTheView) {
  Focus();
  TWindowProbe::Key(Qt::Key_PageDown);
  EXPECT_EQ(Grid.Where(), "1,6 sel 1,6-1,6 at 1,6");
  TWindowProbe::Key(Qt::Key_PageUp);
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-1,1 at 1,1");
}

TEST_F(CustomGridWindowTest, HomeAndEndGoAlongTheRow) {
  Focus();
  TWindowProbe::Key(Qt::Key_End);
  EXPECT_EQ(Grid.GetCol(), 9);
  TWindowProbe::Key(Qt::Key_Home);
  EXPECT_EQ(Grid.GetCol(), 1);
}

TEST_F(CustomGridWindowTest, ControlWithHomeAndEndGoesToTheCorners) {
  Focus();
  TWindowProbe::Key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(Grid.Where(), "9,99 sel 9,99-9,99 at 5,94");
  TWindowProbe::Key(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-1,1 at 1,1");
}

TEST_F(CustomGridWindowTest, ControlWithArrowsScrolls) {
  Focus();
  TWindowProbe::Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-1,1 at 1,2");
}

TEST_F(CustomGridWindowTest, TabsGoThroughTheColumnsWithStops) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goTabs});
  Grid.SetTabStops(2, false);
  Focus();
  TWindowProbe::Key(Qt::Key_Tab);
  EXPECT_EQ(Grid.GetCol(), 3);
  TWindowProbe::Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Grid.GetCol(), 1);
  TWindowProbe::Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Grid.Where(), "9,99 sel 9,99-9,99 at 5,94");
}

TEST_F(CustomGridWindowTest, AKeyThatAHandlerTakesMovesNothing) {
  Grid.OnKeyDown = [](TObject*, quint16& key, TShiftState) { key = 0; };
  Focus();
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(Grid.GetRow(), 1);
}

TEST_F(CustomGridWindowTest, AClickSelectsAndFocuses) {
  FWindow->Click(At(3, 4));
  EXPECT_EQ(Grid.Where(), "3,4 sel 3,4-3,4 at 1,1");
  EXPECT_TRUE(Grid.Focused());
  EXPECT_EQ(Grid.Log(), "Click");
}

TEST_F(CustomGridWindowTest, DraggingSelectsARange) {
  FWindow->Press(At(2, 2));
  FWindow->MoveTo(At(4, 5));
  FWindow->Release(At(4, 5));
  EXPECT_EQ(Grid.GetSelection(), (TGridRect{2, 2, 4, 5}));
}

TEST_F(CustomGridWindowTest, DraggingBelowTheViewScrolls) {
  FWindow->Press(At(2, 2));
  FWindow->MoveTo({60, 500});
  FWindow->Release({60, 500});
  EXPECT_EQ(Grid.GetTopRow(), 2);
}

TEST_F(CustomGridWindowTest, AnEdgeInTheFixedRowSizesItsColumn) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goColSizing});
  FWindow->Press({2 + 79, 8});
  FWindow->MoveTo({2 + 99, 8});
  EXPECT_EQ(Grid.GetColWidths(1), 39);
  FWindow->Release({2 + 99, 8});
  EXPECT_EQ(Grid.GetColWidths(1), 59);
  EXPECT_EQ(Grid.GetCol(), 1);
}

TEST_F(CustomGridWindowTest, AnEdgeInTheFixedColumnSizesItsRow) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goRowSizing});
  FWindow->Press({10, 2 + 39});
  FWindow->Release({10, 2 + 49});
  EXPECT_EQ(Grid.GetRowHeights(1), 29);
}

TEST_F(CustomGridWindowTest, ThePointerTellsThatAnEdgeCanBeDragged) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goColSizing});
  FWindow->MoveTo({2 + 79, 8});
  EXPECT_EQ(Grid.GetHandle()->cursor().shape(), Qt::SplitHCursor);
  FWindow->MoveTo(At(2, 2));
  EXPECT_EQ(Grid.GetHandle()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(CustomGridWindowTest, AFixedCellIsDraggedToMoveItsRow) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goRowMoving});
  FWindow->Press(At(0, 2));
  FWindow->MoveTo(At(0, 4));
  FWindow->Release(At(0, 4));
  EXPECT_EQ(Grid.Log(), "RowMoved(2,4)");
}

TEST_F(CustomGridWindowTest, AFixedCellIsDraggedToMoveItsColumn) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goColMoving});
  FWindow->Press(At(2, 0));
  FWindow->MoveTo(At(4, 0));
  FWindow->Release(At(4, 0));
  EXPECT_EQ(Grid.Log(), "ColumnMoved(2,4)");
}

TEST_F(CustomGridWindowTest, AColumnThatIsDroppedWhereItWasDoesNotMove) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goColMoving});
  FWindow->Press(At(2, 0));
  FWindow->MoveTo(At(4, 0));
  FWindow->MoveTo(At(2, 0));
  FWindow->Release(At(2, 0));
  EXPECT_EQ(Grid.Log(), "");
}

TEST_F(CustomGridWindowTest, WithoutItsOptionAColumnIsNotMoved) {
  FWindow->Press(At(2, 0));
  FWindow->MoveTo(At(4, 0));
  FWindow->Release(At(4, 0));
  EXPECT_EQ(Grid.Log(), "");
}

TEST_F(CustomGridWindowTest, TellsOnceWhenItScrolls) {
  QStringList told;
  Grid.OnTopLeftChanged = [&](TObject*) { told += Grid.Where(); };
  Grid.SetTopRow(5);
  Grid.SetTopRow(5);
  Grid.SetLeftCol(2);
  EXPECT_EQ(told.join(u'|'), "1,1 sel 1,1-1,1 at 1,5|1,1 sel 1,1-1,1 at 2,5");
}

TEST_F(CustomGridWindowTest, TellsThatTheCurrentCellWasScrolledIntoView) {
  int count = 0;
  Grid.OnTopLeftChanged = [&](TObject*) { ++count; };
  Grid.SetRow(3);
  EXPECT_EQ(count, 0);
  Grid.SetRow(50);
  EXPECT_EQ(count, 1);
}

TEST_F(CustomGridWindowTest, FromRightToLeftTheKeysFollowTheEye) {
  Grid.SetBiDiMode(bdRightToLeft);
  Focus();
  TWindowProbe::Key(Qt::Key_Left);
  EXPECT_EQ(Grid.GetCol(), 2);
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ(Grid.GetCol(), 1);
}

TEST_F(CustomGridWindowTest, FromRightToLeftTheScrollBarIsOnTheLeft) {
  Grid.SetBiDiMode(bdRightToLeft);
  EXPECT_EQ(Grid.GetHandle()->findChildren<TGridScrollBar*>()[1]->x(), 2);
  FWindow->Click(Grid.CellRect(1, 1).center() + QPoint(2 + BarWidth(), 2));
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-1,1 at 1,1");
}

TEST_F(CustomGridWindowTest, FromRightToLeftAScrollStepPaintsTheNewRowOnly) {
  Grid.SetBiDiMode(bdRightToLeft);
  Drawn();
  Grid.SetTopRow(2);
  EXPECT_EQ(Drawn(), "0,7 1,7 2,7 3,7 4,7 5,7");
}

TEST_F(CustomGridWindowTest, TheCornerBetweenTheScrollBarsIsPainted) {
  const QImage image = Grid.GetHandle()->grab().toImage();
  EXPECT_EQ(image.pixelColor(242 + BarWidth() / 2, 142 + BarWidth() / 2),
            Grid.GetHandle()->palette().color(QPalette::Window));
}

TEST_F(CustomGridWindowTest, AHandlerMayTakeRowsAwayWhileItPaints) {
  Grid.OnDrawCell = [this](TObject*, int, int, const QRect&, TGridDrawState) {
    if (Grid.GetRowCount() > 3) Grid.SetRowCount(3);
  };
  Grid.Invalidate();
  TWindowProbe::Settle();
  EXPECT_EQ(Grid.GetRowCount(), 3);
}

TEST_F(CustomGridWindowTest, APaintingThatThrowsLeavesTheCanvasUsable) {
  int errors = 0;
  const TExceptionHandler outer = SetExceptionHandler([&](std::exception_ptr) { ++errors; });
  Grid.OnDrawCell = [](TObject*, int, int, const QRect&, TGridDrawState) { throw Exception(QStringLiteral("no")); };
  Grid.InvalidateCell(2, 2);
  TWindowProbe::Settle();
  SetExceptionHandler(outer);
  EXPECT_EQ(errors, 1);
  EXPECT_FALSE(Grid.GetCanvas().IsDrawing());
}

TEST_F(CustomGridWindowTest, LivesOnWithoutTheWindowThatQtDestroyed) {
  FWindow->Close();
  Grid.SetRow(50);
  EXPECT_EQ(Grid.GetClientWidth(), Grid.GetWidth() - 4);
  Show();
  EXPECT_EQ(Grid.GetClientWidth(), 240);
}

}  // namespace
}  // namespace kt
