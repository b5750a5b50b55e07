// What keys and mouse do in an item list editor.
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/grids/InplaceEdit.h"

#include <algorithm>

namespace kt {

namespace {

/// Where a line was before another one moved.
int BeforeMove(int index, int from, int to) {
  if (index == to) return from;
  if (index >= from && index < to) return index + 1;
  if (index <= from && index > to) return index - 1;
  return index;
}

}  // namespace

// The current cell.

bool TKTCustomItemListEditor::SelectCell(int col, int row) {
  const TGridInfo info = GetGridInfo(col, row);
  const bool leavesBlank = FDeleteBlanks && !FDeleting && !FFollowing && info.Line != info.CurLine && IsEmptyItem();
  if (leavesBlank) return LeaveBlank(col, row);
  const TLifeWatch self(this);
  Validate();
  if (!self.IsAlive() || !TCustomDrawGrid::SelectCell(col, row) || !self.IsAlive()) return false;
  return GetOptions().Has(goRowSelect) || IsValueCell(col, row) || FPropertyOptions.Has(propEdit);
}

/// What lies behind the blank line moves up, and with it the place to go to: by one line, or by more when items below
/// the blank one go with it.
bool TKTCustomItemListEditor::LeaveBlank(int col, int row) {
  const TGridInfo info = GetGridInfo(col, row);
  const TItemWatch target(FindItemProp(col, row, true));
  const TLifeWatch self(this);
  // Deliberately nothing is deleted where items run across the columns, yet the rest is done.
  DeleteRow(info.CurLine);
  if (!self.IsAlive()) return false;
  if (info.Line < info.CurLine) return true;
  const bool isDown = FOrientation == goVertical;
  const bool hasMoved = isDown && target && target->GetAbsoluteVIndex() >= 0;
  // Where nothing was deleted, the way to the line before starts from a blank item again, and so on till there is none.
  const int before = isDown ? info.Line - 1 : info.CurLine;
  const int line = hasMoved ? target->GetAbsoluteVIndex() + info.FixedLines : before;
  const TGridCoord cell = CellOf(std::min(line, GetGridCount(gcLineCount) - 1) - info.FixedLines, info.Field);
  FocusCell(cell.X, cell.Y, true);
  return false;
}

void TKTCustomItemListEditor::DoExit() {
  const TLifeWatch self(this);
  try {
    Validate();
  } catch (...) {
    if (self.IsAlive()) SetFocus();
    throw;
  }
  if (self.IsAlive()) TCustomDrawGrid::DoExit();
  if (self.IsAlive()) HideEditor();
}

// Keys.

bool TKTCustomItemListEditor::CanAddByKey() {
  if (!FPropertyOptions.Has(propAdd)) return false;
  const int line = GetGridCount(gcCurrentLine);
  return !(FOrientation == goVertical ? GetCell(0, line) : GetCell(line, 0)).isEmpty();
}

void TKTCustomItemListEditor::GoToLine(int line, quint16& key) {
  SetGridCount(gcCurrentLine, line);
  key = 0;
}

void TKTCustomItemListEditor::KeyDown(quint16& key, TShiftState shift) {
  const TLifeWatch self(this);
  HandleKey(key, shift);
  if (self.IsAlive()) TCustomDrawGrid::KeyDown(key, shift);
}

void TKTCustomItemListEditor::HandleKey(quint16& key, TShiftState shift) {
  const TGridInfo info = GetGridInfo(GetCol(), GetRow());
  const int lastLine = info.LineCount - 1;
  switch (key) {
    case VK_DOWN:
      if (shift.Has(ssCtrl)) return GoToLine(lastLine, key);
      if (shift.IsEmpty() && info.Line == lastLine && CanAddByKey()) AddByKey(true, key);
      return;
    case VK_UP:
      if (shift.Has(ssCtrl)) GoToLine(info.FixedLines, key);
      return;
    case VK_RETURN:
      return AcceptByKey();
    case VK_ESCAPE:
      RestoreCurrentItem();
      return;
    case VK_INSERT:
      if (CanAddByKey()) AddByKey(false, key);
      return;
    case VK_DELETE:
      if (!shift.Has(ssCtrl) || !FPropertyOptions.Has(propDelete)) return;
      DeleteItem(GetCol(), GetRow());
      key = 0;
      return;
    default:
      return;
  }
}

void TKTCustomItemListEditor::AddByKey(bool append, quint16& key) {
  const TLifeWatch self(this);
  const int line = InsertItem({}, {}, append);
  key = 0;
  // Items that are not shown count in what it answers.
  if (self.IsAlive()) GoToLine(std::min(line, GetGridCount(gcLineCount) - 1), key);
}

void TKTCustomItemListEditor::AcceptByKey() {
  const TLifeWatch self(this);
  Validate();
  // The editor checks what is stored now against its expression.
  if (self.IsAlive() && InplaceEditor()) InplaceEditor()->Perform(CM_TEXTCHANGED);
}

// The mouse.

void TKTCustomItemListEditor::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  if (button == mbLeft && PressItem(shift, MouseCoord(x, y), {x, y})) return;
  TCustomDrawGrid::MouseDown(button, shift, x, y);
}

