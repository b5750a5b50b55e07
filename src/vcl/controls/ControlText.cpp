#include "kt/vcl/controls/ControlText.h"

#include "kt/vcl/controls/Control.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/DrawText.h"
#include "kt/vcl/graphics/LegibleColor.h"
#include "kt/vcl/graphics/QtColor.h"

#include <QPalette>

#include <cstdlib>

namespace kt {

namespace {

/// Of 255.
constexpr int kHardlyShows = 50;

}  // namespace

quint32 TextFlags(const TControl& control, TAlignment alignment) {
  const quint32 reading = control.UseRightToLeftReading() ? quint32{DT_RTLREADING} : 0;
  if (alignment == taCenter) return reading | DT_CENTER;
  const bool isRight = (alignment == taRightJustify) != control.UseRightToLeftAlignment();
  return reading | quint32{isRight ? DT_RIGHT : DT_LEFT};
}

QColor TextColorOn(const QColor& ground, TColor text, const QPalette& palette) {
  const QColor color = QtColor(LegibleColor(text, ground), palette);
  const int below = qGray(ground.rgb());
  const bool shows = std::abs(qGray(color.rgb()) - below) >= kHardlyShows;
  if (!IsSystemColor(text) || text == clGrayText || shows) return color;
  return below < 128 ? Qt::white : Qt::black;
}

void DrawControlText(TCanvas& canvas, TControl& control, const QString& text, QRect rect, quint32 flags,
                     TColor ground) {
  canvas.SetFont(&control.GetFont());
  const TColor color = control.IsEnabled() ? control.GetFont().GetColor() : clGrayText;
  canvas.GetFont().SetColor(ColorOf(TextColorOn(canvas.RealColor(ground), color, canvas.GetPalette())));
  DrawText(canvas, text, rect, flags);
}

}  // namespace kt
