#include "kt/rtl/streams/TextLexer.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"
#include "kt/rtl/streams/TextEncoding.h"

#include <array>

namespace kt {
namespace {

enum TCharClass : quint8 { ccOther, ccBlank, ccLetter, ccDigit, ccBeyondAscii };

constexpr std::array<TCharClass, 256> MakeClasses() {
  std::array<TCharClass, 256> classes{};
  for (int c = '0'; c <= '9'; ++c) classes[c] = ccDigit;
  for (int c = 'a'; c <= 'z'; ++c) classes[c] = classes[c - 'a' + 'A'] = ccLetter;
  for (int c = 128; c < 256; ++c) classes[c] = ccBeyondAscii;
  // With the mark that some old programs put behind the end.
  for (int c = 1; c <= ' '; ++c) classes[c] = ccBlank;
  classes['_'] = ccLetter;
  return classes;
}

constexpr std::array<TCharClass, 256> kClasses = MakeClasses();

TCharClass ClassOf(char c) { return kClasses[quint8(c)]; }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

int HexValue(char c) {
  if (IsDigit(c)) return c - '0';
  const char lower = char(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

struct TCodePoint {
  char32_t Value;
  int Length;
};

/// The code point at `at`, whose UTF-8 is known to be valid.
TCodePoint Decode(const char* at) {
  const auto byte = [at](int i) { return char32_t(quint8(at[i])); };
  if (byte(0) < 0x80) return {byte(0), 1};
  if (byte(0) < 0xE0) return {(byte(0) & 0x1F) << 6 | (byte(1) & 0x3F), 2};
  if (byte(0) < 0xF0) return {(byte(0) & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F), 3};
  return {(byte(0) & 0x07) << 18 | (byte(1) & 0x3F) << 12 | (byte(2) & 0x3F) << 6 | (byte(3) & 0x3F), 4};
}

bool BeginsIdentifier(char32_t c) { return c < 0x80 ? kClasses[c] == ccLetter : QChar::isLetter(c); }

bool ContinuesIdentifier(char32_t c) {
  if (c < 0x80) return kClasses[c] == ccLetter || kClasses[c] == ccDigit;
  return QChar::isLetterOrNumber(c) || QChar::isMark(c);
}

bool IsLetterAt(const char* at) {
  const TCharClass kind = ClassOf(*at);
  return kind == ccLetter || (kind == ccBeyondAscii && BeginsIdentifier(Decode(at).Value));
}

}  // namespace

TTextLexer::TTextLexer(QByteArray utf8) : FBuffer(std::move(utf8)) {
  FCursor = FBuffer.constData();
  FStart = FDigitsEnd = FCursor;
}

void TTextLexer::FailAt(const QString& what, const char* at) const {
  const TTextPosition position = PositionOf(at - FBuffer.constData());
  throw EParserError(OnLine(what, position.Line, position.Column));
}

bool TTextLexer::IsWord(QByteArrayView word) const {
  if (FKind != ttIdentifier || FCursor - FStart != word.size()) return false;
  for (qsizetype i = 0; i < word.size(); ++i)
    if ((FStart[i] | 0x20) != word[i]) return false;
  return true;
}

void TTextLexer::SkipBlanks() {
  FOnNewLine = false;
  for (; ClassOf(*FCursor) == ccBlank; ++FCursor) FOnNewLine |= *FCursor == '\n' || *FCursor == '\r';
}

void TTextLexer::Next() {
  SkipBlanks();
  FStart = FCursor;
  const char c = *FCursor;
  if (IsLetterAt(FCursor)) return LexIdentifier();
  if (IsDigit(c)) return LexNumber();
  switch (c) {
    case '\0':
      FKind = ttEnd;
      return;
    case '\'':
    case '#':
      return LexString();
    case '-':
      return LexNumber();
    case '$':
      return LexHexNumber();
    default:
      break;
  }
  if (c == '+' && IsLetterAt(FCursor + 1)) return LexSignedWord();
  FKind = ttSymbol;
  FCursor += Decode(FCursor).Length;
}

const char* TTextLexer::SkipIdentifier(const char* at) const {
  while (true) {
    const TCharClass kind = ClassOf(*at);
    if (kind == ccLetter || kind == ccDigit) {
      ++at;
    } else if (kind == ccBeyondAscii) {
      const TCodePoint point = Decode(at);
      if (!ContinuesIdentifier(point.Value)) return at;
      at += point.Length;
    } else {
      return at;
    }
  }
}

void TTextLexer::LexIdentifier() {
  FKind = ttIdentifier;
  FCursor = SkipIdentifier(FCursor);
  while (*FCursor == '.' && IsLetterAt(FCursor + 1)) FCursor = SkipIdentifier(FCursor + 1);
  FText.resize(0);
  AppendUtf8(FStart, FCursor);
}

void TTextLexer::SkipDigits() {
  while (IsDigit(*FCursor)) ++FCursor;
}

void TTextLexer::LexNumber() {
  if (*FCursor == '-' && IsLetterAt(FCursor + 1)) return LexSignedWord();
  if (*FCursor == '-') ++FCursor;
  if (!IsDigit(*FCursor)) FailAt(QString(SNumberExpected), FCursor);
  FKind = ttInteger;
  SkipDigits();
  if (*FCursor == '.') {
    FKind = ttFloat;
    ++FCursor;
    SkipDigits();
  }
  if ((*FCursor | 0x20) == 'e') {
    const char* digits = FCursor[1] == '+' || FCursor[1] == '-' ? FCursor + 2 : FCursor + 1;
    if (!IsDigit(*digits)) FailAt(QString(SNumberExpected), digits);
    FKind = ttFloat;
    FCursor = digits;
    SkipDigits();
  }
  LexSuffix();
}

void TTextLexer::LexSuffix() {
  FDigitsEnd = FCursor;
  FSuffix = 0;
  const char letter = char(*FCursor | 0x20);
  if (!QByteArrayView("scdw").contains(letter) || SkipIdentifier(FCursor + 1) != FCursor + 1) return;
  FSuffix = letter;
  FKind = ttFloat;
  ++FCursor;
}

void TTextLexer::LexHexNumber() {
  FKind = ttInteger;
  FSuffix = 0;
  ++FCursor;
  if (HexValue(*FCursor) < 0) FailAt(QString(SNumberExpected), FCursor);
  while (HexValue(*FCursor) >= 0) ++FCursor;
  FDigitsEnd = FCursor;
}

void TTextLexer::LexSignedWord() {
  // Numbers without digits: a sign makes sure that they are no identifiers.
  const char* end = SkipIdentifier(FCursor + 1);
  const QByteArray word = QByteArray(FCursor + 1, end - FCursor - 1).toLower();
  const bool known = word.startsWith("inf") || word.startsWith("nan");
  if (!known || word.size() > 4) FailAt(QString(SNumberExpected), FStart);
  FKind = ttFloat;
  FCursor += 4;
  LexSuffix();
  if (FCursor != end) FailAt(QString(SNumberExpected), FStart);
}

void TTextLexer::AppendUtf8(const char* from, const char* to) {
  const QByteArrayView bytes(from, to - from);
  const qsizetype at = FText.size();
  FText.resize(at + bytes.size());
  auto* target = reinterpret_cast<char16_t*>(FText.data()) + at;
  quint8 seen = 0;
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    seen |= quint8(bytes[i]);
    target[i] = quint8(bytes[i]);
  }
  if (seen < 0x80) return;
  FText.resize(at);
  FText.append(TextOfUtf8(bytes));
}

void TTextLexer::LexString() {
  FText.resize(0);
  FKind = ttString;
  LexStringPieces();
  // A plus continues the string, usually on the next line.
  while (true) {
    const char* end = FCursor;
    const bool onNewLine = FOnNewLine;
    SkipBlanks();
    const bool continues = *FCursor == '+' && !IsLetterAt(FCursor + 1);
    if (continues) {
      ++FCursor;
      SkipBlanks();
    }
    FOnNewLine = onNewLine;
    if (!continues) {
      FCursor = end;
      return;
    }
    if (*FCursor != '\'' && *FCursor != '#') FailAt(QString(SStringExpected), FCursor);
    LexStringPieces();
  }
}

void TTextLexer::LexStringPieces() {
  while (true) {
    if (*FCursor == '\'')
      LexQuoted();
    else if (*FCursor == '#')
      LexCharacterCode();
    else
      return;
  }
}

void TTextLexer::LexQuoted() {
  const char* opening = FCursor++;
  while (true) {
    const char* from = FCursor;
    while (*FCursor != '\'' && *FCursor != '\n' && *FCursor != '\r' && *FCursor != '\0') ++FCursor;
    AppendUtf8(from, FCursor);
    if (*FCursor != '\'') FailAt(QString(SInvalidString), opening);
    ++FCursor;
    if (*FCursor != '\'') return;
    FText.append(u'\'');
    ++FCursor;
  }
}

void TTextLexer::LexCharacterCode() {
  const char* hash = FCursor++;
  const int base = *FCursor == '$' ? 16 : 10;
  if (base == 16) ++FCursor;
  const char* digits = FCursor;
  char32_t code = 0;
  for (int digit = HexValue(*FCursor); digit >= 0 && digit < base; digit = HexValue(*++FCursor)) {
    code = code * base + digit;
    if (code > QChar::LastValidCodePoint) FailAt(QString(SInvalidString), hash);
  }
  if (FCursor == digits) FailAt(QString(SInvalidString), hash);
  // A number is a UTF-16 unit; one beyond them is a whole character.
  if (QChar::requiresSurrogates(code)) FText.append(QChar(QChar::highSurrogate(code)));
  FText.append(QChar(QChar::requiresSurrogates(code) ? QChar::lowSurrogate(code) : char16_t(code)));
}

const QByteArray& TTextLexer::ReadHex() {
  FBytes.resize(0);
  while (true) {
    while (ClassOf(*FCursor) == ccBlank) ++FCursor;
    if (*FCursor == '}') break;
    const int high = HexValue(*FCursor);
    if (high < 0) FailAt(QString(SInvalidBinary), FCursor);
    const int low = HexValue(FCursor[1]);
    if (low < 0) FailAt(QString(SInvalidBinary), FCursor + 1);
    FBytes.append(char(high << 4 | low));
    FCursor += 2;
  }
  ++FCursor;
  return FBytes;
}

bool IsFormIdentifier(QStringView text) {
  bool begins = true;
  for (qsizetype i = 0; i < text.size(); ++i) {
    char32_t c = text[i].unicode();
    if (text[i].isHighSurrogate() && i + 1 < text.size()) {
      c = QChar::surrogateToUcs4(text[i], text[i + 1]);
      ++i;
    }
    if (c == '.') {
      if (begins) return false;
      begins = true;
    } else if (begins ? !BeginsIdentifier(c) : !ContinuesIdentifier(c)) {
      return false;
    } else {
      begins = false;
    }
  }
  return !begins;
}

}  // namespace kt
