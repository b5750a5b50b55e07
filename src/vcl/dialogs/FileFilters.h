#pragma once

#include <QString>
#include <QStringList>

namespace kt {

/// The kinds of files of "Texts|*.txt;*.text|All|*.*" as Qt writes them: "Texts (*.txt *.text)", "All (*)".
QStringList QtFileFilters(const QString& filter);

}  // namespace kt
