#include "kt/qobjects/FreshValues.h"

#include "kt/qobjects/QObjectFactories.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QMetaProperty>
#include <QObject>

#include <map>
#include <memory>

namespace kt {

namespace {

std::optional<QVariant> FreshValue(const QObject& object, const QMetaProperty& property) {
  if (!property.isReadable()) return std::nullopt;
  QVariant value = property.read(&object);
  const bool isPointer = value.metaType().flags().testFlag(QMetaType::PointerToQObject);
  if (isPointer && *static_cast<QObject* const*>(value.constData())) return std::nullopt;
  return value;
}

std::unique_ptr<const TFreshValues> TakeFreshValues(const QMetaObject& meta) {
  const std::unique_ptr<QObject> object = MakeFreshQObject(meta);
  if (!object) return nullptr;
  std::vector<std::optional<QVariant>> values;
  values.reserve(static_cast<size_t>(meta.propertyCount()));
  for (int i = 0; i < meta.propertyCount(); ++i) values.push_back(FreshValue(*object, meta.property(i)));
  return std::make_unique<const TFreshValues>(std::move(values));
}

}  // namespace

const TFreshValues* FreshValuesFor(const QMetaObject& meta) {
  static std::map<const QMetaObject*, std::unique_ptr<const TFreshValues>> known;
  const auto [entry, isNew] = known.try_emplace(&meta);
  // A constructor or getter that raises leaves the class without defaults, and says so.
  if (isNew) GuardedCall([&, &values = entry->second] { values = TakeFreshValues(meta); });
  return known[&meta].get();
}

}  // namespace kt
