#pragma once

#include "kt/rtl/typeinfo/Event.h"

#include <QPoint>

namespace kt {

class TControl;
class TDragObject;

/// What the mouse does over a control while something is dragged.
enum TDragState { dsDragEnter, dsDragLeave, dsDragMove };

/// What a CM_DRAG tells; the first three are those of TDragState.
enum TDragMessage { dmDragEnter, dmDragLeave, dmDragMove, dmDragDrop, dmDragCancel, dmFindTarget };

/// What a CM_DRAG is about.
struct TDragRec {
  /// The mouse, on the screen.
  QPoint Pos;
  TDragObject* Source = nullptr;
  /// The control that is meant: the one that gets the message, or a child of it without a window. Null while it is
  /// being looked for.
  TControl* Target = nullptr;
};

/// Sender has something dragged over it: what is dragged, and where the mouse is in the client area. The last one says
/// whether it could be dropped here, and is true at first. It is asked for the last time, with dsDragLeave, when the
/// button is released; an answer of false then keeps the drop away.
struct TDragOverEvent : TEvent<TObject*, TObject*, int, int, TDragState, bool&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TDragOverEvent";
};
/// Something was dropped on Sender: what, and where in the client area.
struct TDragDropEvent : TEvent<TObject*, TObject*, int, int> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TDragDropEvent";
};
/// Sender is about to be dragged. A handler may set an object that is dragged in its place; it stays the handler's, who
/// frees it in OnEndDrag, unless its class says that it goes by itself.
struct TStartDragEvent : TEvent<TObject*, TDragObject*&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TStartDragEvent";
};
/// Sender is no longer dragged: where it was dropped, and the place in there; null and (0, 0) when nobody took it.
struct TEndDragEvent : TEvent<TObject*, TObject*, int, int> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TEndDragEvent";
};

/// Ends whatever is being dragged, without a drop. Nothing happens when nothing is.
void CancelDrag();

}  // namespace kt
