#include "kt/rtl/conversions/Floats.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/NeutralNumbers.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <QByteArray>

#include <algorithm>
#include <limits>
#include <optional>

namespace kt {
namespace {

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }

/// Moves the digits at the front of `s` to `target`; answers how many there were.
qsizetype TakeDigits(QStringView& s, QByteArray& target) {
  qsizetype count = 0;
  for (; !s.isEmpty() && IsDigit(s.front()); ++count) {
    target += static_cast<char>(s.front().unicode());
    s = s.sliced(1);
  }
  return count;
}

void TakeSign(QStringView& s, QByteArray& target) {
  if (s.isEmpty() || (s.front() != u'-' && s.front() != u'+')) return;
  if (s.front() == u'-') target += '-';
  s = s.sliced(1);
}

/// The number in the neutral spelling, or nothing when the text is no number.
std::optional<QByteArray> ToNeutral(QStringView s, const TFormatSettings& settings) {
  const QString trimmed = Trim(s);
  QStringView rest = trimmed;
  QByteArray result;
  TakeSign(rest, result);
  qsizetype digits = TakeDigits(rest, result);
  if (!settings.DecimalSeparator.isEmpty() && rest.startsWith(settings.DecimalSeparator)) {
    rest = rest.sliced(settings.DecimalSeparator.size());
    result += '.';
    digits += TakeDigits(rest, result);
  }
  if (digits == 0) return std::nullopt;
  if (!rest.isEmpty() && (rest.front() == u'e' || rest.front() == u'E')) {
    rest = rest.sliced(1);
    result += 'e';
    TakeSign(rest, result);
    if (TakeDigits(rest, result) == 0) return std::nullopt;
  }
  if (!rest.isEmpty()) return std::nullopt;
  return result;
}

/// Ten-thousandths of a plain number "-ddd.ddd", exactly; nothing when they do not fit in 64 bits.
std::optional<qint64> ScaledOf(QByteArrayView number) {
  const bool isNegative = number.startsWith('-');
  if (isNegative) number = number.sliced(1);
  const qsizetype found = number.indexOf('.');
  const qsizetype point = found < 0 ? number.size() : found;
  const auto digitAt = [&](qsizetype i) {
    return i < number.size() ? static_cast<quint64>(number[i] - '0') : quint64{0};
  };
  const quint64 limit = static_cast<quint64>(std::numeric_limits<qint64>::max()) + (isNegative ? 1 : 0);
  quint64 scaled = 0;
  for (qsizetype i = 0; i <= point + 4; ++i) {
    if (i == point) continue;
    if (scaled > (limit - digitAt(i)) / 10) return std::nullopt;
    scaled = scaled * 10 + digitAt(i);
  }
  if (digitAt(point + 5) >= 5 && ++scaled > limit) return std::nullopt;
  return static_cast<qint64>(isNegative ? 0 - scaled : scaled);
}

}  // namespace

bool TryStrToFloat(QStringView s, double& value, const TFormatSettings& settings) {
  const std::optional<QByteArray> neutral = ToNeutral(s, settings);
  return neutral && TryNeutralToDouble(*neutral, value);
}

double StrToFloat(QStringView s, const TFormatSettings& settings) {
  double value = 0;
  if (!TryStrToFloat(s, value, settings)) throw EConvertError(Format(SInvalidFloat, {s}));
  return value;
}

double StrToFloatDef(QStringView s, double defaultValue, const TFormatSettings& settings) {
  double value = 0;
  return TryStrToFloat(s, value, settings) ? value : defaultValue;
}

bool TryStrToCurr(QStringView s, Currency& value, const TFormatSettings& settings) {
  const std::optional<QByteArray> neutral = ToNeutral(s, settings);
  if (!neutral) return false;
  if (!neutral->contains('e')) {
    const std::optional<qint64> scaled = ScaledOf(*neutral);
    if (scaled) value = Currency::FromScaled(*scaled);
    return scaled.has_value();
  }
  double number = 0;
  if (!TryNeutralToDouble(*neutral, number)) return false;
  try {
    value = Currency(number);
  } catch (const ERangeError&) {
    return false;
  }
  return true;
}

Currency StrToCurr(QStringView s, const TFormatSettings& settings) {
  Currency value;
  if (!TryStrToCurr(s, value, settings)) throw EConvertError(Format(SInvalidCurrency, {s}));
  return value;
}

Currency StrToCurrDef(QStringView s, Currency defaultValue, const TFormatSettings& settings) {
  Currency value;
  return TryStrToCurr(s, value, settings) ? value : defaultValue;
}

QString BoolToStr(bool value, TBoolNames names) {
  if (names == bnTexts) return value ? QStringLiteral("True") : QStringLiteral("False");
  return value ? QStringLiteral("-1") : QStringLiteral("0");
}

bool TryStrToBool(QStringView s, bool& value) {
  double number = 0;
  if (TryStrToFloat(s, number))
    value = number != 0;
  else if (AnsiSameText(s, u"True"))
    value = true;
  else if (AnsiSameText(s, u"False"))
    value = false;
  else
    return false;
  return true;
}

bool StrToBool(QStringView s) {
  bool value = false;
  if (!TryStrToBool(s, value)) throw EConvertError(Format(SInvalidBoolean, {s}));
  return value;
}

bool StrToBoolDef(QStringView s, bool defaultValue) {
  bool value = false;
  return TryStrToBool(s, value) ? value : defaultValue;
}

}  // namespace kt
