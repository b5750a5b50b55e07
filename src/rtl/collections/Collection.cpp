#include "kt/rtl/collections/Collection.h"

#include "kt/rtl/collections/ItemsExchange.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <algorithm>
#include <utility>

namespace kt {
namespace {

void CheckAlive(const TLifeWatch& watch) {
  if (!watch.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
}

/// A collection whose update ends only if it is still there.
struct TUpdateOfLiving {
  TCollection& Collection;
  const TLifeWatch& Watch;
  void BeginUpdate() { Collection.BeginUpdate(); }
  void EndUpdate() {
    if (Watch.IsAlive()) Collection.EndUpdate();
  }
};

}  // namespace

const TClassInfo* TCollection::Class() {
  static const TClassInfo info = TClassBuilder<TCollection>("TCollection").Done();
  return &info;
}

void TCollection::Destruct() {
  FUpdateCount = 1;
  LetLeave();
  GuardedCall([this] { Clear(); });
  // Whatever an override of BeginUpdate() raised.
  while (GetCount() > 0) delete FItems.At(GetCount() - 1);
  TPersistent::Destruct();
}

TCollectionItem* TCollection::GetItem(int index) const {
  if (index < 0 || index >= GetCount()) throw EListError(Format(SListIndexError, {index}));
  return FItems.At(index);
}

void TCollection::SetItem(int index, TCollectionItem* value) { GetItem(index)->Assign(value); }

TCollectionItem* TCollection::Add() { return static_cast<TCollectionItem*>(FItemClass->CreateInstance(this)); }

TCollectionItem* TCollection::Insert(int index) {
  if (index < 0 || index > GetCount()) throw EListError(Format(SListIndexError, {index}));
  std::unique_ptr<TCollectionItem> item(Add());
  const TLifeWatch watch(item.get());
  try {
    // Whoever heard of the item may have taken it elsewhere, or others away.
    if (item->GetCollection() == this) item->SetIndex(std::min(index, GetCount() - 1));
    CheckAlive(watch);
  } catch (...) {
    if (!watch.IsAlive()) static_cast<void>(item.release());
    throw;
  }
  return item.release();
}

void TCollection::Delete(int index) {
  TCollectionItem* item = GetItem(index);
  const int id = item->FID;
  const TLifeWatch watch(this);
  Notify(item, cnDeleting);
  if (!watch.IsAlive()) return;
  // Whoever was told may have deleted it, or moved it.
  const bool isInPlace = index < GetCount() && FItems.At(index)->FID == id;
  delete (isInPlace ? item : FindItemID(id));
}

void TCollection::Clear() {
  if (GetCount() == 0) return;
  const TLifeWatch watch(this);
  TUpdateOfLiving target{*this, watch};
  const TUpdateBracket bracket(target);
  while (watch.IsAlive() && GetCount() > 0) delete FItems.At(GetCount() - 1);
}

TCollectionItem* TCollection::FindItemID(int id) const {
  for (int i = 0; i < GetCount(); ++i) {
    if (FItems.At(i)->FID == id) return FItems.At(i);
  }
  return nullptr;
}

void TCollection::Assign(TPersistent* source) {
  auto* other = dynamic_cast<TCollection*>(source);
  if (!other) return TPersistent::Assign(source);
  if (other == this) return;
  const TLifeWatch watch(this);
  const TLifeWatch watchOfSource(source);
  TUpdateOfLiving target{*this, watch};
  const TUpdateBracket bracket(target);
  // Whoever hears of a change may free either.
  const auto checkBoth = [&] {
    CheckAlive(watch);
    CheckAlive(watchOfSource);
  };
  checkBoth();
  TItemsExchange formerItems(*this);
  try {
    checkBoth();
    for (int i = 0; i < other->GetCount(); ++i) {
      TCollectionItem* item = Add();
      checkBoth();
      item->Assign(other->GetItem(i));
      checkBoth();
    }
  } catch (...) {
    if (watch.IsAlive()) formerItems.PutBack();
    throw;
  }
}

void TCollection::EndUpdate() {
  --FUpdateCount;
  Changed();
}

QString TCollection::GetNamePath() {
  const QString path = GetOwner() ? GetOwner()->GetNamePath() : QString();
  const QString property = path.isEmpty() ? QString() : GetPropName();
  return property.isEmpty() ? ClassName() : path + QLatin1Char('.') + property;
}

QString TCollection::GetPropName() {
  TPersistent* owner = GetOwner();
  if (!owner) return {};
  for (const TPropInfo* property : owner->ClassType()->Props()) {
    if (property->Kind() != tkClass || !property->IsReadable()) continue;
    if (property->AccessTo<TObject*>().Get(*owner) == this) return property->Name();
  }
  return {};
}

void TCollection::Changed() {
  if (FUpdateCount == 0) Update(nullptr);
}

void TCollection::Notify(TCollectionItem* item, TCollectionNotification action) {
  if (action == cnAdded) Added(item);
  if (action == cnDeleting) Deleting(item);
}

void TCollection::PermuteItems(const std::vector<int>& order) { FItems.Permute(order); }

void TCollection::CheckClass(const TCollectionItem* item) const {
  if (!item->InheritsFrom(FItemClass)) throw EListError(SInvalidProperty.toString());
}

void TCollection::InsertItem(TCollectionItem* item) {
  FItems.Append(item);
  item->FCollection = this;
  item->FID = FNextID++;
  const TLifeWatch watch(this);
  SetItemName(item);
  CheckAlive(watch);
  Notify(item, cnAdded);
  CheckAlive(watch);
  Changed();
  // A construction must not go on when its item is gone with the collection.
  CheckAlive(watch);
}

void TCollection::RemoveItem(TCollectionItem* item) {
  TLeaving leaving{item, FLeaving};
  FLeaving = &leaving;
  try {
    Notify(item, cnExtracting);
  } catch (...) {
    if (leaving.IsCollectionAlive) FLeaving = leaving.Outer;
    throw;
  }
  if (!leaving.IsCollectionAlive) return;
  FLeaving = leaving.Outer;
  if (!leaving.Item) return;
  Forget(item);
  Changed();
}

/// The collection is dying: what is just leaving it is somebody else's already.
void TCollection::LetLeave() {
  for (TLeaving* leaving = std::exchange(FLeaving, nullptr); leaving; leaving = leaving->Outer) {
    leaving->IsCollectionAlive = false;
    if (leaving->Item && leaving->Item->IsInCollection()) Forget(leaving->Item);
  }
}

void TCollection::Forget(TCollectionItem* item) {
  for (TLeaving* leaving = FLeaving; leaving; leaving = leaving->Outer) {
    if (leaving->Item == item) leaving->Item = nullptr;
  }
  FItems.Remove(item);
  item->FCollection = nullptr;
}

void TCollection::MoveItem(int from, int to) {
  if (to < 0 || to >= GetCount()) throw EListError(Format(SListIndexError, {to}));
  FItems.Move(from, to);
}

const TClassInfo* TOwnedCollection::Class() {
  static const TClassInfo info = TClassBuilder<TOwnedCollection>("TOwnedCollection").Done();
  return &info;
}

}  // namespace kt
