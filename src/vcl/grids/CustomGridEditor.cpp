// What TCustomGrid has to do with its in-place editor.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/grids/CustomGrid.h"
#include "kt/vcl/grids/InplaceEdit.h"

#include <QApplication>

namespace kt {

TInplaceEdit* TCustomGrid::CreateEditor() { return New<TInplaceEdit>(this); }

bool TCustomGrid::CanEditAcceptKey(QChar) { return true; }

bool TCustomGrid::CanGridAcceptKey(quint16, TShiftState) { return true; }

QString TCustomGrid::GetEditText(int, int) { return {}; }

void TCustomGrid::SetEditText(int, int, const QString&) {}

QString TCustomGrid::GetEditMask(int, int) { return {}; }

TEditStyle TCustomGrid::GetEditStyle(int, int) { return esSimple; }

bool TCustomGrid::IsActiveControl() const {
  if (const TCustomForm* form = GetParentForm(const_cast<TCustomGrid*>(this))) {
    const TWinControl* active = form->GetActiveControl();
    return active == this || (active && active == FInplaceEdit);
  }
  if (!HandleAllocated()) return false;
  // No widget has the focus while another program's window is active: then it is who gets it back.
  const QWidget* const focused = QApplication::focusWidget();
  return focused ? focused == Window() || Window()->isAncestorOf(focused) : TFocus::Current() == this;
}

bool TCustomGrid::CanEditShow() {
  if (!FOptions.Has(goEditing) || FOptions.Has(goRowSelect) || !FEditorMode) return false;
  if (HasState(csDesigning) || !HandleAllocated()) return false;
  return FOptions.Has(goAlwaysShowEditor) || IsActiveControl();
}

void TCustomGrid::SetEditorMode(bool value) {
  const TLifeWatch self(this);
  if (!value) {
    ValidateEditor();
    if (self.IsAlive()) HideEditor();
    return;
  }
  ShowEditor();
  if (self.IsAlive() && FInplaceEdit) FInplaceEdit->Deselect();
}

void TCustomGrid::ShowEditor() {
  FEditorMode = true;
  UpdateEdit();
}

void TCustomGrid::ShowEditorChar(QChar character) {
  const TLifeWatch self(this);
  ShowEditor();
  if (self.IsAlive() && FInplaceEdit && FInplaceEdit->Visible()) FInplaceEdit->Perform(WM_CHAR, character.unicode());
}

void TCustomGrid::HideEditor() {
  FEditorMode = false;
  HideEdit();
}

void TCustomGrid::InvalidateEditor() {
  const bool isInPlace = FInplaceEdit && FInplaceEdit->Visible() && FInplaceCell == FCurrent && CanEditShow();
  FInplaceCell = {-1, -1};
  if (!isInPlace) return UpdateEdit();
  // Without going and coming back, which would take the keyboard along and repaint what is beneath.
  if (UpdateEditor() && CanEditShow()) FInplaceEdit->UpdateLoc(CellRect(FCurrent.X, FCurrent.Y));
}

void TCustomGrid::UpdateEdit() {
  // The keyboard comes back from an editor that dies; that one gets no new window.
  if (!CanEditShow() || (FInplaceEdit && FInplaceEdit->HasState(csDestroying))) return;
  const TLifeWatch self(this);
  bool isThere = true;
  if (!FInplaceEdit) {
    FInplaceEdit = CreateEditor();
    if (!FInplaceEdit) return;
    FInplaceEdit->SetGrid(this);
    FInplaceEdit->SetParent(this);
    isThere = UpdateEditor();
  } else if (FInplaceCell != FCurrent) {
    HideEdit();
    isThere = self.IsAlive() && UpdateEditor();
  }
  // The texts come from handlers, which may have changed anything.
  if (isThere && CanEditShow()) FInplaceEdit->Move(CellRect(FCurrent.X, FCurrent.Y));
}

/// False when there is no editor afterwards, and perhaps no grid.
bool TCustomGrid::UpdateEditor() {
  if (!FInplaceEdit) return false;
  const TLifeWatch self(this);
  FInplaceCell = FCurrent;
  try {
    FInplaceEdit->UpdateContents();
  } catch (...) {
    // It has half of its contents, which must not get into the cell.
    if (self.IsAlive()) FInplaceCell = {-1, -1};
    if (self.IsAlive() && FInplaceEdit) FInplaceEdit->Hide();
    throw;
  }
  if (!self.IsAlive()) return false;
  FCanEditModify = true;
  return FInplaceEdit != nullptr;
}

void TCustomGrid::UpdateText() {
  if (FInplaceCell.X < 0 || FInplaceCell.Y < 0 || !FInplaceEdit) return;
  // A copy: handlers of the text may free the edit.
  const QString text = FInplaceEdit->GetText();
  SetEditText(FInplaceCell.X, FInplaceCell.Y, text);
}

void TCustomGrid::HideEdit() {
  if (!FInplaceEdit) return;
  struct TGone {
    TCustomGrid& Grid;
    TLifeWatch Watch{&Grid};
    ~TGone() {
      if (!Watch.IsAlive()) return;
      Grid.FInplaceCell = {-1, -1};
      if (Grid.FInplaceEdit) Grid.FInplaceEdit->Hide();
    }
  } gone{*this};
  // A cell that was only looked at keeps its text as it was, which need not be the one that the mask makes of it.
  if (!FInplaceEdit->IsMasked() || FInplaceEdit->IsModified()) UpdateText();
}

/// Raises what is wrong with the text of the cell being edited, and shows it.
void TCustomGrid::ValidateEditor() {
  if (!FInplaceEdit || FInplaceCell.X < 0 || FInplaceCell != FCurrent) return;
  const TLifeWatch self(this);
  try {
    FInplaceEdit->ValidateEdit();
  } catch (...) {
    if (self.IsAlive() && FInplaceCell == FCurrent) ClampInView(FCurrent);
    throw;
  }
}

void TCustomGrid::MoveEditor() {
  if (!FInplaceEdit || FInplaceCell.X < 0 || !HandleAllocated() || !CanEditShow()) return;
  const QRect cell = CellRect(FInplaceCell.X, FInplaceCell.Y);
  if (!FInplaceEdit->Visible() || !FInplaceEdit->PosEqual(cell)) FInplaceEdit->UpdateLoc(cell);
}

void TCustomGrid::Notification(TComponent* component, TOperation operation) {
  TCustomControl::Notification(component, operation);
  if (operation == opRemove && component == FInplaceEdit) FInplaceEdit = nullptr;
}

}  // namespace kt
