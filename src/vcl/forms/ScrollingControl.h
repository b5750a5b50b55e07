#pragma once

#include "kt/vcl/controls/CustomControl.h"
#include "kt/vcl/controls/WheelSteps.h"
#include "kt/vcl/forms/ControlScrollBar.h"

#include <memory>

namespace kt {

/// A control whose children can be scrolled when they take more room than there is. The scroll bars are Qt's; without a
/// window there are none, and nothing is scrolled out of sight.
///
/// A child that gets the keyboard is scrolled into view. The wheel scrolls what no handler uses.
class TScrollingWinControl : public TCustomControl {
 public:
  using Inherited = TCustomControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TScrollingWinControl() override;

  /// Whether the ranges of the scroll bars follow from the places of the children: of those that show and keep to the
  /// left or the top. Not in a designer.
  bool IsAutoScroll() const { return FAutoScroll; }
  void SetAutoScroll(bool value);
  TControlScrollBar& GetHorzScrollBar() { return *FHorzScrollBar; }
  void SetHorzScrollBar(const TControlScrollBar& value);
  TControlScrollBar& GetVertScrollBar() { return *FVertScrollBar; }
  void SetVertScrollBar(const TControlScrollBar& value);
  /// The pixels between the border and the client area.
  int GetBorderWidth() const { return FBorderWidth; }
  void SetBorderWidth(int value);

  /// Scrolls no further than needed to see a control that is in here, and its beginning if it is too large.
  void ScrollInView(TControl* control);

 protected:
  friend class TControlScrollBar;

  explicit TScrollingWinControl(TComponent* owner = nullptr) : TCustomControl(owner) {}

  void Construct() override;
  void Destruct() override;
  void Loaded() override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void BoundsUpdated() override;
  QMargins GetClientMargins() const override;
  void AlignControls(QRect& rect) override;
  void AdjustClientRect(QRect& rect) override;
  void ControlFocused(TWinControl* control) override;
  bool DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) override;
  void CMBiDiModeChanged(TMessage& message) override;

 private:
  /// Ranges, or what decides whether the bars show, have changed.
  void ScrollBarsChanged();
  void CalcAutoRange();
  void ShowScrollBars();
  void ScrollContents(int deltaX, int deltaY);
  void PlaceScrollBars();
  /// What the margins are without the bars.
  QMargins OuterMargins() const;

  std::unique_ptr<TControlScrollBar> FHorzScrollBar;
  std::unique_ptr<TControlScrollBar> FVertScrollBar;
  TWheelSteps FWheel;
  int FBarWidth = 0;
  int FBorderWidth = 0;
  bool FAutoScroll = true;
  bool FIsUpdatingBars = false;
};

}  // namespace kt
