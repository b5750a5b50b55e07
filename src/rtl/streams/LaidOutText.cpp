#include "kt/rtl/streams/LaidOutText.h"

#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/TextLexer.h"

namespace kt {
namespace {

bool IsLineEnd(char c) { return c == '\n' || c == '\r'; }

bool IsIndentByte(char c) { return c == ' ' || c == '\t'; }

/// Compares the present tokens: strings by their values, as they may go over several lines, as what is in braces may.
bool IsSameToken(TTextLexer& a, TTextLexer& b) {
  if (a.Kind() != b.Kind()) return false;
  if (a.Kind() == ttString) return a.Text() == b.Text();
  if (a.IsSymbol('{') && b.IsSymbol('{')) return a.ReadHex() == b.ReadHex();
  return a.Raw() == b.Raw();
}

}  // namespace

qsizetype TLaidOutText::LineStart(qsizetype at) const {
  while (at > 0 && !IsLineEnd(Text[at - 1])) --at;
  return at;
}

QByteArray TLaidOutText::IndentBefore(qsizetype at) const {
  const qsizetype start = LineStart(at);
  qsizetype end = start;
  while (end < Text.size() && IsIndentByte(Text[end])) ++end;
  return Part(start, end);
}

qsizetype TLaidOutText::WithLineEnd(qsizetype from) const {
  while (from > 0 && IsIndentByte(Text[from - 1])) --from;
  if (from > 0 && Text[from - 1] == '\n') --from;
  if (from > 0 && Text[from - 1] == '\r') --from;
  return from;
}

qsizetype TLaidOutText::WithBlanks(qsizetype to) const {
  qsizetype end = to;
  while (end < Text.size() && IsIndentByte(Text[end])) ++end;
  return end == Text.size() || IsLineEnd(Text[end]) ? end : to;
}

qsizetype TLaidOutText::BodyEnd(quint32 object) const {
  const auto properties = Layout.PropertiesOf(object);
  return properties.empty() ? Layout.Objects[object].To : properties.back().To;
}

TLaidOutText LaidOut(const QByteArray& utf8, TFormWords& words) { return {utf8, FindLayout(utf8, words)}; }

TLaidOutText LaidOutBinary(const QByteArray& binary, bool rawStrings, TFormWords& words) {
  TFormOptions options;
  options.Text.RawUtf8 = rawStrings;
  QByteArray text;
  ObjectBinaryToText(binary, text, options);
  text.squeeze();
  return LaidOut(text, words);
}

bool HasSameTokens(QByteArrayView a, QByteArrayView b) {
  if (a == b) return true;
  TTextLexer first(a.toByteArray());
  TTextLexer second(b.toByteArray());
  do {
    first.Next();
    second.Next();
    if (!IsSameToken(first, second)) return false;
  } while (first.Kind() != ttEnd);
  return true;
}

QByteArray Reindented(const QByteArray& text, QByteArrayView old, const QByteArray& indent) {
  if (old == indent) return text;
  QByteArray result;
  result.reserve(text.size());
  qsizetype from = 0;
  for (qsizetype at = 1; at < text.size(); ++at) {
    if (!IsLineEnd(text[at - 1]) || !QByteArrayView(text).sliced(at).startsWith(old) || IsLineEnd(text[at])) continue;
    result += QByteArrayView(text).sliced(from, at - from);
    result += indent;
    from = at + old.size();
  }
  return result + text.mid(from);
}

}  // namespace kt
