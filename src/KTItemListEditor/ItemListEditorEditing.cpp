// How the cells of TKTCustomItemListEditor are edited.
#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/stdctrls/ListBox.h"

namespace kt {

TInplaceEdit* TKTCustomItemListEditor::CreateEditor() {
  auto* editor = New<TKTInplaceEditList>(this);
  editor->SetDropDownRows(FDropDownRows);
  editor->OnEditButtonClick = {this, &TKTCustomItemListEditor::EditButtonClick};
  editor->OnGetPickListItems = {this, &TKTCustomItemListEditor::EditListGetItems};
  return editor;
}

TKTInplaceEditList* TKTCustomItemListEditor::ListEditor() const {
  return dynamic_cast<TKTInplaceEditList*>(InplaceEditor());
}

void TKTCustomItemListEditor::SetDropDownRows(int value) {
  if (FDropDownRows == value || value < 1) return;
  FDropDownRows = value;
  if (TKTInplaceEditList* editor = ListEditor()) editor->SetDropDownRows(value);
}

bool TKTCustomItemListEditor::CanEditModify() {
  if (!TCustomDrawGrid::CanEditModify()) return false;
  const TKTItemProp* item = GetSelected();
  return !item || !item->IsReadOnly();
}

TEditStyle TKTCustomItemListEditor::GetEditStyle(int col, int row) {
  if (!IsValueCell(col, row)) return esSimple;
  if (const TKTItemProp* item = FindItemProp(col, row, true)) return item->GetEditStyle();
  TKTInplaceEditList* editor = ListEditor();
  return editor && GetPickList(nullptr, editor->GetPickList().GetItems(), true) ? esPickList : esSimple;
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
  return item ? item->IndividualValueFontToDraw(GetCurrentValueIndex()) : GetValueFont();
}

void TKTCustomItemListEditor::EditButtonClick(TObject*) {
  TKTItemProp* item = GetSelected();
  const TNotifyEvent own = item ? item->GetOnEditButtonClick() : TNotifyEvent();
  const TNotifyEvent handler = own ? own : OnEditButtonClick;
  handler(item);
}

// Pick lists.

void TKTCustomItemListEditor::EditListGetItems(int col, int row, TStrings& items) {
  if (!IsValueCell(col, row)) return;
  const TItemWatch item(FindItemProp(col, row, true));
  if (item && item->HasPickList()) {
    items.Assign(&item->GetPickList());
  } else {
    items.Clear();
  }
  GetPickList(item.Get(), items, false);
}

bool TKTCustomItemListEditor::GetPickList(TKTItemProp* item, TStrings& values, bool clearFirst) {
  const TGridCoord cell = CellOf(GetGridCount(gcCurrentLine) - GetGridCount(gcFixedLines), 0);
  const QString name = GetCell(cell.X, cell.Y);
  if (name.isEmpty()) return false;
  const TLifeWatch self(this);
  const TUpdateBracket bracket(values);
  if (clearFirst) values.Clear();
  const TKTGetPickListEvent own = item ? item->GetOnGetPickList() : TKTGetPickListEvent();
  const TKTGetPickListEvent handler = own ? own : OnGetPickList;
  handler(own ? static_cast<TObject*>(item) : this, item ? item->GetFullPathName() : name, values);
  if (!self.IsAlive() || !bracket.IsAlive()) return false;
  const bool hasValues = values.GetCount() > 0;
  if (TKTInplaceEditList* editor = ListEditor()) editor->SetPickListLoaded(hasValues);
  return hasValues;
}

}  // namespace kt
