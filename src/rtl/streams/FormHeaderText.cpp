#include "kt/rtl/streams/FormHeaderText.h"

#include <algorithm>

namespace kt {
namespace {

bool IsBlankByte(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// Takes a word, which a blank, a colon or a bracket ends, off the front.
QByteArrayView TakeWord(QByteArrayView& rest) {
  rest = rest.sliced(std::find_if_not(rest.begin(), rest.end(), IsBlankByte) - rest.begin());
  const auto ends = [](char c) { return IsBlankByte(c) || c == ':' || c == '['; };
  const auto end = std::find_if(rest.begin(), rest.end(), ends) - rest.begin();
  const QByteArrayView word = rest.first(end);
  rest = rest.sliced(end);
  return word;
}

/// Takes the byte off the front, and the blanks before it, if it is next.
bool TakeByte(QByteArrayView& rest, char byte) {
  const auto at = std::find_if_not(rest.begin(), rest.end(), IsBlankByte);
  if (at == rest.end() || *at != byte) return false;
  rest = rest.sliced(at - rest.begin() + 1);
  return true;
}

/// Changes one part of a header.
void ReplacePart(QByteArray& header, QByteArrayView part, QByteArrayView original, QByteArrayView text) {
  header.replace(part.data() - original.data(), part.size(), text.data(), text.size());
}

}  // namespace

TFormHeaderText::TFormHeaderText(QByteArrayView header) {
  QByteArrayView rest = header;
  Keyword = TakeWord(rest);
  ClassName = TakeWord(rest);
  if (TakeByte(rest, ':')) {
    Name = ClassName;
    ClassName = TakeWord(rest);
  }
  const auto bracket = std::find(rest.begin(), rest.end(), '[');
  Index = rest.sliced(bracket - rest.begin());
}

bool TFormHeaderText::HasSameParts(const TFormHeaderText& other) const {
  return Name.isEmpty() == other.Name.isEmpty() && ClassName.isEmpty() == other.ClassName.isEmpty() &&
         Index.isEmpty() == other.Index.isEmpty();
}

QByteArray EditHeader(QByteArrayView original, QByteArrayView before, QByteArrayView after) {
  if (before == after) return original.toByteArray();
  const TFormHeaderText parts(original);
  const TFormHeaderText old(before);
  const TFormHeaderText now(after);
  if (!parts.HasSameParts(old) || !parts.HasSameParts(now)) return after.toByteArray();
  QByteArray header = original.toByteArray();
  // From the end, where places before do not change.
  if (old.Index != now.Index) ReplacePart(header, parts.Index, original, now.Index);
  if (old.ClassName != now.ClassName) ReplacePart(header, parts.ClassName, original, now.ClassName);
  if (old.Name != now.Name) ReplacePart(header, parts.Name, original, now.Name);
  if (old.Keyword != now.Keyword) ReplacePart(header, parts.Keyword, original, now.Keyword);
  return header;
}

}  // namespace kt
