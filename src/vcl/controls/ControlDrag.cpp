// Dragging TControl, and dropping on it.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/Control.h"
#include "kt/vcl/controls/DragObject.h"
#include "kt/vcl/controls/DragSession.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/controls/Mouse.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/forms/Form.h"

#include <QLatin1StringView>

namespace kt {

namespace {

constexpr QLatin1StringView SCannotDragForm{"Cannot drag a form"};

bool IsForm(const TControl* control) { return dynamic_cast<const TCustomForm*>(control) != nullptr; }

}  // namespace

void TControl::BeforeDestruction() {
  // While it is complete, and so is what it holds.
  TDragSession::ControlLeaves(*this);
  TComponent::BeforeDestruction();
}

void TControl::BeginDrag(bool immediate, int threshold) {
  if (FDragKind == dkDock) return;
  if (IsForm(this)) throw EInvalidOperation(SCannotDragForm.toString());
  TDragSession::Begin(*this, immediate, threshold < 0 ? Mouse().GetDragThreshold() : threshold);
}

void TControl::BeginAutoDrag() { BeginDrag(Mouse().IsDragImmediate(), Mouse().GetDragThreshold()); }

void TControl::EndDrag(bool drop) {
  const auto drag = TDragSession::Current();
  // While a drag is being prepared, nobody is dragged yet, and whoever does not want it to begin says so.
  if (drag && (drag->IsOf(*this) || drag->IsPreparing())) drag->Finish(drop);
}

bool TControl::Dragging() const {
  const auto drag = TDragSession::Current();
  return drag && drag->IsOf(*this);
}

bool TControl::IsDraggedByPress() const {
  return FDragMode == dmAutomatic && FDragKind == dkDrag && !HasState(csDesigning) && !IsForm(this);
}

/// The control hears of no press; what is open elsewhere closes all the same.
void TControl::PressToDrag() {
  const TLifeWatch self(this);
  if (TWinControl* const focused = TFocus::Current()) focused->Perform(CM_CANCELMODE, 0, PointerMessage(this));
  if (self.IsAlive()) BeginAutoDrag();
}

void TControl::DragOver(TObject* source, int x, int y, TDragState state, bool& accept) {
  accept = static_cast<bool>(OnDragOver);
  OnDragOver(this, source, x, y, state, accept);
}

QPoint TControl::PlaceInClient(QPoint screenPos) {
  auto* const window = dynamic_cast<TWinControl*>(this);
  if (window && window->HandleAllocated()) return window->ScreenToClient(screenPos);
  return (FParent ? FParent->PlaceInClient(screenPos) : screenPos) - QPoint(FLeft, FTop);
}

bool TControl::DoDragMsg(TDragMessage what, const TDragRec& about) {
  const auto* const own = dynamic_cast<const TBaseDragControlObject*>(about.Source);
  TObject* const source = own && own->IsMadeForControl() ? static_cast<TObject*>(own->GetControl()) : about.Source;
  const QPoint point = PlaceInClient(about.Pos);
  switch (what) {
    case dmDragEnter:
    case dmDragLeave:
    case dmDragMove: {
      bool isAccepted = true;
      DragOver(source, point.x(), point.y(), static_cast<TDragState>(what), isAccepted);
      return isAccepted;
    }
    case dmDragDrop:
      DragDrop(source, point.x(), point.y());
      return false;
    default:
      return false;
  }
}

void TWinControl::CMDrag(TMessage& message) {
  const auto what = static_cast<TDragMessage>(message.WParam);
  const auto& about = *MessagePointer<TDragRec>(message.LParam);
  if (what == dmFindTarget) {
    message.Result = PointerMessage(ControlAt(PlaceInClient(about.Pos)));
  } else if (about.Target) {
    message.Result = about.Target->DoDragMsg(what, about);
  }
}

TControl* TWinControl::ControlAt(QPoint point) {
  TControl* const child = ControlAtPos(point, false);
  return child ? child : this;
}

}  // namespace kt
