#pragma once

#include "kt/qobjects/ValueMember.h"
#include "kt/rtl/objects/Persistent.h"

namespace kt {

/// Stands for a value that has members itself, such as a font or a gadget, so that these are listed and edited one by
/// one. Holds no copy: each member is read out of the whole as its holder has it now, and written back with the whole.
class TValuePart : public TPersistent, public TValueHolder {
 public:
  using Inherited = TPersistent;

  static const TClassInfo* Class() { return TPersistent::Class(); }
  const TClassInfo* ClassType() const override { return FClass; }

  TObject& AsObject() override { return *this; }
  QObject* Root() const override { return FHolder.Root(); }
  std::optional<QVariant> FreshValueOf(const TValueMember& member) const override;
  void MemberChanged(const TValueMember&) override { FHolder.MemberChanged(*FMember); }
  QMetaType Type() const { return FMember->Type; }
  /// Whether a value of that type is what this part, or one that it is in, stands for.
  bool IsWithin(QMetaType type) const;
  /// A default value where there is none any more. A getter may free the part.
  QVariant ReadWhole();
  /// Raises EPropReadOnly for a whole that cannot be written.
  void WriteWhole(const QVariant& value);
  /// Copies another part of the same type.
  void Assign(TPersistent* source) override;

 protected:
  TValuePart(TValueHolder& holder, TMemberPtr member, const TClassInfo* classInfo)
      : FHolder(holder), FMember(std::move(member)), FClass(classInfo) {}

  void Destruct() override;

 private:
  TValueHolder& FHolder;
  TMemberPtr FMember;
  const TClassInfo* FClass;
};

/// The whole that a part, which `holder` must be, stands for.
QVariant WholeOf(TValueHolder& holder);

/// Changes the whole that a part stands for.
template <class F>
void ChangeWhole(TValueHolder& holder, F change) {
  auto& part = static_cast<TValuePart&>(holder);
  const TLifeWatch watch(&part);
  QVariant whole = part.ReadWhole();
  if (!watch.IsAlive()) return;
  change(whole);
  part.WriteWhole(whole);
}

}  // namespace kt
