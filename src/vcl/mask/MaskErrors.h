#pragma once

#include "kt/rtl/objects/Exceptions.h"

namespace kt {

/// The user leaves an editor whose text does not fulfil its mask.
class EDBEditError : public Exception {
  using Exception::Exception;
};
/// A text does not fulfil its mask, at design time.
class EMaskError : public Exception {
  using Exception::Exception;
};

}  // namespace kt
