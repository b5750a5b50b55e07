// The window of TTrackBar.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/comctrls/TrackBarView.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/VirtualKeys.h"

#include <QSignalBlocker>

#include <algorithm>
#include <limits>

namespace kt {

namespace {

QSlider::TickPosition SidesOf(TTickMark marks, bool isUpright) {
  if (marks == tmBoth) return QSlider::TicksBothSides;
  const bool isFirst = marks == tmTopLeft;
  if (isUpright) return isFirst ? QSlider::TicksLeft : QSlider::TicksRight;
  return isFirst ? QSlider::TicksAbove : QSlider::TicksBelow;
}

}  // namespace

TTrackBar::TView* TTrackBar::View() const { return static_cast<TView*>(Window()); }

QWidget* TTrackBar::CreateBody(QWidget* parent) {
  auto* view = new TBodyOf<TView>(this, parent);
  QObject::connect(view, &QSlider::valueChanged, view, [this, view](int position) {
    // A bar that is held goes on by a timer.
    const TControlBody::TInEvent running;
    if (view->Control()) GuardedCall([&] { MovedByUser(position); });
  });
  return view;
}

void TTrackBar::CreateWnd() {
  TWinControl::CreateWnd();
  ShowState();
}

void TTrackBar::CMBiDiModeChanged(TMessage& message) {
  TWinControl::CMBiDiModeChanged(message);
  ShowState();
}

void TTrackBar::ShowState() {
  TView* view = View();
  if (!view || FMax < FMin || HasState(csLoading)) return;
  const QSignalBlocker blocker(view);
  const bool isUpright = FOrientation == trVertical;
  view->setOrientation(isUpright ? Qt::Vertical : Qt::Horizontal);
  view->setInvertedAppearance(isUpright);
  view->setInvertedControls(isUpright);
  if (GetParent() || !IsParentBiDiMode()) {
    view->setLayoutDirection(UseRightToLeftAlignment() ? Qt::RightToLeft : Qt::LeftToRight);
  }
  view->setRange(FMin, FMax);
  view->setSingleStep(FLineSize);
  view->setPageStep(FPageSize);
  view->setValue(FPosition);
  view->SetSelection(FSelStart, FSelEnd);
  view->SetSliderShown(FSliderVisible);
  ShowTicks(*view);
}

void TTrackBar::ShowTicks(TView& view) const {
  const bool isUpright = FOrientation == trVertical;
  view.setTickPosition(FTickStyle == tsNone ? QSlider::NoTicks : SidesOf(FTickMarks, isUpright));
  const qint64 range = std::clamp<qint64>(qint64{FMax} - FMin, 1, std::numeric_limits<int>::max());
  view.setTickInterval(FTickStyle == tsManual ? static_cast<int>(range) : std::max(FFrequency, 1));
}

bool TTrackBar::WantsKey(quint16 key) { return (key >= VK_LEFT && key <= VK_DOWN) || TWinControl::WantsKey(key); }

void TTrackBar::DefaultHandler(TMessage& message) {
  TWinControl::DefaultHandler(message);
  const bool isMouse = message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_MBUTTONDBLCLK;
  const bool isKey = message.Msg == WM_KEYDOWN || message.Msg == WM_KEYUP;
  if ((isMouse || isKey) && View() && !HasState(csDesigning)) TControlBody::Of(View())->RunInherited();
}

bool TTrackBar::DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) {
  const TLifeWatch self(this);
  if (TWinControl::DoMouseWheel(shift, delta, isHorizontal, position)) return true;
  // Nobody moves it by passing over it.
  if (!self.IsAlive() || !Focused() || HasState(csDesigning)) return !self.IsAlive();
  const int steps = FWheel.Turn(delta);
  // Away from the user is up, where an upright one has its least value, and what lies has its greatest.
  const qint64 way = qint64{steps} * FLineSize * (FOrientation == trVertical ? -1 : 1);
  SetPosition(static_cast<int>(std::clamp<qint64>(FPosition + way, FMin, FMax)));
  return true;
}

}  // namespace kt
