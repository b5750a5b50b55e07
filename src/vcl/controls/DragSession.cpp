#include "kt/vcl/controls/DragSession.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/DragWatch.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/controls/Mouse.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/forms/Screen.h"
#include "kt/vcl/graphics/Presence.h"

#include <QApplication>

#include <cstdlib>
#include <exception>
#include <utility>

namespace kt {

namespace {

std::shared_ptr<TDragSession> CurrentDrag;

/// Runs one call after the other, whatever they raise.
class TEachInTurn {
 public:
  template <class F>
  void Do(F call) {
    try {
      call();
    } catch (...) {
      if (FFirst) return HandleException(std::current_exception());
      FFirst = std::current_exception();
    }
  }
  /// Raises what the first of them raised that raised anything.
  void Done() const {
    if (FFirst) std::rethrow_exception(FFirst);
  }

 private:
  std::exception_ptr FFirst;
};

/// Whether a window cannot be used while another one is open that has to be answered first.
bool IsBlocked(const QWidget* widget) {
  const QWidget* const modal = QApplication::activeModalWidget();
  if (!modal) return false;
  for (; widget; widget = widget->parentWidget()) {
    if (widget == modal) return false;
  }
  return true;
}

/// The control with the window at a place of the screen that things can be dropped on, or null.
TWinControl* WindowAt(QPoint place) {
  const QWidget* widget = QApplication::widgetAt(place);
  if (IsBlocked(widget)) return nullptr;
  while (widget) {
    TWinControl* const control = TControlBody::ControlOf(widget);
    if (control && widget->isEnabled() && !control->HasState(csDestroying)) return control;
    widget = widget->isWindow() ? nullptr : widget->parentWidget();
  }
  return nullptr;
}

}  // namespace

TDragSession::TDragSession(TControl& source) : FSource(&source) {}

TDragSession::~TDragSession() { FreeObject(); }

std::shared_ptr<TDragSession> TDragSession::Current() { return CurrentDrag; }

void CancelDrag() {
  if (const auto drag = CurrentDrag) drag->Finish(false);
}

TControl* TDragSession::Source() const { return static_cast<TControl*>(FSource.Get()); }
TControl* TDragSession::Target() const { return static_cast<TControl*>(FTarget.Get()); }
TWinControl* TDragSession::Capture() const { return static_cast<TWinControl*>(FCapture.Get()); }

// Beginning.

void TDragSession::Begin(TControl& source, bool immediate, int threshold) {
  const bool hasScreen = HasWidgets();
  if (CurrentDrag || !hasScreen || source.HasState(csDestroying)) return;
  const auto drag = std::make_shared<TDragSession>(source);
  CurrentDrag = drag;
  try {
    if (drag->Prepare() && drag->Start()) return drag->Run(immediate, threshold);
  } catch (...) {
    drag->End();
    throw;
  }
  drag->End();
}

/// A control that gets the press of a button gets its release, which the drag will have.
bool TDragSession::Prepare() {
  FStart = Mouse().GetCursorPos();
  FPlace = FStart;
  TControl& source = *Source();
  if (source.GetControlState().Has(csLButtonDown)) {
    const QPoint point = source.PlaceInClient(FStart);
    source.Perform(WM_LBUTTONUP, 0, MessagePoint(point.x(), point.y()));
  }
  return FPhase == TPhase::Preparing && Source();
}

bool TDragSession::Start() {
  FPhase = TPhase::Starting;
  TDragObject* object = nullptr;
  const auto take = [&] {
    FObject = object;
    if (object && object->IsFreedWithDrag()) FOwnObject.reset(object);
  };
  try {
    Source()->DoStartDrag(object);
  } catch (...) {
    take();
    throw;
  }
  take();
  if (FPhase != TPhase::Starting || !Source()) return false;
  if (object) return true;
  FOwnObject = Make<TDragControlObject>(*Source());
  FOwnObject->FIsMadeForControl = true;
  FObject = FOwnObject.get();
  return true;
}

void TDragSession::Run(bool immediate, int threshold) {
  FPhase = TPhase::Waiting;
  FThreshold = immediate ? 0 : threshold;
  Object()->FDragPos = FStart;
  FWatch = new TDragWatch(shared_from_this());
  CaptureMouse();
  HideControlHint();
  if (immediate) MoveTo(FStart);
}

void TDragSession::CaptureMouse() {
  for (TControl* control = Source(); control; control = control->GetParent()) {
    auto* window = dynamic_cast<TWinControl*>(control);
    if (!window || !window->IsShowing()) continue;
    window->SetMouseCapture(true);
    FCapture = window;
    return;
  }
}

// Going on.

bool TDragSession::IsFar(QPoint place) const {
  const QPoint way = place - FStart;
  return std::abs(way.x()) >= FThreshold || std::abs(way.y()) >= FThreshold;
}

void TDragSession::MoveTo(QPoint place) {
  if (FPhase != TPhase::Running && FPhase != TPhase::Waiting) return;
  if (FPhase == TPhase::Waiting && !IsFar(place)) return;
  FPhase = TPhase::Running;
  try {
    if (Object() && Source()) Follow(place);
  } catch (...) {
    const std::exception_ptr error = std::current_exception();
    GuardedCall([this] { Finish(false); });
    std::rethrow_exception(error);
  }
  if (FPhase == TPhase::Running && !(Object() && Source())) Finish(false);
}

void TDragSession::Follow(QPoint place) {
  const int move = ++FMove;
  const auto goesOn = [&] { return FPhase == TPhase::Running && move == FMove && Object() && Source(); };
  TWinControl* found = nullptr;
  const TObjectRef target(FindTarget(place, found));
  const TObjectRef window(found);
  if (!goesOn()) return;
  if (target.Get() != FTarget.Get() || window.Get() != FTargetWindow.Get()) {
    Tell(dmDragLeave);
    if (!goesOn()) return;
    FTarget = target;
    FTargetWindow = window;
    FPlace = place;
    Tell(dmDragEnter);
    if (!goesOn()) return;
  }
  FPlace = place;
  const bool isAccepted = Tell(dmDragMove) && Target();
  if (!goesOn()) return;
  const TCursor cursor = Object()->GetDragCursor(isAccepted, place.x(), place.y());
  if (goesOn()) Screen().ShowDragCursor(cursor);
}

TControl* TDragSession::FindTarget(QPoint place, TWinControl*& window) const {
  window = WindowAt(place);
  if (!window) return nullptr;
  TDragRec about{place, Object()};
  const TLifeWatch life(window);
  const qintptr found = window->Perform(CM_DRAG, dmFindTarget, PointerMessage(&about));
  if (life.IsAlive()) return MessagePointer<TControl>(found);
  window = nullptr;
  return nullptr;
}

/// The target's answer; false when there is none.
bool TDragSession::Tell(TDragMessage what) {
  auto* const window = static_cast<TWinControl*>(FTargetWindow.Get());
  TDragObject* const object = Object();
  if (!object) return false;
  object->FDragPos = FPlace;
  object->FDragTarget = FTarget;
  object->FDragTargetPos = Target() ? Target()->PlaceInClient(FPlace) : FPlace;
  if (!window || !Target()) return false;
  TDragRec about{FPlace, object, Target()};
  return window->Perform(CM_DRAG, what, PointerMessage(&about)) != 0;
}

// Ending.

void TDragSession::Finish(bool drop) {
  if (FPhase < TPhase::Waiting) return End();
  if (FPhase >= TPhase::Ending) return;
  const auto hold = shared_from_this();
  const bool wasRunning = std::exchange(FPhase, TPhase::Ending) == TPhase::Running;
  if (TDragObject* object = Object()) {
    object->FIsCancelling = true;
    object->FIsDropped = drop;
  }
  ReleaseMouse();
  TEachInTurn calls;
  bool isAccepted = false;
  if (wasRunning) calls.Do([&] { isAccepted = Tell(dmDragLeave); });
  // A control that is dragged by itself may have gone.
  isAccepted = isAccepted && drop && Target() && Source();
  End();
  if (wasRunning) calls.Do([&] { Tell(isAccepted ? dmDragDrop : dmDragCancel); });
  const QPoint place = isAccepted && Object() ? Object()->FDragTargetPos : QPoint();
  if (TDragObject* object = Object()) {
    object->FIsCancelling = false;
    calls.Do([&] { object->Finished(isAccepted ? Target() : nullptr, place.x(), place.y(), isAccepted); });
  }
  FreeObject();
  calls.Done();
}

void TDragSession::ReleaseMouse() {
  TWinControl* const window = Capture();
  if (window && window->HasMouseCapture()) window->SetMouseCapture(false);
}

/// From now on another drag may begin.
void TDragSession::End() {
  if (FPhase == TPhase::Over) return;
  const auto hold = shared_from_this();
  FPhase = TPhase::Over;
  ReleaseMouse();
  if (FWatch) std::exchange(FWatch, nullptr)->Retire();
  Screen().HideDragCursor();
  if (CurrentDrag == hold) CurrentDrag = nullptr;
}

void TDragSession::FreeObject() {
  // A handler may have freed what it was told not to.
  if (!Object()) (void)FOwnObject.release();
  FOwnObject.reset();
}

// What happens elsewhere.

void TDragSession::CaptureLost(const TWinControl& control) {
  const auto drag = CurrentDrag;
  if (drag && drag->Capture() == &control) GuardedCall([&] { drag->Finish(false); });
}

void TDragSession::WindowLost(const TWinControl& control) {
  if (CurrentDrag && CurrentDrag->Capture() == &control && CurrentDrag->FWatch) CurrentDrag->FWatch->EndLater();
}

void TDragSession::ControlLeaves(const TControl& control) {
  const auto drag = CurrentDrag;
  const TControl* inside = drag ? drag->Source() : nullptr;
  while (inside && inside != &control) inside = inside->GetParent();
  if (inside) GuardedCall([&] { drag->Finish(false); });
}

void TDragSession::Forget(const TControl& control) {
  const auto drag = CurrentDrag;
  if (!drag) return;
  for (TObjectRef* ref : {&drag->FTarget, &drag->FTargetWindow}) {
    if (ref->Get() == &control) *ref = nullptr;
  }
  // Began when it was on its way out already.
  if (drag->Source() != &control) return;
  drag->FSource = nullptr;
  drag->End();
}

}  // namespace kt
