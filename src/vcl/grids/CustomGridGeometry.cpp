// Where the cells of TCustomGrid lie, and which of them are painted anew.
#include "kt/vcl/grids/CustomGrid.h"

#include <algorithm>
#include <utility>

namespace kt {

namespace {

/// Around the end of a cell, a press within so many pixels sizes it.
constexpr int kSizingBand = 7;

}  // namespace

int TCustomGrid::LineWidth(TGridOption fixedLine, TGridOption line) const {
  return FOptions.Has(fixedLine) || FOptions.Has(line) ? FGridLineWidth : 0;
}

TGridDrawInfo TCustomGrid::CalcFixedInfo() const {
  return {FCols.FixedInfo(LineWidth(goFixedVertLine, goVertLine)),
          FRows.FixedInfo(LineWidth(goFixedHorzLine, goHorzLine))};
}

TGridDrawInfo TCustomGrid::CalcDrawInfo() const {
  return {FCols.DrawInfo(LineWidth(goFixedVertLine, goVertLine), GetClientWidth()),
          FRows.DrawInfo(LineWidth(goFixedHorzLine, goHorzLine), GetClientHeight())};
}

int TCustomGrid::GetGridWidth() const { return CalcDrawInfo().Horz.GridBoundary; }

int TCustomGrid::GetGridHeight() const { return CalcDrawInfo().Vert.GridBoundary; }

TGridCoord TCustomGrid::MouseCoord(int x, int y) const {
  const TGridDrawInfo info = CalcDrawInfo();
  if (UseRightToLeftAlignment()) x = info.Horz.GridExtent - 1 - x;
  const TGridCoord cell{FCols.CellAt(info.Horz, x), FRows.CellAt(info.Vert, y)};
  return cell.X < 0 || cell.Y < 0 ? TGridCoord{-1, -1} : cell;
}

void TCustomGrid::MouseToCell(int x, int y, int& col, int& row) const {
  const TGridCoord cell = MouseCoord(x, y);
  col = cell.X;
  row = cell.Y;
}

QRect TCustomGrid::CellRect(int col, int row) const {
  const TGridDrawInfo info = CalcDrawInfo();
  int left = 0;
  int right = 0;
  int top = 0;
  int bottom = 0;
  if (!FCols.CellSpan(info.Horz, col, left, right) || !FRows.CellSpan(info.Vert, row, top, bottom)) return {};
  if (UseRightToLeftAlignment()) {
    const int width = right - left;
    left = info.Horz.GridExtent - right;
    right = left + width;
  }
  return {left, top, right - left, bottom - top};
}

void TCustomGrid::CalcSizingState(int x, int y, TGridState& state, int& index, int& sizingPos, int& sizingOfs,
                                  TGridDrawInfo& fixedInfo) {
  state = gsNormal;
  index = -1;
  TGridOptions options = FOptions;
  if (HasState(csDesigning)) options += FDesignOptionsBoost;
  if (!options.Has(goColSizing) && !options.Has(goRowSizing)) return;
  const bool isMirrored = UseRightToLeftAlignment();
  const int fromStart = isMirrored ? GetClientWidth() - 1 - x : x;
  fixedInfo.Horz.GridExtent = GetClientWidth();
  fixedInfo.Vert.GridExtent = GetClientHeight();
  // Only the fixed cells offer their edges, each kind in the other direction.
  if (y < fixedInfo.Vert.FixedBoundary && fromStart > fixedInfo.Horz.FixedBoundary && options.Has(goColSizing)) {
    if (CalcAxisSizing(fixedInfo.Horz, x, isMirrored, index, sizingPos, sizingOfs)) state = gsColSizing;
  } else if (fromStart < fixedInfo.Horz.FixedBoundary && y > fixedInfo.Vert.FixedBoundary && options.Has(goRowSizing)) {
    if (CalcAxisSizing(fixedInfo.Vert, y, false, index, sizingPos, sizingOfs)) state = gsRowSizing;
  }
}

bool TCustomGrid::CalcAxisSizing(const TGridAxisDrawInfo& info, int position, bool isMirrored, int& index,
                                 int& sizingPos, int& sizingOfs) const {
  if (isMirrored) position = info.GridExtent - 1 - position;
  const int band = std::max(info.EffectiveLineWidth, kSizingBand);
  const int before = (band - info.EffectiveLineWidth) / 2;
  // The band starts before the line that ends the cell.
  const auto isHit = [&](int line) { return position >= line - before && position < line - before + band; };
  int end = info.FixedBoundary;
  for (int i = info.FirstGridCell; i < info.GridCellCount && end <= info.GridExtent + band; ++i) {
    end += info.GetAdvance(i);
    const int line = end - info.EffectiveLineWidth;
    if (end > info.GridExtent) {
      // What the edge cuts off can be pulled in from the edge itself.
      if (!isHit(info.GridExtent - before - 1)) return false;
      index = i;
      sizingPos = info.GridExtent;
      sizingOfs = sizingPos - position;
      return true;
    }
    if (info.GetExtent(i) >= 0 && isHit(line)) {
      index = i;
      sizingPos = line;
      sizingOfs = sizingPos - position;
      return true;
    }
  }
  return false;
}

void TCustomGrid::InvalidateCell(int col, int row) { InvalidateCells({col, row, col, row}); }

void TCustomGrid::InvalidateCol(int col) {
  if (HandleAllocated()) InvalidateCells({col, 0, col, FRows.Count - 1});
}

void TCustomGrid::InvalidateRow(int row) {
  if (HandleAllocated()) InvalidateCells({0, row, FCols.Count - 1, row});
}

QRect TCustomGrid::CellsRect(const TGridDrawInfo& info, const TGridRect& cells) const {
  int left = 0;
  int right = 0;
  int top = 0;
  int bottom = 0;
  if (!FCols.RangeSpan(info.Horz, cells.Left, cells.Right, left, right)) return {};
  if (!FRows.RangeSpan(info.Vert, cells.Top, cells.Bottom, top, bottom)) return {};
  if (UseRightToLeftAlignment()) {
    left = std::exchange(right, info.Horz.GridExtent - left);
    left = info.Horz.GridExtent - left;
  }
  return {left, top, right - left, bottom - top};
}

void TCustomGrid::InvalidateCells(const TGridRect& cells) {
  if (!HandleAllocated()) return;
  const TGridDrawInfo info = CalcDrawInfo();
  const QRect area = CellsRect(info, cells);
  if (!area.isEmpty()) InvalidateRect(area);
}

}  // namespace kt
