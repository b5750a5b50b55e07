#pragma once

#include <QString>
#include <QStringView>

namespace kt {

/// A whole number in decimal.
QString IntToStr(qint64 value);
QString IntToStr(quint64 value);
inline QString IntToStr(int value) { return IntToStr(static_cast<qint64>(value)); }
/// The bits of a number in hexadecimal, with at least so many digits (at most 32). A negative 32-bit number shows 8
/// digits.
QString IntToHex(int value, int digits);
QString IntToHex(qint64 value, int digits);

/// Whole numbers are read from leading blanks, an optional sign, then decimal digits, or hexadecimal ones after "$",
/// "x" or "0x". Nothing may follow. Hexadecimal digits may use every bit: StrToInt("$FFFFFFFF") is -1. StrTo... raises
/// EConvertError for any other text; ...Def answers the default; Try... answers false and leaves `value`.
int StrToInt(QStringView s);
int StrToIntDef(QStringView s, int defaultValue);
bool TryStrToInt(QStringView s, int& value);
qint64 StrToInt64(QStringView s);
qint64 StrToInt64Def(QStringView s, qint64 defaultValue);
bool TryStrToInt64(QStringView s, qint64& value);
/// Decimal up to 18446744073709551615, or hexadecimal; no minus sign.
bool TryStrToUInt64(QStringView s, quint64& value);

}  // namespace kt
