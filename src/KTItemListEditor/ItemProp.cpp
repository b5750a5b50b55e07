#include "kt/KTItemListEditor/ItemProp.h"

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemPropRare.h"
#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemRows.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <exception>
#include <optional>
#include <vector>

namespace kt {

const TClassInfo* TKTItemProp::Class() {
  using T = TKTItemProp;
  static const TClassInfo info = TClassBuilder<T>("TKTItemProp")
                                     .Property<&T::GetFont, &T::SetFont>("Font")
                                     .Stored(&T::IsFontStored)
                                     .Property<&T::GetValueFont, &T::SetValueFont>("ValueFont")
                                     .Stored(&T::IsValueFontStored)
                                     .Property<&T::GetParentFont, &T::SetParentFont>("ParentFont")
                                     .Default(true)
                                     .Property<&T::GetParentValueFont, &T::SetParentValueFont>("ParentValueFont")
                                     .Default(true)
                                     .Property<&T::GetCategory, &T::SetCategory>("Category")
                                     .Default(false)
                                     .Property<&T::GetDefaultCategory, &T::SetDefaultCategory>("DefaultCategory")
                                     .Default(false)
                                     .Property<&T::IsExpanded, &T::SetExpanded>("Expanded")
                                     .Default(false)
                                     .Property<&T::GetEnabled, &T::SetEnabled>("Enabled")
                                     .Default(true)
                                     .Property<&T::GetName, &T::SetName>("Name")
                                     .Property<&T::GetValue, &T::SetValue>("Value")
                                     .Property<&T::GetPublishedValues, &T::SetValues>("Values")
                                     .Property<&T::GetHint, &T::SetHint>("Hint")
                                     .Property<&T::IsReadOnly, &T::SetReadOnly>("ReadOnly")
                                     .Default(false)
                                     .Property<&T::GetVisible, &T::SetVisible>("Visible")
                                     .Default(true)
                                     .Property<&T::GetEditStyle, &T::SetEditStyle>("EditStyle")
                                     .Default(esSimple)
                                     .Property<&T::GetEditMask, &T::SetEditMask>("EditMask")
                                     .Property<&T::GetOnEditButtonClick, &T::SetOnEditButtonClick>("OnEditButtonClick")
                                     .Property<&T::GetOnGetPickList, &T::SetOnGetPickList>("OnGetPickList")
                                     .Property<&T::GetOnValidate, &T::SetOnValidate>("OnValidate")
                                     .Property<&T::GetOnValidated, &T::SetOnValidated>("OnValidated")
                                     .Property<&T::GetOnValidateError, &T::SetOnValidateError>("OnValidateError")
                                     .Property<&T::GetPickList, &T::SetPickList>("PickList")
                                     .Stored(&T::HasPickList)
                                     .Property<&T::GetExpressionMask, &T::SetExpressionMask>("ExpressionMask")
                                     .Property<&T::GetPublishedItems, &T::SetItems>("Items")
                                     .Property<&T::GetTag, &T::SetTag>("Tag")
                                     .Creatable()
                                     .Done();
  return &info;
}

TKTItemProp::TKTItemProp(TCollection* collection) : TCollectionItem(collection) {}

TKTItemProp::~TKTItemProp() = default;

void TKTItemProp::Construct() {
  const auto* items = static_cast<TKTItemProps*>(CollectionToEnter());
  FSortsItems = items && items->GetSorted();
  FIsMadeAlone = !items || !items->GetEditor();
  SetVisible(true);
  // Last, so that whoever hears of the new item finds it complete.
  TCollectionItem::Construct();
}

void TKTItemProp::BeforeDestruction() {
  TCollectionItem::BeforeDestruction();
  if (TObjectLife::IsDeep() && HasItems()) FreeItemsFromLeaves();
}

/// What an item tells climbs from parent to parent, in time and stack in proportion to its level: so deep down nobody
/// is told, and the lists lose all of it in one step.
void TKTItemProp::FreeItemsFromLeaves() {
  TKTCustomItemListEditor* editor = GetEditor();
  if (editor && !editor->HasState(csDestroying)) GuardedCall([&] { editor->UpdatingItemProp(this); });
  TItemRows::LeaveBelow(*this);
  std::vector<std::unique_ptr<TKTItemProps>> levels;
  levels.push_back(std::move(FItems));
  for (size_t i = 0; i < levels.size(); ++i) {
    TKTItemProps& items = *levels[i];
    items.FOwnerItem = nullptr;
    for (int j = 0; j < items.GetCount(); ++j) {
      if (items.GetItem(j)->FItems) levels.push_back(std::move(items.GetItem(j)->FItems));
    }
  }
  while (!levels.empty()) levels.pop_back();
}

void TKTItemProp::Destruct() {
  FIsDying = true;
  TItemWatcher::TellDeath(this);
  FItems.reset();
  TCollectionItem::Destruct();
}

TKTItemProp::TRare& TKTItemProp::Rare() {
  if (!FRare) FRare = std::make_unique<TRare>();
  return *FRare;
}

// Where the item stands.

TKTItemProps* TKTItemProp::GetCollection() const {
  return static_cast<TKTItemProps*>(TCollectionItem::GetCollection());
}

/// To a collection that may die while the item leaves its own: then the item does, too.
static void MoveTo(TKTItemProp& item, TCollection& target) {
  const TItemWatch watched(&item);
  const TLifeWatch watchOfTarget(&target);
  std::exception_ptr error;
  try {
    item.TCollectionItem::SetCollection(nullptr);
  } catch (...) {
    if (!watched || item.GetCollection()) throw;
    error = std::current_exception();
  }
  if (!watched) return;
  if (!watchOfTarget.IsAlive()) {
    delete &item;
    throw EInvalidOperation(SObjectFreed.toString());
  }
  item.TCollectionItem::SetCollection(&target);
  if (error) std::rethrow_exception(error);
}

/// What an item and those below it inherit.
struct TKTItemProp::TLooks {
  explicit TLooks(TKTItemProp& item)
      : Font(item.FontToInherit(false)), CategoryFont(item.FontToInherit(true)), ValueFont(item.ValueFontToInherit()) {}
  bool operator==(const TLooks& other) const = default;

