#include "kt/vcl/graphics/ExpandSign.h"

#include "kt/vcl/graphics/Canvas.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kt {

namespace {

QColor Halfway(const QColor& a, const QColor& b) {
  const auto mixed = [](int x, int y) { return (x + y) / 2; };
  return {mixed(a.red(), b.red()), mixed(a.green(), b.green()), mixed(a.blue(), b.blue())};
}

}  // namespace

void DrawExpandSign(TCanvas& canvas, const QRect& place, bool isExpanded, TColor ground, TColor sign) {
  QPainter& painter = canvas.Painter();
  QTransform toDevice = painter.deviceTransform();
  // What is turned has no pixels to fit into.
  if (toDevice.type() > QTransform::TxScale) toDevice = QTransform();
  const QTransform fromDevice = toDevice.inverted();
  const auto fill = [&](const QRect& pixels, const QColor& color) {
    painter.fillRect(fromDevice.mapRect(QRectF(pixels)), color);
  };
  const QRectF exact = toDevice.mapRect(QRectF(place));
  const int line = std::max(static_cast<int>(std::floor(toDevice.m11())), 1);
  int side = static_cast<int>(std::round(exact.width()));
  // The sign stands in the very middle.
  if ((side - line) % 2 != 0) --side;
  const QRect box(qRound(exact.left()), qRound(exact.top()), side, side);
  const int middle = (side - line) / 2;
  const int inset = 2 * line;
  const QColor signColor = canvas.RealColor(sign);
  const QColor groundColor = canvas.RealColor(ground);
  fill(box, Halfway(groundColor, signColor));
  fill(box.adjusted(line, line, -line, -line), groundColor);
  fill({box.left() + inset, box.top() + middle, side - 2 * inset, line}, signColor);
  if (!isExpanded) fill({box.left() + middle, box.top() + inset, line, side - 2 * inset}, signColor);
}

}  // namespace kt
