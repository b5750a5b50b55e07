#pragma once

/// Qt's own objects among components: ComponentOf() and what goes with it.
#include "kt/qobjects/ComponentOf.h"
#include "kt/qobjects/QObjectFactories.h"
