#pragma once

#include "kt/vcl/controls/Control.h"
#include "kt/vcl/graphics/Canvas.h"

#include <memory>

namespace kt {

/// A control without a window of its own: its parent draws it into its window, below all children that have one, and
/// gives it the mouse. It never has the keyboard. Costs no widget.
class TGraphicControl : public TControl {
 public:
  using Inherited = TControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TGraphicControl() override;

  /// Its place in the parent's window is painted later, and no more than that.
  void Invalidate() override;
  void Repaint() override;
  void Update() override;

 protected:
  explicit TGraphicControl(TComponent* owner = nullptr);

  void Construct() override;
  void BoundsUpdated() override;
  void PaintInWindow(QPainter& painter, const QRect& clip) override;
  void CMVisibleChanged(TMessage& message) override;

  /// For drawing in Paint(), and for measuring texts at any time.
  TCanvas& GetCanvas() { return *FCanvas; }
  /// Draws the control on the canvas, which has its font and its colour and shows what is needed of it. What is not
  /// drawn shows the parent; with csOpaque everything has to be drawn.
  virtual void Paint() {}

 private:
  std::unique_ptr<TCanvas> FCanvas;
};

}  // namespace kt
