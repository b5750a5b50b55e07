#include "kt/vcl/grids/GridAxis.h"

#include <algorithm>

namespace kt {

TGridAxisDrawInfo TGridAxis::FixedInfo(int lineWidth) const {
  TGridAxisDrawInfo info;
  info.EffectiveLineWidth = lineWidth;
  info.FixedCellCount = Fixed;
  info.FirstGridCell = First;
  info.GridCellCount = Count;
  info.Extents = &Sizes;
  for (int i = 0; i < Fixed; ++i) info.FixedBoundary += info.GetAdvance(i);
  return info;
}

TGridAxisDrawInfo TGridAxis::DrawInfo(int lineWidth, int extent) const {
  TGridAxisDrawInfo info = FixedInfo(lineWidth);
  info.GridExtent = extent;
  info.GridBoundary = info.FixedBoundary;
  info.FullVisBoundary = info.FixedBoundary;
  info.LastFullVisibleCell = First;
  for (int i = First; i < Count; ++i) {
    info.GridBoundary += info.GetAdvance(i);
    if (info.GridBoundary > extent + lineWidth) {
      info.GridBoundary = extent;
      break;
    }
    info.LastFullVisibleCell = i;
    info.FullVisBoundary = info.GridBoundary;
  }
  return info;
}

int TGridAxis::MaxFirst(const TGridAxisDrawInfo& info) const {
  const int room = info.GridExtent + info.EffectiveLineWidth - info.FixedBoundary;
  int first = Count - 1;
  int used = info.GetAdvance(first);
  while (first > Fixed && used + info.GetAdvance(first - 1) <= room) used += info.GetAdvance(--first);
  return first;
}

bool TGridAxis::CellSpan(const TGridAxisDrawInfo& info, int cell, int& start, int& end) const {
  if (cell < 0 || cell >= Count || (cell >= Fixed && cell < First)) return false;
  start = cell < Fixed ? 0 : info.FixedBoundary;
  for (int i = cell < Fixed ? 0 : First; i < cell; ++i) {
    start += info.GetAdvance(i);
    if (start > info.GridExtent) return false;
  }
  end = start + std::max(info.GetExtent(cell), 0);
  return true;
}

bool TGridAxis::RangeSpan(const TGridAxisDrawInfo& info, int from, int to, int& start, int& end) const {
  if (from >= Fixed) from = std::max(from, First);
  if (to >= Fixed && to < First) to = Fixed - 1;
  if (to < from || !CellSpan(info, from, start, end)) return false;
  // What ends behind the view ends with it.
  int last = start;
  end = CellSpan(info, to, last, end) ? end + info.EffectiveLineWidth : info.GridExtent;
  end = std::min(end, info.GridExtent);
  return start < end;
}

int TGridAxis::CellAt(const TGridAxisDrawInfo& info, int position) const {
  if (position < 0) return -1;
  int end = 0;
  for (int i = 0; i < Count; ++i) {
    if (i == Fixed) i = First;
    end += info.GetAdvance(i);
    if (position < end) return i;
    if (end > info.GridExtent) break;
  }
  return -1;
}

int TGridAxis::FirstToShow(const TGridAxisDrawInfo& info, int cell) const {
  if (cell < Fixed) return First;
  if (cell <= First) return cell;
  if (cell <= info.LastFullVisibleCell) return First;
  const int room = info.GridExtent + info.EffectiveLineWidth - info.FixedBoundary;
  int first = cell;
  int used = info.GetAdvance(cell);
  while (first > First && used + info.GetAdvance(first - 1) <= room) used += info.GetAdvance(--first);
  return first;
}

}  // namespace kt
