#include "kt/vcl/grids/SparseSizes.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace kt {
namespace {

std::vector<int> FirstSix(const TSparseSizes& sizes) {
  return {sizes.Get(0), sizes.Get(1), sizes.Get(2), sizes.Get(3), sizes.Get(4), sizes.Get(5)};
}

TEST(SparseSizesTest, AllAreUsualAtFirst) { EXPECT_EQ(TSparseSizes(18).Get(1'000'000), 18); }

TEST(SparseSizesTest, AnExceptionStandsAlone) {
  TSparseSizes sizes(18);
  sizes.Set(3, 40);
  EXPECT_EQ(FirstSix(sizes), (std::vector{18, 18, 18, 40, 18, 18}));
}

TEST(SparseSizesTest, SettingTheUsualNumberForgetsTheException) {
  TSparseSizes sizes(18);
  sizes.Set(3, 40);
  sizes.Set(3, 18);
  EXPECT_FALSE(sizes.HasExceptions());
}

TEST(SparseSizesTest, ANewUsualNumberForgetsAllExceptions) {
  TSparseSizes sizes(18);
  sizes.Set(3, 40);
  sizes.SetUsual(20);
  EXPECT_EQ(FirstSix(sizes), (std::vector{20, 20, 20, 20, 20, 20}));
}

TEST(SparseSizesTest, TruncatingForgetsTheExceptionsBehind) {
  TSparseSizes sizes(18);
  sizes.Set(2, 30);
  sizes.Set(3, 40);
  sizes.Truncate(3);
  EXPECT_EQ(FirstSix(sizes), (std::vector{18, 18, 30, 18, 18, 18}));
}

TEST(SparseSizesTest, MovingDownLetsThoseBetweenMoveUp) {
  TSparseSizes sizes(1);
  sizes.Set(1, 10);
  sizes.Set(2, 20);
  sizes.Set(4, 40);
  sizes.Move(1, 4);
  EXPECT_EQ(FirstSix(sizes), (std::vector{1, 20, 1, 40, 10, 1}));
}

TEST(SparseSizesTest, MovingUpLetsThoseBetweenMoveDown) {
  TSparseSizes sizes(1);
  sizes.Set(1, 10);
  sizes.Set(2, 20);
  sizes.Set(4, 40);
  sizes.Move(4, 1);
  EXPECT_EQ(FirstSix(sizes), (std::vector{1, 40, 10, 20, 1, 1}));
}

TEST(SparseSizesTest, TheSumCountsEachNumberWithItsExtra) {
  TSparseSizes sizes(18);
  sizes.Set(1, 100);
  EXPECT_EQ(sizes.Sum(0, 999'999, 1), 999'999 * 19LL + 101);
}

TEST(SparseSizesTest, WhatIsHiddenAddsNothingToTheSum) {
  TSparseSizes sizes(18);
  sizes.Set(1, -1);
  EXPECT_EQ(sizes.Sum(0, 2, 1), 38);
}

TEST(SparseSizesTest, AnEmptyRangeSumsUpToNothing) { EXPECT_EQ(TSparseSizes(18).Sum(2, 1), 0); }

/// Random steps beside the simplest thing that could work.
class TSparseModel {
 public:
  explicit TSparseModel(unsigned seed) : FRandom(seed) {}

  void Step() {
    const int kind = Next(4);
    const int a = Next(Size);
    const int b = Next(Size);
    if (kind < 2) {
      FSizes.Set(a, b % 3);
      FOracle[a] = b % 3;
    } else if (kind == 2) {
      FSizes.Move(a, b);
      const int moved = FOracle[a];
      FOracle.erase(FOracle.begin() + a);
      FOracle.insert(FOracle.begin() + b, moved);
    } else if (a == 0) {
      FSizes.Truncate(b);
      std::fill(FOracle.begin() + b, FOracle.end(), 1);
    }
  }
  bool IsEqual() const {
    qint64 sum = 0;
    for (int i = 0; i < Size; ++i) {
      if (FSizes.Get(i) != FOracle[i]) return false;
      sum += FOracle[i] + 2;
    }
    return FSizes.Sum(0, Size - 1, 2) == sum;
  }

 private:
  static constexpr int Size = 30;

  int Next(int limit) { return static_cast<int>(FRandom() % static_cast<unsigned>(limit)); }

  std::mt19937 FRandom;
  TSparseSizes FSizes{1};
  std::vector<int> FOracle = std::vector<int>(Size, 1);
};

class SparseSizesModelTest : public testing::TestWithParam<unsigned> {};

TEST_P(SparseSizesModelTest, BehavesAsAPlainList) {
  TSparseModel model(GetParam());
  for (int i = 0; i < 2000; ++i) {
    model.Step();
    ASSERT_TRUE(model.IsEqual()) << "seed " << GetParam() << ", step " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SparseSizesModelTest, testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace kt
