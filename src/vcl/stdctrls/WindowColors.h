#pragma once

#include "kt/vcl/graphics/Color.h"

#include <QPalette>

class QWidget;

namespace kt {

/// The palette that a widget has from its surroundings: its parent, or the program.
QPalette PaletteAround(const QWidget& widget);
/// What a widget's palette has to say for a ground and a text of these colours, and nothing more: all else, and colours
/// that a widget has anyway, it keeps from its surroundings and follows when they get another palette. The other system
/// colours are those of the present surroundings; they have to be asked for anew when the widget hears
/// QEvent::PaletteChange. A text that would hardly show on a dark ground is lighter (LegibleColor).
QPalette PaletteOf(const QWidget& widget, TColor ground, TColor text);
/// Whether the widget shows them.
bool HasColors(const QWidget& widget, TColor ground, TColor text);

}  // namespace kt
