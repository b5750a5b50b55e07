#include "kt/rtl/typeinfo/PropValues.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/EnumNames.h"

namespace kt {
namespace {

constexpr TTypeKinds kOrdKinds = {tkInteger, tkChar, tkWChar, tkEnumeration, tkSet};
constexpr TTypeKinds kStrKinds = {tkString, tkLString, tkWString};

void CheckKind(const TPropInfo* property, TTypeKinds kinds) {
  if (!kinds.Has(property->Kind())) throw EPropertyError(Format(SInvalidPropertyType, {property->PropType()->Name()}));
}

template <class V>
V Read(TObject* instance, const TPropInfo* property, TTypeKinds kinds) {
  CheckKind(property, kinds);
  if (!property->IsReadable()) throw EPropWriteOnly(SWriteOnlyProperty.toString());
  return property->AccessTo<V>().Get(*instance);
}

template <class V>
void Write(TObject* instance, const TPropInfo* property, TTypeKinds kinds, const V& value) {
  CheckKind(property, kinds);
  if (!property->IsWritable()) throw EPropReadOnly(SReadOnlyProperty.toString());
  property->AccessTo<V>().Set(*instance, value);
}

}  // namespace

qint64 GetOrdProp(TObject* instance, const TPropInfo* property) {
  if (property->Kind() == tkClass) return reinterpret_cast<qintptr>(GetObjectProp(instance, property));
  return Read<qint64>(instance, property, kOrdKinds);
}

void SetOrdProp(TObject* instance, const TPropInfo* property, qint64 value) {
  Write<qint64>(instance, property, kOrdKinds, value);
}

qint64 GetInt64Prop(TObject* instance, const TPropInfo* property) {
  return Read<qint64>(instance, property, kOrdKinds + TTypeKinds{tkInt64});
}

void SetInt64Prop(TObject* instance, const TPropInfo* property, qint64 value) {
  Write<qint64>(instance, property, kOrdKinds + TTypeKinds{tkInt64}, value);
}

double GetFloatProp(TObject* instance, const TPropInfo* property) {
  return static_cast<double>(GetExtendedProp(instance, property));
}

void SetFloatProp(TObject* instance, const TPropInfo* property, double value) {
  SetExtendedProp(instance, property, value);
}

long double GetExtendedProp(TObject* instance, const TPropInfo* property) {
  return Read<long double>(instance, property, {tkFloat});
}

void SetExtendedProp(TObject* instance, const TPropInfo* property, long double value) {
  Write<long double>(instance, property, {tkFloat}, value);
}

QString GetStrProp(TObject* instance, const TPropInfo* property) {
  return Read<QString>(instance, property, kStrKinds);
}

void SetStrProp(TObject* instance, const TPropInfo* property, const QString& value) {
  CheckKind(property, kStrKinds);
  const TTypeInfo* type = property->PropType();
  const bool isShort = type->Kind() == tkString;
  Write<QString>(instance, property, kStrKinds,
                 isShort ? value.left(static_cast<const TShortStringTypeInfo*>(type)->MaxLength()) : value);
}

QString GetWideStrProp(TObject* instance, const TPropInfo* property) { return GetStrProp(instance, property); }

void SetWideStrProp(TObject* instance, const TPropInfo* property, const QString& value) {
  SetStrProp(instance, property, value);
}

QString GetEnumProp(TObject* instance, const TPropInfo* property) {
  return GetEnumName(property->PropType(), Read<qint64>(instance, property, {tkEnumeration}));
}

void SetEnumProp(TObject* instance, const TPropInfo* property, QStringView value) {
  CheckKind(property, {tkEnumeration});
  const qint64 ordinal = GetEnumValue(property->PropType(), value);
  if (ordinal < 0) throw EPropertyConvertError(Format(SInvalidPropertyElement, {value}));
  SetOrdProp(instance, property, ordinal);
}

QString GetSetProp(TObject* instance, const TPropInfo* property, bool brackets) {
  return SetToString(property->PropType(), Read<qint64>(instance, property, {tkSet}), brackets);
}

void SetSetProp(TObject* instance, const TPropInfo* property, QStringView value) {
  CheckKind(property, {tkSet});
  SetOrdProp(instance, property, StringToSet(property->PropType(), value));
}

TObject* GetObjectProp(TObject* instance, const TPropInfo* property, const TClassInfo* minClass) {
  TObject* object = Read<TObject*>(instance, property, {tkClass});
  return object && minClass && !object->InheritsFrom(minClass) ? nullptr : object;
}

void SetObjectProp(TObject* instance, const TPropInfo* property, TObject* value) {
  CheckKind(property, {tkClass});
  if (value && !value->InheritsFrom(GetObjectPropClass(property))) throw EInvalidCast(SInvalidCast.toString());
  Write<TObject*>(instance, property, {tkClass}, value);
}

TMethod GetMethodProp(TObject* instance, const TPropInfo* property) {
  return Read<TMethod>(instance, property, tkMethods);
}

void SetMethodProp(TObject* instance, const TPropInfo* property, const TMethod& value) {
  Write<TMethod>(instance, property, tkMethods, value);
}

IInterface* GetInterfaceProp(TObject* instance, const TPropInfo* property) {
  return Read<IInterface*>(instance, property, {tkInterface});
}

void SetInterfaceProp(TObject* instance, const TPropInfo* property, IInterface* value) {
  Write<IInterface*>(instance, property, {tkInterface}, value);
}

Variant GetVariantProp(TObject* instance, const TPropInfo* property) {
  return Read<Variant>(instance, property, {tkVariant, tkDynArray});
}

void SetVariantProp(TObject* instance, const TPropInfo* property, const Variant& value) {
  Write<Variant>(instance, property, {tkVariant, tkDynArray}, value);
}

}  // namespace kt
