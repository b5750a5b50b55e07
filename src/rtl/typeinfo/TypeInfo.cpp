#include "kt/rtl/typeinfo/TypeInfo.h"

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

/// A set takes the smallest ordinal that has a bit for each member.
TOrdType StorageForMembers(const TTypeInfo* component) {
  const TOrdTypeInfo* members = OrdTypeOf(component);
  const qint64 highest = members ? members->MaxValue() : 31;
  if (highest < 8) return otUByte;
  return highest < 16 ? otUWord : otULong;
}

template <class T>
const T* OfKind(const TTypeInfo* type, TTypeKinds kinds) {
  return type && kinds.Has(type->Kind()) ? static_cast<const T*>(type) : nullptr;
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

TSetTypeInfo::TSetTypeInfo(QString name, const TTypeInfo* component)
    : TOrdTypeInfo(tkSet, std::move(name), StorageForMembers(component), 0, 0), FComponent(component) {}

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

bool IsBoolType(const TTypeInfo* type) {
  const TEnumTypeInfo* enumeration = EnumTypeOf(type);
  return enumeration && enumeration->BaseType() == TypeInfoOf<bool>();
}

}  // namespace kt
