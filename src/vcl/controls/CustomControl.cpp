#include "kt/vcl/controls/CustomControl.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TCustomControl::Class() {
  static const TClassInfo info = TClassBuilder<TCustomControl>("TCustomControl").Done();
  return &info;
}

}  // namespace kt
