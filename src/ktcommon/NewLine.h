#pragma once

#include <QLatin1StringView>

namespace kt {

/// The line break in texts that the product makes, whatever the platform's is.
inline constexpr QLatin1StringView NewLineString{"\r\n"};

}  // namespace kt
