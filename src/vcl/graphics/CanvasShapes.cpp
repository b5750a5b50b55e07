#include "kt/vcl/graphics/Canvas.h"

#include <QPainter>
#include <QPen>

#include <cstdlib>
#include <iterator>

namespace kt {
namespace {

constexpr Qt::BrushStyle kBrushStyles[] = {Qt::SolidPattern, Qt::NoBrush,      Qt::HorPattern,   Qt::VerPattern,
                                           Qt::FDiagPattern, Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};

constexpr Qt::PenStyle kPenStyles[] = {Qt::SolidLine,      Qt::DashLine, Qt::DotLine,  Qt::DashDotLine,
                                       Qt::DashDotDotLine, Qt::NoPen,    Qt::SolidLine};

constexpr QPainter::CompositionMode kPenModes[] = {
    QPainter::RasterOp_ClearDestination,            // pmBlack
    QPainter::RasterOp_SetDestination,              // pmWhite
    QPainter::CompositionMode_Destination,          // pmNop
    QPainter::RasterOp_NotDestination,              // pmNot
    QPainter::CompositionMode_SourceOver,           // pmCopy
    QPainter::RasterOp_NotSource,                   // pmNotCopy
    QPainter::RasterOp_SourceOrNotDestination,      // pmMergePenNot
    QPainter::RasterOp_SourceAndNotDestination,     // pmMaskPenNot
    QPainter::RasterOp_NotSourceOrDestination,      // pmMergeNotPen
    QPainter::RasterOp_NotSourceAndDestination,     // pmMaskNotPen
    QPainter::RasterOp_SourceOrDestination,         // pmMerge
    QPainter::RasterOp_NotSourceAndNotDestination,  // pmNotMerge
    QPainter::RasterOp_SourceAndDestination,        // pmMask
    QPainter::RasterOp_NotSourceOrNotDestination,   // pmNotMask
    QPainter::RasterOp_SourceXorDestination,        // pmXor
    QPainter::RasterOp_NotSourceXorDestination,     // pmNotXor
};
static_assert(std::size(kBrushStyles) == bsDiagCross + 1);
static_assert(std::size(kPenStyles) == psInsideFrame + 1);
static_assert(std::size(kPenModes) == pmNotXor + 1);

/// The last pixel of a line that leaves out `end`.
QPoint LastPixel(QPoint start, QPoint end) {
  const QPoint way = end - start;
  const int length = std::max(std::abs(way.x()), std::abs(way.y()));
  if (length == 0) return end;
  const auto shortened = [&](int distance) { return qRound(double(distance) * (length - 1) / length); };
  return start + QPoint(shortened(way.x()), shortened(way.y()));
}

}  // namespace

QPen TCanvas::PenForLines() const {
  QPen pen(RealColor(FPen->GetColor()), std::max(FPen->GetWidth(), 1), kPenStyles[FPen->GetStyle()]);
  pen.setCapStyle(FPen->GetWidth() > 1 ? Qt::RoundCap : Qt::SquareCap);
  pen.setJoinStyle(FPen->GetWidth() > 1 ? Qt::RoundJoin : Qt::MiterJoin);
  return pen;
}

QBrush TCanvas::BrushForAreas() const {
  return FBrush->GetColor() == clNone ? QBrush()
                                      : QBrush(RealColor(FBrush->GetColor()), kBrushStyles[FBrush->GetStyle()]);
}

/// Draws with the pen, in its mode.
template <class F>
void TCanvas::DrawLines(F&& draw) {
  QPainter& painter = Painter();
  const bool isPlain = FPen->GetMode() == pmCopy;
  painter.setPen(PenForLines());
  if (!isPlain) painter.setCompositionMode(kPenModes[FPen->GetMode()]);
  draw(painter);
  if (!isPlain) painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  Drawn();
}

/// Fills with the brush, then outlines with the pen; each in its own mode.
template <class F>
void TCanvas::DrawArea(F&& draw) {
  QPainter& painter = Painter();
  const QBrush brush = BrushForAreas();
  if (FPen->GetMode() != pmCopy && brush.style() != Qt::NoBrush) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    draw(painter);
  }
  painter.setBrush(FPen->GetMode() == pmCopy ? brush : QBrush());
  DrawLines(draw);
  painter.setBrush(Qt::NoBrush);
}

void TCanvas::LineTo(int x, int y) {
  const QPoint start = FPenPos;
  FPenPos = {x, y};
  if (start == FPenPos) return;
  DrawLines([&](QPainter& painter) { painter.drawLine(start, LastPixel(start, FPenPos)); });
}

void TCanvas::Polyline(std::span<const QPoint> points) {
  DrawLines([&](QPainter& painter) { painter.drawPolyline(points.data(), static_cast<int>(points.size())); });
}

void TCanvas::Polygon(std::span<const QPoint> points) {
  DrawArea([&](QPainter& painter) { painter.drawPolygon(points.data(), static_cast<int>(points.size())); });
}

void TCanvas::Rectangle(const QRect& rect) {
  if (rect.isEmpty()) return;
  DrawArea([&](QPainter& painter) { painter.drawRect(rect.adjusted(0, 0, -1, -1)); });
}

void TCanvas::RoundRect(const QRect& rect, int width, int height) {
  if (rect.isEmpty()) return;
  DrawArea([&](QPainter& painter) { painter.drawRoundedRect(rect.adjusted(0, 0, -1, -1), width / 2.0, height / 2.0); });
}

void TCanvas::Ellipse(const QRect& rect) {
  if (rect.isEmpty()) return;
  DrawArea([&](QPainter& painter) { painter.drawEllipse(rect.adjusted(0, 0, -1, -1)); });
}

void TCanvas::FillRect(const QRect& rect) {
  QPainter& painter = Usable();
  // Qt takes a rectangle of negative size for one that is turned round.
  if (rect.isEmpty()) return;
  if (FBrush->GetStyle() == bsSolid && FBrush->GetColor() != clNone) {
    painter.fillRect(rect, RealColor(FBrush->GetColor()));
  } else {
    painter.fillRect(rect, BrushForAreas());
  }
  Drawn();
}

void TCanvas::FrameRect(const QRect& rect) {
  if (rect.isEmpty() || FBrush->GetColor() == clNone) return;
  QPainter& painter = Usable();
  const QColor color = RealColor(FBrush->GetColor());
  painter.fillRect(rect.left(), rect.top(), rect.width(), 1, color);
  painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, color);
  painter.fillRect(rect.left(), rect.top(), 1, rect.height(), color);
  painter.fillRect(rect.right(), rect.top(), 1, rect.height(), color);
  Drawn();
}

void TCanvas::DrawFocusRect(const QRect& rect) {
  if (rect.isEmpty()) return;
  QPainter& painter = Painter();
  QPen dots(Qt::white, 1, Qt::CustomDashLine, Qt::FlatCap);
  dots.setDashPattern({1, 1});
  painter.setPen(dots);
  painter.setCompositionMode(QPainter::RasterOp_NotDestination);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  Drawn();
}

}  // namespace kt
