#include "kt/vcl/grids/GridAxis.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

/// Ten cells of 20 with lines of 1 between them, one fixed, in 100 pixels: 0 | 21, 42, 63, 84 .. cut at 100.
struct TTen {
  TGridAxis Axis{10, 1, 20};
  TGridAxisDrawInfo Info() const { return Axis.DrawInfo(1, 100); }
};

TEST(GridAxisTest, FixedCellsEndAtTheFixedBoundary) { EXPECT_EQ(TTen().Info().FixedBoundary, 21); }

TEST(GridAxisTest, TheLastCellInFullViewIsFound) {
  EXPECT_EQ(TTen().Info().LastFullVisibleCell, 3);
  EXPECT_EQ(TTen().Info().FullVisBoundary, 84);
}

TEST(GridAxisTest, ACutCellEndsTheGridAtTheExtent) { EXPECT_EQ(TTen().Info().GridBoundary, 100); }

TEST(GridAxisTest, FewCellsEndTheGridBeforeTheExtent) {
  const TGridAxis axis(3, 0, 20);
  EXPECT_EQ(axis.DrawInfo(1, 100).GridBoundary, 63);
}

TEST(GridAxisTest, TheLineOfTheLastCellMayLieBehindTheExtent) {
  const TGridAxis axis(5, 0, 20);
  EXPECT_EQ(axis.DrawInfo(1, 104).LastFullVisibleCell, 4);
  EXPECT_EQ(axis.DrawInfo(1, 103).LastFullVisibleCell, 3);
}

TEST(GridAxisTest, TheLastPageStartsWithTheFirstCellThatLeavesRoomForAllOthers) {
  const TTen ten;
  EXPECT_EQ(ten.Axis.MaxFirst(ten.Info()), 7);
}

TEST(GridAxisTest, AHugeLastCellIsAPageOfItsOwn) {
  TTen ten;
  ten.Axis.Sizes.Set(9, 500);
  EXPECT_EQ(ten.Axis.MaxFirst(ten.Info()), 9);
}

TEST(GridAxisTest, WhatFitsIsOnePage) {
  const TGridAxis axis(3, 1, 20);
  EXPECT_EQ(axis.MaxFirst(axis.DrawInfo(1, 100)), 1);
}

TEST(GridAxisTest, ACellInViewHasItsSpan) {
  const TTen ten;
  int start = 0;
  int end = 0;
  ASSERT_TRUE(ten.Axis.CellSpan(ten.Info(), 2, start, end));
  EXPECT_EQ(start, 42);
  EXPECT_EQ(end, 62);
}

TEST(GridAxisTest, AScrolledCellStandsBehindTheFixedOnes) {
  TTen ten;
  ten.Axis.First = 5;
  int start = 0;
  int end = 0;
  ASSERT_TRUE(ten.Axis.CellSpan(ten.Info(), 5, start, end));
  EXPECT_EQ(start, 21);
}

TEST(GridAxisTest, ACellBeforeTheFirstHasNoSpan) {
  TTen ten;
  ten.Axis.First = 5;
  int start = 0;
  int end = 0;
  EXPECT_FALSE(ten.Axis.CellSpan(ten.Info(), 4, start, end));
}

TEST(GridAxisTest, ACellBehindTheViewHasNoSpan) {
  const TTen ten;
  int start = 0;
  int end = 0;
  EXPECT_FALSE(ten.Axis.CellSpan(ten.Info(), 9, start, end));
}

TEST(GridAxisTest, ARangeIsCutToWhatIsInView) {
  const TTen ten;
  int start = 0;
  int end = 0;
  ASSERT_TRUE(ten.Axis.RangeSpan(ten.Info(), 2, 9, start, end));
  EXPECT_EQ(start, 42);
  EXPECT_EQ(end, 100);
}

TEST(GridAxisTest, ARangeThatIsScrolledAwayIsNotInView) {
  TTen ten;
  ten.Axis.First = 5;
  int start = 0;
  int end = 0;
  EXPECT_FALSE(ten.Axis.RangeSpan(ten.Info(), 2, 4, start, end));
}

TEST(GridAxisTest, ARangeFromAFixedCellToAScrolledOneKeepsTheFixedPart) {
  TTen ten;
  ten.Axis.First = 5;
  int start = 0;
  int end = 0;
  ASSERT_TRUE(ten.Axis.RangeSpan(ten.Info(), 0, 3, start, end));
  EXPECT_EQ(end, 21);
}

TEST(GridAxisTest, ThePositionOfALineBelongsToTheCellBeforeIt) {
  const TTen ten;
  EXPECT_EQ(ten.Axis.CellAt(ten.Info(), 20), 0);
  EXPECT_EQ(ten.Axis.CellAt(ten.Info(), 21), 1);
}

TEST(GridAxisTest, ScrolledCellsAreFoundWhereTheyAre) {
  TTen ten;
  ten.Axis.First = 5;
  EXPECT_EQ(ten.Axis.CellAt(ten.Info(), 25), 5);
}

TEST(GridAxisTest, OutsideTheCellsThereIsNone) {
  const TGridAxis axis(3, 0, 20);
  EXPECT_EQ(axis.CellAt(axis.DrawInfo(1, 100), 63), -1);
  EXPECT_EQ(axis.CellAt(axis.DrawInfo(1, 100), -1), -1);
}

TEST(GridAxisTest, HiddenCellsTakeNoRoom) {
  TTen ten;
  ten.Axis.Sizes.Set(1, -1);
  EXPECT_EQ(ten.Axis.CellAt(ten.Info(), 21), 2);
}

TEST(GridAxisTest, ShowingACellBelowScrollsUntilItIsTheLastInView) {
  const TTen ten;
  EXPECT_EQ(ten.Axis.FirstToShow(ten.Info(), 5), 3);
}

TEST(GridAxisTest, ShowingACellAboveMakesItTheFirst) {
  TTen ten;
  ten.Axis.First = 5;
  EXPECT_EQ(ten.Axis.FirstToShow(ten.Info(), 2), 2);
}

TEST(GridAxisTest, ShowingAFixedCellScrollsNothing) {
  TTen ten;
  ten.Axis.First = 5;
  EXPECT_EQ(ten.Axis.FirstToShow(ten.Info(), 0), 5);
}

}  // namespace
}  // namespace kt
