// Current cell, selection and scroll position of TCustomGrid.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/grids/CustomGrid.h"

#include <algorithm>

namespace kt {

bool TCustomGrid::SelectCell(int, int) { return true; }

void TCustomGrid::SetCol(int value) {
  if (FCurrent.X != value) FocusCell(value, FCurrent.Y, true);
}

void TCustomGrid::SetRow(int value) {
  if (FCurrent.Y != value) FocusCell(FCurrent.X, value, true);
}

void TCustomGrid::FocusCell(int col, int row, bool moveAnchor) {
  // Its handlers may free the grid.
  const TLifeWatch self(this);
  MoveCurrent(col, row, moveAnchor, true);
  if (self.IsAlive()) UpdateEdit();
  if (self.IsAlive()) Click();
}

void TCustomGrid::MoveCurrent(int col, int row, bool moveAnchor, bool show) {
  CheckIndex(FCols, col);
  CheckIndex(FRows, row);
  const TLifeWatch self(this);
  if (FCurrent != TGridCoord{col, row}) ValidateEditor();
  if (!self.IsAlive() || !SelectCell(col, row) || !self.IsAlive()) return;
  const TGridRect oldSelection = GetSelection();
  const TGridCoord oldCurrent = FCurrent;
  // SelectCell() may have changed the counts.
  FCurrent = {std::min(col, FCols.Count - 1), std::min(row, FRows.Count - 1)};
  if (!FOptions.Has(goAlwaysShowEditor)) HideEditor();
  if (!self.IsAlive()) return;
  if (moveAnchor || !FOptions.Has(goRangeSelect)) {
    FAnchor = FCurrent;
    if (FOptions.Has(goRowSelect)) FAnchor.X = FCols.Count - 1;
  }
  if (FOptions.Has(goRowSelect)) FCurrent.X = FCols.Fixed;
  if (show) ClampInView(FCurrent);
  if (!self.IsAlive()) return;
  SelectionMoved(oldSelection);
  InvalidateCell(oldCurrent.X, oldCurrent.Y);
  InvalidateCell(FCurrent.X, FCurrent.Y);
  if (FCurrent != oldCurrent) GridAccessibility::TellCurrentCell(*this);
}

void TCustomGrid::CarryCurrent(TGridCoord cell) {
  CheckIndex(FCols, cell.X);
  CheckIndex(FRows, cell.Y);
  if (cell == FCurrent) return;
  const TLifeWatch self(this);
  const TGridRect oldSelection = GetSelection();
  if (FInplaceCell == FCurrent) FInplaceCell = cell;
  FCurrent = cell;
  FAnchor = cell;
  if (FOptions.Has(goRowSelect)) FAnchor.X = FCols.Count - 1;
  ClampInView(FCurrent);
  if (!self.IsAlive()) return;
  MoveEditor();
  SelectionMoved(oldSelection);
  GridAccessibility::TellCurrentCell(*this);
}

void TCustomGrid::SetSelection(const TGridRect& value) {
  CheckIndex(FCols, value.Left);
  CheckIndex(FCols, value.Right);
  CheckIndex(FRows, value.Top);
  CheckIndex(FRows, value.Bottom);
  const TGridRect oldSelection = GetSelection();
  FAnchor = {value.Left, value.Top};
  FCurrent = {value.Right, value.Bottom};
  SelectionMoved(oldSelection);
}

void TCustomGrid::SelectionMoved(const TGridRect& oldSelection) {
  const TGridRect selection = GetSelection();
  if (selection == oldSelection) return;
  InvalidateCells(oldSelection);
  InvalidateCells(selection);
}

void TCustomGrid::ClampInView(TGridCoord cell) {
  const TGridDrawInfo info = CalcDrawInfo();
  const int left = FCols.FirstToShow(info.Horz, cell.X);
  const int top = FRows.FirstToShow(info.Vert, cell.Y);
  if (left != FCols.First || top != FRows.First) MoveTopLeft(left, top);
}

void TCustomGrid::SetLeftCol(int value) {
  if (FCols.First != value) MoveTopLeft(value, FRows.First);
}

void TCustomGrid::SetTopRow(int value) {
  if (FRows.First != value) MoveTopLeft(FCols.First, value);
}

int TCustomGrid::GetVisibleColCount() const { return CalcDrawInfo().Horz.LastFullVisibleCell - FCols.First + 1; }

int TCustomGrid::GetVisibleRowCount() const { return CalcDrawInfo().Vert.LastFullVisibleCell - FRows.First + 1; }

}  // namespace kt
