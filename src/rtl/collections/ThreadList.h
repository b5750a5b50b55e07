#pragma once

#include "kt/rtl/collections/Duplicates.h"
#include "kt/rtl/collections/List.h"

#include <memory>
#include <mutex>

namespace kt {

/// A list of pointers for several threads. Each operation locks the list; LockList() gives it to one thread until that
/// thread has called UnlockList() as often. TThreadListLock does both. TThreadListOf<T> is the same with typed
/// elements.
class TThreadList : public TObject {
 public:
  using Inherited = TObject;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  /// What a second equal pointer means goes by Duplicates: nothing with dupIgnore, EListError "String list does not
  /// allow duplicates" (the framework's text) with dupError.
  void Add(void* item);
  /// Nothing happens when it is not there.
  void Remove(void* item);
  void Clear();
  TList& LockList();
  void UnlockList() { FMutex.unlock(); }

  /// dupIgnore by default.
  TDuplicates GetDuplicates() const { return FDuplicates; }
  /// Before other threads use the list.
  void SetDuplicates(TDuplicates value) { FDuplicates = value; }

 protected:
  TThreadList() = default;

  void Construct() override;

 private:
  std::recursive_mutex FMutex;
  std::unique_ptr<TList> FList;
  TDuplicates FDuplicates = dupIgnore;
};

/// A TThreadList of pointers to T.
template <class T>
class TThreadListOf : public TThreadList {
 public:
  void Add(T* item) { TThreadList::Add(item); }
  void Remove(T* item) { TThreadList::Remove(item); }

 protected:
  TThreadListOf() = default;
};

/// Holds the lock of a thread list for the scope, and gives the list: `TThreadListLock list(threadList); list->Pack();`
class TThreadListLock {
 public:
  explicit TThreadListLock(TThreadList& owner) : FOwner(owner), FList(owner.LockList()) {}
  TThreadListLock(const TThreadListLock&) = delete;
  TThreadListLock& operator=(const TThreadListLock&) = delete;
  ~TThreadListLock() { FOwner.UnlockList(); }

  TList& operator*() const { return FList; }
  TList* operator->() const { return &FList; }

 private:
  TThreadList& FOwner;
  TList& FList;
};

}  // namespace kt
