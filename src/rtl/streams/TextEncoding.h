#pragma once

#include "kt/rtl/conversions/EightBit.h"

#include <QByteArray>

namespace kt {

/// A place in a text, both counted from 1; a column is one code point.
struct TTextPosition {
  qint64 Line = 1;
  qint64 Column = 1;
};

/// Where `offset` lies in UTF-8 text; LF, CR LF and CR alone each end a line.
TTextPosition FindTextPosition(QByteArrayView utf8, qsizetype offset);

/// The text of a form as UTF-8 without a byte-order mark.
///
/// A byte-order mark (UTF-8, UTF-16 in both orders) decides; without one the text is UTF-8 when it is valid as such,
/// else in the old 8-bit encoding `fallback`. Throws EParserError with line and column for bytes that are not valid,
/// and for a NUL character.
QByteArray DecodeFormText(const QByteArray& input, TEightBitEncoding fallback);

}  // namespace kt
