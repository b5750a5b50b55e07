#include "kt/rtl/conversions/Currency.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <cmath>

namespace kt {

Currency::Currency(double value) {
  const long double scaled = std::nearbyint(static_cast<long double>(value) * 10000);
  if (!(scaled >= -0x1p63L && scaled < 0x1p63L)) throw ERangeError(SRangeError);
  FScaled = static_cast<qint64>(scaled);
}

}  // namespace kt
