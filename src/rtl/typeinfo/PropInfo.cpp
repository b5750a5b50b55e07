#include "kt/rtl/typeinfo/PropInfo.h"

namespace kt {

const TTypeInfo* TPropInfo::AskType() const {
  const TTypeInfo* type = FDefinition.Type();
  FType.store(type, std::memory_order_release);
  return type;
}

}  // namespace kt