  const TFont* Font;
  const TFont* CategoryFont;
  const TFont* ValueFont;
};

void TKTItemProp::SetCollection(TCollection* value) {
  const TItemWatch self(this);
  std::optional<TLooks> looks;
  if (value) looks.emplace(*this);
  try {
    if (value && GetCollection() && GetCollection() != value && InheritsFrom(value->GetItemClass())) {
      MoveTo(*this, *value);
    } else {
      TCollectionItem::SetCollection(value);
    }
  } catch (...) {
    if (!self || !GetCollection()) throw;
    // The dying go all the same, and nothing may point at them then.
    FIsDying ? LeaveSilently() : TItemRows::EnterAgain(*this);
    throw;
  }
  // There may be a whole tree below, which mostly goes on inheriting the same.
  if (self && looks && (FRare || FItems) && *looks != TLooks(*this)) FollowFonts();
}

/// What Notify() did not come to, because somebody threw before.
void TKTItemProp::LeaveSilently() {
  TItemRows::Leave(*this);
  TKTItemProps* items = GetCollection();
  if (items->FDefaultCategory == this) items->FDefaultCategory = nullptr;
}

TKTItemProp* TKTItemProp::GetParent() const {
  const TKTItemProps* items = GetCollection();
  return items ? items->GetParent() : nullptr;
}

TKTCustomItemListEditor* TKTItemProp::GetEditor() const {
  const TKTItemProps* items = GetCollection();
  return items ? items->GetEditor() : nullptr;
}

int TKTItemProp::GetLevel() const {
  int level = 0;
  for (const TKTItemProp* parent = GetParent(); parent; parent = parent->GetParent()) ++level;
  return level;
}

int TKTItemProp::GetAbsoluteIndex() const {
  if (!GetEditor()) return -1;
  const auto place = TItemRows::PlaceOf(*this);
  return place ? place->Entry : -1;
}

int TKTItemProp::GetAbsoluteVIndex() const {
  if (!GetEditor()) return -1;
  const auto place = TItemRows::PlaceOf(*this);
  return place ? place->Row.value_or(-1) : -1;
}

QString TKTItemProp::GetPathDelimiter() const {
  const TKTCustomItemListEditor* editor = GetEditor();
  return editor ? editor->GetPathDelimiter() : QStringLiteral(".");
}

QString TKTItemProp::GetFullPathName() {
  TKTItemProp* parent = GetParent();
  return parent ? parent->GetFullPathName() + GetPathDelimiter() + FName : FName;
}

QString TKTItemProp::GetDisplayName() { return FName + QLatin1Char('=') + TrimRight(GetValuesText()); }

TItemSpan TKTItemProp::Span() const {
  if (!FIsCounted) return {};
  return {1 + (FItems ? FItems->FSpan.Items : 0), FRows};
}

// The child collection.

TKTItemProps& TKTItemProp::EnsureItems() {
  if (!FItems) {
    FItems = MakeItems();
    // It is stale, too, where everything at its level is.
    const TKTItemProps* level = GetCollection();
    FItems->FAllStale = FItems->FIsStaleBelow = level && level->FIsStaleBelow;
  }
  return *FItems;
}

std::unique_ptr<TKTItemProps> TKTItemProp::MakeItems() {
  TKTCustomItemListEditor* editor = FIsMadeAlone ? nullptr : GetEditor();
  std::unique_ptr<TKTItemProps> items = editor ? editor->CreateItems(this) : CreateItems();
  items->StoreSorted(FSortsItems);
  return items;
}

std::unique_ptr<TKTItemProps> TKTItemProp::CreateItems() { return Make<TKTItemProps>(this, TKTItemProp::Class()); }

TKTItemProps& TKTItemProp::GetItems() { return EnsureItems(); }

void TKTItemProp::SetItems(TKTItemProps& value) { GetItems().Assign(&value); }

bool TKTItemProp::HasItems() const { return FItems && FItems->GetCount() > 0; }

bool TKTItemProp::IsExpandable() { return HasItems(); }

// How changes travel up.

void TKTItemProp::Changing() {
  const TKTItemProps* items = GetCollection();
  if (!items || items->GetUpdateCount() > 0) return;
  TKTCustomItemListEditor* editor = items->GetEditor();
  if (editor && !editor->IsEditUpdateLocked()) editor->UpdatingItemProp(this);
}

void TKTItemProp::UpdateItemProp(TKTItemProp* item) {
  if (TKTItemProps* items = GetCollection()) items->Update(item);
}

void TKTItemProp::ItemNotify(TKTItemProp* item, TCollectionNotification action) {
  if (TKTItemProps* items = GetCollection()) items->Notify(item, action);
}

void TKTItemProp::VisibleChanged() {
  TKTItemProps* items = GetCollection();
  if (!items) return;
  TItemRows::MarkChanged(*this);
  items->VisibleChanged(this);
}

}  // namespace kt
