#include "kt/rtl/conversions/DateTime.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

#include <algorithm>
#include <cmath>

namespace kt {
namespace {

constexpr int kFirstDay = -693593;
constexpr int kLastDay = 2958465;
/// The Julian day of 30 December 1899.
constexpr qint64 kJulianOffset = 2415019;

QDate DateOfStamp(const TTimeStamp& stamp) { return QDate::fromJulianDay(kJulianOffset + stamp.Day); }

}  // namespace

bool TryDateTimeToTimeStamp(TDateTime value, TTimeStamp& stamp) {
  if (!(value > kFirstDay - 1.0 && value < kLastDay + 1.0)) return false;
  const double whole = std::trunc(value);
  TTimeStamp result{static_cast<int>(whole),
                    static_cast<int>(std::floor(std::fabs(value - whole) * MSecsPerDay + 0.5))};
  if (result.MSec >= MSecsPerDay) {
    result.MSec -= MSecsPerDay;
    ++result.Day;
  }
  if (result.Day < kFirstDay || result.Day > kLastDay) return false;
  stamp = result;
  return true;
}

TTimeStamp DateTimeToTimeStamp(TDateTime value) {
  TTimeStamp stamp;
  if (!TryDateTimeToTimeStamp(value, stamp)) throw EConvertError(SDateEncodeError);
  return stamp;
}

TDateTime TimeStampToDateTime(const TTimeStamp& stamp) {
  const double time = static_cast<double>(stamp.MSec) / MSecsPerDay;
  return stamp.Day < 0 ? stamp.Day - time : stamp.Day + time;
}

bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

bool TryEncodeDate(int year, int month, int day, TDateTime& value) {
  if (year < 1 || year > 9999) return false;
  const QDate date(year, month, day);
  if (!date.isValid()) return false;
  value = static_cast<double>(date.toJulianDay() - kJulianOffset);
  return true;
}

TDateTime EncodeDate(int year, int month, int day) {
  TDateTime value = 0;
  if (!TryEncodeDate(year, month, day, value)) throw EConvertError(SDateEncodeError);
  return value;
}

bool TryEncodeTime(int hour, int min, int sec, int msec, TDateTime& value) {
  if (!QTime::isValid(hour, min, sec, msec)) return false;
  value = static_cast<double>(((hour * 60 + min) * 60 + sec) * 1000 + msec) / MSecsPerDay;
  return true;
}

TDateTime EncodeTime(int hour, int min, int sec, int msec) {
  TDateTime value = 0;
  if (!TryEncodeTime(hour, min, sec, msec, value)) throw EConvertError(STimeEncodeError);
  return value;
}

TDateTime ComposeDateTime(TDateTime date, TDateTime time) {
  return TimeStampToDateTime({DateTimeToTimeStamp(date).Day, DateTimeToTimeStamp(time).MSec});
}

TDateParts DecodeDate(TDateTime value) {
  const QDate date = DateOfStamp(DateTimeToTimeStamp(value));
  return {date.year(), date.month(), date.day()};
}

void DecodeDate(TDateTime value, int& year, int& month, int& day) {
  const TDateParts parts = DecodeDate(value);
  year = parts.Year;
  month = parts.Month;
  day = parts.Day;
}

TTimeParts DecodeTime(TDateTime value) {
  const QTime time = QTime::fromMSecsSinceStartOfDay(DateTimeToTimeStamp(value).MSec);
  return {time.hour(), time.minute(), time.second(), time.msec()};
}

void DecodeTime(TDateTime value, int& hour, int& min, int& sec, int& msec) {
  const TTimeParts parts = DecodeTime(value);
  hour = parts.Hour;
  min = parts.Min;
  sec = parts.Sec;
  msec = parts.MSec;
}

int DayOfWeek(TDateTime value) { return DateOfStamp(DateTimeToTimeStamp(value)).dayOfWeek() % 7 + 1; }

TDateTime Date() { return DateOf(Now()); }

TDateTime Time() { return TimeOf(Now()); }

TDateTime Now() {
  const QDateTime now = QDateTime::currentDateTime();
  return TimeStampToDateTime(
      {static_cast<int>(now.date().toJulianDay() - kJulianOffset), now.time().msecsSinceStartOfDay()});
}

TDateTime DateOf(TDateTime value) { return TimeStampToDateTime({DateTimeToTimeStamp(value).Day, 0}); }

TDateTime TimeOf(TDateTime value) { return TimeStampToDateTime({0, DateTimeToTimeStamp(value).MSec}); }

void ReplaceDate(TDateTime& value, TDateTime newDate) { value = ComposeDateTime(newDate, value); }

void ReplaceTime(TDateTime& value, TDateTime newTime) { value = ComposeDateTime(value, newTime); }

TDateTime IncDay(TDateTime value, int days) {
  const TTimeStamp stamp = DateTimeToTimeStamp(value);
  const qint64 day = qint64{stamp.Day} + days;
  if (day < kFirstDay || day > kLastDay) throw EConvertError(SDateEncodeError);
  return TimeStampToDateTime({static_cast<int>(day), stamp.MSec});
}

TDateTime IncMonth(TDateTime value, int months) {
  const TDateParts parts = DecodeDate(value);
  const qint64 month = qint64{parts.Year} * 12 + (parts.Month - 1) + months;
  if (month < 12 || month >= 12 * qint64{10000}) throw EConvertError(SDateEncodeError);
  const QDate first(static_cast<int>(month / 12), static_cast<int>(month % 12) + 1, 1);
  return ComposeDateTime(EncodeDate(first.year(), first.month(), std::min(parts.Day, first.daysInMonth())), value);
}

}  // namespace kt
