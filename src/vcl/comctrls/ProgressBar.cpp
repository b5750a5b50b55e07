#include "kt/vcl/comctrls/ProgressBar.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/comctrls/RangeErrors.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/Publish.h"

#include <QProgressBar>

#include <algorithm>

namespace kt {

const TClassInfo* TProgressBar::Class() {
  using T = TProgressBar;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TProgressBar");
    Publish::Align(builder);
    Publish::Anchors(builder);
    Publish::Constraints(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    // The range before what lies in it.
    builder.Property<&T::GetMin, &T::SetMin>("Min").Default(0);
    builder.Property<&T::GetMax, &T::SetMax>("Max").Default(100);
    builder.Property<&T::GetOrientation, &T::SetOrientation>("Orientation").Default(pbHorizontal);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    builder.Property<&T::GetPosition, &T::SetPosition>("Position").Default(0);
    Publish::ShowHint(builder);
    builder.Property<&T::IsSmooth, &T::SetSmooth>("Smooth").Default(false);
    builder.Property<&T::GetStep, &T::SetStep>("Step").Default(10);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, false);
    Publish::Visible(builder);
    builder.Property<&TControl::OnContextPopup>("OnContextPopup");
    Publish::ButtonEvents(builder);
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TProgressBar::Construct() {
  TWinControl::Construct();
  SetBounds(0, 0, 150, 17);
}

void TProgressBar::CheckRange(int min, int max) const {
  if (max < min) throw EInvalidOperation(Format(SPropertyOutOfRange, {ClassName()}));
}

void TProgressBar::SetRange(int min, int max) {
  if (!HasState(csLoading)) {
    CheckRange(min, max);
    FPosition = std::clamp(FPosition, min, max);
  }
  FMin = min;
  FMax = max;
  ShowState();
}

void TProgressBar::SetPosition(int value) {
  // The range that it lies in may come later in the form.
  FPosition = HasState(csLoading) ? value : std::clamp(value, FMin, FMax);
  ShowState();
}

void TProgressBar::Loaded() {
  TWinControl::Loaded();
  CheckRange(FMin, FMax);
  FPosition = std::clamp(FPosition, FMin, FMax);
  ShowState();
}

void TProgressBar::SetOrientation(TProgressBarOrientation value) {
  if (FOrientation == value) return;
  FOrientation = value;
  ShowState();
}

void TProgressBar::StepIt() {
  const qint64 next = qint64{FPosition} + FStep;
  const qint64 range = qint64{FMax} - FMin;
  const bool isPast = next > FMax && range > 0;
  SetPosition(static_cast<int>(isPast ? FMin + (next - FMin) % range : std::clamp<qint64>(next, FMin, FMax)));
}

void TProgressBar::StepBy(int delta) {
  SetPosition(static_cast<int>(std::clamp<qint64>(qint64{FPosition} + delta, FMin, FMax)));
}

// The window.

QProgressBar* TProgressBar::Bar() const { return static_cast<QProgressBar*>(Window()); }

QWidget* TProgressBar::CreateBody(QWidget* parent) { return new TBodyOf<QProgressBar>(this, parent); }

void TProgressBar::CreateWnd() {
  TWinControl::CreateWnd();
  Bar()->setTextVisible(false);
  ShowState();
}

void TProgressBar::CMBiDiModeChanged(TMessage& message) {
  TWinControl::CMBiDiModeChanged(message);
  ShowState();
}

void TProgressBar::ShowState() {
  QProgressBar* bar = Bar();
  if (!bar || FMax < FMin || HasState(csLoading)) return;
  bar->setOrientation(FOrientation == pbVertical ? Qt::Vertical : Qt::Horizontal);
  if (GetParent() || !IsParentBiDiMode()) {
    bar->setLayoutDirection(UseRightToLeftAlignment() ? Qt::RightToLeft : Qt::LeftToRight);
  }
  // For Qt a range of nothing at all means that nobody knows how long it takes.
  bar->setRange(FMin, FMin == FMax ? FMax + 1 : FMax);
  bar->setValue(FPosition);
}

}  // namespace kt
