// What is repainted while an edge is dragged, and what surrounds the cells.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/grids/GridScrollBar.h"
#include "support/Expect.h"
#include "support/GridProbe.h"
#include "support/WindowProbe.h"

#include <QPaintEvent>
#include <QStyle>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TGridProbe;
using tests::TWindowProbe;

/// Collects what of a widget is painted.
class TPaintedRegion : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) FRegion += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  /// Since the last call: "81,2 2x100 | 101,2 2x100".
  QString Take() {
    QStringList texts;
    for (const QRect& rect : std::exchange(FRegion, {})) {
      texts += QStringLiteral("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
    }
    return texts.join(QStringLiteral(" | "));
  }

 private:
  QRegion FRegion;
};

/// A grid of 10 columns of 40 and 100 rows of 20.
class CustomGridDraggingTest : public testing::Test {
 protected:
  CustomGridDraggingTest() {
    Grid.SetDefaultColWidth(39);
    Grid.SetDefaultRowHeight(19);
    Grid.SetColCount(10);
    Grid.SetRowCount(100);
    Grid.SetOptions(Grid.GetOptions() + TGridOptions{goColSizing, goRowSizing});
    const int bar = Grid.GetHandle()->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    FWindow = std::make_unique<TWindowProbe>(Grid, QSize(240 + 4 + bar, 140 + 4 + bar));
    FWindow->Body()->installEventFilter(&FPainted);
    TWindowProbe::Settle();
  }
  QString Painted() {
    TWindowProbe::Settle();
    return FPainted.Take();
  }
  /// "across down", of the bars that show.
  QString Bars() {
    TWindowProbe::Settle();
    QStringList shown;
    for (const auto* bar : Grid.GetHandle()->findChildren<TGridScrollBar*>()) {
      if (bar->isVisible()) shown += bar->orientation() == Qt::Horizontal ? "across" : "down";
    }
    return shown.join(u' ');
  }

  TPaintedRegion FPainted;
  std::unique_ptr<TGridProbe> FGrid = Make<TGridProbe>();
  TGridProbe& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(CustomGridDraggingTest, ADraggedEdgeRepaintsItsLineAlone) {
  FWindow->Press({2 + 79, 8});
  FWindow->MoveTo({2 + 89, 8});
  Painted();
  FWindow->MoveTo({2 + 99, 8});
  EXPECT_EQ(Painted(), "90,2 2x140 | 100,2 2x140");
}

TEST_F(CustomGridDraggingTest, TheLowerEdgeOfARowToo) {
  FWindow->Press({10, 2 + 39});
  FWindow->MoveTo({10, 2 + 49});
  Painted();
  FWindow->MoveTo({10, 2 + 59});
  EXPECT_EQ(Painted(), "2,50 240x2 | 2,60 240x2");
}

TEST_F(CustomGridDraggingTest, AWiderLineMovesTheCellsApart) {
  EXPECT_EQ(Grid.CellRect(2, 2), QRect(80, 40, 39, 19));
  Grid.SetGridLineWidth(4);
  EXPECT_EQ(Grid.CellRect(1, 1), QRect(43, 23, 39, 19));
  EXPECT_EQ(Grid.CellRect(2, 2), QRect(86, 46, 39, 19));
}

TEST_F(CustomGridDraggingTest, OnlyTheBarThatIsWantedShows) {
  EXPECT_EQ(Bars(), "across down");
  Grid.SetScrollBars(ssVertical);
  EXPECT_EQ(Bars(), "down");
  Grid.SetScrollBars(ssHorizontal);
  EXPECT_EQ(Bars(), "across");
  Grid.SetScrollBars(ssNone);
  EXPECT_EQ(Bars(), "");
}

}  // namespace
}  // namespace kt
