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
  for (TComponent* child : FChildren) {
    if (TKeptData* kept = FindKeptData(child)) kept->StandInParent = nullptr;
    if (auto* unknown = dynamic_cast<TUnknownComponent*>(child)) unknown->FStreamParent = nullptr;
  }
  FChildren.clear();
  TComponent::Destruct();
}

void TUnknownComponent::GetChildren(const TGetChildProc& proc, TComponent*) {
  for (TComponent* child : std::vector(FChildren)) proc(child);
}

TUnknownComponent* AsUnknown(TObject* object) {
  const bool isUnknown = object && object->InheritsFrom(TUnknownComponent::Class());
  return isUnknown ? static_cast<TUnknownComponent*>(object) : nullptr;
}

void ForgetStandIns(TPersistent* object) {
  const TKeptData* kept = FindKeptData(object);
  if (!kept) return;
  if (auto* parent = static_cast<TUnknownComponent*>(kept->StandInParent)) {
    // From the end, where components come and go most.
    auto& children = parent->FChildren;
    const auto found = std::find(children.rbegin(), children.rend(), object);
    if (found != children.rend()) children.erase(std::next(found).base());
  }
  for (const TKeptData::TChild& child : kept->Children) {
    static_cast<TUnknownComponent*>(child.Component)->FStreamParent = nullptr;
  }
  ForgetKeptData(object);
}

}  // namespace kt
