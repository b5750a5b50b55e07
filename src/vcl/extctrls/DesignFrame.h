#pragma once

#include <QRect>

namespace kt {

class TCanvas;

/// Outlines with dashes what would not be seen in a designer.
void DrawDesignFrame(TCanvas& canvas, const QRect& rect);

}  // namespace kt
