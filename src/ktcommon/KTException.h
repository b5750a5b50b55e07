#pragma once

#include "kt/rtl/objects/Exceptions.h"

namespace kt {

/// The root of the exceptions that the product raises itself.
class EKTException : public Exception {
  using Exception::Exception;
};

}  // namespace kt
