// The window of TScrollBar.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/stdctrls/ScrollBar.h"

#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <cstdlib>

namespace kt {

namespace {

/// How many lines a step of the wheel leads on.
constexpr int kWheelLines = 3;

}  // namespace

QScrollBar* TScrollBar::Bar() const { return static_cast<QScrollBar*>(Window()); }

QWidget* TScrollBar::CreateBody(QWidget* parent) {
  auto* bar = new TBodyOf<QScrollBar>(this, parent);
  // One that stands by itself takes the keyboard, with it the wheel, when it is clicked; Qt's never does.
  if (IsTabStop()) bar->setFocusPolicy(Qt::StrongFocus);
  QObject::connect(bar, &QScrollBar::actionTriggered, bar, [this, bar](int action) {
    // An arrow or the bar beside the thumb that is held goes on by a timer.
    const TControlBody::TInEvent running;
    if (bar->Control()) GuardedCall([&] { ActionByUser(action); });
    if (bar->Control()) GuardedCall([&] { ShowPosition(); });
  });
  return bar;
}

void TScrollBar::CreateWnd() {
  TWinControl::CreateWnd();
  ShowState();
  UpdateDirection();
}

void TScrollBar::UpdateDirection() {
  if (!Bar() || (!GetParent() && IsParentBiDiMode())) return;
  Bar()->setLayoutDirection(UseRightToLeftAlignment() ? Qt::RightToLeft : Qt::LeftToRight);
}

void TScrollBar::CMBiDiModeChanged(TMessage& message) {
  TWinControl::CMBiDiModeChanged(message);
  UpdateDirection();
}

void TScrollBar::ShowState() {
  QScrollBar* bar = Bar();
  if (!bar || FMax < FMin) return;
  const QSignalBlocker blocker(bar);
  bar->setOrientation(FKind == sbVertical ? Qt::Vertical : Qt::Horizontal);
  bar->setInvertedControls(FKind == sbVertical);
  bar->setRange(FMin, LastPosition());
  // How long the thumb is; how far things lead is told from here.
  bar->setPageStep(std::max(FPageSize, 1));
  ShowPosition();
}

void TScrollBar::ShowPosition() {
  QScrollBar* bar = Bar();
  if (!bar) return;
  const QSignalBlocker blocker(bar);
  bar->setValue(FPosition);
}

void TScrollBar::ActionByUser(int action) {
  if (HasState(csDesigning)) return;
  switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
      return ScrollByUser(scLineDown);
    case QAbstractSlider::SliderSingleStepSub:
      return ScrollByUser(scLineUp);
    case QAbstractSlider::SliderPageStepAdd:
      return ScrollByUser(scPageDown);
    case QAbstractSlider::SliderPageStepSub:
      return ScrollByUser(scPageUp);
    case QAbstractSlider::SliderToMinimum:
      return ScrollByUser(scTop);
    case QAbstractSlider::SliderToMaximum:
      return ScrollByUser(scBottom);
    default:
      return ScrollTo(scTrack, Bar()->sliderPosition());
  }
}

bool TScrollBar::WantsKey(quint16 key) { return (key >= VK_LEFT && key <= VK_DOWN) || TWinControl::WantsKey(key); }

void TScrollBar::DefaultHandler(TMessage& message) {
  TWinControl::DefaultHandler(message);
  const bool isMouse = message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_MBUTTONDBLCLK;
  const bool isKey = message.Msg == WM_KEYDOWN || message.Msg == WM_KEYUP;
  if ((!isMouse && !isKey) || !Bar() || HasState(csDesigning)) return;
  const bool isThumb = message.Msg == WM_LBUTTONUP && Bar()->isSliderDown();
  const TLifeWatch self(this);
  TControlBody::Of(Bar())->RunInherited();
  if (!self.IsAlive() || (message.Msg != WM_LBUTTONUP && message.Msg != WM_KEYUP)) return;
  if (isThumb && FIsScrolling) ScrollByUser(scPosition);
  if (self.IsAlive()) EndScroll();
}

bool TScrollBar::DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) {
  const TLifeWatch self(this);
  if (TWinControl::DoMouseWheel(shift, delta, isHorizontal, position)) return true;
  // Nobody scrolls by passing over it.
  if (!self.IsAlive() || !Focused() || HasState(csDesigning)) return !self.IsAlive();
  const int steps = FWheel.Turn(delta);
  for (int i = 0; self.IsAlive() && i < std::abs(steps) * kWheelLines; ++i) {
    ScrollByUser(steps > 0 ? scLineUp : scLineDown);
  }
  if (self.IsAlive() && steps != 0) EndScroll();
  return true;
}

}  // namespace kt
