#include "kt/rtl/conversions/Floats.h"
#include "rtl/conversions/Caught.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace kt {
namespace {

struct TFloatReading {
  const char* Text;
  double Value;
};

class FloatsReadTest : public ::testing::TestWithParam<TFloatReading> {};

TEST_P(FloatsReadTest, GivesItsValue) {
  EXPECT_EQ(GetParam().Value, StrToFloat(QString::fromUtf8(GetParam().Text), TFormatSettings()));
}

INSTANTIATE_TEST_SUITE_P(
    FloatsTest, FloatsReadTest,
    ::testing::Values(TFloatReading{"1", 1}, TFloatReading{" -1.5 ", -1.5}, TFloatReading{"+.5", 0.5},
                      TFloatReading{"5.", 5}, TFloatReading{"1e3", 1000}, TFloatReading{"1E+3", 1000},
                      TFloatReading{"1E-3", 0.001}, TFloatReading{"0.1", 0.1}, TFloatReading{"1e-400", 0},
                      TFloatReading{"1.7976931348623157e308", 1.7976931348623157e308},
                      TFloatReading{"123456789012345678901234567890", 123456789012345678901234567890.0}));

class FloatsRejectTest : public ::testing::TestWithParam<const char*> {};

TEST_P(FloatsRejectTest, IsAnError) {
  const QString text = QString::fromUtf8(GetParam());
  EXPECT_EQ(QStringLiteral("'%1' is not a valid floating point value").arg(text),
            MessageOf<EConvertError>([&] { StrToFloat(text, TFormatSettings()); }));
}

INSTANTIATE_TEST_SUITE_P(FloatsTest, FloatsRejectTest,
                         ::testing::Values("", " ", "-", ".", "e3", "1e", "1e+", "1,5", "1,234.5", "1 2", "--1", "NAN",
                                           "INF", "0x10", "1e400", "-1e99999999999999999999", "1..2"));

TEST(FloatsTest, TheDecimalSeparatorIsTheLocales) {
  const TFormatSettings german{QLocale(QLocale::German)};
  EXPECT_EQ(1.5, StrToFloat(u"1,5", german));
  EXPECT_EQ("'1.5' is not a valid floating point value", MessageOf<EConvertError>([&] { StrToFloat(u"1.5", german); }));
}

TEST(FloatsTest, TheDefaultStandsForWhatIsNoNumber) {
  EXPECT_EQ(2.5, StrToFloatDef(u"x", 2.5));
  EXPECT_EQ(1, StrToFloatDef(u"1", 2.5));
}

TEST(FloatsTest, TryLeavesTheValueWhenItFails) {
  double value = 3;
  EXPECT_FALSE(TryStrToFloat(u"x", value));
  EXPECT_FALSE(TryStrToFloat(u"1e999", value));
  EXPECT_EQ(3, value);
}

TEST(FloatsTest, AmountsAreReadExactly) {
  const TFormatSettings settings;
  EXPECT_EQ(std::numeric_limits<qint64>::max(), StrToCurr(u"922337203685477.5807", settings).Scaled());
  EXPECT_EQ(std::numeric_limits<qint64>::min(), StrToCurr(u"-922337203685477.5808", settings).Scaled());
  EXPECT_EQ(15000, StrToCurr(u" 1.5 ", settings).Scaled());
  EXPECT_EQ(10000000, StrToCurr(u"1e3", settings).Scaled());
}

TEST(FloatsTest, TheFifthDecimalRoundsAnAmount) {
  const TFormatSettings settings;
  EXPECT_EQ(12346, StrToCurr(u"1.23455", settings).Scaled());
  EXPECT_EQ(-12346, StrToCurr(u"-1.23455", settings).Scaled());
  EXPECT_EQ(12345, StrToCurr(u"1.234549", settings).Scaled());
}

TEST(FloatsTest, WhatIsNoAmountIsAnError) {
  EXPECT_EQ("'abc' is not a valid currency value", MessageOf<EConvertError>([] { StrToCurr(u"abc"); }));
  EXPECT_EQ("'922337203685477.5808' is not a valid currency value",
            MessageOf<EConvertError>([] { StrToCurr(u"922337203685477.5808", TFormatSettings()); }));
  EXPECT_EQ("'922337203685477.58075' is not a valid currency value",
            MessageOf<EConvertError>([] { StrToCurr(u"922337203685477.58075", TFormatSettings()); }));
  EXPECT_EQ("'1e30' is not a valid currency value", MessageOf<EConvertError>([] { StrToCurr(u"1e30"); }));
  EXPECT_EQ("'1e999' is not a valid currency value", MessageOf<EConvertError>([] { StrToCurr(u"1e999"); }));
  EXPECT_EQ(7, StrToCurrDef(u"", Currency::FromScaled(7)).Scaled());
}

TEST(FloatsTest, AnAmountFromADoubleRoundsHalvesToEven) {
  EXPECT_EQ(312, Currency(0.03125).Scaled());
  EXPECT_EQ(938, Currency(0.09375).Scaled());
  EXPECT_EQ(-10000, Currency(-1.0).Scaled());
  EXPECT_EQ(1.25, Currency::FromScaled(12500).ToDouble());
  EXPECT_LT(Currency(1), Currency(2));
}

TEST(FloatsTest, AnAmountOutOfRangeIsAnError) {
  EXPECT_EQ("Range check error", MessageOf<ERangeError>([] { static_cast<void>(Currency(1e15)); }));
  EXPECT_EQ("Range check error", MessageOf<ERangeError>([] { static_cast<void>(Currency(std::nan(""))); }));
}

TEST(FloatsTest, TruthValuesHaveNumbersOrNames) {
  EXPECT_EQ("-1", BoolToStr(true));
  EXPECT_EQ("0", BoolToStr(false));
  EXPECT_EQ("True", BoolToStr(true, bnTexts));
  EXPECT_EQ("False", BoolToStr(false, bnTexts));
}

TEST(FloatsTest, TruthValuesAreReadFromBoth) {
  EXPECT_TRUE(StrToBool(u"tRUE"));
  EXPECT_FALSE(StrToBool(u"false"));
  EXPECT_TRUE(StrToBool(u"-1"));
  EXPECT_TRUE(StrToBool(u"0.5"));
  EXPECT_FALSE(StrToBool(u"0"));
}

TEST(FloatsTest, WhatIsNoTruthValueIsAnError) {
  EXPECT_EQ("'yes' is not a valid boolean value", MessageOf<EConvertError>([] { StrToBool(u"yes"); }));
  EXPECT_EQ("'' is not a valid boolean value", MessageOf<EConvertError>([] { StrToBool(u""); }));
  EXPECT_TRUE(StrToBoolDef(u"yes", true));
}

TEST(FloatsTest, TryWithAnAmountLeavesTheValueWhenItFails) {
  const TFormatSettings neutral;
  Currency value(5.5);
  EXPECT_FALSE(TryStrToCurr(u"922337203685477.5808", value, neutral));
  EXPECT_FALSE(TryStrToCurr(u"", value, neutral));
  EXPECT_FALSE(TryStrToCurr(u"$1", value, neutral));
  EXPECT_EQ(Currency(5.5), value);
  EXPECT_TRUE(TryStrToCurr(u"922337203685477.5807", value, neutral));
  EXPECT_EQ(std::numeric_limits<qint64>::max(), value.Scaled());
}

TEST(FloatsTest, TryWithATruthValueLeavesTheValueWhenItFails) {
  bool value = true;
  EXPECT_FALSE(TryStrToBool(u"yes", value));
  EXPECT_FALSE(TryStrToBool(u"", value));
  EXPECT_TRUE(value);
  EXPECT_TRUE(TryStrToBool(u"false", value));
  EXPECT_FALSE(value);
  EXPECT_FALSE(TryStrToBool(u"no", value));
  EXPECT_FALSE(value);
  EXPECT_TRUE(TryStrToBool(u"-2", value));
  EXPECT_TRUE(value);
}

/// The first of many random numbers whose 15 digits, read back and written again, are another text.
QString FirstUnstableNumber(const TFormatSettings& settings) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 20000; ++i) {
    const double value =
        std::ldexp(static_cast<double>(static_cast<qint64>(random())), static_cast<int>(random() % 200) - 150);
    const QString text = FloatToStr(value, settings);
    if (FloatToStr(StrToFloat(text, settings), settings) != text) return text;
  }
  return QString();
}

TEST(FloatsTest, AnyNumberReadBackIsTheSameText) {
  EXPECT_EQ(QString(), FirstUnstableNumber(TFormatSettings()));
  EXPECT_EQ(QString(), FirstUnstableNumber(TFormatSettings(QLocale(QLocale::French))));
}

/// The first of many random amounts that its text does not give back.
qint64 FirstLostAmount() {
  std::mt19937_64 random(8);
  for (int i = 0; i < 20000; ++i) {
    const Currency value = Currency::FromScaled(static_cast<qint64>(random()) >> (random() % 63));
    if (StrToCurr(CurrToStr(value)) != value) return value.Scaled();
  }
  return 0;
}

TEST(FloatsTest, AnyAmountComesBack) { EXPECT_EQ(0, FirstLostAmount()); }

}  // namespace
}  // namespace kt
