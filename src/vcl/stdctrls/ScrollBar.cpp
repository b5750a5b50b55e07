#include "kt/vcl/stdctrls/ScrollBar.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/Publish.h"

#include <algorithm>
#include <utility>

namespace kt {

const TClassInfo* TScrollBar::Class() {
  using T = TScrollBar;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TScrollBar");
    Publish::Align(builder);
    Publish::Anchors(builder);
    Publish::BiDiMode(builder);
    Publish::Constraints(builder);
    Publish::Ctl3D(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    builder.Property<&T::GetKind, &T::SetKind>("Kind").Default(sbHorizontal);
    builder.Property<&T::GetLargeChange, &T::SetLargeChange>("LargeChange").Default(1);
    builder.Property<&T::GetMax, &T::SetMax>("Max").Default(100);
    builder.Property<&T::GetMin, &T::SetMin>("Min").Default(0);
    builder.Property<&T::GetPageSize, &T::SetPageSize>("PageSize").Default(0);
    Publish::ParentBiDiMode(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    builder.Property<&T::GetPosition, &T::SetPosition>("Position").Default(0);
    Publish::ShowHint(builder);
    builder.Property<&T::GetSmallChange, &T::SetSmallChange>("SmallChange").Default(1);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, true);
    Publish::Visible(builder);
    builder.Property<&T::OnChange>("OnChange");
    builder.Property<&TControl::OnContextPopup>("OnContextPopup");
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    Publish::KeyEvents(builder);
    builder.Property<&T::OnScroll>("OnScroll");
    return builder.Creatable().Done();
  }();
  return &info;
}

void TScrollBar::Construct() {
  TWinControl::Construct();
  SetControlStyle({csFramed, csDoubleClicks, csOpaque});
  SetTabStop(true);
  SetBounds(0, 0, 121, 17);
}

void TScrollBar::SetKind(TScrollBarKind value) {
  if (FKind == value) return;
  FKind = value;
  if (!HasState(csLoading)) SetBounds(GetLeft(), GetTop(), GetHeight(), GetWidth());
  ShowState();
}

void TScrollBar::CheckRange(int min, int max) const {
  if (max < min || (FPageSize > 0 && max < FPageSize))
    throw EInvalidOperation(QStringLiteral("Scroll bar property out of range"));
}

void TScrollBar::SetParams(int position, int min, int max) {
  const bool isLoading = HasState(csLoading);
  // What a form says comes one by one, and is whole only at its end.
  if (!isLoading) {
    CheckRange(min, max);
    position = std::clamp(position, min, max);
  }
  const bool isOtherRange = FMin != min || FMax != max;
  FMin = min;
  FMax = max;
  const bool isMoved = std::exchange(FPosition, position) != position;
  if (isLoading) return;
  isOtherRange ? ShowState() : ShowPosition();
  if (isMoved) Change();
}

void TScrollBar::Loaded() {
  TWinControl::Loaded();
  CheckRange(FMin, FMax);
  FPosition = std::clamp(FPosition, FMin, FMax);
  ShowState();
}

void TScrollBar::SetPageSize(int value) {
  if (FPageSize == value || (value > FMax && !HasState(csLoading))) return;
  FPageSize = value;
  ShowState();
}

int TScrollBar::LastPosition() const {
  const qint64 last = FPageSize > 0 ? qint64{FMax} - FPageSize + 1 : FMax;
  return static_cast<int>(std::max<qint64>(last, FMin));
}

// What the user does.

void TScrollBar::ScrollTo(TScrollCode code, qint64 where) {
  int position = static_cast<int>(std::clamp<qint64>(where, FMin, LastPosition()));
  const TLifeWatch self(this);
  FIsScrolling = code != scEndScroll;
  Scroll(code, position);
  if (self.IsAlive()) SetPosition(position);
}

void TScrollBar::ScrollByUser(TScrollCode code) {
  switch (code) {
    case scLineUp:
      return ScrollTo(code, qint64{FPosition} - FSmallChange);
    case scLineDown:
      return ScrollTo(code, qint64{FPosition} + FSmallChange);
    case scPageUp:
      return ScrollTo(code, qint64{FPosition} - FLargeChange);
    case scPageDown:
      return ScrollTo(code, qint64{FPosition} + FLargeChange);
    case scTop:
      return ScrollTo(code, FMin);
    case scBottom:
      return ScrollTo(code, LastPosition());
    default:
      return ScrollTo(code, FPosition);
  }
}

void TScrollBar::EndScroll() {
  if (FIsScrolling) ScrollTo(scEndScroll, FPosition);
}

}  // namespace kt
