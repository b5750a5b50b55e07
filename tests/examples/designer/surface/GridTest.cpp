#include "designer/surface/Grid.h"

#include <gtest/gtest.h>

namespace designer::tests {
namespace {

TEST(GridTest, GoesToTheNearestPlace) {
  EXPECT_EQ(Snapped(0), 0);
  EXPECT_EQ(Snapped(3), 0);
  EXPECT_EQ(Snapped(4), 8);
  EXPECT_EQ(Snapped(11), 8);
  EXPECT_EQ(Snapped(-3), 0);
  EXPECT_EQ(Snapped(-5), -8);
}

TEST(GridTest, HandlesStandOnTheCornersAndInTheMiddleOfTheSides) {
  const QRect around(10, 20, 101, 51);
  EXPECT_EQ(HandleRect(around, kHandles[0]).center(), QPoint(10, 20));
  EXPECT_EQ(HandleRect(around, kHandles[1]).center(), QPoint(60, 20));
  EXPECT_EQ(HandleRect(around, kHandles[4]).center(), QPoint(110, 70));
  EXPECT_EQ(HandleRect(around, kHandles[7]).center(), QPoint(10, 45));
}

TEST(GridTest, PointersGoTheWayOfTheirHandle) {
  EXPECT_EQ(HandleCursor(kHandles[0]), Qt::SizeFDiagCursor);
  EXPECT_EQ(HandleCursor(kHandles[2]), Qt::SizeBDiagCursor);
  EXPECT_EQ(HandleCursor(kHandles[3]), Qt::SizeHorCursor);
  EXPECT_EQ(HandleCursor(kHandles[5]), Qt::SizeVerCursor);
}

}  // namespace
}  // namespace designer::tests
