#include "kt/vcl/graphics/QtColor.h"

#include <QGuiApplication>
#include <QPalette>

#include <gtest/gtest.h>

namespace kt {
namespace {

std::string Name(const QColor& color) { return color.name(QColor::HexArgb).toStdString(); }

/// Each role has a colour of its own: the number of the role in red, that of the group in blue.
QPalette Numbered() {
  QPalette palette;
  for (int role = 0; role < QPalette::NColorRoles; ++role)
    for (int group = 0; group < QPalette::NColorGroups; ++group)
      palette.setColor(static_cast<QPalette::ColorGroup>(group), static_cast<QPalette::ColorRole>(role),
                       QColor(role, 0, group));
  return palette;
}

struct TSystemColor {
  TColor Color;
  QPalette::ColorGroup Group;
  QPalette::ColorRole Role;
};

class SystemColorTest : public ::testing::TestWithParam<TSystemColor> {};

TEST_P(SystemColorTest, ComesFromItsRole) {
  EXPECT_EQ(QColor(GetParam().Role, 0, GetParam().Group), QtColor(GetParam().Color, Numbered()));
}

INSTANTIATE_TEST_SUITE_P(QtColorTest, SystemColorTest,
                         ::testing::Values(TSystemColor{clWindow, QPalette::Active, QPalette::Base},
                                           TSystemColor{clWindowText, QPalette::Active, QPalette::Text},
                                           TSystemColor{clHighlight, QPalette::Active, QPalette::Highlight},
                                           TSystemColor{clHighlightText, QPalette::Active, QPalette::HighlightedText},
                                           TSystemColor{clBtnFace, QPalette::Active, QPalette::Window},
                                           TSystemColor{clBtnText, QPalette::Active, QPalette::WindowText},
                                           TSystemColor{clBtnShadow, QPalette::Active, QPalette::Dark},
                                           TSystemColor{clBtnHighlight, QPalette::Active, QPalette::Light},
                                           TSystemColor{clGrayText, QPalette::Disabled, QPalette::Text},
                                           TSystemColor{clInactiveCaptionText, QPalette::Disabled,
                                                        QPalette::WindowText},
                                           TSystemColor{clInfoBk, QPalette::Active, QPalette::ToolTipBase},
                                           TSystemColor{clInfoText, QPalette::Active, QPalette::ToolTipText},
                                           TSystemColor{clHotLight, QPalette::Active, QPalette::Link},
                                           TSystemColor{clMenuBar, QPalette::Active, QPalette::Window},
                                           TSystemColor{clDefault, QPalette::Active, QPalette::Text}));

TEST(QtColorTest, APlainColourHasItsBytesFromRedToBlue) {
  EXPECT_EQ("#ff123456", Name(QtColor(TColor(0x563412))));
  EXPECT_EQ("#ff800080", Name(QtColor(clPurple)));
}

TEST(QtColorTest, NoColourIsTransparent) { EXPECT_EQ("#00000000", Name(QtColor(clNone))); }

TEST(QtColorTest, ASystemColourThatNobodyDefinesIsBlack) {
  EXPECT_EQ("#ff000000", Name(QtColor(static_cast<TColor>(clSystemColor | 31), Numbered())));
}

TEST(QtColorTest, TheApplicationsPaletteCountsUnlessAnotherIsGiven) {
  EXPECT_EQ(QGuiApplication::palette().color(QPalette::Active, QPalette::Base), QtColor(clWindow));
}

TEST(QtColorTest, AColourComesBackFromQt) {
  EXPECT_EQ(clPurple, ColorOf(QtColor(clPurple)));
  EXPECT_EQ(TColor(0x563412), ColorOf(QColor(0x12, 0x34, 0x56, 0x78)));
}

TEST(QtColorTest, AsRGBASystemColourIsAPlainOneAndOthersStay) {
  EXPECT_EQ(ColorOf(QGuiApplication::palette().color(QPalette::Active, QPalette::Text)), ColorToRGB(clWindowText));
  EXPECT_EQ(clRed, ColorToRGB(clRed));
  EXPECT_EQ(clNone, ColorToRGB(clNone));
}

}  // namespace
}  // namespace kt
