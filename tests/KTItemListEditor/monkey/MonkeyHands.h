#pragma once

#include "KTItemListEditor/monkey/MonkeyDice.h"
#include "support/ItemLists.h"
#include "support/WindowProbe.h"

#include <QPointer>
#include <QWheelEvent>

#include <array>

namespace kt::tests {

/// Keyboard and mouse.
class TMonkeyHands {
 public:
  explicit TMonkeyHands(TMonkeyDice& dice) : FDice(dice) {}

  void Key(TKTItemListEditor& editor) {
    static constexpr std::array kKeys = {Qt::Key_Up,        Qt::Key_Down,     Qt::Key_Left,  Qt::Key_Right,
                                         Qt::Key_PageUp,    Qt::Key_PageDown, Qt::Key_Home,  Qt::Key_End,
                                         Qt::Key_Tab,       Qt::Key_Return,   Qt::Key_F2,    Qt::Key_Escape,
                                         Qt::Key_Backspace, Qt::Key_Delete,   Qt::Key_Space, Qt::Key_Insert};
    static constexpr std::array kModifiers = {Qt::NoModifier,      Qt::NoModifier,  Qt::NoModifier,
                                              Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier};
    if (!QApplication::focusWidget() || FDice.Rarely(50)) editor.SetFocus();
    if (FDice.Below(2)) return TWindowProbe::Type(FDice.AnyName());
    TWindowProbe::Key(FDice.OneOf(kKeys), FDice.OneOf(kModifiers));
  }

  void Mouse(TKTItemListEditor& editor) {
    const QPoint place = FDice.AnyPlace();
    const Qt::MouseButton button = FDice.Rarely(8) ? Qt::RightButton : Qt::LeftButton;
    Send(editor, QEvent::MouseMove, Qt::NoButton, place);
    Send(editor, FDice.Rarely(4) ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, button, place);
    for (int i = FDice.Below(3); i > 0; --i) Send(editor, QEvent::MouseMove, Qt::NoButton, FDice.AnyPlace());
    Send(editor, QEvent::MouseButtonRelease, button, FDice.Below(2) ? place : FDice.AnyPlace());
    ReleaseButtons();
  }
  void ReleaseButtons() {
    FButtons = Qt::NoButton;
    FHeld = nullptr;
  }
  void Wheel(TKTItemListEditor& editor) {
    QPoint place = FDice.AnyPlace();
    QWidget* const target = At(editor, place);
    QWheelEvent event(place, target->mapToGlobal(QPointF(place)), {},
                      {FDice.Rarely(4) ? 120 : 0, FDice.Below(2) ? 120 : -240}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
  }

 private:
  /// The widget of the editor, or of what lies over it, at a place.
  static QWidget* At(TWinControl& editor, QPoint& place) {
    QWidget* const body = editor.GetHandle();
    QWidget* const child = body->childAt(place);
    if (!child) return body;
    place = child->mapFrom(body, place);
    return child;
  }
  void Send(TKTItemListEditor& editor, QEvent::Type type, Qt::MouseButton button, QPoint place) {
    QPointer<QWidget> target = FHeld ? FHeld.data() : At(editor, place);
    FButtons.setFlag(button, type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick);
    QMouseEvent event(type, place, target->mapToGlobal(place), button, FButtons, Qt::NoModifier);
    FHeld = FButtons == Qt::NoButton ? nullptr : target.data();
    QApplication::sendEvent(target, &event);
  }

  TMonkeyDice& FDice;
  QPointer<QWidget> FHeld;
  Qt::MouseButtons FButtons;
};

}  // namespace kt::tests
