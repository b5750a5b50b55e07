#include "kt/vcl/grids/GridAccessibility.h"

#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/grids/GridAccessible.h"

#include <mutex>

namespace kt {

namespace {

/// Whether anybody has asked about a grid; before that there is nobody to tell.
bool IsListenedTo = false;

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* grid = dynamic_cast<TCustomGrid*>(TControlBody::ControlOf(object));
  if (!grid) return nullptr;
  IsListenedTo = true;
  return new TGridAccessible(static_cast<QWidget*>(object));
}

}  // namespace

void GridAccessibility::Install() {
  static std::once_flag installed;
  std::call_once(installed, [] { QAccessible::installFactory(MakeInterface); });
}

void GridAccessibility::TellCurrentCell(const TCustomGrid& grid) {
  if (!IsListenedTo || !grid.HandleAllocated() || !grid.IsActiveControl()) return;
  QAccessibleEvent event(grid.Window(), QAccessible::Focus);
  event.setChild(grid.GetRow() * grid.GetColCount() + grid.GetCol());
  QAccessible::updateAccessibility(&event);
}

void GridAccessibility::TellSize(const TCustomGrid& grid) {
  if (!IsListenedTo || !grid.HandleAllocated()) return;
  QAccessibleTableModelChangeEvent event(grid.Window(), QAccessibleTableModelChangeEvent::ModelReset);
  QAccessible::updateAccessibility(&event);
}

// The grid.

TGridAccessible::TGridAccessible(QWidget* body) : QAccessibleWidget(body, QAccessible::Table) {}

TGridAccessible::~TGridAccessible() { ForgetCells(); }

void TGridAccessible::ForgetCells() {
  for (const QAccessible::Id id : std::as_const(FCells)) QAccessible::deleteAccessibleInterface(id);
  FCells.clear();
}

void* TGridAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

TCustomGrid* TGridAccessible::Grid() const { return dynamic_cast<TCustomGrid*>(TControlBody::ControlOf(object())); }

int TGridAccessible::childCount() const { return rowCount() * columnCount(); }

QAccessibleInterface* TGridAccessible::child(int index) const {
  return index < 0 || index >= childCount() ? nullptr : cellAt(index / columnCount(), index % columnCount());
}

QAccessibleInterface* TGridAccessible::childAt(int x, int y) const {
  TCustomGrid* grid = Grid();
  if (!grid) return nullptr;
  const QPoint point = grid->ScreenToClient({x, y});
  const TGridCoord cell = grid->MouseCoord(point.x(), point.y());
  return cell.X < 0 ? nullptr : cellAt(cell.Y, cell.X);
}

int TGridAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* cell = dynamic_cast<const TGridCellAccessible*>(child);
  return cell ? cell->rowIndex() * columnCount() + cell->columnIndex() : -1;
}

QAccessibleInterface* TGridAccessible::focusChild() const {
  TCustomGrid* grid = Grid();
  return grid && grid->IsActiveControl() ? cellAt(grid->GetRow(), grid->GetCol()) : QAccessibleWidget::focusChild();
}

QAccessibleInterface* TGridAccessible::cellAt(int row, int column) const {
  if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return nullptr;
  const std::pair key(row, column);
  const auto known = FCells.constFind(key);
  if (known != FCells.constEnd()) return QAccessible::accessibleInterface(*known);
  auto* cell = new TGridCellAccessible(*this, {column, row});
  FCells.insert(key, QAccessible::registerAccessibleInterface(cell));
  return cell;
}

int TGridAccessible::columnCount() const { return Grid() ? Grid()->GetColCount() : 0; }
int TGridAccessible::rowCount() const { return Grid() ? Grid()->GetRowCount() : 0; }

QList<QAccessibleInterface*> TGridAccessible::selectedCells() const {
  QList<QAccessibleInterface*> cells;
  if (!Grid()) return cells;
  const TGridRect selected = Grid()->GetSelection();
  for (int row = selected.Top; row <= selected.Bottom; ++row) {
    for (int column = selected.Left; column <= selected.Right; ++column) cells += cellAt(row, column);
  }
  return cells;
}

int TGridAccessible::selectedCellCount() const {
  if (!Grid()) return 0;
  const TGridRect selected = Grid()->GetSelection();
  return (selected.Right - selected.Left + 1) * (selected.Bottom - selected.Top + 1);
}

