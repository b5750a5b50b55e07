#pragma once

#include "kt/vcl/comctrls/StatusPanels.h"
#include "kt/vcl/controls/WinControl.h"

#include <memory>

class QStatusBar;

namespace kt {

/// A line at the bottom of a form that tells how things are: in panels, or in one text. Its window is one of Qt's
/// status bars with a label for each panel.
class TCustomStatusBar : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TStatusPanels& GetPanels() { return *FPanels; }
  void SetPanels(const TStatusPanels& value);
  /// Whether SimpleText is shown instead of the panels.
  bool IsSimplePanel() const { return FSimplePanel; }
  void SetSimplePanel(bool value);
  const QString& GetSimpleText() const { return FSimpleText; }
  void SetSimpleText(const QString& value);
  /// Whether the form can be resized by the corner of the bar.
  bool IsSizeGrip() const { return FSizeGrip; }
  void SetSizeGrip(bool value);
  /// Whether long hints of the program show in SimpleText, or in the first panel. Application().OnHint goes before.
  bool IsAutoHint() const { return FAutoHint; }
  void SetAutoHint(bool value) { FAutoHint = value; }
  /// Whether the desktop's font is used; ends when Font is changed.
  bool IsUseSystemFont() const { return FUseSystemFont; }
  void SetUseSystemFont(bool value);
  bool IsBarFontStored() const { return !FUseSystemFont && !IsParentFont(); }

  void Dispatch(TMessage& message) override;
  void DefaultHandler(TMessage& message) override;

  /// A hint is to be shown with AutoHint: the handler does it, instead of the bar.
  TNotifyEvent OnHint;

 protected:
  friend class TStatusPanels;

  explicit TCustomStatusBar(TComponent* owner = nullptr) : TWinControl(owner) {}

  void Construct() override;
  void Destruct() override;
  QWidget* CreateBody(QWidget* parent) override;
  void CreateWnd() override;
  void BoundsUpdated() override;
  bool WindowEvent(QEvent& event) override;
  void CMFontChanged(TMessage& message) override;
  void CMColorChanged(TMessage& message) override;
  void CMBiDiModeChanged(TMessage& message) override;

 private:
  /// Null without a window.
  QStatusBar* Bar() const;
  void UpdateLook();
  void UpdatePanels();
  void UpdatePanel(int index);
  void PlacePanels();
  void ShowHint(const QString& hint);

  std::unique_ptr<TStatusPanels> FPanels;
  QString FSimpleText;
  bool FSimplePanel = false;
  bool FSizeGrip = true;
  bool FAutoHint = false;
  bool FUseSystemFont = true;
  bool FIsUpdatingLook = false;
};

/// The status bar that forms use.
class TStatusBar : public TCustomStatusBar {
 public:
  using Inherited = TCustomStatusBar;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TStatusBar(TComponent* owner = nullptr) : TCustomStatusBar(owner) {}
};

}  // namespace kt
