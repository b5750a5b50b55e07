#include "kt/qobjects/ValueMember.h"

namespace kt {

TObject* TValueHolder::Part(const TMemberPtr& member, const std::function<std::unique_ptr<TObject>()>& make) {
  std::unique_ptr<TObject>& part = FParts[member.get()];
  if (!part) part = make();
  return part.get();
}

TValueHolder& HolderIn(TObject& object) {
  auto* holder = dynamic_cast<TValueHolder*>(&object);
  Q_ASSERT(holder);
  return *holder;
}

bool IsSameValue(const QVariant& a, const QVariant& b) {
  if (!a.isValid() || !b.isValid()) return a.isValid() == b.isValid();
  return a.metaType() == b.metaType() && a == b;
}

}  // namespace kt
