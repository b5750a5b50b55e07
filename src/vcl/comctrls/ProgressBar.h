#pragma once

#include "kt/vcl/controls/WinControl.h"

class QProgressBar;

namespace kt {

enum TProgressBarOrientation { pbHorizontal, pbVertical };
template <>
struct TEnumNames<TProgressBarOrientation> {
  static constexpr char Name[] = "TProgressBarOrientation";
  static constexpr const char* Values[] = {"pbHorizontal", "pbVertical"};
};

/// Shows how far something has come. Its window is Qt's.
class TProgressBar : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// A least value above the greatest one, or the other way round, raises EInvalidOperation "TProgressBar property out
  /// of range" and changes nothing. While a form is loaded that is found out at its end.
  int GetMin() const { return FMin; }
  void SetMin(int value) { SetRange(value, FMax); }
  int GetMax() const { return FMax; }
  void SetMax(int value) { SetRange(FMin, value); }
  /// Cut to the range.
  int GetPosition() const { return FPosition; }
  void SetPosition(int value);
  TProgressBarOrientation GetOrientation() const { return FOrientation; }
  void SetOrientation(TProgressBarOrientation value);
  /// Whether the bar has no gaps. Of matter to styles alone that have any.
  bool IsSmooth() const { return FSmooth; }
  void SetSmooth(bool value) { FSmooth = value; }
  /// How far StepIt() leads.
  int GetStep() const { return FStep; }
  void SetStep(int value) { FStep = value; }

  /// Past the end it begins anew.
  void StepIt();
  /// Ends at the end.
  void StepBy(int delta);

 protected:
  explicit TProgressBar(TComponent* owner = nullptr) : TWinControl(owner) {}

  void Construct() override;
  void Loaded() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  void CMBiDiModeChanged(TMessage& message) override;

 private:
  QProgressBar* Bar() const;
  void SetRange(int min, int max);
  void CheckRange(int min, int max) const;
  void ShowState();

  TProgressBarOrientation FOrientation = pbHorizontal;
  int FMin = 0;
  int FMax = 100;
  int FPosition = 0;
  int FStep = 10;
  bool FSmooth = false;
};

}  // namespace kt
