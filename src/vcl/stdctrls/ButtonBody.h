#pragma once

#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/stdctrls/ButtonControl.h"

#include <QPoint>

namespace kt {

/// A button of Qt's that is clicked anywhere inside, not only where it has drawn something.
template <class W>
class TWholeButton : public W {
 public:
  using W::W;

 protected:
  bool hitButton(const QPoint& point) const override { return this->rect().contains(point); }
};

template <class W>
QWidget* TButtonControl::MakeButton(QWidget* parent) {
  auto* button = new TBodyOf<TWholeButton<W>>(this, parent);
  Connect(*button);
  return button;
}

}  // namespace kt
