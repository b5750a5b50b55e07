#pragma once

#include <QLatin1StringView>

/// The texts of the exceptions of drawing and pictures. Placeholders are those of Format().
namespace kt {

inline constexpr QLatin1StringView SNoCanvasHandle{"Canvas does not allow drawing"};
inline constexpr QLatin1StringView SInvalidBitmap{"Bitmap image is not valid"};
inline constexpr QLatin1StringView SInvalidIcon{"Icon image is not valid"};
inline constexpr QLatin1StringView SChangeIconSize{"Cannot change the size of an icon"};
inline constexpr QLatin1StringView SUnknownExtension{"Unknown picture file extension (.%s)"};

}  // namespace kt
