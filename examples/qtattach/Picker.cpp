#include "Picker.h"

#include <QApplication>
#include <QMouseEvent>

TPicker::TPicker(QWidget* own) : FOwn(own) { qApp->installEventFilter(this); }

bool TPicker::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonPress || !watched->isWidgetType()) return false;
  const auto* press = static_cast<QMouseEvent*>(event);
  if (press->modifiers() != (Qt::ControlModifier | Qt::ShiftModifier)) return false;
  QWidget* widget = QApplication::widgetAt(press->globalPosition().toPoint());
  if (!widget || (FOwn && widget->window() == FOwn)) return false;
  OnPick(*widget);
  return true;
}
