#include "qtinspect/Selection.h"

#include <algorithm>

namespace qtinspect {

std::vector<QObject*> TSelection::Objects() const {
  std::vector<QObject*> objects;
  for (const QPointer<QObject>& object : FObjects) {
    if (object) objects.push_back(object);
  }
  return objects;
}

QObject* TSelection::Main() const {
  const std::vector<QObject*> objects = Objects();
  return objects.empty() ? nullptr : objects.front();
}

bool TSelection::Has(const QObject* object) const {
  return std::any_of(FObjects.begin(), FObjects.end(), [&](const auto& selected) { return selected == object; });
}

void TSelection::Select(const std::vector<QObject*>& objects) {
  for (const QPointer<QObject>& object : FObjects) {
    if (object) object->disconnect(this);
  }
  FObjects.assign(objects.begin(), objects.end());
  // Later: the object is in the middle of its destruction.
  for (QObject* object : objects) {
    connect(
        object, &QObject::destroyed, this, [this] { Tell(); }, Qt::QueuedConnection);
  }
  Tell();
}

void TSelection::Toggle(QObject* object) {
  std::vector<QObject*> objects = Objects();
  if (std::erase(objects, object) == 0) objects.push_back(object);
  Select(objects);
}

void TSelection::Tell() {
  const std::vector<std::function<void()>> listeners = FListeners;
  const QPointer<TSelection> self(this);
  for (const auto& listener : listeners) {
    if (self) listener();
  }
}

}  // namespace qtinspect
