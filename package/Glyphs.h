#pragma once

#include <QImage>
#include <QString>

namespace kt {

/// The package's bitmap of that name: MINUSSIGN or PLUSSIGN, the boxes before items that can be collapsed or expanded.
/// Null for any other name. Works without an application object.
QImage PackageBitmap(const QString& name);

}  // namespace kt
