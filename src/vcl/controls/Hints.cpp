#include "kt/vcl/controls/Hints.h"

#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/forms/Application.h"

#include <QTextDocument>
#include <QToolTip>

namespace kt {

namespace {

/// The control itself or the nearest parent with a hint; null when there is none.
TControl* ControlWithHint(TControl* control) {
  while (control && control->GetHint().isEmpty()) control = control->GetParent();
  return control;
}

}  // namespace

QString GetShortHint(const QString& hint) { return hint.section(u'|', 0, 0); }

QString GetLongHint(const QString& hint) { return hint.contains(u'|') ? hint.section(u'|', 1) : hint; }

void ShowControlHint(TWinControl& control, QPoint clientPos, QPoint screenPos) {
  THintInfo info{&control, {}, screenPos, clientPos, control.GetClientRect()};
  if (TControl* source = ControlWithHint(&control)) info.HintStr = GetShortHint(source->GetHint());
  const bool isRefused = !control.IsShowHint() || control.Perform(CM_HINTSHOW, 0, PointerMessage(&info)) != 0;
  if (isRefused || info.HintStr.isEmpty() || !control.HandleAllocated()) return QToolTip::hideText();
  // Hints are plain texts, whatever they look like.
  const QString text = Qt::mightBeRichText(info.HintStr) ? info.HintStr.toHtmlEscaped() : info.HintStr;
  QToolTip::showText(info.HintPos, text, control.GetHandle(), info.CursorRect);
}

void HintControlChanged(TWinControl* control) {
  const TControl* source = ControlWithHint(control);
  Application().SetHint(source ? GetLongHint(source->GetHint()) : QString());
}

}  // namespace kt
