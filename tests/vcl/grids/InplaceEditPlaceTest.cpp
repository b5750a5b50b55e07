// The window of the in-place editor stays over its cell wherever the client area of the grid comes to lie.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "support/Expect.h"
#include "support/GridProbe.h"
#include "support/WindowProbe.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TGridProbe;
using tests::TWindowProbe;

/// A grid from right to left whose rows need a scroll bar, which stands on the left.
class InplaceEditPlaceTest : public testing::Test {
 protected:
  InplaceEditPlaceTest() {
    Grid.SetBiDiMode(bdRightToLeft);
    Grid.SetOptions(Grid.GetOptions() + TGridOptions{goEditing});
    Grid.SetColCount(3);
    Grid.SetRowCount(100);
    Show();
  }
  void Show() {
    FWindow = std::make_unique<TWindowProbe>(Grid);
    Grid.SetFocus();
  }
  void Edit() {
    TWindowProbe::Key(Qt::Key_F2);
    TWindowProbe::Settle();
  }
  /// Both in the window of the grid.
  QRect EditorPlace() { return Grid.InplaceEditor()->GetHandle()->geometry(); }
  QRect CellPlace() {
    const QRect cell = Grid.CellRect(Grid.GetCol(), Grid.GetRow());
    return {FWindow->Body()->mapFromGlobal(Grid.ClientToScreen(cell.topLeft())), cell.size()};
  }

  std::unique_ptr<TGridProbe> FGrid = Make<TGridProbe>();
  TGridProbe& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(InplaceEditPlaceTest, ItLiesOverItsCellBesideTheBar) {
  Edit();
  EXPECT_EQ(EditorPlace(), CellPlace());
}

TEST_F(InplaceEditPlaceTest, ItLiesThereInAWindowThatWasMadeAnew) {
  Edit();
  TWindowProbe::Key(Qt::Key_Return);
  FWindow->Close();
  Show();
  Edit();
  EXPECT_EQ(EditorPlace(), CellPlace());
}

TEST_F(InplaceEditPlaceTest, ItFollowsWhenTheBarGoesAndComesBack) {
  Edit();
  Grid.SetRowCount(3);
  EXPECT_EQ(EditorPlace(), CellPlace());
  Grid.SetRowCount(100);
  EXPECT_EQ(EditorPlace(), CellPlace());
}

TEST_F(InplaceEditPlaceTest, ItFollowsWhenTheBarChangesSides) {
  Edit();
  Grid.SetBiDiMode(bdLeftToRight);
  EXPECT_EQ(EditorPlace(), CellPlace());
  Grid.SetBiDiMode(bdRightToLeft);
  EXPECT_EQ(EditorPlace(), CellPlace());
}

TEST_F(InplaceEditPlaceTest, ItFollowsWhenTheBorderGoes) {
  Grid.SetBiDiMode(bdLeftToRight);
  Edit();
  Grid.SetBorderStyle(bsNone);
  EXPECT_EQ(EditorPlace(), CellPlace());
}

}  // namespace
}  // namespace kt
