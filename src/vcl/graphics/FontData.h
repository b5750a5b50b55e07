#pragma once

#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/graphics/FontTypes.h"

#include <QSharedData>
#include <QSharedDataPointer>
#include <QString>

namespace kt {

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

  friend bool operator==(const TFontData& a, const TFontData& b);
};
using TFontDataPointer = QSharedDataPointer<TFontData>;

/// What a new font says: one for the whole process.
const TFontDataPointer& DefaultFontData();

}  // namespace kt
