// What TCustomGrid has to do with its in-place editor.
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/grids/CustomGrid.h"

namespace kt {

bool TCustomGrid::CanEditAcceptKey(QChar) { return true; }

bool TCustomGrid::CanGridAcceptKey(quint16, TShiftState) { return true; }

QString TCustomGrid::GetEditText(int, int) { return {}; }

void TCustomGrid::SetEditText(int, int, const QString&) {}

QString TCustomGrid::GetEditMask(int, int) { return {}; }

TEditStyle TCustomGrid::GetEditStyle(int, int) { return esSimple; }

bool TCustomGrid::CanEditShow() {
  if (!FOptions.Has(goEditing) || FOptions.Has(goRowSelect) || !FEditorMode) return false;
  if (HasState(csDesigning) || !HandleAllocated()) return false;
  return FOptions.Has(goAlwaysShowEditor) || IsActiveControl();
}

void TCustomGrid::SetEditorMode(bool value) {
  if (!value) return HideEditor();
  ShowEditor();
}

void TCustomGrid::ShowEditor() {
  FEditorMode = true;
  UpdateEdit();
}

void TCustomGrid::HideEditor() {
  FEditorMode = false;
  HideEdit();
}

bool TCustomGrid::IsActiveControl() const { return TFocus::Current() == this; }

void TCustomGrid::UpdateEdit() {}
void TCustomGrid::HideEdit() {}
void TCustomGrid::MoveEditor() {}
void TCustomGrid::InvalidateEditor() {}
void TCustomGrid::ShowEditorChar(QChar) { ShowEditor(); }
TInplaceEdit* TCustomGrid::CreateEditor() { return nullptr; }

}  // namespace kt
