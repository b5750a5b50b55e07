#pragma once

#include "kt/rtl/objects/ObjectRef.h"
#include "kt/vcl/controls/DragObject.h"
#include "kt/vcl/controls/DragTypes.h"

#include <QPoint>

#include <memory>

namespace kt {

class TControl;
class TDragWatch;
class TWinControl;

/// The one drag that goes on in the program: who is dragged, where it is, and what has been told to whom.
///
/// Every event of it may free the controls and the drag object, end the drag, run the event loop or raise an exception.
/// Whoever calls it holds the pointer that Current() gives until it returns.
class TDragSession : public std::enable_shared_from_this<TDragSession> {
 public:
  explicit TDragSession(TControl& source);
  ~TDragSession();
  TDragSession(const TDragSession&) = delete;
  TDragSession& operator=(const TDragSession&) = delete;

  /// Null when nothing is dragged.
  static std::shared_ptr<TDragSession> Current();
  /// Nothing happens when something is dragged already, or when there is no QApplication. Raises what the handlers
  /// raise; the drag is over then.
  static void Begin(TControl& source, bool immediate, int threshold);

  /// A control gave the mouse to another one, or let go of it.
  static void CaptureLost(const TWinControl& control);
  /// A window is gone, and what it had captured with it. The drag ends when no code of the window can be running.
  static void WindowLost(const TWinControl& control);
  /// A control is about to be destroyed: when it is what is dragged, or holds it, the drag ends while all is complete.
  static void ControlLeaves(const TControl& control);
  /// A control is being destroyed: it hears no more.
  static void Forget(const TControl& control);

  /// Whether a control is the one that is dragged.
  bool IsOf(const TControl& control) const { return FPhase != TPhase::Preparing && Source() == &control; }
  /// Whether the control that is to be dragged is still being told that the button is no longer its own.
  bool IsPreparing() const { return FPhase == TPhase::Preparing; }
  bool HasStarted() const { return FPhase > TPhase::Starting && FPhase < TPhase::Over; }
  /// The window that has captured the mouse for it, or null.
  TWinControl* Capture() const;

  /// The mouse is at a place of the screen. Raises what the handlers raise; the drag is over then.
  void MoveTo(QPoint place);
  /// Asks the target anew, for something else than its place may count.
  void MoveAgain() { MoveTo(FPlace); }
  /// `drop`: on the target, if that accepts it. Raises the first that a handler raises, when all have been told.
  void Finish(bool drop);

 private:
  enum class TPhase { Preparing, Starting, Waiting, Running, Ending, Over };

  TControl* Source() const;
  TDragObject* Object() const { return static_cast<TDragObject*>(FObject.Get()); }
  TControl* Target() const;
  bool Prepare();
  bool Start();
  void Run(bool immediate, int threshold);
  void CaptureMouse();
  void ReleaseMouse();
  bool IsFar(QPoint place) const;
  void Follow(QPoint place);
  /// What is below a place of the screen, and the window that it is in.
  TControl* FindTarget(QPoint place, TWinControl*& window) const;
  bool Tell(TDragMessage what);
  void End();
  void FreeObject();

  TPhase FPhase = TPhase::Preparing;
  TObjectRef FSource;
  TObjectRef FObject;
  TObjectRef FTarget;
  /// What tells the target.
  TObjectRef FTargetWindow;
  TObjectRef FCapture;
  /// The drag object, when it goes with the drag.
  std::unique_ptr<TDragObject> FOwnObject;
  TDragWatch* FWatch = nullptr;
  QPoint FStart;
  QPoint FPlace;
  int FThreshold = 0;
  /// Counts the moves: a handler may have the next one come before the one it is told of is over.
  int FMove = 0;
};

}  // namespace kt
