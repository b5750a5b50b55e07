#include "kt/rtl/streams/FormLayout.h"
#include "kt/rtl/streams/SequencePairs.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace kt {
namespace {

/// The numbers of a text's letters.
std::vector<quint64> Numbers(const std::string& text) { return {text.begin(), text.end()}; }

/// For each letter on the right the place of its partner on the left, `-` where it has none.
std::string LeftOf(const TSequencePairs& pairs) {
  std::string text;
  for (const quint32 left : pairs.LeftOf) text += left == kNoPlace ? std::string("-") : std::to_string(left);
  return text;
}

std::string Equal(const std::string& left, const std::string& right) {
  return LeftOf(PairEqual(Numbers(left), Numbers(right)));
}

std::string Rise(const std::vector<quint32>& values) {
  std::string text;
  for (const bool rises : LongestRise(values)) text += rises ? 'x' : '.';
  return text;
}

TEST(SequencePairsTest, EqualSequencesPairInTheirOrder) { EXPECT_EQ("0123", Equal("abca", "abca")); }

TEST(SequencePairsTest, WhatWasInsertedIsAlone) {
  EXPECT_EQ("0-12", Equal("abc", "axbc"));
  EXPECT_EQ("-012", Equal("abc", "xabc"));
  EXPECT_EQ("012-", Equal("abc", "abcx"));
}

TEST(SequencePairsTest, AmongEqualOnesTheLastIsTheNewOne) { EXPECT_EQ("01-", Equal("aa", "aaa")); }

TEST(SequencePairsTest, WhatWasRemovedHasNoPartner) {
  EXPECT_EQ("02", Equal("abc", "ac"));
  EXPECT_EQ("", Equal("abc", ""));
}

TEST(SequencePairsTest, WhatMovedIsFoundAgain) { EXPECT_EQ("201", Equal("abc", "cab")); }

TEST(SequencePairsTest, NeighboursOfPairsGoTogetherInTheirOrder) {
  TSequencePairs pairs = PairEqual(Numbers("aPQbR"), Numbers("a12b34"));
  EXPECT_EQ("0--3--", LeftOf(pairs));
  PairNeighbours(pairs, [](quint32, quint32) { return true; });
  EXPECT_EQ("01234-", LeftOf(pairs));
}

TEST(SequencePairsTest, NeighboursThatDoNotFitStayAlone) {
  TSequencePairs pairs(2, 2);
  PairNeighbours(pairs, [](quint32 left, quint32 right) { return left == 0 && right == 1; });
  EXPECT_EQ("-0", LeftOf(pairs));
}

TEST(SequencePairsTest, ALongestRiseIsMarked) {
  EXPECT_EQ("", Rise({}));
  EXPECT_EQ("xxx", Rise({1, 2, 3}));
  EXPECT_EQ("..x", Rise({3, 2, 1}));
  EXPECT_EQ(".xxx", Rise({9, 1, 5, 7}));
  EXPECT_EQ(3, std::ranges::count(LongestRise({2, 5, 3, 9}), true));
}

}  // namespace
}  // namespace kt
