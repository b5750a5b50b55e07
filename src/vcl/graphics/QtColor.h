#pragma once

#include "kt/vcl/graphics/Color.h"

#include <QColor>

class QPalette;

namespace kt {

/// What a colour is on the screen. System colours come from the active group of `palette`, so a dark palette gives dark
/// ones; pairs that belong together (clWindow and clWindowText, clHighlight and clHighlightText, ...) come from roles
/// that belong together. clNone is transparent, clDefault the colour of text on windows.
QColor QtColor(TColor color, const QPalette& palette);
/// As above with the application's palette; with Qt's own where there is no application object.
QColor QtColor(TColor color);
/// The plain colour that a colour of Qt's is nearest to; its transparency is lost.
TColor ColorOf(const QColor& color);
/// The plain colour that a system colour stands for at the moment; others are answered as they are.
TColor ColorToRGB(TColor color);

}  // namespace kt
