#include "kt/rtl/conversions/DateTimeFormat.h"

#include "kt/rtl/conversions/MaskText.h"

#include <algorithm>

namespace kt {
namespace {

/// A picture may name a picture of the settings (which may name another): so deep at most.
constexpr int kNestingLimit = 2;

QString Padded(int number, qsizetype digits) { return QString::number(number).rightJustified(digits, u'0'); }

class TDateTimeWriter {
 public:
  TDateTimeWriter(TDateTime value, const TFormatSettings& settings)
      : FValue(value),
        FSettings(settings),
        FStamp(DateTimeToTimeStamp(value)),
        FDate(DecodeDate(value)),
        FTime(DecodeTime(value)) {}

  void Write(QStringView mask, int depth);
  const QString& Result() const { return FResult; }

 private:
  qsizetype WriteQuoted(QStringView rest);
  qsizetype WriteHalf(QStringView rest);
  void WriteField(char16_t letter, qsizetype count, int depth);
  void WriteDay(qsizetype count, int depth);
  void WriteMonth(qsizetype count);
  void WriteHour(qsizetype count);
  void WriteNested(const QString& mask, int depth) {
    if (depth < kNestingLimit) Write(mask, depth + 1);
  }

  TDateTime FValue;
  const TFormatSettings& FSettings;
  TTimeStamp FStamp;
  TDateParts FDate;
  TTimeParts FTime;
  QString FResult;
  bool FIsTwelve = false;
  bool FIsAfterHour = false;
};

bool StartsWith(QStringView text, QStringView start) { return text.startsWith(start, Qt::CaseInsensitive); }

/// How many characters an am/pm picture at the front takes, 0 when there is none.
qsizetype HalfLength(QStringView rest) {
  if (StartsWith(rest, u"am/pm")) return 5;
  if (StartsWith(rest, u"ampm")) return 4;
  return StartsWith(rest, u"a/p") ? 3 : 0;
}

bool HasHalf(QStringView mask) {
  for (qsizetype i = 0; i < mask.size(); ++i) {
    if (IsQuote(mask[i])) {
      const qsizetype end = mask.indexOf(mask[i], i + 1);
      if (end < 0) return false;
      i = end;
    } else if (HalfLength(mask.sliced(i)) > 0) {
      return true;
    }
  }
  return false;
}

bool IsField(QChar c) { return QStringView(u"cdmyhnszt").contains(c.toLower()); }

void TDateTimeWriter::Write(QStringView mask, int depth) {
  const bool wasTwelve = FIsTwelve;
  FIsTwelve = HasHalf(mask);
  FIsAfterHour = false;
  for (qsizetype i = 0; i < mask.size();) {
    const QChar c = mask[i];
    if (IsQuote(c)) {
      i += WriteQuoted(mask.sliced(i));
    } else if (HalfLength(mask.sliced(i)) > 0) {
      i += WriteHalf(mask.sliced(i));
    } else if (IsField(c)) {
      qsizetype count = 1;
      while (i + count < mask.size() && mask[i + count].toLower() == c.toLower()) ++count;
      WriteField(c.toLower().unicode(), count, depth);
      i += count;
    } else {
      if (c == u'/')
        FResult += FSettings.DateSeparator;
      else if (c == u':')
        FResult += FSettings.TimeSeparator;
      else
        FResult += c;
      ++i;
    }
  }
  FIsTwelve = wasTwelve;
}

qsizetype TDateTimeWriter::WriteQuoted(QStringView rest) {
  const qsizetype found = rest.indexOf(rest[0], 1);
  const qsizetype end = found < 0 ? rest.size() : found;
  FResult += rest.sliced(1, end - 1);
  return std::min(end + 1, rest.size());
}

qsizetype TDateTimeWriter::WriteHalf(QStringView rest) {
  const qsizetype length = HalfLength(rest);
  const bool isMorning = FTime.Hour < 12;
  if (length == 5)
    FResult += isMorning ? rest.first(2) : rest.sliced(3, 2);
  else if (length == 3)
    FResult += isMorning ? rest[0] : rest[2];
  else
    FResult += isMorning ? FSettings.TimeAMString : FSettings.TimePMString;
  return length;
}

void TDateTimeWriter::WriteField(char16_t letter, qsizetype count, int depth) {
  const bool isMinute = letter == u'n' || (letter == u'm' && FIsAfterHour && count <= 2);
  FIsAfterHour = letter == u'h';
  if (isMinute) {
    FResult += Padded(FTime.Min, std::min<qsizetype>(count, 2));
    return;
  }
  switch (letter) {
    case u'c':
      WriteNested(FSettings.ShortDateFormat, depth);
      if (FStamp.MSec != 0) {
        FResult += u' ';
        WriteNested(FSettings.LongTimeFormat, depth);
      }
      break;
    case u'd':
      WriteDay(count, depth);
      break;
    case u'm':
      WriteMonth(count);
      break;
    case u'y':
      FResult += count <= 2 ? Padded(FDate.Year % 100, 2) : Padded(FDate.Year, 4);
      break;
    case u'h':
      WriteHour(count);
      break;
    case u's':
      FResult += Padded(FTime.Sec, std::min<qsizetype>(count, 2));
      break;
    case u'z':
      FResult += Padded(FTime.MSec, std::min<qsizetype>(count, 3));
      break;
    default:
      WriteNested(count == 1 ? FSettings.ShortTimeFormat : FSettings.LongTimeFormat, depth);
      break;
  }
}

void TDateTimeWriter::WriteDay(qsizetype count, int depth) {
  const auto day = static_cast<std::size_t>(DayOfWeek(FValue) - 1);
  if (count <= 2)
    FResult += Padded(FDate.Day, count);
  else if (count == 3)
    FResult += FSettings.ShortDayNames[day];
  else if (count == 4)
    FResult += FSettings.LongDayNames[day];
  else
    WriteNested(count == 5 ? FSettings.ShortDateFormat : FSettings.LongDateFormat, depth);
}

void TDateTimeWriter::WriteMonth(qsizetype count) {
  const auto month = static_cast<std::size_t>(FDate.Month - 1);
  if (count <= 2)
    FResult += Padded(FDate.Month, count);
  else
    FResult += count == 3 ? FSettings.ShortMonthNames[month] : FSettings.LongMonthNames[month];
}

void TDateTimeWriter::WriteHour(qsizetype count) {
  const int hour = FIsTwelve ? (FTime.Hour + 11) % 12 + 1 : FTime.Hour;
  FResult += Padded(hour, std::min<qsizetype>(count, 2));
}

}  // namespace

QString FormatDateTime(QStringView mask, TDateTime value, const TFormatSettings& settings) {
  TDateTimeWriter writer(value, settings);
  writer.Write(mask.isEmpty() ? QStringView(u"c") : mask, 0);
  return writer.Result();
}

QString DateToStr(TDateTime value, const TFormatSettings& settings) {
  return FormatDateTime(settings.ShortDateFormat, value, settings);
}

QString TimeToStr(TDateTime value, const TFormatSettings& settings) {
  return FormatDateTime(settings.LongTimeFormat, value, settings);
}

QString DateTimeToStr(TDateTime value, const TFormatSettings& settings) {
  return FormatDateTime(u"c", value, settings);
}

}  // namespace kt
