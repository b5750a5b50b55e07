// How TCustomGrid is painted: the cells in view that need it, the lines between them, and nothing else.
#include "kt/vcl/controls/Focus.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/grids/CustomGrid.h"
#include "kt/vcl/grids/GridScrollBar.h"
#include "kt/vcl/grids/InplaceEdit.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <cmath>
#include <vector>

namespace kt {

/// A cell's place in one direction.
struct TCellSpan {
  int Index;
  int Start;
  int End;
};

namespace {

/// The cells of a direction that lie between two positions.
std::vector<TCellSpan> SpansBetween(const TGridAxisDrawInfo& info, int from, int to) {
  std::vector<TCellSpan> spans;
  int start = 0;
  for (int i = info.FixedCellCount > 0 ? 0 : info.FirstGridCell; i < info.GridCellCount && start < to; ++i) {
    if (i == info.FixedCellCount) i = info.FirstGridCell;
    const int end = start + info.GetAdvance(i);
    if (end > from && end > start) spans.push_back({i, start, end});
    start = end;
  }
  return spans;
}

/// Which line lies between two cells of a window and of its text: a fifth of the way, so that it shows in dark palettes
/// and in light ones.
TColor LineColor(const QColor& ground, const QColor& text) {
  const auto mix = [](int a, int b) { return (a * 4 + b) / 5; };
  return ColorOf(
      QColor(mix(ground.red(), text.red()), mix(ground.green(), text.green()), mix(ground.blue(), text.blue())));
}

}  // namespace

/// One painting of a grid.
class TCustomGrid::TPainting {
 public:
  TPainting(TCustomGrid& grid, const QRect& clip)
      : FGrid(grid), FCanvas(grid.GetCanvas()), FInfo(grid.CalcDrawInfo()), FClip(Mirrored(clip)) {
    FColumns = SpansBetween(FInfo.Horz, FClip.left(), FClip.left() + FClip.width());
    FRows = SpansBetween(FInfo.Vert, FClip.top(), FClip.top() + FClip.height());
    FLineColor = LineColor(FCanvas.RealColor(grid.GetColor()), FCanvas.RealColor(clWindowText));
  }

  void Run() {
    FillRest();
    for (const TCellSpan& row : FRows) {
      for (const TCellSpan& column : FColumns) {
        if (!DrawCell(column, row)) return;
      }
    }
  }

 private:
  bool IsMirrored() const { return FGrid.UseRightToLeftAlignment(); }
  /// From the client area to where a grid from left to right would have it, and back.
  QRect Mirrored(QRect rect) const {
    if (IsMirrored()) rect.moveLeft(FInfo.Horz.GridExtent - rect.left() - rect.width());
    return rect;
  }
  void Fill(const QRect& rect, TColor color) {
    if (rect.isEmpty()) return;
    FCanvas.GetBrush().SetColor(color);
    FCanvas.FillRect(Mirrored(rect));
  }

  void FillRest() {
    const int right = FColumns.empty() ? FClip.left() : FColumns.back().End;
    const int bottom = FRows.empty() ? FClip.top() : FRows.back().End;
    const int clipRight = FClip.left() + FClip.width();
    const int clipBottom = FClip.top() + FClip.height();
    Fill({right, FClip.top(), clipRight - right, FClip.height()}, FGrid.GetColor());
    Fill({FClip.left(), bottom, right - FClip.left(), clipBottom - bottom}, FGrid.GetColor());
  }

  bool IsFixed(const TCellSpan& column, const TCellSpan& row) const {
    return column.Index < FInfo.Horz.FixedCellCount || row.Index < FInfo.Vert.FixedCellCount;
  }

  void DrawLines(const TCellSpan& column, const TCellSpan& row, const QRect& cell) {
    const bool isFixed = IsFixed(column, row);
    const TColor ground = isFixed ? FGrid.GetFixedColor() : FGrid.GetColor();
    const TColor line = isFixed ? clBtnShadow : FLineColor;
    const TGridOptions options = FGrid.GetOptions();
    const bool hasVertical = options.Has(isFixed ? goFixedVertLine : goVertLine);
    const bool hasHorizontal = options.Has(isFixed ? goFixedHorzLine : goHorzLine);
    const int right = cell.left() + cell.width();
    const int bottom = cell.top() + cell.height();
    const QRect vertical(right, row.Start, column.End - right, row.End - row.Start);
    const QRect horizontal(cell.left(), bottom, cell.width(), row.End - bottom);
    FillLine(vertical, ground, hasVertical ? line : ground, Qt::Vertical);
    FillLine(horizontal, ground, hasHorizontal ? line : ground, Qt::Horizontal);
  }
  /// Where a pixel of the grid is not a whole number of the screen's, lines would come out thick and thin by turns:
  /// there each is as many whole pixels as fit, one at least.
  void FillLine(const QRect& rect, TColor ground, TColor line, Qt::Orientation orientation) {
    QPainter& painter = FCanvas.Painter();
    const QTransform toDevice = painter.deviceTransform();
    const bool isWhole = toDevice.m11() == std::floor(toDevice.m11()) || toDevice.type() > QTransform::TxScale;
    if (rect.isEmpty() || isWhole || line == ground) return Fill(rect, line);
    Fill(rect, ground);
    QRectF place = toDevice.mapRect(QRectF(Mirrored(rect)));
    place = QRectF(QPointF(std::round(place.left()), std::round(place.top())),
                   QPointF(std::round(place.right()), std::round(place.bottom())));
    if (orientation == Qt::Vertical) place.setWidth(std::max(std::floor(rect.width() * toDevice.m11()), 1.0));
    if (orientation == Qt::Horizontal) place.setHeight(std::max(std::floor(rect.height() * toDevice.m22()), 1.0));
    painter.fillRect(toDevice.inverted().mapRect(place), FCanvas.RealColor(line));
  }

