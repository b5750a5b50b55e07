#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/strings/Strings.h"

namespace kt {

QString TStrings::GetTextStr() {
  const QString lineBreak = GetLineBreak();
  QString text;
  for (int i = 0; i < GetCount(); ++i) text += Get(i) + lineBreak;
  return text;
}

void TStrings::SetTextStr(const QString& text) {
  // A copy: the caller's text may be what Clear() frees.
  const QString kept = text;
  const qsizetype end = kept.indexOf(QChar(0));
  const QStringView all = end < 0 ? QStringView(kept) : QStringView(kept).left(end);
  const QString lineBreak = GetLineBreak();
  const TUpdateBracket bracket(*this);
  Clear();
  if (lineBreak == QLatin1StringView("\r\n")) {
    AddLines(all);
  } else {
    AddLinesEndedBy(all, lineBreak);
  }
}

void TStrings::AddLines(QStringView text) {
  qsizetype start = 0;
  while (start < text.size()) {
    qsizetype end = start;
    while (end < text.size() && text[end] != u'\r' && text[end] != u'\n') ++end;
    Add(text.mid(start, end - start).toString());
    start = end;
    if (start < text.size() && text[start] == u'\r') ++start;
    // Also without a CR before it; an LF that follows one belongs to it.
    if (start < text.size() && text[start] == u'\n') ++start;
  }
}

void TStrings::AddLinesEndedBy(QStringView text, const QString& lineBreak) {
  qsizetype start = 0;
  while (start < text.size()) {
    const qsizetype found = lineBreak.isEmpty() ? -1 : text.indexOf(lineBreak, start);
    const qsizetype end = found < 0 ? text.size() : found;
    Add(text.mid(start, end - start).toString());
    start = end + lineBreak.size();
  }
}

}  // namespace kt
