#pragma once

#include "kt/vcl/stdctrls/ButtonControl.h"

namespace kt {

enum TCheckBoxState { cbUnchecked, cbChecked, cbGrayed };
template <>
struct TEnumNames<TCheckBoxState> {
  static constexpr char Name[] = "TCheckBoxState";
  static constexpr const char* Values[] = {"cbUnchecked", "cbChecked", "cbGrayed"};
};

/// A caption with a box that is checked or not, or neither.
class TCustomCheckBox : public TButtonControl {
 public:
  using Inherited = TButtonControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Whether the user comes to cbGrayed as well.
  bool IsAllowGrayed() const { return FAllowGrayed; }
  void SetAllowGrayed(bool value);
  TCheckBoxState GetState() const { return FState; }
  /// Another state is a click, whoever sets it.
  void SetState(TCheckBoxState value);
  bool IsChecked() const { return FState == cbChecked; }
  void SetChecked(bool value) { SetState(value ? cbChecked : cbUnchecked); }

 protected:
  explicit TCustomCheckBox(TComponent* owner = nullptr) : TButtonControl(owner) {}

  void Construct() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  void Clicked() override;
  /// What a click does: the next state.
  virtual void Toggle();

 private:
  void ShowState();

  TCheckBoxState FState = cbUnchecked;
  bool FAllowGrayed = false;
};

/// The check box that forms use.
class TCheckBox : public TCustomCheckBox {
 public:
  using Inherited = TCustomCheckBox;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TCheckBox(TComponent* owner = nullptr) : TCustomCheckBox(owner) {}
};

}  // namespace kt
