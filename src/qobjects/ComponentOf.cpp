#include "kt/qobjects/ComponentOf.h"

#include "kt/qobjects/FreshValues.h"
#include "kt/qobjects/QObjectClasses.h"
#include "kt/qobjects/QObjectComponent.h"
#include "kt/qobjects/QObjectRegistry.h"

#include <QCoreApplication>
#include <QThread>

namespace kt {

namespace {

/// Without an application object the first thread that asks is the one of the user interface.
bool IsUserInterfaceThread() {
  const QCoreApplication* application = QCoreApplication::instance();
  return !application || application->thread() == QThread::currentThread();
}

}  // namespace

TComponent* ComponentOf(QObject* object) {
  return object && IsUserInterfaceThread() ? QObjectRegistry().ComponentFor(*object) : nullptr;
}

QObject* ObjectOf(TComponent* component) {
  const auto* known = dynamic_cast<TQObjectComponent*>(component);
  return known ? known->FindObject() : nullptr;
}

bool ResetProperty(TComponent* component, QStringView name) {
  QObject* object = ObjectOf(component);
  if (!object) return false;
  const QMetaObject* meta = object->metaObject();
  const int index = FindPublishedProperty(*meta, name);
  if (index < 0) return false;
  const QMetaProperty property = meta->property(index);
  if (property.isResettable()) return property.reset(object);
  const TFreshValues* fresh = property.isWritable() ? FreshValuesFor(*meta) : nullptr;
  return fresh && fresh->Has(index) && property.write(object, fresh->Value(index));
}

}  // namespace kt
