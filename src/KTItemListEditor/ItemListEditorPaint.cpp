// How the cells of an item list editor are drawn.
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/vcl/graphics/ExpandSign.h"
#include "kt/vcl/graphics/LegibleColor.h"

#include <QColor>

namespace kt {

namespace {

/// Where the text of a cell starts.
constexpr int kTextInset = 2;

}  // namespace

void TKTCustomItemListEditor::DrawCell(int col, int row, const QRect& rect, TGridDrawState state) {
  if (!IsDefaultDrawing()) return TCustomDrawGrid::DrawCell(col, row, rect, state);
  const TGridInfo info = GetGridInfo(col, row);
  const TItemWatch item(FindItemProp(col, row, true));
  UseCellFont(info, item.Get());
  QRect inner = rect;
  if (item && info.Field == 0) Indent(*item, inner);
  if (col == GetCol() && row == GetRow()) UseSelectionColors(inner, state);
  MakeFontLegible();
  DrawCellText(inner, GetCell(col, row));
  TCustomDrawGrid::DrawCell(col, row, inner, state);
}

void TKTCustomItemListEditor::UseCellFont(const TGridInfo& info, TKTItemProp* item) {
  TCanvas& canvas = GetCanvas();
  if (item) {
    const TItemWatch watched(item);
    canvas.SetFont(info.Field == 0 ? &item->FontToDraw() : &item->IndividualValueFontToDraw(info.Field - 1));
    // What decides of the font may have freed the item.
    if (watched && !item->GetEnabled()) canvas.GetFont().SetColor(clInactiveCaptionText);
  } else if (info.Line < info.FixedLines) {
    canvas.SetFont(FTitleCaptionFont.get());
  } else {
    canvas.SetFont(info.Field == 0 ? &GetFont() : FValueFont.get());
  }
}

/// On the ground that the cell has got by now. The font of categories, for one, is purple.
void TKTCustomItemListEditor::MakeFontLegible() {
  TCanvas& canvas = GetCanvas();
  const TColor color = canvas.GetFont().GetColor();
  const TColor legible = LegibleColor(color, canvas.RealColor(canvas.GetBrush().GetColor()));
  if (legible != color) canvas.GetFont().SetColor(legible);
}

/// Takes the indentation off `rect` and draws the glyph into it. Names without a glyph start where those with one do.
void TKTCustomItemListEditor::Indent(TKTItemProp& item, QRect& rect) {
  const bool hasGlyph = item.IsExpandable() && item.HasVisibleChildren();
  const int indent = item.GetLevel() * FIndent;
  if (hasGlyph) DrawGlyph(item, rect);
  const int taken = indent + FIndent;
  if (UseRightToLeftAlignment()) {
    rect.setWidth(rect.width() - taken);
  } else {
    rect.setLeft(rect.left() + taken);
  }
}

QRect TKTCustomItemListEditor::GlyphRect(const TKTItemProp& item, const QRect& cell, TPicture& glyph) const {
  const int indent = item.GetLevel() * FIndent;
  const QSize size(glyph.GetWidth(), glyph.GetHeight());
  const int x = UseRightToLeftAlignment() ? cell.left() + cell.width() - indent - size.width() : cell.left() + indent;
  return {{x, cell.top() + (TCustomDrawGrid::GetDefaultRowHeight() - size.height()) / 2}, size};
}

void TKTCustomItemListEditor::DrawGlyph(const TKTItemProp& item, const QRect& cell) {
  TPicture& glyph = item.IsExpanded() ? *FMinusGlyph : *FPlusGlyph;
  const QRect place = GlyphRect(item, cell, glyph);
  const bool isOwn = item.IsExpanded() ? FHasOwnMinusGlyph : FHasOwnPlusGlyph;
  if (isOwn) return GetCanvas().Draw(place.left(), place.top(), glyph.GetGraphic());
  // The package's glyphs, in the colours of the palette and with the sharpness of the screen.
  DrawExpandSign(GetCanvas(), place, item.IsExpanded(), GetColor(), GetFont().GetColor());
}

void TKTCustomItemListEditor::UseSelectionColors(const QRect& rect, TGridDrawState state) {
  TCanvas& canvas = GetCanvas();
  if (FHideSelection && !IsActiveControl()) {
    canvas.GetBrush().SetColor(GetColor());
    return canvas.FillRect(rect);
  }
  const bool isPlain = state.Has(gdFocused) && !GetOptions().Has(goDrawFocusSelected) && !GetOptions().Has(goRowSelect);
  if (state.Has(gdSelected) && !isPlain) canvas.GetFont().SetColor(clHighlightText);
}

void TKTCustomItemListEditor::DrawCellText(const QRect& rect, const QString& text) {
  TCanvas& canvas = GetCanvas();
  int x = rect.left() + kTextInset;
  if (UseRightToLeftAlignment()) x = rect.left() + rect.width() - kTextInset - canvas.TextWidth(text);
  canvas.TextRect(rect, x, rect.top() + kTextInset, text);
}

// What those are told who cannot see it.

TGridCellDescription TKTCustomItemListEditor::DescribeCell(int col, int row) {
  TGridCellDescription description;
  TKTItemProp* item = FindItemProp(col, row, true);
  if (!item) {
    description.Name = GetCell(col, row);
    return description;
  }
  description.Name = item->GetName();
  description.Hint = item->GetHint();
  description.IsEnabled = item->GetEnabled();
  if (IsValueCell(col, row)) {
    description.Value = GetCell(col, row);
    description.IsReadOnly = item->IsReadOnly();
  } else {
    description.IsReadOnly = !FPropertyOptions.Has(propEdit);
    description.IsExpandable = item->IsExpandable() && item->HasVisibleChildren();
    description.IsExpanded = item->IsExpanded();
  }
  return description;
}

void TKTCustomItemListEditor::ToggleCell(int col, int row) {
  if (TKTItemProp* item = FindItemProp(col, row, true)) item->SetExpanded(!item->IsExpanded());
}

// What it is drawn with.

void TKTCustomItemListEditor::SetIndent(int value) {
  if (FIndent == value || value < 0) return;
  FIndent = value;
  Invalidate();
}

void TKTCustomItemListEditor::SetHideSelection(bool value) {
  if (FHideSelection == value) return;
  FHideSelection = value;
  Invalidate();
}

void TKTCustomItemListEditor::GlyphChanged(TObject* sender) {
  (sender == FMinusGlyph.get() ? FHasOwnMinusGlyph : FHasOwnPlusGlyph) = true;
  Invalidate();
}

}  // namespace kt
