#pragma once

#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/grids/DrawGrid.h"

namespace kt::Publish {

template <class T>
void GridBorderStyle(TClassBuilder<T>& builder) {
  builder
      .template Property<&TCustomGrid::GetBorderStyle, &TCustomGrid::SetBorderStyle>("BorderStyle",
                                                                                     &BorderStyleTypeInfo)
      .Default(bsSingle);
}
template <class T>
void ColCount(TClassBuilder<T>& builder, int value = 5) {
  builder.template Property<&TCustomGrid::GetColCount, &TCustomGrid::SetColCount>("ColCount").Default(value);
}
template <class T>
void RowCount(TClassBuilder<T>& builder, int value = 5) {
  builder.template Property<&TCustomGrid::GetRowCount, &TCustomGrid::SetRowCount>("RowCount").Default(value);
}
template <class T>
void FixedCols(TClassBuilder<T>& builder, int value = 1) {
  builder.template Property<&TCustomGrid::GetFixedCols, &TCustomGrid::SetFixedCols>("FixedCols").Default(value);
}
template <class T>
void FixedRows(TClassBuilder<T>& builder, int value = 1) {
  builder.template Property<&TCustomGrid::GetFixedRows, &TCustomGrid::SetFixedRows>("FixedRows").Default(value);
}
template <class T>
void DefaultColWidth(TClassBuilder<T>& builder, int value = 64) {
  builder.template Property<&TCustomGrid::GetDefaultColWidth, &TCustomGrid::SetDefaultColWidth>("DefaultColWidth")
      .Default(value);
}
template <class T>
void DefaultRowHeight(TClassBuilder<T>& builder, int value = 24) {
  builder.template Property<&TCustomGrid::GetDefaultRowHeight, &TCustomGrid::SetDefaultRowHeight>("DefaultRowHeight")
      .Default(value);
}
template <class T>
void DefaultDrawing(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomGrid::IsDefaultDrawing, &TCustomGrid::SetDefaultDrawing>("DefaultDrawing")
      .Default(true);
}
template <class T>
void FixedColor(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomGrid::GetFixedColor, &TCustomGrid::SetFixedColor>("FixedColor").Default(clBtnFace);
}
template <class T>
void GridLineWidth(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomGrid::GetGridLineWidth, &TCustomGrid::SetGridLineWidth>("GridLineWidth").Default(1);
}
template <class T>
void GridOptions(TClassBuilder<T>& builder,
                 TGridOptions value = {goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine, goRangeSelect}) {
  builder.template Property<&TCustomGrid::GetOptions, &TCustomGrid::SetOptions>("Options").Default(value);
}
template <class T>
void ScrollBars(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomGrid::GetScrollBars, &TCustomGrid::SetScrollBars>("ScrollBars").Default(ssBoth);
}

/// The events of TCustomDrawGrid.
template <class T>
void GridEvents(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomDrawGrid::OnColumnMoved>("OnColumnMoved");
  builder.template Property<&TCustomDrawGrid::OnDrawCell>("OnDrawCell");
  builder.template Property<&TCustomDrawGrid::OnGetEditMask>("OnGetEditMask");
  builder.template Property<&TCustomDrawGrid::OnGetEditText>("OnGetEditText");
  builder.template Property<&TCustomDrawGrid::OnRowMoved>("OnRowMoved");
  builder.template Property<&TCustomDrawGrid::OnSelectCell>("OnSelectCell");
  builder.template Property<&TCustomDrawGrid::OnSetEditText>("OnSetEditText");
  builder.template Property<&TCustomDrawGrid::OnTopLeftChanged>("OnTopLeftChanged");
}

}  // namespace kt::Publish
