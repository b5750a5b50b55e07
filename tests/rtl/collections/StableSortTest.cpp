#include "kt/rtl/collections/StableSort.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace kt {
namespace {

/// Sorts numbers by their tens and answers how many comparisons that took.
int SortByTens(std::vector<int>& items) {
  int comparisons = 0;
  StableSort(items, [&comparisons](int a, int b) {
    ++comparisons;
    return a / 10 - b / 10;
  });
  return comparisons;
}

TEST(StableSortTest, NothingAndOneElementNeedNoComparison) {
  std::vector<int> none, one{7};
  EXPECT_EQ(0, SortByTens(none));
  EXPECT_EQ(0, SortByTens(one));
}

TEST(StableSortTest, EqualElementsKeepTheirOrder) {
  std::vector<int> items{25, 13, 21, 11, 29, 12};
  SortByTens(items);
  EXPECT_EQ((std::vector<int>{13, 11, 12, 25, 21, 29}), items);
}

TEST(StableSortTest, OrderedElementsNeedOneComparisonEach) {
  std::vector<int> items(1000);
  std::iota(items.begin(), items.end(), 0);
  EXPECT_EQ(999, SortByTens(items));
}

class StableSortCountTest : public testing::TestWithParam<int> {};

TEST_P(StableSortCountTest, AnyNumberOfElementsIsSorted) {
  std::vector<int> items(static_cast<size_t>(GetParam()));
  std::iota(items.begin(), items.end(), 0);
  std::shuffle(items.begin(), items.end(), std::mt19937(1));
  std::vector<int> expected = items;
  std::stable_sort(expected.begin(), expected.end(), [](int a, int b) { return a / 10 < b / 10; });
  SortByTens(items);
  EXPECT_EQ(expected, items);
}

INSTANTIATE_TEST_SUITE_P(StableSortTest, StableSortCountTest,
                         testing::Values(2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 100, 1023, 1024, 1025));

}  // namespace
}  // namespace kt
