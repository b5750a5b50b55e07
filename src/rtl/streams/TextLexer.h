#pragma once

#include "kt/rtl/streams/TextEncoding.h"

#include <QByteArray>
#include <QString>

namespace kt {

enum TTextTokenKind : quint8 { ttEnd, ttIdentifier, ttInteger, ttFloat, ttString, ttSymbol };

/// Cuts the text of a form into tokens. One flat buffer, one token at a time, nothing allocated per token.
///
/// Errors are EParserError with line and column of the place where the token went wrong.
class TTextLexer {
 public:
  /// `utf8` must be valid and free of NUL characters (see DecodeFormText): the zero byte behind it ends every loop.
  explicit TTextLexer(QByteArray utf8);

  /// Goes to the next token.
  void Next();

  TTextTokenKind Kind() const { return FKind; }
  bool IsSymbol(char symbol) const { return FKind == ttSymbol && *FStart == symbol; }
  /// True for the identifier `word` (lower case ASCII) in any case.
  bool IsWord(QByteArrayView word) const;
  /// The token as it stands in the text.
  QByteArrayView Raw() const { return {FStart, FCursor - FStart}; }
  /// A number without its suffix.
  QByteArrayView Digits() const { return {FStart, FDigitsEnd - FStart}; }
  /// The kind letter behind a number in lower case (`s`, `c`, `d`, `w`), or 0.
  char Suffix() const { return FSuffix; }
  /// An identifier, or the value of a string; good until the next token.
  QStringView Text() const { return FText; }
  /// True when a line end stands between this token and the one before.
  bool IsOnNewLine() const { return FOnNewLine; }

  /// Where the token begins.
  qsizetype Offset() const { return FStart - FBuffer.constData(); }
  TTextPosition PositionOf(qsizetype offset) const { return FindTextPosition(FBuffer, offset); }

  /// After the symbol `{`: the bytes up to the closing brace, which is taken too. Good until the next call.
  const QByteArray& ReadHex();

  /// Throws EParserError for `what` at the present token.
  [[noreturn]] void Fail(const QString& what) const { FailAt(what, FStart); }

 private:
  void SkipBlanks();
  void LexIdentifier();
  const char* SkipIdentifier(const char* at) const;
  void LexNumber();
  void LexHexNumber();
  void SkipDigits();
  void LexSignedWord();
  void LexSuffix();
  void LexString();
  void LexStringPieces();
  void LexQuoted();
  void LexCharacterCode();
  void AppendUtf8(const char* from, const char* to);
  [[noreturn]] void FailAt(const QString& what, const char* at) const;

  QByteArray FBuffer;
  const char* FCursor = nullptr;
  const char* FStart = nullptr;
  const char* FDigitsEnd = nullptr;
  QString FText;
  QByteArray FBytes;
  TTextTokenKind FKind = ttEnd;
  char FSuffix = 0;
  bool FOnNewLine = false;
};

/// True for what may be the name of an object, class, property or value: letters, digits and underscores, not beginning
/// with a digit, in parts joined by dots.
bool IsFormIdentifier(QStringView text);

}  // namespace kt
