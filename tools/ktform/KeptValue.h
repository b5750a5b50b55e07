#pragma once

#include <QString>

namespace kt {
class TComponent;
}

namespace ktform {

/// Changes a property of a component whose class is unknown: one that the form has already, to a value of the same type
/// as it has there (text, number, identifier, set). Throws EPropertyError for a property that the form does not have or
/// whose value is of another kind, and EConvertError for a text that is no number.
void SetKeptValue(kt::TComponent* component, QStringView path, const QString& value);

}  // namespace ktform
