// What the surface shows over the live form.
#include "designer/palette/ClassIcons.h"
#include "designer/surface/Bounds.h"
#include "designer/surface/Surface.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QPainter>

namespace designer {

using namespace kt;

namespace {

/// A tile of the grid: a dot at its top left corner.
QPixmap GridTile(const QColor& color, qreal ratio) {
  const int size = qRound(kGridStep * ratio);
  QPixmap tile(size, size);
  tile.fill(Qt::transparent);
  QPainter painter(&tile);
  painter.fillRect(0, 0, qMax(qRound(ratio), 1), qMax(qRound(ratio), 1), color);
  painter.end();
  tile.setDevicePixelRatio(static_cast<qreal>(size) / kGridStep);
  return tile;
}

/// Shows on whatever colour a container has.
QColor DotColor(const QWidget& container) {
  const bool isDark = container.palette().color(QPalette::Window).lightness() < 128;
  return isDark ? QColor(255, 255, 255, 110) : QColor(0, 0, 0, 110);
}

}  // namespace

void TSurface::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  GuardedCall([&] {
    PaintGrid(painter);
    PaintStandIns(painter);
    PaintIcons(painter);
    PaintSelection(painter);
    if (!FDrag || FDrag->Frame().isEmpty()) return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(FDrag->Frame().adjusted(0, 0, -1, -1));
  });
}

void TSurface::PaintGrid(QPainter& painter) {
  const TPlaces places = Places();
  for (TWinControl* container : places.Containers()) {
    const QRect client = places.ClientOf(*container);
    painter.setClipRegion(places.Ground(*container));
    painter.drawTiledPixmap(client, GridTile(DotColor(*container->GetHandle()), devicePixelRatioF()));
  }
  painter.setClipping(false);
}

/// Boxes with what is known of them.
void TSurface::PaintStandIns(QPainter& painter) {
  const TPlaces places = Places();
  for (TComponent* component : places.StandIns()) {
    const QRect box = places.RectOf(*component);
    painter.fillRect(box, palette().color(QPalette::Base));
    painter.fillRect(box, QBrush(palette().color(QPalette::Mid), Qt::BDiagPattern));
    painter.setPen(QPen(palette().color(QPalette::Dark), 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box.adjusted(0, 0, -1, -1));
    const QRect inside = box.adjusted(4, 2, -4, -2);
    const QString title = painter.fontMetrics().elidedText(TitleOf(*component), Qt::ElideRight, inside.width());
    painter.fillRect(painter.fontMetrics().boundingRect(inside, Qt::AlignLeft | Qt::AlignTop, title) & inside,
                     palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignTop, title);
  }
}

void TSurface::PaintIcons(QPainter& painter) {
  const TPlaces places = Places();
  QFont small = font();
  small.setPointSizeF(qMax(font().pointSizeF() * 0.85, 6.0));
  if (font().pixelSize() > 0) small.setPixelSize(qMax(font().pixelSize() - 1, 8));
  painter.setFont(small);
  const QWidget& ground = *FSession.Form().GetHandle();
  for (TComponent* component : places.Icons()) {
    const QRect box = places.RectOf(*component);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Button));
    painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    ComponentIcon(*component).paint(&painter, box.adjusted(3, 3, -3, -3));
    const bool isDark = ground.palette().color(QPalette::Window).lightness() < 128;
    painter.setPen(isDark ? Qt::white : Qt::black);
    const QString name = NameOf(*component);
    const QRect below(box.center().x() - 100, box.bottom() + 2, 201, painter.fontMetrics().height());
    painter.drawText(below, Qt::AlignHCenter | Qt::AlignTop, name);
  }
}

void TSurface::PaintSelection(QPainter& painter) {
  const TPlaces places = Places();
  const std::vector<TComponent*> selected = FSession.Selected();
  const QColor mark = palette().color(QPalette::Highlight);
  for (TComponent* component : selected) {
    if (!places.IsShown(*component)) continue;
    const QRect around = places.RectOf(*component);
    painter.setPen(QPen(mark, hasFocus() ? 2 : 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(around.adjusted(-1, -1, 0, 0));
    if (BoundsOf(*component)) PaintHandles(painter, *component);
  }
}

void TSurface::PaintHandles(QPainter& painter, TComponent& component) {
  const QRect around = Places().RectOf(component);
  const bool isOne = FSession.Selected().size() == 1;
  const QColor mark = palette().color(QPalette::Highlight);
  // Of several, the first one stands out.
  const bool isMain = &component == FSession.Main();
  painter.setPen(QPen(isMain ? mark : palette().color(QPalette::Dark), 1));
  for (const THandle& handle : kHandles) {
    // What cannot be dragged is hollow.
    painter.setBrush(isOne && CanDrag(component, handle) ? mark : palette().color(QPalette::Base));
    painter.drawRect(HandleRect(around, handle).adjusted(0, 0, -1, -1));
  }
}

}  // namespace designer
