// How the grid paints the selection and the current cell by itself, as the paint calls tell.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/grids/DrawGrid.h"
#include "support/Expect.h"
#include "support/PaintLog.h"
#include "support/WindowProbe.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TPaintLog;
using tests::TWindowProbe;

/// A grid of 4 x 4 cells of 40 x 20 pixels without lines, the first ones fixed; the focus is beside it.
class CustomGridSelectionPaintTest : public testing::Test {
 protected:
  CustomGridSelectionPaintTest() {
    Grid.SetColCount(4);
    Grid.SetRowCount(4);
    Grid.SetDefaultColWidth(40);
    Grid.SetDefaultRowHeight(20);
    Grid.SetGridLineWidth(0);
    Grid.SetBorderStyle(bsNone);
    Grid.SetOptions({goRangeSelect});
    FWindow = std::make_unique<TWindowProbe>(Grid);
    auto* beside = new QLineEdit(FWindow->Window());
    beside->show();
    beside->setFocus();
  }
  void Also(TGridOption option) { Grid.SetOptions(Grid.GetOptions() + TGridOptions{option}); }
  /// The paint calls that begin with a word.
  QStringList Painted(const QString& word) {
    TPaintLog log;
    Grid.GetHandle()->render(&log);
    return QString::fromStdString(log.Take()).split(QStringLiteral(" | ")).filter(word + u' ');
  }
  /// The cells, "col,row" in the order of painting, that are filled with a colour of the system.
  QString CellsIn(TColor color) {
    const QString name = QtColor(color, Grid.GetHandle()->palette()).name();
    const QStringList fills = Painted(QStringLiteral("fill"));
    QStringList cells;
    for (int row = 0; row < 4; ++row) {
      for (int col = 0; col < 4; ++col) {
        const QRect cell = Grid.CellRect(col, row);
        const QString fill = QStringLiteral("fill %1,%2 40x20 %3").arg(cell.x()).arg(cell.y()).arg(name);
        if (fills.contains(fill)) cells += QStringLiteral("%1,%2").arg(col).arg(row);
      }
    }
    return cells.join(u' ');
  }
  QString Highlighted() { return CellsIn(clHighlight); }
  /// The rectangles of dots: "40,20 39x19".
  QString FocusRects() {
    return Painted(QStringLiteral("rect")).join(QStringLiteral(" | ")).remove(QStringLiteral("rect "));
  }
  /// The colour of the font that a handler finds in a cell.
  TColor TextColorAt(int wantedCol, int wantedRow) {
    TColor color = clNone;
    Grid.OnDrawCell = [&](TObject*, int col, int row, const QRect&, TGridDrawState) {
      if (col == wantedCol && row == wantedRow) color = Grid.GetCanvas().GetFont().GetColor();
    };
    Painted({});
    Grid.OnDrawCell = nullptr;
    return color;
  }

  std::unique_ptr<TDrawGrid> FGrid = Make<TDrawGrid>();
  TDrawGrid& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(CustomGridSelectionPaintTest, WithoutTheFocusTheCurrentCellIsHighlighted) {
  EXPECT_EQ(Highlighted(), "1,1");
  EXPECT_EQ(FocusRects(), "");
}

TEST_F(CustomGridSelectionPaintTest, OtherCellsHaveTheGroundsOfTheGrid) {
  EXPECT_EQ(CellsIn(clBtnFace), "0,0 1,0 2,0 3,0 0,1 0,2 0,3");
  EXPECT_EQ(CellsIn(clWindow), "2,1 3,1 1,2 2,2 3,2 1,3 2,3 3,3");
}

TEST_F(CustomGridSelectionPaintTest, WithTheFocusTheCurrentCellHasDotsAroundItInstead) {
  Grid.SetFocus();
  EXPECT_EQ(Highlighted(), "");
  EXPECT_EQ(FocusRects(), "40,20 39x19 #ffffff");
}

TEST_F(CustomGridSelectionPaintTest, TheDotsFollowTheCurrentCell) {
  Grid.SetFocus();
  Grid.SetCol(3);
  EXPECT_EQ(FocusRects(), "120,20 39x19 #ffffff");
}

TEST_F(CustomGridSelectionPaintTest, AWishToHighlightTheFocusIsObeyed) {
  Also(goDrawFocusSelected);
  Grid.SetFocus();
  EXPECT_EQ(Highlighted(), "1,1");
  EXPECT_EQ(FocusRects(), "40,20 39x19 #ffffff");
}

TEST_F(CustomGridSelectionPaintTest, ASelectedRangeIsHighlightedButForTheCellWithTheFocus) {
  Grid.SetSelection({1, 1, 2, 2});
  Grid.SetFocus();
  EXPECT_EQ(Highlighted(), "1,1 2,1 1,2");
  EXPECT_EQ(FocusRects(), "80,40 39x19 #ffffff");
}

TEST_F(CustomGridSelectionPaintTest, ARowThatIsSelectedIsHighlightedAsAWholeWithoutDots) {
  Also(goRowSelect);
  Grid.SetRow(2);
  Grid.SetFocus();
  EXPECT_EQ(Highlighted(), "1,2 2,2 3,2");
  EXPECT_EQ(FocusRects(), "");
}

TEST_F(CustomGridSelectionPaintTest, WhereTheEditorIsAlwaysThereNoDotsAreAroundTheOthers) {
  Also(goEditing);
  Also(goAlwaysShowEditor);
  Grid.SetFocus();
  EXPECT_EQ(FocusRects(), "");
}

TEST_F(CustomGridSelectionPaintTest, FromRightToLeftTheDotsAreAroundTheMirroredCell) {
  Grid.SetBiDiMode(bdRightToLeft);
  Grid.SetFocus();
  EXPECT_EQ(FocusRects(), "320,20 39x19 #ffffff");
}

TEST_F(CustomGridSelectionPaintTest, HandlersFindTheColourOfHighlightedTexts) {
  EXPECT_EQ(TextColorAt(1, 1), clHighlightText);
  EXPECT_EQ(TextColorAt(2, 1), Grid.GetFont().GetColor());
  Grid.SetFocus();
  EXPECT_EQ(TextColorAt(1, 1), Grid.GetFont().GetColor());
}

TEST_F(CustomGridSelectionPaintTest, WithoutDefaultDrawingAllIsLeftToTheHandler) {
  Grid.SetDefaultDrawing(false);
  Grid.SetFocus();
  EXPECT_EQ(Highlighted() + CellsIn(clBtnFace) + CellsIn(clWindow), "");
  EXPECT_EQ(FocusRects(), "");
}

}  // namespace
}  // namespace kt
