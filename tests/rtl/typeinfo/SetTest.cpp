#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeKind.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <gtest/gtest.h>

namespace kt {
namespace tests {

enum TManyNames { mnFirst };
enum TManyNamesWide { mwFirst };

}  // namespace tests

template <>
struct TEnumNames<tests::TManyNames> {
  static constexpr const char* Values[33] = {};
};
template <>
struct TEnumNames<tests::TManyNamesWide> : TEnumNames<tests::TManyNames> {};
template <>
struct TSetStorage<tests::TManyNamesWide> {
  using Type = quint64;
};

namespace {

TEST(SetTest, MoreThan32NamesNeedAWiderStorage) {
  EXPECT_FALSE(SetHoldsNames<tests::TManyNames>);
  EXPECT_TRUE(SetHoldsNames<tests::TManyNamesWide>);
}

TEST(SetTest, BitNStandsForOrdinalN) {
  EXPECT_EQ(0b10000010u, (TTypeKinds{tkInteger, tkClass}).Bits());
  EXPECT_EQ((TTypeKinds{tkInteger, tkClass}), TTypeKinds::FromBits(0b10000010u));
}

TEST(SetTest, MembersComeAndGo) {
  TTypeKinds kinds;
  kinds.Include(tkSet);
  EXPECT_TRUE(kinds.Has(tkSet));
  kinds.Put(tkSet, false);
  EXPECT_TRUE(kinds.IsEmpty());
}

TEST(SetTest, UnionDifferenceAndIntersectionAreTheSetOperations) {
  const TTypeKinds a = {tkInteger, tkChar};
  const TTypeKinds b = {tkChar, tkSet};
  EXPECT_EQ((TTypeKinds{tkInteger, tkChar, tkSet}), a + b);
  EXPECT_EQ((TTypeKinds{tkInteger}), a - b);
  EXPECT_EQ((TTypeKinds{tkChar}), a * b);
}

TEST(SetTest, ASubsetHasNoMemberBeyondTheOther) {
  EXPECT_TRUE((TTypeKinds{tkChar}).IsSubsetOf({tkChar, tkSet}));
  EXPECT_FALSE((TTypeKinds{tkChar, tkClass}).IsSubsetOf({tkChar, tkSet}));
}

TEST(SetTest, ARangeHoldsBothItsEnds) {
  EXPECT_EQ((TTypeKinds{tkChar, tkEnumeration, tkFloat}), TTypeKinds::Range(tkChar, tkFloat));
}

TEST(SetTest, ThePropertyKindsAreAllButUnknownAndMethod) {
  EXPECT_EQ(16, tkProperties.Count());
  EXPECT_FALSE(tkProperties.Has(tkUnknown));
  EXPECT_FALSE(tkProperties.Has(tkMethod));
}

}  // namespace
}  // namespace kt
