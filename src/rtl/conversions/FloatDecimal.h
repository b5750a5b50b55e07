#pragma once

#include "kt/rtl/conversions/Currency.h"

#include <string>

namespace kt {

enum TFloatKind { fkFinite, fkInfinity, fkNaN };

/// A number as decimal digits: 0.d1d2d3... * 10^Exponent, so that Exponent is the number of digits before the point.
/// Zero has no digits, the exponent 0 and no sign; there are never trailing zeros.
struct TFloatRec {
  TFloatKind Kind = fkFinite;
  bool Negative = false;
  int Exponent = 0;
  std::string Digits;
};

/// The decimal digits of a value, rounded (halves away from zero, as written with 18 digits) to at most `precision`
/// significant digits (1 to 18) and at most `decimals` digits after the point.
TFloatRec FloatToDecimal(double value, int precision, int decimals);
/// The same for an amount, which is exact.
TFloatRec FloatToDecimal(Currency value, int precision, int decimals);

}  // namespace kt
