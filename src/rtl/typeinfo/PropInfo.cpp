#include "kt/rtl/typeinfo/PropInfo.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/Event.h"

namespace kt {
namespace {

template <class V>
bool IsRoadOf(const TPropAccess* access) {
  return dynamic_cast<const TValueAccess<V>*>(access);
}

bool FitsKind(const TPropAccess* access, TTypeKind kind) {
  switch (kind) {
    case tkInteger:
    case tkChar:
    case tkWChar:
    case tkEnumeration:
    case tkSet:
    case tkInt64:
      return IsRoadOf<qint64>(access);
    case tkFloat:
      return IsRoadOf<long double>(access);
    case tkString:
    case tkLString:
    case tkWString:
      return IsRoadOf<QString>(access);
    case tkClass:
      return IsRoadOf<TObject*>(access);
    case tkInterface:
      return IsRoadOf<IInterface*>(access);
    case tkMethod:
      return IsRoadOf<TMethod>(access);
    case tkVariant:
    case tkDynArray:
      return IsRoadOf<Variant>(access);
    default:
      // Nobody goes there.
      return true;
  }
}

}  // namespace

TPropInfo::TPropInfo(TDefinition definition) : FDefinition(std::move(definition)) {
  if (!FDefinition.Type || !FDefinition.Access) throw EPropertyError(SInvalidProperty.toString());
}

const TTypeInfo* TPropInfo::AskType() const {
  const TTypeInfo* type = FDefinition.Type();
  if (!type) throw EPropertyError(SInvalidProperty.toString());
  CheckTypeInfo(type);
  if (!FitsKind(FDefinition.Access.get(), type->Kind())) {
    throw EPropertyError(Format(SInvalidPropertyType, {type->Name()}));
  }
  FType.store(type, std::memory_order_release);
  return type;
}

}  // namespace kt
