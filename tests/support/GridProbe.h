#pragma once

#include "kt/vcl/grids/DrawGrid.h"

#include <QString>
#include <QStringList>

namespace kt::tests {

/// A drawn grid whose protected operations tests can call, and that writes down what it hears.
class TGridProbe : public TCustomDrawGrid {
 public:
  using Inherited = TCustomDrawGrid;

  using TCustomDrawGrid::CalcDrawInfo;
  using TCustomDrawGrid::CalcFixedInfo;
  using TCustomDrawGrid::CalcSizingState;
  using TCustomDrawGrid::CanEditShow;
  using TCustomDrawGrid::ClampInView;
  using TCustomDrawGrid::DeleteColumn;
  using TCustomDrawGrid::DeleteRow;
  using TCustomDrawGrid::FocusCell;
  using TCustomDrawGrid::GetEditMask;
  using TCustomDrawGrid::GetEditText;
  using TCustomDrawGrid::HideEditor;
  using TCustomDrawGrid::InvalidateCell;
  using TCustomDrawGrid::InvalidateCol;
  using TCustomDrawGrid::InvalidateEditor;
  using TCustomDrawGrid::InvalidateRow;
  using TCustomDrawGrid::MoveColumn;
  using TCustomDrawGrid::MoveRow;
  using TCustomDrawGrid::SetEditText;
  using TCustomDrawGrid::ShowEditor;
  using TCustomDrawGrid::ShowEditorChar;

  /// What was heard, joined by blanks, and forgotten.
  QString Log() { return std::exchange(FLog, {}).join(u' '); }
  /// Current cell, selection and scroll position: "2,3 sel 1,1-2,3 at 1,1".
  QString Where() const {
    const TGridRect sel = GetSelection();
    return QStringLiteral("%1,%2 sel %3,%4-%5,%6 at %7,%8")
        .arg(GetCol())
        .arg(GetRow())
        .arg(sel.Left)
        .arg(sel.Top)
        .arg(sel.Right)
        .arg(sel.Bottom)
        .arg(GetLeftCol())
        .arg(GetTopRow());
  }

 protected:
  explicit TGridProbe(TComponent* owner = nullptr) : TCustomDrawGrid(owner) {}

  void SizeChanged(int oldColCount, int oldRowCount) override {
    TCustomDrawGrid::SizeChanged(oldColCount, oldRowCount);
    FLog += QStringLiteral("SizeChanged(%1,%2)").arg(oldColCount).arg(oldRowCount);
  }
  void ColWidthsChanged() override {
    TCustomDrawGrid::ColWidthsChanged();
    FLog += QStringLiteral("ColWidthsChanged");
  }
  void RowHeightsChanged() override {
    TCustomDrawGrid::RowHeightsChanged();
    FLog += QStringLiteral("RowHeightsChanged");
  }
  void TopLeftChanged() override {
    TCustomDrawGrid::TopLeftChanged();
    FLog += QStringLiteral("TopLeftChanged");
  }
  void Click() override {
    FLog += QStringLiteral("Click");
    TCustomDrawGrid::Click();
  }
  void ColumnMoved(int fromIndex, int toIndex) override {
    FLog += QStringLiteral("ColumnMoved(%1,%2)").arg(fromIndex).arg(toIndex);
    TCustomDrawGrid::ColumnMoved(fromIndex, toIndex);
  }
  void RowMoved(int fromIndex, int toIndex) override {
    FLog += QStringLiteral("RowMoved(%1,%2)").arg(fromIndex).arg(toIndex);
    TCustomDrawGrid::RowMoved(fromIndex, toIndex);
  }

  QStringList FLog;
};

}  // namespace kt::tests
