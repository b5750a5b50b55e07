#include "kt/rtl/conversions/DateTimeFormat.h"
#include "rtl/conversions/Caught.h"

#include <cmath>
#include <gtest/gtest.h>

namespace kt {
namespace {

/// Sunday, 5 February 2006, 15:04:07.008.
TDateTime Moment() { return EncodeDate(2006, 2, 5) + EncodeTime(15, 4, 7, 8); }

struct TPictured {
  const char* Mask;
  const char* Text;
};

class DateTimeFormatPictureTest : public ::testing::TestWithParam<TPictured> {};

TEST_P(DateTimeFormatPictureTest, IsFilledIn) {
  EXPECT_EQ(GetParam().Text, FormatDateTime(QString::fromUtf8(GetParam().Mask), Moment(), TFormatSettings()));
}

INSTANTIATE_TEST_SUITE_P(
    DateTimeFormatTest, DateTimeFormatPictureTest,
    ::testing::Values(TPictured{"", "2006-02-05 15:04:07"}, TPictured{"c", "2006-02-05 15:04:07"}, TPictured{"d", "5"},
                      TPictured{"dd", "05"}, TPictured{"ddd", "Sun"}, TPictured{"dddd", "Sunday"},
                      TPictured{"ddddd", "2006-02-05"}, TPictured{"m", "2"}, TPictured{"mm", "02"},
                      TPictured{"mmm", "Feb"}, TPictured{"mmmm", "February"}, TPictured{"y", "06"},
                      TPictured{"yy", "06"}, TPictured{"yyyy", "2006"}, TPictured{"h", "15"}, TPictured{"hh", "15"},
                      TPictured{"n", "4"}, TPictured{"nn", "04"}, TPictured{"s", "7"}, TPictured{"ss", "07"},
                      TPictured{"z", "8"}, TPictured{"zzz", "008"}, TPictured{"t", "15:04"},
                      TPictured{"tt", "15:04:07"}, TPictured{"h:mm", "15:04"}, TPictured{"hh 'h' mm", "15 h 04"},
                      TPictured{"m h m m", "2 15 4 2"}, TPictured{"h:nn am/pm", "3:04 pm"},
                      TPictured{"hh:nn AM/PM", "03:04 PM"}, TPictured{"h a/p", "3 p"}, TPictured{"h ampm", "3 PM"},
                      TPictured{"yyyy/mm/dd", "2006-02-05"}, TPictured{"YYYY.MM.DD HH.NN", "2006.02.05 15.04"},
                      TPictured{"'day' d", "day 5"}, TPictured{"\"it's\" d", "it's 5"}, TPictured{"d 'open", "5 open"},
                      TPictured{"'am/pm' h", "am/pm 15"}));

TEST(DateTimeFormatTest, TwelveHourClocksCallMidnightAndNoonTwelve) {
  EXPECT_EQ("12:00 am", FormatDateTime(u"h:nn am/pm", 1, TFormatSettings()));
  EXPECT_EQ("12:00 pm", FormatDateTime(u"h:nn am/pm", 1.5, TFormatSettings()));
}

TEST(DateTimeFormatTest, MidnightHasNoTimePart) {
  EXPECT_EQ("2006-02-05", DateTimeToStr(EncodeDate(2006, 2, 5), TFormatSettings()));
  EXPECT_EQ("1899-12-29 06:00:00", DateTimeToStr(-1.25, TFormatSettings()));
}

TEST(DateTimeFormatTest, DateAndTimeHaveTheirOwnTexts) {
  EXPECT_EQ("2006-02-05", DateToStr(Moment(), TFormatSettings()));
  EXPECT_EQ("15:04:07", TimeToStr(Moment(), TFormatSettings()));
}

TEST(DateTimeFormatTest, TextsAreTheLocales) {
  const TFormatSettings german{QLocale(QLocale::German)};
  EXPECT_EQ("05.02.2006 15:04:07", DateTimeToStr(Moment(), german));
  EXPECT_EQ("Sonntag, Februar", FormatDateTime(u"dddd, mmmm", Moment(), german));
  const TFormatSettings american{QLocale(QLocale::English, QLocale::UnitedStates)};
  EXPECT_EQ("2/5/2006 3:04:07 PM", DateTimeToStr(Moment(), american));
  EXPECT_EQ("Sunday, February 5, 2006", FormatDateTime(u"dddddd", Moment(), american));
}

TEST(DateTimeFormatTest, APictureThatNamesItselfEnds) {
  TFormatSettings settings;
  settings.ShortDateFormat = QStringLiteral("yyyy ddddd c");
  EXPECT_EQ("2006 2006 2006   ", DateToStr(EncodeDate(2006, 2, 5), settings).left(17));
}

TEST(DateTimeFormatTest, WhatIsNoMomentIsAnError) {
  EXPECT_EQ("Invalid argument to date encode", MessageOf<EConvertError>([] { DateToStr(std::nan("")); }));
  EXPECT_EQ("Invalid argument to date encode", MessageOf<EConvertError>([] { DateTimeToStr(1e300); }));
}

}  // namespace
}  // namespace kt
