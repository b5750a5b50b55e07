#pragma once

#include "kt/rtl/typeinfo/PropPath.h"

#include <QString>

namespace kt {
class TComponent;
}

namespace ktform {

/// Gives a published property the value that a text stands for. Numbers are written as in form files, whatever the
/// locale: "1.5", "$FF"; a name that is registered for the integer type (a colour) counts, and so do the names of
/// enumerations and sets, of components below `root`, and of the published methods of `root`; "nil" or nothing empties
/// a reference or an event. Raises EPropertyConvertError, EConvertError or ERangeError for a value that does not fit,
/// and EPropReadOnly.
void SetPublishedValue(kt::TComponent* root, const kt::TPropTarget& target, const QString& value);

}  // namespace ktform
