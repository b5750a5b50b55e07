#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Variant.h"

#include <QDateTime>
#include <QPoint>
#include <QStringList>

#include <gtest/gtest.h>
#include <limits>
#include <type_traits>

namespace kt {
namespace {

TEST(VariantTest, ANewVariantIsUnassigned) {
  const Variant v;
  EXPECT_TRUE(VarIsEmpty(v));
  EXPECT_TRUE(VarIsClear(v));
  EXPECT_FALSE(VarIsNull(v));
  EXPECT_EQ(varEmpty, VarType(v));
}

TEST(VariantTest, NullIsNotUnassigned) {
  const Variant v = Variant::Null();
  EXPECT_TRUE(VarIsNull(v));
  EXPECT_FALSE(VarIsClear(v));
  EXPECT_FALSE(VarIsEmpty(v));
  EXPECT_EQ(varNull, VarType(v));
}

TEST(VariantTest, ClearingMakesItUnassigned) {
  Variant v = 5;
  v.Clear();
  EXPECT_TRUE(v.IsEmpty());
}

struct TTyped {
  Variant Value;
  TVarType Type;
  const char* Name;
};

class VariantTypeTest : public ::testing::TestWithParam<TTyped> {};

TEST_P(VariantTypeTest, HasItsCodeAndName) {
  EXPECT_EQ(GetParam().Type, GetParam().Value.VarType());
  EXPECT_TRUE(VarIsType(GetParam().Value, GetParam().Type));
  EXPECT_EQ(GetParam().Name, QString(VarTypeAsText(GetParam().Type)));
}

INSTANTIATE_TEST_SUITE_P(VariantTest, VariantTypeTest,
                         ::testing::Values(TTyped{Variant(), 0, "Empty"}, TTyped{Variant::Null(), 1, "Null"},
                                           TTyped{qint16{1}, 2, "Smallint"}, TTyped{1, 3, "Integer"},
                                           TTyped{1.5F, 4, "Single"}, TTyped{1.5, 5, "Double"},
                                           TTyped{Currency(1), 6, "Currency"}, TTyped{VarFromDateTime(1), 7, "Date"},
                                           TTyped{Variant::FromOleStr(QStringLiteral("a")), 8, "OleStr"},
                                           TTyped{true, 11, "Boolean"}, TTyped{qint8{1}, 16, "ShortInt"},
                                           TTyped{quint8{1}, 17, "Byte"}, TTyped{quint16{1}, 18, "Word"},
                                           TTyped{1U, 19, "LongWord"}, TTyped{qint64{1}, 20, "Int64"},
                                           TTyped{1L, 20, "Int64"}, TTyped{quint64{1}, 21, "UInt64"},
                                           TTyped{1UL, 21, "UInt64"}, TTyped{QStringLiteral("a"), 256, "String"},
                                           TTyped{"a", 256, "String"}, TTyped{u"a", 256, "String"},
                                           TTyped{'a', 256, "String"}, TTyped{u'a', 256, "String"},
                                           TTyped{QChar(u'a'), 256, "String"}, TTyped{QStringView(u"a"), 256, "String"},
                                           TTyped{QLatin1StringView("a"), 256, "String"},
                                           TTyped{Variant::FromQVariant(QPoint(1, 2)), 257, "Any"},
                                           TTyped{Variant::FromQVariant(QVariant::fromValue(1L)), 20, "Int64"},
                                           TTyped{Variant::FromQVariant(QVariant::fromValue(1UL)), 21, "UInt64"}));

TEST(VariantTest, AnUnknownCodeHasNoName) { EXPECT_EQ("Unknown", QString(VarTypeAsText(999))); }

TEST(VariantTest, APointerIsNoVariant) {
  EXPECT_FALSE((std::is_constructible_v<Variant, int*>));
  EXPECT_FALSE((std::is_constructible_v<Variant, const void*>));
}

TEST(VariantTest, OrdinalsAreIntegersAndBooleans) {
  EXPECT_TRUE(VarIsOrdinal(qint8{1}));
  EXPECT_TRUE(VarIsOrdinal(qint16{1}));
  EXPECT_TRUE(VarIsOrdinal(quint64{1}));
  EXPECT_TRUE(VarIsOrdinal(true));
  EXPECT_FALSE(VarIsOrdinal(1.0));
  EXPECT_FALSE(VarIsOrdinal("1"));
  EXPECT_FALSE(VarIsOrdinal(Variant()));
  EXPECT_FALSE(VarIsOrdinal(Variant::Null()));
  EXPECT_FALSE(VarIsOrdinal(VarFromDateTime(1)));
}

TEST(VariantTest, NumericsAreOrdinalsAndFloatsButNoDates) {
  EXPECT_TRUE(VarIsNumeric(1));
  EXPECT_TRUE(VarIsNumeric(1.5F));
  EXPECT_TRUE(VarIsNumeric(Currency(1)));
  EXPECT_TRUE(VarIsFloat(1.5));
  EXPECT_FALSE(VarIsFloat(1));
  EXPECT_FALSE(VarIsNumeric("1"));
  EXPECT_FALSE(VarIsNumeric(VarFromDateTime(1)));
}

TEST(VariantTest, BothTextTypesAreTexts) {
  EXPECT_TRUE(VarIsStr("a"));
  EXPECT_TRUE(VarIsStr(Variant::FromOleStr(QString())));
  EXPECT_FALSE(VarIsStr(1));
}

TEST(VariantTest, ValuesOfOtherTypesAreKept) {
  EXPECT_EQ(QPoint(1, 2), Variant::FromQVariant(QPoint(1, 2)).Stored().toPoint());
  EXPECT_EQ(QPoint(1, 2), Variant::FromQVariant(QPoint(1, 2)).ToQVariant().toPoint());
}

TEST(VariantTest, ToQVariantGivesTypesThatQtKnows) {
  EXPECT_EQ(QVariant(5), Variant(5).ToQVariant());
  EXPECT_EQ(QVariant(1.25), Variant(Currency(1.25)).ToQVariant());
  EXPECT_EQ(QVariant(QStringLiteral("a")), Variant::FromOleStr(QStringLiteral("a")).ToQVariant());
  EXPECT_EQ(QVariant(QDateTime(QDate(1900, 1, 1), QTime(12, 0))), VarFromDateTime(2.5).ToQVariant());
  EXPECT_FALSE(VarFromDateTime(1e300).ToQVariant().toDateTime().isValid());
}

TEST(VariantTest, AVariantFitsThePlaceholderOfTexts) {
  EXPECT_EQ("a 5 True []", Format("%s %s %s [%s]", {Variant("a"), Variant(5), Variant(true), Variant::Null()}));
}

}  // namespace
}  // namespace kt
