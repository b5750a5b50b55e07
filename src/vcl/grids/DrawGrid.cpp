#include "kt/vcl/grids/DrawGrid.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/grids/PublishGrid.h"

namespace kt {

const TClassInfo* TCustomDrawGrid::Class() {
  static const TClassInfo info = TClassBuilder<TCustomDrawGrid>("TCustomDrawGrid").Done();
  return &info;
}

const TClassInfo* TDrawGrid::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TDrawGrid> builder("TDrawGrid");
    Publish::Action(builder);
    Publish::Align(builder);
    Publish::Anchors(builder);
    Publish::Bevels(builder);
    Publish::BiDiMode(builder);
    Publish::GridBorderStyle(builder);
    Publish::Color(builder, clWindow);
    Publish::ColCount(builder);
    Publish::Constraints(builder);
    Publish::DefaultColWidth(builder);
    Publish::DefaultRowHeight(builder);
    Publish::DefaultDrawing(builder);
    Publish::Ctl3D(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::FixedColor(builder);
    Publish::FixedCols(builder);
    Publish::RowCount(builder);
    Publish::FixedRows(builder);
    Publish::Font(builder);
    Publish::GridLineWidth(builder);
    Publish::GridOptions(builder);
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder, false);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ScrollBars(builder);
    Publish::ShowHint(builder);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, true);
    Publish::Visible(builder);
    Publish::MouseEvents(builder);
    Publish::DragEvents(builder);
    Publish::WheelEvents(builder);
    Publish::FocusEvents(builder);
    Publish::KeyEvents(builder);
    Publish::GridEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

QString TCustomDrawGrid::GetEditMask(int col, int row) {
  QString mask;
  OnGetEditMask(this, col, row, mask);
  return mask;
}

QString TCustomDrawGrid::GetEditText(int col, int row) {
  QString text;
  OnGetEditText(this, col, row, text);
  return text;
}

bool TCustomDrawGrid::SelectCell(int col, int row) {
  bool canSelect = true;
  OnSelectCell(this, col, row, canSelect);
  return canSelect;
}

void TCustomDrawGrid::DrawCell(int col, int row, const QRect& rect, TGridDrawState state) {
  OnDrawCell(this, col, row, rect, state);
}

void TCustomDrawGrid::TopLeftChanged() {
  TCustomGrid::TopLeftChanged();
  OnTopLeftChanged(this);
}

}  // namespace kt
