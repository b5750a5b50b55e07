#include "kt/vcl/graphics/LegibleColor.h"
#include "kt/vcl/graphics/QtColor.h"
#include "support/Print.h"

#include <QColor>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

const QColor kDark(35, 35, 35);

TEST(LegibleColorTest, WhatHardlyShowsOnADarkGroundGetsLighter) {
  for (const TColor color : {clPurple, clMaroon, clNavy, clBlack, TColor(0x404040)}) {
    const QColor drawn = QtColor(LegibleColor(color, kDark));
    EXPECT_GE(qGray(drawn.rgb()), qGray(kDark.rgb()) + 100) << color;
    EXPECT_LE(qGray(drawn.rgb()), qGray(kDark.rgb()) + 120) << color;
  }
}

TEST(LegibleColorTest, TheHueStays) {
  for (const TColor color : {clPurple, clMaroon, clNavy}) {
    EXPECT_NEAR(QtColor(color).hslHue(), QtColor(LegibleColor(color, kDark)).hslHue(), 2) << color;
  }
}

TEST(LegibleColorTest, WhatShowsStaysAsItIs) {
  for (const TColor color : {clWhite, clYellow, clSilver, clLime, TColor(0x996633)}) {
    EXPECT_EQ(color, LegibleColor(color, kDark));
  }
}

TEST(LegibleColorTest, OnALightGroundAllStaysAsItIs) {
  for (const TColor color : {clPurple, clBlack, clWhite, clYellow}) {
    EXPECT_EQ(color, LegibleColor(color, Qt::white));
  }
}

TEST(LegibleColorTest, ColorsThatFollowThePaletteStayAsTheyAre) {
  for (const TColor color : {clWindowText, clWindow, clGrayText, clNone, clDefault}) {
    EXPECT_EQ(color, LegibleColor(color, kDark));
  }
}

}  // namespace
}  // namespace kt::tests
