#pragma once

#include "kt/rtl/conversions/Currency.h"
#include "kt/rtl/conversions/FormatSettings.h"

#include <QString>

namespace kt {

/// How FloatToStrF writes a number.
enum TFloatFormat {
  ffGeneral,   ///< The shortest text: fixed for 0.00001 and above while the precision lasts, else scientific.
  ffExponent,  ///< "-d.dddE+ddd".
  ffFixed,     ///< "-ddd.dd".
  ffNumber,    ///< "-d,ddd.dd".
  ffCurrency   ///< A number with the currency sign where the settings put it.
};

/// A number as text. `precision` is the number of significant digits (1 to 18; 15 for a double). `digits` is the number
/// of digits after the point (0 to 18), for ffGeneral and ffExponent the least number of digits of the exponent (0 to
/// 4). A number with more than `precision` digits before its point is written as ffGeneral. Infinities are "INF" and
/// "-INF", what is no number is "NAN".
QString FloatToStrF(double value, TFloatFormat format, int precision, int digits,
                    const TFormatSettings& settings = FormatSettings());
QString FloatToStrF(Currency value, TFloatFormat format, int digits,
                    const TFormatSettings& settings = FormatSettings());

/// A number with up to 15 significant digits, as ffGeneral.
QString FloatToStr(double value, const TFormatSettings& settings = FormatSettings());
/// An amount, exact, as ffGeneral.
QString CurrToStr(Currency value, const TFormatSettings& settings = FormatSettings());

}  // namespace kt
