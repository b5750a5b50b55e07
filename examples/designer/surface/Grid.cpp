#include "designer/surface/Grid.h"

namespace designer {

namespace {

constexpr int kHandleSize = 7;

int Middle(int low, int high, bool atLow, bool atHigh) { return atLow ? low : atHigh ? high : (low + high) / 2; }

}  // namespace

int Snapped(int value) {
  const int shifted = value + kGridStep / 2;
  const int rest = ((shifted % kGridStep) + kGridStep) % kGridStep;
  return shifted - rest;
}

QPoint Snapped(QPoint point) { return {Snapped(point.x()), Snapped(point.y())}; }

QRect HandleRect(const QRect& around, const THandle& handle) {
  const QPoint middle(Middle(around.left(), around.right(), handle.MovesLeft, handle.MovesRight),
                      Middle(around.top(), around.bottom(), handle.MovesTop, handle.MovesBottom));
  return {middle - QPoint(kHandleSize / 2, kHandleSize / 2), QSize(kHandleSize, kHandleSize)};
}

Qt::CursorShape HandleCursor(const THandle& handle) {
  const bool isAcross = handle.MovesLeft || handle.MovesRight;
  const bool isDown = handle.MovesTop || handle.MovesBottom;
  if (isAcross && isDown) return handle.MovesLeft == handle.MovesTop ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
  return isAcross ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

}  // namespace designer
