// Sizing controls with the mouse and the arrow keys.
#include "designer/surface/Drag.h"

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
  TSizeDrag(TSession& session, TControl& control, const THandle& handle, QPoint from)
      : FSession(session), FControl(&control), FHandle(handle), FFrom(from), FBounds(control.GetBoundsRect()) {}

  void MoveTo(QPoint point, bool isFree) override {
    const QPoint by = point - FFrom;
    FHasBegun = FHasBegun || !by.isNull();
    if (FHasBegun) SetBounds(by, isFree);
  }
  void Drop() override {
    if (FControl && FHasBegun) FSession.Edited(StepText(QStringLiteral("Size"), {Control()}));
  }
  void Cancel() override {
    if (!FControl) return;
    Control()->SetBounds(FBounds.x(), FBounds.y(), FBounds.width(), FBounds.height());
    FSession.Editing();
  }

 private:
  TControl* Control() const { return static_cast<TControl*>(FControl.Get()); }

  void SetBounds(QPoint by, bool isFree) {
    if (!FControl) return;
    int left = FBounds.x();
    int top = FBounds.y();
    int right = left + FBounds.width();
    int bottom = top + FBounds.height();
    // A form has its own grid, wherever it stands.
    const QPoint origin = Control()->GetParent() ? QPoint() : FBounds.topLeft();
    if (FHandle.MovesLeft) left = std::min(MovedEdge(left, by.x(), origin.x(), isFree), right);
    if (FHandle.MovesRight) right = std::max(MovedEdge(right, by.x(), origin.x(), isFree), left);
    if (FHandle.MovesTop) top = std::min(MovedEdge(top, by.y(), origin.y(), isFree), bottom);
    if (FHandle.MovesBottom) bottom = std::max(MovedEdge(bottom, by.y(), origin.y(), isFree), top);
    Control()->SetBounds(left, top, right - left, bottom - top);
    // Its constraints have the last word on the size; the side that is not dragged stays.
    if (FHandle.MovesLeft) left = right - Control()->GetWidth();
    if (FHandle.MovesTop) top = bottom - Control()->GetHeight();
    Control()->SetBounds(left, top, Control()->GetWidth(), Control()->GetHeight());
    FSession.Editing();
  }

  TSession& FSession;
  TObjectRef FControl;
  THandle FHandle;
  QPoint FFrom;
  QRect FBounds;
  bool FHasBegun = false;
};

/// The sides of a control that nothing else decides on.
THandle FreeSides(TControl& control) {
  if (!control.GetParent()) return {false, false, true, true};
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
      return {false, false, false, false};
    default:
      return {true, true, true, true};
  }
}

}  // namespace

bool CanDrag(TControl& control, const THandle& handle) {
  const THandle free = FreeSides(control);
  return handle.MovesLeft <= free.MovesLeft && handle.MovesTop <= free.MovesTop &&
         handle.MovesRight <= free.MovesRight && handle.MovesBottom <= free.MovesBottom;
}

std::unique_ptr<TDrag> MakeSizeDrag(TSession& session, TControl& control, const THandle& handle, QPoint from) {
  return std::make_unique<TSizeDrag>(session, control, handle, from);
}

void SizeSelected(TSession& session, QSize by) {
  std::vector<TComponent*> sized;
  for (TComponent* component : session.Selected()) {
    auto* control = dynamic_cast<TControl*>(component);
    if (!control) continue;
    control->SetBounds(control->GetLeft(), control->GetTop(), control->GetWidth() + by.width(),
                       control->GetHeight() + by.height());
    sized.push_back(control);
  }
  if (sized.empty()) return;
  const QString text = StepText(QStringLiteral("Size"), sized);
  session.Edited(text, text + session.SelectionKey());
}

}  // namespace designer
