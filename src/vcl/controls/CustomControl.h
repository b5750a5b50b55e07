#pragma once

#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/graphics/Canvas.h"

#include <memory>

namespace kt {

/// A control with a window that it paints itself.
class TCustomControl : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// For drawing in Paint(), and for measuring texts at any time.
  TCanvas& GetCanvas() { return *FCanvas; }

 protected:
  explicit TCustomControl(TComponent* owner = nullptr) : TWinControl(owner) {}

  void Construct() override;
  void PaintWindow(const QRect& clip) override;

  /// Draws the client area on the canvas, whose clip is what is needed of it.
  virtual void Paint() {}
  /// Whether the ground is filled with Color before that; else the parent shows where nothing is drawn.
  virtual bool FillsGround() const { return !GetControlStyle().Has(csOpaque); }
  /// Draws what surrounds the client area.
  virtual void PaintBorder(QPainter&) {}

 private:
  std::unique_ptr<TCanvas> FCanvas;
};

}  // namespace kt
