#include "DesignerFixture.h"
#include "designer/session/Session.h"

namespace designer::tests {
namespace {

class SessionTest : public TDesignerTest {
 protected:
  SessionTest() {
    Session().Listen(
        [this](TNews news) { FNews.append(QStringLiteral("leaving form selection edited").split(u' ')[news]); });
  }
  QString News() { return std::exchange(FNews, {}).join(u' '); }

  QStringList FNews;
};

TEST_F(SessionTest, TheFormIsSelectedWhenNothingElseIs) {
  Select("Button1");
  Session().Toggle(&Component("Button1"));
  EXPECT_EQ(Selected(), "SmallForm");
}

TEST_F(SessionTest, TakingInTheFirstLeavesOutTheForm) {
  Select("SmallForm");
  Session().Toggle(&Component("Button1"));
  EXPECT_EQ(Selected(), "Button1");
}

TEST_F(SessionTest, WhatIsDestroyedIsNoLongerSelected) {
  Session().Select({&Component("Button1"), &Component("Button2")});
  Document().Delete({&Component("Button1")});
  EXPECT_EQ(Selected(), "Button2");
}

TEST_F(SessionTest, TellsOfAnotherSelectionOnce) {
  Session().Select(&Component("Button1"));
  Session().Select(&Component("Button1"));
  EXPECT_EQ(News(), "selection");
}

TEST_F(SessionTest, TellsOfAnotherFormBeforeTheOldOneGoes) {
  Control("Button1").SetLeft(40);
  Session().Edited("Move Button1");
  EXPECT_EQ(News(), "edited");
  Session().Undo();
  EXPECT_EQ(News(), "leaving form");
}

TEST_F(SessionTest, FindsWhatAStepHasRenamed) {
  Session().Select(&Component("Button1"));
  Component("Button1").SetName("GoButton");
  Session().Edited("Change Name");
  Session().Undo();
  EXPECT_EQ(Selected(), "Button1");
}

TEST_F(SessionTest, AnEditThatFailedIsTakenBack) {
  Control("Button1").SetLeft(40);
  Session().Revert();
  EXPECT_EQ(Bounds("Button1"), "16 16 75 25");
}

TEST_F(SessionTest, StepsAreCalledByWhatTheyAreAbout) {
  EXPECT_EQ(StepText("Move", {&Component("Button1")}), "Move Button1");
  EXPECT_EQ(StepText("Move", {&Component("Button1"), &Component("Button2")}), "Move 2 components");
}

}  // namespace
}  // namespace designer::tests
