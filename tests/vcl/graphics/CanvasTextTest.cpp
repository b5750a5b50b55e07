#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/RealFont.h"
#include "support/Expect.h"
#include "support/PaintLog.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace kt {
namespace {

/// A canvas whose paint calls are logged.
class CanvasTextTest : public ::testing::Test {
 protected:
  CanvasTextTest() {
    FCanvas->GetFont().SetName(QStringLiteral("DejaVu Sans"));
    FCanvas->GetFont().SetColor(clBlack);
    FPainter.begin(&FLog);
    FCanvas->Begin(FPainter);
  }

  int Ascent() { return TRealFont::Of(FCanvas->GetFont())->Metrics().ascent(); }
  int Height() { return FCanvas->TextHeight(QStringLiteral("x")); }

  tests::TPaintLog FLog;
  QPainter FPainter;
  std::unique_ptr<TCanvas> FCanvas = Make<TCanvas>();
};

TEST_F(CanvasTextTest, ATextStandsOnTheBrush) {
  FCanvas->GetBrush().SetColor(clYellow);
  FCanvas->TextOut(10, 20, QStringLiteral("abc"));
  const QString expected = QStringLiteral("fill 10,20 %1x%2 #ffff00 | text 10,%3 'abc' #000000")
                               .arg(FCanvas->TextWidth(QStringLiteral("abc")))
                               .arg(Height())
                               .arg(20 + Ascent());
  EXPECT_EQ(expected.toStdString(), FLog.Take());
}

TEST_F(CanvasTextTest, OnAClearBrushThereIsNoGround) {
  FCanvas->GetBrush().SetStyle(bsClear);
  FCanvas->TextOut(0, 0, QStringLiteral("abc"));
  EXPECT_EQ(QStringLiteral("text 0,%1 'abc' #000000").arg(Ascent()).toStdString(), FLog.Take());
}

TEST_F(CanvasTextTest, TextOutMovesThePenBehindTheText) {
  FCanvas->TextOut(5, 7, QStringLiteral("abc"));
  EXPECT_EQ(QPoint(5 + FCanvas->TextWidth(QStringLiteral("abc")), 7), FCanvas->GetPenPos());
}

TEST_F(CanvasTextTest, ATextThatFitsIsNotClipped) {
  FCanvas->TextRect({0, 0, 100, 30}, 10, 5, QStringLiteral("abc"));
  EXPECT_EQ(QStringLiteral("fill 0,0 100x30 #ffffff | text 10,%1 'abc' #000000").arg(5 + Ascent()).toStdString(),
            FLog.Take());
}

TEST_F(CanvasTextTest, ATextThatDoesNotFitIsClippedForItselfOnly) {
  FCanvas->TextRect({0, 0, 20, 30}, 2, 2, QStringLiteral("much too long"));
  FCanvas->TextRect({0, 30, 100, 30}, 10, 32, QStringLiteral("b"));
  EXPECT_EQ(QStringLiteral("fill 0,0 20x30 #ffffff | clip 0,0 20x30 | text 2,%1 'much too long' #000000 | no clip | "
                           "fill 0,30 100x30 #ffffff | text 10,%2 'b' #000000")
                .arg(2 + Ascent())
                .arg(32 + Ascent())
                .toStdString(),
            FLog.Take());
}

TEST_F(CanvasTextTest, TextRectDoesNotMoveThePen) {
  FCanvas->MoveTo(1, 2);
  FCanvas->TextRect({0, 0, 100, 30}, 10, 5, QStringLiteral("abc"));
  EXPECT_EQ(QPoint(1, 2), FCanvas->GetPenPos());
}

TEST_F(CanvasTextTest, AnEmptyTextOnlyFills) {
  FCanvas->TextOut(0, 0, QString());
  EXPECT_EQ("", FLog.Take());
  FCanvas->TextRect({0, 0, 5, 5}, 0, 0, QString());
  EXPECT_EQ("fill 0,0 5x5 #ffffff", FLog.Take());
}

TEST_F(CanvasTextTest, ANewColourIsUsedForTheNextText) {
  FCanvas->GetBrush().SetStyle(bsClear);
  FCanvas->TextOut(0, 0, QStringLiteral("a"));
  FCanvas->GetFont().SetColor(clRed);
  FCanvas->TextOut(0, 0, QStringLiteral("b"));
  EXPECT_EQ(QStringLiteral("text 0,%1 'a' #000000 | text 0,%1 'b' #ff0000").arg(Ascent()).toStdString(), FLog.Take());
}

TEST_F(CanvasTextTest, TextAfterALineHasTheColourOfTheFont) {
  FCanvas->GetBrush().SetStyle(bsClear);
  FCanvas->GetPen().SetColor(clRed);
  FCanvas->TextOut(0, 0, QStringLiteral("a"));
  FCanvas->MoveTo(0, 0);
  FCanvas->LineTo(5, 0);
  FCanvas->TextOut(0, 0, QStringLiteral("b"));
  EXPECT_EQ(QStringLiteral("text 0,%1 'a' #000000 | lines 0,0-4,0 #ff0000 | text 0,%1 'b' #000000")
                .arg(Ascent())
                .toStdString(),
            FLog.Take());
}

TEST_F(CanvasTextTest, ALongTextIsShapedOnlyAsFarAsItCanBeSeen) {
  FCanvas->TextRect({0, 0, 20, 20}, 0, 0, QString(1000000, u'x'));
  EXPECT_LT(FLog.Take().size(), 5000U);
}

TEST_F(CanvasTextTest, MeasuringNeedsNoPainter) {
  FCanvas->End();
  EXPECT_GT(FCanvas->TextWidth(QStringLiteral("mm")), FCanvas->TextWidth(QStringLiteral("m")));
  EXPECT_EQ(QSize(0, Height()), FCanvas->TextExtent(QString()));
}

TEST_F(CanvasTextTest, MeasuringFollowsTheFont) {
  const int small = FCanvas->TextWidth(QStringLiteral("abc"));
  FCanvas->GetFont().SetHeight(-22);
  EXPECT_GT(FCanvas->TextWidth(QStringLiteral("abc")), small * 3 / 2);
}

/// The columns of `image` that have any ink.
QList<int> InkedColumns(const QImage& image) {
  QList<int> columns;
  for (int x = 0; x < image.width(); ++x)
    for (int y = 0; y < image.height(); ++y)
      if (image.pixel(x, y) != 0xFFFFFFFF) {
        columns.append(x);
        break;
      }
  return columns;
}

TEST_F(CanvasTextTest, OnAMirroredCanvasTextChangesSidesAndIsNotMirrored) {
  const QString text = QStringLiteral("L.");
  QImage plain(60, 20, QImage::Format_RGB32);
  QImage mirrored(60, 20, QImage::Format_RGB32);
  plain.fill(Qt::white);
  mirrored.fill(Qt::white);
  FCanvas->End();
  FCanvas->GetBrush().SetStyle(bsClear);
  QPainter onPlain(&plain);
  FCanvas->Begin(onPlain);
  FCanvas->TextOut(60 - 10 - FCanvas->TextWidth(text), 2, text);
  QPainter onMirrored(&mirrored);
  onMirrored.translate(60, 0);
  onMirrored.scale(-1, 1);
  FCanvas->Begin(onMirrored);
  FCanvas->TextOut(10, 2, text);
  FCanvas->End();
  EXPECT_FALSE(InkedColumns(plain).isEmpty());
  EXPECT_EQ(InkedColumns(plain), InkedColumns(mirrored));
}

TEST_F(CanvasTextTest, ATurnedTextRunsUpwards) {
  QImage image(60, 60, QImage::Format_RGB32);
  image.fill(Qt::white);
  FCanvas->End();
  FCanvas->GetBrush().SetStyle(bsClear);
  FCanvas->GetFont().SetOrientation(900);
  QPainter painter(&image);
  FCanvas->Begin(painter);
  FCanvas->TextOut(10, 50, QStringLiteral("mmmm"));
  FCanvas->End();
  const QList<int> columns = InkedColumns(image);
  EXPECT_FALSE(columns.isEmpty());
  EXPECT_GE(columns.first(), 10);
  EXPECT_LE(columns.last(), 10 + Height());
}

}  // namespace
}  // namespace kt
