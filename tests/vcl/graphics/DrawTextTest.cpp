#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/DrawText.h"
#include "support/Expect.h"
#include "support/PaintLog.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace kt {
namespace {

class DrawTextTest : public ::testing::Test {
 protected:
  DrawTextTest() { FCanvas->GetFont().SetColor(clRed); }

  QRect Calculated(const QString& text, QRect rect, quint32 flags) {
    DrawText(*FCanvas, text, rect, flags | DT_CALCRECT);
    return rect;
  }
  std::string Drawn(const QString& text, QRect rect, quint32 flags) {
    QPainter painter(&FLog);
    FCanvas->Begin(painter);
    DrawText(*FCanvas, text, rect, flags);
    FCanvas->End();
    return FLog.Take();
  }
  int LineHeight() { return FCanvas->TextHeight(QStringLiteral("x")); }

  tests::TPaintLog FLog;
  std::unique_ptr<TCanvas> FCanvas = Make<TCanvas>();
};

TEST_F(DrawTextTest, TheRectangleBecomesAsLargeAsTheText) {
  const QRect rect = Calculated(QStringLiteral("some text"), {5, 7, 300, 0}, DT_LEFT);
  EXPECT_EQ(QPoint(5, 7), rect.topLeft());
  EXPECT_EQ(LineHeight(), rect.height());
  EXPECT_NEAR(FCanvas->TextWidth(QStringLiteral("some text")), rect.width(), 2);
}

TEST_F(DrawTextTest, LinesEndAtLineBreaksOfEitherKind) {
  const QRect one = Calculated(QStringLiteral("a"), {0, 0, 300, 0}, DT_LEFT);
  const QRect unixLines = Calculated(QStringLiteral("a\na"), {0, 0, 300, 0}, DT_LEFT);
  const QRect lines = Calculated(QStringLiteral("a\r\na"), {0, 0, 300, 0}, DT_LEFT);
  EXPECT_EQ(unixLines, lines);
  EXPECT_EQ(one.width(), lines.width());
  EXPECT_GT(lines.height(), one.height());
}

TEST_F(DrawTextTest, WordsGoToTheNextLineOnlyWhenAskedTo) {
  const QString text = QStringLiteral("several words that need room");
  EXPECT_GT(Calculated(text, {0, 0, 60, 0}, DT_LEFT).width(), 60);
  EXPECT_LE(Calculated(text, {0, 0, 60, 0}, DT_WORDBREAK).width(), 60);
  EXPECT_GE(Calculated(text, {0, 0, 60, 0}, DT_WORDBREAK).height(), 2 * LineHeight());
}

TEST_F(DrawTextTest, AWordThatIsWiderWidensTheRectangle) {
  EXPECT_GT(Calculated(QStringLiteral("incomprehensibilities"), {0, 0, 20, 0}, DT_WORDBREAK).width(), 20);
}

TEST_F(DrawTextTest, OnASingleLineBreaksAreBlanks) {
  EXPECT_EQ(LineHeight(), Calculated(QStringLiteral("a\nb\nc"), {0, 0, 300, 0}, DT_SINGLELINE).height());
}

TEST_F(DrawTextTest, AnAmpersandIsAMarkUnlessItIsNoPrefix) {
  const QString text = QStringLiteral("a&b");
  EXPECT_LT(Calculated(text, {0, 0, 300, 0}, DT_LEFT).width(), Calculated(text, {0, 0, 300, 0}, DT_NOPREFIX).width());
}

TEST_F(DrawTextTest, AlignmentDoesNotMoveTheCalculatedRectangle) {
  EXPECT_EQ(Calculated(QStringLiteral("a"), {3, 4, 300, 50}, DT_LEFT),
            Calculated(QStringLiteral("a"), {3, 4, 300, 50}, DT_RIGHT | DT_SINGLELINE | DT_BOTTOM));
}

TEST_F(DrawTextTest, TextIsDrawnInTheColourOfTheFont) {
  EXPECT_NE(std::string::npos, Drawn(QStringLiteral("abc"), {0, 0, 100, 20}, DT_LEFT).find("'abc' #ff0000"));
}

TEST_F(DrawTextTest, ALineThatDoesNotFitEndsInDots) {
  const std::string log =
      Drawn(QStringLiteral("much too long for this"), {0, 0, 50, 20}, DT_SINGLELINE | DT_END_ELLIPSIS);
  EXPECT_NE(std::string::npos, log.find("\u2026'")) << log;
}

TEST_F(DrawTextTest, TheHeightOfTheTextIsAnswered) {
  QRect rect(0, 0, 300, 0);
  EXPECT_EQ(LineHeight(), DrawText(*FCanvas, QStringLiteral("a"), rect, DT_CALCRECT));
}

}  // namespace
}  // namespace kt
