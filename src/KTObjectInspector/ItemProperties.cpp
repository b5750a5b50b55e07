#include "kt/KTObjectInspector/ItemProperties.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TKTItemProperties::Class() {
  static const TClassInfo info = TClassBuilder<TKTItemProperties>("TKTItemProperties").Done();
  return &info;
}

}  // namespace kt
