#include "kt/vcl/graphics/FontTypes.h"

#include "kt/vcl/graphics/NamedIntegers.h"

namespace kt {
namespace {

constexpr TNamedInteger kCharsetEntries[] = {
    {"ANSI_CHARSET", ANSI_CHARSET},
    {"DEFAULT_CHARSET", DEFAULT_CHARSET},
    {"SYMBOL_CHARSET", SYMBOL_CHARSET},
    {"MAC_CHARSET", MAC_CHARSET},
    {"SHIFTJIS_CHARSET", SHIFTJIS_CHARSET},
    {"HANGEUL_CHARSET", HANGEUL_CHARSET},
    {"JOHAB_CHARSET", JOHAB_CHARSET},
    {"GB2312_CHARSET", GB2312_CHARSET},
    {"CHINESEBIG5_CHARSET", CHINESEBIG5_CHARSET},
    {"GREEK_CHARSET", GREEK_CHARSET},
    {"TURKISH_CHARSET", TURKISH_CHARSET},
    {"VIETNAMESE_CHARSET", VIETNAMESE_CHARSET},
    {"HEBREW_CHARSET", HEBREW_CHARSET},
    {"ARABIC_CHARSET", ARABIC_CHARSET},
    {"BALTIC_CHARSET", BALTIC_CHARSET},
    {"RUSSIAN_CHARSET", RUSSIAN_CHARSET},
    {"THAI_CHARSET", THAI_CHARSET},
    {"EASTEUROPE_CHARSET", EASTEUROPE_CHARSET},
    {"OEM_CHARSET", OEM_CHARSET},
};
constexpr TNamedIntegers kCharsetNames(kCharsetEntries);

}  // namespace

const TTypeInfo* TTypeOf<TFontCharset>::Info() {
  static const TOrdTypeInfo info(tkInteger, QStringLiteral("TFontCharset"), otUByte, 0, 255);
  return &info;
}

const TTypeInfo* FontNameTypeInfo() {
  static const TTypeInfo info(tkLString, QStringLiteral("TFontName"));
  return &info;
}

bool IdentToCharset(QStringView ident, TFontCharset& charset) {
  const auto value = kCharsetNames.ValueOf(ident);
  if (value) charset = static_cast<TFontCharset>(*value);
  return value.has_value();
}

bool CharsetToIdent(TFontCharset charset, QString& ident) {
  const QString name = kCharsetNames.NameOf(charset);
  if (!name.isEmpty()) ident = name;
  return !name.isEmpty();
}

void GetCharsetValues(const std::function<void(const QString&)>& proc) {
  for (const TNamedInteger& entry : kCharsetNames.Entries()) proc(QString::fromLatin1(entry.Name));
}

void RegisterCharsetNames() { kCharsetNames.RegisterFor(TypeInfoOf<TFontCharset>()); }

}  // namespace kt
