#pragma once

#include "kt/vcl/controls/ControlBody.h"

#include <QAbstractScrollArea>
#include <QMouseEvent>
#include <QWheelEvent>

namespace kt {

/// A scrolling widget of class W that is a control's window. What the mouse does to the part of it that scrolls, it
/// does to the control.
template <class W>
class TScrollBodyOf final : public W, public TControlBody {
 public:
  TScrollBodyOf(TWinControl* control, QWidget* parent) : W(parent), TControlBody(control, this) {
    this->viewport()->setMouseTracking(true);
  }

  bool event(QEvent* event) override {
    return HandleEvent(event, [this](QEvent* passed) { return W::event(passed); });
  }

 protected:
  bool viewportEvent(QEvent* event) override {
    switch (event->type()) {
      case QEvent::ContextMenu:
        return HandleEvent(event, [this](QEvent* passed) { return W::viewportEvent(passed); });
      case QEvent::Wheel:
        return TurnWheel(static_cast<QWheelEvent*>(event));
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::MouseMove:
        return UseMouse(static_cast<QMouseEvent*>(event));
      default:
        return W::viewportEvent(event);
    }
  }
  bool focusNextPrevChild(bool next) override { return MoveFocusPastOwner(next) || W::focusNextPrevChild(next); }

 private:
  /// Positions are those in the control, and not in the part of it that scrolls.
  bool UseMouse(QMouseEvent* event) {
    QMouseEvent moved(event->type(), event->position() + QPointF(this->viewport()->pos()), event->scenePosition(),
                      event->globalPosition(), event->button(), event->buttons(), event->modifiers(),
                      event->pointingDevice());
    const bool result = HandleEvent(&moved, [this, event](QEvent*) { return W::viewportEvent(event); });
    event->setAccepted(moved.isAccepted());
    return result;
  }

  bool TurnWheel(QWheelEvent* event) {
    QWheelEvent moved(event->position() + QPointF(this->viewport()->pos()), event->globalPosition(),
                      event->pixelDelta(), event->angleDelta(), event->buttons(), event->modifiers(), event->phase(),
                      event->inverted(), event->source(), event->pointingDevice());
    bool isScrolled = false;
    HandleEvent(&moved, [&](QEvent*) {
      isScrolled = true;
      return W::viewportEvent(event);
    });
    // The event that was passed on says itself whether it was of use.
    if (!isScrolled) event->setAccepted(moved.isAccepted());
    return true;
  }
};

}  // namespace kt