void TGridAccessible::modelChange(QAccessibleTableModelChangeEvent*) { ForgetCells(); }

TGridCellDescription TCustomGrid::DescribeCell(int, int) { return {}; }

// A cell.

TCustomGrid* TGridCellAccessible::Grid() const { return FTable.Grid(); }

bool TGridCellAccessible::isValid() const {
  const TCustomGrid* grid = Grid();
  return grid && FCell.X < grid->GetColCount() && FCell.Y < grid->GetRowCount();
}

TGridCellDescription TGridCellAccessible::Describe() const {
  TGridCellDescription description;
  if (isValid()) GuardedCall([&] { description = Grid()->DescribeCell(FCell.X, FCell.Y); });
  return description;
}

bool TGridCellAccessible::IsFixed() const {
  return FCell.X < Grid()->GetFixedCols() || FCell.Y < Grid()->GetFixedRows();
}

QString TGridCellAccessible::text(QAccessible::Text what) const {
  switch (what) {
    case QAccessible::Name:
      return Describe().Name;
    case QAccessible::Value:
      return Describe().Value;
    case QAccessible::Description:
      return Describe().Hint;
    default:
      return {};
  }
}

QRect TGridCellAccessible::rect() const {
  if (!isValid()) return {};
  const QRect cell = Grid()->CellRect(FCell.X, FCell.Y);
  return cell.isEmpty() ? QRect() : QRect(Grid()->ClientToScreen(cell.topLeft()), cell.size());
}

QAccessible::Role TGridCellAccessible::role() const {
  if (!isValid() || !IsFixed()) return QAccessible::Cell;
  return FCell.Y < Grid()->GetFixedRows() ? QAccessible::ColumnHeader : QAccessible::RowHeader;
}

QAccessible::State TGridCellAccessible::state() const {
  QAccessible::State state;
  state.invalid = !isValid();
  if (state.invalid) return state;
  const TGridCellDescription description = Describe();
  if (!isValid()) return state;
  const bool isFixed = IsFixed();
  state.selectable = state.focusable = !isFixed;
  state.selected = isSelected();
  state.focused = Grid()->IsActiveControl() && FCell == TGridCoord{Grid()->GetCol(), Grid()->GetRow()};
  state.disabled = !description.IsEnabled;
  state.readOnly = description.IsReadOnly;
  state.editable = !isFixed && !description.IsReadOnly && Grid()->GetOptions().Has(goEditing);
  state.expandable = description.IsExpandable;
  state.expanded = description.IsExpandable && description.IsExpanded;
  state.collapsed = description.IsExpandable && !description.IsExpanded;
  state.offscreen = Grid()->CellRect(FCell.X, FCell.Y).isEmpty();
  return state;
}

void* TGridCellAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
  if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
  return nullptr;
}

bool TGridCellAccessible::isSelected() const {
  const TGridRect selected = Grid()->GetSelection();
  return FCell.X >= selected.Left && FCell.X <= selected.Right && FCell.Y >= selected.Top && FCell.Y <= selected.Bottom;
}

QList<QAccessibleInterface*> TGridCellAccessible::columnHeaderCells() const {
  QList<QAccessibleInterface*> cells;
  for (int row = 0; isValid() && row < Grid()->GetFixedRows(); ++row) cells += FTable.cellAt(row, FCell.X);
  return cells;
}

QList<QAccessibleInterface*> TGridCellAccessible::rowHeaderCells() const {
  QList<QAccessibleInterface*> cells;
  for (int column = 0; isValid() && column < Grid()->GetFixedCols(); ++column) cells += FTable.cellAt(FCell.Y, column);
  return cells;
}

QStringList TGridCellAccessible::actionNames() const {
  if (!isValid() || IsFixed()) return {};
  QStringList names{setFocusAction()};
  if (Describe().IsExpandable) names += toggleAction();
  return names;
}

void TGridCellAccessible::doAction(const QString& name) {
  if (!actionNames().contains(name)) return;
  GuardedCall([&] {
    if (name == toggleAction()) return Grid()->ToggleCell(FCell.X, FCell.Y);
    Grid()->SetFocus();
    if (isValid()) Grid()->FocusCell(FCell.X, FCell.Y, true);
  });
}

}  // namespace kt
