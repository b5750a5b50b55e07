#include "kt/qobjects/ValueMember.h"

#include "kt/qobjects/ReferenceWatch.h"
#include "kt/rtl/objects/Make.h"

namespace kt {

TValueHolder::TValueHolder() = default;

TValueHolder::~TValueHolder() = default;

void TValueHolder::DropParts() {
  FParts.clear();
  FReferences.reset();
}

void TValueHolder::ReferenceTold(const QString& member) {
  if (FReferences) FReferences->Refreshed(member);
}

TReferenceWatch& TValueHolder::References() {
  if (!FReferences) FReferences = Make<TReferenceWatch>(*this);
  return *FReferences;
}

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
