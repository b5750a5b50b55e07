#pragma once

#include "kt/KTItemListEditor/ItemProp.h"
#include "kt/KTItemListEditor/ItemSpan.h"
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/conversions/Variant.h"

#include <functional>
#include <memory>

namespace kt {

class TItemSums;
class TStringList;

/// Compares two items of a collection by their positions: negative, 0 or positive. It must not change the collection.
using TKTItemPropsCompare = std::function<int(TKTItemProps& items, int first, int second)>;

/// The items of one level: the children of an item, or the top level of an editor.
///
/// Keeps, for the whole subtree, the counts by which the editor finds entries and rows; see TItemRows. Adding and
/// removing items one by one costs the same as within BeginUpdate() and EndUpdate(), apart from what the editor does
/// for each change.
class TKTItemProps : public TOwnedCollection {
 public:
  using Inherited = TOwnedCollection;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TKTItemProps() override;

  // Where the collection stands.

  TKTItemProp* GetItem(int index) const { return static_cast<TKTItemProp*>(TCollection::GetItem(index)); }
  TKTItemProp* GetItemByName(const QString& name);
  /// The item whose children these are, or null.
  TKTItemProp* GetParent() const { return FOwnerItem; }
  TKTCustomItemListEditor* GetEditor() const;
  /// The editor's, or "." without one.
  QString GetPathDelimiter() const;
  /// What the items and all below them take in the lists of the editor.
  TItemSpan GetSpan() const { return FSpan; }

  // Properties.

  bool GetSorted() const { return FSorted; }
  /// Sorts this level and all below it when switched on.
  void SetSorted(bool value);
  /// The item that is flagged so, or null.
  TKTItemProp* GetDefaultCategory() const { return FDefaultCategory; }
  void SetDefaultCategory(TKTItemProp* item);
  /// The category map: lines "item name=category name", several for an item in several categories.
  TStringList& GetCategories();
  void SetCategories(TStrings& value);
  const QString& GetDefaultCategoryName() const { return FDefaultCategoryName; }
  void SetDefaultCategoryName(const QString& value);

  // Adding.

  TKTItemProp* Add();
  /// Raises ETORVException "Property name is not unique: %s", before anything is added, while names have to be unique.
  TKTItemProp* Add(const QString& name, const QString& value);
  TKTItemProp* Insert(int index);
  /// Walks or makes the items on the path; the last gets `value`. With `allowDuplicate` the last is made anew.
  TKTItemProp* AddFullPath(const QString& path, const QString& value, bool allowDuplicate);
  void Exchange(int index1, int index2);

  // Looking up. Names match by CompareStrings().

  /// The first item of that name, or -1.
  int IndexOf(const QString& name);
  /// The first item with that display name, or -1.
  int IndexOf(const QString& name, const QString& value);
  /// Null when there is none.
  TKTItemProp* FindItemByFullPathName(const QString& path);
  /// False when the editor wants unique names and this level has that one.
  bool IsValid(const QString& name, bool raiseOnConflict);

  // Categories.

  int IndexOfCategory(const QString& name);
  /// The category of that name, made when there is none or `allowDuplicate`.
  TKTItemProp* AddCategory(const QString& name, bool allowDuplicate);
  void RemoveCategory(const QString& name, bool deleteChildren);
  /// Finds or adds the category named DefaultCategoryName; does nothing when that is empty.
  void CreateDefaultCategory();

  /// Copies Categories, the bare Sorted flag, and the items. When that fails, all of it is as it was, the default
  /// category too.
  void Assign(TPersistent* source) override;
  void BeginUpdate() override;

 protected:
  friend class TItemRows;
  friend class TKTCustomItemListEditor;
  friend class TKTItemProp;

  /// `owner` is an item or an editor, or another object, which is never told anything.
  TKTItemProps(TPersistent* owner, const TClassInfo* itemClass);

  void Destruct() override;
  void Notify(TCollectionItem* item, TCollectionNotification action) override;
  void Update(TCollectionItem* item) override;

  // What descendants can override, in its fixed order.

  virtual void Changing();

 public:
  /// As the editor compares; by AnsiCompareText() without one.
  virtual int CompareStrings(const QString& s1, const QString& s2);

 protected:
  virtual void DefaultCategoryChanged(TKTItemProp* item);

 public:
  /// The item at an ordinal key, or of the name that any other key gives as text. Null when the collection is empty or
  /// the ordinal is too high; with `create` an item is inserted there then. There is deliberately no lower bound: a
  /// name not found raises EListError "List index out of bounds (-1)" or, with `create`, ETORVException "Property not
  /// found: %s".
  virtual TKTItemProp* FindItemProp(const Variant& key, bool create);

 protected:
  virtual void VisibleChanged(TKTItemProp* item);

 public:
  virtual void ClearCategories(bool deleteChildren);
  /// The children move up to this level unless they are to be deleted too. Raises ETORVException "Cannot delete item,
  /// not a category".
  virtual void DeleteCategory(int index, bool deleteChildren);
  /// By binary search; `index` becomes that of the first item of that name or else of the place for one.
  virtual bool Find(const QString& s, int& index);
  /// By name, deliberately without effect while Sorted.
  virtual void Sort(bool thisLevelOnly);
  /// The order is that of the framework's quicksort, about n log n comparisons on ordered and equal input too. The
  /// items keep their places until the whole level is compared, and for good when `compare` throws. Without effect
  /// while Sorted.
  virtual void CustomSort(const TKTItemPropsCompare& compare, bool thisLevelOnly);

 private:
  /// From this many items on, sums over them are kept.
  static constexpr int FewItems = 32;

  /// The text before the first delimiter; `rest` becomes what follows it. `hasRest` tells whether there was one.
  struct TPathHead;
  /// What a copy that fails gives back besides the items.
  class TFormerSettings;
  TPathHead SplitPath(const QString& path) const;
  TKTItemProp* AddNewItem();
  bool RequiresUniqueNames() const;
  void Leave(TKTItemProp& item);
  void AssignSettings(TKTItemProps& source);
  void TellOwner(TKTItemProp* item, TCollectionNotification action);
  /// Of the items and of the categories, which are sorted exactly when the items are.
  void StoreSorted(bool value);
  void StoreSortedFlags(bool value);
  void StoreSortedBelow(bool value);
  TItemSums* Sums();

  bool FSorted = false;
  /// All items may take other rows than the counts say.
  bool FAllStale = false;
  /// So may all items below them, at every level.
  bool FIsStaleBelow = false;
  TKTItemProp* FDefaultCategory = nullptr;
  std::unique_ptr<TStringList> FCategories;
  QString FDefaultCategoryName;
  /// What the items take together.
  TItemSpan FSpan;
  /// The one item that may take other rows than the counts say, or null.
  TKTItemProp* FStale = nullptr;
  std::unique_ptr<TItemSums> FSums;
  TKTItemProp* FOwnerItem = nullptr;
  TKTCustomItemListEditor* FOwnerEditor = nullptr;
};

}  // namespace kt
