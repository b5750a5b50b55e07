#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TSampleAlign;
using tests::TSampleStyles;

TEST(EnumNamesTest, AnOrdinalHasItsDeclaredName) {
  EXPECT_EQ(QStringLiteral("saTop"), GetEnumName(TypeInfoOf<TSampleAlign>(), 1));
}

TEST(EnumNamesTest, AnOrdinalOutsideTheEnumerationRaises) {
  EXPECT_EQ(QStringLiteral("Range check error"),
            MessageOf<ERangeError>([] { GetEnumName(TypeInfoOf<TSampleAlign>(), 3); }));
}

TEST(EnumNamesTest, NamesAreFoundWithoutRegardToCase) {
  EXPECT_EQ(2, GetEnumValue(TypeInfoOf<TSampleAlign>(), u"SABOTTOM"));
  EXPECT_EQ(-1, GetEnumValue(TypeInfoOf<TSampleAlign>(), u"saMiddle"));
}

TEST(EnumNamesTest, ABooleanHasTwoNames) {
  EXPECT_EQ(QStringLiteral("True"), GetEnumName(TypeInfoOf<bool>(), 1));
  EXPECT_EQ(0, GetEnumValue(TypeInfoOf<bool>(), u"false"));
}

TEST(EnumNamesTest, AWideBooleanIsTrueForEveryOrdinalButZero) {
  EXPECT_EQ(QStringLiteral("True"), GetEnumName(TypeInfoOf<WordBool>(), -1));
  EXPECT_EQ(QStringLiteral("True"), GetEnumName(TypeInfoOf<WordBool>(), 7));
  EXPECT_EQ(QStringLiteral("False"), GetEnumName(TypeInfoOf<WordBool>(), 0));
}

TEST(EnumNamesTest, AWideBooleanNameIsZeroOrMinusOneAndElseANumber) {
  EXPECT_EQ(-1, GetEnumValue(TypeInfoOf<LongBool>(), u"True"));
  EXPECT_EQ(0, GetEnumValue(TypeInfoOf<LongBool>(), u"False"));
  EXPECT_EQ(12, GetEnumValue(TypeInfoOf<LongBool>(), u"12"));
  EXPECT_EQ(QStringLiteral("'maybe' is not a valid integer value"),
            MessageOf<EConvertError>([] { GetEnumValue(TypeInfoOf<LongBool>(), u"maybe"); }));
}

TEST(EnumNamesTest, AnIntegerIsItsOwnName) {
  EXPECT_EQ(QStringLiteral("-5"), GetEnumName(TypeInfoOf<int>(), -5));
  EXPECT_EQ(-5, GetEnumValue(TypeInfoOf<int>(), u"-5"));
}

TEST(EnumNamesTest, ATypeWithoutOrdinalsRaises) {
  EXPECT_EQ(QStringLiteral("Invalid property type: Double"),
            MessageOf<EPropertyConvertError>([] { GetEnumName(TypeInfoOf<double>(), 1); }));
}

TEST(EnumNamesTest, ASetListsItsMembersInDeclarationOrder) {
  const qint64 bits = TSampleStyles({tests::ssUnderline, tests::ssBold}).Bits();
  EXPECT_EQ(QStringLiteral("ssBold,ssUnderline"), SetToString(TypeInfoOf<TSampleStyles>(), bits));
  EXPECT_EQ(QStringLiteral("[ssBold,ssUnderline]"), SetToString(TypeInfoOf<TSampleStyles>(), bits, true));
  EXPECT_EQ(QStringLiteral("[]"), SetToString(TypeInfoOf<TSampleStyles>(), 0, true));
}

TEST(EnumNamesTest, ASetIsReadWithAndWithoutBracketsAndBlanks) {
  EXPECT_EQ(0b101, StringToSet(TypeInfoOf<TSampleStyles>(), u" [ssbold, ssUnderline] "));
  EXPECT_EQ(0b10, StringToSet(TypeInfoOf<TSampleStyles>(), u"ssItalic"));
  EXPECT_EQ(0, StringToSet(TypeInfoOf<TSampleStyles>(), u"[]"));
}

TEST(EnumNamesTest, AnUnknownSetMemberRaises) {
  EXPECT_EQ(QStringLiteral("Invalid property element: ssWide"),
            MessageOf<EPropertyConvertError>([] { StringToSet(TypeInfoOf<TSampleStyles>(), u"[ssBold,ssWide]"); }));
}

}  // namespace
}  // namespace kt
