#pragma once

#include "kt/rtl/conversions/EightBit.h"

#include <QByteArray>

#include <optional>

namespace kt {

/// How the bytes of a text file stand for its characters.
enum TTextEncoding : quint8 { teUtf8, teUtf8Marked, teUtf16Little, teUtf16Big, teEightBit };

/// The text of a form together with the manner in which its file writes it.
struct TFormText {
  TTextEncoding Encoding;
  /// What the bytes from 128 up mean where Encoding is teEightBit.
  TEightBitEncoding EightBit;
  /// The line end that most lines have; LF where there is none.
  QByteArray LineEnd;
  /// UTF-8 without a mark, lines ended as in the file.
  QByteArray Utf8;
};

/// `eightBit` counts for what is neither marked nor UTF-8. Throws EParserError for bytes that are no text.
TFormText DecodeText(const QByteArray& file, TEightBitEncoding eightBit);

/// The bytes of a file in the encoding of `manner` that holds `utf8`, or none when it lacks one of the characters.
std::optional<QByteArray> EncodeText(const QByteArray& utf8, const TFormText& manner);

}  // namespace kt