/// What a press does before the grid sees it; true when that was all.
bool TKTCustomItemListEditor::PressItem(TShiftState shift, TGridCoord cell, QPoint point) {
  const TLifeWatch self(this);
  const bool isName = cell.X >= 0 && !IsValueCell(cell.X, cell.Y);
  // A press on the glyph leaves current cell and editor alone, wherever it is.
  if (isName && !shift.Has(ssDouble) && PressGlyph(cell, point)) return true;
  const TItemWatch pressed(isName ? FindItemProp(cell.X, cell.Y, true) : nullptr);
  if (isName && GetOptions().Has(goEditing)) PressName(cell, shift);
  if (!self.IsAlive()) return true;
  if (pressed && FindItemProp(cell.X, cell.Y, true) != pressed.Get()) return PressMovedName();
  const bool isFixed = GetCol() < GetFixedCols() || GetRow() < GetFixedRows();
  if (GetOptions().Has(goEditing) && !isFixed) ShowEditor();
  return !self.IsAlive();
}

bool TKTCustomItemListEditor::PressGlyph(TGridCoord cell, QPoint point) {
  TKTItemProp* item = FindItemProp(cell.X, cell.Y, true);
  if (!item || !item->IsExpandable()) return false;
  // Deliberately of the expanded glyph's size, whichever shows.
  if (!GlyphRect(*item, CellRect(cell.X, cell.Y), *FMinusGlyph).contains(point)) return false;
  item->SetExpanded(!item->IsExpanded());
  return true;
}

/// A name leads to its item's value.
void TKTCustomItemListEditor::PressName(TGridCoord cell, TShiftState shift) {
  const TGridInfo info = GetGridInfo(cell.X, cell.Y);
  if (info.Line == info.CurLine || info.Line < info.FixedLines) return;
  const TGridCoord value = FOrientation == goVertical ? TGridCoord{1, cell.Y} : TGridCoord{cell.X, 1};
  FocusCell(value.X, value.Y, !shift.Has(ssShift));
}

/// A blank item above has gone as it was left, and another name is under the mouse by now: the one that was pressed is
/// meant, whose value the cursor is on.
bool TKTCustomItemListEditor::PressMovedName() {
  const TLifeWatch self(this);
  const TGridCoord name = FOrientation == goVertical ? TGridCoord{0, GetRow()} : TGridCoord{GetCol(), 0};
  const bool goesToName = FPropertyOptions.Has(propEdit) && SelectCell(name.X, name.Y);
  if (self.IsAlive() && goesToName) FocusCell(name.X, name.Y, true);
  if (self.IsAlive()) ShowEditor();
  return true;
}

// Moving rows and columns.

void TKTCustomItemListEditor::RowMoved(int fromIndex, int toIndex) {
  const TLifeWatch self(this);
  if (FOrientation == goVertical) {
    MoveItem(fromIndex - GetFixedRows(), toIndex - GetFixedRows());
  } else {
    CarryCurrent({GetCol(), BeforeMove(GetRow(), fromIndex, toIndex)});
  }
  if (self.IsAlive()) TCustomDrawGrid::RowMoved(fromIndex, toIndex);
}

void TKTCustomItemListEditor::ColumnMoved(int fromIndex, int toIndex) {
  const TLifeWatch self(this);
  if (FOrientation == goHorizontal) {
    MoveItem(fromIndex - GetFixedCols(), toIndex - GetFixedCols());
  } else {
    // The widths have moved, but names stay names, and so the cursor stays with the field that it was in.
    CarryCurrent({BeforeMove(GetCol(), fromIndex, toIndex), GetRow()});
  }
  if (self.IsAlive()) TCustomDrawGrid::ColumnMoved(fromIndex, toIndex);
}

/// Items move among their siblings only: to the place of the one at whose line, or below which, the target lies.
void TKTCustomItemListEditor::MoveItem(int from, int to) {
  TKTItemProp* moved = GetVisibleItem(from);
  TKTItemProp* target = GetVisibleItem(to);
  while (moved && target && target->GetCollection() != moved->GetCollection()) target = target->GetParent();
  if (moved && target && moved != target) moved->SetIndex(target->GetIndex());
}

}  // namespace kt
