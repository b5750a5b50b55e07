#include "kt/rtl/streams/TextEncoding.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"

#include <QStringConverter>
#include <QtEndian>

namespace kt {
namespace {

constexpr QByteArrayView kUtf8Mark{"\xEF\xBB\xBF", 3};
constexpr QByteArrayView kUtf16LittleMark{"\xFF\xFE", 2};
constexpr QByteArrayView kUtf16BigMark{"\xFE\xFF", 2};

[[noreturn]] void Fail(QLatin1StringView what, QByteArrayView utf8, qsizetype offset) {
  const TTextPosition at = FindTextPosition(utf8, offset);
  throw EParserError(OnLine(QString(what), at.Line, at.Column));
}

QByteArray WithoutNul(QByteArray utf8) {
  const qsizetype at = utf8.indexOf('\0');
  if (at >= 0) Fail(SInvalidCharacter, utf8, at);
  return utf8;
}

/// The index of the first surrogate that has no partner, or the size.
qsizetype FindLoneSurrogate(QStringView text) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!text[i].isSurrogate()) continue;
    if (!text[i].isHighSurrogate() || i + 1 == text.size() || !text[i + 1].isLowSurrogate()) return i;
    ++i;
  }
  return text.size();
}

QByteArray DecodeUtf16(QByteArrayView bytes, bool bigEndian) {
  QString text(bytes.size() / 2, Qt::Uninitialized);
  if (bigEndian)
    qFromBigEndian<char16_t>(bytes.data(), text.size(), text.data());
  else
    qFromLittleEndian<char16_t>(bytes.data(), text.size(), text.data());
  const qsizetype valid = FindLoneSurrogate(text);
  QByteArray utf8 = QStringView(text).left(valid).toUtf8();
  if (valid < text.size() || bytes.size() % 2 != 0) Fail(SInvalidUtf16, utf8, utf8.size());
  return utf8;
}

}  // namespace

TTextPosition FindTextPosition(QByteArrayView utf8, qsizetype offset) {
  TTextPosition at;
  for (qsizetype i = 0; i < offset; ++i) {
    const char c = utf8[i];
    if (c == '\n' || (c == '\r' && (i + 1 == utf8.size() || utf8[i + 1] != '\n')))
      at = {at.Line + 1, 1};
    else if ((c & 0xC0) != 0x80)
      ++at.Column;
  }
  return at;
}

QByteArray DecodeFormText(const QByteArray& input, TEightBitEncoding fallback) {
  const QByteArrayView bytes(input);
  if (bytes.startsWith(kUtf16LittleMark)) return WithoutNul(DecodeUtf16(bytes.sliced(2), false));
  if (bytes.startsWith(kUtf16BigMark)) return WithoutNul(DecodeUtf16(bytes.sliced(2), true));
  const bool marked = bytes.startsWith(kUtf8Mark);
  const QByteArrayView body = marked ? bytes.sliced(kUtf8Mark.size()) : bytes;
  const qsizetype invalid = FindInvalidUtf8(body);
  if (invalid < 0) return WithoutNul(marked ? body.toByteArray() : input);
  if (marked || fallback == eeUtf8) Fail(SInvalidUtf8, body, invalid);
  QString text;
  DecodeEightBit(body, fallback, text);
  return WithoutNul(text.toUtf8());
}

}  // namespace kt
