#include "kt/rtl/objects/Component.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/objects/OwnedComponents.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <algorithm>

namespace kt {

const TClassInfo* TComponent::Class() {
  static const TClassInfo info =
      TClassBuilder<TComponent>("TComponent")
          .Property<&TComponent::GetName, &TComponent::SetName>("Name", &TypeInfos::ComponentName)
          .NotStored()
          .Property<&TComponent::GetTag, &TComponent::SetTag>("Tag")
          .Default(0)
          .Creatable()
          .Done();
  return &info;
}

// Here, where the data behind the pointers is known.
TComponent::TComponent(TComponent* owner) : FNewOwner(owner) {}

TComponent::~TComponent() = default;

/// Takes neither stack nor memory, however deep the tree: each owner remembers how far the walk has come.
template <class F>
void TComponent::Walk(F enter) {
  if (!enter(this)) return;
  TComponent* owner = this;
  if (FOwned) FOwned->BeginWalk();
  while (owner) {
    TComponent* next = owner->FOwned ? owner->FOwned->NextOfWalk() : nullptr;
    if (!next) {
      owner = owner == this ? nullptr : owner->FOwner;
    } else if (enter(next)) {
      if (next->FOwned) next->FOwned->BeginWalk();
      owner = next;
    }
  }
}

void TComponent::Construct() {
  TPersistent::Construct();
  if (FNewOwner) FNewOwner->InsertComponent(this);
}

void TComponent::BeforeDestruction() {
  TPersistent::BeforeDestruction();
  Destroying();
  if (TObjectLife::IsDeep()) DestroyFromLeaves();
}

void TComponent::Destruct() {
  Destroying();
  TellWatchers();
  DestroyComponents();
  // The owner lets go even when somebody it tells raises an exception.
  if (FOwner) GuardedCall([this] { FOwner->RemoveComponent(this); });
  if (FOwner) FOwner->Forget(this);
  // Whoever began to watch while all this was told.
  TellWatchers();
  TPersistent::Destruct();
}

void TComponent::SetName(const QString& value) {
  if (FName == value) return;
  if (!value.isEmpty() && !IsValidIdent(value)) throw EComponentError(Format(SInvalidName, {value}));
  if (FOwner) {
    FOwner->ValidateRename(this, FName, value);
  } else {
    ValidateRename(nullptr, FName, value);
  }
  ChangeName(value);
}

void TComponent::ChangeName(const QString& value) {
  // The index first: should memory run out there, nothing has changed.
  if (FOwner) FOwner->FOwned->Renamed(this, FName, value);
  FName = value;
}

int TComponent::GetComponentCount() const { return FOwned ? FOwned->Count() : 0; }

TComponent* TComponent::GetComponents(int index) const {
  if (index < 0 || index >= GetComponentCount()) throw EListError(Format(SListIndexError, {index}));
  return FOwned->List()[index];
}

int TComponent::GetComponentIndex() const { return FOwner ? FOwner->FOwned->IndexOf(this) : -1; }

void TComponent::SetComponentIndex(int value) {
  const int current = GetComponentIndex();
  if (current < 0) return;
  const int target = std::clamp(value, 0, FOwner->GetComponentCount() - 1);
  if (target != current) FOwner->FOwned->Move(current, target);
}

TComponent* TComponent::FindComponent(QStringView name) const {
  return FOwned && !name.isEmpty() ? FOwned->Find(name) : nullptr;
}

void TComponent::InsertComponent(TComponent* component) {
  if (component->FOwner == this) return;
  component->ValidateContainer(this);
  if (FindComponent(component->FName)) throw EComponentError(Format(SDuplicateName, {component->FName}));
  if (component->FOwner) component->FOwner->RemoveComponent(component);
  ValidateRename(component, QString(), component->FName);
  EnsureOwned().Add(component, component->FName);
  component->FOwner = this;
  if (HasState(csDesigning)) component->SetDesigning(true);
  const TLifeWatch watch(component);
  Notification(component, opInsert);
  // A component that is being constructed must not go on when it, perhaps with its owner, is gone.
  if (!watch.IsAlive()) throw EComponentError(SObjectFreed.toString());
}

void TComponent::RemoveComponent(TComponent* component) {
  Q_ASSERT(component->FOwner == this);
  ValidateRename(component, component->FName, QString());
  Notification(component, opRemove);
  Forget(component);
  component->SetDesigning(false);
}

void TComponent::DestroyComponents() {
  if (FOwned) FOwned->DropIndex();
  while (GetComponentCount() > 0) DestroyLast();
}

void TComponent::DestroyLast() {
  TComponent* last = FOwned->List().back();
  // Only a component that somebody watches announces its going to its siblings; the others go silently.
  if (last->HasState(csFreeNotification)) GuardedCall([&] { RemoveComponent(last); });
  if (last->FOwner) Forget(last);
  delete last;
}

void TComponent::DestroyFromLeaves() {
  TComponent* owner = this;
  while (GetComponentCount() > 0) {
    while (owner->GetComponentCount() > 0) {
      owner = owner->FOwned->List().back();
      // It may have come while the tree was going.
      owner->Destroying();
    }
    // The leaf's owner; a handler may have taken the leaf, or the branch, out of the tree.
    owner = owner->FOwner && owner->FOwner->HasState(csDestroying) ? owner->FOwner : this;
    if (owner->GetComponentCount() == 0 || owner->FOwned->List().back()->GetComponentCount() > 0) continue;
    const TLifeWatch watch(owner);
    owner->DestroyLast();
    if (!watch.IsAlive()) owner = this;
  }
}

void TComponent::Forget(TComponent* component) {
  FOwned->Remove(component, component->FName);
  component->FOwner = nullptr;
}

void TComponent::Destroying() {
  Walk([](TComponent* component) {
    if (component->HasState(csDestroying)) return false;
    component->FComponentState.Include(csDestroying);
    return true;
  });
}

void TComponent::FreeNotification(TComponent* component) {
  FComponentState.Include(csFreeNotification);
  if (FOwner && component->FOwner == FOwner) return;
  if (std::find(FFreeNotifies.begin(), FFreeNotifies.end(), component) != FFreeNotifies.end()) return;
  FFreeNotifies.push_back(component);
  try {
    component->FreeNotification(this);
  } catch (...) {
    RemoveWatcher(component);
    throw;
  }
}

void TComponent::RemoveFreeNotification(TComponent* component) {
  RemoveWatcher(component);
  component->RemoveWatcher(this);
}

void TComponent::RemoveWatcher(TComponent* component) {
  const auto found = std::find(FFreeNotifies.rbegin(), FFreeNotifies.rend(), component);
  if (found != FFreeNotifies.rend()) FFreeNotifies.erase(std::next(found).base());
}

void TComponent::TellWatchers() {
  while (!FFreeNotifies.empty()) {
    TComponent* watcher = FFreeNotifies.back();
    GuardedCall([&] { watcher->Notification(this, opRemove); });
    // An override that does not call the inherited Notification() leaves the pair; a watcher that was freed has gone.
    if (!FFreeNotifies.empty() && FFreeNotifies.back() == watcher) RemoveFreeNotification(watcher);
  }
}

QString TComponent::GetNamePath() { return FName; }

void TComponent::Notification(TComponent* component, TOperation operation) {
  if (operation == opRemove && component) RemoveFreeNotification(component);
  TComponent* node = this;
  // A chain of components with nothing to do of their own takes no stack.
  while (TComponent* next = node->OnlyDeafListener()) {
    node = next;
    if (operation == opRemove && component) node->RemoveFreeNotification(component);
  }
  if (!node->FOwned) return;
  const TLifeWatch self(this);
  const TLifeWatch watch(node);
  // Downwards, and cut to what is left each time: a notified component may free others.
  TOwnedComponents& owned = *node->FOwned;
  for (int i = owned.ListenerCount() - 1; i >= 0; i = std::min(i - 1, owned.ListenerCount() - 1)) {
    owned.Listener(i)->Notification(component, operation);
    // An override that called must not go on either.
    if (!self.IsAlive() || !watch.IsAlive()) throw EComponentError(SObjectFreed.toString());
  }
}

TComponent* TComponent::OnlyDeafListener() {
  if (!FOwned || FOwned->ListenerCount() != 1) return nullptr;
  TComponent* listener = FOwned->Listener(0);
  return listener->FHearsNotifications ? nullptr : listener;
}

void TComponent::GetChildren(const TGetChildProc&, TComponent*) {}

void TComponent::SetAncestor(bool value) {
  FComponentState.Put(csAncestor, value);
  for (int i = 0; i < GetComponentCount(); ++i) FOwned->List()[i]->SetAncestor(value);
}

void TComponent::SetDesigning(bool value, bool setChildren) {
  if (!setChildren) return FComponentState.Put(csDesigning, value);
  Walk([value](TComponent* component) {
    component->FComponentState.Put(csDesigning, value);
    return true;
  });
}

void TComponent::ValidateRename(TComponent* component, const QString& current, const QString& wanted) {
  if (component && !SameText(current, wanted) && component->FOwner == this && FindComponent(wanted)) {
    throw EComponentError(Format(SDuplicateName, {wanted}));
  }
  if (HasState(csDesigning) && FOwner) FOwner->ValidateRename(component, current, wanted);
}

void TComponent::ValidateContainer(TComponent* container) { container->ValidateInsert(this); }

TOwnedComponents& TComponent::EnsureOwned() {
  if (FOwned) return *FOwned;
  auto owned = std::make_unique<TOwnedComponents>();
  // From now on notifications have a way to go through here.
  if (FOwner) FOwner->FOwned->ListenersChanged();
  FOwned = std::move(owned);
  return *FOwned;
}

}  // namespace kt
