#include "kt/vcl/controls/SizeConstraints.h"

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
  FMaxHeight = other->FMaxHeight;
  FMaxWidth = other->FMaxWidth;
  FMinHeight = other->FMinHeight;
  FMinWidth = other->FMinWidth;
  Change();
}

TPersistent* TSizeConstraints::GetOwner() { return FControl; }

void TSizeConstraints::SetMaxHeight(int value) { SetMax(FMaxHeight, FMinHeight, value); }
void TSizeConstraints::SetMaxWidth(int value) { SetMax(FMaxWidth, FMinWidth, value); }
void TSizeConstraints::SetMinHeight(int value) { SetMin(FMinHeight, FMaxHeight, value); }
void TSizeConstraints::SetMinWidth(int value) { SetMin(FMinWidth, FMaxWidth, value); }

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

int TSizeConstraints::ClampWidth(int width) const {
  if (FMaxWidth > 0) width = qMin(width, FMaxWidth);
  return qMax(width, FMinWidth);
}

int TSizeConstraints::ClampHeight(int height) const {
  if (FMaxHeight > 0) height = qMin(height, FMaxHeight);
  return qMax(height, FMinHeight);
}

void TSizeConstraints::Change() {
  FControl->ConstraintsChanged();
  OnChange(this);
}

}  // namespace kt
