#pragma once

#include "kt/vcl/grids/CustomGrid.h"
#include "kt/vcl/grids/GridAccessibility.h"

#include <QAccessibleWidget>
#include <QHash>

#include <utility>

namespace kt {

/// The window of a grid as a table. Its cells are made when somebody asks for them; a cell is known by its place, and
/// tells of whatever stands there when it is asked.
class TGridAccessible final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit TGridAccessible(QWidget* body);
  ~TGridAccessible() override;

  /// Null while the window's grid is gone.
  TCustomGrid* Grid() const;

  void* interface_cast(QAccessible::InterfaceType type) override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* focusChild() const override;

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int column) const override;
  int columnCount() const override;
  int rowCount() const override;
  QString columnDescription(int) const override { return {}; }
  QString rowDescription(int) const override { return {}; }
  int selectedCellCount() const override;
  QList<QAccessibleInterface*> selectedCells() const override;
  // The selection is a rectangle of cells; whole rows and columns cannot be selected through this interface.
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent* event) override;

 private:
  void ForgetCells();

  mutable QHash<std::pair<int, int>, QAccessible::Id> FCells;
};

/// One cell.
class TGridCellAccessible final : public QAccessibleInterface,
                                  public QAccessibleTableCellInterface,
                                  public QAccessibleActionInterface {
 public:
  TGridCellAccessible(const TGridAccessible& table, TGridCoord cell) : FTable(table), FCell(cell) {}

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return const_cast<TGridAccessible*>(&FTable); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text what) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  int columnIndex() const override { return FCell.X; }
  int rowIndex() const override { return FCell.Y; }
  bool isSelected() const override;
  QList<QAccessibleInterface*> columnHeaderCells() const override;
  QList<QAccessibleInterface*> rowHeaderCells() const override;
  QAccessibleInterface* table() const override { return parent(); }

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  TCustomGrid* Grid() const;
  TGridCellDescription Describe() const;
  bool IsFixed() const;

  const TGridAccessible& FTable;
  TGridCoord FCell;
};

}  // namespace kt
