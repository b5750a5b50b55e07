#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemRows.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/strings/StringList.h"

namespace kt {

TGridInfo TKTCustomItemListEditor::GetGridInfo(int col, int row) const {
  TGridInfo info{col, row, GetCol(), GetRow(), GetFixedCols(), GetFixedRows(), GetColCount(), GetRowCount()};
  if (FOrientation == goVertical) return info;
  std::swap(info.Field, info.Line);
  std::swap(info.CurField, info.CurLine);
  std::swap(info.FixedFields, info.FixedLines);
  std::swap(info.FieldCount, info.LineCount);
  return info;
}

int TKTCustomItemListEditor::GetGridCount(int kind) const {
  const bool isVertical = FOrientation == goVertical;
  switch (kind) {
    case gcFieldCount:
      return isVertical ? GetColCount() : GetRowCount();
    case gcCurrentField:
      return isVertical ? GetCol() : GetRow();
    case gcFixedFields:
      return isVertical ? GetFixedCols() : GetFixedRows();
    case gcLineCount:
      return isVertical ? GetRowCount() : GetColCount();
    case gcCurrentLine:
      return isVertical ? GetRow() : GetCol();
    default:
      return isVertical ? GetFixedRows() : GetFixedCols();
  }
}

void TKTCustomItemListEditor::SetGridCount(int kind, int value) {
  const bool isVertical = FOrientation == goVertical;
  switch (kind) {
    case gcFieldCount:
      return isVertical ? SetColCount(value) : SetRowCount(value);
    case gcCurrentField:
      return isVertical ? SetCol(value) : SetRow(value);
    case gcFixedFields:
      return isVertical ? SetFixedCols(value) : SetFixedRows(value);
    case gcLineCount:
      return isVertical ? SetRowCount(value) : SetColCount(value);
    case gcCurrentLine:
      return isVertical ? SetRow(value) : SetCol(value);
    default:
      return isVertical ? SetFixedRows(value) : SetFixedCols(value);
  }
}

TGridCoord TKTCustomItemListEditor::CellOf(int row, int field) const {
  const int line = row + GetGridCount(gcFixedLines);
  return FOrientation == goVertical ? TGridCoord{field, line} : TGridCoord{line, field};
}

void TKTCustomItemListEditor::GoToRow(int row) {
  const int line = row + GetGridCount(gcFixedLines);
  // Between a bracket's or lock's begin and end there are items without a row, and rows without a line.
  const bool hasLine = row >= 0 && line < GetGridCount(gcLineCount);
  if (hasLine && GetGridCount(gcCurrentLine) != line) SetGridCount(gcCurrentLine, line);
}

QString TKTCustomItemListEditor::GetCell(int col, int row) {
  const TGridInfo info = GetGridInfo(col, row);
  if (info.Line == 0 && FDisplayOptions.Has(doColumnTitles)) {
    return info.Field < FTitleCaptions->GetCount() ? FTitleCaptions->GetStrings(info.Field) : QString();
  }
  TKTItemProp* item = GetVisibleItem(info.Line - info.FixedLines);
  if (!item) return {};
  return info.Field == 0 ? item->GetName() : item->GetValueLine(info.Field - 1);
}

void TKTCustomItemListEditor::SetCell(int col, int row, const QString& value) {
  const TGridInfo info = GetGridInfo(col, row);
  const int index = info.Line - info.FixedLines;
  TKTItemProp* item = index >= GetVisibleItemCount() ? FItems->Add() : GetVisibleItem(index);
  if (!item) return;
  if (info.Field == 0) {
    item->SetName(value);
  } else {
    item->SetValueLine(info.Field - 1, value);
  }
}

void TKTCustomItemListEditor::SetColumnTitles(bool value) {
  // The cell of the editor is about to become that of another item.
  HideEditor();
  const int fixed = value ? 1 : 0;
  if (FOrientation == goVertical) {
    if (value && GetRowCount() < 2) SetRowCount(2);
    SetFixedRows(fixed);
  } else {
    if (value && GetColCount() < 2) TCustomDrawGrid::SetColCount(2);
    SetFixedCols(fixed);
  }
}

void TKTCustomItemListEditor::SetDisplayOptions(TILEDisplayOptions value) {
  if (FDisplayOptions == value) return;
  const TILEDisplayOptions added = value - FDisplayOptions;
  const TILEDisplayOptions removed = FDisplayOptions - value;
  const TILEDisplayOptions changed = added + removed;
  const bool reopens = changed.Has(doColumnTitles) && IsEditorMode();
  if (changed.Has(doColumnTitles)) SetColumnTitles(value.Has(doColumnTitles));
  if (removed.Has(doMultiColValues)) SetGridCount(gcFieldCount, 2);
  // What is typed is written while the rows are what they were; a handler that refuses it finds nothing changed.
  if (changed.Has(doShowReadOnly)) HideEditor();
  FDisplayOptions = value;
  if (changed.Has(doShowReadOnly)) TItemRows::MarkAllStale(*FItems);
  if (changed.Has(doShowReadOnly) && !IsUpdating()) TItemRows::Recount(*FItems);
  AdjustColWidths();
  // Both ways: read-only items come back as they went.
  if (changed.Has(doShowReadOnly)) ShowRows();
  Refresh();
  if (reopens) ShowEditor();
}

void TKTCustomItemListEditor::SetOrientation(TKTGridOrientation value) {
  if (FOrientation == value) return;
  const TLifeWatch self(this);
  // What is typed belongs to a cell of the grid as it was.
  HideEditor();
  if (!self.IsAlive()) return;
  FOrientation = value;
  OrientationChange();
}

void TKTCustomItemListEditor::SwapCounts() {
  const int cols = GetColCount();
  if (FOrientation == goVertical) {
    SetColCount(GetRowCount());
    SetRowCount(cols);
  } else {
    const int rows = GetRowCount();
    SetRowCount(cols);
    SetColCount(rows);
  }
}

void TKTCustomItemListEditor::OrientationChange() {
  HideEditor();
  const TGridRect selection = GetSelection();
  // The counts in a form are already those of the orientation in it.
  if (!HasState(csReading)) SwapCounts();
  SetColumnTitles(FDisplayOptions.Has(doColumnTitles));
  // Left over from the title line, which was on the other axis.
  if (GetGridCount(gcFixedFields) == 1) SetGridCount(gcFixedFields, 0);
  const TGridRect turned{selection.Top, selection.Left, selection.Bottom, selection.Right};
  // Handlers of the new current cell may have removed what was selected.
  const bool isInside = turned.Right < GetColCount() && turned.Bottom < GetRowCount();
  if (isInside && !HasState(csReading)) SetSelection(turned);
  Refresh();
  ShowEditor();
}

}  // namespace kt
