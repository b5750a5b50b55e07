#pragma once

#include "kt/rtl/objects/Component.h"

#include <QRect>

#include <optional>

namespace designer {

/// Where a component stands on what is around it, of those that can be moved and sized: a control, or what stands for
/// one of an unknown class that the file gives a place. Nothing for all others.
std::optional<QRect> BoundsOf(kt::TComponent& component);
/// For components that BoundsOf() answers a place for; constraints of a control have the last word.
void SetBoundsOf(kt::TComponent& component, const QRect& bounds);

}  // namespace designer
