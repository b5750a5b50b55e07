#pragma once

#include "kt/vcl/grids/SparseSizes.h"

namespace kt {

/// Where the cells of one direction lie in the client area: pixels from its left or top edge.
struct TGridAxisDrawInfo {
  /// The width of the lines between the cells; 0 when none are drawn.
  int EffectiveLineWidth = 0;
  /// The end of the fixed cells.
  int FixedBoundary = 0;
  /// The end of the last cell that is at least partly visible, cut to GridExtent.
  int GridBoundary = 0;
  /// The size of the client area.
  int GridExtent = 0;
  int LastFullVisibleCell = 0;
  /// The end of that cell.
  int FullVisBoundary = 0;
  int FixedCellCount = 0;
  int FirstGridCell = 0;
  int GridCellCount = 0;
  const TSparseSizes* Extents = nullptr;

  /// The size of a cell; below 0 when the cell is hidden, line and all.
  int GetExtent(int index) const { return Extents->Get(index); }
  /// The size that a cell takes together with its line.
  int GetAdvance(int index) const {
    const int extent = GetExtent(index);
    return extent < 0 ? 0 : extent + EffectiveLineWidth;
  }
};

/// Both directions.
struct TGridDrawInfo {
  TGridAxisDrawInfo Horz;
  TGridAxisDrawInfo Vert;
};

/// The cells of a grid in one direction: how many there are, which are fixed, which is the first one scrolled into
/// view, and their sizes. Knows nothing of windows.
class TGridAxis {
 public:
  TGridAxis(int count, int fixed, int usualSize) : Count(count), Fixed(fixed), First(fixed), Sizes(usualSize) {}

  int Count;
  int Fixed;
  int First;
  TSparseSizes Sizes;

  /// The fixed part of a draw info.
  TGridAxisDrawInfo FixedInfo(int lineWidth) const;
  /// All of it, for a client area of `extent` pixels. Takes time in proportion to the cells in view.
  TGridAxisDrawInfo DrawInfo(int lineWidth, int extent) const;

  /// The first cell of the last page: the greatest sensible value of First.
  int MaxFirst(const TGridAxisDrawInfo& info) const;
  /// Where `cell` begins and ends; false when it lies before First (and is not fixed) or behind the extent.
  bool CellSpan(const TGridAxisDrawInfo& info, int cell, int& start, int& end) const;
  /// Where what is visible of the cells from `from` to `to` begins and ends, with their lines; false when nothing is.
  bool RangeSpan(const TGridAxisDrawInfo& info, int from, int to, int& start, int& end) const;
  /// The cell under a position, or -1.
  int CellAt(const TGridAxisDrawInfo& info, int position) const;
  /// The value of First that brings `cell` into view with the least scrolling.
  int FirstToShow(const TGridAxisDrawInfo& info, int cell) const;
};

}  // namespace kt
