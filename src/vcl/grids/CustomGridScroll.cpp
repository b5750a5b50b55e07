// How TCustomGrid scrolls.
#include "kt/vcl/grids/CustomGrid.h"

#include <algorithm>

namespace kt {

void TCustomGrid::MoveTopLeft(int leftCol, int topRow) {
  leftCol = std::clamp(leftCol, FCols.Fixed, FCols.Count - 1);
  topRow = std::clamp(topRow, FRows.Fixed, FRows.Count - 1);
  if (leftCol == FCols.First && topRow == FRows.First) return;
  FCols.First = leftCol;
  FRows.First = topRow;
  InvalidateGrid();
  TopLeftChanged();
}

void TCustomGrid::ScrollBarsNeedUpdate() {}

}  // namespace kt
