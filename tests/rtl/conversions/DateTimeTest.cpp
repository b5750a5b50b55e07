#include "kt/rtl/conversions/DateTime.h"
#include "rtl/conversions/Caught.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace kt {
namespace {

QString DateError(TDateTime value) {
  return MessageOf<EConvertError>([&] { DecodeDate(value); });
}

QString PartsOf(TDateTime value) {
  const TDateParts date = DecodeDate(value);
  const TTimeParts time = DecodeTime(value);
  return QStringLiteral("%1-%2-%3 %4:%5:%6.%7")
      .arg(date.Year)
      .arg(date.Month)
      .arg(date.Day)
      .arg(time.Hour)
      .arg(time.Min)
      .arg(time.Sec)
      .arg(time.MSec);
}

TEST(DateTimeTest, DaysCountFromThirtyDecember1899) {
  EXPECT_EQ(0, EncodeDate(1899, 12, 30));
  EXPECT_EQ(2, EncodeDate(1900, 1, 1));
  EXPECT_EQ(-1, EncodeDate(1899, 12, 29));
  EXPECT_EQ(25569, EncodeDate(1970, 1, 1));
  EXPECT_EQ(36526, EncodeDate(2000, 1, 1));
}

TEST(DateTimeTest, DatesReachFromYearOneTo9999) {
  EXPECT_EQ(-693593, EncodeDate(1, 1, 1));
  EXPECT_EQ(2958465, EncodeDate(9999, 12, 31));
  EXPECT_EQ("1-1-1 0:0:0.0", PartsOf(-693593));
  EXPECT_EQ("9999-12-31 23:59:59.0", PartsOf(2958465 + EncodeTime(23, 59, 59, 0)));
}

TEST(DateTimeTest, TheFractionCountsForwardBeforeDayZeroToo) {
  EXPECT_EQ("1899-12-29 6:0:0.0", PartsOf(-1.25));
  EXPECT_EQ("1899-12-30 6:0:0.0", PartsOf(-0.25));
  EXPECT_EQ("1899-12-31 6:0:0.0", PartsOf(1.25));
}

TEST(DateTimeTest, LessThanHalfAMillisecondToMidnightIsTheNextDay) {
  EXPECT_EQ("2000-1-2 0:0:0.0", PartsOf(36526.999999999));
  EXPECT_EQ("1899-12-30 0:0:0.0", PartsOf(-1.9999999999));
}

TEST(DateTimeTest, EveryFourthYearIsALeapYearExceptMostCenturies) {
  EXPECT_TRUE(IsLeapYear(2004));
  EXPECT_TRUE(IsLeapYear(2000));
  EXPECT_FALSE(IsLeapYear(1900));
  EXPECT_FALSE(IsLeapYear(2006));
}

class DateTimeNoDateTest : public ::testing::TestWithParam<TDateParts> {};

TEST_P(DateTimeNoDateTest, IsAnError) {
  const TDateParts parts = GetParam();
  EXPECT_EQ("Invalid argument to date encode",
            MessageOf<EConvertError>([&] { EncodeDate(parts.Year, parts.Month, parts.Day); }));
}

INSTANTIATE_TEST_SUITE_P(DateTimeTest, DateTimeNoDateTest,
                         ::testing::Values(TDateParts{2006, 2, 29}, TDateParts{2006, 0, 1}, TDateParts{2006, 13, 1},
                                           TDateParts{2006, 1, 0}, TDateParts{2006, 4, 31}, TDateParts{0, 1, 1},
                                           TDateParts{-1, 1, 1}, TDateParts{10000, 1, 1}, TDateParts{1900, 2, 29}));

TEST(DateTimeTest, TheTwentyNinthOfFebruaryExistsInLeapYears) {
  EXPECT_EQ("2004-2-29 0:0:0.0", PartsOf(EncodeDate(2004, 2, 29)));
}

TEST(DateTimeTest, ATimeIsAFractionOfADay) {
  EXPECT_EQ(0, EncodeTime(0, 0, 0, 0));
  EXPECT_EQ(0.5, EncodeTime(12, 0, 0, 0));
  EXPECT_EQ("1899-12-30 23:59:59.999", PartsOf(EncodeTime(23, 59, 59, 999)));
}

class DateTimeNoTimeTest : public ::testing::TestWithParam<TTimeParts> {};

TEST_P(DateTimeNoTimeTest, IsAnError) {
  const TTimeParts parts = GetParam();
  EXPECT_EQ("Invalid argument to time encode",
            MessageOf<EConvertError>([&] { EncodeTime(parts.Hour, parts.Min, parts.Sec, parts.MSec); }));
}

INSTANTIATE_TEST_SUITE_P(DateTimeTest, DateTimeNoTimeTest,
                         ::testing::Values(TTimeParts{24, 0, 0, 0}, TTimeParts{0, 60, 0, 0}, TTimeParts{0, 0, 60, 0},
                                           TTimeParts{0, 0, 0, 1000}, TTimeParts{-1, 0, 0, 0}));

TEST(DateTimeTest, TryLeavesTheValueWhenItFails) {
  TDateTime value = 5;
  EXPECT_FALSE(TryEncodeDate(2006, 2, 30, value));
  EXPECT_FALSE(TryEncodeTime(25, 0, 0, 0, value));
  EXPECT_EQ(5, value);
}

class DateTimeExtremeTest : public ::testing::TestWithParam<double> {};

TEST_P(DateTimeExtremeTest, IsAnErrorInsteadOfADate) {
  EXPECT_EQ("Invalid argument to date encode", DateError(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(DateTimeTest, DateTimeExtremeTest,
                         ::testing::Values(std::nan(""), std::numeric_limits<double>::infinity(),
                                           -std::numeric_limits<double>::infinity(), 1e300, -1e300, 2958466.0,
                                           -693594.0, 2958465.9999999999));

TEST(DateTimeTest, SundayIsTheFirstDayOfTheWeek) {
  EXPECT_EQ(1, DayOfWeek(EncodeDate(2006, 1, 1)));
  EXPECT_EQ(7, DayOfWeek(EncodeDate(2005, 12, 31)));
  EXPECT_EQ(7, DayOfWeek(0));
}

TEST(DateTimeTest, AMomentFallsApartIntoDateAndTime) {
  EXPECT_EQ(-2, DateOf(-2.75));
  EXPECT_EQ(0.75, TimeOf(-2.75));
  EXPECT_EQ(-2.75, ComposeDateTime(-2, 0.75));
}

TEST(DateTimeTest, AMomentFallsApartIntoSingleNumbersToo) {
  const TDateTime value = EncodeDate(2006, 7, 8) + EncodeTime(13, 14, 15, 16);
  int year = 0;
  int month = 0;
  int day = 0;
  DecodeDate(value, year, month, day);
  EXPECT_EQ("2006-7-8", QStringLiteral("%1-%2-%3").arg(year).arg(month).arg(day));
  int hour = 0;
  int minute = 0;
  int second = 0;
  int msec = 0;
  DecodeTime(value, hour, minute, second, msec);
  EXPECT_EQ("13:14:15.16", QStringLiteral("%1:%2:%3.%4").arg(hour).arg(minute).arg(second).arg(msec));
}

TEST(DateTimeTest, ReplacingTheDateKeepsTheTime) {
  TDateTime value = 100.25;
  ReplaceDate(value, -3.5);
  EXPECT_EQ(-3.25, value);
}

TEST(DateTimeTest, ReplacingTheTimeKeepsTheDate) {
  TDateTime value = -3.25;
  ReplaceTime(value, 100.5);
  EXPECT_EQ(-3.5, value);
}

TEST(DateTimeTest, DaysAreAddedAcrossDayZero) {
  EXPECT_EQ(1.25, IncDay(-1.25, 2));
  EXPECT_EQ(-1.25, IncDay(1.25, -2));
  EXPECT_EQ("Invalid argument to date encode",
            MessageOf<EConvertError>([] { IncDay(0, std::numeric_limits<int>::max()); }));
}

TEST(DateTimeTest, AMonthTooShortGivesItsLastDay) {
  EXPECT_EQ(EncodeDate(2006, 2, 28), IncMonth(EncodeDate(2006, 1, 31)));
  EXPECT_EQ(EncodeDate(2004, 2, 29), IncMonth(EncodeDate(2004, 3, 31), -1));
  EXPECT_EQ(EncodeDate(2007, 1, 15) + 0.5, IncMonth(EncodeDate(2006, 12, 15) + 0.5));
}

TEST(DateTimeTest, MonthsBeyondTheRangeAreAnError) {
  EXPECT_EQ("Invalid argument to date encode", MessageOf<EConvertError>([] { IncMonth(EncodeDate(9999, 12, 1)); }));
  EXPECT_EQ("Invalid argument to date encode",
            MessageOf<EConvertError>([] { IncMonth(0, std::numeric_limits<int>::min()); }));
}

TEST(DateTimeTest, NowLiesBetweenDateAndTomorrow) {
  const TDateTime date = Date();
  const TDateTime now = Now();
  EXPECT_LE(date, now);
  EXPECT_LT(now, date + 2);
  EXPECT_LT(Time(), 1);
}

}  // namespace
}  // namespace kt
