#include "kt/KTObjectInspector/InspectorObjects.h"

#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <exception>

namespace kt {

namespace {

void CheckAlive(const TLifeWatch& watch) {
  if (!watch.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
}

}  // namespace

const TClassInfo* TKTInspectorObjects::Class() {
  static const TClassInfo info = TClassBuilder<TKTInspectorObjects>("TKTInspectorObjects").Done();
  return &info;
}

TKTInspectorObjects::TKTInspectorObjects(TPersistent* owner)
    : TOwnedCollection(owner, TKTInspectorObject::Class()), FOwnerObject(owner) {}

TComponent* TKTInspectorObjects::NotifyComponent() const { return dynamic_cast<TComponent*>(FOwnerObject); }

TKTCustomObjectInspector* TKTInspectorObjects::GetInspector() const {
  return dynamic_cast<TKTCustomObjectInspector*>(FOwnerObject);
}

int TKTInspectorObjects::IndexOf(const TObject* object) const {
  for (int i = 0; i < GetCount(); ++i) {
    if (GetItem(i)->GetObjects() == object) return i;
  }
  return -1;
}

int TKTInspectorObjects::IndexOfOwner(const TComponent* owner) const {
  for (int i = 0; i < GetCount(); ++i) {
    if (GetItem(i)->GetOwnerComponent() == owner) return i;
  }
  return -1;
}

TKTInspectorObject* TKTInspectorObjects::Add(TObject* object) {
  const TObjectRef watched(object);
  const TUpdateBracket bracket(*this);
  // A handler of the change may have freed the object meanwhile.
  if (object && !watched) throw EInvalidOperation(SObjectFreed.toString());
  const int index = IndexOf(watched.Get());
  TKTInspectorObject* entry = index < 0 ? Add() : GetItem(index);
  entry->SetObjects(watched.Get());
  return entry;
}

TKTInspectorObject* TKTInspectorObjects::Add(TComponent* owner, TObject* object) {
  const TObjectRef watchedOwner(owner);
  const TObjectRef watched(object);
  const TUpdateBracket bracket(*this);
  TKTInspectorObject* entry = Add(watched.Get());
  entry->SetOwnerComponent(static_cast<TComponent*>(watchedOwner.Get()));
  return entry;
}

/// The first entry that has the object as its own or as its owner component, or -1.
int TKTInspectorObjects::IndexNaming(const TObject* object) const {
  for (int i = 0; i < GetCount(); ++i) {
    if (GetItem(i)->GetObjects() == object || GetItem(i)->GetOwnerComponent() == object) return i;
  }
  return -1;
}

int TKTInspectorObjects::Remove(const TObject* object) {
  const int index = IndexNaming(object);
  if (index < 0) return -1;
  const TObjectRef entry(GetItem(index));
  const TUpdateBracket bracket(*this);
  // Whoever heard of the coming change may have removed it already.
  if (entry) Delete(static_cast<TKTInspectorObject*>(entry.Get())->GetIndex());
  return index;
}

/// The inspector has been told that the objects are about to change.
void TKTInspectorObjects::RemoveAll(const TComponent* named) {
  struct TToldUpdate {
    TKTInspectorObjects& Objects;
    TLifeWatch Life{&Objects};
    void BeginUpdate() { Objects.TOwnedCollection::BeginUpdate(); }
    void EndUpdate() {
      if (Life.IsAlive()) Objects.EndUpdate();
    }
  } update{*this};
  const TUpdateBracket bracket(update);
  for (int i = IndexNaming(named); i >= 0; i = update.Life.IsAlive() ? IndexNaming(named) : -1) Delete(i);
}

void TKTInspectorObjects::LetGo(const TComponent* dying) {
  if (IndexNaming(dying) < 0) return;
  const TLifeWatch self(this);
  std::exception_ptr refusal;
  try {
    Changing(nullptr);
  } catch (...) {
    // An open editor that could not write what was typed, perhaps. The component dies all the same.
    refusal = std::current_exception();
  }
  if (self.IsAlive()) RemoveAll(dying);
  if (refusal) std::rethrow_exception(refusal);
}

void TKTInspectorObjects::AssignNonEmpty(TKTInspectorObjects& source) {
  const TLifeWatch watchOfSource(&source);
  const TUpdateBracket bracket(*this);
  CheckAlive(watchOfSource);
  Clear();
  for (int i = 0; i < source.GetCount(); ++i) {
    if (source.GetItem(i)->GetObjects()) Add()->Assign(source.GetItem(i));
  }
}

void TKTInspectorObjects::Changing(TKTInspectorObject*) {
  TKTCustomObjectInspector* inspector = GetUpdateCount() == 0 ? GetInspector() : nullptr;
  if (inspector) inspector->ListUpdating();
}

void TKTInspectorObjects::BeginUpdate() {
  const TLifeWatch self(this);
  Changing(nullptr);
  CheckAlive(self);
  TOwnedCollection::BeginUpdate();
}

void TKTInspectorObjects::Update(TCollectionItem* item) {
  TOwnedCollection::Update(item);
  if (TKTCustomObjectInspector* inspector = GetInspector()) {
    inspector->ListUpdate(static_cast<TKTInspectorObject*>(item));
  }
}

}  // namespace kt
