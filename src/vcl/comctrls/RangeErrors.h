#pragma once

#include <QLatin1StringView>

/// The texts of the exceptions of controls with a range.
namespace kt {

/// The class of the control.
inline constexpr QLatin1StringView SPropertyOutOfRange{"%s property out of range"};

}  // namespace kt
