#pragma once

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/streams/FormObjectHeader.h"

#include <vector>

namespace kt {

/// Stands for a component whose class is not registered: keeps its class name, its properties as they were in the
/// stream, its children and its place among its siblings, so that writing gives back what was read. Made by readers
/// with the policy upKeep.
class TUnknownComponent : public TComponent {
 public:
  using Inherited = TComponent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// What the stream said of the object: its class name, whether it was inherited or inline, its position.
  const TFormObjectHeader& GetHeader() const { return FHeader; }
  /// The component below which the stream had this one; null for a root, or when it is gone.
  TComponent* GetParentComponent() override { return FStreamParent; }
  bool HasParent() override { return FStreamParent != nullptr; }

 protected:
  explicit TUnknownComponent(TComponent* owner = nullptr) : TComponent(owner) {}
  void Destruct() override;
  void GetChildren(const TGetChildProc& proc, TComponent* root) override;
  /// A nested form is a scope of names of its own.
  TComponent* GetChildOwner() override { return FHeader.Flags.testFlag(ffInline) ? this : nullptr; }

 private:
  friend class TReader;
  friend void ForgetStandIns(TPersistent* object);

  TFormObjectHeader FHeader;
  TComponent* FStreamParent = nullptr;
  std::vector<TComponent*> FChildren;
};

/// The object as a stand-in; null when it is none, or null. Asked for each property that is read, where dynamic_cast
/// takes a fifth of the time.
TUnknownComponent* AsUnknown(TObject* object);

/// Takes an object that is being destroyed from the stand-ins that know it, and forgets what was kept for it. Every
/// persistent object does this.
void ForgetStandIns(TPersistent* object);

}  // namespace kt
