#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/menus/ShortCut.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

struct TNamedShortCut {
  TShortCut Value;
  const char* Name;

  friend void PrintTo(const TNamedShortCut& shortCut, std::ostream* out) { *out << shortCut.Name; }
};

class ShortCutNamesTest : public testing::TestWithParam<TNamedShortCut> {};

TEST_P(ShortCutNamesTest, HasAName) { EXPECT_EQ(ShortCutToText(GetParam().Value), GetParam().Name); }

TEST_P(ShortCutNamesTest, IsFoundByItsName) {
  EXPECT_EQ(TextToShortCut(QLatin1String(GetParam().Name)), GetParam().Value);
}

// The numbers are those of form files.
INSTANTIATE_TEST_SUITE_P(ShortCutTest, ShortCutNamesTest,
                         testing::Values(TNamedShortCut{16451, "Ctrl+C"}, TNamedShortCut{45, "Ins"},
                                         TNamedShortCut{16429, "Ctrl+Ins"}, TNamedShortCut{46, "Del"},
                                         TNamedShortCut{112, "F1"}, TNamedShortCut{24699, "Shift+Ctrl+F12"},
                                         TNamedShortCut{32781, "Alt+Enter"}, TNamedShortCut{16422, "Ctrl+Up"},
                                         TNamedShortCut{8, "BkSp"}, TNamedShortCut{16433, "Ctrl+1"}));

TEST(ShortCutTest, IsAKeyWithWhatIsHeld) {
  EXPECT_EQ(ShortCut('C', {ssCtrl}), 16451);
  EXPECT_EQ(ShortCut(VK_F1 + 11, {ssShift, ssCtrl}), 24699);
  EXPECT_EQ(ShortCut(VK_RETURN, {ssAlt}), 32781);
}

TEST(ShortCutTest, MouseButtonsDoNotCount) { EXPECT_EQ(ShortCut('C', {ssCtrl, ssLeft}), 16451); }

TEST(ShortCutTest, AKeyThatDoesNotFitIsNone) { EXPECT_EQ(ShortCut(256, {}), scNone); }

TEST(ShortCutTest, KeysWithoutANameHaveNoText) {
  EXPECT_EQ(ShortCutToText(scNone), "");
  EXPECT_EQ(ShortCutToText(scCtrl | 1), "");
}

TEST(ShortCutTest, TheCaseAndTheOrderOfANameDoNotMatter) {
  EXPECT_EQ(TextToShortCut(QStringLiteral("ctrl+SHIFT+f12")), 24699);
}

TEST(ShortCutTest, WhatIsNoNameIsNone) {
  EXPECT_EQ(TextToShortCut(QStringLiteral("Ctrl+Nothing")), scNone);
  EXPECT_EQ(TextToShortCut(QString()), scNone);
}

}  // namespace
}  // namespace kt
