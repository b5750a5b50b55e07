// What the mouse does in TCustomGrid.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/grids/CustomGrid.h"

#include <QTimer>

#include <algorithm>

namespace kt {

namespace {

/// How often a grid scrolls while the mouse is held outside of it, in milliseconds.
constexpr int kScrollInterval = 60;
constexpr int kMouseLineWidth = 2;

}  // namespace

void TCustomGrid::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TLifeWatch self(this);
  if (!HasState(csDesigning) && CanFocus() && HandleAllocated()) {
    if (!IsActiveControl() || !Focused()) SetFocus();
    if (!self.IsAlive()) return;
    if (!IsActiveControl()) return SetMouseCapture(false);
  }
  if (button == mbLeft && !shift.Has(ssDouble)) {
    PressCell(shift, x, y);
    if (!self.IsAlive()) return;
    if (FGridState == gsColSizing || FGridState == gsRowSizing) return;
  }
  TCustomControl::MouseDown(button, shift, x, y);
}

void TCustomGrid::PressCell(TShiftState shift, int x, int y) {
  TGridDrawInfo fixedInfo = CalcFixedInfo();
  CalcSizingState(x, y, FGridState, FMouse.Index, FMouse.Position, FMouse.Offset, fixedInfo);
  if (FGridState != gsNormal) return InvalidateMouseLine();
  const TGridCoord hit = MouseCoord(x, y);
  if (hit.X < 0) return;
  if (hit.X >= FCols.Fixed && hit.Y >= FRows.Fixed) return PressInnerCell(shift, hit);
  if (hit.X < FCols.Fixed && hit.Y >= FRows.Fixed && FOptions.Has(goRowMoving)) return BeginMoving(gsRowMoving, hit.Y);
  if (hit.Y < FRows.Fixed && hit.X >= FCols.Fixed && FOptions.Has(goColMoving)) return BeginMoving(gsColMoving, hit.X);
}

void TCustomGrid::PressInnerCell(TShiftState shift, TGridCoord hit) {
  if (FOptions.Has(goEditing)) {
    const TLifeWatch self(this);
    if (hit == FCurrent) {
      ShowEditor();
    } else {
      MoveCurrent(hit.X, hit.Y, true, true);
      if (self.IsAlive()) UpdateEdit();
    }
    if (self.IsAlive()) Click();
    return;
  }
  FGridState = gsSelecting;
  StartScrollTimer();
  if (shift.Has(ssShift)) {
    MoveAnchor(hit);
  } else {
    MoveCurrent(hit.X, hit.Y, true, true);
  }
}

void TCustomGrid::BeginMoving(TGridState state, int index) {
  FGridState = state;
  FMouse = {index, index, 0};
  StartScrollTimer();
  InvalidateMouseLine();
}

void TCustomGrid::MoveAnchor(TGridCoord cell) {
  if (!FOptions.Has(goRangeSelect)) return MoveCurrent(cell.X, cell.Y, true, true);
  const TGridRect oldSelection = GetSelection();
  FAnchor = cell;
  if (FOptions.Has(goRowSelect)) FAnchor.X = FCols.Count - 1;
  const TLifeWatch self(this);
  ClampInView(cell);
  if (self.IsAlive()) SelectionMoved(oldSelection);
}

TGridCoord TCustomGrid::NearestCell(int x, int y) const {
  const TGridDrawInfo info = CalcDrawInfo();
  if (UseRightToLeftAlignment()) x = info.Horz.GridExtent - 1 - x;
  const auto nearest = [](const TGridAxis& axis, const TGridAxisDrawInfo& axisInfo, int position) {
    if (position < axisInfo.FixedBoundary) return std::max(axis.First - (position < 0 ? 1 : 0), axis.Fixed);
    if (position >= axisInfo.GridExtent) return std::min(axisInfo.LastFullVisibleCell + 1, axis.Count - 1);
    const int cell = axis.CellAt(axisInfo, position);
    return cell < 0 ? axis.Count - 1 : cell;
  };
  return {nearest(FCols, info.Horz, x), nearest(FRows, info.Vert, y)};
}

void TCustomGrid::MouseMove(TShiftState shift, int x, int y) {
  const TLifeWatch self(this);
  FMousePoint = {x, y};
  switch (FGridState) {
    case gsNormal:
      UpdateCursorAt(x, y);
      break;
    case gsSelecting: {
      const TGridCoord cell = NearestCell(x, y);
      if (cell != FAnchor) MoveAnchor(cell);
      break;
    }
    case gsColSizing:
    case gsRowSizing:
      DragEdge(x, y);
      break;
    case gsColMoving:
    case gsRowMoving:
      DragTo(x, y);
      break;
  }
  if (self.IsAlive()) TCustomControl::MouseMove(shift, x, y);
}

