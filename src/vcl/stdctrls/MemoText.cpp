#include "kt/vcl/stdctrls/MemoText.h"

#include <QLatin1StringView>

#include <algorithm>

namespace kt {

namespace {

constexpr QLatin1StringView kBreak{"\r\n"};
constexpr int kBreakSize = 2;

/// What ends a line besides CR and LF where Qt shows it: the separator of paragraphs, and the ends of its own frames.
bool IsOtherBreak(QChar character) {
  return character == QChar::ParagraphSeparator || character == QChar(0xFDD0) || character == QChar(0xFDD1);
}

/// Adds the starts of the lines that begin within `text`, which stands at `offset`.
void AddStarts(QStringView text, int offset, std::vector<int>& starts) {
  for (qsizetype found = text.indexOf(kBreak); found >= 0; found = text.indexOf(kBreak, found + kBreakSize)) {
    starts.push_back(offset + static_cast<int>(found) + kBreakSize);
  }
}

}  // namespace

QString TMemoText::Normalized(const QString& text) {
  QString result;
  result.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar character = text[i];
    if (character != u'\r' && character != u'\n' && !IsOtherBreak(character)) {
      result += character;
      continue;
    }
    if (character == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
    result += kBreak;
  }
  return result;
}

void TMemoText::SetText(const QString& text) {
  FText = text;
  FAreStartsOld = true;
}

const std::vector<int>& TMemoText::Starts() const {
  if (!FAreStartsOld) return FStarts;
  FStarts.assign(1, 0);
  AddStarts(FText, 0, FStarts);
  FAreStartsOld = false;
  return FStarts;
}

int TMemoText::LineCount() const {
  const auto count = static_cast<int>(Starts().size());
  return FStarts.back() == Size() ? count - 1 : count;
}

int TMemoText::LineEnd(int index) const {
  const std::vector<int>& starts = Starts();
  const auto next = static_cast<std::size_t>(index) + 1;
  return next < starts.size() ? starts[next] - kBreakSize : Size();
}

QString TMemoText::Line(int index) const {
  const int start = Starts()[static_cast<std::size_t>(index)];
  return FText.mid(start, LineEnd(index) - start);
}

TMemoText::TChange TMemoText::Inserting(int index, const QString& line) const {
  const std::vector<int>& starts = Starts();
  const auto at = static_cast<std::size_t>(index);
  if (at < starts.size()) return {starts[at], 0, line + kBreak};
  // Behind a last line that nothing ends.
  return {Size(), 0, kBreak + line};
}

TMemoText::TChange TMemoText::Deleting(int index) const {
  const std::vector<int>& starts = Starts();
  const int start = starts[static_cast<std::size_t>(index)];
  const auto next = static_cast<std::size_t>(index) + 1;
  const int end = next < starts.size() ? starts[next] : Size();
  return {start, end - start, {}};
}

TMemoText::TChange TMemoText::Replacing(int index, const QString& line) const {
  const int start = Starts()[static_cast<std::size_t>(index)];
  return {start, LineEnd(index) - start, line};
}

void TMemoText::Apply(const TChange& change) {
  const bool isAtEnd = change.Start == Size();
  if (isAtEnd && !FAreStartsOld) {
    AddStarts(change.Text, change.Start, FStarts);
  } else {
    FAreStartsOld = true;
  }
  if (isAtEnd) {
    FText += change.Text;
  } else {
    FText.replace(change.Start, change.Length, change.Text);
  }
}

QPoint TMemoText::PlaceOf(int position) const {
  const std::vector<int>& starts = Starts();
  const auto after = std::upper_bound(starts.begin(), starts.end(), position);
  const auto line = static_cast<int>(after - starts.begin()) - 1;
  return {std::min(position, LineEnd(line)) - starts[static_cast<std::size_t>(line)], line};
}

int TMemoText::PositionOf(QPoint place) const {
  const std::vector<int>& starts = Starts();
  const int line = std::clamp(place.y(), 0, static_cast<int>(starts.size()) - 1);
  const int start = starts[static_cast<std::size_t>(line)];
  return std::clamp(start + std::max(place.x(), 0), start, LineEnd(line));
}

int TMemoText::Valid(int position) const {
  const bool isBetween = position > 0 && position < Size() && FText[position] == u'\n' && FText[position - 1] == u'\r';
  return isBetween ? position - 1 : position;
}

}  // namespace kt
