#pragma once

#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/TypeOf.h"
#include "kt/vcl/graphics/Color.h"

#include <QPointer>

class QRect;
class QScrollBar;
class QWidget;

namespace kt {

class TScrollingWinControl;

enum TScrollBarStyle { ssRegular, ssFlat, ssHotTrack };
template <>
struct TEnumNames<TScrollBarStyle> {
  static constexpr char Name[] = "TScrollBarStyle";
  static constexpr const char* Values[] = {"ssRegular", "ssFlat", "ssHotTrack"};
};

/// How far the children of a control can be scrolled in a direction, and the bar that shows it. Belongs to its control.
///
/// The bar appears, and Position can be other than 0, when Range is longer than the client area. Scrolling moves the
/// children: their places are always those in what can be seen.
class TControlScrollBar : public TPersistent {
 public:
  using Inherited = TPersistent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  ~TControlScrollBar() override;

  void Assign(TPersistent* source) override;

  /// The pixels that are scrolled out at the beginning; cut to what can be.
  int GetPosition() const { return FPosition; }
  void SetPosition(int value);
  /// The pixels that the children take. With AutoScroll it follows from their places; setting it ends AutoScroll.
  int GetRange() const { return FRange; }
  void SetRange(int value);
  bool IsRangeStored() const;
  bool IsVisible() const { return FVisible; }
  void SetVisible(bool value);
  /// How far an arrow leads.
  int GetIncrement() const { return FIncrement; }
  void SetIncrement(int value);
  /// The room that AutoScroll leaves behind the last child, and that is scrolled into view around a control.
  int GetMargin() const { return FMargin; }
  void SetMargin(int value);
  /// Whether the children follow the thumb while it is held.
  bool IsTracking() const { return FTracking; }
  void SetTracking(bool value);

  // Kept for the forms that say them: Qt's style draws the bar.
  bool IsSmooth() const { return FSmooth; }
  void SetSmooth(bool value) { FSmooth = value; }
  int GetSize() const { return FSize; }
  void SetSize(int value) { FSize = value; }
  TScrollBarStyle GetStyle() const { return FStyle; }
  void SetStyle(TScrollBarStyle value) { FStyle = value; }
  TColor GetColor() const { return FColor; }
  void SetColor(TColor value);
  bool IsParentColor() const { return FParentColor; }
  void SetParentColor(bool value);
  int GetThumbSize() const { return FThumbSize; }
  void SetThumbSize(int value) { FThumbSize = value; }
  int GetButtonSize() const { return FButtonSize; }
  void SetButtonSize(int value) { FButtonSize = value; }

  bool IsHorizontal() const { return FOrientation == Qt::Horizontal; }
  /// Whether the bar is on the control's window now.
  bool IsShown() const { return FIsShown; }
  /// The greatest Position.
  int GetLastPosition() const;

 protected:
  friend class TScrollingWinControl;

  TControlScrollBar(TScrollingWinControl& control, Qt::Orientation orientation)
      : FControl(control), FOrientation(orientation) {}
  TPersistent* GetOwner() override;

 private:
  /// Without an end to AutoScroll.
  void StoreRange(int value);
  bool WantsBar(int room) const { return FVisible && FRange > room; }
  /// Makes the bar, or takes it away.
  void ShowBar(QWidget& window, bool isShown);
  void PlaceBar(const QRect& place);

  TScrollingWinControl& FControl;
  QPointer<QScrollBar> FBar;
  Qt::Orientation FOrientation;
  int FPosition = 0;
  int FRange = 0;
  int FIncrement = 8;
  int FMargin = 0;
  int FSize = 0;
  int FThumbSize = 0;
  int FButtonSize = 0;
  TScrollBarStyle FStyle = ssRegular;
  TColor FColor = clBtnHighlight;
  bool FVisible = true;
  bool FTracking = false;
  bool FSmooth = false;
  bool FParentColor = true;
  bool FIsShown = false;
};

}  // namespace kt
