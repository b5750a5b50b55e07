// The widths of the columns of an item list editor, and the height of its rows.
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/vcl/graphics/RealFont.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace kt {

namespace {

/// What the columns leave free of the client width.
constexpr int kSpareWidth = 2;
/// Where texts start below the top of a cell.
constexpr int kTextTop = 2;

}  // namespace

void TKTCustomItemListEditor::SetColCount(int value) {
  TCustomDrawGrid::SetColCount(value);
  if (FDisplayOptions.Has(doAutoColResize)) AdjustColWidths();
}

void TKTCustomItemListEditor::AdjustColWidths() {
  const bool canAdjust = HandleAllocated() && IsShowing() && FDisplayOptions.Has(doAutoColResize);
  if (FAdjusting || !canAdjust) return;
  const QScopedValueRollback adjusting(FAdjusting, true);
  const int available = GetClientWidth() - kSpareWidth;
  if (available == GetColWidthsSum()) return;
  const bool isKeyFixed = FDisplayOptions.Has(doKeyColFixed);
  if (!isKeyFixed) SetColWidths(0, available / 2);
  // The odd pixel goes to the values.
  const int rest = isKeyFixed ? available - GetColWidths(0) : GetColWidths(0) + available % 2;
  for (int i = 1; i < GetColCount(); ++i) SetColWidths(i, rest / (GetColCount() - 1));
}

void TKTCustomItemListEditor::Resize() {
  TCustomDrawGrid::Resize();
  AdjustColWidths();
}

void TKTCustomItemListEditor::ColWidthsChanged() {
  AdjustColWidths();
  TCustomDrawGrid::ColWidthsChanged();
}

void TKTCustomItemListEditor::CMShowingChanged(TMessage& message) {
  TCustomDrawGrid::CMShowingChanged(message);
  if (IsShowing()) AdjustColWidths();
}

void TKTCustomItemListEditor::CreateWnd() {
  TCustomDrawGrid::CreateWnd();
  FitRowHeight();
}

/// Unlike in other grids an edge can be dragged anywhere along its line, not only between fixed cells.
void TKTCustomItemListEditor::CalcSizingState(int x, int y, TGridState& state, int& index, int& sizingPos,
                                              int& sizingOfs, TGridDrawInfo& fixedInfo) {
  state = gsNormal;
  index = -1;
  TGridOptions options = GetOptions();
  if (HasState(csDesigning)) options += FDesignOptionsBoost;
  if (!options.Has(goRowSizing) && !options.Has(goColSizing)) return;
  fixedInfo.Vert.GridExtent = GetClientHeight();
  fixedInfo.Horz.GridExtent = GetClientWidth();
  const bool isColumn = options.Has(goColSizing);
  const bool isMirrored = isColumn && UseRightToLeftAlignment();
  const bool isHit = CalcAxisSizing(isColumn ? fixedInfo.Horz : fixedInfo.Vert, isColumn ? x : y, isMirrored, index,
                                    sizingPos, sizingOfs);
  if (isHit) state = isColumn ? gsColSizing : gsRowSizing;
}

// Row heights.

void TKTCustomItemListEditor::SetDefaultRowHeight(int value) {
  FRowHeight = value;
  FIsRowHeightByHand = true;
  TCustomDrawGrid::SetDefaultRowHeight(value);
}

int TKTCustomItemListEditor::TextRowHeight() {
  int height = 0;
  for (TFont* font : {&GetFont(), static_cast<TFont*>(FValueFont.get()), static_cast<TFont*>(FCategoryFont.get()),
                      static_cast<TFont*>(FTitleCaptionFont.get())}) {
    height = std::max(height, TRealFont::Of(*font)->Height());
  }
  return height + kTextTop;
}

void TKTCustomItemListEditor::FitRowHeight() {
  if (!HandleAllocated() || FIsRowHeightByHand) return;
  SetUsualRowHeight(std::max(FRowHeight, TextRowHeight()));
}

}  // namespace kt
