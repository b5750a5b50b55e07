#pragma once

#include "kt/vcl/mask/MaskEdit.h"

namespace kt {

class TCustomGrid;

/// The editor that a grid lays over its current cell. The grid makes and owns it, moves it from cell to cell and hears
/// of each change of its text; keys that move between cells go to the grid. The grid counts as focused while the editor
/// has the keyboard.
class TInplaceEdit : public TCustomMaskEdit {
 public:
  using Inherited = TCustomMaskEdit;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TCustomGrid* GetGrid() const { return FGrid; }
  void Deselect();
  /// Disappears; the keyboard goes back to the grid.
  void Hide();
  /// Appears over `rect` of the grid's client area, painted anew; an empty one hides it.
  void Move(const QRect& rect);
  /// As Move(), but paints only what has to be.
  void UpdateLoc(const QRect& rect);
  bool PosEqual(const QRect& rect) const { return GetBoundsRect() == rect; }
  void SetFocus() override;
  bool Visible() const { return IsVisible(); }

 protected:
  friend class TCustomGrid;

  explicit TInplaceEdit(TComponent* owner = nullptr) : TCustomMaskEdit(owner) {}

  void Construct() override;
  TWinControl* FocusOwner() override;

  /// The editor has moved or got another size: makes room for the text.
  virtual void BoundsChanged();
  /// The editor has come to another cell: takes its mask and text over.
  virtual void UpdateContents();

  bool EditCanModify() override;
  void Change() override;
  void DblClick() override;
  void KeyDown(quint16& key, TShiftState shift) override;
  void KeyPress(QChar& key) override;
  void KeyUp(quint16& key, TShiftState shift) override;
  bool InputText(const QString& text) override;
  bool DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) override;
  bool WantsKey(quint16 key) override;
  void SetGrid(TCustomGrid* value) { FGrid = value; }

 private:
  bool IsFresh(const QString& mask, const QString& text, bool isReadOnly) const;
  void SendToGrid(quint16& key, TShiftState shift);
  void EscapeToGrid(quint16& key, TShiftState shift);
  void RaiseGridEvent(quint16& key, TShiftState shift);
  bool IsLeftSide() const;
  bool IsRightSide() const;
  void HandleGridKey(quint16& key, TShiftState shift);

  TCustomGrid* FGrid = nullptr;
  bool FIsUpdating = false;
};

}  // namespace kt
