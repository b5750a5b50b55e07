#pragma once

#include "kt/rtl/objects/Exceptions.h"

namespace kt {

/// A file or stream that is not the picture it should be.
class EInvalidGraphic : public Exception {
  using Exception::Exception;
};
/// An operation that a kind of picture does not offer.
class EInvalidGraphicOperation : public Exception {
  using Exception::Exception;
};

}  // namespace kt
