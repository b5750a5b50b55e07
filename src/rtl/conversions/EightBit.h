#pragma once

#include <QByteArrayView>
#include <QString>

namespace kt {

/// How text with bytes from 128 up is read where a form does not say: old forms hold text in their author's 8-bit
/// encoding.
enum TEightBitEncoding : quint8 {
  eeWindows1252,  ///< Western European. Here and below a byte without a character becomes that of the same number, so
                  ///< nothing is lost.
  eeLatin1,       ///< Byte n is character n.
  eeUtf8,         ///< UTF-8; anything else is an error.
  eeWindows1250,  ///< Central European.
  eeWindows1251,  ///< Cyrillic.
  eeWindows1253,  ///< Greek.
  eeWindows1254,  ///< Turkish.
  eeWindows1255,  ///< Hebrew.
  eeWindows1256,  ///< Arabic.
  eeWindows1257,  ///< Baltic.
  eeWindows1258,  ///< Vietnamese.
  eeWindows874,   ///< Thai.
};

/// Decodes into `text`, whose memory is used again. False when the bytes are not valid in that encoding.
bool DecodeEightBit(QByteArrayView bytes, TEightBitEncoding encoding, QString& text);

/// Decodes well-formed UTF-8. A U+FEFF at the start stays: inside a form or a list it is a character like any other,
/// and `QString::fromUtf8` would drop it as the mark of a whole file.
QString TextOfUtf8(QByteArrayView bytes);

/// The offset of the first byte that is no well-formed UTF-8 (overlong forms and surrogates are not), or -1.
qsizetype FindInvalidUtf8(QByteArrayView bytes);

/// Decodes the name of a class, object or property: UTF-8 when it is, else by `encoding` (with `eeUtf8`: Windows-1252).
void DecodeName(QByteArrayView bytes, TEightBitEncoding encoding, QString& text);

}  // namespace kt
