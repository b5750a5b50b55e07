#pragma once

#include <QString>

namespace kt {

/// Splits a delimited text into its lines, see TStrings::SetDelimitedText(). The text must outlive the reader.
class TDelimitedTextReader {
 public:
  struct TFormat {
    QChar Delimiter;
    QChar QuoteChar;
    bool IsStrict;
  };

  TDelimitedTextReader(QStringView text, TFormat format);

  /// False at the end; `line` is the next line otherwise.
  bool Next(QString& line);

 private:
  /// NUL at the end.
  QChar Here() const { return FPosition < FText.size() ? FText[FPosition] : QChar(0); }
  bool IsBlank() const { return !FFormat.IsStrict && FPosition < FText.size() && FText[FPosition] <= u' '; }
  void SkipBlanks();
  void SkipDelimiter();
  QString Quoted();
  QString Word();

  QStringView FText;
  TFormat FFormat;
  qsizetype FPosition = 0;
  /// The text ends with a delimiter, which an empty line follows.
  bool FEmptyLineAtEnd = false;
};

}  // namespace kt
