#pragma once

#include "kt/rtl/collections/GapSequence.h"
#include "kt/rtl/objects/Persistent.h"

namespace kt {

class TCollection;

/// What happens to an item, as Notify() tells.
enum TCollectionNotification { cnAdded, cnExtracting, cnDeleting };

/// An item of a collection, which owns it. Knows its position and its id.
class TCollectionItem : public TPersistent {
 public:
  using Inherited = TPersistent;
  using TCreatedIn = TCollection;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Null for an item outside any collection.
  TCollection* GetCollection() const { return IsInCollection() ? FCollection : nullptr; }
  /// Moves the item to the end of another collection, or out of any (the caller owns it then). Nothing happens when it
  /// is there already. Raises EListError "Invalid property" when the other collection takes another class of items.
  virtual void SetCollection(TCollection* value);
  /// Unique within the collection for its whole life: the first item added has 0, and so on.
  int GetID() const { return FID; }
  /// The position in the collection, -1 without one. Constant time.
  int GetIndex() const;
  /// Moves the item within its collection. Raises EListError for a position outside it; an equal one does nothing.
  virtual void SetIndex(int value);
  /// How lists call the item: the class name here.
  virtual QString GetDisplayName();
  virtual void SetDisplayName(const QString& value);
  QString GetNamePath() override;

 protected:
  friend class TCollection;
  friend class TItemsExchange;

  /// `collection` may be null.
  explicit TCollectionItem(TCollection* collection) : FCollection(collection) {}

  void Construct() override;
  void BeforeDestruction() override;
  void Destruct() override;
  void DestructAgain() override;
  TPersistent* GetOwner() override;

  /// The collection that this item owns, or null: a class whose items form trees answers it, so that trees of any depth
  /// are destroyed in bounded stack. What is more than about fifty levels down goes from the leaves then, silently as
  /// in any collection that is destroyed.
  virtual TCollection* GetNestedItems() { return nullptr; }
  /// The collection that the constructor was given; for overrides of Construct() that act before the inherited one
  /// enters it.
  TCollection* CollectionToEnter() const { return FCollection; }
  /// Tells the collection that this item, or with `allItems` the whole collection, has changed; silent while the
  /// collection is in an update bracket.
  void Changed(bool allItems);

 private:
  friend class TGapSequence<TCollectionItem>;

  void LeaveForGood();
  static void FreeFromLeaves(TCollection& top);

  bool IsInCollection() const { return FSlot >= 0; }

  /// Until Construct() has entered it: the collection to enter.
  TCollection* FCollection;
  int FID = 0;
  int FSlot = -1;
};

/// An ordered collection that owns items of one class or its descendants.
///
/// The order of the notifications is the framework's. Adding: the item is at the end of the list, then
/// Notify(cnAdded), then Changed(); Insert() moves it to its place after that. Taking out: Notify(cnExtracting) while
/// the item is still in the list, then it leaves, then Changed(). Delete() sends Notify(cnDeleting) before all this;
/// Clear() and `delete item` do not. Changed() calls Update() with the one item that changed, or null for "anything may
/// have", unless inside BeginUpdate()/EndUpdate(), whose last EndUpdate() calls Update(null).
///
/// An exception of an override does not keep items alive when the collection is destroyed; it is reported then
/// (HandleException()). A collection may be freed inside its own notifications: the operation that sent them raises
/// EInvalidOperation "An object was freed while it was in use" if it had more to do, and an item that was just leaving
/// belongs to nobody then.
///
/// Cost: positions are constant time; inserting and removing cost the distance from the place of the last insertion or
/// removal, so that runs at either end or anywhere are constant time each.
class TCollection : public TPersistent {
 public:
  using Inherited = TPersistent;
  using TCreatedIn = void;
  using TItemSequence = TGapSequence<TCollectionItem>;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  const TClassInfo* GetItemClass() const { return FItemClass; }
  int GetCount() const { return FItems.Count(); }
  /// Raises EListError "List index out of bounds (%d)".
  TCollectionItem* GetItem(int index) const;
  /// Copies `value` into the item at `index`.
  void SetItem(int index, TCollectionItem* value);
  /// Creates an item at the end.
  TCollectionItem* Add();
  /// Creates an item at `index`. Raises EListError, and creates nothing, for an index outside 0..GetCount().
  TCollectionItem* Insert(int index);
  void Delete(int index);
  void Clear();
  /// The item with that id, or null. Time in proportion to the count.
  TCollectionItem* FindItemID(int id) const;

  /// Replaces the items by copies of the source's items, within one update bracket. When a copy fails, the former items
  /// come back, the same objects with their ids.
  void Assign(TPersistent* source) override;
  /// Brackets nest. Virtual so that a descendant can act before the first change.
  virtual void BeginUpdate() { ++FUpdateCount; }
  virtual void EndUpdate();
  int GetUpdateCount() const { return FUpdateCount; }

  /// The owner's path and the name of the owner's property that holds this collection.
  QString GetNamePath() override;

 protected:
  friend class TCollectionItem;
  friend class TItemsExchange;

  explicit TCollection(const TClassInfo* itemClass) : FItemClass(itemClass) {}

  void Destruct() override;
  void Changed();
  int GetNextID() const { return FNextID; }
  /// Called with each item that comes or goes; see the class comment for the order.
  virtual void Notify(TCollectionItem* item, TCollectionNotification action);
  /// Called by Notify() for cnAdded.
  virtual void Added(TCollectionItem*) {}
  /// Called by Notify() for cnDeleting.
  virtual void Deleting(TCollectionItem*) {}
  /// Called after a change; null means that anything may have changed.
  virtual void Update(TCollectionItem*) {}
  virtual void SetItemName(TCollectionItem*) {}
  /// The name of the owner's published property that holds this collection; empty when there is none.
  QString GetPropName();
  /// Brings the items into another order, without any notification: item i becomes what item order[i] was. `order` is
  /// a permutation of all positions.
  void PermuteItems(const std::vector<int>& order);
  /// The items as they are kept, for descendants that keep sums over them.
  const TItemSequence& Sequence() const { return FItems; }
  /// Null for nobody. The collection does not own it.
  void ObserveItems(TItemSequence::TObserver* observer) { FItems.Observe(observer); }

 private:
  /// An item whose leaving is being told; on the stack.
  struct TLeaving {
    /// Null when the item has left by itself meanwhile.
    TCollectionItem* Item;
    TLeaving* Outer;
    bool IsCollectionAlive = true;
  };

  void CheckClass(const TCollectionItem* item) const;
  void InsertItem(TCollectionItem* item);
  void RemoveItem(TCollectionItem* item);
  void Forget(TCollectionItem* item);
  void LetLeave();
  void MoveItem(int from, int to);

  TGapSequence<TCollectionItem> FItems;
  const TClassInfo* FItemClass;
  int FUpdateCount = 0;
  int FNextID = 0;
  TLeaving* FLeaving = nullptr;
};

/// A collection that belongs to an object, which its items' paths go through.
class TOwnedCollection : public TCollection {
 public:
  using Inherited = TCollection;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  TOwnedCollection(TPersistent* owner, const TClassInfo* itemClass) : TCollection(itemClass), FOwner(owner) {}

  TPersistent* GetOwner() override { return FOwner; }

 private:
  TPersistent* FOwner;
};

}  // namespace kt
