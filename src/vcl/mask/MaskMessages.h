#pragma once

#include <QLatin1StringView>

/// The texts of the exceptions of masked editing.
namespace kt {

/// For the user, who can still take the change back.
inline constexpr QLatin1StringView SMaskEditErr{"Invalid input value.  Use escape key to abandon changes"};
/// For where there is nobody to press a key.
inline constexpr QLatin1StringView SMaskErr{"Invalid input value"};

}  // namespace kt
