#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTItemListEditor/Messages.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"

namespace kt {

namespace {

/// Variants of different kinds are compared as numbers; a key that is no text then, or a name that is no number, is
/// just another one.
bool IsSameKey(const Variant& key, const QString& displayName) {
  try {
    return VarSameValue(key, displayName);
  } catch (const EVariantError&) {
    return false;
  }
}

}  // namespace

int TKTCustomItemListEditor::CompareStrings(const QString& s1, const QString& s2) {
  return FCaseSensitive ? AnsiCompareStr(s1, s2) : AnsiCompareText(s1, s2);
}

TKTItemProp* TKTCustomItemListEditor::FindItemProp(int col, int row, bool isGridPosition) const {
  if (GetVisibleItemCount() == 0) return nullptr;
  const TGridInfo info = GetGridInfo(col, row);
  return GetVisibleItem(isGridPosition ? info.Line - info.FixedLines : info.Line);
}

TKTItemProp* TKTCustomItemListEditor::FindItemProp(const Variant& key, bool create) {
  if (GetVisibleItemCount() == 0) return nullptr;
  if (VarIsOrdinal(key)) {
    TKTItemProp* item = GetVisibleItem(key.ToInt());
    return !item && create ? FItems->Insert(key.ToInt()) : item;
  }
  for (int row = 0; row < GetVisibleItemCount(); ++row) {
    TKTItemProp* item = GetVisibleItem(row);
    if (IsSameKey(key, item->GetDisplayName())) return item;
  }
  if (create) throw ETORVException(Format(SPropertyNotFound, {VarToStr(key)}));
  return nullptr;
}

bool TKTCustomItemListEditor::FindItem(const QString& name, int& index) {
  index = -1;
  for (int row = 0; row < GetVisibleItemCount() && index < 0; ++row) {
    if (CompareStrings(GetVisibleItem(row)->GetName(), name) == 0) index = row;
  }
  return false;
}

int TKTCustomItemListEditor::IndexOfName(TStrings& strings, int startIndex, const QString& name) {
  for (int i = startIndex; i < strings.GetCount(); ++i) {
    const QString line = strings.GetStrings(i);
    const qsizetype end = line.indexOf(QLatin1Char('='));
    if (end >= 0 && CompareStrings(line.left(end), name) == 0) return i;
  }
  return -1;
}

TKTItemProp* TKTCustomItemListEditor::GetSelected() const { return FindItemProp(GetCol(), GetRow(), true); }

void TKTCustomItemListEditor::SetSelected(TKTItemProp* item) {
  if (item == GetSelected()) return;
  if (!item) return HideEditor();
  const TItemWatch selected(item);
  for (TItemWatch parent(item->GetParent()); parent;) {
    parent->Expand();
    parent = parent ? parent->GetParent() : nullptr;
  }
  if (selected && selected->IsVisible()) GoToRow(selected->GetAbsoluteVIndex());
}

bool TKTCustomItemListEditor::IsSelectedValue(const TKTItemProp& item) const {
  return item.Span().Rows > 0 && GetCurrentValueIndex() >= 0 && GetSelected() == &item;
}

bool TKTCustomItemListEditor::IsEmptyItem() const {
  TKTItemProp* item = GetSelected();
  return item && item->GetName().isEmpty() && item->IsValuesEmpty();
}

QString TKTCustomItemListEditor::GetPropNames(int index) {
  const TGridCoord cell = CellOf(index, 0);
  return GetCell(cell.X, cell.Y);
}

void TKTCustomItemListEditor::SetPropNames(int index, const QString& value) {
  const TGridCoord cell = CellOf(index, 0);
  SetCell(cell.X, cell.Y, value);
}

QString TKTCustomItemListEditor::GetPropValues(int index) {
  const TGridCoord cell = CellOf(index, 1);
  return GetCell(cell.X, cell.Y);
}

void TKTCustomItemListEditor::SetPropValues(int index, const QString& value) {
  const TGridCoord cell = CellOf(index, 1);
  SetCell(cell.X, cell.Y, value);
}

}  // namespace kt
