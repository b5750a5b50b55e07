#pragma once

#include <QLatin1StringView>

/// What goes wrong with properties of Qt's objects. Placeholders are those of Format().
namespace kt {

inline constexpr QLatin1StringView SInvalidTextOfType{"'%s' is not a valid value of type %s"};
inline constexpr QLatin1StringView SValueNotTaken{"Property %s of %s does not take the value"};

}  // namespace kt
