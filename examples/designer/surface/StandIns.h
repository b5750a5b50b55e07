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
/// Changes what the file says of the place or the size.
void SetStandInPlace(kt::TComponent& component, QPoint place);
void SetStandInSize(kt::TComponent& component, QSize size);
/// Whether the file says its size: what it does not say is nobody's to invent, as it may be no control.
bool IsStandInSized(const kt::TComponent& component);
/// Whether the file has it keep to a side of what is around it.
bool IsStandInAligned(const kt::TComponent& component);

}  // namespace designer
