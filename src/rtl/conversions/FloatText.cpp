#include "kt/rtl/conversions/FloatText.h"

#include "kt/rtl/conversions/FloatDecimal.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace kt {
namespace {

constexpr int kCurrencyPrecision = 19;
constexpr int kAllDecimals = 9999;

/// The digit at a position counted from the decimal point's left (0 is the first of Digits); zero beyond them.
QChar DigitAt(const TFloatRec& rec, int index) {
  const bool isInside = index >= 0 && index < static_cast<int>(rec.Digits.size());
  return QLatin1Char(isInside ? rec.Digits[static_cast<std::size_t>(index)] : '0');
}

QString IntegerPart(const TFloatRec& rec, const QString& groupSeparator) {
  if (rec.Exponent <= 0) return QStringLiteral("0");
  QString result;
  for (int i = 0; i < rec.Exponent; ++i) {
    if (i > 0 && (rec.Exponent - i) % 3 == 0) result += groupSeparator;
    result += DigitAt(rec, i);
  }
  return result;
}

QString FixedText(const TFloatRec& rec, int decimals, const QString& groupSeparator, const TFormatSettings& settings) {
  QString result = IntegerPart(rec, groupSeparator);
  if (decimals > 0) result += settings.DecimalSeparator;
  for (int i = 0; i < decimals; ++i) result += DigitAt(rec, rec.Exponent + i);
  return result;
}

enum TPlusSign { psNone, psAlways };

QString ExponentText(int exponent, TPlusSign plus, int minDigits) {
  QString result = QStringLiteral("E");
  if (exponent < 0)
    result += QLatin1Char('-');
  else if (plus == psAlways)
    result += QLatin1Char('+');
  return result + QString::number(std::abs(exponent)).rightJustified(std::clamp(minDigits, 0, 4), QLatin1Char('0'));
}

QString ScientificText(const TFloatRec& rec, int count, const TFormatSettings& settings) {
  QString result = DigitAt(rec, 0);
  if (count > 1) result += settings.DecimalSeparator;
  for (int i = 1; i < count; ++i) result += DigitAt(rec, i);
  return result;
}

int PowerOf(const TFloatRec& rec) { return rec.Digits.empty() ? 0 : rec.Exponent - 1; }

QString GeneralText(const TFloatRec& rec, int precision, int digits, const TFormatSettings& settings) {
  const int count = static_cast<int>(rec.Digits.size());
  if (rec.Exponent > precision || rec.Exponent < -4)
    return ScientificText(rec, count, settings) + ExponentText(PowerOf(rec), psNone, digits);
  return FixedText(rec, std::max(count - rec.Exponent, 0), QString(), settings);
}

/// n is the number, $ the sign, the rest is literal; indexed by CurrencyFormat and NegCurrFormat.
constexpr std::array<const char*, 4> kPositiveLayouts{"$n", "n$", "$ n", "n $"};
constexpr std::array<const char*, 16> kNegativeLayouts{"($n)", "-$n",  "$-n",   "$n-",  "(n$)", "-n$",
                                                       "n-$",  "n$-",  "-n $",  "-$ n", "n $-", "$ n-",
                                                       "$ -n", "n- $", "($ n)", "(n $)"};

QString CurrencyText(const QString& number, bool isNegative, const TFormatSettings& settings) {
  const auto positive = static_cast<std::size_t>(std::clamp(settings.CurrencyFormat, 0, 3));
  const auto negative = static_cast<std::size_t>(std::clamp(settings.NegCurrFormat, 0, 15));
  QString result;
  for (const char* at = isNegative ? kNegativeLayouts[negative] : kPositiveLayouts[positive]; *at; ++at) {
    if (*at == 'n')
      result += number;
    else if (*at == '$')
      result += settings.CurrencyString;
    else
      result += QLatin1Char(*at);
  }
  return result;
}

struct TLayout {
  TFloatFormat Format;
  int Precision;
  int Digits;
};

template <typename T>
QString ToText(T value, TLayout layout, const TFormatSettings& settings) {
  const bool hasDecimals = layout.Format >= ffFixed;
  const int decimals = std::clamp(layout.Digits, 0, 18);
  TFloatRec rec = FloatToDecimal(value, layout.Precision, hasDecimals ? decimals : kAllDecimals);
  const QString sign = rec.Negative ? QStringLiteral("-") : QString();
  if (rec.Kind == fkNaN) return QStringLiteral("NAN");
  if (rec.Kind == fkInfinity) return sign + QStringLiteral("INF");
  if (layout.Format == ffExponent)
    return sign + ScientificText(rec, layout.Precision, settings) + ExponentText(PowerOf(rec), psAlways, layout.Digits);
  if (layout.Format == ffGeneral) return sign + GeneralText(rec, layout.Precision, layout.Digits, settings);
  if (rec.Exponent > layout.Precision) return sign + GeneralText(rec, layout.Precision, 0, settings);
  const QString group = layout.Format == ffFixed ? QString() : settings.ThousandSeparator;
  const QString number = FixedText(rec, decimals, group, settings);
  return layout.Format == ffCurrency ? CurrencyText(number, rec.Negative, settings) : sign + number;
}

}  // namespace

QString FloatToStrF(double value, TFloatFormat format, int precision, int digits, const TFormatSettings& settings) {
  return ToText(value, {format, std::clamp(precision, 1, 18), digits}, settings);
}

QString FloatToStrF(Currency value, TFloatFormat format, int digits, const TFormatSettings& settings) {
  return ToText(value, {format, kCurrencyPrecision, digits}, settings);
}

QString FloatToStr(double value, const TFormatSettings& settings) {
  return FloatToStrF(value, ffGeneral, 15, 0, settings);
}

QString CurrToStr(Currency value, const TFormatSettings& settings) {
  return FloatToStrF(value, ffGeneral, 0, settings);
}

}  // namespace kt
