#pragma once

#include "kt/rtl/conversions/Variant.h"
#include "kt/rtl/typeinfo/PropView.h"

#include <QString>

#include <functional>

namespace kt {

class TObject;
class TPropInfo;

/// How the inspector deals with objects that know their properties themselves. What their getters raise ends nothing:
/// it is shown, or the value counts as missing.

/// The object's own knowledge, or null.
IPropView* PropViewOf(TObject* object);

/// The text of the exception that is being handled.
QString CurrentErrorText();

/// What is shown of a property: as the object says, else what `reflect` makes of it.
QString ViewedText(TObject* object, const TPropInfo& property, const std::function<QString()>& reflect);

/// The raw value. Unassigned where the object knows its properties itself and a getter raises.
Variant RawPropValue(TObject* object, const TPropInfo& property);

/// The ordinal; 0 where the object knows its properties itself and a getter raises.
qint64 RawPropOrdinal(TObject* object, const TPropInfo& property);

/// The object that a property of such an object holds; null where a getter raises.
TObject* ViewedObject(TObject* object, const TPropInfo& property);

}  // namespace kt
