// What the application says about hints beside controls.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/forms/Application.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QToolTip>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TControlProbe;
using tests::TWindowProbe;

class ApplicationHintsTest : public testing::Test {
 protected:
  ApplicationHintsTest() {
    FControl->SetHint("short|long");
    FControl->SetShowHint(true);
    FWindow = std::make_unique<TWindowProbe>(*FControl);
  }
  void TearDown() override {
    TakeAway();
    Application().SetShowHint(true);
    Application().SetHintColor(clInfoBk);
    Application().OnShowHint = nullptr;
  }
  /// What is only hidden stays on the screen for a while.
  static void TakeAway() {
    HideControlHint();
    QWidget any;
    QEvent event(QEvent::WindowDeactivate);
    QApplication::sendEvent(&any, &event);
  }
  void ShowHint() { ShowControlHint(*FControl, {5, 5}, FControl->ClientToScreen({5, 5})); }
  static QString Shown() { return QToolTip::isVisible() ? QToolTip::text() : QStringLiteral("-"); }

  std::unique_ptr<TControlProbe> FControl = Make<TControlProbe>();
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(ApplicationHintsTest, AHintIsShown) {
  ShowHint();
  EXPECT_EQ(Shown(), "short");
}

TEST_F(ApplicationHintsTest, WithoutShowHintThereAreNone) {
  Application().SetShowHint(false);
  ShowHint();
  EXPECT_EQ(Shown(), "-");
}

TEST_F(ApplicationHintsTest, OnShowHintHasTheLastWord) {
  Application().OnShowHint = [](QString& text, bool&, THintInfo& info) {
    text += QStringLiteral(" at %1").arg(info.CursorPos.x());
  };
  ShowHint();
  EXPECT_EQ(Shown(), "short at 5");
  Application().OnShowHint = [](QString&, bool& canShow, THintInfo&) { canShow = false; };
  TakeAway();
  ShowHint();
  EXPECT_EQ(Shown(), "-");
}

TEST_F(ApplicationHintsTest, OnShowHintMayFreeTheControl) {
  Application().OnShowHint = [this](QString&, bool&, THintInfo&) { FControl.reset(); };
  ShowHint();
  EXPECT_EQ(Shown(), "-");
}

TEST_F(ApplicationHintsTest, HintsHaveTheColourThatTheApplicationSays) {
  Application().SetHintColor(clRed);
  ShowHint();
  EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), QColor(Qt::red));
}

TEST_F(ApplicationHintsTest, AMouseThatRestsIsWaitedForAndAMouseThatLeavesIsNot) {
  HintMouseMoved(*FControl, {5, 5}, {5, 5});
  EXPECT_TRUE(IsHintWaiting());
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(FControl->GetHandle(), &leave);
  EXPECT_FALSE(IsHintWaiting());
}

}  // namespace
}  // namespace kt
