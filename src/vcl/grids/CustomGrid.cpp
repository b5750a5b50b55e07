#include "kt/vcl/grids/CustomGrid.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/grids/GridScrollBar.h"
#include "kt/vcl/grids/InplaceEdit.h"

#include <QTimer>

namespace kt {

const TClassInfo* TCustomGrid::Class() {
  static const TClassInfo info = TClassBuilder<TCustomGrid>("TCustomGrid").Done();
  return &info;
}

TCustomGrid::TCustomGrid(TComponent* owner) : TCustomControl(owner) {}

TCustomGrid::~TCustomGrid() = default;

void TCustomGrid::Construct() {
  TCustomControl::Construct();
  FControlStyle = {csCaptureMouse, csOpaque, csDoubleClicks};
  SetParentColor(false);
  SetTabStop(true);
  SetBounds(GetLeft(), GetTop(), FCols.Count * GetDefaultColWidth(), FRows.Count * GetDefaultRowHeight());
  Initialize();
}

void TCustomGrid::Initialize() {
  FCols.First = FCols.Fixed;
  FRows.First = FRows.Fixed;
  FCurrent = {FCols.Fixed, FRows.Fixed};
  FAnchor = FCurrent;
  if (FOptions.Has(goRowSelect)) FAnchor.X = FCols.Count - 1;
}

void TCustomGrid::CheckIndex(const TGridAxis& axis, int index) const {
  if (index < 0 || index >= axis.Count) throw EInvalidGridOperation(SGridIndexOutOfRange);
}

void TCustomGrid::SetOptions(TGridOptions value) {
  if (value.Has(goRowSelect)) value.Exclude(goAlwaysShowEditor);
  if (FOptions == value) return;
  FOptions = value;
  UpdateTracking();
  const TLifeWatch self(this);
  ScrollBarsNeedUpdate();
  if (!self.IsAlive()) return;
  if (!FEditorMode) {
    if (value.Has(goAlwaysShowEditor)) {
      ShowEditor();
    } else {
      HideEditor();
    }
  } else if (!value.Has(goEditing) || value.Has(goRowSelect)) {
    // It could not follow the cell any more.
    HideEdit();
  }
  if (self.IsAlive() && value.Has(goRowSelect)) MoveCurrent(FCurrent.X, FCurrent.Y, true, false);
  if (self.IsAlive()) InvalidateGrid();
}

void TCustomGrid::SetFixedColor(TColor value) {
  if (FFixedColor == value) return;
  FFixedColor = value;
  InvalidateGrid();
}

void TCustomGrid::SetScrollBars(TScrollStyle value) {
  if (FScrollBars == value) return;
  FScrollBars = value;
  ScrollBarsNeedUpdate();
}

void TCustomGrid::SetBorderStyle(TBorderStyle value) {
  if (FBorderStyle == value) return;
  FBorderStyle = value;
  const TLifeWatch self(this);
  ScrollBarsNeedUpdate();
  if (self.IsAlive()) InvalidateGrid();
}

void TCustomGrid::DestroyWnd() {
  FHorzBar = nullptr;
  FVertBar = nullptr;
  FScrollTimer.reset();
  FGridState = gsNormal;
  TCustomControl::DestroyWnd();
}

void TCustomGrid::CMExit(TMessage& message) {
  const TLifeWatch self(this);
  ValidateEditor();
  if (self.IsAlive()) TCustomControl::CMExit(message);
}

void TCustomGrid::DoExit() {
  const TLifeWatch self(this);
  TCustomControl::DoExit();
  if (self.IsAlive() && !FOptions.Has(goAlwaysShowEditor)) HideEditor();
}

void TCustomGrid::WMSetFocus(TMessage& message) {
  const TLifeWatch self(this);
  TCustomControl::WMSetFocus(message);
  if (!self.IsAlive()) return;
  InvalidateCells(GetSelection());
  UpdateEdit();
  if (self.IsAlive() && FInplaceEdit && FInplaceEdit->Visible()) FInplaceEdit->SetFocus();
}

void TCustomGrid::WMKillFocus(TMessage& message) {
  const TLifeWatch self(this);
  TCustomControl::WMKillFocus(message);
  if (self.IsAlive()) InvalidateCells(GetSelection());
}

void TCustomGrid::CMShowingChanged(TMessage& message) {
  const TLifeWatch self(this);
  TCustomControl::CMShowingChanged(message);
  if (!self.IsAlive() || !IsShowing()) return;
  ScrollBarsNeedUpdate();
  if (self.IsAlive()) UpdateEdit();
}

void TCustomGrid::CMBiDiModeChanged(TMessage& message) {
  const TLifeWatch self(this);
  TCustomControl::CMBiDiModeChanged(message);
  if (self.IsAlive()) ScrollBarsNeedUpdate();
  if (self.IsAlive()) MoveEditor();
}

void TCustomGrid::CMCancelMode(TMessage& message) {
  TCustomControl::CMCancelMode(message);
  if (FInplaceEdit) FInplaceEdit->WndProc(message);
  CancelMouse();
}

void TCustomGrid::WMCancelMode(TMessage& message) {
  TCustomControl::WMCancelMode(message);
  CancelMouse();
}

bool TCustomGrid::InputText(const QString& text) {
  // What an input method composes goes where it is typed.
  const bool hasEditor = FInplaceEdit && FInplaceEdit->Visible();
  const TLifeWatch self(this);
  if (FOptions.Has(goEditing) && !hasEditor) ShowEditor();
  if (!self.IsAlive()) return true;
  return TCustomControl::InputText(text);
}

void TCustomGrid::SizeChanged(int, int) {}
void TCustomGrid::TopLeftChanged() { MoveEditor(); }
void TCustomGrid::ColWidthsChanged() { SizesChanged(); }
void TCustomGrid::RowHeightsChanged() { SizesChanged(); }
/// Scroll bars that come or go change the client area, and OnResize may free the grid.
void TCustomGrid::SizesChanged() {
  const TLifeWatch self(this);
  ScrollBarsNeedUpdate();
  if (self.IsAlive()) MoveEditor();
}
void TCustomGrid::ColumnMoved(int, int) {}
void TCustomGrid::RowMoved(int, int) {}

}  // namespace kt
