#include "kt/KTObjectInspector/InspectorObjects.h"

#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <vector>

namespace kt {

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
  // A handler of the change may have freed the object meanwhile; there is nothing to inspect then.
  const int index = IndexOf(watched.Get());
  TKTInspectorObject* entry = index < 0 ? Add() : GetItem(index);
  entry->SetObjects(watched.Get());
  return entry;
}

TKTInspectorObject* TKTInspectorObjects::Add(TComponent* owner, TObject* object) {
  TKTInspectorObject* entry = Add(object);
  entry->SetOwnerComponent(owner);
  return entry;
}

int TKTInspectorObjects::Remove(const TObject* object) {
  for (int i = 0; i < GetCount(); ++i) {
    if (GetItem(i)->GetObjects() != object && GetItem(i)->GetOwnerComponent() != object) continue;
    const TObjectRef entry(GetItem(i));
    const TUpdateBracket bracket(*this);
    // Whoever heard of the coming change may have removed it already.
    if (entry) Delete(static_cast<TKTInspectorObject*>(entry.Get())->GetIndex());
    return i;
  }
  return -1;
}

void TKTInspectorObjects::AssignNonEmpty(TKTInspectorObjects& source) {
  const TUpdateBracket bracket(*this);
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
  Changing(nullptr);
  TOwnedCollection::BeginUpdate();
}

void TKTInspectorObjects::Update(TCollectionItem* item) {
  TOwnedCollection::Update(item);
  if (TKTCustomObjectInspector* inspector = GetInspector()) {
    inspector->ListUpdate(static_cast<TKTInspectorObject*>(item));
  }
}

}  // namespace kt
