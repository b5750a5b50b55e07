#include "kt/rtl/strings/TextEncoding.h"

#include <QStringConverter>

namespace kt {

namespace {

constexpr QChar ByteOrderMark(0xFEFF);

/// Bytes 0x80 to 0x9F; all others are Latin-1.
constexpr char16_t Upper[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

QString DecodeText(const QByteArray& bytes) {
  if (const auto marked = QStringConverter::encodingForData(bytes)) return QStringDecoder(*marked).decode(bytes);
  return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : DecodeWindows1252(bytes);
}

QByteArray EncodeText(const QString& text) {
  // Reading takes one mark away.
  return text.startsWith(ByteOrderMark) ? (ByteOrderMark + text).toUtf8() : text.toUtf8();
}

QString DecodeWindows1252(QByteArrayView bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  QChar* to = text.data();
  for (char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    *to++ = code >= 0x80 && code < 0xA0 ? QChar(Upper[code - 0x80]) : QChar(code);
  }
  return text;
}

}  // namespace kt
