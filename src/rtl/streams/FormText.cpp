#include "kt/rtl/streams/FormText.h"

#include "kt/rtl/streams/TextEncoding.h"

#include <QHash>
#include <QStringConverter>

#include <algorithm>
#include <numeric>

namespace kt {
namespace {

TTextEncoding EncodingOf(const QByteArray& file) {
  if (file.startsWith("\xEF\xBB\xBF")) return teUtf8Marked;
  if (file.startsWith("\xFF\xFE")) return teUtf16Little;
  if (file.startsWith("\xFE\xFF")) return teUtf16Big;
  return FindInvalidUtf8(file) < 0 ? teUtf8 : teEightBit;
}

QByteArray LineEndOf(const QByteArray& utf8) {
  const qsizetype pairs = utf8.count("\r\n");
  const qsizetype feeds = utf8.count('\n') - pairs;
  const qsizetype returns = utf8.count('\r') - pairs;
  if (feeds >= std::max(pairs, returns)) return "\n";
  return pairs >= returns ? "\r\n" : "\r";
}

QHash<QChar, char> EightBitCodes(TEightBitEncoding encoding) {
  QByteArray bytes(256, Qt::Uninitialized);
  std::iota(bytes.begin(), bytes.end(), char(0));
  QString characters;
  DecodeEightBit(bytes, encoding, characters);
  QHash<QChar, char> codes;
  for (qsizetype i = 0; i < bytes.size(); ++i) codes.insert(characters[i], bytes[i]);
  return codes;
}

std::optional<QByteArray> EncodeEightBit(const QString& text, TEightBitEncoding encoding) {
  const QHash<QChar, char> codes = EightBitCodes(encoding);
  QByteArray bytes;
  bytes.reserve(text.size());
  for (const QChar c : text) {
    const auto code = codes.constFind(c);
    if (code == codes.cend()) return std::nullopt;
    bytes.append(*code);
  }
  return bytes;
}

QByteArray EncodeUtf16(const QString& text, QStringConverter::Encoding encoding) {
  QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
  return encoder.encode(text);
}

}  // namespace

TFormText DecodeText(const QByteArray& file, TEightBitEncoding eightBit) {
  const QByteArray utf8 = DecodeFormText(file, eightBit);
  return {EncodingOf(file), eightBit, LineEndOf(utf8), utf8};
}

std::optional<QByteArray> EncodeText(const QByteArray& utf8, const TFormText& manner) {
  switch (manner.Encoding) {
    case teUtf8:
      return utf8;
    case teUtf8Marked:
      return "\xEF\xBB\xBF" + utf8;
    case teUtf16Little:
      return EncodeUtf16(QString::fromUtf8(utf8), QStringConverter::Utf16LE);
    case teUtf16Big:
      return EncodeUtf16(QString::fromUtf8(utf8), QStringConverter::Utf16BE);
    case teEightBit:
      return EncodeEightBit(QString::fromUtf8(utf8), manner.EightBit);
  }
  return std::nullopt;
}

}  // namespace kt
