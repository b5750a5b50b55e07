#include "kt/KTObjectInspector/InspectorObject.h"

#include "kt/KTObjectInspector/InspectorObjects.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TKTInspectorObject::Class() {
  using T = TKTInspectorObject;
  static const TClassInfo info = TClassBuilder<T>("TKTInspectorObject")
                                     .Property<&T::GetComponent, &T::SetComponent>("Component")
                                     .Creatable()
                                     .Done();
  return &info;
}

void TKTInspectorObject::Destruct() {
  FObject = nullptr;
  FOwnerComponent = nullptr;
  TCollectionItem::Destruct();
}

TKTInspectorObjects* TKTInspectorObject::GetCollection() const {
  return static_cast<TKTInspectorObjects*>(TCollectionItem::GetCollection());
}

TComponent* TKTInspectorObject::GetNotifyComponent() const {
  const TKTInspectorObjects* objects = GetCollection();
  return objects ? objects->NotifyComponent() : nullptr;
}

TComponent* TKTInspectorObject::GetOwnerComponent() const { return static_cast<TComponent*>(FOwnerComponent.Get()); }

TComponent* TKTInspectorObject::GetComponent() const { return dynamic_cast<TComponent*>(FObject.Get()); }

void TKTInspectorObject::SetComponent(TComponent* value) {
  if (value != GetComponent()) SetObjects(value);
}

void TKTInspectorObject::Changing() {
  if (TKTInspectorObjects* objects = GetCollection()) objects->Changing(this);
}

void TKTInspectorObject::Watch(TComponent* component) {
  TComponent* notified = component ? GetNotifyComponent() : nullptr;
  if (notified) component->FreeNotification(notified);
}

void TKTInspectorObject::SetObjects(TObject* value) {
  if (value == FObject.Get()) return;
  const TLifeWatch self(this);
  const TObjectRef next(value);
  Changing();
  if (!self.IsAlive()) return;
  // The former one goes on telling when it dies: there is one notification for all that the inspector has of it, as its
  // menu perhaps, and nobody can know who else counts on that.
  FObject = next;
  Watch(dynamic_cast<TComponent*>(FObject.Get()));
  Changed(false);
}

void TKTInspectorObject::SetOwnerComponent(TComponent* value) {
  if (value == FOwnerComponent.Get()) return;
  FOwnerComponent = value;
  Watch(value);
}

void TKTInspectorObject::Assign(TPersistent* source) {
  auto* other = dynamic_cast<TKTInspectorObject*>(source);
  if (!other) return TCollectionItem::Assign(source);
  const TLifeWatch self(this);
  const TObjectRef owner(other->GetOwnerComponent());
  SetObjects(other->GetObjects());
  if (!self.IsAlive()) return;
  SetOwnerComponent(static_cast<TComponent*>(owner.Get()));
  Changed(false);
}

QString TKTInspectorObject::GetDisplayName() {
  QString name;
  if (const TComponent* component = GetComponent()) {
    name = component->GetName();
  } else if (const TObject* object = FObject.Get()) {
    name = object->ClassName();
  }
  return name.isEmpty() ? TCollectionItem::GetDisplayName() : name;
}

}  // namespace kt
