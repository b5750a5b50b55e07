#include "kt/vcl/controls/WheelSteps.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(WheelStepsTest, SmallTurnsAddUpToAStep) {
  TWheelSteps wheel;
  EXPECT_EQ(wheel.Turn(50), 0);
  EXPECT_EQ(wheel.Turn(50), 0);
  EXPECT_EQ(wheel.Turn(50), 1);
  EXPECT_EQ(wheel.Turn(89), 0);
  EXPECT_EQ(wheel.Turn(1), 1);
}

TEST(WheelStepsTest, TurnsTheOtherWayTakeBackWhatIsNoStepYet) {
  TWheelSteps wheel;
  EXPECT_EQ(wheel.Turn(100), 0);
  EXPECT_EQ(wheel.Turn(-100), 0);
  EXPECT_EQ(wheel.Turn(-360), -3);
}

}  // namespace
}  // namespace kt
