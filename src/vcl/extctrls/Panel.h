#pragma once

#include "kt/vcl/controls/CustomControl.h"
#include "kt/vcl/controls/ParentGround.h"

namespace kt {

/// An area with edges, for other controls or for a text in its middle.
///
/// Places of children are counted from the corner of the client area, which the edges belong to; aligned ones stay
/// inside the edges.
class TCustomPanel : public TCustomControl {
 public:
  using Inherited = TCustomControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Drawn where no other control covers it.
  const QString& GetCaption() const { return GetText(); }
  void SetCaption(const QString& value) { SetText(value); }
  TAlignment GetAlignment() const { return FAlignment; }
  void SetAlignment(TAlignment value);
  /// Whether the panel is as large as the controls in it need it, except where its alignment says. Controls that keep
  /// to the right or the bottom, or fill the panel, ask for no room.
  bool IsAutoSize() const { return FAutoSize; }
  void SetAutoSize(bool value);
  /// The edges from outside to inside: BevelOuter, a space of BorderWidth pixels, BevelInner.
  TPanelBevel GetBevelInner() const { return FBevelInner; }
  void SetBevelInner(TPanelBevel value);
  TPanelBevel GetBevelOuter() const { return FBevelOuter; }
  void SetBevelOuter(TPanelBevel value);
  /// Of each, in pixels; at least 1.
  int GetBevelWidth() const { return FBevelWidth; }
  void SetBevelWidth(int value);
  int GetBorderWidth() const { return FBorderWidth; }
  void SetBorderWidth(int value);
  /// A frame around the client area.
  TBorderStyle GetBorderStyle() const { return FBorderStyle; }
  void SetBorderStyle(TBorderStyle value);
  /// Whether the parent shows, and not Color; what is not set follows from the colours.
  bool IsParentBackground() const { return FGround.IsOn(*this); }
  void SetParentBackground(bool value);
  bool IsParentBackgroundStored() const { return FGround.IsStored(); }

  // Kept for the forms that say them. Panels are painted whole when they are resized, and nothing can be docked.
  bool IsFullRepaint() const { return FFullRepaint; }
  void SetFullRepaint(bool value) { FFullRepaint = value; }
  bool IsLocked() const { return FLocked; }
  void SetLocked(bool value) { FLocked = value; }
  bool IsDockSite() const { return FDockSite; }
  void SetDockSite(bool value) { FDockSite = value; }
  bool IsUseDockManager() const { return FUseDockManager; }
  void SetUseDockManager(bool value) { FUseDockManager = value; }

 protected:
  explicit TCustomPanel(TComponent* owner = nullptr) : TCustomControl(owner) {}

  void Construct() override;
  QMargins GetClientMargins() const override;
  void AlignControls(QRect& rect) override;
  void AdjustClientRect(QRect& rect) override;
  bool FillsGround() const override { return !IsParentBackground(); }
  void Paint() override;
  void PaintBorder(QPainter& painter) override;
  void CMTextChanged(TMessage& message) override;

 private:
  void EdgesChanged();
  QSize NeededSize() const;

  TParentGround FGround;
  int FBevelWidth = 1;
  int FBorderWidth = 0;
  TAlignment FAlignment = taCenter;
  TPanelBevel FBevelInner = bvNone;
  TPanelBevel FBevelOuter = bvRaised;
  TBorderStyle FBorderStyle = bsNone;
  bool FAutoSize = false;
  bool FFullRepaint = true;
  bool FLocked = false;
  bool FDockSite = false;
  bool FUseDockManager = true;
};

/// The panel that forms use.
class TPanel : public TCustomPanel {
 public:
  using Inherited = TCustomPanel;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TPanel(TComponent* owner = nullptr) : TCustomPanel(owner) {}
};

/// "TBevelWidth" and "TBorderWidth", whole numbers from 1 and from 0.
const TTypeInfo* BevelWidthTypeInfo();
const TTypeInfo* BorderWidthTypeInfo();

}  // namespace kt
