#include "kt/vcl/controls/Hints.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/actions/ControlActionLink.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/graphics/Presence.h"
#include "kt/vcl/graphics/QtColor.h"

#include <QApplication>
#include <QPointer>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>

namespace kt {

namespace {

/// The control itself or the nearest parent with a hint; null when there is none.
TControl* ControlWithHint(TControl* control) {
  while (control && control->GetHint().isEmpty()) control = control->GetParent();
  return control;
}

/// The control with the window that shows the control.
TWinControl* WindowOf(TControl& control) {
  auto* const window = dynamic_cast<TWinControl*>(&control);
  return window ? window : control.GetParent();
}

/// The word of the control's action.
bool AllowsHint(const TControl& control, QString& hint) {
  const TControlActionLink* link = control.GetActionLink();
  return !link || link->DoShowHint(hint);
}

}  // namespace

QString GetShortHint(const QString& hint) { return hint.section(u'|', 0, 0); }

QString GetLongHint(const QString& hint) { return hint.contains(u'|') ? hint.section(u'|', 1) : hint; }

void ShowControlHint(TControl& control, QPoint clientPos, QPoint screenPos) {
  TApplication& application = Application();
  THintInfo info{&control, {}, screenPos, clientPos, control.GetClientRect()};
  info.HintColor = application.GetHintColor();
  info.HideTimeout = application.GetHintHidePause();
  if (TControl* source = ControlWithHint(&control)) info.HintStr = GetShortHint(source->GetHint());
  const TLifeWatch life(&control);
  bool isAllowed = application.IsShowHint() && control.IsShowHint() && AllowsHint(control, info.HintStr) &&
                   life.IsAlive() && control.Perform(CM_HINTSHOW, 0, PointerMessage(&info)) == 0 && life.IsAlive();
  if (isAllowed) application.OnShowHint(info.HintStr, isAllowed, info);
  TWinControl* const window = life.IsAlive() ? WindowOf(control) : nullptr;
  if (!isAllowed || info.HintStr.isEmpty() || !window || !window->HandleAllocated()) return QToolTip::hideText();
  if (window != &control) info.CursorRect.translate(control.GetLeft(), control.GetTop());
  QPalette palette = QToolTip::palette();
  palette.setColor(QPalette::ToolTipBase, QtColor(info.HintColor, QGuiApplication::palette()));
  QToolTip::setPalette(palette);
  // Hints are plain texts, whatever they look like.
  const QString text = Qt::mightBeRichText(info.HintStr) ? info.HintStr.toHtmlEscaped() : info.HintStr;
  QToolTip::showText(info.HintPos, text, window->GetHandle(), info.CursorRect, info.HideTimeout);
}

void ShowHintAt(TWinControl& control, QPoint clientPos, QPoint screenPos) {
  TControl* const child = control.ControlAtPos(clientPos, true);
  if (!child) return ShowControlHint(control, clientPos, screenPos);
  ShowControlHint(*child, clientPos - child->GetBoundsRect().topLeft(), screenPos);
}

namespace {

/// One for the program: the mouse is over one control at a time.
QTimer& RestTimer() {
  static QPointer<QTimer> Timer;
  if (!Timer) {
    Timer = new QTimer(QCoreApplication::instance());
    Timer->setSingleShot(true);
  }
  return *Timer;
}

}  // namespace

void HintMouseMoved(TWinControl& control, QPoint clientPos, QPoint screenPos) {
  QTimer& timer = RestTimer();
  timer.disconnect();
  QWidget* const window = control.GetHandle();
  QObject::connect(&timer, &QTimer::timeout, window, [window, clientPos, screenPos] {
    TWinControl* const rested = TControlBody::ControlOf(window);
    if (rested && window->underMouse()) GuardedCall([&] { ShowHintAt(*rested, clientPos, screenPos); });
  });
  timer.start(Application().GetHintPause());
}

bool IsHintWaiting() { return RestTimer().isActive(); }

void HideControlHint() {
  if (!HasWidgets()) return;
  RestTimer().stop();
  QToolTip::hideText();
}

void HintControlChanged(TControl* control) {
  const TControl* source = ControlWithHint(control);
  Application().SetHint(source ? GetLongHint(source->GetHint()) : QString());
}

}  // namespace kt
