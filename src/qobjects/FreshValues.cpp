#include "kt/qobjects/FreshValues.h"

#include "kt/qobjects/QObjectFactories.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <QMetaProperty>
#include <QObject>
#include <QSequentialIterable>

#include <algorithm>
#include <map>
#include <memory>

namespace kt {

namespace {

bool IsPointer(QMetaType type) {
  constexpr QMetaType::TypeFlags pointers = QMetaType::IsPointer | QMetaType::PointerToQObject |
                                            QMetaType::PointerToGadget | QMetaType::TrackingPointerToQObject |
                                            QMetaType::SharedPointerToQObject | QMetaType::WeakPointerToQObject;
  return (type.flags() & pointers) != 0;
}

/// Whether a value points to what goes, or may go, with the new object; lists and maps of such do.
bool LeadsAway(const QVariant& value) {
  const QMetaType type = value.metaType();
  if (type.flags().testFlag(QMetaType::IsPointer) || type.flags().testFlag(QMetaType::PointerToQObject)) {
    return *static_cast<void* const*>(value.constData()) != nullptr;
  }
  if (IsPointer(type)) return true;
  if (type.id() == QMetaType::QVariantList) {
    const QVariantList values = value.toList();
    return std::any_of(values.begin(), values.end(), LeadsAway);
  }
  if (type.id() == QMetaType::QVariantMap) {
    const QVariantMap values = value.toMap();
    return std::any_of(values.begin(), values.end(), LeadsAway);
  }
  if (!value.canConvert<QSequentialIterable>()) return false;
  const auto elements = value.value<QSequentialIterable>();
  return IsPointer(elements.metaContainer().valueMetaType()) && elements.size() > 0;
}

std::optional<QVariant> FreshValue(const QObject& object, const QMetaProperty& property) {
  if (!property.isReadable()) return std::nullopt;
  QVariant value = property.read(&object);
  return LeadsAway(value) ? std::nullopt : std::optional(value);
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
