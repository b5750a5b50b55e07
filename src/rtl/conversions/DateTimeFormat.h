#pragma once

#include "kt/rtl/conversions/DateTime.h"
#include "kt/rtl/conversions/FormatSettings.h"

#include <QString>
#include <QStringView>

namespace kt {

/// A moment in a picture (letters in either case):
///   c        short date, and the long time unless it is midnight
///   d dd     day of month          ddd dddd   name of the day       ddddd dddddd   short and long date
///   m mm     month; minutes right after an hour                     mmm mmmm       name of the month
///   y yy     year in two digits    yyyy   year in four digits
///   h hh     hour, of 12 when an am/pm follows anywhere              n nn   minute   s ss   second
///   z zzz    millisecond           t tt   short and long time
///   am/pm a/p ampm   half of the day, in the case of the picture, ampm in the locale's words
///   /  :     date and time separators                                'xx' "xx"   text as it is
/// An empty picture counts as "c". Raises EConvertError for moments out of range.
QString FormatDateTime(QStringView mask, TDateTime value, const TFormatSettings& settings = FormatSettings());

/// Short date, long time, or both; DateTimeToStr leaves out the time when it is midnight.
QString DateToStr(TDateTime value, const TFormatSettings& settings = FormatSettings());
QString TimeToStr(TDateTime value, const TFormatSettings& settings = FormatSettings());
QString DateTimeToStr(TDateTime value, const TFormatSettings& settings = FormatSettings());

}  // namespace kt
