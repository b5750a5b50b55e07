#include "kt/vcl/graphics/LegibleColor.h"

#include "kt/vcl/graphics/QtColor.h"

#include <QColor>

#include <cmath>
#include <cstdlib>

namespace kt {

namespace {

/// Of 255. Less than kHardly between a text and its ground cannot be read; kWell can.
constexpr int kHardly = 50;
constexpr int kWell = 100;
/// By how much of what is left to white each step goes.
constexpr double kStep = 1.0 / 16;

int BrightnessOf(const QColor& color) { return qGray(color.rgb()); }

QColor Whiter(const QColor& color) {
  const auto mixed = [](int part) { return part + static_cast<int>(std::ceil((255 - part) * kStep)); };
  return {mixed(color.red()), mixed(color.green()), mixed(color.blue())};
}

}  // namespace

TColor LegibleColor(TColor text, const QColor& ground) {
  // clNone and clDefault stand for no colour of their own.
  const bool isPlain = !IsSystemColor(text) && text <= clWhite;
  const int below = BrightnessOf(ground);
  if (!isPlain || below >= 128) return text;
  QColor color = QtColor(text);
  if (std::abs(BrightnessOf(color) - below) >= kHardly) return text;
  // Mixed with white rather than made more brilliant, which would shout.
  while (BrightnessOf(color) < below + kWell) color = Whiter(color);
  return ColorOf(color);
}

}  // namespace kt
