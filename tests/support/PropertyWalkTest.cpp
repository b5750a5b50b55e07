// Every registered class that the program walks, with every property, through the binary and the text format.
#include "support/Expect.h"
#include "support/PropertyWalk.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class PropertyWalkTest : public ::testing::TestWithParam<QString> {
 protected:
  PropertyWalkTest() { WalkOfProgram().Register(); }
  ~PropertyWalkTest() override { WalkOfProgram().Unregister(); }

  static const TWalkRules& Rules() { return WalkOfProgram().Rules(); }
  static QStringList Lost(TWalkState state, TWalkFormat format) {
    return LostOnTheWay(GetParam(), Rules(), state, format);
  }
};

TEST_P(PropertyWalkTest, AFreshInstanceHasItsDeclaredDefaults) {
  EXPECT_EQ(QStringList(), WrongDefaults(GetParam(), Rules()));
}

TEST_P(PropertyWalkTest, EveryWritablePropertyTakesAnotherValue) {
  EXPECT_EQ(QStringList(), UnchangedProperties(GetParam(), Rules()));
}

TEST_P(PropertyWalkTest, EveryChangedPropertyComesBackThroughBinary) {
  EXPECT_EQ(QStringList(), Lost(wsChanged, wfBinary));
}

TEST_P(PropertyWalkTest, EveryChangedPropertyComesBackThroughText) {
  EXPECT_EQ(QStringList(), Lost(wsChanged, wfText));
}

TEST_P(PropertyWalkTest, AFreshInstanceComesBackToo) { EXPECT_EQ(QStringList(), Lost(wsFresh, wfBinary)); }

INSTANTIATE_TEST_SUITE_P(Registered, PropertyWalkTest, ::testing::ValuesIn(WalkOfProgram().Classes()),
                         [](const auto& test) { return test.param.toStdString(); });

}  // namespace
}  // namespace kt::tests
