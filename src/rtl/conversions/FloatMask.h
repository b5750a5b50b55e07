#pragma once

#include "kt/rtl/conversions/Currency.h"
#include "kt/rtl/conversions/FormatSettings.h"

#include <QString>
#include <QStringView>

namespace kt {

/// A number in a picture:
///   0   a digit, "0" when the number has none there     #   a digit, nothing when the number has none there
///   .   the decimal separator (the first one counts)     ,   thousand separators, wherever it stands
///   E+ E- e+ e-   scientific, with as many digits of exponent as zeros follow; + writes a plus sign too
///   'xx' "xx"   text as it is                            ;   separates pictures for positive, negative and zero
/// Digits before the picture's first placeholder are never lost; decimals are rounded to the picture. An empty picture,
/// or a number of more than 18 digits before its point, is written as by FloatToStr. A negative number without a
/// picture of its own gets a minus sign in front.
QString FormatFloat(QStringView mask, double value, const TFormatSettings& settings = FormatSettings());
QString FormatCurr(QStringView mask, Currency value, const TFormatSettings& settings = FormatSettings());

}  // namespace kt
