#pragma once

#include "kt/rtl/objects/Object.h"
#include "kt/rtl/typeinfo/PropInfo.h"

#include <QStringView>

namespace kt {

/// A property of an object, found.
struct TPropTarget {
  TObject* Instance;
  const TPropInfo* Property;
};

/// Follows a path of published properties from `instance`: names joined by dots, each of an object-valued property but
/// the last, and "[n]" behind a collection for its item number n: "Font.Style", "Columns[2].Caption". Raises
/// EPropertyError: "Property %s does not exist" for a name, "Invalid property path" where the path goes on below a
/// plain value, nil, or something that is no collection. Raises EListError for an item that does not exist.
TPropTarget FindPropTarget(TObject* instance, QStringView path);

}  // namespace kt
