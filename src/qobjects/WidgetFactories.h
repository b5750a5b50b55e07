#pragma once

#include "kt/qobjects/QObjectFactories.h"

#include <utility>
#include <vector>

namespace kt {

/// The factories of the classes of Qt Core, Gui and Widgets that people put into windows.
const std::vector<std::pair<const QMetaObject*, TQObjectFactory>>& QtFactories();

}  // namespace kt
