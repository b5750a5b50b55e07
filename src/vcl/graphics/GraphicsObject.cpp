#include "kt/vcl/graphics/GraphicsObject.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TGraphicsObject::Class() {
  static const TClassInfo info = TClassBuilder<TGraphicsObject>("TGraphicsObject").Done();
  return &info;
}

void TGraphicsObject::Changed() {
  const TNotifyEvent handler = OnChange;
  handler(this);
}

}  // namespace kt
