#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;

TEST(TypeInfoTest, ATypeOfAKindThatSaysNothingMoreIsFine) {
  const TTypeInfo text(tkLString, QStringLiteral("TText"));
  EXPECT_NO_THROW(CheckTypeInfo(&text));
}

TEST(TypeInfoTest, NamesOfComponentsAndOfFilesAreTextsOfTheirOwnTypes) {
  EXPECT_EQ(QStringLiteral("TComponentName"), GetPropInfo(TComponent::Class(), u"Name")->PropType()->Name());
  EXPECT_EQ(QStringLiteral("TFileName"), TypeInfos::FileName()->Name());
  EXPECT_EQ(tkLString, TypeInfos::FileName()->Kind());
}

TEST(TypeInfoTest, AnEnumerationWithoutNamesIsRefusedWhereTheyAreNeeded) {
  const TOrdTypeInfo bare(tkEnumeration, QStringLiteral("TBare"), otUByte, 0, 3);
  EXPECT_EQ(QStringLiteral("Invalid property type: TBare"), MessageOf<EPropertyError>([&] { GetEnumName(&bare, 1); }));
}

TEST(TypeInfoTest, ASetOfWhatHasNoOrdinalsIsRefused) {
  const TTypeInfo text(tkLString, QStringLiteral("string"));
  EXPECT_EQ(QStringLiteral("Invalid property type: TTexts"),
            MessageOf<EPropertyError>([&] { TSetTypeInfo(QStringLiteral("TTexts"), &text); }));
  EXPECT_EQ(QStringLiteral("Invalid property type: TNothings"),
            MessageOf<EPropertyError>([] { TSetTypeInfo(QStringLiteral("TNothings"), nullptr); }));
}

TOrdType StorageOf(int members) {
  const TOrdTypeInfo range(tkInteger, QStringLiteral("TRange"), otUByte, 0, members - 1);
  return TSetTypeInfo(QStringLiteral("TSetOfRange"), &range).OrdType();
}

TEST(TypeInfoTest, ASetTakesTheSmallestOrdinalWithABitForEachMember) {
  EXPECT_EQ(otUByte, StorageOf(8));
  EXPECT_EQ(otUWord, StorageOf(9));
  EXPECT_EQ(otUWord, StorageOf(16));
  EXPECT_EQ(otULong, StorageOf(17));
  EXPECT_EQ(otULong, StorageOf(32));
}

TEST(TypeInfoTest, ASetOfMoreMembersThanTheLargestOrdinalHasSaysTheLargestAllTheSame) {
  EXPECT_EQ(otULong, StorageOf(33));
  EXPECT_EQ(otULong, StorageOf(64));
}

TEST(TypeInfoTest, AnEnumerationBeginsAtZero) {
  const TEnumTypeInfo type(QStringLiteral("TFew"), {QStringLiteral("fwOne"), QStringLiteral("fwTwo")});
  EXPECT_EQ(0, type.MinValue());
  EXPECT_EQ(1, type.MaxValue());
  EXPECT_EQ(QStringLiteral("fwOne"), GetEnumName(&type, 0));
}

/// Kinds that need more than a name.
class TypeInfoKindTest : public ::testing::TestWithParam<TTypeKind> {};

TEST_P(TypeInfoKindTest, ATypeThatIsNotWhatItsKindSaysIsRefused) {
  const TTypeInfo bare(GetParam(), QStringLiteral("TBare"));
  EXPECT_EQ(QStringLiteral("Invalid property type: TBare"), MessageOf<EPropertyError>([&] { CheckTypeInfo(&bare); }));
}

INSTANTIATE_TEST_SUITE_P(Kinds, TypeInfoKindTest,
                         ::testing::Values(tkInteger, tkChar, tkWChar, tkEnumeration, tkSet, tkFloat, tkString, tkInt64,
                                           tkClass, tkInterface, tkArray, tkDynArray));

}  // namespace
}  // namespace kt
