#include "kt/rtl/conversions/Variant.h"

#include "kt/rtl/conversions/VariantData.h"

#include <QDateTime>

namespace kt {
namespace {

constexpr qint64 kJulianOffset = 2415019;

TVarType TypeOfUserValue(QMetaType type) {
  if (type == QMetaType::fromType<Currency>()) return varCurrency;
  if (type == QMetaType::fromType<TVarDateData>()) return varDate;
  if (type == QMetaType::fromType<TVarOleStrData>()) return varOleStr;
  return varAny;
}

}  // namespace

Variant Variant::Null() { return FromQVariant(QVariant::fromValue(nullptr)); }

Variant Variant::FromDateTime(TDateTime value) { return FromQVariant(QVariant::fromValue(TVarDateData{value})); }

Variant Variant::FromOleStr(const QString& value) { return FromQVariant(QVariant::fromValue(TVarOleStrData{value})); }

Variant Variant::FromQVariant(const QVariant& value) {
  Variant result;
  switch (value.typeId()) {
    case QMetaType::Long:
      result.FValue = QVariant(qint64{value.value<long>()});
      break;
    case QMetaType::ULong:
      result.FValue = QVariant(quint64{value.value<unsigned long>()});
      break;
    default:
      result.FValue = value;
      break;
  }
  return result;
}

QVariant Variant::ToQVariant() const {
  switch (VarType()) {
    case varCurrency:
      return ToDouble();
    case varOleStr:
      return ToString();
    case varDate: {
      TTimeStamp stamp;
      if (!TryDateTimeToTimeStamp(ToDateTime(), stamp)) return QDateTime();
      return QDateTime(QDate::fromJulianDay(kJulianOffset + stamp.Day), QTime::fromMSecsSinceStartOfDay(stamp.MSec));
    }
    default:
      return FValue;
  }
}

TVarType Variant::VarType() const {
  switch (FValue.typeId()) {
    case QMetaType::UnknownType:
      return varEmpty;
    case QMetaType::Nullptr:
      return varNull;
    case QMetaType::Bool:
      return varBoolean;
    case QMetaType::SChar:
      return varShortInt;
    case QMetaType::UChar:
      return varByte;
    case QMetaType::Short:
      return varSmallint;
    case QMetaType::UShort:
      return varWord;
    case QMetaType::Int:
      return varInteger;
    case QMetaType::UInt:
      return varLongWord;
    case QMetaType::LongLong:
      return varInt64;
    case QMetaType::ULongLong:
      return varUInt64;
    case QMetaType::Float:
      return varSingle;
    case QMetaType::Double:
      return varDouble;
    case QMetaType::QString:
      return varString;
    default:
      return TypeOfUserValue(FValue.metaType());
  }
}

bool VarIsOrdinal(const Variant& v) {
  const TVarType type = v.VarType();
  return type == varSmallint || type == varInteger || type == varBoolean || (type >= varShortInt && type <= varUInt64);
}

bool VarIsFloat(const Variant& v) {
  const TVarType type = v.VarType();
  return type == varSingle || type == varDouble || type == varCurrency;
}

bool VarIsNumeric(const Variant& v) { return VarIsOrdinal(v) || VarIsFloat(v); }

bool VarIsStr(const Variant& v) { return v.VarType() == varString || v.VarType() == varOleStr; }

QString VarToStr(const Variant& v) { return VarToStrDef(v, QString()); }

QString VarToStrDef(const Variant& v, const QString& nullText) { return v.IsNull() ? nullText : v.ToString(); }

Variant VarAsType(const Variant& v, TVarType type) { return v.AsType(type); }

TDateTime VarToDateTime(const Variant& v) { return v.ToDateTime(); }

Variant VarFromDateTime(TDateTime value) { return Variant::FromDateTime(value); }

}  // namespace kt
