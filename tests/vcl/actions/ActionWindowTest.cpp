// Actions of controls on the screen, and actions in form files.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/actions/ActionList.h"
#include "kt/vcl/actions/IdleActions.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/grids/DrawGrid.h"
#include "kt/vcl/menus/PopupMenu.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/WindowProbe.h"

#include <QEventLoop>
#include <QMenu>
#include <QTimer>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TControlProbe;
using tests::TWindowProbe;

class ActionWindowTest : public testing::Test {
 protected:
  ActionWindowTest() {
    Action.SetActionList(&List);
    Action.SetCaption("Do");
    Action.SetOnExecute([this](TObject*) { FLog += QStringLiteral("do"); });
    Control.SetParent(FForm.get());
    Control.SetTabStop(true);
  }
  void Show() {
    FForm->Show();
    Control.SetFocus();
    TWindowProbe::Settle();
  }
  QString Log() { return std::exchange(FLog, {}).join(u' '); }

  std::unique_ptr<TForm> FForm = Make<TForm>();
  TActionList& List = *New<TActionList>(FForm.get());
  TAction& Action = *New<TAction>(FForm.get());
  TControlProbe& Control = *New<TControlProbe>(FForm.get());
  QStringList FLog;
};

TEST_F(ActionWindowTest, AFormListensForTheShortCutsOfItsActions) {
  Action.SetShortCut(TextToShortCut("Ctrl+K"));
  Show();
  TWindowProbe::Key(Qt::Key_K);
  EXPECT_EQ(Log(), "");
  TWindowProbe::Key(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(Log(), "do");
}

TEST_F(ActionWindowTest, AListThatIsGoneHearsNothing) {
  Action.SetShortCut(TextToShortCut("Ctrl+K"));
  Show();
  delete &List;
  TWindowProbe::Key(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(Log(), "");
}

TEST_F(ActionWindowTest, AnActionMayFreeTheFormThatListens) {
  Action.SetShortCut(TextToShortCut("Ctrl+K"));
  Action.SetOnExecute([this](TObject*) { FForm.reset(); });
  Show();
  TWindowProbe::Key(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(ActionWindowTest, ActionsOfControlsOnTheScreenAreKeptUpToDate) {
  int updates = 0;
  Action.OnUpdate = [&](TObject*) { ++updates; };
  Control.SetAction(&Action);
  TIdleActions::Update();
  EXPECT_EQ(updates, 0);
  Show();
  updates = 0;
  TIdleActions::Update();
  EXPECT_EQ(updates, 1);
  Control.Hide();
  TIdleActions::Update();
  EXPECT_EQ(updates, 1);
}

TEST_F(ActionWindowTest, AProgramThatWaitsBringsActionsUpToDate) {
  Action.OnUpdate = [this](TObject*) { Action.SetEnabled(false); };
  Control.SetAction(&Action);
  Show();
  QEventLoop loop;
  QTimer::singleShot(20, &loop, &QEventLoop::quit);
  loop.exec();
  EXPECT_FALSE(Control.IsEnabled());
}

TEST_F(ActionWindowTest, AnUpdateMayFreeItsControl) {
  Control.SetAction(&Action);
  Show();
  Action.OnUpdate = [this](TObject*) { delete &Control; };
  TIdleActions::Update();
  EXPECT_EQ(FForm->GetControlCount(), 0);
}

TEST_F(ActionWindowTest, AMenuThatOpensHasItsActionsBroughtUpToDate) {
  auto& menu = *New<TPopupMenu>(FForm.get());
  auto& item = *New<TMenuItem>(FForm.get());
  menu.GetItems().Add(&item);
  Action.OnUpdate = [this](TObject*) { Action.SetCaption("Now"); };
  item.SetAction(&Action);
  QString shown;
  QTimer::singleShot(0, [&] {
    auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!open) return;
    shown = open->actions().first()->text();
    open->close();
  });
  menu.Popup(5, 5);
  EXPECT_EQ(shown, "&Now");
}

class THintedControl : public TControlProbe {
 public:
  QString Shown;
  void Dispatch(TMessage& message) override {
    if (message.Msg != CM_HINTSHOW) return TControlProbe::Dispatch(message);
    Shown = MessagePointer<THintInfo>(message.LParam)->HintStr;
    message.Result = 1;
  }

 protected:
  explicit THintedControl(TComponent* owner = nullptr) : TControlProbe(owner) {}
};

TEST_F(ActionWindowTest, TheHintOfAControlTellsTheShortCutOfItsAction) {
  auto& hinted = *New<THintedControl>(FForm.get());
  hinted.SetParent(FForm.get());
  Action.SetHint("Does it");
  Action.SetShortCut(TextToShortCut("Ctrl+K"));
  hinted.SetAction(&Action);
  hinted.SetShowHint(true);
  Show();
  ShowControlHint(hinted, {1, 1}, {1, 1});
  EXPECT_EQ(hinted.Shown, "Does it (Ctrl+K)");
}

// Form files.

constexpr char kForm[] = R"(object Form1: TForm
  Left = 0
  Top = 0
  Caption = 'f'
  object Grid: TDrawGrid
    Action = Open1
    Hint = 'mine'
  end
  object List: TActionList
    object Open1: TAction
      Category = 'File'
      Caption = 'Open'
      Hint = 'Opens'
      Enabled = False
      ShortCut = 16463
    end
  end
  object Menu: TPopupMenu
    object Item: TMenuItem
      Action = Open1
    end
  end
end
)";

class ActionFormTest : public testing::Test {
 protected:
  ActionFormTest() {
    RegisterVisualPlatform();
    ReadFormText(*FForm, QByteArray(kForm));
  }
  template <class T>
  T& Find(const char* name) {
    return dynamic_cast<T&>(*FForm->FindComponent(QString::fromLatin1(name)));
  }
  std::unique_ptr<TForm> FForm = Make<TForm>();
};

TEST_F(ActionFormTest, ControlsAndEntriesFindTheirAction) {
  auto& action = Find<TAction>("Open1");
  EXPECT_EQ(action.GetActionList(), &Find<TActionList>("List"));
  EXPECT_EQ(Find<TDrawGrid>("Grid").GetAction(), &action);
  EXPECT_EQ(Find<TMenuItem>("Item").GetAction(), &action);
}

TEST_F(ActionFormTest, WhatTheyDoNotSayTheyHaveFromTheAction) {
  EXPECT_FALSE(Find<TDrawGrid>("Grid").IsEnabled());
  EXPECT_EQ(Find<TDrawGrid>("Grid").GetHint(), "mine");
  EXPECT_EQ(Find<TMenuItem>("Item").GetCaption(), "Open");
  EXPECT_EQ(Find<TMenuItem>("Item").GetShortCut(), 16463);
}

TEST_F(ActionFormTest, WhatIsWrittenLeavesOutWhatComesFromTheAction) {
  const auto text = QString::fromStdString(tests::TextOf(FForm.get()));
  EXPECT_TRUE(text.contains("Action = Open1\n"));
  EXPECT_EQ(text.count("Enabled = False"), 1);
  EXPECT_EQ(text.count("'Open'"), 1);
  EXPECT_EQ(text.count("16463"), 1);
  EXPECT_EQ(text.count("Hint = 'mine'"), 1);
}

}  // namespace
}  // namespace kt
