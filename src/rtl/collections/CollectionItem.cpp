#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <exception>

namespace kt {
namespace {

/// The collection whose item owns `inner`; `top` when that does not tell.
TCollection* CollectionAround(TCollection* inner, TCollection& top) {
  const auto* item = dynamic_cast<const TCollectionItem*>(inner->OwnerOf());
  TCollection* outer = item ? item->GetCollection() : nullptr;
  return outer && outer->GetCount() > 0 ? outer : &top;
}

}  // namespace

const TClassInfo* TCollectionItem::Class() {
  static const TClassInfo info = TClassBuilder<TCollectionItem>("TCollectionItem").Creatable().Done();
  return &info;
}

void TCollectionItem::Construct() {
  TPersistent::Construct();
  SetCollection(std::exchange(FCollection, nullptr));
}

void TCollectionItem::BeforeDestruction() {
  TPersistent::BeforeDestruction();
  TCollection* nested = TObjectLife::IsDeep() ? GetNestedItems() : nullptr;
  if (nested && nested->GetCount() > 0) FreeFromLeaves(*nested);
}

void TCollectionItem::FreeFromLeaves(TCollection& top) {
  const TLifeWatch watchOfTop(&top);
  TCollection* current = &top;
  while (watchOfTop.IsAlive() && top.GetCount() > 0) {
    current->FUpdateCount = 1;
    TCollectionItem* last = current->FItems.At(current->GetCount() - 1);
    TCollection* nested = last->GetNestedItems();
    if (nested && nested->GetCount() > 0) {
      current = nested;
      continue;
    }
    const TLifeWatch watch(current);
    delete last;
    const bool isDone = !watch.IsAlive() || current->GetCount() == 0;
    if (isDone) current = watch.IsAlive() && current != &top ? CollectionAround(current, top) : &top;
  }
}

void TCollectionItem::Destruct() {
  LeaveForGood();
  TPersistent::Destruct();
}

void TCollectionItem::DestructAgain() { LeaveForGood(); }

/// The collection lets go even when somebody it tells raises an exception.
void TCollectionItem::LeaveForGood() {
  GuardedCall([this] { SetCollection(nullptr); });
  if (IsInCollection()) FCollection->Forget(this);
}

void TCollectionItem::SetCollection(TCollection* value) {
  if (GetCollection() == value) return;
  if (value) value->CheckClass(this);
  std::exception_ptr error;
  try {
    if (IsInCollection()) FCollection->RemoveItem(this);
  } catch (...) {
    if (IsInCollection() || !value) throw;
    // It has left, and somebody who heard of that raised: without a collection nobody would own it.
    error = std::current_exception();
  }
  if (value) value->InsertItem(this);
  if (error) std::rethrow_exception(error);
}

int TCollectionItem::GetIndex() const { return IsInCollection() ? FCollection->FItems.IndexOf(this) : -1; }

void TCollectionItem::SetIndex(int value) {
  const int current = GetIndex();
  if (current < 0 || current == value) return;
  FCollection->MoveItem(current, value);
  Changed(true);
}

QString TCollectionItem::GetDisplayName() { return ClassName(); }

void TCollectionItem::SetDisplayName(const QString&) { Changed(false); }

QString TCollectionItem::GetNamePath() {
  if (!IsInCollection()) return ClassName();
  return Format(QLatin1StringView("%s[%d]"), {FCollection->GetNamePath(), GetIndex()});
}

TPersistent* TCollectionItem::GetOwner() { return GetCollection(); }

void TCollectionItem::Changed(bool allItems) {
  if (IsInCollection() && FCollection->FUpdateCount == 0) FCollection->Update(allItems ? nullptr : this);
}

}  // namespace kt
