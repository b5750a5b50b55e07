// The hints that an item list editor shows over its cells.
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/ktcommon/NewLine.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Screen.h"
#include "kt/vcl/graphics/DrawText.h"

namespace kt {

namespace {

/// What a hint takes beyond its text.
constexpr int kExtraWidth = 6;
constexpr int kExtraHeight = 2;

}  // namespace

void TKTCustomItemListEditor::ShowHints(TKTItemProp* item, int col, int row, QString& hint) {
  if (!IsValueCell(col, row) || FShowItemHintStyle == shValueOnly) {
    hint = GetCell(col, row);
  } else if (FShowItemHintStyle == shHintOnly) {
    hint = item->GetHint();
  } else if (FShowItemHintStyle == shValueAndHint) {
    hint = GetCell(col, row);
    if (!item->GetHint().isEmpty()) hint += NewLineString + u'(' + item->GetHint() + u')';
  }
  OnShowHints(this, item, hint);
}

QRect TKTCustomItemListEditor::CalcHintRect(int maxWidth, const QString& hint, TFont& font) {
  const auto saved = Make<TFont>();
  saved->Assign(&GetCanvas().GetFont());
  GetCanvas().SetFont(&font);
  QRect rect(0, 0, maxWidth, 0);
  const quint32 reading = UseRightToLeftReading() ? DT_RTLREADING : 0U;
  DrawText(GetCanvas(), hint, rect, DT_CALCRECT | DT_LEFT | DT_WORDBREAK | DT_NOPREFIX | reading);
  GetCanvas().SetFont(saved.get());
  return {rect.left(), rect.top(), rect.width() + kExtraWidth, rect.height() + kExtraHeight};
}

void TKTCustomItemListEditor::MouseMove(TShiftState shift, int x, int y) {
  const TLifeWatch self(this);
  if (FShowItemHintStyle != shNone && FLastMouse != QPoint(x, y)) {
    FLastMouse = {x, y};
    HintAt(MouseCoord(x, y));
  }
  if (self.IsAlive()) TCustomDrawGrid::MouseMove(shift, x, y);
}

void TKTCustomItemListEditor::HintAt(TGridCoord cell) {
  const bool isItemLine = (FOrientation == goVertical ? cell.Y : cell.X) - GetGridCount(gcFixedLines) + 1 > 0;
  if (cell.X < 0 || !isItemLine) return FHintWindow->HideHint();
  const TItemWatch item(FindItemProp(cell.X, cell.Y, true));
  if (!item) return;
  const TLifeWatch self(this);
  QString text;
  ShowHints(item.Get(), cell.X, cell.Y, text);
  if (!self.IsAlive()) return;
  if (text.isEmpty() || !item) return FHintWindow->HideHint();
  ShowHintOf(*item, cell, text);
}

void TKTCustomItemListEditor::ShowHintOf(TKTItemProp& item, TGridCoord cell, const QString& text) {
  const QRect rect = CellRect(cell.X, cell.Y);
  const bool isValue = IsValueCell(cell.X, cell.Y);
  const int indent = isValue ? 0 : (item.GetLevel() + 1) * FIndent;
  TFont& font = isValue ? item.ValueFontToDraw() : item.FontToDraw();
  const QRect needed = CalcHintRect(Screen().GetWidth(), text, font);
  const bool fits = indent + needed.width() <= rect.width();
  if (fits && text == GetCell(cell.X, cell.Y)) return FHintWindow->HideHint();
  FHintWindow->SetFont(font);
  const int x = UseRightToLeftAlignment() ? rect.left() + rect.width() - indent - needed.width() : rect.left() + indent;
  FHintWindow->ActivateHint(ClientToScreen({x, rect.top()}), text);
}

bool TKTCustomItemListEditor::KeepsPointer() const {
  return FHintWindow->IsUnderPointer() || TCustomDrawGrid::KeepsPointer();
}

void TKTCustomItemListEditor::CMMouseLeave(TMessage& message) {
  FHintWindow->HideHint();
  TCustomDrawGrid::CMMouseLeave(message);
}

}  // namespace kt
