#pragma once

#include "kt/vcl/graphics/Color.h"

class QColor;

namespace kt {

/// The colour to draw a text in: `text` itself, or, where that would hardly show on a dark ground, a lighter one of the
/// same hue. Colours that a program gives to texts are mostly chosen for light grounds, and palettes change. System
/// colours change along with the palette and stay as they are, and so does everything on a light ground.
TColor LegibleColor(TColor text, const QColor& ground);

}  // namespace kt
