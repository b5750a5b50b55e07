#pragma once

#include "kt/rtl/typeinfo/Event.h"
#include "kt/vcl/graphics/Color.h"

#include <QPoint>
#include <QRect>
#include <QString>

namespace kt {

class TControl;
class TWinControl;

/// A hint that is about to be shown; the control that it is for may change it when it gets CM_HINTSHOW.
struct THintInfo {
  TControl* HintControl = nullptr;
  QString HintStr;
  /// Where the hint appears, on the screen.
  QPoint HintPos;
  /// Where the mouse is, and where the hint stays while it moves: in the client area of HintControl.
  QPoint CursorPos;
  QRect CursorRect;
  TColor HintColor = clInfoBk;
  /// How long it shows, in milliseconds.
  int HideTimeout = 0;
};

/// The text of a hint that is about to be shown, and more about it; a handler may change both, or set the flag to false
/// to have none shown.
struct TShowHintEvent : TEvent<QString&, bool&, THintInfo&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TShowHintEvent";
};

/// The share of a hint that is shown beside the control: what stands before the first "|", or all of it.
QString GetShortHint(const QString& hint);
/// The share that a status bar shows: what stands behind the first "|", or all of it.
QString GetLongHint(const QString& hint);

/// The mouse rests over a control: shows its hint, or that of the first parent that has one, unless hints are off there
/// or the control does not want it.
void ShowControlHint(TControl& control, QPoint clientPos, QPoint screenPos);
/// As above for the child without a window that is at that place of `control`, if there is one.
void ShowHintAt(TWinControl& control, QPoint clientPos, QPoint screenPos);
/// The mouse has moved within a window: its hint comes when it has rested for as long as the application says.
void HintMouseMoved(TWinControl& control, QPoint clientPos, QPoint screenPos);
/// Whether a rest of the mouse is being waited for.
bool IsHintWaiting();
/// Takes away what shows, and what is being waited for.
void HideControlHint();
/// The mouse has come to a control, or left all of them: tells the application the long hint.
void HintControlChanged(TControl* control);

}  // namespace kt
