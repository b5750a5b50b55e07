#include "kt/vcl/controls/SizeConstraints.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/Control.h"

namespace kt {

const TClassInfo* TSizeConstraints::Class() {
  static const TClassInfo info =
      TClassBuilder<TSizeConstraints>("TSizeConstraints")
          .Property<&TSizeConstraints::GetMaxHeight, &TSizeConstraints::SetMaxHeight>("MaxHeight")
          .Default(0)
          .Property<&TSizeConstraints::GetMaxWidth, &TSizeConstraints::SetMaxWidth>("MaxWidth")
          .Default(0)
          .Property<&TSizeConstraints::GetMinHeight, &TSizeConstraints::SetMinHeight>("MinHeight")
          .Default(0)
          .Property<&TSizeConstraints::GetMinWidth, &TSizeConstraints::SetMinWidth>("MinWidth")
          .Default(0)
          .Done();
  return &info;
}

void TSizeConstraints::Assign(TPersistent* source) {
  const auto* other = dynamic_cast<TSizeConstraints*>(source);
  if (!other) return TPersistent::Assign(source);
  FLimits = other->FLimits;
  Change();
}

TPersistent* TSizeConstraints::GetOwner() { return FControl; }

void TSizeConstraints::SetMaxHeight(int value) { SetMax(FLimits.MaxHeight, FLimits.MinHeight, value); }
void TSizeConstraints::SetMaxWidth(int value) { SetMax(FLimits.MaxWidth, FLimits.MinWidth, value); }
void TSizeConstraints::SetMinHeight(int value) { SetMin(FLimits.MinHeight, FLimits.MaxHeight, value); }
void TSizeConstraints::SetMinWidth(int value) { SetMin(FLimits.MinWidth, FLimits.MaxWidth, value); }

void TSizeConstraints::SetMax(int& max, int& min, int value) {
  value = qMax(value, 0);
  if (max == value) return;
  max = value;
  if (max > 0 && max < min) min = max;
  Change();
}

void TSizeConstraints::SetMin(int& min, int& max, int value) {
  value = qMax(value, 0);
  if (min == value) return;
  min = value;
  if (max > 0 && min > max) max = min;
  Change();
}

int TSizeLimits::ClampWidth(int width) const {
  if (MaxWidth > 0) width = qMin(width, MaxWidth);
  return qMax(width, MinWidth);
}

int TSizeLimits::ClampHeight(int height) const {
  if (MaxHeight > 0) height = qMin(height, MaxHeight);
  return qMax(height, MinHeight);
}

void TSizeConstraints::Change() {
  const TLifeWatch self(this);
  FControl->ConstraintsChanged();
  if (self.IsAlive()) OnChange(this);
}

}  // namespace kt
