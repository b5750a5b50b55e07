#pragma once

#include "kt/KTObjectInspector/InspectorTypes.h"

namespace kt {

class TStrings;

/// Adds an item for each line of `lines` below the property that they belong to. What is written to such an item goes
/// into the line of that number, or into the value of that name, of the lists of all inspected objects.
void BuildTStringsItemProperties(TKTItemProperty& item, TStrings& lines, TInplaceTStringsOptions options,
                                 const QString& format);

}  // namespace kt
