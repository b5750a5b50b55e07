#include "kt/rtl/conversions/Variant.h"
#include "rtl/conversions/Caught.h"

#include <QPoint>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace kt {
namespace {

struct TCompared {
  Variant A;
  Variant B;
  TVariantRelationship Relation;
};

class VariantCompareRelationTest : public ::testing::TestWithParam<TCompared> {};

TEST_P(VariantCompareRelationTest, IsAsExpected) {
  EXPECT_EQ(GetParam().Relation, VarCompareValue(GetParam().A, GetParam().B));
  EXPECT_EQ(GetParam().Relation == vrEqual, VarSameValue(GetParam().A, GetParam().B));
  EXPECT_EQ(GetParam().Relation == vrEqual, GetParam().A == GetParam().B);
}

INSTANTIATE_TEST_SUITE_P(
    EmptyStates, VariantCompareRelationTest,
    ::testing::Values(TCompared{Variant(), Variant(), vrEqual}, TCompared{Variant::Null(), Variant::Null(), vrEqual},
                      TCompared{Variant(), Variant::Null(), vrNotEqual}, TCompared{Variant(), 0, vrNotEqual},
                      TCompared{"", Variant(), vrNotEqual}, TCompared{Variant::Null(), 0, vrNotEqual},
                      TCompared{false, Variant::Null(), vrNotEqual}, TCompared{"abc", Variant::Null(), vrNotEqual}));

INSTANTIATE_TEST_SUITE_P(Texts, VariantCompareRelationTest,
                         ::testing::Values(TCompared{"a", "a", vrEqual}, TCompared{"A", "a", vrLessThan},
                                           TCompared{"b", "a", vrGreaterThan}, TCompared{"10", "9", vrLessThan},
                                           TCompared{"1", "1.0", vrLessThan},
                                           TCompared{Variant::FromOleStr(QStringLiteral("a")), "a", vrEqual}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, VariantCompareRelationTest,
    ::testing::Values(TCompared{1, 1.0, vrEqual}, TCompared{1, qint64{2}, vrLessThan},
                      TCompared{"10", 9, vrGreaterThan}, TCompared{1, "1.0", vrEqual}, TCompared{2.5, "2.5", vrEqual},
                      TCompared{-1, std::numeric_limits<quint64>::max(), vrLessThan},
                      TCompared{std::numeric_limits<quint64>::max(), -1, vrGreaterThan},
                      TCompared{quint64{5}, 5, vrEqual}, TCompared{5U, 6U, vrLessThan},
                      TCompared{std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::max() - 1,
                                vrGreaterThan},
                      TCompared{std::numeric_limits<qint64>::max(), 0x1p63, vrLessThan},
                      TCompared{quint64{1} << 63, 0x1p63, vrEqual}, TCompared{Currency(1.5), 1.5, vrEqual},
                      TCompared{Currency(0.1), 0.1, vrEqual}, TCompared{Currency(1), 1, vrEqual},
                      TCompared{Currency(1.0001), 1, vrGreaterThan}, TCompared{quint64{2}, Currency(1), vrGreaterThan},
                      TCompared{Currency(1), Currency(2), vrLessThan}, TCompared{0.5F, 0.5, vrEqual},
                      TCompared{NAN, NAN, vrNotEqual}, TCompared{NAN, 1, vrNotEqual}));

INSTANTIATE_TEST_SUITE_P(TruthValuesAndDates, VariantCompareRelationTest,
                         ::testing::Values(TCompared{true, true, vrEqual}, TCompared{false, true, vrLessThan},
                                           TCompared{true, -1, vrEqual}, TCompared{true, 1, vrLessThan},
                                           TCompared{"True", true, vrEqual}, TCompared{false, "0", vrEqual},
                                           TCompared{VarFromDateTime(2), VarFromDateTime(3), vrLessThan},
                                           TCompared{VarFromDateTime(2.5), 2.5, vrEqual},
                                           TCompared{VarFromDateTime(2), "1900-01-01", vrEqual}));

INSTANTIATE_TEST_SUITE_P(
    OtherTypes, VariantCompareRelationTest,
    ::testing::Values(
        TCompared{Variant::FromQVariant(QPoint(1, 2)), Variant::FromQVariant(QPoint(1, 2)), vrEqual},
        TCompared{Variant::FromQVariant(QPoint(1, 2)), Variant::FromQVariant(QPoint(3, 4)), vrNotEqual},
        TCompared{Variant::FromQVariant(QPoint(1, 2)), 1, vrNotEqual},
        TCompared{Variant::FromQVariant(QByteArray("a")), Variant::FromQVariant(QByteArray("b")), vrLessThan},
        TCompared{Variant::FromQVariant(QByteArray("b")), Variant::FromQVariant(QByteArray("a")), vrGreaterThan}));

TEST(VariantCompareTest, ATextThatIsNoNumberCannotBeComparedWithOne) {
  EXPECT_EQ("Could not convert variant of type (String) into type (Double)",
            MessageOf<EVariantTypeCastError>([] { VarCompareValue("abc", 5); }));
  EXPECT_EQ("Could not convert variant of type (String) into type (Boolean)",
            MessageOf<EVariantTypeCastError>([] { VarSameValue(true, "yes"); }));
  EXPECT_EQ("Could not convert variant of type (OleStr) into type (Double)",
            MessageOf<EVariantTypeCastError>([] { VarSameValue(1, Variant::FromOleStr(QStringLiteral("x"))); }));
}

TEST(VariantCompareTest, TheEmptyStatesComeBeforeEveryValue) {
  EXPECT_LT(Variant(), Variant::Null());
  EXPECT_LT(Variant(), Variant(-5));
  EXPECT_LT(Variant::Null(), Variant(-5));
  EXPECT_FALSE(Variant::Null() < Variant());
  EXPECT_FALSE(Variant() < Variant());
  EXPECT_LT(Variant(1), Variant("2"));
  EXPECT_FALSE(Variant(2) < Variant(2));
}

}  // namespace
}  // namespace kt
