#include "kt/vcl/graphics/Presence.h"

#include <QApplication>

namespace kt {

bool HasGui() { return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr; }

bool HasWidgets() { return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr; }

}  // namespace kt
