#pragma once

#include <QLatin1StringView>

/// The texts of the object inspector. Placeholders are those of Format().
namespace kt {

inline constexpr QLatin1StringView SNotRealProperty{"Item \"%s\" is not a real property"};
inline constexpr QLatin1StringView SInvalidRealPropValue{"\"%s\" is not a valid %s value: %s"};
/// In place of a value that its getter does not give.
inline constexpr QLatin1StringView SUnreadableValue{"(%s)"};
inline constexpr QLatin1StringView SUnknownError{"unknown error"};
inline constexpr QLatin1StringView SResetCommand{"&Reset to default"};

}  // namespace kt
