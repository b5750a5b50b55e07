#include "kt/vcl/forms/ScrollingControl.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <QStyle>

#include <algorithm>
#include <utility>

namespace kt {

namespace {

/// How many increments a step of the wheel scrolls by.
constexpr int kWheelIncrements = 6;

/// The way that a span has to be scrolled to be seen, the beginning before all.
int WayInto(int start, int length, int room) {
  if (start < 0 || length > room) return start;
  return std::max(start + length - room, 0);
}

/// Whether a control keeps to the beginning alone, so that it does not move with the size of its parent.
bool IsAtStart(const TControl& control, TAnchorKind start, TAnchorKind end) {
  return control.GetAnchors().Has(start) && !control.GetAnchors().Has(end);
}

}  // namespace

const TClassInfo* TScrollingWinControl::Class() {
  static const TClassInfo info = TClassBuilder<TScrollingWinControl>("TScrollingWinControl").Done();
  return &info;
}

TScrollingWinControl::~TScrollingWinControl() = default;

void TScrollingWinControl::Construct() {
  FHorzScrollBar = Make<TControlScrollBar>(*this, Qt::Horizontal);
  FVertScrollBar = Make<TControlScrollBar>(*this, Qt::Vertical);
  TCustomControl::Construct();
}

void TScrollingWinControl::Destruct() {
  TCustomControl::Destruct();
  FHorzScrollBar.reset();
  FVertScrollBar.reset();
}

void TScrollingWinControl::Loaded() {
  const TLifeWatch self(this);
  TCustomControl::Loaded();
  if (self.IsAlive()) ScrollBarsChanged();
}

void TScrollingWinControl::SetAutoScroll(bool value) {
  if (FAutoScroll == value) return;
  FAutoScroll = value;
  const TLifeWatch self(this);
  if (value) CalcAutoRange();
  if (!value && !HasState(csLoading)) FHorzScrollBar->StoreRange(0);
  if (!value && self.IsAlive() && !HasState(csLoading)) FVertScrollBar->StoreRange(0);
}

void TScrollingWinControl::SetHorzScrollBar(const TControlScrollBar& value) {
  FHorzScrollBar->Assign(const_cast<TControlScrollBar*>(&value));
}

void TScrollingWinControl::SetVertScrollBar(const TControlScrollBar& value) {
  FVertScrollBar->Assign(const_cast<TControlScrollBar*>(&value));
}

void TScrollingWinControl::SetBorderWidth(int value) {
  value = std::max(value, 0);
  if (FBorderWidth == value) return;
  FBorderWidth = value;
  const TLifeWatch self(this);
  PlaceChildWindows();
  Invalidate();
  Realign();
  if (self.IsAlive()) ScrollBarsChanged();
}

// The scroll bars.

void TScrollingWinControl::CreateWnd() {
  TCustomControl::CreateWnd();
  FBarWidth = Window()->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, Window());
  ScrollBarsChanged();
}

void TScrollingWinControl::DestroyWnd() {
  FHorzScrollBar->FIsShown = false;
  FVertScrollBar->FIsShown = false;
  TCustomControl::DestroyWnd();
}

/// In a designer aligned controls stay as large as the form says, wherever the others are put.
void TScrollingWinControl::CalcAutoRange() {
  if (!FAutoScroll || HasState(csDesigning) || HasState(csLoading) || HasState(csDestroying)) return;
  int right = 0;
  int bottom = 0;
  int beside = 0;
  int below = 0;
  for (int i = 0; i < GetControlCount(); ++i) {
    const TControl& child = *GetControls(i);
    if (!child.IsVisible()) continue;
    const TAlign align = child.GetAlign();
    const bool isFree = align == alNone || align == alCustom;
    if (align == alLeft || (isFree && IsAtStart(child, akLeft, akRight))) {
      right = std::max(right, FHorzScrollBar->FPosition + child.GetLeft() + child.GetWidth());
    }
    if (align == alTop || (isFree && IsAtStart(child, akTop, akBottom))) {
      bottom = std::max(bottom, FVertScrollBar->FPosition + child.GetTop() + child.GetHeight());
    }
    if (align == alRight) beside += child.GetWidth();
    if (align == alBottom) below += child.GetHeight();
  }
  const TLifeWatch self(this);
  FHorzScrollBar->StoreRange(right + beside > 0 ? right + beside + FHorzScrollBar->FMargin : 0);
  if (self.IsAlive()) FVertScrollBar->StoreRange(bottom + below > 0 ? bottom + below + FVertScrollBar->FMargin : 0);
}

void TScrollingWinControl::ScrollBarsChanged() {
  if (FIsUpdatingBars || HasState(csDestroying)) return;
  const TLifeWatch self(this);
  const QSize before = GetClientRect().size();
  {
    const TLiveFlag updating(this, FIsUpdatingBars);
    CalcAutoRange();
    if (self.IsAlive()) ShowScrollBars();
  }
  if (!self.IsAlive()) return;
  PlaceChildWindows();
  if (GetClientRect().size() != before) Realign();
  if (!self.IsAlive() || HasState(csLoading)) return;
  // What is scrolled further than it can be comes back.
  FHorzScrollBar->SetPosition(std::min(FHorzScrollBar->FPosition, FHorzScrollBar->GetLastPosition()));
  if (self.IsAlive()) {
    FVertScrollBar->SetPosition(std::min(FVertScrollBar->FPosition, FVertScrollBar->GetLastPosition()));
  }
  if (self.IsAlive()) PlaceScrollBars();
}

