#pragma once

#include <QObject>

#include <memory>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace kt {

class TDragSession;

/// Sees all events of the program while something is dragged: the mouse is the drag's, wherever Qt sends it; the Escape
/// key, and whatever takes the mouse from the program or from the window that has captured it, ends the drag.
class TDragWatch : public QObject {
 public:
  explicit TDragWatch(const std::shared_ptr<TDragSession>& drag);

  /// Sees nothing from now on, and goes when nothing of it is on the stack any more.
  void Retire();
  /// Ends the drag as soon as control is back at the event queue.
  void EndLater();

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool SeeInWidget(TDragSession& drag, const QWidget& widget, QEvent& event);
  void SeeMouse(TDragSession& drag, const QMouseEvent& event);
  bool SeeKey(TDragSession& drag, const QKeyEvent& event);

  std::weak_ptr<TDragSession> FDrag;
  bool FHadButton = false;
  bool FIsControlDown = false;
};

}  // namespace kt
