#pragma once

#include <QEvent>
#include <QStringList>

namespace kt {

/// The properties that can have changed when a widget gets an event, for those that no signal tells of.
const QStringList& PropertiesChangedBy(QEvent::Type type);

}  // namespace kt
