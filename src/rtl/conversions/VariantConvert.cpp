#include "kt/rtl/conversions/DateTimes.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Numbers.h"
#include "kt/rtl/conversions/VariantData.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <cmath>
#include <limits>
#include <utility>

namespace kt {
namespace {

constexpr int kSinglePrecision = 7;

TVarNumber Signed(qint64 value) {
  TVarNumber number;
  number.Signed = value;
  return number;
}

TVarNumber Unsigned(quint64 value) {
  TVarNumber number;
  number.Kind = nkUnsigned;
  number.Unsigned = value;
  return number;
}

TVarNumber Float(double value) {
  TVarNumber number;
  number.Kind = nkFloat;
  number.Float = value;
  return number;
}

TVarNumber Amount(Currency value) {
  TVarNumber number;
  number.Kind = nkCurrency;
  number.Amount = value;
  return number;
}

TVarNumber NumberOfText(const Variant& v, TVarType target) {
  const QString text = StoredText(v);
  qint64 whole = 0;
  if (TryStrToInt64(text, whole)) return Signed(whole);
  quint64 large = 0;
  if (TryStrToUInt64(text, large)) return Unsigned(large);
  double real = 0;
  if (TryStrToFloat(text, real)) return Float(real);
  RaiseVarCastError(v.VarType(), target);
}

TVarNumber NumberOfAny(const Variant& v, TVarType target) {
  bool isNumber = false;
  const double value = v.Stored().toDouble(&isNumber);
  if (!isNumber) RaiseVarCastError(varAny, target);
  return Float(value);
}

/// Halves go to the even neighbour, exactly.
qint64 RoundAmount(Currency value) {
  constexpr qint64 one = 10000;
  qint64 floor = value.Scaled() / one;
  qint64 rest = value.Scaled() % one;
  if (rest < 0) {
    rest += one;
    --floor;
  }
  const bool isUp = rest > one / 2 || (rest == one / 2 && floor % 2 != 0);
  return floor + (isUp ? 1 : 0);
}

/// The number as an integer type; `type` is the type's code for the message.
template <typename T>
T ToInteger(const Variant& v, TVarType type) {
  if (v.VarType() == varBoolean) return v.ToBool() ? static_cast<T>(-1) : T{0};
  TVarNumber number = NumberOf(v, type);
  if (number.Kind == nkFloat) {
    const double rounded = std::nearbyint(number.Float);
    if (rounded >= -0x1p63 && rounded < 0x1p63)
      number = Signed(static_cast<qint64>(rounded));
    else if (rounded >= 0x1p63 && rounded < 0x1p64)
      number = Unsigned(static_cast<quint64>(rounded));
    else
      RaiseVarOverflowError(v.VarType(), type);
  }
  if (number.Kind == nkCurrency) number = Signed(RoundAmount(number.Amount));
  const bool fits = number.Kind == nkUnsigned ? std::in_range<T>(number.Unsigned) : std::in_range<T>(number.Signed);
  if (!fits) RaiseVarOverflowError(v.VarType(), type);
  return number.Kind == nkUnsigned ? static_cast<T>(number.Unsigned) : static_cast<T>(number.Signed);
}

float ToSingle(const Variant& v) {
  const double value = v.AsType(varDouble).Stored().toDouble();
  if (std::isfinite(value) && std::fabs(value) > std::numeric_limits<float>::max())
    RaiseVarOverflowError(v.VarType(), varSingle);
  return static_cast<float>(value);
}

QString RealText(const Variant& v) {
  const QVariant& stored = v.Stored();
  if (v.VarType() == varSingle) return FloatToStrF(stored.value<float>(), ffGeneral, kSinglePrecision, 0);
  if (v.VarType() == varCurrency) return CurrToStr(stored.value<Currency>());
  return FloatToStr(stored.toDouble());
}

QString AnyText(const Variant& v) {
  if (!v.Stored().canConvert<QString>()) RaiseVarCastError(varAny, varString);
  return v.Stored().toString();
}

}  // namespace

double TVarNumber::ToDouble() const {
  switch (Kind) {
    case nkSigned:
      return static_cast<double>(Signed);
    case nkUnsigned:
      return static_cast<double>(Unsigned);
    case nkCurrency:
      return Amount.ToDouble();
    default:
      return Float;
  }
}

void RaiseVarCastError(TVarType source, TVarType target) {
  throw EVariantTypeCastError(Format(SVarTypeCouldNotConvert, {VarTypeAsText(source), VarTypeAsText(target)}));
}

void RaiseVarOverflowError(TVarType source, TVarType target) {
  throw EVariantOverflowError(Format(SVarTypeConvertOverflow, {VarTypeAsText(source), VarTypeAsText(target)}));
}

QString StoredText(const Variant& v) {
  return v.VarType() == varOleStr ? v.Stored().value<TVarOleStrData>().Value : v.Stored().toString();
}

TVarNumber NumberOf(const Variant& v, TVarType target) {
  const QVariant& stored = v.Stored();
  switch (v.VarType()) {
    case varEmpty:
      return Signed(0);
    case varNull:
      RaiseVarCastError(varNull, target);
    case varBoolean:
      return Signed(stored.toBool() ? -1 : 0);
    case varLongWord:
    case varUInt64:
      return Unsigned(stored.toULongLong());
    case varSingle:
    case varDouble:
      return Float(stored.toDouble());
    case varCurrency:
      return Amount(stored.value<Currency>());
    case varDate:
      return Float(stored.value<TVarDateData>().Value);
    case varOleStr:
    case varString:
      return NumberOfText(v, target);
    case varAny:
      return NumberOfAny(v, target);
    default:
      return Signed(stored.toLongLong());
  }
}

int Variant::ToInt() const { return ToInteger<qint32>(*this, varInteger); }

qint64 Variant::ToInt64() const { return ToInteger<qint64>(*this, varInt64); }

quint64 Variant::ToUInt64() const { return ToInteger<quint64>(*this, varUInt64); }

double Variant::ToDouble() const { return NumberOf(*this, varDouble).ToDouble(); }

Currency Variant::ToCurrency() const {
  Currency amount;
  if (VarIsStr(*this) && TryStrToCurr(StoredText(*this), amount)) return amount;
  const TVarNumber number = NumberOf(*this, varCurrency);
  constexpr qint64 limit = std::numeric_limits<qint64>::max() / 10000;
  if (number.Kind == nkCurrency) return number.Amount;
  if (number.Kind == nkSigned && number.Signed >= -limit && number.Signed <= limit)
    return Currency::FromScaled(number.Signed * 10000);
  try {
    return Currency(number.ToDouble());
  } catch (const ERangeError&) {
    RaiseVarOverflowError(VarType(), varCurrency);
  }
}

bool Variant::ToBool() const {
  if (VarType() == varBoolean) return FValue.toBool();
  bool value = false;
  if (VarIsStr(*this)) {
    if (!TryStrToBool(StoredText(*this), value)) RaiseVarCastError(VarType(), varBoolean);
    return value;
  }
  return NumberOf(*this, varBoolean).ToDouble() != 0;
}

TDateTime Variant::ToDateTime() const {
  if (VarIsStr(*this)) {
    TDateTime value = 0;
    if (TryStrToDateTime(StoredText(*this), value)) return value;
  }
  return NumberOf(*this, varDate).ToDouble();
}

QString Variant::ToString() const {
  switch (VarType()) {
    case varEmpty:
      return QString();
    case varNull:
      RaiseVarCastError(varNull, varString);
    case varBoolean:
      return BoolToStr(FValue.toBool(), bnTexts);
    case varSingle:
    case varDouble:
    case varCurrency:
      return RealText(*this);
    case varDate:
      return DateTimeToStr(FValue.value<TVarDateData>().Value);
    case varOleStr:
    case varString:
      return StoredText(*this);
    case varLongWord:
    case varUInt64:
      return IntToStr(FValue.toULongLong());
    case varAny:
      return AnyText(*this);
    default:
      return IntToStr(FValue.toLongLong());
  }
}

Variant Variant::AsType(TVarType type) const {
  if (type == VarType()) return *this;
  switch (type) {
    case varEmpty:
      return Variant();
    case varNull:
      return Null();
    case varSmallint:
      return ToInteger<qint16>(*this, type);
    case varInteger:
      return ToInt();
    case varSingle:
      return ToSingle(*this);
    case varDouble:
      return ToDouble();
    case varCurrency:
      return ToCurrency();
    case varDate:
      return FromDateTime(ToDateTime());
    case varOleStr:
      return FromOleStr(ToString());
    case varBoolean:
      return ToBool();
    case varShortInt:
      return ToInteger<qint8>(*this, type);
    case varByte:
      return ToInteger<quint8>(*this, type);
    case varWord:
      return ToInteger<quint16>(*this, type);
    case varLongWord:
      return ToInteger<quint32>(*this, type);
    case varInt64:
      return ToInt64();
    case varUInt64:
      return ToUInt64();
    case varString:
      return ToString();
    default:
      RaiseVarCastError(VarType(), type);
  }
}

}  // namespace kt
