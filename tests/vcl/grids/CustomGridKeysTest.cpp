// Keys of the grid in views of different sizes.
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

/// A grid of 10 columns of 40 and 100 rows of 20 pixels, of which the first ones are fixed.
class CustomGridKeysTest : public testing::Test {
 protected:
  CustomGridKeysTest() {
    Grid.SetDefaultColWidth(39);
    Grid.SetDefaultRowHeight(19);
    Grid.SetColCount(10);
    Grid.SetRowCount(100);
  }
  /// In a window with that much room for cells, fixed ones included.
  void Show(int width, int height) {
    const int bar = Grid.GetHandle()->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    FWindow = std::make_unique<TWindowProbe>(Grid, QSize(width + 4 + bar, height + 4 + bar));
    Grid.SetFocus();
  }
  QString After(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    TWindowProbe::Key(key, modifiers);
    return Grid.Where();
  }

  std::unique_ptr<TGridProbe> FGrid = Make<TGridProbe>();
  TGridProbe& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(CustomGridKeysTest, APageIsARowWhereOneRowIsInView) {
  Show(240, 40);
  EXPECT_EQ(After(Qt::Key_PageDown), "1,2 sel 1,2-1,2 at 1,2");
  EXPECT_EQ(After(Qt::Key_PageDown), "1,3 sel 1,3-1,3 at 1,3");
  EXPECT_EQ(After(Qt::Key_PageUp), "1,2 sel 1,2-1,2 at 1,2");
}

TEST_F(CustomGridKeysTest, APageIsARowWhereNoRowIsWhollyInView) {
  Show(240, 30);
  EXPECT_EQ(After(Qt::Key_PageDown), "1,2 sel 1,2-1,2 at 1,2");
  EXPECT_EQ(After(Qt::Key_PageUp), "1,1 sel 1,1-1,1 at 1,1");
}

TEST_F(CustomGridKeysTest, ControlWithLeftAndRightGoesByPages) {
  Show(240, 140);
  EXPECT_EQ(After(Qt::Key_Right, Qt::ControlModifier), "5,1 sel 5,1-5,1 at 1,1");
  EXPECT_EQ(After(Qt::Key_Right, Qt::ControlModifier), "9,1 sel 9,1-9,1 at 5,1");
  EXPECT_EQ(After(Qt::Key_Left, Qt::ControlModifier), "5,1 sel 5,1-5,1 at 5,1");
}

TEST_F(CustomGridKeysTest, APageIsAColumnWhereOneColumnIsInView) {
  Show(80, 140);
  EXPECT_EQ(After(Qt::Key_Right, Qt::ControlModifier), "2,1 sel 2,1-2,1 at 2,1");
  EXPECT_EQ(After(Qt::Key_Left, Qt::ControlModifier), "1,1 sel 1,1-1,1 at 1,1");
}

TEST_F(CustomGridKeysTest, FromRightToLeftPagesOfColumnsFollowTheEye) {
  Grid.SetBiDiMode(bdRightToLeft);
  Show(240, 140);
  EXPECT_EQ(After(Qt::Key_Left, Qt::ControlModifier), "5,1 sel 5,1-5,1 at 1,1");
  EXPECT_EQ(After(Qt::Key_Right, Qt::ControlModifier), "1,1 sel 1,1-1,1 at 1,1");
}

TEST_F(CustomGridKeysTest, ControlWithPageKeysStaysInView) {
  Show(240, 140);
  Grid.SetTopRow(11);
  Grid.SetRow(13);
  EXPECT_EQ(After(Qt::Key_PageDown, Qt::ControlModifier), "1,16 sel 1,16-1,16 at 1,11");
  EXPECT_EQ(After(Qt::Key_PageUp, Qt::ControlModifier), "1,11 sel 1,11-1,11 at 1,11");
}

TEST_F(CustomGridKeysTest, WithRowSelectLeftAndRightGoFromRowToRow) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goRowSelect});
  Show(240, 140);
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-9,1 at 1,1");
  EXPECT_EQ(After(Qt::Key_Right), "1,2 sel 1,2-9,2 at 1,1");
  EXPECT_EQ(After(Qt::Key_Down), "1,3 sel 1,3-9,3 at 1,1");
  EXPECT_EQ(After(Qt::Key_Left), "1,2 sel 1,2-9,2 at 1,1");
}

TEST_F(CustomGridKeysTest, WithRowSelectHomeAndEndGoToTheFirstAndLastRow) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goRowSelect});
  Show(240, 140);
  EXPECT_EQ(After(Qt::Key_End), "1,99 sel 1,99-9,99 at 1,94");
  EXPECT_EQ(After(Qt::Key_Home), "1,1 sel 1,1-9,1 at 1,1");
}

TEST_F(CustomGridKeysTest, WithRowSelectControlWithLeftAndRightGoesNowhere) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goRowSelect});
  Show(240, 140);
  EXPECT_EQ(After(Qt::Key_Right, Qt::ControlModifier), "1,1 sel 1,1-9,1 at 1,1");
  EXPECT_EQ(After(Qt::Key_Left, Qt::ControlModifier), "1,1 sel 1,1-9,1 at 1,1");
}

TEST_F(CustomGridKeysTest, WithRowSelectShiftedArrowsSelectWholeRows) {
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goRowSelect});
  Show(240, 140);
  EXPECT_EQ(After(Qt::Key_Down, Qt::ShiftModifier), "1,2 sel 1,1-9,2 at 1,1");
}

}  // namespace
}  // namespace kt
