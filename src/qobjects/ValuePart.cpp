#include "kt/qobjects/ValuePart.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

namespace kt {

void TValuePart::Destruct() {
  DropParts();
  TPersistent::Destruct();
}

bool TValuePart::IsWithin(QMetaType type) const {
  for (const TValuePart* part = this; part; part = dynamic_cast<const TValuePart*>(&part->FHolder)) {
    if (part->Type() == type) return true;
  }
  return false;
}

std::optional<QVariant> TValuePart::FreshValueOf(const TValueMember& member) const {
  const std::optional<QVariant> whole = FHolder.FreshValueOf(*FMember);
  if (!whole || whole->metaType() != Type() || !member.Pick) return std::nullopt;
  return member.Pick(*whole);
}

QVariant TValuePart::ReadWhole() {
  const QMetaType type = Type();
  QVariant whole = FMember->Read(FHolder);
  return whole.metaType() == type ? whole : QVariant(type);
}

void TValuePart::WriteWhole(const QVariant& value) {
  if (!FMember->Write) throw EPropReadOnly(SReadOnlyProperty.toString());
  FMember->Write(FHolder, value);
}

void TValuePart::Assign(TPersistent* source) {
  auto* other = dynamic_cast<TValuePart*>(source);
  if (!other || other->Type() != Type()) return TPersistent::Assign(source);
  const TLifeWatch watch(this);
  const QVariant whole = other->ReadWhole();
  if (watch.IsAlive()) WriteWhole(whole);
}

QVariant WholeOf(TValueHolder& holder) { return static_cast<TValuePart&>(holder).ReadWhole(); }

}  // namespace kt
