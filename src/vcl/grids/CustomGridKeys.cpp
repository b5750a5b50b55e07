// What the keys do in TCustomGrid.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/grids/CustomGrid.h"

#include <algorithm>

namespace kt {

/// Where a key leads: a current cell and a scroll position, perhaps outside the grid.
struct TCustomGrid::TKeyMove {
  TGridCoord Current;
  TGridCoord TopLeft;
  int PageWidth;
  int PageHeight;
  /// 1, or -1 where the left is the end of the columns.
  int ToRight;
};

bool TCustomGrid::WantsKey(quint16 key) {
  if (key >= VK_LEFT && key <= VK_DOWN) return true;
  if (key == VK_TAB) return FOptions.Has(goTabs);
  return TCustomControl::WantsKey(key);
}

void TCustomGrid::CMWantSpecialKey(TMessage& message) {
  TCustomControl::CMWantSpecialKey(message);
  if (FOptions.Has(goEditing) && message.WParam == VK_RETURN) message.Result = 1;
}

void TCustomGrid::KeyDown(quint16& key, TShiftState shift) {
  const TLifeWatch self(this);
  TCustomControl::KeyDown(key, shift);
  if (!self.IsAlive()) return;
  if (!CanGridAcceptKey(key, shift)) key = 0;
  if (key == 0) return;
  const TGridDrawInfo info = CalcDrawInfo();
  TKeyMove move{FCurrent,
                {FCols.First, FRows.First},
                // A page is never less than a cell, however little of it is in view.
                std::max(info.Horz.LastFullVisibleCell - FCols.First, 1),
                std::max(info.Vert.LastFullVisibleCell - FRows.First, 1),
                UseRightToLeftAlignment() ? -1 : 1};
  const bool isKnown = shift.Has(ssCtrl) ? MoveByCtrlKey(key, move, info) : MoveByKey(key, shift, move);
  if (!self.IsAlive() || !isKnown) return;
  const TGridCoord topLeft{std::clamp(move.TopLeft.X, FCols.Fixed, FCols.MaxFirst(info.Horz)),
                           std::clamp(move.TopLeft.Y, FRows.Fixed, FRows.MaxFirst(info.Vert))};
  if (topLeft != TGridCoord{FCols.First, FRows.First} && move.TopLeft != TGridCoord{FCols.First, FRows.First}) {
    MoveTopLeft(topLeft.X, topLeft.Y);
  }
  if (!self.IsAlive()) return;
  const TGridCoord current{std::clamp(move.Current.X, FCols.Fixed, FCols.Count - 1),
                           std::clamp(move.Current.Y, FRows.Fixed, FRows.Count - 1)};
  if (current != FCurrent) FocusCell(current.X, current.Y, key == VK_TAB || !shift.Has(ssShift));
  // Used, whether or not there was somewhere to go.
  if (self.IsAlive()) FIsKeyUsed = true;
}

bool TCustomGrid::MoveByCtrlKey(quint16 key, TKeyMove& move, const TGridDrawInfo& info) {
  const bool isRowSelect = FOptions.Has(goRowSelect);
  switch (key) {
    case VK_UP:
      --move.TopLeft.Y;
      return true;
    case VK_DOWN:
      ++move.TopLeft.Y;
      return true;
    case VK_LEFT:
      if (!isRowSelect) move.Current.X -= move.PageWidth * move.ToRight;
      return true;
    case VK_RIGHT:
      if (!isRowSelect) move.Current.X += move.PageWidth * move.ToRight;
      return true;
    case VK_PRIOR:
      move.Current.Y = FRows.First;
      return true;
    case VK_NEXT:
      move.Current.Y = info.Vert.LastFullVisibleCell;
      return true;
    case VK_HOME:
      move.Current = {FCols.Fixed, FRows.Fixed};
      return true;
    case VK_END:
      move.Current = {FCols.Count - 1, FRows.Count - 1};
      return true;
    default:
      return false;
  }
}

bool TCustomGrid::MoveByKey(quint16 key, TShiftState shift, TKeyMove& move) {
  const bool isRowSelect = FOptions.Has(goRowSelect);
  int& along = isRowSelect ? move.Current.Y : move.Current.X;
  switch (key) {
    case VK_UP:
      --move.Current.Y;
      return true;
    case VK_DOWN:
      ++move.Current.Y;
      return true;
    case VK_LEFT:
      along -= move.ToRight;
      return true;
    case VK_RIGHT:
      along += move.ToRight;
      return true;
    case VK_NEXT:
      move.Current.Y += move.PageHeight;
      move.TopLeft.Y += move.PageHeight;
      return true;
    case VK_PRIOR:
      move.Current.Y -= move.PageHeight;
      move.TopLeft.Y -= move.PageHeight;
      return true;
    case VK_HOME:
      along = isRowSelect ? FRows.Fixed : FCols.Fixed;
      return true;
    case VK_END:
      along = (isRowSelect ? FRows.Count : FCols.Count) - 1;
      return true;
    case VK_TAB:
      if (!shift.Has(ssAlt)) MoveByTab(shift.Has(ssShift), move.Current);
      return true;
    case VK_F2:
      SetEditorMode(true);
      return true;
    default:
      return false;
  }
}

/// To the next column with a tab stop, from the end of a row to the start of the next, from the last row to the first.
void TCustomGrid::MoveByTab(bool isBack, TGridCoord& cell) const {
  const int step = isBack ? -1 : 1;
  do {
    cell.X += step;
    if (cell.X >= FCols.Fixed && cell.X < FCols.Count) continue;
    cell.X = isBack ? FCols.Count - 1 : FCols.Fixed;
    cell.Y += step;
    if (cell.Y < FRows.Fixed) cell.Y = FRows.Count - 1;
    if (cell.Y >= FRows.Count) cell.Y = FRows.Fixed;
  } while (!GetTabStops(cell.X) && cell.X != FCurrent.X);
}

void TCustomGrid::KeyPress(QChar& key) {
  const TLifeWatch self(this);
  TCustomControl::KeyPress(key);
  if (!self.IsAlive() || FOptions.Has(goAlwaysShowEditor) || key != u'\r') return;
  if (FEditorMode) {
    SetEditorMode(false);
  } else {
    ShowEditor();
  }
  key = u'\0';
}

void TCustomGrid::Dispatch(TMessage& message) {
  const bool isTyping =
      message.Msg == WM_CHAR && FOptions.Has(goEditing) && (message.WParam == 8 || message.WParam >= 32);
  if (isTyping) {
    ShowEditorChar(QChar(static_cast<char16_t>(message.WParam)));
    message.Result = 0;
    return;
  }
  FIsKeyUsed = false;
  TCustomControl::Dispatch(message);
}

void TCustomGrid::DefaultHandler(TMessage& message) {
  // A key that moved something is not passed on to whoever surrounds the grid.
  const bool isKeyDown = message.Msg == WM_KEYDOWN || message.Msg == WM_SYSKEYDOWN;
  if (!isKeyDown || !FIsKeyUsed) TCustomControl::DefaultHandler(message);
}

}  // namespace kt
