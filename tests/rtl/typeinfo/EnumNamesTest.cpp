#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <gtest/gtest.h>
#include <limits>

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

/// Calls the ordinals from 100 on by their number.
class TOpenEnumTypeInfo : public TEnumTypeInfo {
 public:
  TOpenEnumTypeInfo() : TEnumTypeInfo(QStringLiteral("TOpen"), {QStringLiteral("opOne"), QStringLiteral("opTwo")}) {}
  QString NameOfUnnamed(qint64 ordinal) const override { return ordinal >= 100 ? QString::number(ordinal) : QString(); }
  qint64 OrdinalOfUnnamed(QStringView name) const override { return name.toLongLong() >= 100 ? name.toLongLong() : -1; }
};

TEST(EnumNamesTest, ATypeMadeAtRunTimeNamesOrdinalsBesideThoseWithNames) {
  const TOpenEnumTypeInfo type;
  EXPECT_EQ(QStringLiteral("opTwo 105"), GetEnumName(&type, 1) + u' ' + GetEnumName(&type, 105));
  EXPECT_EQ(105, GetEnumValue(&type, u"105"));
  EXPECT_EQ(-1, GetEnumValue(&type, u"99"));
  EXPECT_EQ(QStringLiteral("Range check error"), MessageOf<ERangeError>([&] { GetEnumName(&type, 99); }));
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

/// A set of an enumeration with the members m0, m1 and so on.
struct TMadeSet {
  explicit TMadeSet(int count) : Component(QStringLiteral("TMember"), NamesOf(count)) {}

  static QStringList NamesOf(int count) {
    QStringList names;
    for (int i = 0; i < count; ++i) names.append(u'm' + QString::number(i));
    return names;
  }

  const TEnumTypeInfo Component;
  const TSetTypeInfo Type{QStringLiteral("TMembers"), &Component};
};

TEST(EnumNamesTest, AWideSetListsItsMembersFrom32On) {
  const TMadeSet set(64);
  const qint64 bits = Q_INT64_C(1) << 31 | Q_INT64_C(1) << 32 | Q_INT64_C(1) << 40;
  EXPECT_EQ(QStringLiteral("m31,m32,m40"), SetToString(&set.Type, bits));
  EXPECT_EQ(QStringLiteral("[m63]"), SetToString(&set.Type, std::numeric_limits<qint64>::min(), true));
}

TEST(EnumNamesTest, AWideSetIsReadWithItsMembersFrom32On) {
  const TMadeSet set(64);
  EXPECT_EQ(Q_INT64_C(1) << 31 | Q_INT64_C(1) << 32 | Q_INT64_C(1) << 40, StringToSet(&set.Type, u"[m31,m32,m40]"));
  EXPECT_EQ(std::numeric_limits<qint64>::min(), StringToSet(&set.Type, u"m63"));
}

TEST(EnumNamesTest, ASetHasRoomFor64Members) {
  const TMadeSet set(65);
  EXPECT_EQ(QStringLiteral("Invalid property element: m64"),
            MessageOf<EPropertyConvertError>([&set] { StringToSet(&set.Type, u"m64"); }));
}

TEST(EnumNamesTest, AnOrdinarySetHas32BitsHoweverFewItsMembersAre) {
  const TMadeSet set(3);
  EXPECT_EQ(QStringLiteral("m0"), SetToString(&set.Type, Q_INT64_C(1) << 32 | 1));
  EXPECT_EQ(QStringLiteral("Range check error"),
            MessageOf<ERangeError>([&set] { SetToString(&set.Type, Q_INT64_C(1) << 31); }));
}

TEST(EnumNamesTest, ASetOfNumbersIsAsWideAsItsRange) {
  const TOrdTypeInfo narrow(tkInteger, QStringLiteral("TDigit"), otUByte, 0, 9);
  const TOrdTypeInfo wide(tkInteger, QStringLiteral("TMinute"), otUByte, 0, 59);
  const TSetTypeInfo digits(QStringLiteral("TDigits"), &narrow);
  const TSetTypeInfo minutes(QStringLiteral("TMinutes"), &wide);
  EXPECT_EQ(Q_INT64_C(1) << 59 | 1, StringToSet(&minutes, u"[0,59]"));
  EXPECT_EQ(QStringLiteral("Invalid property element: 60"),
            MessageOf<EPropertyConvertError>([&minutes] { StringToSet(&minutes, u"60"); }));
  EXPECT_EQ(QStringLiteral("Invalid property element: 32"),
            MessageOf<EPropertyConvertError>([&digits] { StringToSet(&digits, u"32"); }));
}

TEST(EnumNamesTest, AnUnknownSetMemberRaises) {
  EXPECT_EQ(QStringLiteral("Invalid property element: ssWide"),
            MessageOf<EPropertyConvertError>([] { StringToSet(TypeInfoOf<TSampleStyles>(), u"[ssBold,ssWide]"); }));
}

}  // namespace
}  // namespace kt
