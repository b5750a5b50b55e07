#include "kt/rtl/conversions/Text.h"

#include "kt/rtl/conversions/FormatSettings.h"

#include <algorithm>

namespace kt {
namespace {

bool IsBlank(QChar c) { return c <= QChar(0x20); }

bool IsIdentStart(QChar c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_'; }

bool IsIdentPart(QChar c) { return IsIdentStart(c) || (c >= u'0' && c <= u'9'); }

/// Adds `offset` to the characters between two bounds.
QString ShiftRange(QStringView s, char16_t first, char16_t last, int offset) {
  QString result = s.toString();
  for (QChar& c : result) {
    if (c >= first && c <= last) c = QChar(c.unicode() + offset);
  }
  return result;
}

QStringView WithoutLeft(QStringView s) {
  const auto start = std::find_if_not(s.begin(), s.end(), IsBlank);
  return s.sliced(start - s.begin());
}

QStringView WithoutRight(QStringView s) {
  while (!s.isEmpty() && IsBlank(s.back())) s.chop(1);
  return s;
}

}  // namespace

QString Trim(QStringView s) { return WithoutLeft(WithoutRight(s)).toString(); }

QString TrimLeft(QStringView s) { return WithoutLeft(s).toString(); }

QString TrimRight(QStringView s) { return WithoutRight(s).toString(); }

QString UpperCase(QStringView s) { return ShiftRange(s, u'a', u'z', u'A' - u'a'); }

QString LowerCase(QStringView s) { return ShiftRange(s, u'A', u'Z', u'a' - u'A'); }

QString AnsiUpperCase(const QString& s) { return FormatLocale().toUpper(s); }

QString AnsiLowerCase(const QString& s) { return FormatLocale().toLower(s); }

qsizetype Pos(QStringView sub, QStringView s) { return sub.isEmpty() ? 0 : s.indexOf(sub) + 1; }

qsizetype AnsiPos(QStringView sub, QStringView s) { return Pos(sub, s); }

bool IsValidIdent(QStringView ident, TDotRule dots) {
  bool isStart = true;
  for (const QChar c : ident) {
    const bool isDot = c == u'.' && dots == drAllowDots && !isStart;
    if (!isDot && !(isStart ? IsIdentStart(c) : IsIdentPart(c))) return false;
    isStart = isDot;
  }
  return !isStart;
}

QString AnsiQuotedStr(QStringView s, QChar quote) {
  QString result = s.toString();
  result.replace(quote, QString(2, quote));
  return quote + result + quote;
}

QString QuotedStr(QStringView s) { return AnsiQuotedStr(s, u'\''); }

QString AnsiExtractQuotedStr(QStringView& source, QChar quote) {
  QString result;
  if (source.isEmpty() || source.front() != quote) return result;
  source = source.sliced(1);
  while (!source.isEmpty()) {
    const QChar c = source.front();
    source = source.sliced(1);
    if (c == quote) {
      if (source.isEmpty() || source.front() != quote) return result;
      source = source.sliced(1);
    }
    result += c;
  }
  return result;
}

QString AnsiDequotedStr(QStringView s, QChar quote) {
  if (s.size() < 2 || s.front() != quote || s.back() != quote) return s.toString();
  QStringView rest = s;
  return AnsiExtractQuotedStr(rest, quote);
}

QString AdjustLineBreaks(QStringView s, TTextLineBreakStyle style) {
  QString result;
  result.reserve(s.size());
  for (qsizetype i = 0; i < s.size(); ++i) {
    const QChar c = s[i];
    if (c != u'\r' && c != u'\n') {
      result += c;
      continue;
    }
    if (c == u'\r' && i + 1 < s.size() && s[i + 1] == u'\n') ++i;
    if (style == tlbsCRLF) result += u'\r';
    result += u'\n';
  }
  return result;
}

}  // namespace kt
