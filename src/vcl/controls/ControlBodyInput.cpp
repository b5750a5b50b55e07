// Keys, mouse, focus and input methods of TControlBody.
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/controls/KeyCodes.h"
#include "kt/vcl/controls/Mouse.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/controls/WinControl.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>

namespace kt {

namespace {

/// A key event that a control of ours has seen and left alone, on its way through the parents to somebody else's
/// widget. Parents of ours let it pass: they have had their say through the control.
const QEvent* Passing = nullptr;

bool HasControlAbove(const QWidget* widget) {
  while (!widget->isWindow() && widget->parentWidget()) {
    widget = widget->parentWidget();
    if (TControlBody::Of(widget)) return true;
  }
  return false;
}

void PassOn(QEvent* event, const QWidget* widget) {
  event->ignore();
  Passing = HasControlAbove(widget) ? event : nullptr;
}

/// The next event may stand at the same place in memory: one that comes to the focus begins its way there.
bool IsPassing(const QEvent* event, const QWidget& widget) { return event == Passing && !widget.hasFocus(); }

bool IsSpecialKey(quint16 key) {
  return key == VK_TAB || key == VK_RETURN || key == VK_ESCAPE || (key >= VK_LEFT && key <= VK_DOWN);
}

/// What a key types. Together with Alt some platforms say nothing of it.
QString TypedText(const QKeyEvent& event) {
  const bool isLetter = event.key() > Qt::Key_Space && event.key() <= Qt::Key_AsciiTilde;
  if (event.text().isEmpty() && isLetter && event.modifiers().testFlag(Qt::AltModifier)) {
    return QString(QChar(event.key())).toLower();
  }
  return TControlBody::TypesText(event) ? event.text() : QString();
}

struct TButtonMessages {
  quint32 Down;
  quint32 Up;
  quint32 DoubleClick;
};

TButtonMessages MessagesOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK};
    case Qt::RightButton:
      return {WM_RBUTTONDOWN, WM_RBUTTONUP, WM_RBUTTONDBLCLK};
    case Qt::MiddleButton:
      return {WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MBUTTONDBLCLK};
    default:
      return {};
  }
}

}  // namespace

bool TControlBody::SendMouse(quint32 msg, QMouseEvent* event) {
  if (msg == 0 || !FControl) return false;
  const QPoint point = InClient(event->position());
  const TMousePlace place(event->globalPosition().toPoint());
  FControl->Perform(msg, ShiftStateOf(event->modifiers(), event->buttons()).Bits(), MessagePoint(point.x(), point.y()));
  return true;
}

void TControlBody::Press(QMouseEvent* event) {
  const TButtonMessages messages = MessagesOf(event->button());
  Pressed = this;
  event->accept();
  const bool isDouble = event->type() == QEvent::MouseButtonDblClick;
  SendMouse(isDouble ? messages.DoubleClick : messages.Down, event);
  // Whatever the widget thinks of it: its parents have nothing to do with it.
  event->accept();
}

void TControlBody::Release(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) ButtonsReleased();
  SendMouse(MessagesOf(event->button()).Up, event);
  // Qt tells whoever the mouse has left meanwhile.
  const bool isInside = FWidget->rect().contains(event->position().toPoint());
  if (FControl && isInside && event->buttons() == Qt::NoButton)
    FControl->PointerMoved(InClient(event->position()), false);
  event->accept();
}

void TControlBody::Move(QMouseEvent* event) {
  if (FControl) FControl->PointerMoved(InClient(event->position()), event->buttons() != Qt::NoButton);
  if (FControl && event->buttons() == Qt::NoButton) {
    HintMouseMoved(*FControl, InClient(event->position()), event->globalPosition().toPoint());
  }
  SendMouse(WM_MOUSEMOVE, event);
  event->accept();
}

bool TControlBody::TypesText(const QKeyEvent& event) {
  const int key = event.key();
  return !event.text().isEmpty() && key != Qt::Key_Delete && !(key >= Qt::Key_Home && key <= Qt::Key_PageDown);
}

