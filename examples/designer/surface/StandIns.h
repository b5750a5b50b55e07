#pragma once

#include "kt/rtl/objects/Component.h"

#include <QRect>

#include <optional>

namespace designer {

/// Components of classes that are not registered: they live on as they were in the file, and show as boxes.

bool IsStandIn(const kt::TComponent& component);
/// Whether the file has the component on one of these.
bool IsOnStandIn(const kt::TComponent& component);
/// Where the file places the component on what is around it; the size is empty where the file says none. Nothing when
/// it says no place.
std::optional<QRect> StandInBounds(const kt::TComponent& component);

}  // namespace designer
