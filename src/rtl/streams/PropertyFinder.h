#pragma once

#include "kt/rtl/streams/FormLayout.h"

#include <algorithm>
#include <span>
#include <vector>

namespace kt {

/// Finds the properties of one object by their keys.
class TPropertyFinder {
 public:
  explicit TPropertyFinder(std::span<const TPropertyPlace> properties) {
    FSorted.reserve(properties.size());
    for (const TPropertyPlace& property : properties) FSorted.push_back(&property);
    std::ranges::sort(FSorted, {}, KeyOf);
  }

  /// Null when the object has no such property.
  const TPropertyPlace* Find(const TPropertyKey& key) const {
    const auto found = std::ranges::lower_bound(FSorted, key, {}, KeyOf);
    return found != FSorted.end() && KeyOf(*found) == key ? *found : nullptr;
  }

 private:
  static const TPropertyKey& KeyOf(const TPropertyPlace* property) { return property->Key; }

  std::vector<const TPropertyPlace*> FSorted;
};

}  // namespace kt
