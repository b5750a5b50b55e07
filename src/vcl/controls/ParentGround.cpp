#include "kt/vcl/controls/ParentGround.h"

#include "kt/vcl/controls/Control.h"

namespace kt {

bool TParentGround::IsOn(const TControl& control) const {
  return FValue.value_or(control.IsParentColor() || control.GetColor() == clBtnFace);
}

bool TParentGround::Set(const TControl& control, bool value) {
  const bool before = IsOn(control);
  FValue = value;
  return before != value;
}

}  // namespace kt
