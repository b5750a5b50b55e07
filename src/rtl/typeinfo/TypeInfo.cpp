#include "kt/rtl/typeinfo/TypeInfo.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <algorithm>
#include <array>

namespace kt {
namespace {

TOrdType StorageForCount(qsizetype count) { return count <= 256 ? otUByte : otUWord; }

qint64 SmallestOf(TOrdType storage) {
  constexpr std::array<qint64, 6> smallest = {-0x80, 0, -0x8000, 0, -0x80000000LL, 0};
  return smallest.at(storage);
}

qint64 LargestOf(TOrdType storage) {
  constexpr std::array<qint64, 6> largest = {0x7F, 0xFF, 0x7FFF, 0xFFFF, 0x7FFFFFFF, 0xFFFFFFFF};
  return largest.at(storage);
}

[[noreturn]] void RaiseInvalidType(const QString& name) { throw EPropertyError(Format(SInvalidPropertyType, {name})); }

/// A set takes the smallest ordinal that has a bit for each member; those of more than 32 members have no name here.
TOrdType StorageForMembers(const QString& name, const TTypeInfo* component) {
  const TOrdTypeInfo* members = OrdTypeOf(component);
  if (!members) RaiseInvalidType(name);
  if (members->MaxValue() < 8) return otUByte;
  return members->MaxValue() < 16 ? otUWord : otULong;
}

/// Types made at run time need not be what their kind says.
template <class T>
const T* Checked(const TTypeInfo* type) {
  const auto* checked = dynamic_cast<const T*>(type);
  if (!checked) RaiseInvalidType(type->Name());
  return checked;
}

template <class T>
const T* OfKind(const TTypeInfo* type, TTypeKinds kinds) {
  return type && kinds.Has(type->Kind()) ? Checked<T>(type) : nullptr;
}

}  // namespace

TEnumTypeInfo::TEnumTypeInfo(QString name, QStringList names, const TEnumTypeInfo* base)
    : TOrdTypeInfo(tkEnumeration, std::move(name), StorageForCount(names.size()), 0,
                   std::max<qint64>(names.size() - 1, 0)),
      FNames(std::move(names)),
      FBase(base) {}

TEnumTypeInfo::TEnumTypeInfo(QString name, TOrdType storage, const TEnumTypeInfo* booleanBase)
    : TOrdTypeInfo(tkEnumeration, std::move(name), storage, SmallestOf(storage), LargestOf(storage)),
      FNames(booleanBase->Names()),
      FBase(booleanBase) {}

TSetTypeInfo::TSetTypeInfo(const QString& name, const TTypeInfo* component)
    : TOrdTypeInfo(tkSet, name, StorageForMembers(name, component), 0, 0), FComponent(component) {}

void CheckTypeInfo(const TTypeInfo* type) {
  switch (type->Kind()) {
    case tkInteger:
    case tkChar:
    case tkWChar:
      return void(Checked<TOrdTypeInfo>(type));
    case tkEnumeration:
      return void(Checked<TEnumTypeInfo>(type));
    case tkSet:
      return void(Checked<TSetTypeInfo>(type));
    case tkFloat:
      return void(Checked<TFloatTypeInfo>(type));
    case tkString:
      return void(Checked<TShortStringTypeInfo>(type));
    case tkInt64:
      return void(Checked<TInt64TypeInfo>(type));
    case tkClass:
      return void(Checked<TClassTypeInfo>(type));
    case tkInterface:
      return void(Checked<TInterfaceTypeInfo>(type));
    case tkArray:
    case tkDynArray:
      return void(Checked<TArrayTypeInfo>(type));
    default:
      return;
  }
}

const TOrdTypeInfo* OrdTypeOf(const TTypeInfo* type) {
  return OfKind<TOrdTypeInfo>(type, {tkInteger, tkChar, tkWChar, tkEnumeration, tkSet});
}

const TEnumTypeInfo* EnumTypeOf(const TTypeInfo* type) { return OfKind<TEnumTypeInfo>(type, {tkEnumeration}); }

const TSetTypeInfo* SetTypeOf(const TTypeInfo* type) { return OfKind<TSetTypeInfo>(type, {tkSet}); }

const TInt64TypeInfo* Int64TypeOf(const TTypeInfo* type) { return OfKind<TInt64TypeInfo>(type, {tkInt64}); }

const TClassInfo* ClassOf(const TTypeInfo* type) {
  const auto* classType = OfKind<TClassTypeInfo>(type, {tkClass});
  return classType ? classType->ClassType() : nullptr;
}

TMethod NamedMethod(const TTypeInfo* type, TObject* object, const QString& name) {
  const auto* methods = dynamic_cast<const TMethodTypeInfo*>(type);
  return methods ? methods->Namer()(object, name) : TMethod();
}

bool IsBoolType(const TTypeInfo* type) {
  const TEnumTypeInfo* enumeration = EnumTypeOf(type);
  return enumeration && enumeration->BaseType() == TypeInfoOf<bool>();
}

}  // namespace kt
