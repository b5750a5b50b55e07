#pragma once

#include "kt/rtl/conversions/FloatText.h"

#include <QStringView>

namespace kt {

/// A number is read from [blanks] [sign] digits [decimal separator digits] ["E" [sign] digits] [blanks]; the digits on
/// one side of the separator may be missing. Thousand separators are not read. The value is the nearest double,
/// whatever the number of digits. StrTo... raises EConvertError for any other text and for numbers too large for a
/// double;
/// ...Def answers the default; Try... answers false and leaves `value`.
double StrToFloat(QStringView s, const TFormatSettings& settings = FormatSettings());
double StrToFloatDef(QStringView s, double defaultValue, const TFormatSettings& settings = FormatSettings());
bool TryStrToFloat(QStringView s, double& value, const TFormatSettings& settings = FormatSettings());

/// The same for amounts: read exactly, digits after the fourth decimal are rounded, halves away from zero.
Currency StrToCurr(QStringView s, const TFormatSettings& settings = FormatSettings());
Currency StrToCurrDef(QStringView s, Currency defaultValue, const TFormatSettings& settings = FormatSettings());
bool TryStrToCurr(QStringView s, Currency& value, const TFormatSettings& settings = FormatSettings());

/// The name of a truth value: "-1" and "0", or "True" and "False".
enum TBoolNames { bnNumbers, bnTexts };
QString BoolToStr(bool value, TBoolNames names = bnNumbers);
/// True and False in any case, or a number, of which zero alone is False.
bool StrToBool(QStringView s);
bool StrToBoolDef(QStringView s, bool defaultValue);
bool TryStrToBool(QStringView s, bool& value);

}  // namespace kt
