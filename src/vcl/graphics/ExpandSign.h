#pragma once

#include "kt/vcl/graphics/Color.h"

#include <QRect>

namespace kt {

class TCanvas;

/// Draws the box with a plus that stands before what can be expanded, or with a minus before what is. Its lines are
/// whole pixels of the screen, all equally thick, whatever the scale; so the box can be a pixel smaller than `place`,
/// a square. The frame lies halfway between the two colours.
void DrawExpandSign(TCanvas& canvas, const QRect& place, bool isExpanded, TColor ground, TColor sign);

}  // namespace kt
