#include "kt/vcl/comctrls/TrackBar.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/comctrls/RangeErrors.h"
#include "kt/vcl/comctrls/TrackBarView.h"
#include "kt/vcl/controls/Publish.h"

#include <algorithm>
#include <utility>

namespace kt {

const TClassInfo* TTrackBar::Class() {
  using T = TTrackBar;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TTrackBar");
    Publish::Align(builder);
    Publish::Anchors(builder);
    Publish::Constraints(builder);
    Publish::Ctl3D(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    builder.Property<&T::GetLineSize, &T::SetLineSize>("LineSize").Default(1);
    builder.Property<&T::GetMax, &T::SetMax>("Max").Default(10);
    builder.Property<&T::GetMin, &T::SetMin>("Min").Default(0);
    builder.Property<&T::GetOrientation, &T::SetOrientation>("Orientation").Default(trHorizontal);
    Publish::ParentShowHint(builder);
    builder.Property<&T::GetPageSize, &T::SetPageSize>("PageSize").Default(2);
    Publish::PopupMenu(builder);
    builder.Property<&T::GetFrequency, &T::SetFrequency>("Frequency").Default(1);
    builder.Property<&T::GetPosition, &T::SetPosition>("Position").Default(0);
    builder.Property<&T::IsSliderVisible, &T::SetSliderVisible>("SliderVisible").Default(true);
    builder.Property<&T::GetSelEnd, &T::SetSelEnd>("SelEnd").Default(0);
    builder.Property<&T::GetSelStart, &T::SetSelStart>("SelStart").Default(0);
    Publish::ShowHint(builder);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, true);
    builder.Property<&T::GetThumbLength, &T::SetThumbLength>("ThumbLength").Default(20);
    builder.Property<&T::GetTickMarks, &T::SetTickMarks>("TickMarks").Default(tmBottomRight);
    builder.Property<&T::GetTickStyle, &T::SetTickStyle>("TickStyle").Default(tsAuto);
    Publish::Visible(builder);
    builder.Property<&T::OnChange>("OnChange");
    builder.Property<&TControl::OnContextPopup>("OnContextPopup");
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    Publish::KeyEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TTrackBar::Construct() {
  TWinControl::Construct();
  SetTabStop(true);
  SetBounds(0, 0, 150, 45);
}

void TTrackBar::CheckRange(int min, int max) const {
  if (max < min) throw EInvalidOperation(Format(SPropertyOutOfRange, {ClassName()}));
}

void TTrackBar::SetParams(int position, int min, int max) {
  const bool isLoading = HasState(csLoading);
  // What a form says comes one by one, and is whole only at its end.
  if (!isLoading) {
    CheckRange(min, max);
    position = std::clamp(position, min, max);
  }
  FMin = min;
  FMax = max;
  const bool isMoved = std::exchange(FPosition, position) != position;
  if (isLoading) return;
  ShowState();
  if (isMoved) Changed();
}

void TTrackBar::Loaded() {
  TWinControl::Loaded();
  CheckRange(FMin, FMax);
  FPosition = std::clamp(FPosition, FMin, FMax);
  ShowState();
}

void TTrackBar::SetLineSize(int value) {
  FLineSize = value;
  ShowState();
}

void TTrackBar::SetPageSize(int value) {
  FPageSize = value;
  ShowState();
}

void TTrackBar::SetSelStart(int value) {
  FSelStart = value;
  ShowState();
}

void TTrackBar::SetSelEnd(int value) {
  FSelEnd = value;
  ShowState();
}

void TTrackBar::SetOrientation(TTrackBarOrientation value) {
  if (FOrientation == value) return;
  FOrientation = value;
  if (!HasState(csLoading)) SetBounds(GetLeft(), GetTop(), GetHeight(), GetWidth());
  ShowState();
}

void TTrackBar::SetSliderVisible(bool value) {
  FSliderVisible = value;
  ShowState();
}

void TTrackBar::SetFrequency(int value) {
  FFrequency = value;
  ShowState();
}

void TTrackBar::SetTickMarks(TTickMark value) {
  FTickMarks = value;
  ShowState();
}

void TTrackBar::SetTickStyle(TTickStyle value) {
  FTickStyle = value;
  ShowState();
}

void TTrackBar::MovedByUser(int position) {
  if (FPosition == position) return;
  FPosition = position;
  Changed();
}

}  // namespace kt
