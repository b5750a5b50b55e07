#pragma once

#include "kt/rtl/conversions/Variant.h"
#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/PropLists.h"

#include <QString>

namespace kt {

/// Reading and writing published properties of any object. Every operation takes the property itself, the quick way for
/// many instances of a class, or its name, and raises
///   EPropertyError "Property %s does not exist" for an unknown name,
///   EPropertyError "Invalid property type: %s" when the property's kind does not belong to the operation,
///   EPropWriteOnly or EPropReadOnly when the property lacks that direction.

/// tkInteger, tkChar, tkWChar, tkEnumeration, tkSet: the ordinal (the bits of a set); tkClass: the address of the
/// object. Setting does not check the range. SetOrdProp() does not take tkClass.
qint64 GetOrdProp(TObject* instance, const TPropInfo* property);
qint64 GetOrdProp(TObject* instance, QStringView name);
void SetOrdProp(TObject* instance, const TPropInfo* property, qint64 value);
void SetOrdProp(TObject* instance, QStringView name, qint64 value);

/// tkInt64 and the ordinals; an unsigned 64-bit value keeps its bits.
qint64 GetInt64Prop(TObject* instance, const TPropInfo* property);
qint64 GetInt64Prop(TObject* instance, QStringView name);
void SetInt64Prop(TObject* instance, const TPropInfo* property, qint64 value);
void SetInt64Prop(TObject* instance, QStringView name, qint64 value);

/// tkFloat.
double GetFloatProp(TObject* instance, const TPropInfo* property);
double GetFloatProp(TObject* instance, QStringView name);
void SetFloatProp(TObject* instance, const TPropInfo* property, double value);
void SetFloatProp(TObject* instance, QStringView name, double value);
/// tkFloat with every digit that the property has: an amount of money is exact where a long double has 80 bits.
long double GetExtendedProp(TObject* instance, const TPropInfo* property);
void SetExtendedProp(TObject* instance, const TPropInfo* property, long double value);

/// tkString, tkLString, tkWString. Setting a short string cuts the text to the length that the type declares.
QString GetStrProp(TObject* instance, const TPropInfo* property);
QString GetStrProp(TObject* instance, QStringView name);
void SetStrProp(TObject* instance, const TPropInfo* property, const QString& value);
void SetStrProp(TObject* instance, QStringView name, const QString& value);
QString GetWideStrProp(TObject* instance, const TPropInfo* property);
QString GetWideStrProp(TObject* instance, QStringView name);
void SetWideStrProp(TObject* instance, const TPropInfo* property, const QString& value);
void SetWideStrProp(TObject* instance, QStringView name, const QString& value);

/// tkEnumeration by name. Setting raises EPropertyConvertError "Invalid property element: %s" for an unknown name.
QString GetEnumProp(TObject* instance, const TPropInfo* property);
QString GetEnumProp(TObject* instance, QStringView name);
void SetEnumProp(TObject* instance, const TPropInfo* property, QStringView value);
void SetEnumProp(TObject* instance, QStringView name, QStringView value);

/// tkSet by the names of its members.
QString GetSetProp(TObject* instance, const TPropInfo* property, bool brackets = false);
QString GetSetProp(TObject* instance, QStringView name, bool brackets = false);
void SetSetProp(TObject* instance, const TPropInfo* property, QStringView value);
void SetSetProp(TObject* instance, QStringView name, QStringView value);

/// tkClass. Reading with `minClass` answers null when the object is of another class. Setting raises EInvalidCast
/// "Invalid class typecast" for an object that is not of the declared class.
TObject* GetObjectProp(TObject* instance, const TPropInfo* property, const TClassInfo* minClass = nullptr);
TObject* GetObjectProp(TObject* instance, QStringView name, const TClassInfo* minClass = nullptr);
void SetObjectProp(TObject* instance, const TPropInfo* property, TObject* value);
void SetObjectProp(TObject* instance, QStringView name, TObject* value);

/// tkMethod. Setting raises EPropertyConvertError when the method has another signature than the event.
TMethod GetMethodProp(TObject* instance, const TPropInfo* property);
TMethod GetMethodProp(TObject* instance, QStringView name);
void SetMethodProp(TObject* instance, const TPropInfo* property, const TMethod& value);
void SetMethodProp(TObject* instance, QStringView name, const TMethod& value);

/// tkInterface. Setting raises EInvalidCast "Invalid class typecast" for an object that lacks the declared interface.
IInterface* GetInterfaceProp(TObject* instance, const TPropInfo* property);
IInterface* GetInterfaceProp(TObject* instance, QStringView name);
void SetInterfaceProp(TObject* instance, const TPropInfo* property, IInterface* value);
void SetInterfaceProp(TObject* instance, QStringView name, IInterface* value);

/// tkVariant.
Variant GetVariantProp(TObject* instance, const TPropInfo* property);
Variant GetVariantProp(TObject* instance, QStringView name);
void SetVariantProp(TObject* instance, const TPropInfo* property, const Variant& value);
void SetVariantProp(TObject* instance, QStringView name, const Variant& value);

/// Any property as a variant. Enumerations and sets come as names with `preferStrings`, else as ordinals (Booleans as
/// Booleans); amounts of money as Currency, objects as their address, events as the name of their type. Raises
/// EPropertyConvertError "Invalid property type: %s" for the kinds that have no variant form.
Variant GetPropValue(TObject* instance, const TPropInfo* property, bool preferStrings = true);
Variant GetPropValue(TObject* instance, QStringView name, bool preferStrings = true);
/// Converts `value` to the property's kind: enumerations and sets take names or ordinals, whole numbers are checked
/// against the type's range (ERangeError "Range check error").
void SetPropValue(TObject* instance, const TPropInfo* property, const Variant& value);
void SetPropValue(TObject* instance, QStringView name, const Variant& value);

}  // namespace kt
