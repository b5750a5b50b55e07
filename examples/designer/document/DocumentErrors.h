#pragma once

#include "kt/rtl/objects/Exceptions.h"

namespace designer {

/// An edit that the document cannot make; its message tells which component or property, and why.
class EDocumentError : public kt::Exception {
 public:
  using Exception::Exception;
};

}  // namespace designer
