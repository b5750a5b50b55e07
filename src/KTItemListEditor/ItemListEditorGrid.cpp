#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemRows.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/PropLists.h"

#include <utility>

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
  // Where the program has set the fixed lines by itself, titles can lie over the first item.
  const bool isTitle = line == 0 && FDisplayOptions.Has(doColumnTitles);
  if (hasLine && !isTitle && GetGridCount(gcCurrentLine) != line) SetGridCount(gcCurrentLine, line);
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
  const int fixed = value ? 1 : 0;
  if (GetGridCount(gcFixedLines) == fixed) return;
  const bool reopens = IsEditorMode();
  const TLifeWatch self(this);
  // The cell of the editor is about to become that of another item.
  HideEditor();
  if (!self.IsAlive()) return;
  if (FOrientation == goVertical) {
    if (value && GetRowCount() < 2) SetRowCount(2);
    if (self.IsAlive()) SetFixedRows(fixed);
  } else {
    if (value && GetColCount() < 2) TCustomDrawGrid::SetColCount(2);
    if (self.IsAlive()) SetFixedCols(fixed);
  }
  if (self.IsAlive()) LeaveName();
  if (self.IsAlive() && reopens) ShowEditor();
}

/// Other fixed cells have put the cursor into the first field, which it has no business in unless names can be edited.
void TKTCustomItemListEditor::LeaveName() {
  if (GetOptions().Has(goRowSelect) || FPropertyOptions.Has(propEdit)) return;
  if (GetGridCount(gcCurrentField) != 0 || GetGridCount(gcFieldCount) < 2) return;
  CarryCurrent(CellOf(GetGridCount(gcCurrentLine) - GetGridCount(gcFixedLines), 1));
}

void TKTCustomItemListEditor::SetDisplayOptions(TILEDisplayOptions value) {
  if (FDisplayOptions == value) return;
  const TILEDisplayOptions added = value - FDisplayOptions;
  const TILEDisplayOptions removed = FDisplayOptions - value;
  const TILEDisplayOptions changed = added + removed;
  const bool reopens = changed.Has(doColumnTitles) && IsEditorMode();
  const TLifeWatch self(this);
  // Till all is set there is nothing to show.
  if (changed.Has(doColumnTitles)) HideEditor();
  if (self.IsAlive() && changed.Has(doColumnTitles)) SetColumnTitles(value.Has(doColumnTitles));
  if (self.IsAlive() && removed.Has(doMultiColValues)) SetGridCount(gcFieldCount, 2);
  // What is typed is written while the rows are what they were; a handler that refuses it finds nothing changed.
  if (self.IsAlive() && changed.Has(doShowReadOnly)) HideEditor();
  if (!self.IsAlive()) return;
  FDisplayOptions = value;
  // Both ways: read-only items come back as they went.
  if (changed.Has(doShowReadOnly)) RecountRows();
  AdjustColWidths();
  if (changed.Has(doShowReadOnly)) ShowRows();
  // The orientation that the counts in a form are meant for comes after the options.
  if (self.IsAlive() && HasCountsOfForm()) FAdjustsWhenLoaded = true;
  if (self.IsAlive() && !FAdjustsWhenLoaded) Refresh();
  if (self.IsAlive() && reopens) ShowEditor();
}

/// Whether the counts are those that a form has for the editor being read.
bool TKTCustomItemListEditor::HasCountsOfForm() const {
  return HasState(csReading) && GetPropInfo(ClassType(), u"RowCount");
}

void TKTCustomItemListEditor::Loaded() {
  const TLifeWatch self(this);
  TCustomDrawGrid::Loaded();
  if (self.IsAlive() && std::exchange(FAdjustsWhenLoaded, false)) Refresh();
}

void TKTCustomItemListEditor::RecountRows() {
  TItemRows::MarkAllStale(*FItems);
  if (!IsUpdating()) TItemRows::Recount(*FItems);
}

void TKTCustomItemListEditor::SetOrientation(TKTGridOrientation value) {
  if (FOrientation == value) return;
  const TLifeWatch self(this);
  // What is typed belongs to a cell of the grid as it was.
  HideEditor();
  if (!self.IsAlive()) return;
  const TKTGridOrientation previous = std::exchange(FOrientation, value);
  const int cols = GetColCount();
  const int rows = GetRowCount();
  try {
    OrientationChange();
  } catch (...) {
    // Whoever does not let the cursor go where there is still room for it has kept the grid from turning.
    const bool hasTurned = self.IsAlive() && (GetColCount() != cols || GetRowCount() != rows || cols == rows);
    if (self.IsAlive() && !hasTurned) FOrientation = previous;
    throw;
  }
}

void TKTCustomItemListEditor::SwapCounts() {
  const TLifeWatch self(this);
  const int cols = GetColCount();
  const int rows = GetRowCount();
  if (FOrientation == goVertical) {
    SetColCount(rows);
    if (self.IsAlive()) SetRowCount(cols);
  } else {
    SetRowCount(cols);
    if (self.IsAlive()) SetColCount(rows);
  }
}

void TKTCustomItemListEditor::OrientationChange() {
  const TLifeWatch self(this);
  HideEditor();
  if (!self.IsAlive()) return;
  const TGridRect selection = GetSelection();
  // The counts in a form, where the class publishes them, are already those of the orientation in it.
  if (!HasCountsOfForm()) SwapCounts();
  if (self.IsAlive()) SetColumnTitles(FDisplayOptions.Has(doColumnTitles));
  // Left over from the title line, which was on the other axis.
  if (self.IsAlive() && GetGridCount(gcFixedFields) == 1) SetGridCount(gcFixedFields, 0);
  if (self.IsAlive()) TurnSelection(selection);
  if (self.IsAlive()) LeaveName();
  if (self.IsAlive()) Refresh();
  if (self.IsAlive()) ShowEditor();
}

void TKTCustomItemListEditor::TurnSelection(const TGridRect& selection) {
  const TGridRect turned{selection.Top, selection.Left, selection.Bottom, selection.Right};
  // Handlers of the new current cell may have removed what was selected.
  const bool isInside = turned.Right < GetColCount() && turned.Bottom < GetRowCount();
  if (isInside && !HasState(csReading)) SetSelection(turned);
}

}  // namespace kt