/// One bar takes room from the other direction and may make the other one needed, but never superfluous.
void TScrollingWinControl::ShowScrollBars() {
  if (!HandleAllocated()) return;
  const QMargins outer = OuterMargins();
  int width = GetWidth() - outer.left() - outer.right();
  int height = GetHeight() - outer.top() - outer.bottom();
  bool hasHorz = false;
  bool hasVert = false;
  for (int pass = 0; pass < 2; ++pass) {
    if (!hasVert && FVertScrollBar->WantsBar(height)) {
      hasVert = true;
      width -= FBarWidth;
    }
    if (!hasHorz && FHorzScrollBar->WantsBar(width)) {
      hasHorz = true;
      height -= FBarWidth;
    }
  }
  FHorzScrollBar->ShowBar(*Window(), hasHorz);
  FVertScrollBar->ShowBar(*Window(), hasVert);
}

void TScrollingWinControl::PlaceScrollBars() {
  if (!HandleAllocated()) return;
  const QRect client(GetClientOrigin(), GetClientRect().size());
  const int right = client.x() + client.width();
  const int bottom = client.y() + client.height();
  FHorzScrollBar->PlaceBar({client.x(), bottom, client.width(), FBarWidth});
  FVertScrollBar->PlaceBar(
      {UseRightToLeftAlignment() ? client.x() - FBarWidth : right, client.y(), FBarWidth, client.height()});
}

QMargins TScrollingWinControl::OuterMargins() const {
  QMargins margins = GetClientMargins();
  if (FHorzScrollBar->IsShown()) margins.setBottom(margins.bottom() - FBarWidth);
  if (!FVertScrollBar->IsShown()) return margins;
  if (UseRightToLeftAlignment()) {
    margins.setLeft(margins.left() - FBarWidth);
  } else {
    margins.setRight(margins.right() - FBarWidth);
  }
  return margins;
}

QMargins TScrollingWinControl::GetClientMargins() const {
  QMargins margins = TCustomControl::GetClientMargins() + FBorderWidth;
  if (FHorzScrollBar && FHorzScrollBar->IsShown()) margins.setBottom(margins.bottom() + FBarWidth);
  if (!FVertScrollBar || !FVertScrollBar->IsShown()) return margins;
  if (UseRightToLeftAlignment()) {
    margins.setLeft(margins.left() + FBarWidth);
  } else {
    margins.setRight(margins.right() + FBarWidth);
  }
  return margins;
}

void TScrollingWinControl::BoundsUpdated() {
  TCustomControl::BoundsUpdated();
  if (FHorzScrollBar && FVertScrollBar) ScrollBarsChanged();
}

void TScrollingWinControl::CMBiDiModeChanged(TMessage& message) {
  const TLifeWatch self(this);
  TCustomControl::CMBiDiModeChanged(message);
  if (!self.IsAlive()) return;
  PlaceChildWindows();
  PlaceScrollBars();
}

// The children.

void TScrollingWinControl::AlignControls(QRect& rect) {
  const TLifeWatch self(this);
  ScrollBarsChanged();
  if (!self.IsAlive()) return;
  rect = GetClientRect();
  TCustomControl::AlignControls(rect);
}

/// Aligned children share all that can be scrolled to.
void TScrollingWinControl::AdjustClientRect(QRect& rect) {
  TCustomControl::AdjustClientRect(rect);
  rect = QRect(rect.x() - FHorzScrollBar->FPosition, rect.y() - FVertScrollBar->FPosition,
               std::max(rect.width(), FHorzScrollBar->FRange), std::max(rect.height(), FVertScrollBar->FRange));
}

void TScrollingWinControl::ScrollContents(int deltaX, int deltaY) {
  const TLifeWatch self(this);
  ScrollBy(deltaX, deltaY);
  if (!self.IsAlive()) return;
  PlaceScrollBars();
  Invalidate();
}

void TScrollingWinControl::ScrollInView(TControl* control) {
  if (!control || control == this || !ContainsControl(control) || !HandleAllocated()) return;
  const QPoint corner = ScreenToClient(control->ClientToScreen({0, 0}));
  const int marginX = FHorzScrollBar->FMargin;
  const int marginY = FVertScrollBar->FMargin;
  const TLifeWatch self(this);
  const int x = WayInto(corner.x() - marginX, control->GetClientWidth() + 2 * marginX, GetClientWidth());
  const int y = WayInto(corner.y() - marginY, control->GetClientHeight() + 2 * marginY, GetClientHeight());
  FHorzScrollBar->SetPosition(FHorzScrollBar->FPosition + x);
  if (self.IsAlive()) FVertScrollBar->SetPosition(FVertScrollBar->FPosition + y);
}

void TScrollingWinControl::ControlFocused(TWinControl* control) {
  const TLifeWatch self(this);
  TCustomControl::ControlFocused(control);
  if (self.IsAlive() && FAutoScroll && !HasState(csDesigning)) ScrollInView(control);
}

bool TScrollingWinControl::DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) {
  const TLifeWatch self(this);
  if (TCustomControl::DoMouseWheel(shift, delta, isHorizontal, position)) return true;
  if (!self.IsAlive()) return true;
  TControlScrollBar& bar = isHorizontal || shift.Has(ssShift) ? *FHorzScrollBar : *FVertScrollBar;
  if (!bar.IsShown()) return false;
  bar.SetPosition(bar.FPosition - FWheel.Turn(delta) * kWheelIncrements * bar.FIncrement);
  return true;
}

}  // namespace kt
