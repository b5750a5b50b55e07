// How TWinControl places its children.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/vcl/controls/WinControl.h"

#include <algorithm>

namespace kt {

namespace {

/// Where a control stands in the row of those that keep to the same side: the outermost first.
int DistanceFromSide(const TControl* control, TAlign align) {
  switch (align) {
    case alTop:
      return control->GetTop();
    case alBottom:
      return -(control->GetTop() + control->GetHeight());
    case alLeft:
      return control->GetLeft();
    case alRight:
      return -(control->GetLeft() + control->GetWidth());
    default:
      return 0;
  }
}

/// Where a control of that size belongs in `rect`.
QRect PlaceIn(const QRect& rect, TAlign align, QSize size) {
  switch (align) {
    case alTop:
      return {rect.x(), rect.y(), rect.width(), size.height()};
    case alBottom:
      return {rect.x(), rect.y() + rect.height() - size.height(), rect.width(), size.height()};
    case alLeft:
      return {rect.x(), rect.y(), size.width(), rect.height()};
    case alRight:
      return {rect.x() + rect.width() - size.width(), rect.y(), size.width(), rect.height()};
    default:
      return rect;
  }
}

/// Takes the room of what stands on a side of `rect` away from it.
void TakeAway(QRect& rect, TAlign align, const TControl& control) {
  switch (align) {
    case alTop:
      return rect.setTop(rect.y() + control.GetHeight());
    case alBottom:
      return rect.setHeight(rect.height() - control.GetHeight());
    case alLeft:
      return rect.setLeft(rect.x() + control.GetWidth());
    case alRight:
      return rect.setWidth(rect.width() - control.GetWidth());
    default:
      return;
  }
}

/// The control, if it is still there and in its parent.
TControl* StillIn(const TWinControl* parent, const TObjectRef& child) {
  auto* const control = static_cast<TControl*>(child.Get());
  return control && control->GetParent() == parent ? control : nullptr;
}

}  // namespace

void TWinControl::EnableAlign() {
  if (--FAlignLevel == 0 && FAlignNeeded) Realign();
}

void TWinControl::AlignControl(TControl*) {
  if (FIsAligning || HasState(csDestroying)) return;
  if (FAlignLevel > 0 || HasState(csLoading)) {
    FAlignNeeded = true;
    return;
  }
  FAlignNeeded = false;
  const TLiveFlag aligning(this, FIsAligning);
  QRect rect = GetClientRect();
  AlignControls(rect);
}

void TWinControl::AlignControls(QRect& rect) {
  const TLifeWatch self(this);
  AlignAnchored(rect);
  if (self.IsAlive()) AdjustClientRect(rect);
  for (TAlign align : {alTop, alBottom, alLeft, alRight, alClient}) {
    if (self.IsAlive()) AlignSide(align, rect);
  }
}

/// The handlers of a child that is resized may free this one, or change who its children are.
void TWinControl::AlignAnchored(const QRect& rect) {
  std::vector<TObjectRef> anchored;
  for (TControl* control : FControls) {
    if (control->IsMovedByAnchors()) anchored.emplace_back(control);
  }
  const TLifeWatch self(this);
  for (const TObjectRef& child : anchored) {
    TControl* const control = self.IsAlive() ? StillIn(this, child) : nullptr;
    if (control) control->ApplyAnchors(rect.size());
  }
}

void TWinControl::RebaseAnchors() {
  for (TControl* control : FControls) control->RememberAnchorBase();
}

void TWinControl::AlignSide(TAlign align, QRect& rect) {
  std::vector<TControl*> controls;
  std::copy_if(FControls.begin(), FControls.end(), std::back_inserter(controls), [&](const TControl* control) {
    return control->GetAlign() == align && (control->IsVisible() || control->HasState(csDesigning));
  });
  std::stable_sort(controls.begin(), controls.end(), [align](const TControl* a, const TControl* b) {
    return DistanceFromSide(a, align) < DistanceFromSide(b, align);
  });
  const std::vector<TObjectRef> children(controls.begin(), controls.end());
  const TLifeWatch self(this);
  for (const TObjectRef& child : children) {
    TControl* control = self.IsAlive() ? StillIn(this, child) : nullptr;
    if (!control) continue;
    const QRect place = PlaceIn(rect, align, control->GetBoundsRect().size());
    control->SetBounds(place.x(), place.y(), place.width(), place.height());
    control = self.IsAlive() ? StillIn(this, child) : nullptr;
    if (control) TakeAway(rect, align, *control);
  }
}

void TWinControl::ScrollBy(int deltaX, int deltaY) {
  const std::vector<TObjectRef> children(FControls.begin(), FControls.end());
  const TLifeWatch self(this);
  DisableAlign();
  for (const TObjectRef& child : children) {
    if (TControl* const control = self.IsAlive() ? StillIn(this, child) : nullptr) control->ScrollOn(deltaX, deltaY);
  }
  if (self.IsAlive()) EnableAlign();
}

void TWinControl::SetBounds(int left, int top, int width, int height) {
  const QSize before = GetClientRect().size();
  const TLifeWatch self(this);
  TControl::SetBounds(left, top, width, height);
  if (self.IsAlive() && GetClientRect().size() != before) AlignControl(nullptr);
}

}  // namespace kt
