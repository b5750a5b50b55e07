#include "kt/vcl/graphics/RealFont.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/graphics/Font.h"
#include "kt/vcl/graphics/GraphicsMessages.h"
#include "kt/vcl/graphics/Presence.h"

#include <QGuiApplication>
#include <QTextLayout>

#include <algorithm>
#include <vector>

namespace kt {
namespace {

constexpr int kKeptCharacters = 1 << 16;
constexpr int kLargestPixelSize = 1 << 14;

/// A line of `lineHeight` pixels: the letters get what the face leaves them.
int PixelSizeOfLine(QFont font, int lineHeight) {
  font.setPixelSize(lineHeight);
  const int height = std::max(QFontMetrics(font).height(), 1);
  return std::max(lineHeight * lineHeight / height, 1);
}

QFont MakeQtFont(const TFontLook& look) {
  QFont font;
  // A face that this desktop lacks is replaced by the one that the user chose for applications.
  font.setFamilies({look.Name, QGuiApplication::font().family()});
  font.setBold(look.Style.Has(fsBold));
  font.setItalic(look.Style.Has(fsItalic));
  font.setUnderline(look.Style.Has(fsUnderline));
  font.setStrikeOut(look.Style.Has(fsStrikeOut));
  if (look.Pitch == fpFixed) font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(look.Pitch == fpFixed);
  const int height = std::clamp(look.Height, -kLargestPixelSize, kLargestPixelSize);
  const int standard = -DefaultFontData()->Height;
  font.setPixelSize(height > 0 ? PixelSizeOfLine(font, height) : height < 0 ? -height : standard);
  return font;
}

/// `text` on one line.
QString OnOneLine(const QString& text) {
  const auto isControl = [](QChar c) {
    return c < u' ' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
  };
  if (std::none_of(text.begin(), text.end(), isControl)) return text;
  QString line = text;
  std::replace_if(line.begin(), line.end(), isControl, QChar(u' '));
  return line;
}

/// Other scripts may come from another face, whose letters reach higher above the line.
bool MayNeedOtherFaces(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() >= 0x250; });
}

qreal AscentOf(const QString& text, const QFont& font) {
  QTextLayout layout(text, font);
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  return line.isValid() ? line.ascent() : 0;
}

TFontLook LookOf(const TFontData& data) { return {data.Height, data.Pitch, data.Style, data.Name}; }

bool HasLook(const TFontData& data, const TFontLook& look) {
  return data.Height == look.Height && data.Pitch == look.Pitch && data.Style == look.Style && data.Name == look.Name;
}

}  // namespace

/// The real fonts of the process, the latest last.
class TRealFonts {
 public:
  static std::shared_ptr<TRealFont> Find(const TFontData& data) {
    auto& fonts = All();
    const auto found =
        std::find_if(fonts.begin(), fonts.end(), [&](const auto& f) { return HasLook(data, f->Look()); });
    if (found != fonts.end()) return *found;
    if (fonts.empty()) qAddPostRoutine(&Clear);
    if (fonts.size() >= kKept) std::erase_if(fonts, [](const auto& font) { return font.use_count() == 1; });
    return fonts.emplace_back(std::make_shared<TRealFont>(LookOf(data)));
  }

 private:
  static constexpr size_t kKept = 64;

  static std::vector<std::shared_ptr<TRealFont>>& All() {
    static std::vector<std::shared_ptr<TRealFont>> fonts;
    return fonts;
  }
  /// Prepared texts must not outlive the application object; fonts may.
  static void Clear() {
    for (const auto& font : All()) {
      font->FTexts.clear();
      font->FLong = {};
    }
    All().clear();
  }
};

std::shared_ptr<TRealFont> TRealFont::Of(const TFont& font) {
  const TFontData& data = font.Data();
  // The cheap question first: this is asked for each text that is drawn.
  if (!qGuiApp) throw EInvalidOperation(SNoCanvasHandle.toString());
  if (data.Real && HasLook(data, data.Real->Look())) return data.Real;
  if (!HasGui()) throw EInvalidOperation(SNoCanvasHandle.toString());
  data.Real = TRealFonts::Find(data);
  return data.Real;
}

TRealFont::TRealFont(const TFontLook& look)
    : FLook(look), FQtFont(MakeQtFont(look)), FMetrics(FQtFont), FTexts(kKeptCharacters) {}

const TPreparedText& TRealFont::Prepared(const QString& text) {
  if (const TPreparedText* known = FTexts.object(text)) return *known;
  const qsizetype cost = text.size() + 16;
  if (cost > kKeptCharacters / 4) return FLong = Prepare(text);
  auto* prepared = new TPreparedText(Prepare(text));
  FTexts.insert(text, prepared, cost);
  return *prepared;
}

TPreparedText TRealFont::Prepare(const QString& text) const {
  const QString line = OnOneLine(text);
  TPreparedText prepared{QStaticText(line), FMetrics.horizontalAdvance(line), 0};
  prepared.Text.setTextFormat(Qt::PlainText);
  if (MayNeedOtherFaces(line)) prepared.Rise = std::max(0.0, AscentOf(line, FQtFont) - FMetrics.ascent());
  return prepared;
}

const QFont& QtFont(const TFont& font) { return TRealFont::Of(font)->Qt(); }

}  // namespace kt
