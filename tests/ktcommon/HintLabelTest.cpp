// What becomes of mouse events that come to a hint, where the platform does not let them through.
#include "kt/ktcommon/HintWindow.h"
#include "kt/rtl/objects/Make.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QPointer>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TControlProbe;
using tests::TWindowProbe;

/// A control of 400 x 300 pixels with a child at 200,0, and a hint of the control at 150,50 that reaches over the
/// child.
class HintLabelTest : public testing::Test {
 protected:
  HintLabelTest() {
    Child.SetParent(&Control);
    Child.SetBounds(200, 0, 50, 200);
    Hear(Control, QStringLiteral("control"));
    Hear(Child, QStringLiteral("child"));
    FWindow = std::make_unique<TWindowProbe>(Control);
    ShowHint({150, 50});
    Send(QEvent::MouseMove, {155, 55});
    Log();
  }
  void Hear(TControlProbe& control, const QString& who) {
    const auto pressed = [this, who](const QString& what) {
      return TMouseEvent([this, who, what](TObject*, TMouseButton, TShiftState, int x, int y) {
        FLog += QStringLiteral("%1 %2 %3,%4").arg(who, what).arg(x).arg(y);
      });
    };
    control.OnMouseDown = pressed(QStringLiteral("down"));
    control.OnMouseUp = pressed(QStringLiteral("up"));
    control.OnMouseMove = [this, who](TObject*, TShiftState, int x, int y) {
      FLog += QStringLiteral("%1 move %2,%3").arg(who).arg(x).arg(y);
    };
    control.OnMouseWheel = [this, who](TObject*, TShiftState, int delta, QPoint, bool& isUsed) {
      FLog += QStringLiteral("%1 wheel %2").arg(who).arg(delta);
      isUsed = true;
    };
    control.OnMouseLeave = [this, who](TObject*) { FLog += who + QStringLiteral(" left"); };
  }
  QString Log() { return std::exchange(FLog, {}).join(QStringLiteral(", ")); }
  void ShowHint(QPoint place) { Hint.ActivateHint(Control.ClientToScreen(place), QString(60, u'w')); }
  static QLabel* Label() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* label = qobject_cast<QLabel*>(widget)) return label;
    }
    return nullptr;
  }
  /// An event that the platform gives to the hint, at a place of the control's.
  void Send(QEvent::Type type, QPoint place, Qt::MouseButton button = Qt::NoButton,
            Qt::MouseButtons buttons = Qt::NoButton) {
    const QPoint onScreen = Control.ClientToScreen(place);
    QMouseEvent event(type, Label()->mapFromGlobal(onScreen), onScreen, button, buttons, Qt::NoModifier);
    QApplication::sendEvent(Label(), &event);
  }
  void Press(QPoint place) { Send(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton); }
  void Release(QPoint place) { Send(QEvent::MouseButtonRelease, place, Qt::LeftButton); }
  void Drag(QPoint place) { Send(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton); }

  QStringList FLog;
  std::unique_ptr<TControlProbe> FControl = Make<TControlProbe>();
  TControlProbe& Control = *FControl;
  TControlProbe& Child = *New<TControlProbe>(FControl.get());
  TKTHintWindow& Hint = *New<TKTHintWindow>(FControl.get());
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(HintLabelTest, AClickGoesToTheControlBeneath) {
  Press({160, 55});
  Release({160, 55});
  EXPECT_EQ(Log(), "control down 160,55, control up 160,55");
}

TEST_F(HintLabelTest, AMovingPointerIsSeenByTheControlBeneath) {
  Send(QEvent::MouseMove, {161, 56});
  EXPECT_EQ(Log(), "control move 161,56");
  EXPECT_TRUE(Hint.IsShown());
}

TEST_F(HintLabelTest, TheWheelTurnsInTheControlBeneath) {
  const QPoint onScreen = Control.ClientToScreen({160, 55});
  QWheelEvent event(Label()->mapFromGlobal(onScreen), onScreen, {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(Label(), &event);
  EXPECT_EQ(Log(), "control wheel -120");
}

TEST_F(HintLabelTest, AMenuIsAskedOfTheControlBeneath) {
  const QPoint onScreen = Control.ClientToScreen({160, 55});
  Control.OnContextPopup = [this](TObject*, QPoint place, bool& isDone) {
    FLog += QStringLiteral("menu %1,%2").arg(place.x()).arg(place.y());
    isDone = true;
  };
  QContextMenuEvent event(QContextMenuEvent::Mouse, Label()->mapFromGlobal(onScreen), onScreen);
  QApplication::sendEvent(Label(), &event);
  EXPECT_EQ(Log(), "menu 160,55");
}

TEST_F(HintLabelTest, WhatIsPressedGetsTheReleaseWhereverThatIs) {
  Press({160, 55});
  Drag({210, 55});
  Release({-30, 500});
  EXPECT_EQ(Log(), "control down 160,55, control move 210,55, control up -30,500");
}

TEST_F(HintLabelTest, APressOverAChildIsTheChilds) {
  Press({210, 55});
  Release({210, 55});
  EXPECT_EQ(Log(), "control left, child down 10,55, child up 10,55");
}

TEST_F(HintLabelTest, WhereAChildIsBeneathTheControlHasBeenLeft) {
  Send(QEvent::MouseMove, {210, 55});
  EXPECT_EQ(Log(), "control left, child move 10,55");
}

TEST_F(HintLabelTest, TheControlIsLeftOnce) {
  Send(QEvent::MouseMove, {210, 55});
  Send(QEvent::MouseMove, {211, 55});
  EXPECT_EQ(Log(), "control left, child move 10,55, child move 11,55");
}

TEST_F(HintLabelTest, BesideTheControlNothingGetsThePressButTheControlHasBeenLeft) {
  ShowHint({350, 50});
  Press({420, 55});
  EXPECT_EQ(Log(), "control left");
}

TEST_F(HintLabelTest, AHintThatIsHiddenUnderAButtonStillGetsTheRelease) {
  Press({160, 55});
  Hint.HideHint();
  EXPECT_FALSE(Hint.IsShown());
  EXPECT_TRUE(Label()->isVisible());
  EXPECT_FALSE(Label()->geometry().intersects(FWindow->Window()->geometry()));
  Log();
  Release({170, 55});
  EXPECT_EQ(Log(), "control up 170,55");
  EXPECT_FALSE(Label()->isVisible());
}

TEST_F(HintLabelTest, AHintThatComesBackUnderAButtonStaysAfterTheRelease) {
  Press({160, 55});
  Hint.HideHint();
  ShowHint({150, 50});
  Release({160, 55});
  EXPECT_TRUE(Hint.IsShown());
}

TEST_F(HintLabelTest, AHandlerOfThePressMayFreeTheControlWithItsHint) {
  Control.OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { FControl.reset(); };
  Press({160, 55});
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Label(), nullptr);
}

TEST_F(HintLabelTest, AHandlerOfThePressMayFreeTheHint) {
  Control.OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { delete &Hint; };
  Press({160, 55});
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Label(), nullptr);
}

TEST_F(HintLabelTest, TheMouseFindsNothingInAHintOfNobodys) {
  delete &Hint;
  const auto lone = Make<TKTHintWindow>();
  lone->ActivateHint(Control.ClientToScreen({150, 50}), QStringLiteral("a"));
  Press({152, 52});
  Release({152, 52});
  EXPECT_EQ(Log(), "");
  EXPECT_FALSE(lone->IsUnderPointer());
}

}  // namespace
}  // namespace kt
