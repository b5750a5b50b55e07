#pragma once

#include "kt/rtl/objects/Object.h"

#include <QPoint>

namespace kt {

/// What a program has once of the mouse: where it is, and when it begins to drag.
class TMouse : public TObject {
 public:
  using Inherited = TObject;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// The place on the screen, as of the event that is being handled. Needs a QGuiApplication.
  QPoint GetCursorPos() const;
  /// Whether a press drags a control with dmAutomatic at once, and not when the mouse has moved by DragThreshold. True
  /// at first.
  bool IsDragImmediate() const { return FDragImmediate; }
  void SetDragImmediate(bool value) { FDragImmediate = value; }
  /// How many pixels, across or down, the mouse moves before a drag that does not begin at once begins. 5 at first.
  int GetDragThreshold() const { return FDragThreshold; }
  void SetDragThreshold(int value) { FDragThreshold = value; }
  /// Whether something is being dragged.
  bool IsDragging() const;

 protected:
  friend TMouse& Mouse();

  TMouse() = default;

 private:
  int FDragThreshold = 5;
  bool FDragImmediate = true;
};

/// The program's one.
TMouse& Mouse();

/// An event of the mouse is being handled, for the time of a block: says where the mouse is. Nests.
class TMousePlace {
 public:
  explicit TMousePlace(QPoint screenPos);
  ~TMousePlace();
  TMousePlace(const TMousePlace&) = delete;
  TMousePlace& operator=(const TMousePlace&) = delete;

 private:
  friend class TMouse;

  static const TMousePlace* Innermost;

  const QPoint FScreenPos;
  const TMousePlace* const FOuter;
};

}  // namespace kt
