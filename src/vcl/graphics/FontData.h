#pragma once

#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/graphics/FontTypes.h"

#include <QSharedData>
#include <QSharedDataPointer>
#include <QString>

#include <memory>

namespace kt {

class TRealFont;

/// What a font says, shared by all fonts that were copied from one another until one of them differs.
struct TFontData : QSharedData {
  /// See TFont::GetHeight().
  int Height = -11;
  int PixelsPerInch = 96;
  int Orientation = 0;
  TColor Color = clWindowText;
  TFontCharset Charset = DEFAULT_CHARSET;
  TFontPitch Pitch = fpDefault;
  TFontStyles Style;
  QString Name = QStringLiteral("MS Sans Serif");
  /// What it is on the screen, found when something was drawn; it knows for itself whether it still fits.
  mutable std::shared_ptr<TRealFont> Real;

  friend bool operator==(const TFontData& a, const TFontData& b);
};
using TFontDataPointer = QSharedDataPointer<TFontData>;

/// What a new font says: one for the whole process.
const TFontDataPointer& DefaultFontData();

}  // namespace kt
