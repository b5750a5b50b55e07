#pragma once

#include <QLatin1StringView>

/// The texts of the item list editor. Placeholders are those of Format().
namespace kt {

inline constexpr QLatin1StringView SPropertyCaption{"Property"};
inline constexpr QLatin1StringView SValueCaption{"Value"};
inline constexpr QLatin1StringView SPropertyNotFound{"Property not found: %s"};
inline constexpr QLatin1StringView SPropConflict{"Property name is not unique: %s"};
inline constexpr QLatin1StringView SInvalidPropValue{"\"%s\" is not a valid property value: %s"};
inline constexpr QLatin1StringView SDefaultCategoryName{"Miscellaneous"};
inline constexpr QLatin1StringView SDeleteCategoryError{"Cannot delete item, not a category"};

}  // namespace kt
