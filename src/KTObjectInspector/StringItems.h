#pragma once

#include "kt/KTObjectInspector/InspectorTypes.h"
#include "kt/rtl/objects/ObjectRef.h"

#include <vector>

namespace kt {

class TKTItemProperty;

/// Adds an item for each line of the first of `lists` (of TStrings, one for each inspected object) below the property
/// that they belong to. What is written to such an item goes into the line of that number, or into the value of that
/// name, of each list.
void BuildTStringsItemProperties(TKTItemProperty& item, const std::vector<TObjectRef>& lists,
                                 TInplaceTStringsOptions options, const QString& format);

/// Whether an item is one of these, or stands for a part of the name of one.
bool IsStringItem(const TKTItemProperty& item);

}  // namespace kt
