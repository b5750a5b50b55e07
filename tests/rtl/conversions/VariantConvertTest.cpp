#include "kt/rtl/conversions/Variant.h"
#include "rtl/conversions/Caught.h"
#include "rtl/conversions/LocaleGuard.h"

#include <QPoint>
#include <QStringList>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace kt {
namespace {

constexpr qint64 LeastInt64 = std::numeric_limits<qint64>::min();
constexpr qint64 GreatestInt64 = std::numeric_limits<qint64>::max();
constexpr quint64 MaxUInt64 = std::numeric_limits<quint64>::max();

QString CastError(const Variant& v, TVarType type) {
  return MessageOf<EVariantTypeCastError>([&] { v.AsType(type); });
}

QString OverflowError(const Variant& v, TVarType type) {
  return MessageOf<EVariantOverflowError>([&] { v.AsType(type); });
}

struct TToText {
  Variant Value;
  const char* Text;
};

class VariantConvertTextTest : public ::testing::TestWithParam<TToText> {};

TEST_P(VariantConvertTextTest, IsItsText) { EXPECT_EQ(GetParam().Text, VarToStr(GetParam().Value)); }

INSTANTIATE_TEST_SUITE_P(
    VariantConvertTest, VariantConvertTextTest,
    ::testing::Values(TToText{Variant(), ""}, TToText{Variant::Null(), ""}, TToText{true, "True"},
                      TToText{false, "False"}, TToText{qint8{-128}, "-128"}, TToText{quint8{255}, "255"},
                      TToText{qint16{-32768}, "-32768"}, TToText{quint16{65535}, "65535"}, TToText{-5, "-5"},
                      TToText{4294967295U, "4294967295"}, TToText{LeastInt64, "-9223372036854775808"},
                      TToText{MaxUInt64, "18446744073709551615"}, TToText{0.1F, "0.1"}, TToText{0.1, "0.1"},
                      TToText{1e20, "1E20"}, TToText{Currency::FromScaled(12345), "1.2345"},
                      TToText{VarFromDateTime(2.5), "1900-01-01 12:00:00"}, TToText{VarFromDateTime(2), "1900-01-01"},
                      TToText{"abc", "abc"}, TToText{Variant::FromOleStr(QStringLiteral("abc")), "abc"},
                      TToText{Variant::FromQVariant(QByteArray("abc")), "abc"}));

TEST(VariantConvertTest, NullHasNoTextExceptThroughVarToStr) {
  EXPECT_EQ("Could not convert variant of type (Null) into type (String)", CastError(Variant::Null(), varString));
  EXPECT_EQ("none", VarToStrDef(Variant::Null(), QStringLiteral("none")));
  EXPECT_EQ("5", VarToStrDef(5, QStringLiteral("none")));
}

TEST(VariantConvertTest, NumbersFollowTheLocale) {
  const TLocaleGuard guard{QLocale(QLocale::German)};
  EXPECT_EQ("1,5", VarToStr(1.5));
  EXPECT_EQ(1.5, Variant("1,5").ToDouble());
  EXPECT_EQ("01.01.1900", VarToStr(VarFromDateTime(2)));
  EXPECT_EQ("Could not convert variant of type (String) into type (Double)", CastError("1.5", varDouble));
}

struct TToInteger {
  Variant Value;
  qint64 Integer;
};

class VariantConvertIntegerTest : public ::testing::TestWithParam<TToInteger> {};

TEST_P(VariantConvertIntegerTest, IsItsInteger) { EXPECT_EQ(GetParam().Integer, GetParam().Value.ToInt64()); }

INSTANTIATE_TEST_SUITE_P(
    VariantConvertTest, VariantConvertIntegerTest,
    ::testing::Values(TToInteger{Variant(), 0}, TToInteger{true, -1}, TToInteger{false, 0}, TToInteger{2.5, 2},
                      TToInteger{3.5, 4}, TToInteger{-2.5, -2}, TToInteger{-0.5, 0}, TToInteger{2.4999, 2},
                      TToInteger{Currency(2.5), 2}, TToInteger{Currency(3.5), 4}, TToInteger{Currency(-2.5), -2},
                      TToInteger{Currency(-2.5001), -3}, TToInteger{Currency(-1), -1}, TToInteger{"5", 5},
                      TToInteger{" 5 ", 5}, TToInteger{"2.5", 2}, TToInteger{"3.5", 4}, TToInteger{"$1F", 31},
                      TToInteger{"1e3", 1000}, TToInteger{"9223372036854775807", GreatestInt64},
                      TToInteger{VarFromDateTime(2.75), 3}, TToInteger{quint64{7}, 7},
                      TToInteger{4294967295U, 4294967295}, TToInteger{LeastInt64, LeastInt64},
                      TToInteger{-0x1p63, LeastInt64}, TToInteger{Variant::FromOleStr(QStringLiteral("8")), 8}));

class VariantConvertNoNumberTest : public ::testing::TestWithParam<const char*> {};

TEST_P(VariantConvertNoNumberTest, IsAnError) {
  const Variant v = GetParam();
  EXPECT_EQ("Could not convert variant of type (String) into type (Integer)", CastError(v, varInteger));
  EXPECT_EQ("Could not convert variant of type (String) into type (Double)", CastError(v, varDouble));
  EXPECT_EQ("Could not convert variant of type (String) into type (Currency)", CastError(v, varCurrency));
  EXPECT_EQ("Could not convert variant of type (String) into type (Date)", CastError(v, varDate));
  EXPECT_EQ("Could not convert variant of type (String) into type (Boolean)", CastError(v, varBoolean));
}

INSTANTIATE_TEST_SUITE_P(VariantConvertTest, VariantConvertNoNumberTest,
                         ::testing::Values("", "abc", "1x", "1e999", "-"));

TEST(VariantConvertTest, NullConvertsToNothing) {
  EXPECT_EQ("Could not convert variant of type (Null) into type (Integer)", CastError(Variant::Null(), varInteger));
  EXPECT_EQ("Could not convert variant of type (Null) into type (Double)", CastError(Variant::Null(), varDouble));
  EXPECT_EQ("Could not convert variant of type (Null) into type (Boolean)", CastError(Variant::Null(), varBoolean));
  EXPECT_EQ("Could not convert variant of type (Null) into type (Date)", CastError(Variant::Null(), varDate));
}

struct TTooLarge {
  Variant Value;
  TVarType Target;
  const char* Message;
};

class VariantConvertOverflowTest : public ::testing::TestWithParam<TTooLarge> {};

TEST_P(VariantConvertOverflowTest, IsAnError) {
  EXPECT_EQ(QStringLiteral("Overflow while converting variant of type ") + GetParam().Message,
            OverflowError(GetParam().Value, GetParam().Target));
}

INSTANTIATE_TEST_SUITE_P(VariantConvertTest, VariantConvertOverflowTest,
                         ::testing::Values(TTooLarge{128, varShortInt, "(Integer) into type (ShortInt)"},
                                           TTooLarge{-129, varShortInt, "(Integer) into type (ShortInt)"},
                                           TTooLarge{256, varByte, "(Integer) into type (Byte)"},
                                           TTooLarge{-1, varByte, "(Integer) into type (Byte)"},
                                           TTooLarge{32768, varSmallint, "(Integer) into type (Smallint)"},
                                           TTooLarge{65536, varWord, "(Integer) into type (Word)"},
                                           TTooLarge{2147483648U, varInteger, "(LongWord) into type (Integer)"},
                                           TTooLarge{-1, varLongWord, "(Integer) into type (LongWord)"},
                                           TTooLarge{0x1p63, varInt64, "(Double) into type (Int64)"},
                                           TTooLarge{MaxUInt64, varInt64, "(UInt64) into type (Int64)"},
                                           TTooLarge{-1, varUInt64, "(Integer) into type (UInt64)"},
                                           TTooLarge{0x1p64, varUInt64, "(Double) into type (UInt64)"},
                                           TTooLarge{std::nan(""), varInt64, "(Double) into type (Int64)"},
                                           TTooLarge{INFINITY, varInteger, "(Single) into type (Integer)"},
                                           TTooLarge{"99999999999", varInteger, "(String) into type (Integer)"},
                                           TTooLarge{1e300, varSingle, "(Double) into type (Single)"},
                                           TTooLarge{1e15, varCurrency, "(Double) into type (Currency)"},
                                           TTooLarge{GreatestInt64, varCurrency, "(Int64) into type (Currency)"}));

TEST(VariantConvertTest, TheBoundsOfEachWidthFit) {
  EXPECT_EQ(varShortInt, Variant(-128).AsType(varShortInt).VarType());
  EXPECT_EQ(127, Variant(127).AsType(varShortInt).ToInt());
  EXPECT_EQ(255, Variant(255).AsType(varByte).ToInt());
  EXPECT_EQ(-32768, Variant(-32768).AsType(varSmallint).ToInt());
  EXPECT_EQ(65535, Variant(65535).AsType(varWord).ToInt());
  EXPECT_EQ(4294967295, Variant(qint64{4294967295}).AsType(varLongWord).ToInt64());
  EXPECT_EQ(-2147483647 - 1, Variant(qint64{-2147483648}).ToInt());
  EXPECT_EQ(MaxUInt64, Variant("18446744073709551615").ToUInt64());
  EXPECT_EQ(quint64{1} << 63, Variant(0x1p63).ToUInt64());
}

TEST(VariantConvertTest, TrueIsMinusOneAndInUnsignedTypesEveryBit) {
  EXPECT_EQ(-1, Variant(true).ToInt());
  EXPECT_EQ(-1.0, Variant(true).ToDouble());
  EXPECT_EQ(255, Variant(true).AsType(varByte).ToInt());
  EXPECT_EQ(MaxUInt64, Variant(true).ToUInt64());
}

TEST(VariantConvertTest, ATruthValueComesFromNumbersNamesAndTruthValues) {
  EXPECT_TRUE(Variant("True").ToBool());
  EXPECT_FALSE(Variant("FALSE").ToBool());
  EXPECT_TRUE(Variant("-1").ToBool());
  EXPECT_FALSE(Variant("0").ToBool());
  EXPECT_TRUE(Variant(0.25).ToBool());
  EXPECT_FALSE(Variant(0).ToBool());
  EXPECT_FALSE(Variant().ToBool());
  EXPECT_TRUE(Variant(true).ToBool());
}

TEST(VariantConvertTest, ADateComesFromItsTextAndFromNumbers) {
  EXPECT_EQ(2.5, Variant("1900-01-01 12:00").ToDateTime());
  EXPECT_EQ(0.5, Variant("12:00").ToDateTime());
  EXPECT_EQ(2.5, Variant("2.5").ToDateTime());
  EXPECT_EQ(2.5, VarToDateTime(2.5));
  EXPECT_EQ(2.5, VarFromDateTime(2.5).ToDouble());
  EXPECT_EQ(varDate, Variant(2).AsType(varDate).VarType());
}

TEST(VariantConvertTest, AnAmountIsExactFromTextsIntegersAndAmounts) {
  EXPECT_EQ(GreatestInt64, Variant("922337203685477.5807").ToCurrency().Scaled());
  EXPECT_EQ(9223372036854770000, Variant(qint64{922337203685477}).ToCurrency().Scaled());
  EXPECT_EQ(12345, Variant(Currency::FromScaled(12345)).ToCurrency().Scaled());
  EXPECT_EQ(15000, Variant(1.5).ToCurrency().Scaled());
}

TEST(VariantConvertTest, CastingToTheSameTypeKeepsTheValue) { EXPECT_EQ("a", VarAsType("a", varString).ToString()); }

TEST(VariantConvertTest, CastingToTheEmptyStatesClears) {
  EXPECT_TRUE(Variant(5).AsType(varEmpty).IsEmpty());
  EXPECT_TRUE(Variant(5).AsType(varNull).IsNull());
}

TEST(VariantConvertTest, CastingBetweenTheTextTypesKeepsTheText) {
  EXPECT_EQ(varOleStr, Variant("a").AsType(varOleStr).VarType());
  EXPECT_EQ("a", Variant("a").AsType(varOleStr).AsType(varString).ToString());
}

TEST(VariantConvertTest, WhatQtCannotConvertIsAnError) {
  const Variant point = Variant::FromQVariant(QPoint(1, 2));
  EXPECT_EQ("Could not convert variant of type (Any) into type (String)", CastError(point, varString));
  EXPECT_EQ("Could not convert variant of type (Any) into type (Double)", CastError(point, varDouble));
  EXPECT_EQ("Could not convert variant of type (Integer) into type (Any)", CastError(5, varAny));
  EXPECT_EQ(5.0, Variant::FromQVariant(QByteArray("5")).ToDouble());
}

}  // namespace
}  // namespace kt
