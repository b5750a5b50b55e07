#include "kt/rtl/conversions/Integers.h"
#include "rtl/conversions/Caught.h"

#include <gtest/gtest.h>
#include <limits>

namespace kt {
namespace {

constexpr int MinInt = std::numeric_limits<int>::min();
constexpr int MaxInt = std::numeric_limits<int>::max();
constexpr qint64 MinInt64 = std::numeric_limits<qint64>::min();
constexpr qint64 MaxInt64 = std::numeric_limits<qint64>::max();

TEST(IntegersTest, AnIntegerIsWrittenInDecimal) {
  EXPECT_EQ("0", IntToStr(0));
  EXPECT_EQ("-9223372036854775808", IntToStr(MinInt64));
  EXPECT_EQ("18446744073709551615", IntToStr(std::numeric_limits<quint64>::max()));
}

TEST(IntegersTest, HexadecimalHasAtLeastTheDigitsAskedFor) {
  EXPECT_EQ("00FF", IntToHex(255, 4));
  EXPECT_EQ("12345", IntToHex(0x12345, 2));
  EXPECT_EQ("0", IntToHex(0, 0));
}

TEST(IntegersTest, ANegativeNumberShowsItsBits) {
  EXPECT_EQ("FFFFFFFF", IntToHex(-1, 4));
  EXPECT_EQ("FFFFFFFFFFFFFFFF", IntToHex(qint64{-1}, 4));
}

struct TReading {
  const char* Text;
  int Value;
};

class IntegersReadTest : public ::testing::TestWithParam<TReading> {};

TEST_P(IntegersReadTest, GivesItsValue) { EXPECT_EQ(GetParam().Value, StrToInt(QString::fromUtf8(GetParam().Text))); }

INSTANTIATE_TEST_SUITE_P(IntegersTest, IntegersReadTest,
                         ::testing::Values(TReading{"0", 0}, TReading{"007", 7}, TReading{"  -5", -5},
                                           TReading{"+5", 5}, TReading{"2147483647", MaxInt},
                                           TReading{"-2147483648", MinInt}, TReading{"$10", 16}, TReading{"0x1f", 31},
                                           TReading{"0X1F", 31}, TReading{"x10", 16}, TReading{"-$10", -16},
                                           TReading{"$FFFFFFFF", -1}, TReading{"$80000000", MinInt}));

class IntegersRejectTest : public ::testing::TestWithParam<const char*> {};

TEST_P(IntegersRejectTest, IsAnError) {
  const QString text = QString::fromUtf8(GetParam());
  EXPECT_EQ(QStringLiteral("'%1' is not a valid integer value").arg(text),
            MessageOf<EConvertError>([&] { StrToInt(text); }));
}

INSTANTIATE_TEST_SUITE_P(IntegersTest, IntegersRejectTest,
                         ::testing::Values("", " ", "-", "+", "$", "0x", "1 ", "1.0", "1e3", "abc", "--1", "- 1", "12a",
                                           "\t1", "2147483648", "-2147483649", "$100000000", "\xd9\xa1"));

TEST(IntegersTest, SixtyFourBitsHaveTheirOwnBounds) {
  EXPECT_EQ(MaxInt64, StrToInt64(u"9223372036854775807"));
  EXPECT_EQ(MinInt64, StrToInt64(u"-9223372036854775808"));
  EXPECT_EQ(-1, StrToInt64(u"$FFFFFFFFFFFFFFFF"));
  EXPECT_EQ(qint64{0xffffffff}, StrToInt64(u"$FFFFFFFF"));
}

TEST(IntegersTest, BeyondSixtyFourBitsIsAnError) {
  EXPECT_EQ("'9223372036854775808' is not a valid integer value",
            MessageOf<EConvertError>([] { StrToInt64(u"9223372036854775808"); }));
  EXPECT_EQ("'99999999999999999999999' is not a valid integer value",
            MessageOf<EConvertError>([] { StrToInt64(u"99999999999999999999999"); }));
}

TEST(IntegersTest, TheDefaultStandsForWhatIsNoNumber) {
  EXPECT_EQ(7, StrToIntDef(u"x", 7));
  EXPECT_EQ(1, StrToIntDef(u"1", 7));
  EXPECT_EQ(7, StrToInt64Def(u"", 7));
  EXPECT_EQ(MaxInt64, StrToInt64Def(u"9223372036854775807", 7));
}

TEST(IntegersTest, TryLeavesTheValueWhenItFails) {
  int value = 5;
  EXPECT_FALSE(TryStrToInt(u"a", value));
  EXPECT_EQ(5, value);
  EXPECT_TRUE(TryStrToInt(u"-3", value));
  EXPECT_EQ(-3, value);
}

TEST(IntegersTest, TryWithSixtyFourBitsLeavesTheValueWhenItFails) {
  qint64 value = 5;
  EXPECT_FALSE(TryStrToInt64(u"9223372036854775808", value));
  EXPECT_FALSE(TryStrToInt64(u"", value));
  EXPECT_FALSE(TryStrToInt64(u"1x", value));
  EXPECT_EQ(5, value);
  EXPECT_TRUE(TryStrToInt64(u"-9223372036854775808", value));
  EXPECT_EQ(MinInt64, value);
}

TEST(IntegersTest, UnsignedNumbersHaveNoMinus) {
  quint64 value = 5;
  EXPECT_TRUE(TryStrToUInt64(u"18446744073709551615", value));
  EXPECT_EQ(std::numeric_limits<quint64>::max(), value);
  EXPECT_FALSE(TryStrToUInt64(u"18446744073709551616", value));
  EXPECT_FALSE(TryStrToUInt64(u"-1", value));
}

}  // namespace
}  // namespace kt
