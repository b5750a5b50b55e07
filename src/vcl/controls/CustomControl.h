#pragma once

#include "kt/vcl/controls/WinControl.h"

namespace kt {

/// A control with a window that it paints itself.
class TCustomControl : public TWinControl {
 public:
  using Inherited = TWinControl;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TCustomControl(TComponent* owner = nullptr) : TWinControl(owner) {}

  /// Draws the client area.
  virtual void Paint() {}
};

}  // namespace kt
