#pragma once

#include "kt/rtl/conversions/DateTime.h"
#include "kt/rtl/conversions/FormatSettings.h"

#include <QStringView>

namespace kt {

/// A date is numbers joined by the date separator, in the order of day, month and year in ShortDateFormat. Two numbers
/// are day and month of this year, in that order; after three numbers one more separator is allowed. A year of one or
/// two digits falls where TwoDigitYearCenturyWindow says. A time is hours[:minutes[:seconds[.milliseconds]]] with an AM
/// or PM (or the locale's words) before or behind it. A date and time is a date, blanks and a time, or a date alone, or
/// a time alone. Blanks around the parts do not matter. StrTo... raises EConvertError for any other text; ...Def
/// answers the default; TryStrTo... answers false and leaves `value`.
TDateTime StrToDate(QStringView s, const TFormatSettings& settings = FormatSettings());
TDateTime StrToDateDef(QStringView s, TDateTime defaultValue, const TFormatSettings& settings = FormatSettings());
bool TryStrToDate(QStringView s, TDateTime& value, const TFormatSettings& settings = FormatSettings());

TDateTime StrToTime(QStringView s, const TFormatSettings& settings = FormatSettings());
TDateTime StrToTimeDef(QStringView s, TDateTime defaultValue, const TFormatSettings& settings = FormatSettings());
bool TryStrToTime(QStringView s, TDateTime& value, const TFormatSettings& settings = FormatSettings());

TDateTime StrToDateTime(QStringView s, const TFormatSettings& settings = FormatSettings());
TDateTime StrToDateTimeDef(QStringView s, TDateTime defaultValue, const TFormatSettings& settings = FormatSettings());
bool TryStrToDateTime(QStringView s, TDateTime& value, const TFormatSettings& settings = FormatSettings());

}  // namespace kt
