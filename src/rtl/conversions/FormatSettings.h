#pragma once

#include <QLocale>
#include <QString>

#include <array>

namespace kt {

/// The texts and patterns that number, date and time conversions use. FormatSettings() holds those of FormatLocale();
/// a program may make its own and hand it to any conversion.
struct TFormatSettings {
  /// The invariant settings: decimal point, "yyyy-mm-dd", "hh:nn:ss", English names.
  TFormatSettings();
  /// The settings of a locale. Patterns are reduced to their fields and separators so that each of them can be read
  /// back: years always have four digits, a short date is always numeric.
  explicit TFormatSettings(const QLocale& locale);

  QString DecimalSeparator;
  QString ThousandSeparator;
  QString CurrencyString;
  /// 0 = "$1", 1 = "1$", 2 = "$ 1", 3 = "1 $".
  int CurrencyFormat = 0;
  /// 0 = "($1)", 1 = "-$1", 2 = "$-1", 3 = "$1-", 4 = "(1$)", 5 = "-1$", 6 = "1-$", 7 = "1$-", 8 = "-1 $", 9 = "-$ 1",
  /// 10 = "1 $-", 11 = "$ 1-", 12 = "$ -1", 13 = "1- $", 14 = "($ 1)", 15 = "(1 $)".
  int NegCurrFormat = 1;
  int CurrencyDecimals = 2;
  QString ListSeparator;

  QString DateSeparator;
  QString TimeSeparator;
  QString ShortDateFormat;
  QString LongDateFormat;
  QString ShortTimeFormat;
  QString LongTimeFormat;
  QString TimeAMString;
  QString TimePMString;
  /// January first.
  std::array<QString, 12> ShortMonthNames;
  std::array<QString, 12> LongMonthNames;
  /// Sunday first.
  std::array<QString, 7> ShortDayNames;
  std::array<QString, 7> LongDayNames;
  /// A year of two digits falls into the hundred years that start this many years before the present one;
  /// 0 means the present century.
  int TwoDigitYearCenturyWindow = 50;
};

/// The locale of every conversion and comparison of this process; QLocale() of the first use unless one was set.
const QLocale& FormatLocale();
/// The settings made from FormatLocale().
const TFormatSettings& FormatSettings();
/// Changes the locale. To be called while no other thread converts or compares (usually first thing in main):
/// references got from FormatLocale() and FormatSettings() see the new values.
void SetFormatLocale(const QLocale& locale);
/// Grows with every SetFormatLocale(), so that whoever keeps something made from the locale knows when it is stale.
unsigned FormatLocaleGeneration();

}  // namespace kt
