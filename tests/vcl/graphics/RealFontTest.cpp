#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Font.h"
#include "kt/vcl/graphics/RealFont.h"

#include <QFontInfo>
#include <QGuiApplication>

#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace kt {
namespace {

class RealFontTest : public ::testing::Test {
 protected:
  std::unique_ptr<TFont> FFont = Make<TFont>();
};

TEST_F(RealFontTest, ANegativeHeightIsThePixelSize) {
  FFont->SetHeight(-17);
  EXPECT_EQ(17, QtFont(*FFont).pixelSize());
}

TEST_F(RealFontTest, APositiveHeightIsThatOfALine) {
  FFont->SetHeight(30);
  EXPECT_LT(QtFont(*FFont).pixelSize(), 30);
  EXPECT_LE(std::abs(TRealFont::Of(*FFont)->Height() - 30), 1);
}

TEST_F(RealFontTest, NoHeightIsThatOfANewFont) {
  FFont->SetHeight(0);
  EXPECT_EQ(11, QtFont(*FFont).pixelSize());
}

TEST_F(RealFontTest, AbsurdHeightsAreCut) {
  FFont->SetHeight(std::numeric_limits<int>::min());
  EXPECT_EQ(16384, QtFont(*FFont).pixelSize());
}

TEST_F(RealFontTest, StylesAreTakenOver) {
  FFont->SetStyle({fsBold, fsUnderline});
  EXPECT_TRUE(QtFont(*FFont).bold());
  EXPECT_TRUE(QtFont(*FFont).underline());
  EXPECT_FALSE(QtFont(*FFont).italic());
  EXPECT_FALSE(QtFont(*FFont).strikeOut());
  FFont->SetStyle({fsItalic, fsStrikeOut});
  EXPECT_FALSE(QtFont(*FFont).bold());
  EXPECT_FALSE(QtFont(*FFont).underline());
  EXPECT_TRUE(QtFont(*FFont).italic());
  EXPECT_TRUE(QtFont(*FFont).strikeOut());
}

TEST_F(RealFontTest, TheFaceIsTakenOver) {
  FFont->SetName(QStringLiteral("DejaVu Sans Mono"));
  EXPECT_EQ("DejaVu Sans Mono", QFontInfo(QtFont(*FFont)).family().toStdString());
}

TEST_F(RealFontTest, AFaceThatIsMissingIsReplacedByTheApplications) {
  FFont->SetName(QStringLiteral("No Such Face"));
  EXPECT_EQ(QFontInfo(QGuiApplication::font()).family(), QFontInfo(QtFont(*FFont)).family());
}

TEST_F(RealFontTest, FontsOfOneLookAreOneRealFont) {
  const auto other = Make<TFont>();
  other->SetHeight(-12);
  other->SetHeight(-11);
  EXPECT_NE(&other->Data(), &FFont->Data());
  EXPECT_EQ(TRealFont::Of(*other), TRealFont::Of(*FFont));
}

TEST_F(RealFontTest, TheColourDoesNotCount) {
  const auto before = TRealFont::Of(*FFont);
  FFont->SetColor(clRed);
  EXPECT_EQ(before, TRealFont::Of(*FFont));
}

TEST_F(RealFontTest, AChangeIsNoticed) {
  const auto before = TRealFont::Of(*FFont);
  FFont->SetHeight(-24);
  EXPECT_NE(before, TRealFont::Of(*FFont));
  EXPECT_EQ(24, QtFont(*FFont).pixelSize());
}

TEST_F(RealFontTest, ATextIsPreparedOnce) {
  const auto real = TRealFont::Of(*FFont);
  const TPreparedText& first = real->Prepared(QStringLiteral("once"));
  EXPECT_EQ(&first, &real->Prepared(QStringLiteral("once")));
  EXPECT_EQ(real->Metrics().horizontalAdvance(QStringLiteral("once")), first.Width);
}

TEST_F(RealFontTest, ALongTextIsNotKeptAndStillMeasured) {
  const QString text(100000, u'x');
  EXPECT_EQ(TRealFont::Of(*FFont)->Metrics().horizontalAdvance(text), TRealFont::Of(*FFont)->Prepared(text).Width);
}

TEST_F(RealFontTest, ControlCharactersAreBlanks) {
  EXPECT_EQ(QStringLiteral("a b c d"), TRealFont::Of(*FFont)->Prepared(QStringLiteral("a\nb\tc\u2028d")).Text.text());
}

TEST_F(RealFontTest, MoreFontsThanAreKeptStillWork) {
  std::vector<int> sizes;
  for (int size = 1; size <= 200; ++size) {
    FFont->SetHeight(-size);
    sizes.push_back(QtFont(*FFont).pixelSize());
  }
  EXPECT_EQ(1, sizes.front());
  EXPECT_EQ(200, sizes.back());
}

}  // namespace
}  // namespace kt
