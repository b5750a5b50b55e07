#pragma once

#include "kt/vcl/controls/WinControl.h"

#include <QEvent>
#include <QPoint>
#include <QPointF>
#include <QWidget>

#include <functional>

class QContextMenuEvent;
class QFocusEvent;
class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace kt {

/// The side of a control's widget that faces the control: the one way in from Qt. Turns Qt's events into the messages
/// that the control understands; nothing that the control's code throws gets back into Qt.
///
/// The widget belongs to Qt's tree of widgets: when that destroys it, the control is told. When the control dies first,
/// it retires the body.
class TControlBody {
 public:
  using TInherited = std::function<bool(QEvent*)>;

  TControlBody(TWinControl* control, QWidget* widget) : FControl(control), FWidget(widget) {}
  TControlBody(const TControlBody&) = delete;
  TControlBody& operator=(const TControlBody&) = delete;
  virtual ~TControlBody();

  /// An event of Qt's is being handled, for the time of a block: widgets that retire meanwhile may be on the stack, and
  /// go later.
  class TInEvent {
   public:
    TInEvent() { ++Running; }
    ~TInEvent() { --Running; }
    TInEvent(const TInEvent&) = delete;
    TInEvent& operator=(const TInEvent&) = delete;

   private:
    friend class TControlBody;

    static inline int Running = 0;
  };

  /// The body of a widget, or null when the widget is none of ours.
  static TControlBody* Of(const QObject* widget);
  /// The control of a widget of ours, or null.
  static TWinControl* ControlOf(const QObject* widget);

  /// Whether a key sends characters; keys that move or delete do not, whatever text they have.
  static bool TypesText(const QKeyEvent& event);

  /// The pointer came to a child of a widget of ours, which it has left by that. Qt itself does not say so.
  static void PointerCameTo(const QWidget& child);
  /// The pointer went from a child; if not out of the parent as well, it is the parent's again.
  static void PointerWentFrom(const QWidget& child);

  TWinControl* Control() const { return FControl; }
  /// The control lets go: the widget disappears, at once or when nothing of it is on the stack any more.
  void Retire();
  /// Does with the event that is being handled what the widget does by itself; once for an event, and nothing when
  /// there is none.
  void RunInherited();
  /// The event that is being handled, or null.
  QEvent* CurrentEvent() const { return FEvent; }
  /// Whether the widget got the press of the mouse button that is held.
  bool IsPressed() const { return Pressed == this; }
  /// The last button was released, wherever.
  static void ButtonsReleased() { Pressed = nullptr; }

 protected:
  /// What QObject::event() of the widget does. `inherited` is the event() of the widget's base class.
  bool HandleEvent(QEvent* event, const TInherited& inherited);
  /// Moves the focus from the place of the control that this one works for; false when it works for itself.
  bool MoveFocusPastOwner(bool next);

 private:
  bool Translate(QEvent* event);
  void Press(QMouseEvent* event);
  void Release(QMouseEvent* event);
  void Move(QMouseEvent* event);
  bool Key(QKeyEvent* event);
  bool PressKey(QKeyEvent* event);
  bool Wheel(QWheelEvent* event);
  bool Paint(QEvent* event);
  bool OpenMenu(QContextMenuEvent* event);
  void Focus(QFocusEvent* event);
  bool Input(QInputMethodEvent* event);
  void Geometry();
  /// A place of the widget in the client area.
  QPoint InClient(QPointF place) const;
  bool SendMouse(quint32 msg, QMouseEvent* event);

  /// Whose widget got the press of the button that is held, or null.
  static inline TControlBody* Pressed = nullptr;

  TWinControl* FControl;
  QWidget* FWidget;
  /// The pointer went to a window that the control takes for a part of itself.
  bool FHasKeptPointer = false;
  QEvent* FEvent = nullptr;
  const TInherited* FInherited = nullptr;
  bool FInheritedResult = true;
  bool FInheritedDone = false;
};

/// A widget of class W that is a control's window.
template <class W>
class TBodyOf final : public W, public TControlBody {
 public:
  TBodyOf(TWinControl* control, QWidget* parent)
      : W(parent), TControlBody(control, this), FSize(control->GetBoundsRect().size()) {}

  bool event(QEvent* event) override {
    return HandleEvent(event, [this](QEvent* passed) { return W::event(passed); });
  }

  /// For layouts: the size that the control had before there was one, unless the widget knows better.
  QSize sizeHint() const override {
    const QSize own = W::sizeHint();
    return own.isValid() ? own : FSize;
  }

 protected:
  // A plain widget would repaint all of itself; controls show for themselves who has the keyboard.
  void focusInEvent(QFocusEvent* event) override {
    if constexpr (!std::is_same_v<W, QWidget>) W::focusInEvent(event);
  }
  void focusOutEvent(QFocusEvent* event) override {
    if constexpr (!std::is_same_v<W, QWidget>) W::focusOutEvent(event);
  }
  bool focusNextPrevChild(bool next) override { return MoveFocusPastOwner(next) || W::focusNextPrevChild(next); }

 private:
  QSize FSize;
};

}  // namespace kt
