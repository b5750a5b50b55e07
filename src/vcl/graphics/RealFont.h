#pragma once

#include "kt/vcl/graphics/FontTypes.h"

#include <QCache>
#include <QFont>
#include <QFontMetrics>
#include <QStaticText>
#include <QString>

#include <memory>

namespace kt {

class TFont;
struct TFontData;

/// The share of a font that shapes text: all but its colour and direction.
struct TFontLook {
  int Height;
  TFontPitch Pitch;
  TFontStyles Style;
  QString Name;

  friend bool operator==(const TFontLook&, const TFontLook&) = default;
};

/// A text ready to be drawn again and again.
struct TPreparedText {
  QStaticText Text;
  /// In pixels, from where the text starts to where a text behind it would.
  int Width;
  /// How much higher than a plain text of the font this one has to be drawn, so that both stand on one line.
  qreal Rise;
};

/// What a font is on the screen, with the texts that were drawn in it of late, so that drawing one again shapes
/// nothing.
///
/// One object serves all fonts of one look; they find it through a pointer beside their data. The process keeps the
/// fonts of late, each with about 64 thousand characters of texts. Needs a QGuiApplication; belongs to its thread.
class TRealFont {
 public:
  /// Never null. Raises EInvalidOperation "Canvas does not allow drawing" where there is no QGuiApplication.
  static std::shared_ptr<TRealFont> Of(const TFont& font);

  explicit TRealFont(const TFontLook& look);
  TRealFont(const TRealFont&) = delete;
  TRealFont& operator=(const TRealFont&) = delete;

  const TFontLook& Look() const { return FLook; }
  const QFont& Qt() const { return FQtFont; }
  const QFontMetrics& Metrics() const { return FMetrics; }
  /// The height of a line of text in pixels.
  int Height() const { return FMetrics.height(); }
  /// Control characters count as blanks: it is always one line. The reference is good until the next call.
  const TPreparedText& Prepared(const QString& text);

 private:
  friend class TRealFonts;

  TPreparedText Prepare(const QString& text) const;

  TFontLook FLook;
  QFont FQtFont;
  QFontMetrics FMetrics;
  QCache<QString, TPreparedText> FTexts;
  /// The last text that was too long to be kept.
  TPreparedText FLong;
};

/// What Qt draws the font with.
const QFont& QtFont(const TFont& font);

}  // namespace kt
