#include "kt/ktcommon/HintLabel.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QWheelEvent>

#include <utility>

namespace kt {

THintLabel::THintLabel(QWidget* told)
    : QLabel(told, Qt::ToolTip | Qt::BypassGraphicsProxyWidget | Qt::WindowTransparentForInput), FTold(told) {
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignLeading | Qt::AlignTop);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setAutoFillBackground(true);
}

void THintLabel::Show() {
  FIsGoing = false;
  show();
  raise();
}

void THintLabel::Hide() {
  if (!FPressed) return hide();
  FIsGoing = true;
  move(-width(), -height());
}

void THintLabel::Retire() {
  if (FBusy == 0) {
    delete this;
    return;
  }
  hide();
  setParent(nullptr);
  deleteLater();
}

bool THintLabel::IsBetween(QPoint screenPoint) const {
  return IsShown() && !FIsTellingLeft && geometry().contains(screenPoint) && FTold && Beneath(screenPoint) == FTold;
}

bool THintLabel::event(QEvent* event) {
  ++FBusy;
  const QPointer<THintLabel> self(this);
  const bool isDone = HandOn(event);
  if (!self) return true;
  --FBusy;
  return isDone || QLabel::event(event);
}

/// False for what has nothing to do with the mouse. Afterwards the label may be gone.
bool THintLabel::HandOn(QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      event->accept();
      return HandMouseOn(static_cast<const QMouseEvent&>(*event)), true;
    case QEvent::Wheel: {
      const auto& wheel = static_cast<const QWheelEvent&>(*event);
      QWidget* const target = Beneath(wheel.globalPosition().toPoint());
      if (!target) return true;
      QWheelEvent sent(target->mapFromGlobal(wheel.globalPosition()), wheel.globalPosition(), wheel.pixelDelta(),
                       wheel.angleDelta(), wheel.buttons(), wheel.modifiers(), wheel.phase(), wheel.inverted());
      return QCoreApplication::sendEvent(target, &sent), true;
    }
    case QEvent::ContextMenu: {
      const auto& menu = static_cast<const QContextMenuEvent&>(*event);
      QWidget* const target = Beneath(menu.globalPos());
      if (!target) return true;
      QContextMenuEvent sent(menu.reason(), target->mapFromGlobal(menu.globalPos()), menu.globalPos(),
                             menu.modifiers());
      return QCoreApplication::sendEvent(target, &sent), true;
    }
    case QEvent::Enter:
      FHasPointer = FTold && Beneath(QCursor::pos()) == FTold;
      return false;
    case QEvent::Leave:
      // Whoever comes back to the widget has not left it.
      if (!FPressed && Beneath(QCursor::pos()) != FTold) TellLeft(QCursor::pos());
      return false;
    default:
      return false;
  }
}

void THintLabel::HandMouseOn(const QMouseEvent& event) {
  const QPoint place = event.globalPosition().toPoint();
  const bool isPress = event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
  const QPointer<QWidget> target(FPressed ? FPressed.data() : Beneath(place));
  const QPointer<THintLabel> self(this);
  if (!FPressed && target && target == FTold) FHasPointer = true;
  if (!FPressed && (!target || target != FTold)) TellLeft(place);
  if (self && target && isPress) FPressed = target;
  if (self && target) SendMouse(target, event);
  if (self && event.type() == QEvent::MouseButtonRelease && event.buttons() == Qt::NoButton) EndPress();
  if (self && target) setCursor(target->cursor());
}

void THintLabel::SendMouse(QWidget* target, const QMouseEvent& event) {
  // A press on a window that is let through would have activated the one beneath.
  if (FPressed && !target->isActiveWindow()) target->activateWindow();
  QMouseEvent sent(event.type(), target->mapFromGlobal(event.globalPosition()), event.globalPosition(), event.button(),
                   event.buttons(), event.modifiers());
  QCoreApplication::sendEvent(target, &sent);
}

void THintLabel::EndPress() {
  FPressed = nullptr;
  if (FIsGoing) hide();
}

QWidget* THintLabel::Beneath(QPoint screenPoint) const {
  if (!FTold) return nullptr;
  const QPoint place = FTold->mapFromGlobal(screenPoint);
  if (!FTold->rect().contains(place)) return nullptr;
  QWidget* const child = FTold->childAt(place);
  return child ? child : FTold.data();
}

/// Tells the parents too that do not have the pointer: it came here from inside them.
void THintLabel::TellLeft(QPoint screenPoint) {
  if (!std::exchange(FHasPointer, false)) return;
  const QPointer<THintLabel> self(this);
  QPointer<QWidget> left(FTold);
  FIsTellingLeft = true;
  while (left) {
    QWidget* const parent = left->isWindow() ? nullptr : left->parentWidget();
    const bool isOutside = left == FTold || !left->rect().contains(left->mapFromGlobal(screenPoint));
    const QPointer<QWidget> next(parent);
    QEvent leave(QEvent::Leave);
    if (isOutside) QCoreApplication::sendEvent(left, &leave);
    left = next;
  }
  if (self) FIsTellingLeft = false;
}

}  // namespace kt
