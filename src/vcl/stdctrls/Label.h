#pragma once

#include "kt/vcl/controls/GraphicControl.h"

namespace kt {

class TWinControl;

/// Where in its height a text stands.
enum TTextLayout { tlTop, tlCenter, tlBottom };
template <>
struct TEnumNames<TTextLayout> {
  static constexpr char Name[] = "TTextLayout";
  static constexpr const char* Values[] = {"tlTop", "tlCenter", "tlBottom"};
};

/// Where a line that does not fit is shortened: not at all, in its middle, at its end.
enum TEllipsisPosition { epNone, epPathEllipsis, epEndEllipsis, epWordEllipsis };
template <>
struct TEnumNames<TEllipsisPosition> {
  static constexpr char Name[] = "TEllipsisPosition";
  static constexpr const char* Values[] = {"epNone", "epPathEllipsis", "epEndEllipsis", "epWordEllipsis"};
};

/// A text that says what another control is for. It has no window.
///
/// With AutoSize it is as large as its text, whose right edge stays where it is when the text keeps to the right; that
/// needs a QGuiApplication, without which the size is left alone.
class TCustomLabel : public TGraphicControl {
 public:
  using Inherited = TGraphicControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  const QString& GetCaption() const { return GetText(); }
  void SetCaption(const QString& value) { SetText(value); }
  TAlignment GetAlignment() const { return FAlignment; }
  void SetAlignment(TAlignment value);
  bool IsAutoSize() const { return FAutoSize; }
  void SetAutoSize(bool value);
  /// Of no effect with AutoSize, which makes room for the text, and with WordWrap.
  TEllipsisPosition GetEllipsisPosition() const { return FEllipsisPosition; }
  void SetEllipsisPosition(TEllipsisPosition value);
  /// Gets the keyboard when the label is clicked, or its letter is typed together with Alt anywhere on the form. Not
  /// owned.
  TWinControl* GetFocusControl() const { return FFocusControl; }
  void SetFocusControl(TWinControl* value);
  TTextLayout GetLayout() const { return FLayout; }
  void SetLayout(TTextLayout value);
  /// Whether an "&" underlines the letter behind it, which is typed together with Alt; else it is itself.
  bool IsShowAccelChar() const { return FShowAccelChar; }
  void SetShowAccelChar(bool value);
  /// Whether the parent shows behind the text, and not Color. Looks of today have it so; forms keep what was set.
  bool IsTransparent() const { return !GetControlStyle().Has(csOpaque); }
  void SetTransparent(bool value);
  bool IsTransparentStored() const { return FIsTransparentSet; }
  bool IsWordWrap() const { return FWordWrap; }
  void SetWordWrap(bool value);

 protected:
  explicit TCustomLabel(TComponent* owner = nullptr) : TGraphicControl(owner) {}

  void Construct() override;
  void Loaded() override;
  void Notification(TComponent* component, TOperation operation) override;
  void Paint() override;
  void Click() override;
  void CMTextChanged(TMessage& message) override;
  void CMFontChanged(TMessage& message) override;
  void CMDialogChar(TMessage& message) override;

  /// Brings the size to the text's, with AutoSize.
  virtual void AdjustBounds();

 private:
  bool FocusOther();
  /// Of DrawText().
  quint32 Flags() const;
  /// What is drawn; never empty when it is to be measured.
  QString ShownText(bool isMeasured);
  QSize TextSize();

  TWinControl* FFocusControl = nullptr;
  TAlignment FAlignment = taLeftJustify;
  TTextLayout FLayout = tlTop;
  TEllipsisPosition FEllipsisPosition = epNone;
  bool FAutoSize = true;
  bool FShowAccelChar = true;
  bool FWordWrap = false;
  bool FIsTransparentSet = false;
};

/// The label that forms use.
class TLabel : public TCustomLabel {
 public:
  using Inherited = TCustomLabel;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TLabel(TComponent* owner = nullptr) : TCustomLabel(owner) {}
};

}  // namespace kt
