#include "kt/rtl/typeinfo/PropInfo.h"

namespace kt {

const TTypeInfo* TPropInfo::PropType() const {
  const TTypeInfo* type = FType.load(std::memory_order_acquire);
  if (type) return type;
  type = FDefinition.Type();
  FType.store(type, std::memory_order_release);
  return type;
}

}  // namespace kt
