#include "kt/rtl/conversions/FloatText.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace kt {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

struct TWriting {
  double Value;
  const char* Text;
};

class FloatTextGeneralTest : public ::testing::TestWithParam<TWriting> {};

TEST_P(FloatTextGeneralTest, IsTheShortestText) {
  EXPECT_EQ(GetParam().Text, FloatToStr(GetParam().Value, TFormatSettings()));
}

INSTANTIATE_TEST_SUITE_P(FloatTextTest, FloatTextGeneralTest,
                         ::testing::Values(TWriting{0, "0"}, TWriting{-0.0, "0"}, TWriting{1, "1"},
                                           TWriting{-1.5, "-1.5"}, TWriting{0.1, "0.1"}, TWriting{0.1 + 0.2, "0.3"},
                                           TWriting{100, "100"}, TWriting{123456789012345, "123456789012345"},
                                           TWriting{1234567890123456, "1.23456789012346E15"}, TWriting{1e15, "1E15"},
                                           TWriting{1e14, "100000000000000"}, TWriting{1e20, "1E20"},
                                           TWriting{-2.5e-10, "-2.5E-10"}, TWriting{0.0001, "0.0001"},
                                           TWriting{0.00001, "0.00001"}, TWriting{0.000001, "1E-6"},
                                           TWriting{1.7976931348623157e308, "1.79769313486232E308"},
                                           TWriting{5e-324, "4.94065645841247E-324"}, TWriting{Infinity, "INF"},
                                           TWriting{-Infinity, "-INF"}, TWriting{std::nan(""), "NAN"}));

TEST(FloatTextTest, TheDecimalSeparatorIsTheLocales) {
  EXPECT_EQ("1,5", FloatToStr(1.5, TFormatSettings(QLocale(QLocale::German))));
}

TEST(FloatTextTest, ExponentKeepsAllItsDigitsAndASign) {
  const TFormatSettings settings;
  EXPECT_EQ("1.000E+02", FloatToStrF(100, ffExponent, 4, 2, settings));
  EXPECT_EQ("-1E-3", FloatToStrF(-0.001, ffExponent, 1, 0, settings));
  EXPECT_EQ("0.00E+0000", FloatToStrF(0, ffExponent, 3, 4, settings));
}

TEST(FloatTextTest, FixedHasTheDecimalsAskedFor) {
  const TFormatSettings settings;
  EXPECT_EQ("3.00", FloatToStrF(3, ffFixed, 15, 2, settings));
  EXPECT_EQ("3", FloatToStrF(3.4, ffFixed, 15, 0, settings));
  EXPECT_EQ("0.50", FloatToStrF(0.5, ffFixed, 15, 2, settings));
  EXPECT_EQ("0.00", FloatToStrF(0.004, ffFixed, 15, 2, settings));
}

TEST(FloatTextTest, RoundingCarriesToANewFirstDigit) {
  const TFormatSettings settings;
  EXPECT_EQ("10.00", FloatToStrF(9.996, ffFixed, 3, 2, settings));
  EXPECT_EQ("1.0", FloatToStrF(0.96, ffFixed, 15, 1, settings));
  EXPECT_EQ("1", FloatToStrF(0.5, ffFixed, 15, 0, settings));
  EXPECT_EQ("1,000,000.0", FloatToStrF(999999.96, ffNumber, 15, 1, settings));
}

TEST(FloatTextTest, MoreDigitsThanThePrecisionMakeItScientific) {
  EXPECT_EQ("1E20", FloatToStrF(1e20, ffFixed, 15, 2, TFormatSettings()));
  EXPECT_EQ("-1.23E5", FloatToStrF(-123456, ffNumber, 3, 2, TFormatSettings()));
}

TEST(FloatTextTest, NumbersAreGroupedByThousands) {
  const TFormatSettings settings;
  EXPECT_EQ("999", FloatToStrF(999, ffNumber, 15, 0, settings));
  EXPECT_EQ("1,000", FloatToStrF(1000, ffNumber, 15, 0, settings));
  EXPECT_EQ("-12,345,678.9", FloatToStrF(-12345678.9, ffNumber, 15, 1, settings));
}

struct TMoney {
  int Format;
  const char* Text;
};

class FloatTextPositiveMoneyTest : public ::testing::TestWithParam<TMoney> {};

TEST_P(FloatTextPositiveMoneyTest, PutsTheSignWhereToldTo) {
  TFormatSettings settings;
  settings.CurrencyString = QStringLiteral("$");
  settings.CurrencyFormat = GetParam().Format;
  EXPECT_EQ(GetParam().Text, FloatToStrF(1.1, ffCurrency, 15, 2, settings));
}

INSTANTIATE_TEST_SUITE_P(FloatTextTest, FloatTextPositiveMoneyTest,
                         ::testing::Values(TMoney{0, "$1.10"}, TMoney{1, "1.10$"}, TMoney{2, "$ 1.10"},
                                           TMoney{3, "1.10 $"}));

class FloatTextNegativeMoneyTest : public ::testing::TestWithParam<TMoney> {};

TEST_P(FloatTextNegativeMoneyTest, PutsSignAndMinusWhereToldTo) {
  TFormatSettings settings;
  settings.CurrencyString = QStringLiteral("$");
  settings.NegCurrFormat = GetParam().Format;
  EXPECT_EQ(GetParam().Text, FloatToStrF(Currency(-1.1), ffCurrency, 2, settings));
}

INSTANTIATE_TEST_SUITE_P(FloatTextTest, FloatTextNegativeMoneyTest,
                         ::testing::Values(TMoney{0, "($1.10)"}, TMoney{1, "-$1.10"}, TMoney{2, "$-1.10"},
                                           TMoney{3, "$1.10-"}, TMoney{4, "(1.10$)"}, TMoney{5, "-1.10$"},
                                           TMoney{6, "1.10-$"}, TMoney{7, "1.10$-"}, TMoney{8, "-1.10 $"},
                                           TMoney{9, "-$ 1.10"}, TMoney{10, "1.10 $-"}, TMoney{11, "$ 1.10-"},
                                           TMoney{12, "$ -1.10"}, TMoney{13, "1.10- $"}, TMoney{14, "($ 1.10)"},
                                           TMoney{15, "(1.10 $)"}));

TEST(FloatTextTest, AmountsAreWrittenExactly) {
  const TFormatSettings settings;
  EXPECT_EQ("922337203685477.5807", CurrToStr(Currency::FromScaled(std::numeric_limits<qint64>::max()), settings));
  EXPECT_EQ("-922337203685477.5808", CurrToStr(Currency::FromScaled(std::numeric_limits<qint64>::min()), settings));
  EXPECT_EQ("0.0001", CurrToStr(Currency::FromScaled(1), settings));
  EXPECT_EQ("0", CurrToStr(Currency(), settings));
}

}  // namespace
}  // namespace kt
