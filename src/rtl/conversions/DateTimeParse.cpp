#include "kt/rtl/conversions/DateTimeParse.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <array>
#include <optional>

namespace kt {
namespace {

/// Longer runs of digits are no part of a date or time.
constexpr qsizetype kMaxDigits = 5;

struct TNumber {
  int Value = 0;
  qsizetype Digits = 0;
};

enum THalf { haNone, haMorning, haAfternoon };

/// Reads a text from left to right. Each Take... answers whether it found what it looks for; blanks before it are
/// skipped.
class TDateTimeScanner {
 public:
  TDateTimeScanner(QStringView text, const TFormatSettings& settings) : FRest(text), FSettings(settings) {}

  bool TakeDate(TDateTime& value);
  bool TakeTime(TDateTime& value);
  bool IsAtEnd() {
    SkipBlanks();
    return FRest.isEmpty();
  }

 private:
  void SkipBlanks() {
    while (!FRest.isEmpty() && FRest.front() == u' ') FRest = FRest.sliced(1);
  }
  bool TakeNumber(TNumber& number);
  bool TakeText(QStringView text);
  THalf TakeHalf();
  bool TakeClock(TTimeParts& parts);
  QString FieldOrder() const;
  int FullYear(const TNumber& year) const;

  QStringView FRest;
  const TFormatSettings& FSettings;
};

bool TDateTimeScanner::TakeNumber(TNumber& number) {
  SkipBlanks();
  TNumber result;
  while (!FRest.isEmpty() && FRest.front() >= u'0' && FRest.front() <= u'9') {
    if (++result.Digits > kMaxDigits) return false;
    result.Value = result.Value * 10 + (FRest.front().unicode() - u'0');
    FRest = FRest.sliced(1);
  }
  if (result.Digits == 0) return false;
  number = result;
  return true;
}

bool TDateTimeScanner::TakeText(QStringView text) {
  SkipBlanks();
  if (text.isEmpty() || !FRest.startsWith(text, Qt::CaseInsensitive)) return false;
  FRest = FRest.sliced(text.size());
  return true;
}

THalf TDateTimeScanner::TakeHalf() {
  if (TakeText(FSettings.TimeAMString) || TakeText(u"AM")) return haMorning;
  if (TakeText(FSettings.TimePMString) || TakeText(u"PM")) return haAfternoon;
  return haNone;
}

/// The first letters of the date fields of the short date, such as "dmy"; "mdy" when it lacks one.
QString TDateTimeScanner::FieldOrder() const {
  QString order;
  for (const QChar c : FSettings.ShortDateFormat) {
    const QChar letter = c.toLower();
    if (QStringView(u"dmy").contains(letter) && !order.contains(letter)) order += letter;
  }
  return order.size() == 3 ? order : QStringLiteral("mdy");
}

int TDateTimeScanner::FullYear(const TNumber& year) const {
  if (year.Digits > 2) return year.Value;
  const int window = FSettings.TwoDigitYearCenturyWindow;
  const int start = DecodeDate(Now()).Year - window;
  const int full = start / 100 * 100 + year.Value;
  return window > 0 && full < start ? full + 100 : full;
}

bool TDateTimeScanner::TakeDate(TDateTime& value) {
  std::array<TNumber, 3> numbers;
  if (!TakeNumber(numbers[0]) || !TakeText(FSettings.DateSeparator) || !TakeNumber(numbers[1])) return false;
  QString order = FieldOrder();
  TDateParts date;
  if (TakeText(FSettings.DateSeparator)) {
    if (!TakeNumber(numbers[2])) return false;
    TakeText(FSettings.DateSeparator);
  } else {
    date.Year = DecodeDate(Now()).Year;
    order.remove(u'y');
  }
  for (qsizetype i = 0; i < order.size(); ++i) {
    const TNumber& number = numbers[static_cast<std::size_t>(i)];
    if (order[i] == u'd') date.Day = number.Value;
    if (order[i] == u'm') date.Month = number.Value;
    if (order[i] == u'y') date.Year = FullYear(number);
  }
  return TryEncodeDate(date.Year, date.Month, date.Day, value);
}

/// hours[:minutes[:seconds[.milliseconds]]]
bool TDateTimeScanner::TakeClock(TTimeParts& parts) {
  TNumber number;
  if (!TakeNumber(number)) return false;
  parts.Hour = number.Value;
  if (!TakeText(FSettings.TimeSeparator)) return true;
  if (!TakeNumber(number)) return false;
  parts.Min = number.Value;
  if (!TakeText(FSettings.TimeSeparator)) return true;
  if (!TakeNumber(number)) return false;
  parts.Sec = number.Value;
  if (!TakeText(FSettings.DecimalSeparator)) return true;
  if (!TakeNumber(number)) return false;
  parts.MSec = number.Value;
  return true;
}

bool TDateTimeScanner::TakeTime(TDateTime& value) {
  THalf half = TakeHalf();
  TTimeParts parts;
  if (!TakeClock(parts)) return false;
  if (half == haNone) half = TakeHalf();
  if (half != haNone) {
    if (parts.Hour < 1 || parts.Hour > 12) return false;
    parts.Hour = parts.Hour % 12 + (half == haAfternoon ? 12 : 0);
  }
  return TryEncodeTime(parts.Hour, parts.Min, parts.Sec, parts.MSec, value);
}

}  // namespace

bool TryStrToDate(QStringView s, TDateTime& value, const TFormatSettings& settings) {
  TDateTimeScanner scanner(s, settings);
  TDateTime date = 0;
  if (!scanner.TakeDate(date) || !scanner.IsAtEnd()) return false;
  value = date;
  return true;
}

bool TryStrToTime(QStringView s, TDateTime& value, const TFormatSettings& settings) {
  TDateTimeScanner scanner(s, settings);
  TDateTime time = 0;
  if (!scanner.TakeTime(time) || !scanner.IsAtEnd()) return false;
  value = time;
  return true;
}

bool TryStrToDateTime(QStringView s, TDateTime& value, const TFormatSettings& settings) {
  TDateTimeScanner scanner(s, settings);
  TDateTime date = 0;
  if (!scanner.TakeDate(date)) return TryStrToTime(s, value, settings);
  TDateTime time = 0;
  if (!scanner.IsAtEnd() && (!scanner.TakeTime(time) || !scanner.IsAtEnd())) return TryStrToTime(s, value, settings);
  value = ComposeDateTime(date, time);
  return true;
}

TDateTime StrToDate(QStringView s, const TFormatSettings& settings) {
  TDateTime value = 0;
  if (!TryStrToDate(s, value, settings)) throw EConvertError(Format(SInvalidDate, {s}));
  return value;
}

TDateTime StrToDateDef(QStringView s, TDateTime defaultValue, const TFormatSettings& settings) {
  TDateTime value = 0;
  return TryStrToDate(s, value, settings) ? value : defaultValue;
}

TDateTime StrToTime(QStringView s, const TFormatSettings& settings) {
  TDateTime value = 0;
  if (!TryStrToTime(s, value, settings)) throw EConvertError(Format(SInvalidTime, {s}));
  return value;
}

TDateTime StrToTimeDef(QStringView s, TDateTime defaultValue, const TFormatSettings& settings) {
  TDateTime value = 0;
  return TryStrToTime(s, value, settings) ? value : defaultValue;
}

TDateTime StrToDateTime(QStringView s, const TFormatSettings& settings) {
  TDateTime value = 0;
  if (!TryStrToDateTime(s, value, settings)) throw EConvertError(Format(SInvalidDateTime, {s}));
  return value;
}

TDateTime StrToDateTimeDef(QStringView s, TDateTime defaultValue, const TFormatSettings& settings) {
  TDateTime value = 0;
  return TryStrToDateTime(s, value, settings) ? value : defaultValue;
}

}  // namespace kt
