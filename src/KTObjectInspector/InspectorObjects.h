#pragma once

#include "kt/KTObjectInspector/InspectorObject.h"
#include "kt/rtl/collections/Collection.h"

namespace kt {

class TKTCustomObjectInspector;

/// The inspected objects, in their order. An object is held once.
class TKTInspectorObjects : public TOwnedCollection {
 public:
  using Inherited = TOwnedCollection;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TKTInspectorObject* GetItem(int index) const {
    return static_cast<TKTInspectorObject*>(TOwnedCollection::GetItem(index));
  }
  TKTInspectorObject* Add() { return static_cast<TKTInspectorObject*>(TOwnedCollection::Add()); }
  /// The entry of that object, made when there is none.
  TKTInspectorObject* Add(TObject* object);
  /// As above; the entry goes when `owner` dies.
  TKTInspectorObject* Add(TComponent* owner, TObject* object);
  TKTInspectorObject* Insert(int index) { return static_cast<TKTInspectorObject*>(TOwnedCollection::Insert(index)); }
  TKTInspectorObject* FindItemID(int id) const {
    return static_cast<TKTInspectorObject*>(TOwnedCollection::FindItemID(id));
  }
  /// The first entry of that object, or -1.
  int IndexOf(const TObject* object) const;
  int IndexOfOwner(const TComponent* owner) const;
  /// Deletes the first entry, and no other, that has the object as its own or as its owner component; answers where it
  /// was, or -1.
  int Remove(const TObject* object);
  /// Deletes every entry that has a dying component as its object or as its owner component, whatever the inspector's
  /// handlers make of it; what they raise is raised afterwards.
  void LetGo(const TComponent* dying);
  /// Copies the entries that refer to an object.
  void AssignNonEmpty(TKTInspectorObjects& source);

  /// The owner when it is a component.
  TComponent* NotifyComponent() const;
  /// The owner when it is an inspector.
  TKTCustomObjectInspector* GetInspector() const;
  /// First tells the inspector that the objects are about to change. Raises EInvalidOperation "An object was freed
  /// while it was in use" when a handler of that frees it.
  void BeginUpdate() override;

 protected:
  friend class TKTInspectorObject;

  /// `owner` may be null.
  explicit TKTInspectorObjects(TPersistent* owner);

  int IndexNaming(const TObject* object) const;
  void RemoveAll(const TComponent* named);
  /// Before a change; silent in an update bracket.
  void Changing(TKTInspectorObject* item);
  void Update(TCollectionItem* item) override;

 private:
  TPersistent* FOwnerObject;
};

}  // namespace kt
