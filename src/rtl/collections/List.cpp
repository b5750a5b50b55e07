#include "kt/rtl/collections/List.h"

#include "kt/rtl/collections/StableSort.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <algorithm>
#include <unordered_set>

namespace kt {

namespace {

using TItemSet = std::unordered_set<void*>;

}  // namespace

const TClassInfo* TList::Class() {
  static const TClassInfo info = TClassBuilder<TList>("TList").Creatable().Done();
  return &info;
}

void TList::Destruct() {
  Clear();
  TObject::Destruct();
}

void TList::Error(QLatin1StringView message, int data) { throw EListError(Format(message, {data})); }

void TList::CheckIndex(int index) const {
  if (index < 0 || index >= GetCount()) Error(SListIndexError, index);
}

void TList::NotifyOf(void* item, TListNotification action) {
  if (item) Notify(item, action);
}

int TList::Add(void* item) {
  const int index = GetCount();
  Insert(index, item);
  return index;
}

void TList::Insert(int index, void* item) {
  if (index < 0 || index > GetCount()) Error(SListIndexError, index);
  FItems.insert(FItems.begin() + index, item);
  NotifyOf(item, lnAdded);
}

void TList::TakeOut(int index, TListNotification action) {
  void* item = FItems[static_cast<size_t>(index)];
  FItems.erase(FItems.begin() + index);
  NotifyOf(item, action);
}

void TList::Delete(int index) {
  CheckIndex(index);
  TakeOut(index, lnDeleted);
}

int TList::Remove(void* item) {
  const int index = IndexOf(item);
  if (index >= 0) TakeOut(index, lnDeleted);
  return index;
}

void* TList::Extract(void* item) {
  const int index = IndexOf(item);
  if (index < 0) return nullptr;
  TakeOut(index, lnExtracted);
  return item;
}

void TList::Clear() {
  SetCount(0);
  if (FItems.empty()) FItems.shrink_to_fit();
}

void TList::Exchange(int first, int second) {
  CheckIndex(first);
  CheckIndex(second);
  std::swap(FItems[static_cast<size_t>(first)], FItems[static_cast<size_t>(second)]);
}

void TList::Move(int from, int to) {
  if (from == to) return;
  CheckIndex(to);
  CheckIndex(from);
  const auto begin = FItems.begin();
  if (from < to) {
    std::rotate(begin + from, begin + from + 1, begin + to + 1);
  } else {
    std::rotate(begin + to, begin + from, begin + from + 1);
  }
}

void TList::Pack() { std::erase(FItems, nullptr); }

void TList::Sort(const TListSortCompare& compare) {
  std::vector<void*> sorted = FItems;
  StableSort(sorted, compare);
  // A comparison that adds or removes elements.
  if (sorted.size() != FItems.size()) Error(SListCountError, GetCount());
  FItems.swap(sorted);
}

int TList::IndexOf(const void* item) const {
  const auto found = std::find(FItems.begin(), FItems.end(), item);
  return found == FItems.end() ? -1 : static_cast<int>(found - FItems.begin());
}

void* TList::GetItems(int index) const {
  CheckIndex(index);
  return FItems[static_cast<size_t>(index)];
}

void TList::SetItems(int index, void* item) {
  CheckIndex(index);
  void* previous = std::exchange(FItems[static_cast<size_t>(index)], item);
  if (previous == item) return;
  NotifyOf(previous, lnDeleted);
  NotifyOf(item, lnAdded);
}

void TList::SetCount(int value) {
  if (value < 0) Error(SListCountError, value);
  if (value > GetCount()) FItems.resize(static_cast<size_t>(value));
  while (GetCount() > value) TakeOut(GetCount() - 1, lnDeleted);
}

void TList::SetCapacity(int value) {
  if (value < GetCount()) Error(SListCapacityError, value);
  if (value == GetCount()) return FItems.shrink_to_fit();
  FItems.reserve(static_cast<size_t>(value));
}

void TList::Keep(const std::function<bool(void*)>& wanted) {
  for (int i = GetCount() - 1; i >= 0; --i) {
    // The notification may have removed others too.
    if (i < GetCount() && !wanted(FItems[static_cast<size_t>(i)])) TakeOut(i, lnDeleted);
  }
}

void TList::Assign(const TList& source, TListAssignOp operation, const TList* other) {
  if (other) {
    // Copied first, because the two may be this list itself.
    std::vector<void*> items = other->FItems;
    Assign(source);
    return Combine(std::move(items), operation);
  }
  if (operation != laCopy || &source != this) Combine(source.FItems, operation);
}

void TList::Combine(std::vector<void*> items, TListAssignOp operation) {
  // Made before anything is taken out, and only where asked below: a copy needs neither.
  const bool asksTheirs = operation == laAnd || operation == laXor || operation == laDestUnique;
  const bool asksOurs = operation == laOr || operation == laXor || operation == laSrcUnique;
  const TItemSet theirs = asksTheirs ? TItemSet(items.begin(), items.end()) : TItemSet();
  TItemSet ours = asksOurs ? TItemSet(FItems.begin(), FItems.end()) : TItemSet();
  if (operation == laOr) {
    std::erase_if(items, [&ours](void* item) { return !ours.insert(item).second; });
  } else if (operation == laXor || operation == laSrcUnique) {
    std::erase_if(items, [&ours](void* item) { return ours.contains(item); });
  }
  if (operation == laCopy || operation == laSrcUnique) Clear();
  if (operation == laAnd) Keep([&theirs](void* item) { return theirs.contains(item); });
  if (operation == laXor || operation == laDestUnique) Keep([&theirs](void* item) { return !theirs.contains(item); });
  if (operation == laAnd || operation == laDestUnique) return;
  for (void* item : items) Add(item);
}

}  // namespace kt
