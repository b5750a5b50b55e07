#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/grids/InplaceEdit.h"

namespace kt {

int TKTCustomItemListEditor::InsertItem(const QString& name, const QString& value, bool append) {
  const int line = GetGridCount(gcCurrentLine);
  const int fixed = GetGridCount(gcFixedLines);
  if (line <= GetVisibleItemCount() && IsEmptyItem()) {
    // The value goes to the item that gets the name, wherever that takes it.
    TItemWatch reused(GetSelected());
    reused->SetName(name);
    if (reused) reused->SetValueLine(0, value);
    return line;
  }
  // The number of the line counts rows; at the top level there may be fewer items.
  TItemWatch item(append ? FItems->Add() : FItems->Insert(std::min(line - fixed, FItems->GetCount())));
  const int result = append && item ? item->GetIndex() + fixed : line;
  if (item) item->SetName(name);
  if (item) item->SetValuesText(value);
  return result;
}

void TKTCustomItemListEditor::DeleteRow(int row) {
  if (FDeleting) return;
  const TLiveFlag deleting(this, FDeleting);
  const TLifeWatch self(this);
  // Looked up first: moving the cursor runs handlers, after which the row may be that of another item.
  const TItemWatch item(FOrientation == goVertical ? GetVisibleItem(row - GetFixedRows()) : nullptr);
  if (GetRow() >= GetRowCount() - 1 && GetVisibleItemCount() > 1) SetRow(GetRow() - 1);
  if (self.IsAlive()) FreeItem(item.Get());
}

void TKTCustomItemListEditor::DeleteColumn(int col) {
  if (FDeleting) return;
  const TLiveFlag deleting(this, FDeleting);
  const TLifeWatch self(this);
  // Deliberately a column's number taken for that of an item, and nothing at all where columns are items.
  const TItemWatch item(FOrientation == goVertical ? GetVisibleItem(col - GetFixedCols()) : nullptr);
  if (GetCol() >= GetColCount() - 1 && GetVisibleItemCount() > 1) SetCol(GetCol() - 1);
  if (self.IsAlive()) FreeItem(item.Get());
}

void TKTCustomItemListEditor::DeleteItem(int col, int row) {
  if (FDeleting) return;
  const TLiveFlag deleting(this, FDeleting);
  const TLifeWatch self(this);
  const TItemWatch item(FindItemProp(col, row, true));
  const TGridInfo info = GetGridInfo(col, row);
  if (info.CurLine >= info.LineCount - 1 && GetVisibleItemCount() > 1) SetGridCount(gcCurrentLine, info.CurLine - 1);
  if (self.IsAlive()) FreeItem(item.Get());
}

/// Null, or an item that has gone elsewhere meanwhile, is left alone.
void TKTCustomItemListEditor::FreeItem(TKTItemProp* item) {
  if (item && item->GetEditor() == this) item->GetCollection()->Delete(item->GetIndex());
}

/// Whether something had been typed, and is taken back.
bool TKTCustomItemListEditor::RestoreTyping() {
  TInplaceEdit* editor = InplaceEditor();
  if (!editor || !editor->IsModified()) return false;
  const TLifeWatch watch(editor);
  const QString typed = editor->GetText();
  if (auto* list = dynamic_cast<TKTInplaceEditList*>(editor)) {
    list->RestoreContents();
  } else {
    editor->Reset();
  }
  if (watch.IsAlive()) SetEditText(GetCol(), GetRow(), QString(editor->GetText()));
  if (!watch.IsAlive() || editor->GetText() == typed) return false;
  editor->SelectAll();
  return true;
}

bool TKTCustomItemListEditor::RestoreCurrentItem() {
  const TLifeWatch self(this);
  if (RestoreTyping()) return true;
  if (!self.IsAlive() || !IsEmptyItem()) return false;
  DeleteItem(GetCol(), GetRow());
  return true;
}

void TKTCustomItemListEditor::SetPropertyOptions(TILEPropOptions value) {
  if (FPropertyOptions == value) return;
  if (FPropertyOptions.Has(propEdit) && !value.Has(propEdit)) value.Exclude(propAdd);
  if (!FPropertyOptions.Has(propAdd) && value.Has(propAdd)) value.Include(propEdit);
  const TLifeWatch self(this);
  if (!value.Has(propEdit) && GetGridCount(gcCurrentField) == 0) SetGridCount(gcCurrentField, 1);
  if (!self.IsAlive()) return;
  FPropertyOptions = value;
  if (value.Has(propEdit) && HasState(csLoading)) SetGridCount(gcCurrentField, 0);
}

void TKTCustomItemListEditor::SetCaseSensitive(bool value) {
  if (FCaseSensitive == value) return;
  FCaseSensitive = value;
  // Deliberately without effect on a sorted list: the new comparison counts for what comes later.
  if (IsSorted()) FItems->Sort(false);
}

}  // namespace kt
