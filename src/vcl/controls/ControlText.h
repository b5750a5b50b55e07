#pragma once

#include "kt/vcl/controls/ControlTypes.h"
#include "kt/vcl/graphics/Color.h"

#include <QColor>
#include <QRect>
#include <QString>

class QPalette;

namespace kt {

class TCanvas;
class TControl;

/// The flags of DrawText() for a text of a control: where it stands, which side is left, and how it is read.
quint32 TextFlags(const TControl& control, TAlignment alignment);
/// The colour of a text on a ground of some colour: LegibleColor() for the text's own, and black or white in place of a
/// system colour that would hardly show, as those of a dark palette on a light ground of the program's.
QColor TextColorOn(const QColor& ground, TColor text, const QPalette& palette);
/// Draws a text of a control: in the control's font, on a ground of colour `ground`, grey when the control is disabled.
/// `flags` are those of DrawText().
void DrawControlText(TCanvas& canvas, TControl& control, const QString& text, QRect rect, quint32 flags, TColor ground);

}  // namespace kt
