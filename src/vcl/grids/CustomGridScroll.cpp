// How TCustomGrid scrolls, and its scroll bars.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/grids/CustomGrid.h"
#include "kt/vcl/grids/GridScrollBar.h"
#include "kt/vcl/grids/InplaceEdit.h"

#include <QStyle>

#include <algorithm>

namespace kt {

namespace {

/// How many rows a step of the wheel scrolls.
constexpr int kWheelRows = 3;

/// How many pixels the cells move when the first one changes; `limit` or more stands for all of them.
int ScrolledPixels(const TGridAxisDrawInfo& info, int from, int to, int limit) {
  int pixels = 0;
  for (int i = std::min(from, to); i < std::max(from, to) && pixels < limit; ++i) pixels += info.GetAdvance(i);
  return from < to ? -pixels : pixels;
}

}  // namespace

void TCustomGrid::MoveTopLeft(int leftCol, int topRow) {
  leftCol = std::clamp(leftCol, FCols.Fixed, FCols.Count - 1);
  topRow = std::clamp(topRow, FRows.Fixed, FRows.Count - 1);
  if (leftCol == FCols.First && topRow == FRows.First) return;
  const TGridDrawInfo before = CalcDrawInfo();
  const int oldLeft = std::exchange(FCols.First, leftCol);
  const int oldTop = std::exchange(FRows.First, topRow);
  const TLifeWatch self(this);
  ScrollBarsNeedUpdate();
  if (!self.IsAlive()) return;
  ScrollCells(before, oldLeft, oldTop);
  TopLeftChanged();
}

void TCustomGrid::ScrollCells(const TGridDrawInfo& before, int oldLeft, int oldTop) {
  if (!HandleAllocated()) return;
  const QRect client = GetClientRect();
  int dx = ScrolledPixels(before.Horz, oldLeft, FCols.First, client.width());
  const int dy = ScrolledPixels(before.Vert, oldTop, FRows.First, client.height());
  QRect moving = client;
  if (dx == 0) moving.setTop(before.Vert.FixedBoundary);
  if (dy == 0 && !UseRightToLeftAlignment()) moving.setLeft(before.Horz.FixedBoundary);
  if (dy == 0 && UseRightToLeftAlignment()) moving.setWidth(client.width() - before.Horz.FixedBoundary);
  if (UseRightToLeftAlignment()) dx = -dx;
  const bool isCopy = (dx == 0 || dy == 0) && std::abs(dx) < moving.width() && std::abs(dy) < moving.height() &&
                      before.Horz.GridExtent == client.width() && before.Vert.GridExtent == client.height();
  if (!isCopy) return InvalidateGrid();
  // The copy has what the editor covered, which is not what a cell looks like.
  if (FInplaceEdit && FInplaceEdit->Visible()) InvalidateRect(FInplaceEdit->GetBoundsRect());
  Window()->scroll(dx, dy, moving.translated(GetClientOrigin()));
  if (FInplaceEdit && FInplaceEdit->Visible()) InvalidateRect(FInplaceEdit->GetBoundsRect().translated(dx, dy));
}

bool TCustomGrid::HasScrollBar(TScrollStyle style) const { return FScrollBars == style || FScrollBars == ssBoth; }

bool TCustomGrid::IsScrollBarShown(const TGridScrollBar* bar) { return bar && !bar->isHidden(); }

QMargins TCustomGrid::GetClientMargins() const {
  const int border = FBorderStyle == bsSingle ? 2 : 0;
  QMargins margins(border, border, border, border);
  if (IsScrollBarShown(FHorzBar)) margins.setBottom(border + FBarWidth);
  if (!IsScrollBarShown(FVertBar)) return margins;
  if (UseRightToLeftAlignment()) {
    margins.setLeft(border + FBarWidth);
  } else {
    margins.setRight(border + FBarWidth);
  }
  return margins;
}

void TCustomGrid::CreateWnd() {
  TCustomControl::CreateWnd();
  GridAccessibility::Install();
  FBarWidth = Window()->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, Window());
  FHorzBar = new TGridScrollBar(Qt::Horizontal, Window(), [this](int value) { ScrolledTo(value, FRows.First); });
  FVertBar = new TGridScrollBar(Qt::Vertical, Window(), [this](int value) { ScrolledTo(FCols.First, value); });
  FHorzBar->hide();
  FVertBar->hide();
  UpdateTracking();
  ScrollBarsNeedUpdate();
}

void TCustomGrid::ScrolledTo(int leftCol, int topRow) { MoveTopLeft(leftCol, topRow); }

