#include "kt/vcl/controls/DragWatch.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/DragSession.h"
#include "kt/vcl/controls/Mouse.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include <utility>

namespace kt {

namespace {

/// Whether the window that has captured the mouse loses it by something that happens to a widget.
bool TakesMouseAway(const TDragSession& drag, const QWidget& widget, const QEvent& event) {
  TWinControl* const control = drag.Capture();
  const QWidget* const window = control && control->HandleAllocated() ? control->GetHandle() : nullptr;
  switch (event.type()) {
    case QEvent::Hide:
      return &widget == window;
    case QEvent::WindowBlocked:
      return window && &widget == window->window();
    case QEvent::Show:
      return widget.isWindow() && widget.windowType() == Qt::Popup;
    default:
      return false;
  }
}

}  // namespace

TDragWatch::TDragWatch(const std::shared_ptr<TDragSession>& drag)
    : FDrag(drag),
      FHadButton(QGuiApplication::mouseButtons() != Qt::NoButton),
      FIsControlDown(QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier)) {
  qApp->installEventFilter(this);
}

void TDragWatch::Retire() {
  FDrag.reset();
  qApp->removeEventFilter(this);
  deleteLater();
}

void TDragWatch::EndLater() {
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (const auto drag = FDrag.lock()) GuardedCall([&] { drag->Finish(false); });
      },
      Qt::QueuedConnection);
}

bool TDragWatch::eventFilter(QObject* object, QEvent* event) {
  const auto drag = FDrag.lock();
  if (!drag) return false;
  const TControlBody::TInEvent running;
  if (object->isWidgetType()) return SeeInWidget(*drag, *static_cast<QWidget*>(object), *event);
  const bool isProgramLeft =
      object == qApp && event->type() == QEvent::ApplicationStateChange &&
      static_cast<QApplicationStateChangeEvent*>(event)->applicationState() != Qt::ApplicationActive;
  if (isProgramLeft) GuardedCall([&] { drag->Finish(false); });
  return false;
}

bool TDragWatch::SeeInWidget(TDragSession& drag, const QWidget& widget, QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
      // Or Qt asks the parents.
      event.accept();
      GuardedCall([&] { SeeMouse(drag, static_cast<QMouseEvent&>(event)); });
      return true;
    case QEvent::ContextMenu:
      event.accept();
      return true;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
      const bool isTaken = SeeKey(drag, static_cast<QKeyEvent&>(event));
      if (isTaken) event.accept();
      return isTaken;
    }
    default:
      if (TakesMouseAway(drag, widget, event)) GuardedCall([&] { drag.Finish(false); });
      return false;
  }
}

void TDragWatch::SeeMouse(TDragSession& drag, const QMouseEvent& event) {
  const TMousePlace place(event.globalPosition().toPoint());
  const bool hasButton = event.buttons() != Qt::NoButton;
  if (event.type() == QEvent::MouseMove) {
    // Somebody else got the release.
    if (FHadButton && !hasButton) return drag.Finish(false);
    FHadButton = FHadButton || hasButton;
    return drag.MoveTo(event.globalPosition().toPoint());
  }
  if (event.type() != QEvent::MouseButtonRelease) return;
  if (!hasButton) TControlBody::ButtonsReleased();
  if (event.button() == Qt::LeftButton || event.button() == Qt::RightButton) drag.Finish(true);
}

/// True when the key is nobody else's.
bool TDragWatch::SeeKey(TDragSession& drag, const QKeyEvent& event) {
  if (event.key() == Qt::Key_Escape) {
    if (event.type() == QEvent::KeyPress) GuardedCall([&] { drag.Finish(false); });
    return event.type() != QEvent::KeyRelease;
  }
  const bool isDown = event.type() == QEvent::KeyPress;
  if (event.key() != Qt::Key_Control || event.type() == QEvent::ShortcutOverride) return false;
  // Parents of the widget see the same key.
  if (std::exchange(FIsControlDown, isDown) != isDown) GuardedCall([&] { drag.MoveAgain(); });
  return false;
}

}  // namespace kt
