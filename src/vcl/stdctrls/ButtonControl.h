#pragma once

#include "kt/vcl/controls/WinControl.h"

class QAbstractButton;

namespace kt {

/// Something with a caption that is clicked by mouse or by key. Its window is one of Qt's buttons, which draws it and
/// knows the keys; an "&" in the caption marks the letter that clicks it together with Alt.
class TButtonControl : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  const QString& GetCaption() const { return GetText(); }
  void SetCaption(const QString& value) { SetText(value); }

  /// Of no matter to those without a sign.
  TLeftRight GetAlignment() const { return FAlignment; }
  void SetAlignment(TLeftRight value);

  /// Whether a caption that is wider than its room is broken between words.
  bool IsWordWrap() const { return FWordWrap; }
  void SetWordWrap(bool value);

  void DefaultHandler(TMessage& message) override;

 protected:
  explicit TButtonControl(TComponent* owner = nullptr) : TWinControl(owner) {}

  void Construct() override;
  /// Makes one of Qt's buttons by MakeButton().
  QWidget* CreateBody(QWidget* parent) override = 0;
  void CreateWnd() override;
  void BoundsUpdated() override;
  bool WindowEvent(QEvent& event) override;
  void CMTextChanged(TMessage& message) override;
  void CMFontChanged(TMessage& message) override;
  void CMColorChanged(TMessage& message) override;
  void CMBiDiModeChanged(TMessage& message) override;

  /// The user has clicked it; also when the Alt key did it.
  virtual void Clicked() { Click(); }
  /// Whether the ground is filled with Color.
  virtual bool ShowsColor() const { return true; }

  /// A button of Qt's class `W` as the window.
  template <class W>
  QWidget* MakeButton(QWidget* parent);
  /// Null without a window.
  QAbstractButton* Button() const;

 private:
  void Connect(QAbstractButton& button);
  void UpdateLook();
  void ShowCaption();

  TLeftRight FAlignment = taRightJustify;
  bool FWordWrap = false;
  bool FIsUpdatingLook = false;
};

}  // namespace kt
