#include "kt/rtl/collections/ThreadList.h"

#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TThreadList::Class() {
  static const TClassInfo info = TClassBuilder<TThreadList>("TThreadList").Creatable().Done();
  return &info;
}

void TThreadList::Construct() {
  TObject::Construct();
  FList = Make<TList>();
}

void TThreadList::Add(void* item) {
  const TThreadListLock list(*this);
  if (FDuplicates != dupAccept && list->IndexOf(item) >= 0) {
    if (FDuplicates == dupError) TList::Error(SDuplicateString, 0);
    return;
  }
  list->Add(item);
}

void TThreadList::Remove(void* item) { TThreadListLock(*this)->Remove(item); }

void TThreadList::Clear() { TThreadListLock(*this)->Clear(); }

TList& TThreadList::LockList() {
  FMutex.lock();
  return *FList;
}

}  // namespace kt
