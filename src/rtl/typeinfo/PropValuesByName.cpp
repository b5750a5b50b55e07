// The forms of the property operations that take a name: look the property up, then go on as with the property itself.
#include "kt/rtl/typeinfo/PropValues.h"

namespace kt {

qint64 GetOrdProp(TObject* instance, QStringView name) { return GetOrdProp(instance, FindPropInfo(instance, name)); }

void SetOrdProp(TObject* instance, QStringView name, qint64 value) {
  SetOrdProp(instance, FindPropInfo(instance, name), value);
}

qint64 GetInt64Prop(TObject* instance, QStringView name) {
  return GetInt64Prop(instance, FindPropInfo(instance, name));
}

void SetInt64Prop(TObject* instance, QStringView name, qint64 value) {
  SetInt64Prop(instance, FindPropInfo(instance, name), value);
}

double GetFloatProp(TObject* instance, QStringView name) {
  return GetFloatProp(instance, FindPropInfo(instance, name));
}

void SetFloatProp(TObject* instance, QStringView name, double value) {
  SetFloatProp(instance, FindPropInfo(instance, name), value);
}

QString GetStrProp(TObject* instance, QStringView name) { return GetStrProp(instance, FindPropInfo(instance, name)); }

void SetStrProp(TObject* instance, QStringView name, const QString& value) {
  SetStrProp(instance, FindPropInfo(instance, name), value);
}

QString GetWideStrProp(TObject* instance, QStringView name) {
  return GetWideStrProp(instance, FindPropInfo(instance, name));
}

void SetWideStrProp(TObject* instance, QStringView name, const QString& value) {
  SetWideStrProp(instance, FindPropInfo(instance, name), value);
}

QString GetEnumProp(TObject* instance, QStringView name) { return GetEnumProp(instance, FindPropInfo(instance, name)); }

void SetEnumProp(TObject* instance, QStringView name, QStringView value) {
  SetEnumProp(instance, FindPropInfo(instance, name), value);
}

QString GetSetProp(TObject* instance, QStringView name, bool brackets) {
  return GetSetProp(instance, FindPropInfo(instance, name), brackets);
}

void SetSetProp(TObject* instance, QStringView name, QStringView value) {
  SetSetProp(instance, FindPropInfo(instance, name), value);
}

TObject* GetObjectProp(TObject* instance, QStringView name, const TClassInfo* minClass) {
  return GetObjectProp(instance, FindPropInfo(instance, name), minClass);
}

void SetObjectProp(TObject* instance, QStringView name, TObject* value) {
  SetObjectProp(instance, FindPropInfo(instance, name), value);
}

TMethod GetMethodProp(TObject* instance, QStringView name) {
  return GetMethodProp(instance, FindPropInfo(instance, name));
}

void SetMethodProp(TObject* instance, QStringView name, const TMethod& value) {
  SetMethodProp(instance, FindPropInfo(instance, name), value);
}

IInterface* GetInterfaceProp(TObject* instance, QStringView name) {
  return GetInterfaceProp(instance, FindPropInfo(instance, name));
}

void SetInterfaceProp(TObject* instance, QStringView name, IInterface* value) {
  SetInterfaceProp(instance, FindPropInfo(instance, name), value);
}

Variant GetVariantProp(TObject* instance, QStringView name) {
  return GetVariantProp(instance, FindPropInfo(instance, name));
}

void SetVariantProp(TObject* instance, QStringView name, const Variant& value) {
  SetVariantProp(instance, FindPropInfo(instance, name), value);
}

Variant GetPropValue(TObject* instance, QStringView name, bool preferStrings) {
  return GetPropValue(instance, FindPropInfo(instance, name), preferStrings);
}

void SetPropValue(TObject* instance, QStringView name, const Variant& value) {
  SetPropValue(instance, FindPropInfo(instance, name), value);
}

}  // namespace kt
