#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/actions/ActionList.h"
#include "support/Expect.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace kt {
namespace {

class ActionTest : public testing::Test {
 protected:
  TAction& Add(const char* name = "") {
    auto& action = *New<TAction>(List.get());
    action.SetName(QLatin1String(name));
    action.SetActionList(List.get());
    return action;
  }
  TNotifyEvent Note(const char* what) {
    return [this, what](TObject*) { FLog += QLatin1String(what); };
  }
  QString Log() { return std::exchange(FLog, {}).join(u' '); }
  /// The captions of the checked actions.
  QString Checked() const {
    QStringList captions;
    for (int i = 0; i < List->GetActionCount(); ++i) {
      const auto& action = dynamic_cast<const TAction&>(*List->GetActions(i));
      if (action.IsChecked()) captions += action.GetCaption();
    }
    return captions.join(u' ');
  }

  std::unique_ptr<TActionList> List = Make<TActionList>();
  QStringList FLog;
};

TEST_F(ActionTest, ExecutingItRaisesOnExecute) {
  TAction& action = Add();
  action.SetOnExecute(Note("do"));
  EXPECT_TRUE(action.Execute());
  EXPECT_EQ(Log(), "do");
}

TEST_F(ActionTest, NobodyDoesAnActionWithoutHandlers) {
  TAction& action = Add();
  action.SetDisableIfNoHandler(false);
  EXPECT_FALSE(action.Execute());
}

TEST_F(ActionTest, TheHandlerOfTheListGoesFirst) {
  TAction& action = Add();
  action.SetOnExecute(Note("own"));
  List->OnExecute = [this](TBasicAction*, bool&) { FLog += QStringLiteral("list"); };
  EXPECT_TRUE(action.Execute());
  EXPECT_EQ(Log(), "list own");
}

TEST_F(ActionTest, WhatTheListHasSeenToIsDone) {
  TAction& action = Add();
  action.SetOnExecute(Note("own"));
  List->OnExecute = [](TBasicAction*, bool& isHandled) { isHandled = true; };
  EXPECT_TRUE(action.Execute());
  EXPECT_EQ(Log(), "");
}

TEST_F(ActionTest, ItIsBroughtUpToDateBeforeItIsDone) {
  TAction& action = Add();
  action.OnUpdate = Note("update");
  action.SetOnExecute(Note("do"));
  action.Execute();
  EXPECT_EQ(Log(), "update do");
}

TEST_F(ActionTest, AnUpdateMayDisableItAtTheLastMoment) {
  TAction& action = Add();
  action.OnUpdate = [&](TObject*) { action.SetEnabled(false); };
  action.SetOnExecute(Note("do"));
  EXPECT_FALSE(action.Execute());
  EXPECT_EQ(Log(), "");
}

TEST_F(ActionTest, WithoutAHandlerAnUpdateDisablesIt) {
  TAction& action = Add();
  EXPECT_FALSE(action.Update());
  EXPECT_FALSE(action.IsEnabled());
}

TEST_F(ActionTest, AHandlerOfTheListIsAHandler) {
  TAction& action = Add();
  List->OnExecute = [](TBasicAction*, bool&) {};
  action.Update();
  EXPECT_TRUE(action.IsEnabled());
}

TEST_F(ActionTest, WithAutoCheckEachTimeChecksOrUnchecks) {
  TAction& action = Add();
  action.SetOnExecute(Note("do"));
  action.SetAutoCheck(true);
  action.Execute();
  EXPECT_TRUE(action.IsChecked());
  action.Execute();
  EXPECT_FALSE(action.IsChecked());
}

TEST_F(ActionTest, OneActionOfAGroupIsChecked) {
  for (const char* name : {"a", "b", "c"}) Add(name);
  for (int i = 0; i < 2; ++i) dynamic_cast<TAction&>(*List->GetActions(i)).SetGroupIndex(1);
  for (int i = 0; i < 3; ++i) dynamic_cast<TAction&>(*List->GetActions(i)).SetChecked(true);
  EXPECT_EQ(Checked(), "b c");
}

TEST_F(ActionTest, OfAGroupACheckedOneStaysSoWhenDone) {
  TAction& action = Add("a");
  action.SetOnExecute(Note("do"));
  action.SetAutoCheck(true);
  action.SetGroupIndex(1);
  action.Execute();
  action.Execute();
  EXPECT_EQ(Checked(), "a");
}

TEST_F(ActionTest, TheCaptionFollowsTheNameUntilItIsSet) {
  TAction& action = Add("Open1");
  EXPECT_EQ(action.GetCaption(), "Open1");
  action.SetCaption("Open");
  action.SetName("Open2");
  EXPECT_EQ(action.GetCaption(), "Open");
}

TEST_F(ActionTest, ASuspendedListDoesNothing) {
  TAction& action = Add();
  action.SetOnExecute(Note("do"));
  List->SetState(asSuspended);
  EXPECT_FALSE(action.Execute());
  List->SetState(asNormal);
  EXPECT_TRUE(action.Execute());
}

TEST_F(ActionTest, WhileSuspendedAllCanLookEnabled) {
  TAction& action = Add();
  action.SetEnabled(false);
  List->SetState(asSuspendedEnabled);
  EXPECT_TRUE(action.IsEnabled());
  List->SetState(asNormal);
  EXPECT_FALSE(action.IsEnabled());
}

TEST_F(ActionTest, AKeyDoesTheActionThatHasItAsShortCut) {
  TAction& action = Add();
  action.SetOnExecute(Note("do"));
  action.SetShortCut(TextToShortCut("Ctrl+K"));
  EXPECT_FALSE(List->IsShortCut('K', {}));
  EXPECT_TRUE(List->IsShortCut('K', {ssCtrl}));
  EXPECT_EQ(Log(), "do");
}

TEST_F(ActionTest, TheHintHasTheShortCutBehindIt) {
  TAction& action = Add();
  action.SetShortCut(TextToShortCut("Ctrl+K"));
  QString hint = "Cut";
  EXPECT_TRUE(action.DoHint(hint));
  EXPECT_EQ(hint, "Cut (Ctrl+K)");
}

TEST_F(ActionTest, OnHintHasTheLastWord) {
  TAction& action = Add();
  action.OnHint = [](QString& hint, bool& canShow) {
    canShow = hint != "no";
    hint += '!';
  };
  QString hint = "Cut";
  EXPECT_TRUE(action.DoHint(hint));
  EXPECT_EQ(hint, "Cut!");
  hint = "no";
  EXPECT_FALSE(action.DoHint(hint));
}

TEST_F(ActionTest, AListKeepsTheOrderAndTellsChanges) {
  List->OnChange = Note("change");
  TAction& a = Add();
  TAction& b = Add();
  b.SetIndex(0);
  EXPECT_EQ(List->GetActions(0), &b);
  EXPECT_EQ(a.GetIndex(), 1);
  Log();
  a.SetCaption("x");
  a.SetCategory("File");
  delete &a;
  EXPECT_EQ(Log(), "change change change");
  EXPECT_EQ(List->GetActionCount(), 1);
}

TEST_F(ActionTest, AListRefusesPlacesItDoesNotHave) {
  EXPECT_EQ(tests::MessageOf<EListError>([&] { List->GetActions(0); }), "List index out of bounds (0)");
}

TEST_F(ActionTest, AListTakesItsActionsAlong) {
  const auto owner = Make<TComponent>();
  New<TAction>(owner.get())->SetActionList(List.get());
  List.reset();
  EXPECT_EQ(owner->GetComponentCount(), 0);
}

TEST_F(ActionTest, ACopyHasAllThatClientsTakeOver) {
  TAction& from = Add();
  from.SetCaption("c");
  from.SetHint("h");
  from.SetShortCut(45);
  from.SetImageIndex(3);
  from.SetEnabled(false);
  from.SetOnExecute(Note("do"));
  TAction& to = Add();
  to.Assign(&from);
  EXPECT_EQ(to.GetCaption() + to.GetHint(), "ch");
  EXPECT_EQ(to.GetShortCut(), 45);
  EXPECT_EQ(to.GetImageIndex(), 3);
  EXPECT_FALSE(to.IsEnabled());
  EXPECT_TRUE(to.GetOnExecute() == from.GetOnExecute());
}

TEST_F(ActionTest, AHandlerMayFreeItsAction) {
  TAction& action = Add();
  action.SetAutoCheck(true);
  action.SetOnExecute([this](TObject* sender) {
    FLog += QStringLiteral("do");
    delete sender;
  });
  EXPECT_TRUE(action.Execute());
  EXPECT_EQ(List->GetActionCount(), 0);
}

}  // namespace
}  // namespace kt
