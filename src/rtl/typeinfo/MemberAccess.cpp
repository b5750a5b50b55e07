#include "kt/rtl/typeinfo/MemberAccess.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

namespace kt::MemberAccess {

const TMethod& CheckedMethod(const TMethod& method, bool accepted, const char* typeName) {
  if (!accepted) throw EPropertyConvertError(Format(SInvalidPropertyType, {QLatin1StringView(typeName)}));
  return method;
}

void RaiseCannotAssignNil(const TClassInfo* target) {
  throw EConvertError(Format(SAssignError, {QLatin1StringView("nil"), target->ClassName()}));
}

}  // namespace kt::MemberAccess
