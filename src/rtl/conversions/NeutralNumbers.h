#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace kt {

/// Numbers in files: the decimal point is ".", no locale has a say, and what was written reads back as the same value.
/// Infinities and what is no number are "inf", "-inf" and "nan".

/// The shortest text that reads back as the same value.
QByteArray DoubleToNeutral(double value);
QByteArray LongDoubleToNeutral(long double value);

/// Reads [-]digits[.digits][e[sign]digits]. False, and `value` untouched, when anything else is there or the number is
/// too large. A number too small for the type is read as zero.
bool TryNeutralToDouble(QByteArrayView text, double& value);
bool TryNeutralToLongDouble(QByteArrayView text, long double& value);

}  // namespace kt
