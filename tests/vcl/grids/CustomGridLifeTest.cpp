// Handlers that free the grid which is at work.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/grids/DrawGrid.h"
#include "support/WindowProbe.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TWindowProbe;

/// A grid of 5 columns of 40 and 100 rows of 20 in a window that has room for all columns.
class CustomGridLifeTest : public testing::Test {
 protected:
  CustomGridLifeTest() {
    FGrid->SetDefaultColWidth(39);
    FGrid->SetDefaultRowHeight(19);
    FGrid->SetRowCount(100);
    FGrid->SetOptions(FGrid->GetOptions() + TGridOptions{goColSizing});
    FWindow = std::make_unique<TWindowProbe>(*FGrid, QSize(240, 200));
    FGrid->SetFocus();
    TWindowProbe::Settle();
  }
  QPoint At(int col, int row) { return FGrid->CellRect(col, row).center() + QPoint(2, 2); }
  TNotifyEvent Freeing() {
    return [this](TObject*) { FGrid.reset(); };
  }

  std::unique_ptr<TDrawGrid> FGrid = Make<TDrawGrid>();
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(CustomGridLifeTest, OnResizeMayFreeTheGridWhoseSizedColumnBringsAScrollBar) {
  FWindow->Press({82, 12});
  FWindow->MoveTo({200, 12});
  FGrid->OnResize = [this](TObject*) {
    // Qt makes a widget of its own, and keeps it, when one dies under the mouse.
    QCursor::setPos(2000, 2000);
    FGrid.reset();
  };
  QWidget* const body = FGrid->GetHandle();
  QTest::mouseRelease(body, Qt::LeftButton, Qt::NoModifier, {200, 12});
  EXPECT_EQ(FGrid, nullptr);
}

TEST_F(CustomGridLifeTest, OnMouseMoveMayFreeTheGridWhoseColumnIsSized) {
  FWindow->Press({82, 12});
  FGrid->OnMouseMove = [this](TObject*, TShiftState, int, int) { FGrid.reset(); };
  FWindow->MoveTo({100, 12});
  EXPECT_EQ(FGrid, nullptr);
}

TEST_F(CustomGridLifeTest, OnTopLeftChangedMayFreeTheGridThatAKeyScrolls) {
  FGrid->OnTopLeftChanged = Freeing();
  TWindowProbe::Key(Qt::Key_PageDown);
  EXPECT_EQ(FGrid, nullptr);
}

TEST_F(CustomGridLifeTest, OnTopLeftChangedMayFreeTheGridWhoseCursorMoves) {
  FGrid->OnTopLeftChanged = Freeing();
  FGrid->SetRow(50);
  EXPECT_EQ(FGrid, nullptr);
}

TEST_F(CustomGridLifeTest, OnTopLeftChangedMayFreeTheGridWhoseSelectionGrows) {
  FWindow->Press(At(1, 1));
  FGrid->OnTopLeftChanged = Freeing();
  FWindow->MoveTo({60, 400});
  EXPECT_EQ(FGrid, nullptr);
}

TEST_F(CustomGridLifeTest, OnSelectCellMayFreeTheGridThatLosesRows) {
  FGrid->SetRow(50);
  FGrid->OnSelectCell = [this](TObject*, int, int, bool&) { FGrid.reset(); };
  FGrid->SetRowCount(10);
  EXPECT_EQ(FGrid, nullptr);
}

TEST_F(CustomGridLifeTest, OnKeyDownMayFreeTheGrid) {
  FGrid->OnKeyDown = [this](TObject*, quint16&, TShiftState) { FGrid.reset(); };
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(FGrid, nullptr);
}

TEST_F(CustomGridLifeTest, OnKeyPressMayFreeTheGrid) {
  FGrid->OnKeyPress = [this](TObject*, QChar&) { FGrid.reset(); };
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ(FGrid, nullptr);
}

TEST_F(CustomGridLifeTest, OnKeyPressMayFreeTheGridBelowItsEditor) {
  FGrid->SetOptions(FGrid->GetOptions() + TGridOptions{goEditing});
  TWindowProbe::Key(Qt::Key_F2);
  FGrid->OnKeyPress = [this](TObject*, QChar&) { FGrid.reset(); };
  TWindowProbe::Key(Qt::Key_Escape);
  EXPECT_EQ(FGrid, nullptr);
}

/// What brings or takes a scroll bar, and so raises OnResize.
struct TBarChange {
  const char* Name;
  void (*Change)(TDrawGrid& grid);
};

class CustomGridBarLifeTest : public CustomGridLifeTest, public testing::WithParamInterface<TBarChange> {};

TEST_P(CustomGridBarLifeTest, OnResizeMayFreeTheGrid) {
  FGrid->OnResize = Freeing();
  GetParam().Change(*FGrid);
  EXPECT_EQ(FGrid, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Changes, CustomGridBarLifeTest,
                         testing::Values(TBarChange{"RowCount", [](TDrawGrid& grid) { grid.SetRowCount(1); }},
                                         TBarChange{"ColCount", [](TDrawGrid& grid) { grid.SetColCount(50); }},
                                         TBarChange{"FixedRows", [](TDrawGrid& grid) { grid.SetFixedRows(99); }},
                                         TBarChange{"Lines", [](TDrawGrid& grid) { grid.SetGridLineWidth(20); }}),
                         [](const auto& test) { return std::string(test.param.Name); });

}  // namespace
}  // namespace kt
