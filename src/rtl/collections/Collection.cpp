#include "kt/rtl/collections/Collection.h"

#include "kt/rtl/collections/ItemsExchange.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TCollection::Class() {
  static const TClassInfo info = TClassBuilder<TCollection>("TCollection").Done();
  return &info;
}

void TCollection::Destruct() {
  FUpdateCount = 1;
  Clear();
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
  item->SetIndex(index);
  return item.release();
}

void TCollection::Delete(int index) {
  TCollectionItem* item = GetItem(index);
  const int id = item->FID;
  Notify(item, cnDeleting);
  // Whoever was told may have deleted it, or moved it.
  const bool isInPlace = index < GetCount() && FItems.At(index)->FID == id;
  delete (isInPlace ? item : FindItemID(id));
}

void TCollection::Clear() {
  if (GetCount() == 0) return;
  const TUpdateBracket bracket(*this);
  while (GetCount() > 0) delete FItems.At(GetCount() - 1);
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
  const TUpdateBracket bracket(*this);
  TItemsExchange formerItems(*this);
  try {
    for (int i = 0; i < other->GetCount(); ++i) Add()->Assign(other->GetItem(i));
  } catch (...) {
    formerItems.PutBack();
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
  SetItemName(item);
  Notify(item, cnAdded);
  Changed();
}

void TCollection::RemoveItem(TCollectionItem* item) {
  Notify(item, cnExtracting);
  Forget(item);
  Changed();
}

void TCollection::Forget(TCollectionItem* item) {
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
