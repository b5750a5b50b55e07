#pragma once

#include "kt/rtl/conversions/Currency.h"
#include "kt/rtl/conversions/DateTime.h"
#include "kt/rtl/conversions/VarTypes.h"

#include <QString>
#include <QVariant>

namespace kt {

/// A value of a type that is known at run time, or none: a new variant is Unassigned, and there is Null for "no value
/// known". Converts to what is asked for where that makes sense. Texts and numbers convert by FormatSettings().
///
/// Conversions raise EVariantTypeCastError for a text that is no number (or date, or truth value) and for Null, and
/// EVariantOverflowError for a number that does not fit. Unassigned converts to zero, False and the empty text.
/// A True becomes -1, in unsigned types every bit. Numbers round to integers with halves to even.
class Variant {
 public:
  Variant() = default;
  Variant(bool value) : FValue(value) {}
  Variant(signed char value) : FValue(QVariant::fromValue(value)) {}
  Variant(unsigned char value) : FValue(QVariant::fromValue(value)) {}
  Variant(short value) : FValue(QVariant::fromValue(value)) {}
  Variant(unsigned short value) : FValue(QVariant::fromValue(value)) {}
  Variant(int value) : FValue(value) {}
  Variant(unsigned value) : FValue(value) {}
  Variant(long value) : FValue(static_cast<qint64>(value)) {}
  Variant(unsigned long value) : FValue(static_cast<quint64>(value)) {}
  Variant(long long value) : FValue(static_cast<qint64>(value)) {}
  Variant(unsigned long long value) : FValue(static_cast<quint64>(value)) {}
  Variant(float value) : FValue(value) {}
  Variant(double value) : FValue(value) {}
  Variant(Currency value) : FValue(QVariant::fromValue(value)) {}
  Variant(const QString& value) : FValue(value) {}
  Variant(QStringView value) : FValue(value.toString()) {}
  Variant(QLatin1StringView value) : FValue(QString(value)) {}
  Variant(QChar value) : FValue(QString(value)) {}
  Variant(char value) : Variant(QChar(QLatin1Char(value))) {}
  Variant(char16_t value) : Variant(QChar(value)) {}
  /// UTF-8.
  Variant(const char* value) : FValue(QString::fromUtf8(value)) {}
  Variant(const char16_t* value) : FValue(QString::fromUtf16(value)) {}
  /// Other pointers would silently become True.
  template <typename T>
  Variant(T*) = delete;

  static Variant Null();
  static Variant FromDateTime(TDateTime value);
  /// A text of type varOleStr.
  static Variant FromOleStr(const QString& value);
  /// Keeps the value; types without a code of their own become varAny.
  static Variant FromQVariant(const QVariant& value);
  /// Dates become QDateTime in local time (invalid when out of range), amounts become double.
  QVariant ToQVariant() const;
  /// The value as it is stored, for values of varAny.
  const QVariant& Stored() const { return FValue; }

  TVarType VarType() const;
  bool IsEmpty() const { return !FValue.isValid(); }
  bool IsNull() const { return VarType() == varNull; }
  void Clear() { FValue.clear(); }

  int ToInt() const;
  qint64 ToInt64() const;
  quint64 ToUInt64() const;
  double ToDouble() const;
  Currency ToCurrency() const;
  bool ToBool() const;
  TDateTime ToDateTime() const;
  QString ToString() const;
  /// The value as another type.
  Variant AsType(TVarType type) const;

 private:
  QVariant FValue;
};

static_assert(sizeof(Variant) == sizeof(QVariant));

inline TVarType VarType(const Variant& v) { return v.VarType(); }
inline bool VarIsEmpty(const Variant& v) { return v.IsEmpty(); }
inline bool VarIsNull(const Variant& v) { return v.IsNull(); }
/// Unassigned; Null is a value here.
inline bool VarIsClear(const Variant& v) { return v.IsEmpty(); }
inline bool VarIsType(const Variant& v, TVarType type) { return v.VarType() == type; }
/// An integer or a Boolean.
bool VarIsOrdinal(const Variant& v);
/// A number with decimals: Single, Double, Currency.
bool VarIsFloat(const Variant& v);
/// An ordinal or a number with decimals; no date.
bool VarIsNumeric(const Variant& v);
bool VarIsStr(const Variant& v);

/// The text of a variant, where Null is the given text rather than an error.
QString VarToStr(const Variant& v);
QString VarToStrDef(const Variant& v, const QString& nullText);
Variant VarAsType(const Variant& v, TVarType type);
TDateTime VarToDateTime(const Variant& v);
Variant VarFromDateTime(TDateTime value);

enum TVariantRelationship { vrEqual, vrLessThan, vrGreaterThan, vrNotEqual };

/// How `a` relates to `b`. Unassigned equals Unassigned and Null equals Null; against anything else they are
/// vrNotEqual. Two texts compare by code unit. Otherwise both are taken as numbers, dates or truth values, a text too,
/// which may raise EVariantTypeCastError. What has no order (NaN, unordered values of varAny) is vrNotEqual.
TVariantRelationship VarCompareValue(const Variant& a, const Variant& b);
/// Whether VarCompareValue() answers vrEqual.
bool VarSameValue(const Variant& a, const Variant& b);
inline bool operator==(const Variant& a, const Variant& b) { return VarSameValue(a, b); }
/// As VarCompareValue(), with Unassigned before Null before everything else.
bool operator<(const Variant& a, const Variant& b);

}  // namespace kt