void TCustomGrid::UpdateTracking() {
  if (!FHorzBar || !FVertBar) return;
  FHorzBar->setTracking(FOptions.Has(goThumbTracking));
  FVertBar->setTracking(FOptions.Has(goThumbTracking));
}

void TCustomGrid::ScrollBarsNeedUpdate() {
  if (!HandleAllocated() || !FHorzBar || !FVertBar || FIsUpdatingBars) return;
  FIsUpdatingBars = true;
  const QSize before = GetClientRect().size();
  ShowScrollBars();
  PlaceScrollBars();
  FIsUpdatingBars = false;
  // A bar on the left moves the client area, and so do borders and another direction of reading.
  PlaceChildWindows();
  if (GetClientRect().size() == before) return;
  InvalidateGrid();
  MoveEditor();
  Resize();
}

/// One bar takes room from the other direction and may make the other one needed, but never superfluous.
void TCustomGrid::ShowScrollBars() {
  const int border = FBorderStyle == bsSingle ? 4 : 0;
  int width = GetWidth() - border;
  int height = GetHeight() - border;
  bool hasHorz = false;
  bool hasVert = false;
  for (int pass = 0; pass < 2; ++pass) {
    if (!hasVert && HasScrollBar(ssVertical) && NeedsScrolling(FRows, LineWidth(goFixedHorzLine, goHorzLine), height)) {
      hasVert = true;
      width -= FBarWidth;
    }
    if (!hasHorz && HasScrollBar(ssHorizontal) &&
        NeedsScrolling(FCols, LineWidth(goFixedVertLine, goVertLine), width)) {
      hasHorz = true;
      height -= FBarWidth;
    }
  }
  FHorzBar->setVisible(hasHorz);
  FVertBar->setVisible(hasVert);
}

bool TCustomGrid::NeedsScrolling(const TGridAxis& axis, int lineWidth, int extent) {
  const TGridAxisDrawInfo info = axis.DrawInfo(lineWidth, extent);
  return axis.First > axis.Fixed || axis.MaxFirst(info) > axis.Fixed;
}

void TCustomGrid::PlaceScrollBars() {
  const QRect client(GetClientOrigin(), GetClientRect().size());
  const int clientRight = client.left() + client.width();
  const int clientBottom = client.top() + client.height();
  const TGridDrawInfo info = CalcDrawInfo();
  if (IsScrollBarShown(FVertBar)) {
    FVertBar->setGeometry(UseRightToLeftAlignment() ? client.left() - FBarWidth : clientRight, client.top(), FBarWidth,
                          client.height());
    const int page = std::max(info.Vert.LastFullVisibleCell - FRows.First, 1);
    FVertBar->ShowPosition(FRows.Fixed, std::max(FRows.MaxFirst(info.Vert), FRows.First), page, FRows.First);
  }
  if (!IsScrollBarShown(FHorzBar)) return;
  FHorzBar->setGeometry(client.left(), clientBottom, client.width(), FBarWidth);
  FHorzBar->setLayoutDirection(UseRightToLeftAlignment() ? Qt::RightToLeft : Qt::LeftToRight);
  const int page = std::max(info.Horz.LastFullVisibleCell - FCols.First, 1);
  FHorzBar->ShowPosition(FCols.Fixed, std::max(FCols.MaxFirst(info.Horz), FCols.First), page, FCols.First);
}

void TCustomGrid::Resize() {
  const TLifeWatch self(this);
  if (!FIsUpdatingBars) ScrollBarsNeedUpdate();
  if (self.IsAlive()) TCustomControl::Resize();
  if (self.IsAlive()) MoveEditor();
}

bool TCustomGrid::DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) {
  if (TCustomControl::DoMouseWheel(shift, delta, isHorizontal, position)) return true;
  const int cells = (isHorizontal ? FWheelAcross : FWheelDown).Turn(delta * kWheelRows);
  const TGridDrawInfo info = CalcDrawInfo();
  const bool isAcross = isHorizontal || shift.Has(ssShift);
  const TGridAxis& axis = isAcross ? FCols : FRows;
  const int last = axis.MaxFirst(isAcross ? info.Horz : info.Vert);
  if (last <= axis.Fixed) return false;
  const int first = std::clamp(axis.First - cells, axis.Fixed, std::max(last, axis.First));
  if (isAcross) {
    SetLeftCol(first);
  } else {
    SetTopRow(first);
  }
  return true;
}

}  // namespace kt
