#include "kt/KTItemListEditor/ItemProps.h"

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemRows.h"
#include "kt/KTItemListEditor/ItemSums.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTItemListEditor/Messages.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TKTItemProps::Class() {
  static const TClassInfo info =
      TClassBuilder<TKTItemProps>("TKTItemProps")
          .Property<&TKTItemProps::GetCategories, &TKTItemProps::SetCategories>("Categories")
          .Property<&TKTItemProps::GetDefaultCategoryName, &TKTItemProps::SetDefaultCategoryName>("DefaultCategoryName")
          .Done();
  return &info;
}

TKTItemProps::TKTItemProps(TPersistent* owner, const TClassInfo* itemClass)
    : TOwnedCollection(owner, itemClass),
      FDefaultCategoryName(SDefaultCategoryName),
      FOwnerItem(dynamic_cast<TKTItemProp*>(owner)),
      FOwnerEditor(dynamic_cast<TKTCustomItemListEditor*>(owner)) {}

TKTItemProps::~TKTItemProps() = default;

void TKTItemProps::Destruct() {
  // Without asking anybody: whatever an override throws, no item outlives its collection.
  TOwnedCollection::BeginUpdate();
  while (GetCount() > 0) delete GetItem(GetCount() - 1);
  TOwnedCollection::Destruct();
  ObserveItems(nullptr);
}

TItemSums* TKTItemProps::Sums() {
  if (FSums || GetCount() <= FewItems) return FSums.get();
  FSums = std::make_unique<TItemSums>(Sequence());
  ObserveItems(FSums.get());
  return FSums.get();
}

TKTCustomItemListEditor* TKTItemProps::GetEditor() const {
  const TKTItemProps* items = this;
  while (items && items->FOwnerItem) items = items->FOwnerItem->GetCollection();
  return items ? items->FOwnerEditor : nullptr;
}

QString TKTItemProps::GetPathDelimiter() const {
  const TKTCustomItemListEditor* editor = GetEditor();
  return editor ? editor->GetPathDelimiter() : QStringLiteral(".");
}

TStringList& TKTItemProps::GetCategories() {
  if (!FCategories) {
    FCategories = Make<TStringList>();
    FCategories->SetSorted(FSorted);
  }
  return *FCategories;
}

void TKTItemProps::SetCategories(TStrings& value) { GetCategories().Assign(&value); }

/// For code that goes on after a call-out.
static void CheckAlive(const TLifeWatch& watch) {
  if (!watch.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
}

TKTItemProp* TKTItemProps::AddNewItem() { return static_cast<TKTItemProp*>(TOwnedCollection::Add()); }

TKTItemProp* TKTItemProps::Add() {
  const TLifeWatch self(this);
  Changing();
  CheckAlive(self);
  TItemWatch item(AddNewItem());
  if (self.IsAlive()) TOwnedCollection::Changed();
  return item.Get();
}

TKTItemProp* TKTItemProps::Add(const QString& name, const QString& value) {
  IsValid(name, true);
  const TLifeWatch self(this);
  Changing();
  CheckAlive(self);
  TItemWatch item(AddNewItem());
  item->SetName(name);
  if (item) item->SetValuesText(value);
  if (self.IsAlive()) TOwnedCollection::Changed();
  return item.Get();
}

TKTItemProp* TKTItemProps::Insert(int index) {
  const TLifeWatch self(this);
  Changing();
  CheckAlive(self);
  TItemWatch item(static_cast<TKTItemProp*>(TOwnedCollection::Insert(index)));
  if (self.IsAlive()) TOwnedCollection::Changed();
  return item.Get();
}

void TKTItemProps::Exchange(int index1, int index2) {
  const TItemWatch first(GetItem(index1));
  const TItemWatch second(GetItem(index2));
  const TLifeWatch self(this);
  Changing();
  if (first) first->SetIndex(index2);
  if (second) second->SetIndex(index1);
  if (self.IsAlive()) TOwnedCollection::Changed();
}

bool TKTItemProps::RequiresUniqueNames() const {
  const TKTCustomItemListEditor* editor = GetEditor();
  return editor && editor->GetPropertyOptions().Has(propUnique);
}

bool TKTItemProps::IsValid(const QString& name, bool raiseOnConflict) {
  if (name.isEmpty() || !RequiresUniqueNames() || IndexOf(name) < 0) return true;
  if (raiseOnConflict) throw ETORVException(Format(SPropConflict, {name}));
  return false;
}

// How changes travel up.

void TKTItemProps::Changing() {
  if (GetUpdateCount() > 0) return;
  TKTCustomItemListEditor* editor = GetEditor();
  if (editor && !editor->IsEditUpdateLocked()) editor->UpdatingItemProp(nullptr);
}

void TKTItemProps::BeginUpdate() {
  const TLifeWatch self(this);
  Changing();
  CheckAlive(self);
  TOwnedCollection::BeginUpdate();
}

void TKTItemProps::Notify(TCollectionItem* item, TCollectionNotification action) {
  auto* prop = static_cast<TKTItemProp*>(item);
  const bool isOwn = prop->TCollectionItem::GetCollection() == this;
  const TItemWatch watched(prop);
  if (isOwn && action == cnAdded) TItemRows::Enter(*prop);
  if (isOwn && action != cnAdded) {
    Leave(*prop);
    // Handlers may have freed or moved it.
    if (!watched || prop->TCollectionItem::GetCollection() != this) return;
  }
  if (action == cnExtracting && isOwn) TItemRows::Leave(*prop);
  if (action == cnAdded && FSorted) Sort(true);
  if (action == cnExtracting && FDefaultCategory == prop) SetDefaultCategory(nullptr);
  if (isOwn) TOwnedCollection::Notify(item, action);
  TellOwner(prop, action);
}

void TKTItemProps::Leave(TKTItemProp& item) {
  // The in-place editor writes back what it holds while its row is still that of its item, and before anything dies.
  TKTCustomItemListEditor* editor = GetEditor();
  if (editor && !editor->HasState(csDestroying)) editor->UpdatingItemProp(&item);
}

void TKTItemProps::TellOwner(TKTItemProp* item, TCollectionNotification action) {
  if (FOwnerItem) {
    FOwnerItem->ItemNotify(item, action);
  } else if (FOwnerEditor) {
    FOwnerEditor->ItemNotify(item, action);
  }
}

void TKTItemProps::Update(TCollectionItem* item) {
  TOwnedCollection::Update(item);
  auto* prop = static_cast<TKTItemProp*>(item);
  if (FOwnerItem) return FOwnerItem->UpdateItemProp(prop);
  if (GetUpdateCount() == 0) TItemRows::Recount(*this);
  if (FOwnerEditor) FOwnerEditor->UpdateItemProp(prop);
}

void TKTItemProps::VisibleChanged(TKTItemProp* item) {
  if (FOwnerItem) return FOwnerItem->VisibleChanged();
  if (FOwnerEditor) return FOwnerEditor->VisibleChanged(item);
  if (GetUpdateCount() == 0) TItemRows::Recount(*this);
}

}  // namespace kt
