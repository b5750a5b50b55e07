#pragma once

#include "kt/vcl/controls/WheelSteps.h"
#include "kt/vcl/controls/WinControl.h"

namespace kt {

enum TTrackBarOrientation { trHorizontal, trVertical };
/// On which sides the ticks are; above or below, and to the left or right of an upright one.
enum TTickMark { tmBottomRight, tmTopLeft, tmBoth };
/// Ticks nowhere, at every Frequency, or at the ends alone.
enum TTickStyle { tsNone, tsAuto, tsManual };

template <>
struct TEnumNames<TTrackBarOrientation> {
  static constexpr char Name[] = "TTrackBarOrientation";
  static constexpr const char* Values[] = {"trHorizontal", "trVertical"};
};
template <>
struct TEnumNames<TTickMark> {
  static constexpr char Name[] = "TTickMark";
  static constexpr const char* Values[] = {"tmBottomRight", "tmTopLeft", "tmBoth"};
};
template <>
struct TEnumNames<TTickStyle> {
  static constexpr char Name[] = "TTickStyle";
  static constexpr const char* Values[] = {"tsNone", "tsAuto", "tsManual"};
};

/// A value that is chosen by moving a slider. Its window is Qt's; an upright one has its least value at the top.
///
/// The wheel moves the slider only while the keyboard is here.
class TTrackBar : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int GetMin() const { return FMin; }
  void SetMin(int value) { SetParams(FPosition, value, FMax); }
  int GetMax() const { return FMax; }
  void SetMax(int value) { SetParams(FPosition, FMin, value); }
  int GetPosition() const { return FPosition; }
  void SetPosition(int value) { SetParams(value, FMin, FMax); }
  /// All three at once; the position is cut to the others. A least value above the greatest one raises
  /// EInvalidOperation "TTrackBar property out of range" and changes nothing. While a form is loaded that is found out
  /// at its end.
  void SetParams(int position, int min, int max);
  /// How far the arrow keys and the wheel lead, and the bar beside the slider.
  int GetLineSize() const { return FLineSize; }
  void SetLineSize(int value);
  int GetPageSize() const { return FPageSize; }
  void SetPageSize(int value);
  /// A range that the bar shows in the colour of selections; none when the end is not behind the start.
  int GetSelStart() const { return FSelStart; }
  void SetSelStart(int value);
  int GetSelEnd() const { return FSelEnd; }
  void SetSelEnd(int value);

  /// Width and height are exchanged with it.
  TTrackBarOrientation GetOrientation() const { return FOrientation; }
  void SetOrientation(TTrackBarOrientation value);
  bool IsSliderVisible() const { return FSliderVisible; }
  void SetSliderVisible(bool value);
  /// Kept for forms that say it: the style knows how long its sliders are.
  int GetThumbLength() const { return FThumbLength; }
  void SetThumbLength(int value) { FThumbLength = value; }
  /// How many values a tick stands for.
  int GetFrequency() const { return FFrequency; }
  void SetFrequency(int value);
  TTickMark GetTickMarks() const { return FTickMarks; }
  void SetTickMarks(TTickMark value);
  TTickStyle GetTickStyle() const { return FTickStyle; }
  void SetTickStyle(TTickStyle value);

  void DefaultHandler(TMessage& message) override;

  /// Position is another one, whoever has set it.
  TNotifyEvent OnChange;

 protected:
  explicit TTrackBar(TComponent* owner = nullptr) : TWinControl(owner) {}

  void Construct() override;
  void Loaded() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  bool WantsKey(quint16 key) override;
  bool DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) override;
  void CMBiDiModeChanged(TMessage& message) override;

  virtual void Changed() { OnChange(this); }

 private:
  class TView;

  TView* View() const;
  void ShowState();
  void ShowTicks(TView& view) const;
  void CheckRange(int min, int max) const;
  void MovedByUser(int position);

  int FMin = 0;
  int FMax = 10;
  int FPosition = 0;
  int FLineSize = 1;
  int FPageSize = 2;
  int FSelStart = 0;
  int FSelEnd = 0;
  int FThumbLength = 20;
  int FFrequency = 1;
  TWheelSteps FWheel;
  TTrackBarOrientation FOrientation = trHorizontal;
  TTickMark FTickMarks = tmBottomRight;
  TTickStyle FTickStyle = tsAuto;
  bool FSliderVisible = true;
};

}  // namespace kt
