#pragma once

#include "kt/rtl/objects/Object.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/vcl/graphics/Cursor.h"

#include <QPoint>

namespace kt {

class TControl;

/// What is dragged, from OnStartDrag to OnEndDrag. Made by a handler of OnStartDrag, who frees it when the drag is
/// over; one that goes earlier ends the drag. Handlers of the controls below get it as what is dragged.
class TDragObject : public TObject {
 public:
  using Inherited = TObject;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Takes over where the other one is.
  virtual void Assign(TDragObject* source);
  virtual QString GetName() const { return ClassName(); }

  /// The control below the mouse, or null.
  TControl* GetDragTarget() const;
  /// The mouse, on the screen and in the client area of the target.
  QPoint GetDragPos() const { return FDragPos; }
  QPoint GetDragTargetPos() const { return FDragTargetPos; }
  /// The drag is ending.
  bool IsCancelling() const { return FIsCancelling; }
  /// The drag has ended because the button was released.
  bool IsDropped() const { return FIsDropped; }
  /// Nobody's own: handlers get the control that is dragged.
  bool IsMadeForControl() const { return FIsMadeForControl; }

 protected:
  friend class TDragSession;

  TDragObject() = default;

  /// How the pointer looks at a place of the screen; `accepted`: it could be dropped here.
  virtual TCursor GetDragCursor(bool accepted, int x, int y);
  /// The last call of a drag: what took it, and the place in there; (0, 0) when nothing did.
  virtual void Finished(TObject* target, int x, int y, bool accepted);
  /// Whether it goes with its drag, so that nobody else has to free it.
  virtual bool IsFreedWithDrag() const { return false; }

 private:
  TObjectRef FDragTarget;
  QPoint FDragPos;
  QPoint FDragTargetPos;
  bool FIsCancelling = false;
  bool FIsDropped = false;
  bool FIsMadeForControl = false;
};

/// A drag object that goes with its drag.
class TDragObjectEx : public TDragObject {
 public:
  using Inherited = TDragObject;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  TDragObjectEx() = default;

  bool IsFreedWithDrag() const override { return true; }
};

/// A drag object that stands for a control, and tells it how the drag ends.
class TBaseDragControlObject : public TDragObject {
 public:
  using Inherited = TDragObject;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  void Assign(TDragObject* source) override;
  /// Null once the control is gone.
  TControl* GetControl() const;

 protected:
  explicit TBaseDragControlObject(TControl& control);

  /// Raises the control's OnEndDrag.
  virtual void EndDrag(TObject* target, int x, int y);
  /// Tells the control DragCanceled() when nothing took it, then ends the drag.
  void Finished(TObject* target, int x, int y, bool accepted) override;

 private:
  TObjectRef FControl;
};

/// What is dragged when OnStartDrag sets nothing else: the pointer is the control's DragCursor, and handlers get the
/// control itself. One that a handler of OnStartDrag makes is the handler's to free.
class TDragControlObject : public TBaseDragControlObject {
 public:
  using Inherited = TBaseDragControlObject;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TDragControlObject(TControl& control) : TBaseDragControlObject(control) {}

  TCursor GetDragCursor(bool accepted, int x, int y) override;
};

/// A drag object for a control that goes with its drag.
class TDragControlObjectEx : public TDragControlObject {
 public:
  using Inherited = TDragControlObject;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TDragControlObjectEx(TControl& control) : TDragControlObject(control) {}

  bool IsFreedWithDrag() const override { return true; }
};

}  // namespace kt
