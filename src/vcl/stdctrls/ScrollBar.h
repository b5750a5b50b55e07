#pragma once

#include "kt/vcl/controls/WheelSteps.h"
#include "kt/vcl/controls/WinControl.h"

class QScrollBar;

namespace kt {

enum TScrollBarKind { sbHorizontal, sbVertical };
/// What is done to a scroll bar.
enum TScrollCode {
  scLineUp,
  scLineDown,
  scPageUp,
  scPageDown,
  scPosition,  ///< the thumb was let go
  scTrack,     ///< the thumb is being moved
  scTop,
  scBottom,
  scEndScroll  ///< the button or key was let go that did one of the others
};

/// Comes before a user's scrolling; `scrollPos` is where it leads, and a handler may change it.
struct TScrollEvent : TEvent<TObject*, TScrollCode, int&> {
  using TEvent::TEvent;
  static constexpr char TypeName[] = "TScrollEvent";
};

template <>
struct TEnumNames<TScrollBarKind> {
  static constexpr char Name[] = "TScrollBarKind";
  static constexpr const char* Values[] = {"sbHorizontal", "sbVertical"};
};
template <>
struct TEnumNames<TScrollCode> {
  static constexpr char Name[] = "TScrollCode";
  static constexpr const char* Values[] = {"scLineUp", "scLineDown", "scPageUp", "scPageDown", "scPosition",
                                           "scTrack",  "scTop",      "scBottom", "scEndScroll"};
};

/// A scroll bar that stands by itself. Its window is Qt's.
///
/// The user reaches positions from Min to Max or, with a PageSize, to Max - PageSize + 1; the program sets any up to
/// Max. The wheel scrolls only while the keyboard is here.
class TScrollBar : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Width and height are exchanged with it.
  TScrollBarKind GetKind() const { return FKind; }
  void SetKind(TScrollBarKind value);
  int GetMin() const { return FMin; }
  void SetMin(int value) { SetParams(FPosition, value, FMax); }
  int GetMax() const { return FMax; }
  void SetMax(int value) { SetParams(FPosition, FMin, value); }
  int GetPosition() const { return FPosition; }
  void SetPosition(int value) { SetParams(value, FMin, FMax); }
  /// All three at once; the position is cut to the others. Raises EInvalidOperation "Scroll bar property out of range"
  /// where `max` is less than `min` or PageSize; nothing has changed then. While a form is loaded that is found out
  /// at its end.
  void SetParams(int position, int min, int max);
  /// How much of the range the thumb stands for; 0 for a thumb of a size of its own. More than Max changes nothing.
  int GetPageSize() const { return FPageSize; }
  void SetPageSize(int value);
  /// How far an arrow leads, and the bar beside the thumb.
  int GetSmallChange() const { return FSmallChange; }
  void SetSmallChange(int value) { FSmallChange = value; }
  int GetLargeChange() const { return FLargeChange; }
  void SetLargeChange(int value) { FLargeChange = value; }

  void DefaultHandler(TMessage& message) override;

  /// Position is another one, whoever has set it.
  TNotifyEvent OnChange;
  TScrollEvent OnScroll;

 protected:
  explicit TScrollBar(TComponent* owner = nullptr) : TWinControl(owner) {}

  void Construct() override;
  void Loaded() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  bool WantsKey(quint16 key) override;
  bool DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) override;
  void CMBiDiModeChanged(TMessage& message) override;

  virtual void Change() { OnChange(this); }
  virtual void Scroll(TScrollCode code, int& position) { OnScroll(this, code, position); }

 private:
  QScrollBar* Bar() const;
  void ShowState();
  void ShowPosition();
  void UpdateDirection();
  void CheckRange(int min, int max) const;
  int LastPosition() const;
  /// What the window tells: QAbstractSlider::SliderAction.
  void ActionByUser(int action);
  void ScrollByUser(TScrollCode code);
  void ScrollTo(TScrollCode code, qint64 where);
  void EndScroll();

  TScrollBarKind FKind = sbHorizontal;
  int FMin = 0;
  int FMax = 100;
  int FPosition = 0;
  int FPageSize = 0;
  int FSmallChange = 1;
  int FLargeChange = 1;
  TWheelSteps FWheel;
  bool FIsScrolling = false;
};

}  // namespace kt