void TCustomGrid::DragEdge(int x, int y) {
  const int position = (FGridState == gsRowSizing ? y : FromStart(x)) + FMouse.Offset;
  if (position == FMouse.Position) return;
  InvalidateMouseLine();
  FMouse.Position = position;
  InvalidateMouseLine();
}

void TCustomGrid::DragTo(int x, int y) {
  const TGridCoord cell = NearestCell(x, y);
  const int target = FGridState == gsRowMoving ? cell.Y : cell.X;
  if (target == FMouse.Position) return;
  InvalidateMouseLine();
  FMouse.Position = target;
  const TLifeWatch self(this);
  ClampInView(FGridState == gsRowMoving ? TGridCoord{FCols.First, target} : TGridCoord{target, FRows.First});
  if (self.IsAlive()) InvalidateMouseLine();
}

int TCustomGrid::FromStart(int x) const { return UseRightToLeftAlignment() ? GetClientWidth() - 1 - x : x; }

void TCustomGrid::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  // Handlers of what happens here may free the grid.
  const TLifeWatch self(this);
  const TGridState state = std::exchange(FGridState, gsNormal);
  FScrollTimer.reset();
  if (state != gsNormal) Invalidate();
  switch (state) {
    case gsSelecting:
      UpdateEdit();
      if (self.IsAlive()) Click();
      break;
    case gsColSizing:
    case gsRowSizing:
      FGridState = state;
      DragEdge(x, y);
      FGridState = gsNormal;
      EndSizing(state);
      break;
    case gsColMoving:
      if (FMouse.Index != FMouse.Position) MoveColumn(FMouse.Index, FMouse.Position);
      if (self.IsAlive()) UpdateEdit();
      break;
    case gsRowMoving:
      if (FMouse.Index != FMouse.Position) MoveRow(FMouse.Index, FMouse.Position);
      if (self.IsAlive()) UpdateEdit();
      break;
    case gsNormal:
      UpdateEdit();
      break;
  }
  if (self.IsAlive()) TCustomControl::MouseUp(button, shift, x, y);
}

void TCustomGrid::EndSizing(TGridState state) {
  const TGridAxis& axis = state == gsColSizing ? FCols : FRows;
  const TGridDrawInfo info = CalcDrawInfo();
  if (FMouse.Index >= axis.Count) return;
  int start = 0;
  int end = 0;
  if (!axis.CellSpan(state == gsColSizing ? info.Horz : info.Vert, FMouse.Index, start, end)) return;
  const int size = FMouse.Position - start;
  if (size <= 1) return;
  if (state == gsColSizing) {
    SetColWidths(FMouse.Index, size);
  } else {
    SetRowHeights(FMouse.Index, size);
  }
}

void TCustomGrid::CancelMouse() {
  if (FGridState == gsNormal) return;
  FGridState = gsNormal;
  FScrollTimer.reset();
  SetMouseCapture(false);
  Invalidate();
}

void TCustomGrid::UpdateCursorAt(int x, int y) {
  if (!HandleAllocated()) return;
  TGridState state = gsNormal;
  TMouseWork work;
  TGridDrawInfo fixedInfo = CalcFixedInfo();
  CalcSizingState(x, y, state, work.Index, work.Position, work.Offset, fixedInfo);
  ShowCursor(state == gsColSizing ? crHSplit : state == gsRowSizing ? crVSplit : GetCursor());
}

void TCustomGrid::StartScrollTimer() {
  FScrollTimer = std::make_unique<QTimer>();
  QObject::connect(FScrollTimer.get(), &QTimer::timeout, FScrollTimer.get(),
                   [this] { GuardedCall([this] { ScrollByTimer(); }); });
  FScrollTimer->start(kScrollInterval);
}

void TCustomGrid::ScrollByTimer() {
  if (FGridState == gsNormal || GetClientRect().contains(FMousePoint)) return;
  MouseMove({}, FMousePoint.x(), FMousePoint.y());
}

void TCustomGrid::InvalidateMouseLine() { InvalidateRect(MouseLineRect()); }

/// Where a size or place that is being dragged is shown; empty when it is out of view.
QRect TCustomGrid::MouseLineRect() const {
  const TGridDrawInfo info = CalcDrawInfo();
  const bool isColumn = FGridState == gsColSizing || FGridState == gsColMoving;
  int position = FMouse.Position;
  if (FGridState == gsColMoving || FGridState == gsRowMoving) {
    int start = 0;
    int end = 0;
    const TGridAxis& axis = isColumn ? FCols : FRows;
    if (!axis.CellSpan(isColumn ? info.Horz : info.Vert, FMouse.Position, start, end)) return {};
    position = FMouse.Position > FMouse.Index ? end : start;
  }
  if (!isColumn) return {0, position - 1, GetClientWidth(), kMouseLineWidth};
  const int x = UseRightToLeftAlignment() ? GetClientWidth() - position - 1 : position - 1;
  return {x, 0, kMouseLineWidth, GetClientHeight()};
}

}  // namespace kt
