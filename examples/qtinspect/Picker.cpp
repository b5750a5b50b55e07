#include "qtinspect/Picker.h"

#include "qtinspect/ListedObjects.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QWindow>

#include <utility>

namespace qtinspect {

namespace {

constexpr Qt::KeyboardModifiers kPickAlways = Qt::ControlModifier | Qt::ShiftModifier;

/// The widget's window that an event was sent to, whether by way of its window of the window system or not.
QWidget* WindowOf(QObject* watched) {
  if (watched->isWidgetType()) return static_cast<QWidget*>(watched)->window();
  const auto* window = static_cast<QWindow*>(watched);
  return window->handle() ? QWidget::find(window->winId()) : nullptr;
}

/// Windows may lie one over the other, so the one that has the event goes first.
QWidget* WidgetAt(QObject* watched, const QPoint& globalPoint) {
  QWidget* window = WindowOf(watched);
  const QPoint point = window ? window->mapFromGlobal(globalPoint) : QPoint();
  if (!window || !window->rect().contains(point)) return QApplication::widgetAt(globalPoint);
  QWidget* child = window->childAt(point);
  return child ? child : window;
}

/// Items of menus are no widgets.
QObject* ItemAt(QWidget& widget, const QPoint& globalPoint) {
  const QPoint point = widget.mapFromGlobal(globalPoint);
  if (const auto* menu = qobject_cast<QMenu*>(&widget)) return menu->actionAt(point);
  if (const auto* bar = qobject_cast<QMenuBar*>(&widget)) return bar->actionAt(point);
  return nullptr;
}

/// The menu that opens, rather than the item that opens it.
QObject* MenuBehind(QObject* item) {
  const auto* action = qobject_cast<QAction*>(item);
  QMenu* menu = action ? action->menu<QMenu*>() : nullptr;
  return menu ? menu : item;
}

}  // namespace

TPicker::TPicker() : FOutline(QColor(0xe8, 0x59, 0x0c)) { qApp->installEventFilter(this); }

TPicker::~TPicker() {
  OnPicking = nullptr;
  SetPicking(false);
}

void TPicker::SetPicking(bool value) {
  if (std::exchange(FIsPicking, value) == value) return;
  FOutline.Frame(nullptr);
  value ? QApplication::setOverrideCursor(Qt::CrossCursor) : QApplication::restoreOverrideCursor();
  if (OnPicking) OnPicking(value);
}

QObject* TPicker::Hovered() const {
  const std::vector<QObject*> framed = FOutline.Framed();
  return framed.empty() ? nullptr : framed.front();
}

/// Events of the mouse are taken before a window has looked which of its widgets gets them, as widgets that are
/// disabled or do not follow the mouse would never be asked.
bool TPicker::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWindowType() && !watched->isWidgetType()) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return Pressed(watched, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      return Moved(watched, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      if (!FHasPress) return false;
      FHasPress = static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton;
      return true;
    case QEvent::Leave:
      Left(watched);
      return false;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return KeyChanged(*static_cast<QKeyEvent*>(event));
    default:
      return false;
  }
}

QObject* TPicker::FindObject(QObject* watched, const QPoint& globalPoint) const {
  QWidget* widget = WidgetAt(watched, globalPoint);
  if (!widget || (MayPick && !MayPick(*widget))) return nullptr;
  QObject* item = ItemAt(*widget, globalPoint);
  QObject* found = ListedAround(item ? MenuBehind(item) : widget);
  const auto* around = qobject_cast<const QWidget*>(found);
  return around && MayPick && !MayPick(*around) ? nullptr : found;
}

bool TPicker::Pressed(QObject* watched, const QMouseEvent& event) {
  // A window that goes when it is picked in takes the release along.
  const bool isFirst = event.type() == QEvent::MouseButtonPress && event.buttons() == event.button();
  if (FHasPress && !isFirst) return true;
  FHasPress = false;
  const bool isByKeys = event.button() == Qt::LeftButton && event.modifiers() == kPickAlways;
  if (!FIsPicking && !isByKeys) return false;
  QObject* object = FindObject(watched, event.globalPosition().toPoint());
  if (!object) return false;
  FHasPress = true;
  event.button() == Qt::LeftButton ? Pick(*object, event.modifiers()) : SetPicking(false);
  return true;
}

void TPicker::Pick(QObject& object, Qt::KeyboardModifiers modifiers) {
  const bool adds = FIsPicking && (modifiers & kPickAlways);
  const QPointer<QObject> picked(&object);
  if (!adds) SetPicking(false);
  if (picked && OnPick) OnPick(*picked, adds);
}

bool TPicker::Moved(QObject* watched, const QMouseEvent& event) {
  if (FHasPress) return true;
  // What was pressed before is being dragged.
  if (!FIsPicking || event.buttons() != Qt::NoButton) return false;
  QObject* object = FindObject(watched, event.globalPosition().toPoint());
  FOutline.Frame(object);
  return object != nullptr;
}

/// The pointer may be over the next window already.
void TPicker::Left(const QObject* watched) {
  const auto* hovered = qobject_cast<const QWidget*>(Hovered());
  if (hovered && hovered->window()->windowHandle() == watched) FOutline.Frame(nullptr);
}

/// Esc would close a dialog: it ends picking, and nothing else.
bool TPicker::KeyChanged(QKeyEvent& event) {
  if (event.key() != Qt::Key_Escape || event.modifiers() != Qt::NoModifier) return false;
  if (event.type() == QEvent::KeyRelease) return std::exchange(FHasEscape, event.isAutoRepeat() && FHasEscape);
  if (!FIsPicking) return FHasEscape;
  event.accept();
  if (event.type() == QEvent::ShortcutOverride) return true;
  FHasEscape = true;
  SetPicking(false);
  return true;
}

}  // namespace qtinspect