  TGridDrawState StateOf(const TCellSpan& column, const TCellSpan& row) const {
    if (IsFixed(column, row)) return {gdFixed};
    TGridDrawState state;
    const bool isCurrent = FGrid.GetCol() == column.Index && FGrid.GetRow() == row.Index;
    state.Put(gdFocused, isCurrent && FGrid.IsActiveControl());
    state.Put(gdSelected, FGrid.GetSelection().Contains(column.Index, row.Index));
    return state;
  }

  /// False when a handler has changed what there is to paint.
  bool DrawCell(const TCellSpan& column, const TCellSpan& row) {
    const QRect cell(column.Start, row.Start, column.End - column.Start - FInfo.Horz.EffectiveLineWidth,
                     row.End - row.Start - FInfo.Vert.EffectiveLineWidth);
    DrawLines(column, row, cell);
    if (cell.isEmpty() || FGrid.IsUnderEditor(column.Index, row.Index)) return true;
    const TGridDrawState state = StateOf(column, row);
    const QRect rect = Mirrored(cell);
    if (FGrid.IsDefaultDrawing()) PrepareCell(rect, state);
    FGrid.DrawCell(column.Index, row.Index, rect, state);
    if (FGrid.IsDefaultDrawing()) FinishCell(rect, state);
    if (FGrid.GetColCount() == FInfo.Horz.GridCellCount && FGrid.GetRowCount() == FInfo.Vert.GridCellCount) return true;
    FGrid.Invalidate();
    return false;
  }

  void PrepareCell(const QRect& rect, TGridDrawState state) {
    FCanvas.SetFont(&FGrid.GetFont());
    const bool drawsFocused = FGrid.GetOptions().Has(goDrawFocusSelected) || FGrid.GetOptions().Has(goRowSelect);
    TColor ground = state.Has(gdFixed) ? FGrid.GetFixedColor() : FGrid.GetColor();
    if (state.Has(gdSelected) && (!state.Has(gdFocused) || drawsFocused)) {
      ground = clHighlight;
      FCanvas.GetFont().SetColor(clHighlightText);
    }
    FCanvas.GetBrush().SetColor(ground);
    FCanvas.FillRect(rect);
  }

  void FinishCell(const QRect& rect, TGridDrawState state) {
    const TGridOptions options = FGrid.GetOptions();
    const bool hasPermanentEditor = options.Has(goEditing) && options.Has(goAlwaysShowEditor);
    if (!state.Has(gdFocused) || hasPermanentEditor || options.Has(goRowSelect)) return;
    FCanvas.GetBrush().SetColor(FGrid.GetColor());
    FCanvas.DrawFocusRect(rect);
  }

  TCustomGrid& FGrid;
  TCanvas& FCanvas;
  const TGridDrawInfo FInfo;
  const QRect FClip;
  std::vector<TCellSpan> FColumns;
  std::vector<TCellSpan> FRows;
  TColor FLineColor = clSilver;
};

void TCustomGrid::Paint() {
  TPainting(*this, GetCanvas().GetClipRect().intersected(GetClientRect())).Run();
  if (FGridState != gsNormal && FGridState != gsSelecting) PaintMouseLine();
}

void TCustomGrid::Invalidate() {
  if (!HandleAllocated()) return;
  // Scroll bars look after themselves, and one costs nearly as much as the cells.
  QRegion changed(Window()->rect());
  for (const TGridScrollBar* bar : {FHorzBar, FVertBar}) {
    if (IsScrollBarShown(bar)) changed -= bar->geometry();
  }
  Window()->update(changed);
}

void TCustomGrid::PaintMouseLine() {
  const QRect line = MouseLineRect();
  GetCanvas().GetBrush().SetColor(clHighlight);
  if (!line.isEmpty()) GetCanvas().FillRect(line);
}

bool TCustomGrid::IsUnderEditor(int col, int row) const {
  return FInplaceEdit && FInplaceEdit->Visible() && FInplaceCell == TGridCoord{col, row};
}

void TCustomGrid::PaintBorder(QPainter& painter) {
  const QPalette& palette = Window()->palette();
  // The corner between the scroll bars belongs to neither.
  if (IsScrollBarShown(FHorzBar) && IsScrollBarShown(FVertBar)) {
    painter.fillRect(QRect(FVertBar->x(), FHorzBar->y(), FBarWidth, FBarWidth), palette.window());
  }
  if (FBorderStyle != bsSingle) return;
  const QRect whole = Window()->rect();
  painter.fillRect(whole.adjusted(0, 0, 0, -whole.height() + 2), palette.mid());
  painter.fillRect(whole.adjusted(0, whole.height() - 2, 0, 0), palette.mid());
  painter.fillRect(whole.adjusted(0, 0, -whole.width() + 2, 0), palette.mid());
  painter.fillRect(whole.adjusted(whole.width() - 2, 0, 0, 0), palette.mid());
  const QRect inner = whole.adjusted(1, 1, -1, -1);
  const QBrush ground(QtColor(GetColor(), palette));
  painter.fillRect(QRect(inner.left(), inner.top(), inner.width(), 1), ground);
  painter.fillRect(QRect(inner.left(), inner.bottom(), inner.width(), 1), ground);
  painter.fillRect(QRect(inner.left(), inner.top(), 1, inner.height()), ground);
  painter.fillRect(QRect(inner.right(), inner.top(), 1, inner.height()), ground);
}

}  // namespace kt
