#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/conversions/VariantData.h"

#include <algorithm>
#include <compare>
#include <utility>

namespace kt {
namespace {

template <typename T>
TVariantRelationship Relate(const T& a, const T& b) {
  const std::partial_ordering order = a <=> b;
  // NOLINTBEGIN(modernize-use-nullptr): the check takes the zero of an ordering for a null pointer.
  if (order == 0) return vrEqual;
  if (order < 0) return vrLessThan;
  return order > 0 ? vrGreaterThan : vrNotEqual;
  // NOLINTEND(modernize-use-nullptr)
}

TVariantRelationship CompareAny(const QVariant& a, const QVariant& b) {
  const QPartialOrdering order = QVariant::compare(a, b);
  if (order == QPartialOrdering::Less) return vrLessThan;
  if (order == QPartialOrdering::Greater) return vrGreaterThan;
  return order == QPartialOrdering::Equivalent || a == b ? vrEqual : vrNotEqual;
}

bool IsWhole(const TVarNumber& number) { return number.Kind == nkSigned || number.Kind == nkUnsigned; }

TVariantRelationship CompareWhole(const TVarNumber& a, const TVarNumber& b) {
  if (a.Kind == b.Kind) return a.Kind == nkSigned ? Relate(a.Signed, b.Signed) : Relate(a.Unsigned, b.Unsigned);
  const bool isLess = a.Kind == nkSigned ? std::cmp_less(a.Signed, b.Unsigned) : std::cmp_less(a.Unsigned, b.Signed);
  const bool isEqual = a.Kind == nkSigned ? std::cmp_equal(a.Signed, b.Unsigned) : std::cmp_equal(a.Unsigned, b.Signed);
  if (isEqual) return vrEqual;
  return isLess ? vrLessThan : vrGreaterThan;
}

/// Ten-thousandths of an amount or integer; enough bits for every value of either that can be equal to one of the
/// other.
long double ScaledOf(const TVarNumber& number) {
  if (number.Kind == nkCurrency) return static_cast<long double>(number.Amount.Scaled());
  if (number.Kind == nkUnsigned) return static_cast<long double>(number.Unsigned) * 10000;
  return static_cast<long double>(number.Signed) * 10000;
}

/// A 64-bit integer keeps its last digits against a double.
long double Widened(const TVarNumber& number) {
  if (number.Kind == nkSigned) return static_cast<long double>(number.Signed);
  if (number.Kind == nkUnsigned) return static_cast<long double>(number.Unsigned);
  return static_cast<long double>(number.ToDouble());
}

TVariantRelationship CompareNumbers(const TVarNumber& a, const TVarNumber& b) {
  if (IsWhole(a) && IsWhole(b)) return CompareWhole(a, b);
  if (a.Kind == nkFloat || b.Kind == nkFloat) return Relate(Widened(a), Widened(b));
  return Relate(ScaledOf(a), ScaledOf(b));
}

TVariantRelationship CompareValues(const Variant& a, const Variant& b) {
  const TVarType typeA = a.VarType();
  const TVarType typeB = b.VarType();
  if (VarIsStr(a) && VarIsStr(b)) return Relate(CompareStr(StoredText(a), StoredText(b)), 0);
  if (typeA == varAny || typeB == varAny) return CompareAny(a.ToQVariant(), b.ToQVariant());
  const bool hasText = VarIsStr(a) || VarIsStr(b);
  const bool isBothTruth = typeA == varBoolean && typeB == varBoolean;
  if (isBothTruth || (hasText && (typeA == varBoolean || typeB == varBoolean))) return Relate(a.ToBool(), b.ToBool());
  if (typeA == varDate || typeB == varDate) return Relate(a.ToDateTime(), b.ToDateTime());
  const TVarType targetOfA = VarIsStr(a) ? varDouble : typeA;
  const TVarType targetOfB = VarIsStr(b) ? varDouble : typeB;
  return CompareNumbers(NumberOf(a, targetOfA), NumberOf(b, targetOfB));
}

bool HasNoValue(const Variant& v) { return v.VarType() <= varNull; }

}  // namespace

TVariantRelationship VarCompareValue(const Variant& a, const Variant& b) {
  if (HasNoValue(a) || HasNoValue(b)) return a.VarType() == b.VarType() ? vrEqual : vrNotEqual;
  return CompareValues(a, b);
}

bool VarSameValue(const Variant& a, const Variant& b) { return VarCompareValue(a, b) == vrEqual; }

bool operator<(const Variant& a, const Variant& b) {
  if (HasNoValue(a) || HasNoValue(b)) return std::min<int>(a.VarType(), 2) < std::min<int>(b.VarType(), 2);
  return CompareValues(a, b) == vrLessThan;
}

}  // namespace kt
