#include "qtinspect/Outline.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QScopedValueRollback>
#include <QWidget>

#include <algorithm>

namespace qtinspect {

namespace {

constexpr int kThickness = 2;

/// A place in a widget; no widget for what has none.
struct TPlace {
  QWidget* Widget;
  QRect Rect;
};

TPlace PlaceOf(QObject* object) {
  if (auto* widget = qobject_cast<QWidget*>(object)) return {widget, widget->rect()};
  if (auto* layout = qobject_cast<QLayout*>(object)) return {layout->parentWidget(), layout->geometry()};
  return {nullptr, {}};
}

bool IsWithin(const QWidget& inner, const QWidget* outer) {
  return outer && (&inner == outer || outer->isAncestorOf(&inner)) && inner.window() == outer->window();
}

}  // namespace

void TOutline::Frame(const std::vector<QObject*>& objects) {
  if (objects == Framed()) return;
  Update();
  qApp->removeEventFilter(this);
  FObjects.assign(objects.begin(), objects.end());
  if (!objects.empty()) qApp->installEventFilter(this);
  Update();
}

std::vector<QObject*> TOutline::Framed() const {
  std::vector<QObject*> objects;
  for (const QPointer<QObject>& object : FObjects) {
    if (object) objects.push_back(object);
  }
  return objects;
}

void TOutline::Update() const {
  for (QObject* object : Framed()) {
    const TPlace place = PlaceOf(object);
    if (place.Widget) place.Widget->update();
    // Asking a widget for an update does not ask those on it.
    if (place.Widget) {
      for (QWidget* inner : place.Widget->findChildren<QWidget*>()) inner->update();
    }
  }
}

/// Has the widget paint as ever, and what filters see, and then draws over it.
bool TOutline::eventFilter(QObject* watched, QEvent* event) {
  if (FIsPainting || event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
  auto* widget = static_cast<QWidget*>(watched);
  if (!IsConcerned(*widget)) return false;
  const QPointer<QWidget> painted(widget);
  const QPointer<TOutline> self(this);
  {
    const QScopedValueRollback<bool> painting(FIsPainting, true);
    QCoreApplication::sendEvent(widget, event);
    if (!self) return true;
  }
  if (painted) Draw(*painted);
  return true;
}

bool TOutline::IsConcerned(const QWidget& painted) const {
  return std::any_of(FObjects.begin(), FObjects.end(),
                     [&](QObject* object) { return object && IsWithin(painted, PlaceOf(object).Widget); });
}

void TOutline::Draw(QWidget& painted) const {
  QPainter painter(&painted);
  for (QObject* object : Framed()) {
    const TPlace place = PlaceOf(object);
    if (!IsWithin(painted, place.Widget)) continue;
    const QRect rect = place.Rect.translated(painted.mapFrom(place.Widget, QPoint()));
    painter.setPen(QPen(FColor, kThickness, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(rect).adjusted(1, 1, -1, -1));
  }
}

}  // namespace qtinspect
