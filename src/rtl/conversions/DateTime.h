#pragma once

#include <QtGlobal>

namespace kt {

/// A moment as days since 30 December 1899, midnight. The fraction is the time of day and counts forward on both sides
/// of zero: -1.25 is 29 December 1899, 6:00. Dates reach from 1 January 0001 to 31 December 9999, times are exact to 1
/// ms.
using TDateTime = double;
using TDate = TDateTime;
using TTime = TDateTime;

/// The first midnight. The times of that day count away from zero, so they are smaller, though by less than 1.
inline constexpr TDateTime MinDateTime = -693593;
inline constexpr TDateTime MaxDateTime = 2958465.99999999;
inline constexpr int MSecsPerDay = 86400000;

struct TDateParts {
  int Year = 0;
  int Month = 0;
  int Day = 0;
};

struct TTimeParts {
  int Hour = 0;
  int Min = 0;
  int Sec = 0;
  int MSec = 0;
};

/// A moment as whole days since 30 December 1899 and milliseconds since midnight.
struct TTimeStamp {
  int Day = 0;
  int MSec = 0;
};

/// Raises EConvertError "Invalid argument to date encode" for what is no number or lies outside the range of dates.
TTimeStamp DateTimeToTimeStamp(TDateTime value);
bool TryDateTimeToTimeStamp(TDateTime value, TTimeStamp& stamp);
TDateTime TimeStampToDateTime(const TTimeStamp& stamp);

bool IsLeapYear(int year);
/// Raise EConvertError for a date or time that does not exist; Try... answers false and leaves `value`.
TDateTime EncodeDate(int year, int month, int day);
bool TryEncodeDate(int year, int month, int day, TDateTime& value);
TDateTime EncodeTime(int hour, int min, int sec, int msec);
bool TryEncodeTime(int hour, int min, int sec, int msec, TDateTime& value);
/// A date and a time of day together, on either side of zero.
TDateTime ComposeDateTime(TDateTime date, TDateTime time);

TDateParts DecodeDate(TDateTime value);
void DecodeDate(TDateTime value, int& year, int& month, int& day);
TTimeParts DecodeTime(TDateTime value);
void DecodeTime(TDateTime value, int& hour, int& min, int& sec, int& msec);
/// 1 is Sunday, 7 is Saturday.
int DayOfWeek(TDateTime value);

/// The local date, the local time, both.
TDateTime Date();
TDateTime Time();
TDateTime Now();

/// The moment without its time of day, or without its date.
TDateTime DateOf(TDateTime value);
TDateTime TimeOf(TDateTime value);
/// Puts the date of `newDate` into `value`, or its time, and keeps the other half.
void ReplaceDate(TDateTime& value, TDateTime newDate);
void ReplaceTime(TDateTime& value, TDateTime newTime);

TDateTime IncDay(TDateTime value, int days = 1);
/// The same day of another month, or that month's last day when it is shorter.
TDateTime IncMonth(TDateTime value, int months = 1);

}  // namespace kt
