#include "kt/rtl/conversions/FormatSettings.h"
#include "rtl/conversions/LocaleGuard.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(FormatSettingsTest, TheInvariantSettingsAreIso) {
  const TFormatSettings settings;
  EXPECT_EQ(".", settings.DecimalSeparator);
  EXPECT_EQ(",", settings.ThousandSeparator);
  EXPECT_EQ("yyyy/mm/dd", settings.ShortDateFormat);
  EXPECT_EQ("-", settings.DateSeparator);
  EXPECT_EQ("hh:nn:ss", settings.LongTimeFormat);
  EXPECT_EQ("hh:nn", settings.ShortTimeFormat);
  EXPECT_EQ(":", settings.TimeSeparator);
  EXPECT_EQ("January", settings.LongMonthNames[0]);
  EXPECT_EQ("Sun", settings.ShortDayNames[0]);
  EXPECT_EQ("Saturday", settings.LongDayNames[6]);
  EXPECT_EQ(50, settings.TwoDigitYearCenturyWindow);
}

TEST(FormatSettingsTest, ALocaleBringsItsOwn) {
  const TFormatSettings german{QLocale(QLocale::German)};
  EXPECT_EQ(",", german.DecimalSeparator);
  EXPECT_EQ(".", german.ThousandSeparator);
  EXPECT_EQ("dd/mm/yyyy", german.ShortDateFormat);
  EXPECT_EQ(".", german.DateSeparator);
  EXPECT_EQ(";", german.ListSeparator);
  EXPECT_EQ(3, german.CurrencyFormat);
  EXPECT_EQ(8, german.NegCurrFormat);
  EXPECT_EQ("Montag", german.LongDayNames[1]);
}

TEST(FormatSettingsTest, ATwelveHourClockHasItsPlaceForTheHalf) {
  const TFormatSettings american{QLocale(QLocale::English, QLocale::UnitedStates)};
  EXPECT_EQ("m/d/yyyy", american.ShortDateFormat);
  EXPECT_EQ("h:nn:ss AMPM", american.LongTimeFormat);
  EXPECT_EQ("AM", american.TimeAMString);
  EXPECT_EQ("$", american.CurrencyString);
  EXPECT_EQ(0, american.CurrencyFormat);
  EXPECT_EQ("AMPM h:nn", TFormatSettings(QLocale(QLocale::Korean)).ShortTimeFormat);
}

TEST(FormatSettingsTest, TheSettingsFollowTheLocale) {
  const unsigned before = FormatLocaleGeneration();
  const TLocaleGuard guard{QLocale(QLocale::French)};
  EXPECT_EQ(QLocale::French, FormatLocale().language());
  EXPECT_EQ(",", FormatSettings().DecimalSeparator);
  EXPECT_NE(before, FormatLocaleGeneration());
}

}  // namespace
}  // namespace kt
