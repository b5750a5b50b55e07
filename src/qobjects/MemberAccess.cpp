#include "kt/qobjects/MemberAccess.h"

#include "kt/rtl/conversions/Variant.h"
#include "kt/rtl/typeinfo/PropInfo.h"

namespace kt {

namespace {

template <class V>
const IMemberAccess* AccessAs(const TPropInfo& property) {
  return dynamic_cast<const IMemberAccess*>(&property.AccessTo<V>());
}

}  // namespace

const IMemberAccess* FindMemberAccess(const TPropInfo& property) {
  switch (property.Kind()) {
    case tkInteger:
    case tkChar:
    case tkWChar:
    case tkEnumeration:
    case tkSet:
    case tkInt64:
      return AccessAs<qint64>(property);
    case tkFloat:
      return AccessAs<long double>(property);
    case tkString:
    case tkLString:
    case tkWString:
      return AccessAs<QString>(property);
    case tkClass:
      return AccessAs<TObject*>(property);
    case tkVariant:
      return AccessAs<Variant>(property);
    default:
      return nullptr;
  }
}

}  // namespace kt
