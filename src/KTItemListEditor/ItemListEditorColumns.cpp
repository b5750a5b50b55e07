// The widths of the columns of an item list editor, and the height of its rows.
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemPropRare.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/graphics/RealFont.h"

#include <algorithm>
#include <vector>

namespace kt {

namespace {

/// What the columns leave free of the client width.
constexpr int kSpareWidth = 2;
/// Where texts start below the top of a cell.
constexpr int kTextTop = 2;

}  // namespace

void TKTCustomItemListEditor::SetColCount(int value) {
  const TLifeWatch self(this);
  TCustomDrawGrid::SetColCount(value);
  if (self.IsAlive() && FDisplayOptions.Has(doAutoColResize)) AdjustColWidths();
}

void TKTCustomItemListEditor::AdjustColWidths() {
  const bool canAdjust = HandleAllocated() && IsShowing() && FDisplayOptions.Has(doAutoColResize);
  if (FAdjusting || !canAdjust) return;
  const TLiveFlag adjusting(this, FAdjusting);
  // New widths may bring or take scroll bars, of which OnResize hears.
  const TLifeWatch self(this);
  const int available = GetClientWidth() - kSpareWidth;
  if (available == GetColWidthsSum()) return;
  const bool isKeyFixed = FDisplayOptions.Has(doKeyColFixed);
  if (!isKeyFixed) SetColWidths(0, available / 2);
  if (!self.IsAlive()) return;
  // The odd pixel goes to the values.
  const int rest = isKeyFixed ? available - GetColWidths(0) : GetColWidths(0) + available % 2;
  for (int i = 1; self.IsAlive() && i < GetColCount(); ++i) SetColWidths(i, rest / (GetColCount() - 1));
}

void TKTCustomItemListEditor::Resize() {
  const TLifeWatch self(this);
  TCustomDrawGrid::Resize();
  if (self.IsAlive()) AdjustColWidths();
}

void TKTCustomItemListEditor::ColWidthsChanged() {
  const TLifeWatch self(this);
  AdjustColWidths();
  if (self.IsAlive()) TCustomDrawGrid::ColWidthsChanged();
}

void TKTCustomItemListEditor::CMShowingChanged(TMessage& message) {
  const TLifeWatch self(this);
  TCustomDrawGrid::CMShowingChanged(message);
  if (self.IsAlive() && IsShowing()) AdjustColWidths();
}

void TKTCustomItemListEditor::CreateWnd() {
  TCustomDrawGrid::CreateWnd();
  if (FHasItemFonts) MeasureItemFonts();
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
  int height = FItemFontHeight;
  for (TFont* font : {&GetFont(), static_cast<TFont*>(FValueFont.get()), static_cast<TFont*>(FCategoryFont.get()),
                      static_cast<TFont*>(FTitleCaptionFont.get())}) {
    height = std::max(height, TRealFont::Of(*font)->Height());
  }
  return height + kTextTop;
}

/// Once a window: what was set before there was anything to measure with.
void TKTCustomItemListEditor::MeasureItemFonts() {
  std::vector<const TKTItemProps*> open = {FItems.get()};
  while (!open.empty()) {
    const TKTItemProps& items = *open.back();
    open.pop_back();
    for (int i = 0; i < items.GetCount(); ++i) {
      const TKTItemProp& item = *items.GetItem(i);
      if (item.HasFontObject() && !item.FParentFont) NoteItemFont(*item.FRare->Font);
      if (item.HasValueFontObject() && !item.FParentValueFont) NoteItemFont(*item.FRare->ValueFont);
      if (item.HasItems()) open.push_back(item.FItems.get());
    }
  }
}

/// Whether rows have to be higher for it.
bool TKTCustomItemListEditor::NoteItemFont(const TFont& font) {
  const int before = FItemFontHeight;
  FItemFontHeight = std::max(before, TRealFont::Of(font)->Height());
  return FItemFontHeight > before;
}

void TKTCustomItemListEditor::ItemFontSet(const TFont& font) {
  FHasItemFonts = true;
  if (HandleAllocated() && NoteItemFont(font)) FitRowHeight();
}

void TKTCustomItemListEditor::FitRowHeight() {
  if (!HandleAllocated() || FIsRowHeightByHand) return;
  SetUsualRowHeight(std::max(FRowHeight, TextRowHeight()));
}

}  // namespace kt
