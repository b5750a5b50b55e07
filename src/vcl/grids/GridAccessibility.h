#pragma once

#include "kt/vcl/grids/GridTypes.h"

#include <QString>

namespace kt {

class TCustomGrid;

/// What assistive technology, such as a screen reader, is told of a cell.
struct TGridCellDescription {
  QString Name;
  /// Empty where the name is all that the cell shows.
  QString Value;
  QString Hint;
  bool IsEnabled = true;
  bool IsReadOnly = false;
  bool IsExpandable = false;
  bool IsExpanded = false;
};

/// Grids as tables for assistive technology, over Qt's accessibility: the cells are the children, row by row. A cell
/// can be made the current one, and expanded; the cursor's moves are told while the grid has the keyboard.
namespace GridAccessibility {

/// Has Qt ask us about the windows of grids. Called once for every window, it acts at the first.
void Install();
/// The current cell of a grid is another one.
void TellCurrentCell(const TCustomGrid& grid);
/// The grid has other rows or columns.
void TellSize(const TCustomGrid& grid);

}  // namespace GridAccessibility
}  // namespace kt
