#pragma once

#include <QString>
#include <QStringList>

namespace designer {

/// The form files that come with the program, by the alphabet: from the folder `forms` beside the program, else from
/// that of the sources. Empty when there is neither. Files of that folder that are no forms, as samples of values are
/// not, do not count.
QStringList ShippedForms();
/// The one that is shown first; empty when there is none.
QString FirstForm();

}  // namespace designer
