// What controls and menu items have from their actions.
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/actions/ControlActionLink.h"
#include "kt/vcl/controls/CustomControl.h"
#include "kt/vcl/menus/MenuItem.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

class TClickedControl : public tests::TControlProbe {
 public:
  using TControlProbe::Click;
  using TControlProbe::TControlProbe;
};

class ControlActionTest : public testing::Test {
 protected:
  ControlActionTest() {
    Action.SetCaption("Open");
    Action.SetHint("Opens");
    Action.SetHelpContext(7);
    Action.SetOnExecute(Note("do"));
  }
  TNotifyEvent Note(const char* what) {
    return [this, what](TObject*) { FLog += QLatin1String(what); };
  }
  QString Log() { return std::exchange(FLog, {}).join(u' '); }

  std::unique_ptr<TAction> FAction = Make<TAction>();
  TAction& Action = *FAction;
  std::unique_ptr<TClickedControl> FControl = Make<TClickedControl>();
  TClickedControl& Control = *FControl;
  QStringList FLog;
};

TEST_F(ControlActionTest, AControlLooksLikeItsAction) {
  Action.SetEnabled(false);
  Control.SetAction(&Action);
  EXPECT_EQ(Control.GetAction(), &Action);
  EXPECT_EQ(Control.GetText(), "Open");
  EXPECT_EQ(Control.GetHint(), "Opens");
  EXPECT_EQ(Control.GetHelpContext(), 7);
  EXPECT_FALSE(Control.IsEnabled());
  EXPECT_TRUE(Control.GetControlStyle().Has(csActionClient));
}

TEST_F(ControlActionTest, ItFollowsItsAction) {
  Control.SetAction(&Action);
  Action.SetCaption("Close");
  Action.SetVisible(false);
  Action.SetEnabled(false);
  EXPECT_EQ(Control.GetText(), "Close");
  EXPECT_FALSE(Control.IsVisible());
  EXPECT_FALSE(Control.IsEnabled());
}

TEST_F(ControlActionTest, AValueOfItsOwnStays) {
  Control.SetAction(&Action);
  Control.SetHint("Mine");
  EXPECT_TRUE(Control.GetActionLink()->IsCaptionLinked());
  EXPECT_FALSE(Control.GetActionLink()->IsHintLinked());
}

TEST_F(ControlActionTest, StreamsLeaveOutWhatComesFromTheAction) {
  EXPECT_TRUE(Control.IsHintStored() && Control.IsEnabledStored() && Control.IsCaptionStored());
  Control.SetAction(&Action);
  EXPECT_FALSE(Control.IsHintStored() || Control.IsEnabledStored() || Control.IsCaptionStored() ||
               Control.IsVisibleStored() || Control.IsHelpContextStored() || Control.IsOnClickStored());
  Control.SetHint("Mine");
  EXPECT_TRUE(Control.IsHintStored());
}

TEST_F(ControlActionTest, AClickDoesTheAction) {
  Control.SetAction(&Action);
  Control.Click();
  EXPECT_EQ(Log(), "do");
  EXPECT_EQ(Action.GetActionComponent(), &Control);
}

TEST_F(ControlActionTest, AClickHandlerOfItsOwnGoesBeforeTheAction) {
  Control.OnClick = Note("mine");
  Control.SetAction(&Action);
  Control.OnClick = Note("mine");
  Control.Click();
  EXPECT_EQ(Log(), "mine");
}

TEST_F(ControlActionTest, AnotherHandlerOfTheActionIsTheControlsToo) {
  Control.SetAction(&Action);
  Action.SetOnExecute(Note("else"));
  Control.Click();
  EXPECT_EQ(Log(), "else");
}

TEST_F(ControlActionTest, WithoutActionAClickIsAClick) {
  Control.SetAction(&Action);
  Control.SetAction(nullptr);
  Control.OnClick = Note("mine");
  Control.Click();
  EXPECT_EQ(Log(), "mine");
  EXPECT_EQ(Control.GetAction(), nullptr);
  EXPECT_FALSE(Control.GetControlStyle().Has(csActionClient));
}

TEST_F(ControlActionTest, AnActionThatDiesLeavesItsControls) {
  Control.SetAction(&Action);
  FAction.reset();
  EXPECT_EQ(Control.GetAction(), nullptr);
  Control.OnClick = nullptr;
  Control.Click();
  EXPECT_EQ(Control.GetText(), "Open");
}

TEST_F(ControlActionTest, AControlThatDiesLeavesItsAction) {
  Control.SetAction(&Action);
  Action.Execute();
  FControl.reset();
  Action.SetCaption("x");
  EXPECT_EQ(Action.GetActionComponent(), nullptr);
}

TEST_F(ControlActionTest, AHandlerOfTheActionMayFreeTheControl) {
  Control.SetAction(&Action);
  Action.SetOnExecute([this](TObject*) { FControl.reset(); });
  Control.Click();
  EXPECT_EQ(FControl, nullptr);
}

TEST_F(ControlActionTest, TwoControlsOfOneAction) {
  const auto other = Make<TClickedControl>();
  Control.SetAction(&Action);
  other->SetAction(&Action);
  Action.SetEnabled(false);
  EXPECT_FALSE(Control.IsEnabled() || other->IsEnabled());
}

// Menu items.

class MenuItemActionTest : public ControlActionTest {
 protected:
  std::unique_ptr<TMenuItem> FItem = Make<TMenuItem>();
  TMenuItem& Item = *FItem;
};

TEST_F(MenuItemActionTest, AnEntryLooksLikeItsAction) {
  Action.SetShortCut(45);
  Action.SetChecked(true);
  Item.SetAction(&Action);
  EXPECT_EQ(Item.GetCaption() + Item.GetHint(), "OpenOpens");
  EXPECT_EQ(Item.GetShortCut(), 45);
  EXPECT_TRUE(Item.IsChecked());
  Action.SetVisible(false);
  Action.SetCaption("Close");
  EXPECT_FALSE(Item.IsVisible());
  EXPECT_EQ(Item.GetCaption(), "Close");
}

TEST_F(MenuItemActionTest, ChoosingItDoesTheAction) {
  Item.SetAction(&Action);
  Item.Click();
  EXPECT_EQ(Log(), "do");
}

TEST_F(MenuItemActionTest, TheActionChecksTheEntryOnce) {
  Action.SetAutoCheck(true);
  Item.SetAction(&Action);
  Item.Click();
  EXPECT_TRUE(Item.IsChecked() && Action.IsChecked());
  Item.Click();
  EXPECT_FALSE(Item.IsChecked() || Action.IsChecked());
}

TEST_F(MenuItemActionTest, AnOwnCaptionIsStored) {
  Item.SetAction(&Action);
  EXPECT_FALSE(Item.IsCaptionStored() || Item.IsOnClickStored() || Item.IsShortCutStored());
  Item.SetCaption("Mine");
  EXPECT_TRUE(Item.IsCaptionStored());
}

TEST_F(MenuItemActionTest, AnActionThatDiesLeavesTheEntry) {
  Item.SetAction(&Action);
  FAction.reset();
  EXPECT_EQ(Item.GetAction(), nullptr);
}

}  // namespace
}  // namespace kt
