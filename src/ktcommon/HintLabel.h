#pragma once

#include <QLabel>
#include <QPointer>

class QMouseEvent;

namespace kt {

/// What shows a hint: a window that the mouse does not see. What comes to it nevertheless, as some platforms have no
/// such windows, goes to the widget beneath that the hint is for, or to a child of that. Where neither is beneath, that
/// widget is told that the pointer has left it.
class THintLabel final : public QLabel {
 public:
  /// `told` may be null: then the mouse finds nothing here.
  explicit THintLabel(QWidget* told);

  /// Unlike isVisible() false for a window that is kept for the button that is held.
  bool IsShown() const { return isVisible() && !FIsGoing; }
  void Show();
  /// Shows nothing any more. The window itself stays, away from the screen, until the mouse button is released that was
  /// pressed here: nobody else would get the release.
  void Hide();
  /// Destroys it, at once or when none of its events is being handled.
  void Retire();
  /// Whether a place of the screen is under it, and beneath it nothing but the widget that the hint is for.
  bool IsBetween(QPoint screenPoint) const;

  bool event(QEvent* event) override;

 private:
  bool HandOn(QEvent* event);
  void HandMouseOn(const QMouseEvent& event);
  void SendMouse(QWidget* target, const QMouseEvent& event);
  void EndPress();
  /// Null for a place away from the widget that the hint is for.
  QWidget* Beneath(QPoint screenPoint) const;
  void TellLeft(QPoint screenPoint);

  QPointer<QWidget> FTold;
  /// What got the press of the button that is held; it gets the rest as well.
  QPointer<QWidget> FPressed;
  int FBusy = 0;
  bool FIsGoing = false;
  /// The pointer is here and would be over the widget that the hint is for.
  bool FHasPointer = false;
  bool FIsTellingLeft = false;
};

}  // namespace kt
