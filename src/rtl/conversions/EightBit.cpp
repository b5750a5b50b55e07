#include "kt/rtl/conversions/EightBit.h"

#include "kt/rtl/conversions/CodePages.h"

#include <QStringConverter>

#include <cstring>

namespace kt {
namespace {

/// Widens into `text` and tells whether all was ASCII.
bool Widen(QByteArrayView bytes, QString& text) {
  text.resize(bytes.size());
  const char* from = bytes.data();
  auto* to = reinterpret_cast<char16_t*>(text.data());
  quint8 seen = 0;
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    const auto byte = quint8(from[i]);
    seen |= byte;
    to[i] = byte;
  }
  return seen < 0x80;
}

void MapUpperHalf(QString& text, const char16_t* characters) {
  for (QChar& c : text)
    if (c.unicode() >= 0x80) c = QChar(characters[c.unicode() - 0x80]);
}

bool DecodeUtf8(QByteArrayView bytes, QString& text) {
  if (FindInvalidUtf8(bytes) >= 0) return false;
  text = TextOfUtf8(bytes);
  return true;
}

/// The first position at or after `at` where eight plain ASCII bytes are not in sight.
qsizetype SkipAscii(const char* data, qsizetype at, qsizetype size) {
  while (at + 8 <= size) {
    quint64 eight;
    std::memcpy(&eight, data + at, 8);
    if (eight & 0x8080808080808080u) break;
    at += 8;
  }
  return at;
}

/// The length of the well-formed sequence at `at`, or 0.
qsizetype SequenceLength(const quint8* data, qsizetype left) {
  const quint8 lead = data[0];
  if (lead < 0x80) return 1;
  const qsizetype length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || left < length) return 0;
  for (qsizetype i = 1; i < length; ++i)
    if ((data[i] & 0xC0) != 0x80) return 0;
  const quint8 second = data[1];
  const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool outside = (lead == 0xED && second >= 0xA0) || (lead == 0xF4 && second >= 0x90);
  return overlong || outside ? 0 : length;
}

}  // namespace

QString TextOfUtf8(QByteArrayView bytes) {
  using TFlag = QStringConverter::Flag;
  return QStringDecoder(QStringConverter::Utf8, TFlag::Stateless | TFlag::ConvertInitialBom).decode(bytes);
}

qsizetype FindInvalidUtf8(QByteArrayView bytes) {
  const qsizetype size = bytes.size();
  qsizetype at = 0;
  while ((at = SkipAscii(bytes.data(), at, size)) < size) {
    const qsizetype length = SequenceLength(reinterpret_cast<const quint8*>(bytes.data()) + at, size - at);
    if (length == 0) return at;
    at += length;
  }
  return -1;
}

bool DecodeEightBit(QByteArrayView bytes, TEightBitEncoding encoding, QString& text) {
  if (Widen(bytes, text)) return true;
  if (encoding == eeUtf8) return DecodeUtf8(bytes, text);
  if (const char16_t* characters = UpperHalfOf(encoding)) MapUpperHalf(text, characters);
  return true;
}

void DecodeName(QByteArrayView bytes, TEightBitEncoding encoding, QString& text) {
  if (Widen(bytes, text) || DecodeUtf8(bytes, text)) return;
  const char16_t* characters = UpperHalfOf(encoding == eeUtf8 ? eeWindows1252 : encoding);
  if (characters) MapUpperHalf(text, characters);
}

}  // namespace kt
