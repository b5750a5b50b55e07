#pragma once

#include "kt/rtl/conversions/TextCompare.h"

#include <QString>

namespace kt {

/// Without leading and trailing blanks and control characters (U+0000 to U+0020, no others).
QString Trim(QStringView s);
QString TrimLeft(QStringView s);
QString TrimRight(QStringView s);

/// Changes the ASCII letters alone.
QString UpperCase(QStringView s);
QString LowerCase(QStringView s);
/// Changes every letter by the rules of FormatLocale().
QString AnsiUpperCase(const QString& s);
QString AnsiLowerCase(const QString& s);

/// Where `sub` first occurs in `s`, counted from 1; 0 when it does not, or is empty. Case counts.
qsizetype Pos(QStringView sub, QStringView s);
qsizetype AnsiPos(QStringView sub, QStringView s);

enum TDotRule { drNoDots, drAllowDots };
/// An ASCII letter or underscore, then letters, digits and underscores; with drAllowDots several of them joined by
/// dots.
bool IsValidIdent(QStringView ident, TDotRule dots = drNoDots);

/// Between quotes, with each quote inside doubled.
QString AnsiQuotedStr(QStringView s, QChar quote);
/// Between apostrophes.
QString QuotedStr(QStringView s);
/// Takes a quoted text off the front of `source` and answers what was quoted; `source` is left behind the closing
/// quote. Nothing happens when `source` does not start with the quote. Without a closing quote everything is taken.
QString AnsiExtractQuotedStr(QStringView& source, QChar quote);
/// What a quoted text quotes; a text that is not quoted, or lacks the closing quote, comes back unchanged.
QString AnsiDequotedStr(QStringView s, QChar quote);

enum TTextLineBreakStyle { tlbsLF, tlbsCRLF };
/// The text with every line end (CR, LF or both) in one style.
QString AdjustLineBreaks(QStringView s, TTextLineBreakStyle style = tlbsCRLF);

}  // namespace kt
