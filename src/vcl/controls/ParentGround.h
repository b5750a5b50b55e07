#pragma once

#include "kt/vcl/graphics/Color.h"

#include <optional>

namespace kt {

class TControl;

/// ParentBackground of a control with a window: whether what is behind it shows, and not its Color. As long as nobody
/// says, that is so for a control without a colour of its own; so a colour that is set is always seen.
class TParentGround {
 public:
  bool IsOn(const TControl& control) const;
  /// True when it was another one.
  bool Set(const TControl& control, bool value);
  bool IsStored() const { return FValue.has_value(); }

 private:
  std::optional<bool> FValue;
};

}  // namespace kt
