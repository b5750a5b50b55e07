#pragma once

#include "qtinspect/Outline.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace qtinspect {

/// Picks objects of this program by pointer: a click on them does nothing else, and disabled ones can be picked, too.
///
/// A click with Ctrl and Shift held picks at any time, also in pop-ups and open menus, whose items are picked. While
/// the picker picks, a plain click does, and ends it, but goes on with Ctrl or Shift held, which add to what is picked;
/// what is below the pointer is framed, and Esc or another mouse button ends it.
class TPicker : public QObject {
 public:
  TPicker();
  ~TPicker() override;

  /// Whether a widget, or what is in it, may be picked; else it works as ever.
  std::function<bool(const QWidget&)> MayPick;
  /// What was picked; `adds` to what is picked already.
  std::function<void(QObject& object, bool adds)> OnPick;
  /// Picking has begun, or is over.
  std::function<void(bool isPicking)> OnPicking;

  bool IsPicking() const { return FIsPicking; }
  void SetPicking(bool value);
  /// What would be picked by a click now.
  QObject* Hovered() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QObject* FindObject(QObject* watched, const QPoint& globalPoint) const;
  bool Pressed(QObject* watched, const QMouseEvent& event);
  bool Moved(QObject* watched, const QMouseEvent& event);
  void Left(const QObject* watched);
  bool KeyChanged(QKeyEvent& event);
  void Pick(QObject& object, Qt::KeyboardModifiers modifiers);

  TOutline FOutline;
  bool FIsPicking = false;
  /// A press was taken: what follows up to the release of all buttons belongs to it.
  bool FHasPress = false;
  bool FHasEscape = false;
};

}  // namespace qtinspect
