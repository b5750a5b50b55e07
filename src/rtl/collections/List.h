#pragma once

#include "kt/rtl/objects/Object.h"

#include <QLatin1StringView>

#include <functional>
#include <vector>

namespace kt {

/// What happens to an element of a TList, as Notify() tells.
enum TListNotification { lnAdded, lnExtracted, lnDeleted };

/// How Assign() combines two lists.
enum TListAssignOp {
  laCopy,       ///< The elements of the source.
  laAnd,        ///< Those in both.
  laOr,         ///< Those in either: what only the source has is added, once each.
  laXor,        ///< Those in one of the two only.
  laSrcUnique,  ///< Those in the source only.
  laDestUnique  ///< Those in this list only.
};

/// Negative, 0 or positive.
using TListSortCompare = std::function<int(void* first, void* second)>;

/// An ordered list of pointers, null pointers among them, that it does not own. TListOf<T> is the same with typed
/// elements.
///
/// Notify() is called after each change with each element that came or went, but not with null pointers, and not while
/// elements only change places. Destruction counts as Clear().
/// Errors are EListError "List index out of bounds (%d)". Indices count from 0.
class TList : public TObject {
 public:
  using Inherited = TObject;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// Adds at the end and returns the index.
  int Add(void* item);
  void Insert(int index, void* item);
  void Delete(int index);
  /// Deletes the first such element; returns where it was, or -1.
  int Remove(void* item);
  /// Takes the first such element out, which Notify() is told as lnExtracted instead of lnDeleted; null when it is not
  /// there.
  void* Extract(void* item);
  /// Deletes all elements, the last one first.
  void Clear();
  void Exchange(int first, int second);
  /// Takes an element out and puts it back so that it ends up at `to`.
  void Move(int from, int to);
  /// Removes the null pointers.
  void Pack();
  /// Stable, n log n comparisons at most. The list keeps its order while `compare` runs, and for good when it throws.
  void Sort(const TListSortCompare& compare);
  /// Combines this list with `source`. With `other` the list first becomes a copy of `source`, and `other` is the
  /// source.
  void Assign(const TList& source, TListAssignOp operation = laCopy, const TList* other = nullptr);

  /// The first such element's index, or -1. Time in proportion to the count.
  int IndexOf(const void* item) const;
  /// Raises the index error for an empty list.
  void* First() const { return GetItems(0); }
  void* Last() const { return GetItems(GetCount() - 1); }

  void* GetItems(int index) const;
  /// Replaces an element: Notify() with lnDeleted for the old one, then lnAdded. An equal one changes nothing.
  void SetItems(int index, void* item);
  int GetCount() const { return static_cast<int>(FItems.size()); }
  /// Adds null pointers at the end, or deletes elements there. Raises EListError "List count out of bounds (%d)".
  void SetCount(int value);
  int GetCapacity() const { return static_cast<int>(FItems.capacity()); }
  /// Raises EListError "List capacity out of bounds (%d)" below the count.
  void SetCapacity(int value);

  /// For loops over all elements; a loop that changes the list counts indices instead.
  auto begin() const { return FItems.begin(); }
  auto end() const { return FItems.end(); }

  /// Raises EListError with a message that may hold one %d.
  [[noreturn]] static void Error(QLatin1StringView message, int data);

 protected:
  TList() = default;

  void Destruct() override;
  virtual void Notify(void* /*item*/, TListNotification) {}

 private:
  void CheckIndex(int index) const;
  void TakeOut(int index, TListNotification action);
  void NotifyOf(void* item, TListNotification action);
  void Combine(std::vector<void*> items, TListAssignOp operation);
  void Keep(const std::function<bool(void*)>& wanted);

  std::vector<void*> FItems;
};

/// A TList of pointers to T.
template <class T>
class TListOf : public TList {
 public:
  int Add(T* item) { return TList::Add(item); }
  void Insert(int index, T* item) { TList::Insert(index, item); }
  int Remove(T* item) { return TList::Remove(item); }
  T* Extract(T* item) { return static_cast<T*>(TList::Extract(item)); }
  int IndexOf(const T* item) const { return TList::IndexOf(item); }
  T* First() const { return static_cast<T*>(TList::First()); }
  T* Last() const { return static_cast<T*>(TList::Last()); }
  T* GetItems(int index) const { return static_cast<T*>(TList::GetItems(index)); }
  void SetItems(int index, T* item) { TList::SetItems(index, item); }
  void Sort(const std::function<int(T*, T*)>& compare) {
    TList::Sort([&compare](void* a, void* b) { return compare(static_cast<T*>(a), static_cast<T*>(b)); });
  }
  void Assign(const TListOf& source, TListAssignOp operation = laCopy, const TListOf* other = nullptr) {
    TList::Assign(source, operation, other);
  }

 protected:
  TListOf() = default;
};

}  // namespace kt
