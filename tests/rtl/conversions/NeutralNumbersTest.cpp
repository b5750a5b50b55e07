#include "kt/rtl/conversions/NeutralNumbers.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace kt {
namespace {

double ReadDouble(const char* text) {
  double value = -12345;
  return TryNeutralToDouble(text, value) ? value : -12345;
}

TEST(NeutralNumbersTest, TheTextIsTheShortestThatReadsBack) {
  EXPECT_EQ("0.1", DoubleToNeutral(0.1));
  EXPECT_EQ("-1", DoubleToNeutral(-1));
  EXPECT_EQ("0.30000000000000004", DoubleToNeutral(0.1 + 0.2));
  EXPECT_EQ("1e+300", DoubleToNeutral(1e300));
}

TEST(NeutralNumbersTest, NothingMayFollowANumber) {
  EXPECT_EQ(-12345, ReadDouble("1 "));
  EXPECT_EQ(-12345, ReadDouble(""));
  EXPECT_EQ(-12345, ReadDouble("1,5"));
  EXPECT_EQ(-12345, ReadDouble("+1"));
}

TEST(NeutralNumbersTest, TooLargeIsNoNumberAndTooSmallIsZero) {
  EXPECT_EQ(-12345, ReadDouble("1e400"));
  EXPECT_EQ(-12345, ReadDouble("1e+99999999999999999999"));
  EXPECT_EQ(0, ReadDouble("1e-400"));
  EXPECT_EQ(0, ReadDouble("1e-99999999999999999999"));
  EXPECT_TRUE(std::signbit(ReadDouble("-1e-400")));
}

TEST(NeutralNumbersTest, SpecialValuesHaveNames) {
  EXPECT_EQ("inf", DoubleToNeutral(std::numeric_limits<double>::infinity()));
  EXPECT_EQ(-std::numeric_limits<double>::infinity(), ReadDouble("-inf"));
  EXPECT_TRUE(std::isnan(ReadDouble("nan")));
}

TEST(NeutralNumbersTest, LongDoublesKeepEveryDigit) {
  const long double value = std::numeric_limits<long double>::max();
  long double back = 0;
  EXPECT_TRUE(TryNeutralToLongDouble(LongDoubleToNeutral(value), back));
  EXPECT_EQ(value, back);
  EXPECT_TRUE(TryNeutralToLongDouble(LongDoubleToNeutral(0.1L), back));
  EXPECT_EQ(0.1L, back);
}

/// How many of many random bit patterns are not given back by their text.
int LostPatterns() {
  std::mt19937_64 random(9);
  int lost = 0;
  for (int i = 0; i < 50000; ++i) {
    const quint64 bits = random();
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    double back = 0;
    const bool isRead = TryNeutralToDouble(DoubleToNeutral(value), back);
    lost += isRead && (back == value || (std::isnan(back) && std::isnan(value))) ? 0 : 1;
  }
  return lost;
}

TEST(NeutralNumbersTest, AnyDoubleComesBack) { EXPECT_EQ(0, LostPatterns()); }

}  // namespace
}  // namespace kt
