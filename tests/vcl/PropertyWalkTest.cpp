// Every registered class of the visual platform with every property, through the binary and the text format.
#include "kt/vcl/Registration.h"
#include "support/Expect.h"
#include "support/VisualWalk.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

const TWalkRules& Rules() {
  static const TWalkRules rules{
      .Handlers = VisualHandlers(),
      .Untouched = {{"TForm.ActiveControl", "takes only a control that shows in the form itself"}},
      .Choosy = {{"TDrawGrid.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TListBox.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TMaskEdit.TabOrder", "is the place among the parent's controls, and there is no parent"},
                 {"TMaskEdit.MaxLength", "is the length of the mask, which the walk has set by then"},
                 {"TMaskEdit.Text", "is what the mask of the walk allows"}}};
  return rules;
}

std::vector<QString> VisualClasses() {
  RegisterVisualPlatform();
  return WalkedClasses();
}

class PropertyWalkTest : public ::testing::TestWithParam<QString> {
 protected:
  PropertyWalkTest() { RegisterVisualPlatform(); }

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

INSTANTIATE_TEST_SUITE_P(Registered, PropertyWalkTest, ::testing::ValuesIn(VisualClasses()),
                         [](const auto& test) { return test.param.toStdString(); });

TEST(PropertyWalkExceptions, EachHasAPropertyAndAReason) {
  RegisterVisualPlatform();
  EXPECT_EQ(QStringList(), IdleExceptions(Rules()));
}

}  // namespace
}  // namespace kt::tests