bool TControlBody::PressKey(QKeyEvent* event) {
  if (IsPassing(event, *FWidget)) return PassOn(event, FWidget), true;
  const quint16 key = VirtualKeyOf(*event);
  if (key != 0 && FControl->IsMenuKey(key, ShiftStateOf(event->modifiers()))) return event->accept(), true;
  if (!FControl) return true;
  if (FControl->OfferToParents(key, event->modifiers())) return true;
  if (IsSpecialKey(key) && FControl && !FControl->WantsKey(key)) {
    if (FControl->OfferToForm(key, event->modifiers())) return true;
    // Nobody's: Qt moves the focus with it.
    if (key == VK_TAB) return false;
  }
  return !FControl || Key(event);
}

bool TControlBody::Key(QKeyEvent* event) {
  if (IsPassing(event, *FWidget)) return PassOn(event, FWidget), true;
  const bool isDown = event->type() == QEvent::KeyPress;
  const bool isSystem = event->modifiers().testFlag(Qt::AltModifier);
  const quint32 msg = isDown ? (isSystem ? WM_SYSKEYDOWN : WM_KEYDOWN) : (isSystem ? WM_SYSKEYUP : WM_KEYUP);
  event->accept();
  // A key knows the modifiers alone: a mouse button that is held makes no other key of it.
  const qintptr shift = ShiftStateOf(event->modifiers()).Bits();
  bool isTaken = FControl->SendKey(msg, VirtualKeyOf(*event), shift);
  const QString text = isDown ? TypedText(*event) : QString();
  if (!text.isEmpty()) {
    for (QChar character : text) {
      if (FControl && FControl->SendKey(isSystem ? WM_SYSCHAR : WM_CHAR, character.unicode(), shift)) isTaken = true;
    }
  }
  // What is taken stays here, whatever the widget thought of it.
  if (isTaken) event->accept();
  if (!isTaken && (!FInheritedDone || !event->isAccepted())) PassOn(event, FWidget);
  return true;
}

bool TControlBody::Wheel(QWheelEvent* event) {
  const QPoint delta = event->angleDelta();
  const bool isHorizontal = delta.y() == 0;
  const QPoint point = InClient(event->position());
  event->ignore();
  if (FControl->DoMouseWheel(ShiftStateOf(event->modifiers(), event->buttons()), isHorizontal ? delta.x() : delta.y(),
                             isHorizontal, point)) {
    event->accept();
  }
  return true;
}

bool TControlBody::OpenMenu(QContextMenuEvent* event) {
  const bool isKey = event->reason() == QContextMenuEvent::Keyboard;
  const QPoint point = event->globalPos();
  const bool isDone = FControl->Perform(WM_CONTEXTMENU, 0, isKey ? -1 : MessagePoint(point.x(), point.y())) != 0;
  // Else the widget has its way with it, or passes it on to its parent.
  if (isDone || !FControl) event->accept();
  return isDone || !FControl;
}

bool TControlBody::Input(QInputMethodEvent* event) {
  const QPointer<QWidget> widget(FWidget);
  if (!FControl->InputText(event->commitString())) return false;
  // What is still being composed shows where the control has led the keyboard.
  QWidget* const focused = QApplication::focusWidget();
  const bool goesOn = focused && focused != widget && !event->preeditString().isEmpty();
  if (!goesOn || !widget || !widget->isAncestorOf(focused)) return true;
  QInputMethodEvent rest(event->preeditString(), event->attributes());
  QApplication::sendEvent(focused, &rest);
  return true;
}

void TControlBody::Focus(QFocusEvent* event) {
  if (event->gotFocus()) {
    TFocus::Moved(FControl->FocusOwner());
    if (FControl && FWidget->hasFocus()) FControl->Perform(WM_SETFOCUS);
    return;
  }
  QWidget* const next = QApplication::focusWidget();
  TWinControl* const nextControl = next == FWidget ? nullptr : ControlOf(next);
  FControl->Perform(WM_KILLFOCUS, PointerMessage(nextControl));
  // Who only changes the window or opens a menu comes back to where he was.
  const bool isAway = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason ||
                      event->reason() == Qt::MenuBarFocusReason;
  if (!nextControl && !isAway) TFocus::Left();
}

}  // namespace kt
