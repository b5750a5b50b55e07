#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/strings/DelimitedTextReader.h"
#include "kt/rtl/strings/Strings.h"

#include <algorithm>

namespace kt {

namespace {

using TFormat = TDelimitedTextReader::TFormat;

constexpr QChar kComma = u',';
constexpr QChar kDoubleQuote = u'"';

bool NeedsQuotes(const QString& line, const TFormat& format) {
  if (format.QuoteChar.isNull()) return false;
  return std::any_of(line.begin(), line.end(), [&format](QChar character) {
    return character == format.Delimiter || character == format.QuoteChar || (!format.IsStrict && character <= u' ');
  });
}

QString InQuotes(QString line, QChar quote) {
  line.replace(quote, QString(2, quote));
  return quote + line + quote;
}

QString Joined(TStrings& strings, const TFormat& format) {
  QString text;
  int count = 0;
  for (; count < strings.GetCount(); ++count) {
    const QString line = strings.GetStrings(count);
    if (count > 0) text += format.Delimiter;
    text += NeedsQuotes(line, format) ? InQuotes(line, format.QuoteChar) : line;
  }
  // Without quotes the one empty line would look like no line.
  if (count == 1 && text.isEmpty() && !format.QuoteChar.isNull()) return QString(2, format.QuoteChar);
  return text;
}

}  // namespace

QString TStrings::GetCommaText() { return Joined(*this, {kComma, kDoubleQuote, GetStrictDelimiter()}); }

void TStrings::SetCommaText(const QString& text) {
  SetDelimiter(kComma);
  SetQuoteChar(kDoubleQuote);
  SetDelimitedText(text);
}

QString TStrings::GetDelimitedText() { return Joined(*this, {GetDelimiter(), GetQuoteChar(), GetStrictDelimiter()}); }

void TStrings::SetDelimitedText(const QString& text) {
  // A copy: the caller's text may be what Clear() frees.
  const QString kept = text;
  TDelimitedTextReader reader(kept, {GetDelimiter(), GetQuoteChar(), GetStrictDelimiter()});
  const TUpdateBracket bracket(*this);
  Clear();
  for (QString line; reader.Next(line);) Add(line);
}

}  // namespace kt
