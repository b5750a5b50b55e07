// How the cells of TKTCustomItemListEditor are edited.
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/LifeWatch.h"

namespace kt {

namespace {

/// The lock of an editor, for a bracket. An editor that died meanwhile is left alone.
class TTypingLock {
 public:
  explicit TTypingLock(TKTCustomItemListEditor& editor) : FEditor(editor), FLife(&editor) {}

  void BeginUpdate() { FEditor.DisableEditUpdate(); }
  void EndUpdate() {
    if (FLife.IsAlive()) FEditor.EnableEditUpdate();
  }

 private:
  TKTCustomItemListEditor& FEditor;
  TLifeWatch FLife;
};

}  // namespace

void TKTCustomItemListEditor::SetDropDownRows(int value) {
  if (FDropDownRows == value || value < 1) return;
  FDropDownRows = value;
}

bool TKTCustomItemListEditor::CanEditModify() {
  if (!TCustomDrawGrid::CanEditModify()) return false;
  const TKTItemProp* item = GetSelected();
  return !item || !item->IsReadOnly();
}

QString TKTCustomItemListEditor::GetEditMask(int col, int row) {
  const TKTItemProp* item = FindItemProp(col, row, true);
  QString mask = item && !item->GetExpressionMask() ? item->GetEditMask() : QString();
  OnGetEditMask(this, col, row, mask);
  return mask;
}

QString TKTCustomItemListEditor::GetExpressionMask(int col, int row) {
  const TKTItemProp* item = FindItemProp(col, row, true);
  return item && item->GetExpressionMask() ? item->GetEditMask() : QString();
}

QString TKTCustomItemListEditor::GetEditText(int col, int row) {
  QString text = GetCell(col, row);
  OnGetEditText(this, col, row, text);
  return text;
}

TFont& TKTCustomItemListEditor::GetCellFont(int col, int row) {
  TKTItemProp* item = FindItemProp(col, row, true);
  return item ? item->GetIndividualValueFont(GetCurrentValueIndex()) : GetValueFont();
}

void TKTCustomItemListEditor::EditButtonClick(TObject*) {
  TKTItemProp* item = GetSelected();
  const TNotifyEvent own = item ? item->GetOnEditButtonClick() : TNotifyEvent();
  const TNotifyEvent handler = own ? own : OnEditButtonClick;
  handler(item);
}

// Writing what is typed.

void TKTCustomItemListEditor::SetEditText(int col, int row, const QString& value) {
  if (IsEditUpdateLocked()) return;
  const TLifeWatch self(this);
  TCustomDrawGrid::SetEditText(col, row, value);
  if (!self.IsAlive()) return;
  TTypingLock lock(*this);
  const TUpdateBracket bracket(lock);
  // Deliberately the row, even where the columns are the items.
  if (row - GetFixedRows() >= GetVisibleItemCount() && !value.isEmpty()) {
    FItems->Add();
    if (!self.IsAlive()) return;
    FSavedVisibleCount = GetVisibleItemCount();
  }
  WriteTypedText(col, row, value);
}

void TKTCustomItemListEditor::WriteTypedText(int col, int row, const QString& value) {
  if (GetCell(col, row) == value) return;
  if (!IsValueCell(col, row) && HoldsBackName(value)) return;
  FPendingName.clear();
  SetCell(col, row, value);
}

/// A rejected name waits until it comes a second time in a row.
bool TKTCustomItemListEditor::HoldsBackName(const QString& value) {
  if (FItems->IsValid(value, false) || value == FPendingName) return false;
  FPendingName = value;
  return true;
}

}  // namespace kt
