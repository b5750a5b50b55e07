#pragma once

#include "kt/vcl/controls/ParentGround.h"
#include "kt/vcl/forms/ScrollingControl.h"

namespace kt {

/// An area of a form that scrolls by itself.
class TScrollBox : public TScrollingWinControl {
 public:
  using Inherited = TScrollingWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TBorderStyle GetBorderStyle() const { return FBorderStyle; }
  void SetBorderStyle(TBorderStyle value);
  /// Whether the parent shows, and not Color; what is not set follows from the colours.
  bool IsParentBackground() const { return FGround.IsOn(*this); }
  void SetParentBackground(bool value);
  bool IsParentBackgroundStored() const { return FGround.IsStored(); }
  /// Kept for the forms that say it: nothing can be docked.
  bool IsDockSite() const { return FDockSite; }
  void SetDockSite(bool value) { FDockSite = value; }

 protected:
  explicit TScrollBox(TComponent* owner = nullptr) : TScrollingWinControl(owner) {}

  void Construct() override;
  QMargins GetClientMargins() const override;
  bool FillsGround() const override { return !IsParentBackground(); }
  void PaintBorder(QPainter& painter) override;

 private:
  TParentGround FGround;
  TBorderStyle FBorderStyle = bsSingle;
  bool FDockSite = false;
};

}  // namespace kt
