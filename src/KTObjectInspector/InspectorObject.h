#pragma once

#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/objects/ObjectRef.h"

namespace kt {

class TComponent;
class TKTInspectorObjects;

/// One inspected object. It is watched, not owned: once it is gone the entry refers to nothing.
class TKTInspectorObject : public TCollectionItem {
 public:
  using Inherited = TCollectionItem;
  using TCreatedIn = TCollection;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// The inspected object; any, not only a component.
  TObject* GetObjects() const { return FObject.Get(); }
  /// Tells the collection before and after. A component that dies takes the entry with it.
  void SetObjects(TObject* value);
  /// An object that takes the entry with it when it dies, or null.
  TComponent* GetOwnerComponent() const;
  void SetOwnerComponent(TComponent* value);
  /// The inspected object when it is a component, else null.
  TComponent* GetComponent() const;
  void SetComponent(TComponent* value);

  TKTInspectorObjects* GetCollection() const;
  /// Who is told when the objects die: the inspector, or null.
  TComponent* GetNotifyComponent() const;
  void Assign(TPersistent* source) override;
  /// The component's name, or the class name of the object.
  QString GetDisplayName() override;

 protected:
  explicit TKTInspectorObject(TCollection* collection) : TCollectionItem(collection) {}

  void Destruct() override;
  void Changing();

 private:
  void Watch(TComponent* component);

  TObjectRef FObject;
  TObjectRef FOwnerComponent;
};

}  // namespace kt
