#include "kt/rtl/strings/TextEncoding.h"

#include "kt/rtl/conversions/EightBit.h"

#include <QStringConverter>

namespace kt {

namespace {

constexpr QChar ByteOrderMark(0xFEFF);

}  // namespace

QString DecodeText(const QByteArray& bytes) {
  if (const auto marked = QStringConverter::encodingForData(bytes)) return QStringDecoder(*marked).decode(bytes);
  QString text;
  if (!DecodeEightBit(bytes, eeUtf8, text)) DecodeEightBit(bytes, eeWindows1252, text);
  return text;
}

QByteArray EncodeText(const QString& text) {
  // Reading takes one mark away.
  return text.startsWith(ByteOrderMark) ? (ByteOrderMark + text).toUtf8() : text.toUtf8();
}

}  // namespace kt
