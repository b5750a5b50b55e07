#pragma once

#include "kt/vcl/controls/GraphicControl.h"

namespace kt {

/// A place on a form that the program draws on.
class TPaintBox : public TGraphicControl {
 public:
  using Inherited = TGraphicControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  using TGraphicControl::GetCanvas;

  /// Comes when something of it is needed; draws on the canvas, which has the control's font, and its colour as the
  /// brush's.
  TNotifyEvent OnPaint;

 protected:
  explicit TPaintBox(TComponent* owner = nullptr) : TGraphicControl(owner) {}

  void Construct() override;
  void Paint() override;
};

}  // namespace kt
