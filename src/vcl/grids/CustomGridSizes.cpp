// Counts and sizes of TCustomGrid.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/grids/CustomGrid.h"

#include <algorithm>

namespace kt {

namespace {

/// Where a cell is after another one moved.
int AfterMove(int index, int from, int to) {
  if (index == from) return to;
  if (index > from && index <= to) return index - 1;
  if (index < from && index >= to) return index + 1;
  return index;
}

}  // namespace

void TCustomGrid::SetColCount(int value) {
  value = std::max(value, 1);
  if (FCols.Count == value) return;
  const TLifeWatch self(this);
  if (value <= FCols.Fixed) SetFixedCols(value - 1);
  if (self.IsAlive()) ChangeSize(value, FRows.Count);
}

void TCustomGrid::SetRowCount(int value) {
  value = std::max(value, 1);
  if (FRows.Count == value) return;
  const TLifeWatch self(this);
  if (value <= FRows.Fixed) SetFixedRows(value - 1);
  if (self.IsAlive()) ChangeSize(FCols.Count, value);
}

void TCustomGrid::SetFixedCols(int value) {
  if (FCols.Fixed == value) return;
  if (value < 0) throw EInvalidGridOperation(SGridIndexOutOfRange);
  if (value >= FCols.Count) throw EInvalidGridOperation(SFixedColTooBig);
  FCols.Fixed = value;
  Initialize();
  const TLifeWatch self(this);
  ScrollBarsNeedUpdate();
  if (self.IsAlive()) InvalidateGrid();
}

void TCustomGrid::SetFixedRows(int value) {
  if (FRows.Fixed == value) return;
  if (value < 0) throw EInvalidGridOperation(SGridIndexOutOfRange);
  if (value >= FRows.Count) throw EInvalidGridOperation(SFixedRowTooBig);
  FRows.Fixed = value;
  Initialize();
  const TLifeWatch self(this);
  ScrollBarsNeedUpdate();
  if (self.IsAlive()) InvalidateGrid();
}

void TCustomGrid::ChangeSize(int newColCount, int newRowCount) {
  const int oldColCount = std::exchange(FCols.Count, newColCount);
  const int oldRowCount = std::exchange(FRows.Count, newRowCount);
  const TLifeWatch self(this);
  try {
    KeepCurrentInside();
  } catch (...) {
    if (self.IsAlive()) {
      FCols.Count = oldColCount;
      FRows.Count = oldRowCount;
    }
    throw;
  }
  if (!self.IsAlive()) return;
  FCols.Sizes.Truncate(FCols.Count);
  FTabStops.Truncate(FCols.Count);
  FRows.Sizes.Truncate(FRows.Count);
  FCols.First = std::clamp(FCols.First, FCols.Fixed, FCols.Count - 1);
  FRows.First = std::clamp(FRows.First, FRows.Fixed, FRows.Count - 1);
  ScrollBarsNeedUpdate();
  if (!self.IsAlive()) return;
  InvalidateGrid();
  GridAccessibility::TellSize(*this);
  SizeChanged(oldColCount, oldRowCount);
}

void TCustomGrid::KeepCurrentInside() {
  const TGridCoord wanted{std::min(FCurrent.X, FCols.Count - 1), std::min(FCurrent.Y, FRows.Count - 1)};
  const TLifeWatch self(this);
  if (wanted != FCurrent) MoveCurrent(wanted.X, wanted.Y, true, true);
  if (!self.IsAlive()) return;
  // The cell is gone, whatever SelectCell() says.
  FCurrent = {std::min(FCurrent.X, FCols.Count - 1), std::min(FCurrent.Y, FRows.Count - 1)};
  FAnchor = {std::min(FAnchor.X, FCols.Count - 1), std::min(FAnchor.Y, FRows.Count - 1)};
  if (FOptions.Has(goRowSelect)) FAnchor.X = FCols.Count - 1;
}

void TCustomGrid::SetDefaultColWidth(int value) {
  if (value == GetDefaultColWidth() && !FCols.Sizes.HasExceptions()) return;
  FCols.Sizes.SetUsual(value);
  InvalidateGrid();
  ColWidthsChanged();
}

void TCustomGrid::SetDefaultRowHeight(int value) {
  if (value == GetDefaultRowHeight() && !FRows.Sizes.HasExceptions()) return;
  FRows.Sizes.SetUsual(value);
  InvalidateGrid();
  RowHeightsChanged();
}

void TCustomGrid::SetUsualRowHeight(int value) {
  if (value == GetDefaultRowHeight()) return;
  FRows.Sizes.ChangeUsual(value);
  const TLifeWatch self(this);
  ScrollBarsNeedUpdate();
  if (!self.IsAlive()) return;
  MoveEditor();
  InvalidateGrid();
}

void TCustomGrid::SetSize(TGridAxis& axis, int index, int value) {
  CheckIndex(axis, index);
  if (axis.Count > MaxCustomExtents) throw EInvalidGridOperation(SGridTooLarge);
  axis.Sizes.Set(index, value);
  InvalidateGrid();
}

void TCustomGrid::SetColWidths(int index, int value) {
  CheckIndex(FCols, index);
  if (GetColWidths(index) == value) return;
  SetSize(FCols, index, value);
  ColWidthsChanged();
}

void TCustomGrid::SetRowHeights(int index, int value) {
  CheckIndex(FRows, index);
  if (GetRowHeights(index) == value) return;
  SetSize(FRows, index, value);
  RowHeightsChanged();
}

void TCustomGrid::SetTabStops(int index, bool value) {
  CheckIndex(FCols, index);
  if (FCols.Count > MaxCustomExtents) throw EInvalidGridOperation(SGridTooLarge);
  FTabStops.Set(index, value);
}

void TCustomGrid::SetGridLineWidth(int value) {
  if (FGridLineWidth == value) return;
  FGridLineWidth = std::max(value, 0);
  const TLifeWatch self(this);
  ScrollBarsNeedUpdate();
  if (self.IsAlive()) MoveEditor();
  if (self.IsAlive()) InvalidateGrid();
}

void TCustomGrid::MoveColumn(int fromIndex, int toIndex) {
  CheckIndex(FCols, fromIndex);
  CheckIndex(FCols, toIndex);
  if (fromIndex == toIndex) return;
  FCols.Sizes.Move(fromIndex, toIndex);
  FTabStops.Move(fromIndex, toIndex);
  for (int* col : {&FCurrent.X, &FAnchor.X, &FInplaceCell.X}) *col = AfterMove(*col, fromIndex, toIndex);
  InvalidateGrid();
  const TLifeWatch self(this);
  ColumnMoved(fromIndex, toIndex);
  if (self.IsAlive()) MoveEditor();
}

void TCustomGrid::MoveRow(int fromIndex, int toIndex) {
  CheckIndex(FRows, fromIndex);
  CheckIndex(FRows, toIndex);
  if (fromIndex == toIndex) return;
  FRows.Sizes.Move(fromIndex, toIndex);
  for (int* row : {&FCurrent.Y, &FAnchor.Y, &FInplaceCell.Y}) *row = AfterMove(*row, fromIndex, toIndex);
  InvalidateGrid();
  const TLifeWatch self(this);
  RowMoved(fromIndex, toIndex);
  if (self.IsAlive()) MoveEditor();
}

void TCustomGrid::DeleteColumn(int col) {
  const TLifeWatch self(this);
  MoveColumn(col, FCols.Count - 1);
  if (self.IsAlive()) SetColCount(FCols.Count - 1);
}

void TCustomGrid::DeleteRow(int row) {
  const TLifeWatch self(this);
  MoveRow(row, FRows.Count - 1);
  if (self.IsAlive()) SetRowCount(FRows.Count - 1);
}

}  // namespace kt
