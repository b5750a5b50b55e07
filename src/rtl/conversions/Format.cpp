#include "kt/rtl/conversions/Format.h"

#include "kt/rtl/conversions/FloatText.h"
#include "kt/rtl/conversions/Variant.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <span>

namespace kt {
namespace {

constexpr int kPointerDigits = 2 * static_cast<int>(sizeof(void*));
constexpr int kFloatPrecision = 15;
constexpr int kFixedPrecision = 18;
/// How much of the format text an error message quotes.
constexpr qsizetype kQuotedLength = 31;

struct TPlaceholder {
  bool IsLeft = false;
  int Width = 0;
  int Precision = -1;
  char16_t Type = 0;
};

/// Walks through the format text once; the argument position moves with it.
class TFormatter {
 public:
  TFormatter(QStringView format, std::span<const TVarRec> args, const TFormatSettings& settings)
      : FFormat(format), FArgs(args), FSettings(settings) {}

  QString Run();

 private:
  [[noreturn]] void Fail(QLatin1StringView message) const;
  const TVarRec& NextArg();
  char16_t Peek() const { return FAt < FFormat.size() ? FFormat[FAt].unicode() : u'\0'; }
  std::optional<int> ReadNumber();
  TPlaceholder ReadPlaceholder();
  QString ToText(const TPlaceholder& place);
  QString IntegerText(const TPlaceholder& place, const TVarRec& arg) const;
  QString RealText(const TPlaceholder& place, const TVarRec& arg) const;
  QString PlainText(const TPlaceholder& place, const TVarRec& arg) const;

