// Properties as variants, whatever their kind.
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/MemberAccess.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <cmath>

namespace kt {
namespace {

[[noreturn]] void RaiseInvalidType(const TPropInfo* property) {
  throw EPropertyConvertError(Format(SInvalidPropertyType, {property->PropType()->Name()}));
}

/// Deliberately cuts decimals off where a variant itself would round.
qint64 Truncated(const Variant& value) {
  if (VarIsOrdinal(value)) return value.ToInt64();
  constexpr double exactUpTo = 9007199254740992.0;
  const double number = value.ToDouble();
  return std::fabs(number) < exactUpTo ? static_cast<qint64>(number) : value.ToInt64();
}

qint64 Ranged(const Variant& value, qint64 min, qint64 max) {
  const qint64 number = Truncated(value);
  if (number < min || number > max) throw ERangeError(SRangeError.toString());
  return number;
}

qint64 RangedOrdinal(const TPropInfo* property, const Variant& value) {
  const TOrdTypeInfo* type = OrdTypeOf(property->PropType());
  return Ranged(value, type->MinValue(), type->MaxValue());
}

void SetEnumValue(TObject* instance, const TPropInfo* property, const Variant& value) {
  if (VarIsStr(value)) return SetEnumProp(instance, property, VarToStr(value));
  // The ordinal of a true Boolean is 1 here, whatever a variant stores.
  if (VarType(value) == varBoolean) return SetOrdProp(instance, property, value.ToBool() ? 1 : 0);
  SetOrdProp(instance, property, RangedOrdinal(property, value));
}

void SetSetValue(TObject* instance, const TPropInfo* property, const Variant& value) {
  if (VarIsOrdinal(value)) return SetOrdProp(instance, property, value.ToInt64());
  SetSetProp(instance, property, VarToStr(value));
}

void SetInt64Value(TObject* instance, const TPropInfo* property, const Variant& value) {
  const TInt64TypeInfo* type = Int64TypeOf(property->PropType());
  if (type->IsUnsigned()) return SetInt64Prop(instance, property, static_cast<qint64>(value.ToUInt64()));
  SetInt64Prop(instance, property, Ranged(value, type->MinValue(), type->MaxValue()));
}

Variant Int64Value(TObject* instance, const TPropInfo* property) {
  const qint64 value = GetInt64Prop(instance, property);
  if (Int64TypeOf(property->PropType())->IsUnsigned()) return Variant(static_cast<quint64>(value));
  return Variant(value);
}

/// What fits 32 bits is an Integer variant, as the framework has it.
Variant OrdinalValue(qint64 ordinal) {
  const int narrow = static_cast<int>(ordinal);
  return narrow == ordinal ? Variant(narrow) : Variant(ordinal);
}

Variant EnumValue(TObject* instance, const TPropInfo* property, bool preferStrings) {
  if (preferStrings) return Variant(GetEnumProp(instance, property));
  const qint64 ordinal = GetOrdProp(instance, property);
  return IsBoolType(property->PropType()) ? Variant(ordinal != 0) : OrdinalValue(ordinal);
}

bool IsAmount(const TPropInfo* property) {
  return static_cast<const TFloatTypeInfo*>(property->PropType())->FloatType() == ftCurr;
}

Variant FloatValue(TObject* instance, const TPropInfo* property) {
  const long double value = GetExtendedProp(instance, property);
  return IsAmount(property) ? Variant(MemberAccess::AmountOfFloat(value)) : Variant(static_cast<double>(value));
}

/// An amount keeps its last digits; other numbers, and their errors, go the way of every number.
void SetFloatValue(TObject* instance, const TPropInfo* property, const Variant& value) {
  const bool isExact = VarType(value) == varCurrency || VarIsStr(value);
  if (!isExact || !IsAmount(property)) return SetFloatProp(instance, property, value.ToDouble());
  SetExtendedProp(instance, property, MemberAccess::FloatOfAmount(value.ToCurrency()));
}

}  // namespace

Variant GetPropValue(TObject* instance, const TPropInfo* property, bool preferStrings) {
  switch (property->Kind()) {
    case tkInteger:
    case tkChar:
    case tkWChar:
    case tkClass:
      return OrdinalValue(GetOrdProp(instance, property));
    case tkEnumeration:
      return EnumValue(instance, property, preferStrings);
    case tkSet:
      return preferStrings ? Variant(GetSetProp(instance, property)) : OrdinalValue(GetOrdProp(instance, property));
    case tkFloat:
      return FloatValue(instance, property);
    case tkMethod:
      return Variant(property->PropType()->Name());
    case tkString:
    case tkLString:
    case tkWString:
      return Variant(GetStrProp(instance, property));
    case tkVariant:
    case tkDynArray:
      return GetVariantProp(instance, property);
    case tkInt64:
      return Int64Value(instance, property);
    default:
      RaiseInvalidType(property);
  }
}

void SetPropValue(TObject* instance, const TPropInfo* property, const Variant& value) {
  switch (property->Kind()) {
    case tkInteger:
    case tkChar:
    case tkWChar:
      return SetOrdProp(instance, property, RangedOrdinal(property, value));
    case tkEnumeration:
      return SetEnumValue(instance, property, value);
    case tkSet:
      return SetSetValue(instance, property, value);
    case tkFloat:
      return SetFloatValue(instance, property, value);
    case tkString:
    case tkLString:
    case tkWString:
      return SetStrProp(instance, property, VarToStr(value));
    case tkVariant:
    case tkDynArray:
      return SetVariantProp(instance, property, value);
    case tkInt64:
      return SetInt64Value(instance, property, value);
    default:
      RaiseInvalidType(property);
  }
}

}  // namespace kt
