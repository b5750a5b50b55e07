#pragma once

#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <QString>

#include <functional>

namespace kt {

enum TFontPitch : quint8 { fpDefault, fpVariable, fpFixed };
enum TFontStyle : quint8 { fsBold, fsItalic, fsUnderline, fsStrikeOut };
using TFontStyles = TSet<TFontStyle>;

/// The writing system that a font is made for, by the numbers of the framework. Every byte is one.
enum TFontCharset : quint8 {
  ANSI_CHARSET = 0,
  DEFAULT_CHARSET = 1,
  SYMBOL_CHARSET = 2,
  MAC_CHARSET = 77,
  SHIFTJIS_CHARSET = 128,
  HANGEUL_CHARSET = 129,
  JOHAB_CHARSET = 130,
  GB2312_CHARSET = 134,
  CHINESEBIG5_CHARSET = 136,
  GREEK_CHARSET = 161,
  TURKISH_CHARSET = 162,
  VIETNAMESE_CHARSET = 163,
  HEBREW_CHARSET = 177,
  ARABIC_CHARSET = 178,
  BALTIC_CHARSET = 186,
  RUSSIAN_CHARSET = 204,
  THAI_CHARSET = 222,
  EASTEUROPE_CHARSET = 238,
  OEM_CHARSET = 255
};

template <>
struct TEnumNames<TFontPitch> {
  static constexpr char Name[] = "TFontPitch";
  static constexpr const char* Values[] = {"fpDefault", "fpVariable", "fpFixed"};
};
template <>
struct TEnumNames<TFontStyle> {
  static constexpr char Name[] = "TFontStyle";
  static constexpr const char* Values[] = {"fsBold", "fsItalic", "fsUnderline", "fsStrikeOut"};
  static constexpr char SetName[] = "TFontStyles";
};
template <>
struct TTypeOf<TFontCharset> {
  static const TTypeInfo* Info();
};
/// "TFontName", the text type of font names.
const TTypeInfo* FontNameTypeInfo();

/// The character set of a name, compared without regard to ASCII case; false leaves `charset` alone.
bool IdentToCharset(QStringView ident, TFontCharset& charset);
/// The name of a character set; false when it has none.
bool CharsetToIdent(TFontCharset charset, QString& ident);
/// Calls `proc` for each name, by ascending number.
void GetCharsetValues(const std::function<void(const QString& name)>& proc);

/// Lets form files use the names.
void RegisterCharsetNames();

}  // namespace kt
