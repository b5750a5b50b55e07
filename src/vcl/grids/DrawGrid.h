#pragma once

#include "kt/vcl/grids/CustomGrid.h"

namespace kt {

/// A grid whose cells and texts come from events. The base for grids that keep contents of their own.
class TCustomDrawGrid : public TCustomGrid {
 public:
  using Inherited = TCustomGrid;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TMovedEvent OnColumnMoved;
  TDrawCellEvent OnDrawCell;
  TGetEditEvent OnGetEditMask;
  TGetEditEvent OnGetEditText;
  TMovedEvent OnRowMoved;
  TSelectCellEvent OnSelectCell;
  TSetEditEvent OnSetEditText;
  TNotifyEvent OnTopLeftChanged;

 protected:
  explicit TCustomDrawGrid(TComponent* owner = nullptr) : TCustomGrid(owner) {}

  void ColumnMoved(int fromIndex, int toIndex) override { OnColumnMoved(this, fromIndex, toIndex); }
  void RowMoved(int fromIndex, int toIndex) override { OnRowMoved(this, fromIndex, toIndex); }
  QString GetEditMask(int col, int row) override;
  QString GetEditText(int col, int row) override;
  void SetEditText(int col, int row, const QString& value) override { OnSetEditText(this, col, row, value); }
  bool SelectCell(int col, int row) override;
  void DrawCell(int col, int row, const QRect& rect, TGridDrawState state) override;
  void TopLeftChanged() override;
};

/// A grid drawn by its application: publishes what TCustomDrawGrid has.
class TDrawGrid : public TCustomDrawGrid {
 public:
  using Inherited = TCustomDrawGrid;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TDrawGrid(TComponent* owner = nullptr) : TCustomDrawGrid(owner) {}
};

}  // namespace kt
