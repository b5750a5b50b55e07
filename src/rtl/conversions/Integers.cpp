#include "kt/rtl/conversions/Integers.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace kt {
namespace {

struct TScannedInteger {
  bool IsNegative = false;
  bool IsHex = false;
  quint64 Magnitude = 0;
};

int DigitValue(QChar c) {
  const char16_t code = c.unicode();
  if (code >= u'0' && code <= u'9') return code - u'0';
  if (code >= u'a' && code <= u'f') return code - u'a' + 10;
  if (code >= u'A' && code <= u'F') return code - u'A' + 10;
  return 99;
}

/// Takes "$", "x" or "0x" off the front.
bool TakeHexPrefix(QStringView& s) {
  const bool hasZero = s.size() > 1 && s[0] == u'0' && (s[1] == u'x' || s[1] == u'X');
  const bool hasMark = !s.isEmpty() && (s[0] == u'$' || s[0] == u'x' || s[0] == u'X');
  if (hasZero || hasMark) s = s.sliced(hasZero ? 2 : 1);
  return hasZero || hasMark;
}

bool ReadDigits(QStringView s, quint64 base, quint64& magnitude) {
  if (s.isEmpty()) return false;
  magnitude = 0;
  for (const QChar c : s) {
    const auto digit = static_cast<quint64>(DigitValue(c));
    if (digit >= base) return false;
    if (magnitude > (std::numeric_limits<quint64>::max() - digit) / base) return false;
    magnitude = magnitude * base + digit;
  }
  return true;
}

std::optional<TScannedInteger> Scan(QStringView s) {
  while (!s.isEmpty() && s.front() == u' ') s = s.sliced(1);
  TScannedInteger result;
  if (!s.isEmpty() && (s.front() == u'-' || s.front() == u'+')) {
    result.IsNegative = s.front() == u'-';
    s = s.sliced(1);
  }
  result.IsHex = TakeHexPrefix(s);
  if (!ReadDigits(s, result.IsHex ? 16 : 10, result.Magnitude)) return std::nullopt;
  return result;
}

/// Fits the scanned number into a signed type of so many bits.
template <typename TSigned, typename TUnsigned>
bool Fit(const TScannedInteger& scanned, TSigned& value) {
  const quint64 highest = static_cast<quint64>(std::numeric_limits<TSigned>::max());
  const quint64 limit = scanned.IsHex ? std::numeric_limits<TUnsigned>::max() : highest + (scanned.IsNegative ? 1 : 0);
  if (scanned.Magnitude > limit) return false;
  const auto bits = static_cast<TUnsigned>(scanned.Magnitude);
  value = static_cast<TSigned>(scanned.IsNegative ? TUnsigned{0} - bits : bits);
  return true;
}

QString HexText(quint64 value, int digits) {
  return QString::number(value, 16).toUpper().rightJustified(std::clamp(digits, 0, 32), u'0');
}

}  // namespace

QString IntToStr(qint64 value) { return QString::number(value); }

QString IntToStr(quint64 value) { return QString::number(value); }

QString IntToHex(int value, int digits) { return HexText(static_cast<quint32>(value), digits); }

QString IntToHex(qint64 value, int digits) { return HexText(static_cast<quint64>(value), digits); }

bool TryStrToInt(QStringView s, int& value) {
  const std::optional<TScannedInteger> scanned = Scan(s);
  return scanned && Fit<qint32, quint32>(*scanned, value);
}

bool TryStrToInt64(QStringView s, qint64& value) {
  const std::optional<TScannedInteger> scanned = Scan(s);
  return scanned && Fit<qint64, quint64>(*scanned, value);
}

bool TryStrToUInt64(QStringView s, quint64& value) {
  const std::optional<TScannedInteger> scanned = Scan(s);
  if (!scanned || (scanned->IsNegative && scanned->Magnitude != 0)) return false;
  value = scanned->Magnitude;
  return true;
}

int StrToInt(QStringView s) {
  int value = 0;
  if (!TryStrToInt(s, value)) throw EConvertError(Format(SInvalidInteger, {s}));
  return value;
}

int StrToIntDef(QStringView s, int defaultValue) {
  int value = 0;
  return TryStrToInt(s, value) ? value : defaultValue;
}

qint64 StrToInt64(QStringView s) {
  qint64 value = 0;
  if (!TryStrToInt64(s, value)) throw EConvertError(Format(SInvalidInteger, {s}));
  return value;
}

qint64 StrToInt64Def(QStringView s, qint64 defaultValue) {
  qint64 value = 0;
  return TryStrToInt64(s, value) ? value : defaultValue;
}

}  // namespace kt
