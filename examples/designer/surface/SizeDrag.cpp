// Sizing controls with the mouse and the arrow keys.
#include "designer/surface/Bounds.h"
#include "designer/surface/Drag.h"
#include "designer/surface/StandIns.h"
#include "kt/vcl/comctrls/TabSheet.h"

#include <algorithm>

namespace designer {

using namespace kt;

namespace {

/// An edge that was dragged; along the grid that begins at `origin`.
int MovedEdge(int edge, int by, int origin, bool isFree) {
  return isFree ? edge + by : Snapped(edge + by - origin) + origin;
}

class TSizeDrag final : public TDrag {
 public:
  TSizeDrag(TSession& session, TComponent& component, const THandle& handle, QPoint from)
      : FSession(session),
        FSized(&component),
        FHandle(handle),
        FFrom(from),
        FBounds(BoundsOf(component).value_or(QRect())) {}

  void MoveTo(QPoint point, bool isFree) override {
    const QPoint by = point - FFrom;
    FHasBegun = FHasBegun || !by.isNull();
    if (FHasBegun) SetBounds(by, isFree);
  }
  void Drop() override {
    if (FSized && FHasBegun) FSession.Edited(StepText(QStringLiteral("Size"), {&Sized()}));
  }
  void Cancel() override {
    if (!FSized) return;
    SetBoundsOf(Sized(), FBounds);
    FSession.Editing();
  }

 private:
  TComponent& Sized() const { return *static_cast<TComponent*>(FSized.Get()); }

  void SetBounds(QPoint by, bool isFree) {
    if (!FSized) return;
    int left = FBounds.x();
    int top = FBounds.y();
    int right = left + FBounds.width();
    int bottom = top + FBounds.height();
    // A form has its own grid, wherever it stands.
    const QPoint origin = &Sized() == &FSession.Form() ? FBounds.topLeft() : QPoint();
    if (FHandle.MovesLeft) left = std::min(MovedEdge(left, by.x(), origin.x(), isFree), right);
    if (FHandle.MovesRight) right = std::max(MovedEdge(right, by.x(), origin.x(), isFree), left);
    if (FHandle.MovesTop) top = std::min(MovedEdge(top, by.y(), origin.y(), isFree), bottom);
    if (FHandle.MovesBottom) bottom = std::max(MovedEdge(bottom, by.y(), origin.y(), isFree), top);
    SetBoundsOf(Sized(), QRect(left, top, right - left, bottom - top));
    // Its constraints have the last word on the size; the side that is not dragged stays.
    const QSize size = BoundsOf(Sized()).value_or(QRect()).size();
    if (FHandle.MovesLeft) left = right - size.width();
    if (FHandle.MovesTop) top = bottom - size.height();
    SetBoundsOf(Sized(), QRect(QPoint(left, top), size));
    FSession.Editing();
  }

  TSession& FSession;
  TObjectRef FSized;
  THandle FHandle;
  QPoint FFrom;
  QRect FBounds;
  bool FHasBegun = false;
};

/// The sides of a control that nothing else decides on.
THandle FreeSides(TControl& control) {
  constexpr THandle kNone = {false, false, false, false};
  if (!control.GetParent()) return {false, false, true, true};
  if (dynamic_cast<TTabSheet*>(&control)) return kNone;
  switch (control.GetAlign()) {
    case alTop:
      return {false, false, false, true};
    case alBottom:
      return {false, true, false, false};
    case alLeft:
      return {false, false, true, false};
    case alRight:
      return {true, false, false, false};
    case alClient:
      return kNone;
    default:
      return {true, true, true, true};
  }
}

THandle FreeSides(TComponent& component) {
  if (auto* control = dynamic_cast<TControl*>(&component)) return FreeSides(*control);
  const bool isFree = IsStandInSized(component) && !IsStandInAligned(component);
  return {isFree, isFree, isFree, isFree};
}

/// By keys, which also size what keeps to a side where that is of use.
bool IsSizable(TComponent& component) {
  if (IsStandIn(component)) return FreeSides(component).MovesRight;
  return !dynamic_cast<TTabSheet*>(&component);
}

}  // namespace

bool CanDrag(TComponent& component, const THandle& handle) {
  const THandle free = FreeSides(component);
  return handle.MovesLeft <= free.MovesLeft && handle.MovesTop <= free.MovesTop &&
         handle.MovesRight <= free.MovesRight && handle.MovesBottom <= free.MovesBottom;
}

std::unique_ptr<TDrag> MakeSizeDrag(TSession& session, TComponent& component, const THandle& handle, QPoint from) {
  return std::make_unique<TSizeDrag>(session, component, handle, from);
}

void SizeSelected(TSession& session, QSize by) {
  std::vector<TComponent*> sized;
  for (TComponent* component : session.Selected()) {
    const std::optional<QRect> bounds = BoundsOf(*component);
    if (!bounds || !IsSizable(*component)) continue;
    SetBoundsOf(*component, QRect(bounds->topLeft(), (bounds->size() + by).expandedTo(QSize(0, 0))));
    sized.push_back(component);
  }
  if (sized.empty()) return;
  const QString text = StepText(QStringLiteral("Size"), sized);
  session.Edited(text, text + session.SelectionKey());
}

}  // namespace designer
