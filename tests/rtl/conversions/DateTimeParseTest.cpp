#include "kt/rtl/conversions/DateTimeFormat.h"
#include "kt/rtl/conversions/DateTimeParse.h"
#include "rtl/conversions/Caught.h"

#include <gtest/gtest.h>
#include <random>

namespace kt {
namespace {

TFormatSettings German() { return TFormatSettings(QLocale(QLocale::German)); }
TFormatSettings American() { return TFormatSettings(QLocale(QLocale::English, QLocale::UnitedStates)); }

TEST(DateTimeParseTest, TheOrderOfADateIsTheLocales) {
  EXPECT_EQ(EncodeDate(2006, 2, 5), StrToDate(u"2006-02-05", TFormatSettings()));
  EXPECT_EQ(EncodeDate(2006, 2, 5), StrToDate(u"5.2.2006", German()));
  EXPECT_EQ(EncodeDate(2006, 2, 5), StrToDate(u"2/5/2006", American()));
}

TEST(DateTimeParseTest, BlanksAroundTheNumbersDoNotMatter) {
  EXPECT_EQ(EncodeDate(2006, 2, 5), StrToDate(u" 5 . 2 . 2006 . ", German()));
}

TEST(DateTimeParseTest, TwoNumbersAreDayAndMonthOfThisYear) {
  const int year = DecodeDate(Date()).Year;
  EXPECT_EQ(EncodeDate(year, 2, 5), StrToDate(u"5.2", German()));
  EXPECT_EQ(EncodeDate(year, 2, 5), StrToDate(u"2/5", American()));
  EXPECT_EQ(EncodeDate(year, 2, 5), StrToDate(u"02-05", TFormatSettings()));
}

TEST(DateTimeParseTest, AShortYearFallsIntoTheWindowOfACentury) {
  const int year = DecodeDate(Date()).Year;
  const int oldest = year - 50;
  const int youngest = year + 49;
  EXPECT_EQ(EncodeDate(oldest, 1, 1),
            StrToDate(QStringLiteral("1.1.%1").arg(oldest % 100, 2, 10, QChar(u'0')), German()));
  EXPECT_EQ(EncodeDate(youngest, 1, 1),
            StrToDate(QStringLiteral("1.1.%1").arg(youngest % 100, 2, 10, QChar(u'0')), German()));
}

TEST(DateTimeParseTest, WithoutAWindowAShortYearIsInThisCentury) {
  TFormatSettings settings = German();
  settings.TwoDigitYearCenturyWindow = 0;
  const int century = DecodeDate(Date()).Year / 100 * 100;
  EXPECT_EQ(EncodeDate(century + 99, 1, 1), StrToDate(u"1.1.99", settings));
  EXPECT_EQ(EncodeDate(century + 6, 1, 1), StrToDate(u"1.1.6", settings));
}

TEST(DateTimeParseTest, FourDigitsAreTheYearItself) {
  EXPECT_EQ(EncodeDate(6, 1, 1), StrToDate(u"1.1.0006", German()));
}

class DateTimeParseNoDateTest : public ::testing::TestWithParam<const char*> {};

TEST_P(DateTimeParseNoDateTest, IsAnError) {
  const QString text = QString::fromUtf8(GetParam());
  EXPECT_EQ(QStringLiteral("'%1' is not a valid date").arg(text),
            MessageOf<EConvertError>([&] { StrToDate(text, German()); }));
}

INSTANTIATE_TEST_SUITE_P(DateTimeParseTest, DateTimeParseNoDateTest,
                         ::testing::Values("", " ", "5", "5.", "5.2.", "29.2.2006", "32.1.2006", "1.13.2006",
                                           "0.1.2006", "1.1.10000", "1.1.0000", "5/2/2006", "5.2.2006 x", "x",
                                           "1.1.99999999999", "-1.1.2006", "5.2.2006 10:00"));

TEST(DateTimeParseTest, ATimeMayStopEarly) {
  const TFormatSettings settings;
  EXPECT_EQ(EncodeTime(7, 0, 0, 0), StrToTime(u"7", settings));
  EXPECT_EQ(EncodeTime(7, 8, 0, 0), StrToTime(u"7:8", settings));
  EXPECT_EQ(EncodeTime(7, 8, 9, 0), StrToTime(u" 07 : 08 : 09 ", settings));
  EXPECT_EQ(EncodeTime(7, 8, 9, 10), StrToTime(u"7:08:09.010", settings));
}

TEST(DateTimeParseTest, HalvesOfTheDayStandOnEitherSide) {
  EXPECT_EQ(EncodeTime(19, 0, 0, 0), StrToTime(u"7 pm", American()));
  EXPECT_EQ(EncodeTime(7, 30, 0, 0), StrToTime(u"AM 7:30", American()));
  EXPECT_EQ(EncodeTime(0, 15, 0, 0), StrToTime(u"12:15am", American()));
  EXPECT_EQ(EncodeTime(12, 15, 0, 0), StrToTime(u"12:15 PM", American()));
}

class DateTimeParseNoTimeTest : public ::testing::TestWithParam<const char*> {};

TEST_P(DateTimeParseNoTimeTest, IsAnError) {
  const QString text = QString::fromUtf8(GetParam());
  EXPECT_EQ(QStringLiteral("'%1' is not a valid time").arg(text),
            MessageOf<EConvertError>([&] { StrToTime(text, American()); }));
}

INSTANTIATE_TEST_SUITE_P(DateTimeParseTest, DateTimeParseNoTimeTest,
                         ::testing::Values("", " ", "24:00", "7:60", "7:00:60", "7:", "7:00:", "7:00:00.", "13 pm",
                                           "0 am", "7 xm", "am", "7.30", "7:00:00.1000", "am 7 pm"));

TEST(DateTimeParseTest, ADateAndTimeMayBeEitherAlone) {
  EXPECT_EQ(EncodeDate(2006, 2, 5) + 0.5, StrToDateTime(u" 5.2.2006  12:00 ", German()));
  EXPECT_EQ(EncodeDate(2006, 2, 5), StrToDateTime(u"5.2.2006", German()));
  EXPECT_EQ(0.5, StrToDateTime(u"12:00", German()));
}

TEST(DateTimeParseTest, TheTimeOfAnEarlyDateCountsForward) {
  EXPECT_EQ(-1.25, StrToDateTime(u"29.12.1899 6:00", German()));
}

TEST(DateTimeParseTest, TheFirstDayHasTimesToo) {
  const TDateTime moment = StrToDateTime(u"1.1.0001 6:30", German());
  EXPECT_LT(moment, MinDateTime);
  EXPECT_EQ("0001-01-01 06:30", FormatDateTime(u"yyyy'-'mm'-'dd hh':'nn", moment, German()).toStdString());
}

TEST(DateTimeParseTest, WhatIsNoDateAndTimeIsAnError) {
  EXPECT_EQ("'5.2.2006 25:00' is not a valid date and time",
            MessageOf<EConvertError>([] { StrToDateTime(u"5.2.2006 25:00", German()); }));
  EXPECT_EQ("'' is not a valid date and time", MessageOf<EConvertError>([] { StrToDateTime(u""); }));
  EXPECT_EQ("'x' is not a valid date and time", MessageOf<EConvertError>([] { StrToDateTime(u"x"); }));
}

TEST(DateTimeParseTest, TheDefaultStandsForWhatIsNoMoment) {
  EXPECT_EQ(7, StrToDateDef(u"x", 7));
  EXPECT_EQ(7, StrToTimeDef(u"x", 7));
  EXPECT_EQ(7, StrToDateTimeDef(u"x", 7));
  EXPECT_EQ(0.5, StrToTimeDef(u"12:00", 7, TFormatSettings()));
}

TEST(DateTimeParseTest, TryLeavesTheValueWhenItFails) {
  TDateTime value = 3;
  EXPECT_FALSE(TryStrToDate(u"x", value));
  EXPECT_FALSE(TryStrToTime(u"x", value));
  EXPECT_FALSE(TryStrToDateTime(u"x", value));
  EXPECT_EQ(3, value);
}

class DateTimeParseLocaleTest : public ::testing::TestWithParam<const char*> {
 protected:
  /// The first of many random moments (whole seconds) that its text does not give back.
  static QString FirstLostMoment(const TFormatSettings& settings) {
    std::mt19937 random(10);
    for (int i = 0; i < 2000; ++i) {
      const int day = static_cast<int>(random() % 3652059) - 693593;
      const TDateTime value = TimeStampToDateTime({day, static_cast<int>(random() % 86400) * 1000});
      const QString text = DateTimeToStr(value, settings);
      if (StrToDateTimeDef(text, 1e9, settings) != value) return text;
    }
    return QString();
  }
};

TEST_P(DateTimeParseLocaleTest, AnyMomentComesBack) {
  EXPECT_EQ(QString(), FirstLostMoment(TFormatSettings(QLocale(QString::fromUtf8(GetParam())))));
}

INSTANTIATE_TEST_SUITE_P(DateTimeParseTest, DateTimeParseLocaleTest,
                         ::testing::Values("C", "en_US", "en_GB", "de_DE", "fr_FR", "fr_CA", "es_ES", "it_IT", "hu_HU",
                                           "cs_CZ", "bg_BG", "fi_FI", "sv_SE", "ru_RU", "ja_JP", "zh_CN", "zh_TW",
                                           "ko_KR", "ar_EG", "fa_IR", "he_IL", "hi_IN", "th_TH", "tr_TR", "lt_LT"));

/// How many of all locales have settings in which a moment is not given back by its text.
QStringList LocalesThatLoseMoments() {
  QStringList result;
  const TDateTime moment = EncodeDate(2006, 2, 5) + EncodeTime(15, 4, 7, 0);
  const auto locales = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  for (const QLocale& locale : locales) {
    const TFormatSettings settings(locale);
    if (StrToDateTimeDef(DateTimeToStr(moment, settings), 0, settings) != moment)
      result += locale.name() + u' ' + DateTimeToStr(moment, settings);
  }
  return result;
}

TEST(DateTimeParseTest, EveryLocaleReadsItsOwnTexts) {
  EXPECT_EQ(QString(), LocalesThatLoseMoments().join(QStringLiteral("; ")));
}

}  // namespace
}  // namespace kt
