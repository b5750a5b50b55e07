// What the options of the grid paint, and who is painted as focused.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/GridProbe.h"
#include "support/WindowProbe.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TControlProbe;
using tests::TGridProbe;
using tests::TWindowProbe;

struct TLine {
  TGridOption Option;
  /// On the line, in the client area of a grid of cells of 40 x 20 pixels, lines included.
  QPoint Place;
  /// What is there without it.
  QPalette::ColorRole Ground;
};

class CustomGridLinesTest : public testing::TestWithParam<TLine> {
 protected:
  CustomGridLinesTest() {
    Grid.SetDefaultColWidth(39);
    Grid.SetDefaultRowHeight(19);
    Grid.SetOptions({goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine});
    FWindow = std::make_unique<TWindowProbe>(Grid, QSize(300, 200));
  }
  QColor ColorAt(QPoint place) {
    TWindowProbe::Settle();
    return Grid.GetHandle()->grab().toImage().pixelColor(place + QPoint(2, 2));
  }
  QColor Ground() { return Grid.GetHandle()->palette().color(GetParam().Ground); }

  std::unique_ptr<TGridProbe> FGrid = Make<TGridProbe>();
  TGridProbe& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_P(CustomGridLinesTest, ALineIsThereWithItsOption) { EXPECT_NE(ColorAt(GetParam().Place), Ground()); }

TEST_P(CustomGridLinesTest, WithoutItsOptionTheGroundGoesOnWhereALineWas) {
  Grid.SetOptions(Grid.GetOptions() - TGridOptions{GetParam().Option});
  EXPECT_EQ(ColorAt(GetParam().Place), Ground());
}

INSTANTIATE_TEST_SUITE_P(CustomGridPaintTest, CustomGridLinesTest,
                         testing::Values(TLine{goFixedVertLine, {39, 25}, QPalette::Window},
                                         TLine{goFixedHorzLine, {5, 39}, QPalette::Window},
                                         TLine{goVertLine, {119, 45}, QPalette::Base},
                                         TLine{goHorzLine, {85, 59}, QPalette::Base}));

/// How many pixels each line has that a straight way through the middle of a cell crosses.
QList<int> Thicknesses(const QImage& image, QPoint start, QPoint step, QColor line) {
  QList<int> found;
  bool wasLine = false;
  for (QPoint at = start; image.rect().contains(at); at += step) {
    const bool isLine = image.pixelColor(at) == line;
    if (isLine && !wasLine) found += 0;
    if (isLine) ++found.last();
    wasLine = isLine;
  }
  return found;
}

TEST(CustomGridScaleTest, LinesAreEquallyThickWhereAPixelIsNoWholeNumberOfTheScreens) {
  const auto grid = Make<TGridProbe>();
  grid->SetFixedCols(0);
  grid->SetFixedRows(0);
  grid->SetDefaultColWidth(38);
  grid->SetDefaultRowHeight(18);
  TWindowProbe window(*grid, QSize(180, 90));
  QImage image(QSize(270, 135), QImage::Format_RGB32);
  image.setDevicePixelRatio(1.5);
  grid->GetHandle()->render(&image);
  const QColor line = image.pixelColor(QPoint(20, 3 + 27));
  EXPECT_NE(line, image.pixelColor(QPoint(20, 3 + 20)));
  EXPECT_EQ(QList<int>({1, 1, 1}), Thicknesses(image, {20, 4}, {0, 1}, line));
  EXPECT_EQ(QList<int>({1, 1, 1, 1}), Thicknesses(image, {4, 20}, {1, 0}, line));
}

/// A grid and another control on a form.
class CustomGridPaintTest : public testing::Test {
 protected:
  CustomGridPaintTest() {
    Grid.SetParent(FForm.get());
    Other.SetParent(FForm.get());
    Other.SetTabStop(true);
    Grid.OnDrawCell = [this](TObject*, int col, int row, const QRect&, TGridDrawState state) {
      if (col == 1 && row == 1) FState = state;
    };
  }
  bool IsCurrentCellFocused() {
    Grid.Invalidate();
    TWindowProbe::Settle();
    return FState.Has(gdFocused);
  }

  std::unique_ptr<TForm> FForm = Make<TForm>();
  TForm& Form = *FForm;
  TGridProbe& Grid = *New<TGridProbe>(FForm.get());
  TControlProbe& Other = *New<TControlProbe>(FForm.get());
  TGridDrawState FState;
};

TEST_F(CustomGridPaintTest, TheGridThatIsTheActiveControlIsPaintedAsFocused) {
  Form.SetActiveControl(&Grid);
  Form.Show();
  EXPECT_TRUE(IsCurrentCellFocused());
}

TEST_F(CustomGridPaintTest, ItStaysSoWhileAnotherWindowIsActive) {
  Form.SetActiveControl(&Grid);
  Form.Show();
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  EXPECT_TRUE(IsCurrentCellFocused());
}

TEST_F(CustomGridPaintTest, TheGridBesideTheActiveControlIsNot) {
  Form.SetActiveControl(&Other);
  Form.Show();
  EXPECT_FALSE(IsCurrentCellFocused());
}

TEST_F(CustomGridPaintTest, TheFocusOfAnInactiveFormMovesTheActiveControl) {
  Form.SetActiveControl(&Other);
  Form.Show();
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  Grid.SetFocus();
  EXPECT_EQ(Form.GetActiveControl(), &Grid);
  EXPECT_TRUE(IsCurrentCellFocused());
}

TEST_F(CustomGridPaintTest, TheActiveControlCanShowItsEditorBeforeItsFormWasActive) {
  Form.SetActiveControl(&Grid);
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goEditing});
  Form.HandleNeeded();
  Grid.SetEditorMode(true);
  EXPECT_TRUE(Grid.CanEditShow());
  ASSERT_NE(Grid.InplaceEditor(), nullptr);
  EXPECT_TRUE(Grid.InplaceEditor()->IsVisible());
}

TEST_F(CustomGridPaintTest, BesideTheActiveControlNoEditorShows) {
  Form.SetActiveControl(&Other);
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goEditing});
  Form.HandleNeeded();
  Grid.SetEditorMode(true);
  EXPECT_FALSE(Grid.CanEditShow());
}

/// A grid in somebody else's window.
class CustomGridWithoutFormTest : public testing::Test {
 protected:
  CustomGridWithoutFormTest() {
    Grid.SetOptions(Grid.GetOptions() + TGridOptions{goEditing});
    FWindow = std::make_unique<TWindowProbe>(Grid);
  }
  bool CanShowWhen(QWidget& focused) {
    focused.show();
    focused.setFocus();
    Grid.SetEditorMode(true);
    return Grid.CanEditShow();
  }

  std::unique_ptr<TGridProbe> FGrid = Make<TGridProbe>();
  TGridProbe& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(CustomGridWithoutFormTest, AWidgetInsideTheGridCountsAsTheGrid) {
  QLineEdit inside(Grid.GetHandle());
  EXPECT_TRUE(CanShowWhen(inside));
}

TEST_F(CustomGridWithoutFormTest, AWidgetBesideTheGridDoesNot) {
  QLineEdit beside(FWindow->Window());
  EXPECT_FALSE(CanShowWhen(beside));
}

TEST_F(CustomGridWithoutFormTest, TheGridKeepsItsEditorWhileTheProgramIsInactive) {
  Grid.SetFocus();
  Grid.SetEditorMode(true);
  QApplication::setActiveWindow(nullptr);
  EXPECT_EQ(QApplication::focusWidget(), nullptr);
  EXPECT_TRUE(Grid.CanEditShow());
}

}  // namespace
}  // namespace kt
