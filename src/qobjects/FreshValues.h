#pragma once

#include <QMetaObject>
#include <QVariant>

#include <optional>
#include <vector>

namespace kt {

/// What the properties of a new object of a class are.
class TFreshValues {
 public:
  explicit TFreshValues(std::vector<std::optional<QVariant>> values) : FValues(std::move(values)) {}

  /// By the index of the property. Not for references to objects, which went with the new object.
  bool Has(int index) const { return FValues[static_cast<size_t>(index)].has_value(); }
  const QVariant& Value(int index) const { return *FValues[static_cast<size_t>(index)]; }

 private:
  std::vector<std::optional<QVariant>> FValues;
};

/// The values of a new object of just that class; null when none can be made, or while one is being made. The object is
/// made when this is asked first, and destroyed at once.
const TFreshValues* FreshValuesFor(const QMetaObject& meta);

}  // namespace kt
