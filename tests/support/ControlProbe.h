#pragma once

#include "kt/vcl/controls/CustomControl.h"

#include <QString>
#include <QStringList>

namespace kt::tests {

/// A control with a window that writes down what it hears.
class TControlProbe : public TCustomControl {
 public:
  using Inherited = TCustomControl;

  using TCustomControl::GetText;
  using TCustomControl::SetControlStyle;
  using TCustomControl::SetText;

  /// What was heard, joined by blanks, and forgotten.
  QString Log() { return std::exchange(FLog, {}).join(u' '); }
  void Note(const QString& what) { FLog += what; }
  /// "left,top,width,height".
  QString Bounds() const {
    return QStringLiteral("%1,%2,%3,%4").arg(GetLeft()).arg(GetTop()).arg(GetWidth()).arg(GetHeight());
  }

  QStringList FLog;

 protected:
  explicit TControlProbe(TComponent* owner = nullptr) : TCustomControl(owner) {}
};

}  // namespace kt::tests
