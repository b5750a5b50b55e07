#pragma once

#include <QLatin1StringView>

/// What goes wrong with properties of Qt's objects. Placeholders are those of Format().
namespace kt {

inline constexpr QLatin1StringView SInvalidTextOfType{"'%s' is not a valid value of type %s"};
inline constexpr QLatin1StringView SValueNotTaken{"Property %s of %s does not take the value"};
/// In place of the name of an object that a property points to.
inline constexpr QLatin1StringView SNoReference{"(none)"};
inline constexpr QLatin1StringView SDestroyedReference{"(destroyed)"};
inline constexpr QLatin1StringView SReferenceElsewhere{"(in another thread)"};

}  // namespace kt
