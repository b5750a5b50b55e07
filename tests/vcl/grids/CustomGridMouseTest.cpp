// What the mouse does over time: scrolling while it is held outside, and being taken away in the middle.
#include "kt/rtl/objects/Make.h"
#include "support/Expect.h"
#include "support/GridProbe.h"
#include "support/WindowProbe.h"

#include <QStyle>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TGridProbe;
using tests::TWindowProbe;

class TMouseGrid : public TGridProbe {
 public:
  using TGridProbe::GetGridState;
  using TGridProbe::HasMouseCapture;

 protected:
  explicit TMouseGrid(TComponent* owner = nullptr) : TGridProbe(owner) {}
};

/// A grid of 10 columns of 40 and 100 rows of 20 in a window that shows 5 columns and 6 rows beside the fixed ones.
class CustomGridMouseTest : public testing::Test {
 protected:
  CustomGridMouseTest() {
    Grid.SetDefaultColWidth(39);
    Grid.SetDefaultRowHeight(19);
    Grid.SetColCount(10);
    Grid.SetRowCount(100);
    Grid.SetOptions(Grid.GetOptions() + TGridOptions{goColSizing, goRowSizing, goColMoving, goRowMoving});
    const int bar = Grid.GetHandle()->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    FWindow = std::make_unique<TWindowProbe>(Grid, QSize(240 + 4 + bar, 140 + 4 + bar));
    TWindowProbe::Settle();
    Grid.Log();
  }
  /// The middle of a cell in the window.
  QPoint At(int col, int row) { return Grid.CellRect(col, row).center() + QPoint(2, 2); }
  bool ScrollsTo(int row) {
    return QTest::qWaitFor([this, row] { return Grid.GetTopRow() >= row; }, 5000);
  }
  bool ScrollsToColumn(int col) {
    return QTest::qWaitFor([this, col] { return Grid.GetLeftCol() >= col; }, 5000);
  }

