#include "kt/rtl/objects/Exceptions.h"

namespace kt {

const char* Exception::what() const noexcept {
  if (FUtf8.isEmpty()) FUtf8 = FMessage.toUtf8();
  return FUtf8.constData();
}

}  // namespace kt