  QStringView FFormat;
  std::span<const TVarRec> FArgs;
  const TFormatSettings& FSettings;
  qsizetype FAt = 0;
  std::size_t FNextArg = 0;
};

QString TFormatter::Run() {
  QString result;
  result.reserve(FFormat.size() + 16);
  while (FAt < FFormat.size()) {
    const qsizetype percent = FFormat.indexOf(u'%', FAt);
    const qsizetype end = percent < 0 ? FFormat.size() : percent;
    result += FFormat.sliced(FAt, end - FAt);
    FAt = end;
    if (percent < 0) break;
    ++FAt;
    if (Peek() == u'%') {
      result += u'%';
      ++FAt;
      continue;
    }
    const TPlaceholder place = ReadPlaceholder();
    const QString text = ToText(place);
    result += place.IsLeft ? text.leftJustified(place.Width) : text.rightJustified(place.Width);
  }
  return result;
}

void TFormatter::Fail(QLatin1StringView message) const {
  QStringView quoted = FFormat.first(std::min(FFormat.size(), kQuotedLength));
  if (quoted.size() < FFormat.size() && quoted.back().isHighSurrogate()) quoted.chop(1);
  throw EConvertError(QString(message).replace(QLatin1StringView("%s"), quoted.toString()));
}

const TVarRec& TFormatter::NextArg() {
  if (FNextArg >= FArgs.size()) Fail(SArgumentMissing);
  return FArgs[FNextArg++];
}

std::optional<int> TFormatter::ReadNumber() {
  if (Peek() == u'*') {
    ++FAt;
    const TVarRec& arg = NextArg();
    if (arg.Kind() != vtInteger && arg.Kind() != vtInt64) Fail(SInvalidFormat);
    constexpr qint64 limit = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(arg.AsInteger(), -limit, limit));
  }
  std::optional<int> result;
  for (; Peek() >= u'0' && Peek() <= u'9'; ++FAt) {
    const qint64 next = qint64{10} * result.value_or(0) + (Peek() - u'0');
    if (next > std::numeric_limits<int>::max()) Fail(SInvalidFormat);
    result = static_cast<int>(next);
  }
  return result;
}

TPlaceholder TFormatter::ReadPlaceholder() {
  TPlaceholder place;
  std::optional<int> number;
  if (Peek() != u'-') {
    number = ReadNumber();
    if (Peek() == u':') {
      if (!number || *number < 0) Fail(SInvalidFormat);
      FNextArg = static_cast<std::size_t>(*number);
      number.reset();
      ++FAt;
    }
  }
  if (!number && Peek() == u'-') {
    place.IsLeft = true;
    ++FAt;
  }
  if (!number) number = ReadNumber();
  place.Width = std::max(number.value_or(0), 0);
  if (Peek() == u'.') {
    ++FAt;
    place.Precision = std::max(ReadNumber().value_or(0), -1);
  }
  place.Type = QChar(Peek()).toLower().unicode();
  ++FAt;
  return place;
}

QString TFormatter::ToText(const TPlaceholder& place) {
  switch (place.Type) {
    case u'd':
    case u'u':
    case u'x':
      return IntegerText(place, NextArg());
    case u'e':
    case u'f':
    case u'g':
    case u'n':
    case u'm':
      return RealText(place, NextArg());
    case u'p':
    case u's':
      return PlainText(place, NextArg());
    default:
      Fail(SInvalidFormat);
  }
}

QString TFormatter::IntegerText(const TPlaceholder& place, const TVarRec& arg) const {
  if (arg.Kind() != vtInteger && arg.Kind() != vtInt64 && arg.Kind() != vtUInt64) Fail(SInvalidFormat);
  const bool isNegative = place.Type == u'd' && arg.Kind() != vtUInt64 && arg.AsInteger() < 0;
  quint64 magnitude = arg.AsUnsigned();
  if (isNegative)
    magnitude = 0 - magnitude;
  else if (arg.Kind() == vtInteger)
    magnitude = static_cast<quint32>(magnitude);
  const QString digits = QString::number(magnitude, place.Type == u'x' ? 16 : 10).toUpper();
  const QString padded = digits.rightJustified(place.Precision, QLatin1Char('0'));
  return isNegative ? QLatin1Char('-') + padded : padded;
}

QString TFormatter::RealText(const TPlaceholder& place, const TVarRec& arg) const {
  if (arg.Kind() != vtExtended && arg.Kind() != vtCurrency) Fail(SInvalidFormat);
  const bool isGeneral = place.Type == u'g' || place.Type == u'e';
  const int precision = isGeneral ? (place.Precision < 0 ? kFloatPrecision : place.Precision) : kFixedPrecision;
  const int decimals = place.Type == u'm' ? FSettings.CurrencyDecimals : 2;
  const int digits = isGeneral ? 3 : place.Precision < 0 ? decimals : place.Precision;
  TFloatFormat format = ffGeneral;
  if (place.Type == u'e') format = ffExponent;
  if (place.Type == u'f') format = ffFixed;
  if (place.Type == u'n') format = ffNumber;
  if (place.Type == u'm') format = ffCurrency;
  if (arg.Kind() == vtExtended) return FloatToStrF(arg.AsFloat(), format, precision, digits, FSettings);
  if (isGeneral) return FloatToStrF(arg.AsCurrency().ToDouble(), format, precision, digits, FSettings);
  return FloatToStrF(arg.AsCurrency(), format, digits, FSettings);
}

QString TFormatter::PlainText(const TPlaceholder& place, const TVarRec& arg) const {
  if (place.Type == u'p') {
    if (arg.Kind() != vtPointer) Fail(SInvalidFormat);
    const QString digits = QString::number(reinterpret_cast<quintptr>(arg.AsPointer()), 16).toUpper();
    return digits.rightJustified(kPointerDigits, QLatin1Char('0'));
  }
  QString text;
  if (arg.Kind() == vtString)
    text = arg.AsText().toString();
  else if (arg.Kind() == vtChar)
    text = arg.AsChar();
  else if (arg.Kind() == vtVariant)
    text = VarToStr(arg.AsVariant());
  else
    Fail(SInvalidFormat);
  if (place.Precision >= 0) text.truncate(place.Precision);
  return text;
}

}  // namespace

QString Format(QAnyStringView format, std::initializer_list<TVarRec> args, const TFormatSettings& settings) {
  const QString text = format.toString();
  return TFormatter(text, std::span(args.begin(), args.size()), settings).Run();
}

}  // namespace kt
