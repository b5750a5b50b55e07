#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/QtColor.h"
#include "support/Expect.h"
#include "support/PaintLog.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <gtest/gtest.h>

namespace kt {
namespace {

/// A canvas over a white picture of 8 x 6 pixels, shown as text: "." white, "#" black, "r" red, "?" anything else.
class CanvasTest : public ::testing::Test {
 protected:
  CanvasTest() : FImage(8, 6, QImage::Format_RGB32) {
    FImage.fill(Qt::white);
    FPainter.begin(&FImage);
    FCanvas->Begin(FPainter);
  }

  static QChar Letter(QRgb pixel) {
    if (pixel == 0xFFFFFFFF) return u'.';
    if (pixel == 0xFF000000) return u'#';
    return pixel == 0xFFFF0000 ? u'r' : u'?';
  }

  std::string Picture() const {
    QString text;
    for (int y = 0; y < FImage.height(); ++y) {
      for (int x = 0; x < FImage.width(); ++x) text += Letter(FImage.pixel(x, y));
      text += u'\n';
    }
    return text.toStdString();
  }

  QImage FImage;
  QPainter FPainter;
  std::unique_ptr<TCanvas> FCanvas = Make<TCanvas>();
};

TEST_F(CanvasTest, ALineLeavesItsEndOutAndMovesThePen) {
  FCanvas->MoveTo(1, 1);
  FCanvas->LineTo(5, 1);
  FCanvas->LineTo(5, 4);
  EXPECT_EQ(QPoint(5, 4), FCanvas->GetPenPos());
  EXPECT_EQ(
      "........\n"
      ".#####..\n"
      ".....#..\n"
      ".....#..\n"
      "........\n"
      "........\n",
      Picture());
}

TEST_F(CanvasTest, ALineBackwardsLeavesItsEndOutToo) {
  FCanvas->MoveTo(5, 4);
  FCanvas->LineTo(2, 1);
  FCanvas->MoveTo(7, 5);
  FCanvas->LineTo(3, 5);
  EXPECT_EQ(
      "........\n"
      "........\n"
      "...#....\n"
      "....#...\n"
      ".....#..\n"
      "....####\n",
      Picture());
}

TEST_F(CanvasTest, ALineToWhereItStartsDrawsNothing) {
  FCanvas->MoveTo(2, 2);
  FCanvas->LineTo(2, 2);
  EXPECT_EQ(std::string::npos, Picture().find('#'));
}

TEST_F(CanvasTest, ARectangleIsFilledAndOutlinedInside) {
  FCanvas->GetBrush().SetColor(clRed);
  FCanvas->Rectangle({1, 1, 5, 4});
  EXPECT_EQ(
      "........\n"
      ".#####..\n"
      ".#rrr#..\n"
      ".#rrr#..\n"
      ".#####..\n"
      "........\n",
      Picture());
}

TEST_F(CanvasTest, AClearBrushFillsNothing) {
  FCanvas->GetBrush().SetStyle(bsClear);
  FCanvas->Rectangle({0, 0, 4, 3});
  FCanvas->FillRect({5, 0, 3, 3});
  EXPECT_EQ(
      "####....\n"
      "#..#....\n"
      "####....\n"
      "........\n"
      "........\n"
      "........\n",
      Picture());
}

TEST_F(CanvasTest, FillRectLeavesTheRightAndLowerEdgeOut) {
  FCanvas->GetBrush().SetColor(clBlack);
  FCanvas->FillRect({0, 0, 2, 2});
  FCanvas->GetBrush().SetColor(clRed);
  FCanvas->FillRect({2, 1, 3, 1});
  EXPECT_EQ(
      "##......\n"
      "##rrr...\n"
      "........\n"
      "........\n"
      "........\n"
      "........\n",
      Picture());
}

TEST_F(CanvasTest, FrameRectOutlinesInTheColourOfTheBrush) {
  FCanvas->GetBrush().SetColor(clRed);
  FCanvas->FrameRect({1, 1, 4, 3});
  EXPECT_EQ(
      "........\n"
      ".rrrr...\n"
      ".r..r...\n"
      ".rrrr...\n"
      "........\n"
      "........\n",
      Picture());
}

TEST_F(CanvasTest, AFocusRectIsDottedAndGoesWhenDrawnAgain) {
  const std::string before = Picture();
  FCanvas->DrawFocusRect({0, 0, 8, 6});
  const std::string drawn = Picture();
  EXPECT_EQ(12, std::count(drawn.begin(), drawn.end(), '#'));
  FCanvas->DrawFocusRect({0, 0, 8, 6});
  EXPECT_EQ(before, Picture());
}

TEST_F(CanvasTest, AnInvertingPenDrawsAndTakesAway) {
  FCanvas->GetPen().SetMode(pmNot);
  FCanvas->MoveTo(0, 2);
  FCanvas->LineTo(8, 2);
  EXPECT_EQ('#', Picture()[2 * 9]);
  FCanvas->MoveTo(0, 2);
  FCanvas->LineTo(8, 2);
  EXPECT_EQ('.', Picture()[2 * 9]);
}

TEST_F(CanvasTest, AnInvertingPenDoesNotInvertWhatTheBrushFills) {
  FCanvas->GetPen().SetMode(pmNot);
  FCanvas->GetBrush().SetColor(clRed);
  FCanvas->Rectangle({0, 0, 4, 4});
  EXPECT_EQ('r', Picture()[1 * 9 + 1]);
}

TEST_F(CanvasTest, ANopPenDrawsNothing) {
  FCanvas->GetPen().SetMode(pmNop);
  FCanvas->MoveTo(0, 0);
  FCanvas->LineTo(8, 0);
  EXPECT_EQ(std::string::npos, Picture().find('#'));
}

TEST_F(CanvasTest, PolygonsAreFilledAndPolylinesAreNot) {
  FCanvas->GetBrush().SetColor(clRed);
  const QPoint square[] = {{0, 0}, {3, 0}, {3, 3}, {0, 3}};
  FCanvas->Polygon(square);
  const QPoint hook[] = {{5, 0}, {7, 0}, {7, 3}};
  FCanvas->Polyline(hook);
  EXPECT_EQ(
      "####.###\n"
      "#rr#...#\n"
      "#rr#...#\n"
      "####...#\n"
      "........\n"
      "........\n",
      Picture());
}

TEST_F(CanvasTest, RoundShapesLeaveTheCornersOut) {
  FCanvas->GetBrush().SetColor(clBlack);
  FCanvas->Ellipse({0, 0, 8, 6});
  EXPECT_EQ('.', Picture()[0]);
  EXPECT_EQ('#', Picture()[3 * 9 + 4]);
  FImage.fill(Qt::white);
  FCanvas->RoundRect({0, 0, 8, 6}, 6, 6);
  EXPECT_EQ('.', Picture()[0]);
  EXPECT_EQ('#', Picture()[3 * 9 + 4]);
}

TEST_F(CanvasTest, APixelIsSet) {
  FCanvas->SetPixel(3, 2, clRed);
  EXPECT_EQ('r', Picture()[2 * 9 + 3]);
}

TEST_F(CanvasTest, ACanvasOfAControlCannotBeRead) {
  EXPECT_EQ(clNone, FCanvas->GetPixel(0, 0));
  EXPECT_EQ(QStringLiteral("Canvas does not allow drawing"), tests::MessageOf<EInvalidOperation>([&] {
              FCanvas->CopyRect({0, 0, 1, 1}, *FCanvas, {0, 0, 1, 1});
            }));
}

TEST_F(CanvasTest, NothingIsDrawnAfterTheEnd) {
  FCanvas->End();
  EXPECT_FALSE(FCanvas->IsDrawing());
  EXPECT_EQ(QStringLiteral("Canvas does not allow drawing"), tests::MessageOf<EInvalidOperation>([&] {
              FCanvas->FillRect({0, 0, 1, 1});
            }));
}

TEST_F(CanvasTest, ClipRectIsWhatCanBeSeen) {
  EXPECT_EQ(QRect(0, 0, 8, 6), FCanvas->GetClipRect());
  FPainter.setClipRect(2, 2, 10, 10);
  EXPECT_EQ(QRect(2, 2, 6, 4), FCanvas->GetClipRect());
  FCanvas->Begin(FPainter, {0, 0, 4, 4});
  EXPECT_EQ(QRect(2, 2, 2, 2), FCanvas->GetClipRect());
  FCanvas->End();
  EXPECT_EQ(QRect(), FCanvas->GetClipRect());
}

TEST_F(CanvasTest, ThePaletteOfTheControlCounts) {
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::red);
  FCanvas->SetPalette(palette);
  FCanvas->GetBrush().SetColor(clWindow);
  FCanvas->FillRect({0, 0, 1, 1});
  EXPECT_EQ('r', Picture()[0]);
}

TEST_F(CanvasTest, ChangesOfTheToolsAreTold) {
  int changes = 0;
  FCanvas->OnChange = [&](TObject* sender) { changes += sender == FCanvas.get(); };
  FCanvas->GetFont().SetHeight(-20);
  FCanvas->GetBrush().SetColor(clRed);
  FCanvas->GetPen().SetWidth(2);
  EXPECT_EQ(3, changes);
}

TEST_F(CanvasTest, ToolsAreCopied) {
  const auto font = Make<TFont>();
  font->SetHeight(-33);
  FCanvas->SetFont(font.get());
  EXPECT_TRUE(FCanvas->GetFont().IsSameAs(*font));
  EXPECT_NE(font.get(), &FCanvas->GetFont());
}

}  // namespace
}  // namespace kt
