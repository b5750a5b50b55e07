#pragma once

#include "kt/vcl/forms/FormTypes.h"
#include "kt/vcl/stdctrls/ButtonControl.h"

namespace kt {

class TCustomForm;

/// A push button.
class TButton : public TButtonControl {
 public:
  using Inherited = TButtonControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Whether Escape clicks it, wherever the keyboard is on the form.
  bool IsCancel() const { return FCancel; }
  void SetCancel(bool value) { FCancel = value; }
  /// Whether Enter clicks it, unless another button has the keyboard.
  bool IsDefault() const { return FDefault; }
  void SetDefault(bool value);
  /// What a click sets as its form's ModalResult, before OnClick.
  TModalResult GetModalResult() const { return FModalResult; }
  void SetModalResult(TModalResult value) { FModalResult = value; }
  /// Whether Enter would click it now.
  bool IsActiveDefault() const { return FActive; }

  void Click() override;
  void Dispatch(TMessage& message) override;

 protected:
  explicit TButton(TComponent* owner = nullptr) : TButtonControl(owner) {}

  void Construct() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  bool ShowsColor() const override { return false; }

 private:
  void DialogKey(TMessage& message);
  void SetActiveDefault(bool value);

  TModalResult FModalResult = mrNone;
  bool FCancel = false;
  bool FDefault = false;
  bool FActive = false;
};

}  // namespace kt
