#include "kt/rtl/typeinfo/EnumNames.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Numbers.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <algorithm>

namespace kt {
namespace {

bool IsWideBoolType(const TEnumTypeInfo* type) { return IsBoolType(type) && type->MinValue() < 0; }

QString EnumName(const TEnumTypeInfo* type, qint64 value) {
  if (IsWideBoolType(type)) return type->Names().at(value != 0);
  if (value >= 0 && value < type->Names().size()) return type->Names().at(value);
  QString name = type->NameOfUnnamed(value);
  if (name.isNull()) throw ERangeError(SRangeError.toString());
  return name;
}

qint64 IndexOfName(const QStringList& names, QStringView name) {
  for (qsizetype i = 0; i < names.size(); ++i) {
    if (SameText(names[i], name)) return i;
  }
  return -1;
}

qint64 EnumValue(const TEnumTypeInfo* type, QStringView name) {
  const qint64 index = IndexOfName(type->Names(), name);
  if (!IsWideBoolType(type)) return index < 0 ? type->OrdinalOfUnnamed(name) : index;
  if (index < 0) return StrToInt(name);
  return index == 0 ? 0 : -1;
}

[[noreturn]] void RaiseInvalidType(const TTypeInfo* type) {
  throw EPropertyConvertError(Format(SInvalidPropertyType, {type->Name()}));
}

/// How many bits a set of that type can have: 32, or one for each member when there are more, up to the 64 that fit.
int SetWidth(const TTypeInfo* component) {
  const TOrdTypeInfo* members = OrdTypeOf(component);
  return members ? static_cast<int>(std::clamp<qint64>(members->MaxValue(), 31, 63)) + 1 : 32;
}

qint64 MemberOrdinal(const TTypeInfo* component, QStringView name) {
  qint64 ordinal = -1;
  if (component->Kind() != tkInteger || TryStrToInt64(name, ordinal)) ordinal = GetEnumValue(component, name);
  if (ordinal < 0 || ordinal >= SetWidth(component)) {
    throw EPropertyConvertError(Format(SInvalidPropertyElement, {name}));
  }
  return ordinal;
}

QStringView WithoutBrackets(QStringView text) {
  if (text.startsWith(u'[')) text = text.sliced(1);
  if (text.endsWith(u']')) text.chop(1);
  return text;
}

}  // namespace

QString GetEnumName(const TTypeInfo* type, qint64 value) {
  if (const TEnumTypeInfo* enumeration = EnumTypeOf(type)) return EnumName(enumeration, value);
  if (type->Kind() == tkInteger) return QString::number(value);
  if (type->Kind() == tkChar || type->Kind() == tkWChar) return QString(QChar(static_cast<char16_t>(value)));
  RaiseInvalidType(type);
}

qint64 GetEnumValue(const TTypeInfo* type, QStringView name) {
  if (const TEnumTypeInfo* enumeration = EnumTypeOf(type)) return EnumValue(enumeration, name);
  if (type->Kind() == tkInteger) return StrToInt(name);
  if ((type->Kind() == tkChar || type->Kind() == tkWChar) && name.size() == 1) return name.front().unicode();
  RaiseInvalidType(type);
}

QString SetToString(const TTypeInfo* type, qint64 bits, bool brackets) {
  const TSetTypeInfo* set = SetTypeOf(type);
  if (!set) RaiseInvalidType(type);
  QStringList names;
  const int width = SetWidth(set->CompType());
  for (int ordinal = 0; ordinal < width; ++ordinal) {
    if ((bits >> ordinal) & 1) names.append(GetEnumName(set->CompType(), ordinal));
  }
  const QString list = names.join(u',');
  return brackets ? u'[' + list + u']' : list;
}

qint64 StringToSet(const TTypeInfo* type, QStringView text) {
  const TSetTypeInfo* set = SetTypeOf(type);
  if (!set) RaiseInvalidType(type);
  qint64 bits = 0;
  const QString list = WithoutBrackets(text.trimmed()).toString().replace(u' ', u',');
  for (const QStringView name : QStringView(list).split(u',', Qt::SkipEmptyParts)) {
    bits |= qint64{1} << MemberOrdinal(set->CompType(), name);
  }
  return bits;
}

}  // namespace kt
