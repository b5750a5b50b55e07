#pragma once

#include <QString>

namespace kt {
class TComponent;
}

namespace ktform {

/// True when the form has a property of that path which the component itself does not know.
bool HasKeptValue(kt::TComponent* component, QStringView path);

/// Changes a property of a component that its class does not know: one that the form has already, to a value of the
/// same type as it has there (text, number of whatever kind, identifier, set of names or numbers). An amount of money
/// is given in its own unit, a date in days. Throws EPropertyError for a property that the form does not have or whose
/// value is of another kind, EConvertError for a text that is no number, and ERangeError for one that the type cannot
/// hold.
void SetKeptValue(kt::TComponent* component, QStringView path, const QString& value);

}  // namespace ktform
