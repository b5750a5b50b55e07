#include "kt/rtl/streams/UnknownComponent.h"

#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <algorithm>

namespace kt {

const TClassInfo* TUnknownComponent::Class() {
  static const TClassInfo info = TClassBuilder<TUnknownComponent>("TUnknownComponent").Creatable().Done();
  return &info;
}

void TUnknownComponent::Destruct() {
  if (TKeptData* kept = FindKeptData(FStreamParent)) {
    std::erase_if(kept->Children, [this](const TKeptData::TChild& child) { return child.Component == this; });
  }
  for (const TComponent* child : FChildren) {
    if (TKeptData* kept = FindKeptData(child)) kept->StandInParent = nullptr;
  }
  TComponent::Destruct();
}

void TUnknownComponent::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation != opRemove) return;
  if (component == FStreamParent) FStreamParent = nullptr;
  std::erase(FChildren, component);
}

void TUnknownComponent::GetChildren(const TGetChildProc& proc, TComponent*) {
  for (TComponent* child : std::vector(FChildren)) proc(child);
}

}  // namespace kt
