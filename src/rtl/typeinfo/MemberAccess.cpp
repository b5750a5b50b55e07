#include "kt/rtl/typeinfo/MemberAccess.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <cmath>

namespace kt::MemberAccess {

const TMethod& CheckedMethod(const TMethod& method, bool accepted, const char* typeName) {
  if (!accepted) throw EPropertyConvertError(Format(SInvalidPropertyType, {QLatin1StringView(typeName)}));
  return method;
}

void RaiseCannotAssignNil(const TClassInfo* target) {
  throw EConvertError(Format(SAssignError, {QLatin1StringView("nil"), target->ClassName()}));
}

void RaiseInvalidCast() { throw EInvalidCast(SInvalidCast.toString()); }

void RaiseRangeError() { throw ERangeError(SRangeError.toString()); }

long double FloatOfAmount(Currency amount) { return static_cast<long double>(amount.Scaled()) / 10000; }

/// Whole part and fraction apart: their product with 10000 would need more digits than the largest amounts leave.
Currency AmountOfFloat(long double value) {
  constexpr long double largestWhole = 922337203685477.0L;
  const long double whole = std::trunc(value);
  if (!(std::fabs(whole) <= largestWhole)) RaiseRangeError();
  const auto fraction = static_cast<qint64>(std::nearbyint((value - whole) * 10000));
  qint64 scaled = 0;
  if (qAddOverflow(static_cast<qint64>(whole) * 10000, fraction, &scaled)) RaiseRangeError();
  return Currency::FromScaled(scaled);
}

}  // namespace kt::MemberAccess