  std::unique_ptr<TMouseGrid> FGrid = Make<TMouseGrid>();
  TMouseGrid& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(CustomGridMouseTest, HeldBelowTheViewASelectionGoesOnByItself) {
  FWindow->Press(At(2, 2));
  FWindow->MoveTo({2 + 100, 500});
  ASSERT_TRUE(ScrollsTo(5));
  const TGridRect selection = Grid.GetSelection();
  EXPECT_EQ(selection.Top, 2);
  EXPECT_EQ(selection.Bottom, Grid.GetTopRow() + 5);
  FWindow->Release({2 + 100, 500});
  EXPECT_EQ(Grid.GetGridState(), gsNormal);
}

TEST_F(CustomGridMouseTest, HeldBesideTheViewASelectionGoesOnByItself) {
  FWindow->Press(At(2, 2));
  FWindow->MoveTo({600, 2 + 50});
  ASSERT_TRUE(ScrollsToColumn(5));
  FWindow->Release({600, 2 + 50});
  EXPECT_EQ(Grid.GetSelection(), (TGridRect{2, 2, 9, 2}));
}

TEST_F(CustomGridMouseTest, HeldAboveTheViewItGoesBackToTheFirstRow) {
  Grid.SetTopRow(10);
  FWindow->Press(At(2, 12));
  FWindow->MoveTo({2 + 100, -50});
  ASSERT_TRUE(QTest::qWaitFor([this] { return Grid.GetTopRow() == 1; }, 5000));
  FWindow->Release({2 + 100, -50});
  EXPECT_EQ(Grid.GetSelection(), (TGridRect{2, 1, 2, 12}));
}

TEST_F(CustomGridMouseTest, ARowThatIsDraggedOutOfTheViewScrollsItsWay) {
  FWindow->Press(At(0, 2));
  FWindow->MoveTo({10, 500});
  ASSERT_TRUE(ScrollsTo(4));
  const int target = Grid.GetTopRow() + 5;
  Grid.Log();
  FWindow->Release({10, 500});
  EXPECT_EQ(Grid.Log(), QStringLiteral("RowMoved(2,%1)").arg(target));
}

TEST_F(CustomGridMouseTest, TheSystemCanEndTheSizingOfAColumn) {
  FWindow->Press({2 + 79, 8});
  FWindow->MoveTo({2 + 99, 8});
  ASSERT_EQ(Grid.GetGridState(), gsColSizing);
  Grid.Perform(WM_CANCELMODE);
  EXPECT_EQ(Grid.GetGridState(), gsNormal);
  FWindow->MoveTo({2 + 119, 8});
  FWindow->Release({2 + 119, 8});
  EXPECT_EQ(Grid.GetColWidths(1), 39);
  EXPECT_EQ(Grid.Log(), "");
}

TEST_F(CustomGridMouseTest, TheSystemCanEndTheSizingOfARow) {
  FWindow->Press({10, 2 + 39});
  FWindow->MoveTo({10, 2 + 49});
  ASSERT_EQ(Grid.GetGridState(), gsRowSizing);
  Grid.Perform(WM_CANCELMODE);
  FWindow->Release({10, 2 + 49});
  EXPECT_EQ(Grid.GetGridState(), gsNormal);
  EXPECT_EQ(Grid.GetRowHeights(1), 19);
}

TEST_F(CustomGridMouseTest, TheSystemCanEndTheMovingOfAColumn) {
  FWindow->Press(At(2, 0));
  FWindow->MoveTo(At(4, 0));
  ASSERT_EQ(Grid.GetGridState(), gsColMoving);
  Grid.Perform(WM_CANCELMODE);
  EXPECT_EQ(Grid.GetGridState(), gsNormal);
  EXPECT_FALSE(Grid.HasMouseCapture());
  FWindow->Release(At(4, 0));
  EXPECT_EQ(Grid.Log(), "");
}

TEST_F(CustomGridMouseTest, TheFormCanEndTheMovingOfARow) {
  FWindow->Press(At(0, 2));
  FWindow->MoveTo(At(0, 4));
  ASSERT_EQ(Grid.GetGridState(), gsRowMoving);
  Grid.Perform(CM_CANCELMODE);
  EXPECT_EQ(Grid.GetGridState(), gsNormal);
  FWindow->Release(At(0, 4));
  EXPECT_EQ(Grid.Log(), "");
}

TEST_F(CustomGridMouseTest, TheFormCanEndTheSizingOfAColumn) {
  FWindow->Press({2 + 79, 8});
  FWindow->MoveTo({2 + 99, 8});
  Grid.Perform(CM_CANCELMODE);
  FWindow->Release({2 + 99, 8});
  EXPECT_EQ(Grid.GetGridState(), gsNormal);
  EXPECT_EQ(Grid.GetColWidths(1), 39);
}

TEST_F(CustomGridMouseTest, ASelectionThatIsEndedStaysAsFarAsItWent) {
  FWindow->Press(At(2, 2));
  FWindow->MoveTo(At(3, 4));
  Grid.Perform(WM_CANCELMODE);
  FWindow->MoveTo(At(5, 5));
  EXPECT_EQ(Grid.GetSelection(), (TGridRect{2, 2, 3, 4}));
  FWindow->Release(At(5, 5));
  EXPECT_EQ(Grid.GetSelection(), (TGridRect{2, 2, 3, 4}));
}

TEST_F(CustomGridMouseTest, TheNextPressStartsAfresh) {
  FWindow->Press(At(2, 0));
  FWindow->MoveTo(At(4, 0));
  Grid.Perform(WM_CANCELMODE);
  FWindow->Release(At(4, 0));
  FWindow->Press(At(3, 0));
  FWindow->MoveTo(At(5, 0));
  FWindow->Release(At(5, 0));
  EXPECT_EQ(Grid.Log(), "ColumnMoved(3,5)");
}

}  // namespace
}  // namespace kt
