#include "kt/rtl/strings/DelimitedTextReader.h"

#include <utility>

namespace kt {

TDelimitedTextReader::TDelimitedTextReader(QStringView text, TFormat format) : FText(text), FFormat(format) {
  const qsizetype end = text.indexOf(QChar(0));
  if (end >= 0) FText = text.left(end);
  SkipBlanks();
}

bool TDelimitedTextReader::Next(QString& line) {
  if (FPosition == FText.size()) {
    line.clear();
    return std::exchange(FEmptyLineAtEnd, false);
  }
  line = Here() == FFormat.QuoteChar ? Quoted() : Word();
  SkipBlanks();
  SkipDelimiter();
  return true;
}

void TDelimitedTextReader::SkipBlanks() {
  while (IsBlank()) ++FPosition;
}

void TDelimitedTextReader::SkipDelimiter() {
  if (FPosition == FText.size() || Here() != FFormat.Delimiter) return;
  ++FPosition;
  // Only a delimiter that is the very last character: blanks behind it make no line.
  FEmptyLineAtEnd = FPosition == FText.size();
  SkipBlanks();
}

QString TDelimitedTextReader::Quoted() {
  QString line;
  ++FPosition;
  while (FPosition < FText.size()) {
    const QChar character = FText[FPosition++];
    if (character != FFormat.QuoteChar) {
      line += character;
    } else if (Here() == FFormat.QuoteChar) {
      line += character;
      ++FPosition;
    } else {
      break;
    }
  }
  return line;
}

QString TDelimitedTextReader::Word() {
  const qsizetype start = FPosition;
  while (FPosition < FText.size() && Here() != FFormat.Delimiter && !IsBlank()) ++FPosition;
  return FText.mid(start, FPosition - start).toString();
}

}  // namespace kt
