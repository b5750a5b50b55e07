// Place and size of TControl, alignment and anchors.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/Control.h"
#include "kt/vcl/controls/WinControl.h"

#include <array>

namespace kt {

namespace {

/// The anchors that a control gets together with an alignment.
constexpr std::array<TAnchors, 7> kAnchorAlign = {
    TAnchors{akLeft, akTop},                     // alNone
    TAnchors{akLeft, akTop, akRight},            // alTop
    TAnchors{akLeft, akRight, akBottom},         // alBottom
    TAnchors{akLeft, akTop, akBottom},           // alLeft
    TAnchors{akRight, akTop, akBottom},          // alRight
    TAnchors{akLeft, akTop, akRight, akBottom},  // alClient
    TAnchors{akLeft, akTop},                     // alCustom
};

struct TSpan {
  int Start;
  int Length;
};

/// Where a span stands after its surroundings grew by `growth`.
TSpan Anchored(TSpan base, int growth, bool toStart, bool toEnd) {
  if (toStart && toEnd) return {base.Start, qMax(base.Length + growth, 0)};
  if (toEnd) return {base.Start + growth, base.Length};
  if (toStart) return base;
  return {base.Start + growth / 2, base.Length};
}

}  // namespace

void TControl::SetBounds(int left, int top, int width, int height) {
  const TLifeWatch self(this);
  if (!CheckNewSize(width, height) || !self.IsAlive()) return;
  const QRect bounds(left, top, qMax(width, 0), qMax(height, 0));
  if (bounds == GetBoundsRect()) return;
  const bool isResized = bounds.size() != GetBoundsRect().size();
  Invalidate();
  FLeft = bounds.x();
  FTop = bounds.y();
  FWidth = bounds.width();
  FHeight = bounds.height();
  BoundsUpdated();
  RememberAnchorBase();
  // The parent moves others, whose handlers may free this one.
  RequestAlign();
  if (self.IsAlive() && isResized && !HasState(csLoading)) Resize();
}

/// Whether the size may be had. It may be given another one, by handlers that free whatever they like.
bool TControl::CheckNewSize(int& width, int& height) {
  const TLifeWatch self(this);
  bool isAllowed = true;
  if (OnCanResize && !HasState(csLoading)) OnCanResize(this, width, height, isAllowed);
  if (!isAllowed || !self.IsAlive()) return false;
  if (!FConstraints) return true;
  TSizeLimits limits = FConstraints->GetLimits();
  if (OnConstrainedResize && !HasState(csLoading)) {
    OnConstrainedResize(this, limits.MinWidth, limits.MinHeight, limits.MaxWidth, limits.MaxHeight);
  }
  width = limits.ClampWidth(width);
  height = limits.ClampHeight(height);
  return self.IsAlive();
}

QRect TControl::GetClientRect() const {
  const QMargins margins = GetClientMargins();
  return {0, 0, qMax(FWidth - margins.left() - margins.right(), 0),
          qMax(FHeight - margins.top() - margins.bottom(), 0)};
}

void TControl::SetClientWidth(int value) {
  const QMargins margins = GetClientMargins();
  SetWidth(value + margins.left() + margins.right());
}

void TControl::SetClientHeight(int value) {
  const QMargins margins = GetClientMargins();
  SetHeight(value + margins.top() + margins.bottom());
}

void TControl::SetConstraints(const TSizeConstraints& value) {
  FConstraints->Assign(const_cast<TSizeConstraints*>(&value));
}

void TControl::ConstraintsChanged() { SetBounds(FLeft, FTop, FWidth, FHeight); }

void TControl::SetAlign(TAlign value) {
  if (FAlign == value) return;
  const TAlign previous = FAlign;
  FAlign = value;
  // Forms do not say the anchors that an alignment brings.
  if (FAnchors == kAnchorAlign[previous]) FAnchors = kAnchorAlign[value];
  RememberAnchorBase();
  RequestAlign();
}

void TControl::SetAnchors(TAnchors value) {
  if (FAnchors == value) return;
  FAnchors = value;
  RememberAnchorBase();
}

bool TControl::IsAnchorsStored() const { return FAnchors != kAnchorAlign[FAlign]; }

void TControl::RequestAlign() {
  if (FParent) FParent->AlignControl(this);
}

void TControl::RememberAnchorBase() {
  if (!FParent || FParent->IsAligning()) return;
  FAnchorBase = GetBoundsRect();
  FAnchorParent = FParent->GetClientRect().size();
}

/// The surroundings are scrolled: what the anchors keep to goes along.
void TControl::ScrollOn(int deltaX, int deltaY) {
  const QRect base = FAnchorBase.translated(deltaX, deltaY);
  const QSize parentSize = FAnchorParent;
  const TLifeWatch self(this);
  SetBounds(FLeft + deltaX, FTop + deltaY, FWidth, FHeight);
  if (!self.IsAlive()) return;
  FAnchorBase = base;
  FAnchorParent = parentSize;
}

bool TControl::IsMovedByAnchors() const { return FAlign == alNone && FAnchors != TAnchors{akLeft, akTop}; }

void TControl::ApplyAnchors(QSize parentSize) {
  if (!IsMovedByAnchors()) return;
  const QSize growth = parentSize - FAnchorParent;
  const TSpan x =
      Anchored({FAnchorBase.x(), FAnchorBase.width()}, growth.width(), FAnchors.Has(akLeft), FAnchors.Has(akRight));
  const TSpan y =
      Anchored({FAnchorBase.y(), FAnchorBase.height()}, growth.height(), FAnchors.Has(akTop), FAnchors.Has(akBottom));
  SetBounds(x.Start, y.Start, x.Length, y.Length);
}

}  // namespace kt
