#include "kt/vcl/extctrls/Shape.h"
#include "support/FormText.h"
#include "support/PaintWorld.h"
#include "support/Published.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

/// A shape of 60 x 40 at 10,10, filled red.
class ShapeTest : public tests::TPaintWorld {
 protected:
  ShapeTest() { Shape.GetBrush().SetColor(clRed); }

  TShape& Shape = Add<TShape>("Shape", {10, 10, 60, 40});
};

TEST_F(ShapeTest, ItPublishesWhatFormsSay) {
  EXPECT_EQ(
      "Align=alNone Anchors Brush Constraints DragCursor=-12 DragKind=dkDrag DragMode=dmManual Enabled=True "
      "ParentShowHint=True Pen Shape=stRectangle ShowHint Visible=True OnContextPopup OnMouseDown OnMouseEnter "
      "OnMouseLeave OnMouseMove OnMouseUp OnDragDrop OnDragOver OnEndDrag OnStartDrag",
      tests::PublishedOf(TShape::Class()));
}

TEST_F(ShapeTest, ARectangleFillsItsPlaceWithAnOutline) {
  EXPECT_EQ("clBlack clRed clRed clBlack clWhite", ColorsAt({{10, 30}, {11, 30}, {68, 30}, {69, 30}, {70, 30}}));
}

TEST_F(ShapeTest, AWidePenStaysInside) {
  Shape.GetPen().SetWidth(5);
  EXPECT_EQ("clWhite clBlack clBlack clRed", ColorsAt({{9, 30}, {10, 30}, {14, 30}, {15, 30}}));
  EXPECT_EQ("clRed clBlack clBlack clWhite", ColorsAt({{64, 30}, {65, 30}, {69, 30}, {70, 30}}));
}

TEST_F(ShapeTest, ASquareStandsInTheMiddle) {
  Shape.SetShape(stSquare);
  EXPECT_EQ("clWhite clBlack clRed clBlack clWhite", ColorsAt({{19, 30}, {20, 30}, {40, 30}, {59, 30}, {60, 30}}));
}

TEST_F(ShapeTest, RoundOnesLeaveTheirCornersOut) {
  Shape.SetShape(stRoundRect);
  EXPECT_EQ("clWhite clRed", ColorsAt({{10, 10}, {40, 30}}));
  Shape.SetShape(stEllipse);
  EXPECT_EQ("clWhite clRed clRed", ColorsAt({{14, 14}, {13, 30}, {40, 30}}));
  Shape.SetShape(stCircle);
  EXPECT_EQ("clWhite clRed", ColorsAt({{13, 30}, {40, 30}}));
}

TEST_F(ShapeTest, ABrushThatChangesIsShown) {
  Show();
  EXPECT_EQ("10,10 60x40", PaintedBy([this] { Shape.GetBrush().SetColor(clBlue); }));
  EXPECT_EQ("10,10 60x40", PaintedBy([this] { Shape.GetPen().SetWidth(2); }));
}

TEST_F(ShapeTest, AFormFileSaysToolsAndShape) {
  Shape.SetShape(stCircle);
  Shape.GetPen().SetStyle(psDot);
  EXPECT_EQ(
      "object Shape: TShape\n  Left = 10\n  Top = 10\n  Width = 60\n  Height = 40\n  Brush.Color = clRed\n"
      "  Pen.Style = psDot\n  Shape = stCircle\nend\n",
      tests::TextOf(&Shape));
  EXPECT_EQ("object TShape\n  Left = 0\n  Top = 0\n  Width = 65\n  Height = 65\nend\n",
            tests::TextOf(Make<TShape>().get()));
}

}  // namespace
}  // namespace kt
