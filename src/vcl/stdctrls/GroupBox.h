#pragma once

#include "kt/vcl/controls/CustomControl.h"
#include "kt/vcl/controls/ParentGround.h"

namespace kt {

/// A frame with a caption around the controls in it. Its window is Qt's group box, which tells screen readers what it
/// is; the style draws it.
///
/// Places of children are counted from the corner of the window; aligned ones stay inside the frame. An "&" in the
/// caption marks the letter that, together with Alt, brings the keyboard to the first control inside.
class TCustomGroupBox : public TCustomControl {
 public:
  using Inherited = TCustomControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  const QString& GetCaption() const { return GetText(); }
  void SetCaption(const QString& value) { SetText(value); }
  /// Whether the parent shows behind the frame, and not Color; what is not set follows from the colours.
  bool IsParentBackground() const { return FGround.IsOn(*this); }
  void SetParentBackground(bool value);
  bool IsParentBackgroundStored() const { return FGround.IsStored(); }

 protected:
  explicit TCustomGroupBox(TComponent* owner = nullptr) : TCustomControl(owner) {}

  void Construct() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  void AdjustClientRect(QRect& rect) override;
  bool FillsGround() const override { return !IsParentBackground(); }
  void Paint() override;
  void CMTextChanged(TMessage& message) override;
  void CMFontChanged(TMessage& message) override;
  void CMDialogChar(TMessage& message) override;

 private:
  void TellTitle();

  TParentGround FGround;
};

/// The group box that forms use.
class TGroupBox : public TCustomGroupBox {
 public:
  using Inherited = TCustomGroupBox;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TGroupBox(TComponent* owner = nullptr) : TCustomGroupBox(owner) {}
};

}  // namespace kt
