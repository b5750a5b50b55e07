#include "kt/KTObjectInspector/PropertyWatch.h"

#include "kt/KTItemListEditor/EditUpdateLock.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/PropViews.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/TextCompare.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/vcl/grids/InplaceEdit.h"

#include <utility>
#include <vector>

namespace kt {

namespace {

/// The item of a property in a level, or in one of its categories.
TKTItemProperty* FindListed(TKTItemProperties& level, const QString& name) {
  for (int i = 0; i < level.GetCount(); ++i) {
    TKTItemProperty* item = level.GetItem(i);
    if (item->GetCategory()) {
      TKTItemProperty* found = item->HasItems() ? FindListed(item->GetItems(), name) : nullptr;
      if (found) return found;
    } else if (item->GetRealPropName() == name) {
      return item;
    }
  }
  return nullptr;
}

}  // namespace

TKTCustomObjectInspector::TPropertyWatch::~TPropertyWatch() {
  for (const auto& [object, watched] : FWatched) StopListening(*this, watched);
}

void TKTCustomObjectInspector::TPropertyWatch::StopListening(TPropertyWatch& self, const TWatched& watched) {
  if (auto* notifier = dynamic_cast<IPropNotifier*>(watched.Object.Get())) notifier->RemovePropListener(&self);
}

// What scans enter.

void TKTCustomObjectInspector::TPropertyWatch::Enter(TObject* object, TKTItemProperties& level) {
  auto* notifier = dynamic_cast<IPropNotifier*>(object);
  if (!notifier) return;
  TWatched& watched = FWatched[object];
  // Another object may have come to lie there.
  if (!watched.Object) notifier->AddPropListener(this);
  watched.Object = object;
  watched.Level = &level;
  watched.IsEntered = true;
}

void TKTCustomObjectInspector::TPropertyWatch::EndScan() {
  for (auto entry = FWatched.begin(); entry != FWatched.end();) {
    if (entry->second.IsEntered) {
      ++entry;
      continue;
    }
    StopListening(*this, entry->second);
    entry = FWatched.erase(entry);
  }
}

// What changes.

void TKTCustomObjectInspector::TPropertyWatch::PropChanged(TObject* object, const QString& name) {
  GuardedCall([&] {
    FChanges.emplace(object, name);
    Post();
  });
}

void TKTCustomObjectInspector::TPropertyWatch::PropListChanged(TObject*) {
  GuardedCall([this] {
    FIsScanWanted = true;
    Resume();
  });
}

/// What is wanted can be had perhaps: the user has typed to an end.
void TKTCustomObjectInspector::TPropertyWatch::Resume() {
  if (!FIsScanWanted && FChanges.empty()) return;
  if (FInspector.HasState(csDestroying) || FInspector.IsTyping()) return;
  if (std::exchange(FIsScanWanted, false)) return FInspector.InvalidateScan();
  Post();
}

void TKTCustomObjectInspector::TPropertyWatch::Post() {
  if (FIsPosted || FInspector.HasState(csDestroying)) return;
  FIsPosted = true;
  FInspector.PostMessage(KT_INVALIDATEVALUES);
}

TKTItemProperty* TKTCustomObjectInspector::TPropertyWatch::ItemOf(const TChange& change) const {
  const auto found = FWatched.find(change.first);
  if (found == FWatched.end() || !found->second.Object || !found->second.Level) return nullptr;
  return FindListed(static_cast<TKTItemProperties&>(*found->second.Level.Get()), change.second);
}

/// What changes meanwhile is read too, though no property twice: getters may change each other's values without end.
bool TKTCustomObjectInspector::TPropertyWatch::Refresh() {
  const TLifeWatch life(&FInspector);
  if (FInspector.FIsScanPosted) {
    Discard();
    return true;
  }
  std::set<TChange> done;
  std::set<TChange> postponed;
  while (!FChanges.empty()) {
    const auto change = FChanges.extract(FChanges.begin());
    if (!done.insert(change.value()).second) continue;
    const TItemWatch item(ItemOf(change.value()));
    if (!item) continue;
    if (FInspector.IsBeingTyped(static_cast<TKTItemProperty&>(*item))) {
      postponed.insert(change.value());
      continue;
    }
    // What one getter raises must not keep the others from being read.
    bool isFresh = true;
    GuardedCall([&] { isFresh = FInspector.RefreshItem(static_cast<TKTItemProperty&>(*item)); });
    if (!life.IsAlive()) return true;
    if (isFresh) continue;
    // The tree is built anew, with all values.
    Discard();
    return false;
  }
  FChanges.swap(postponed);
  FIsPosted = false;
  return true;
}

void TKTCustomObjectInspector::TPropertyWatch::Discard() {
  FChanges.clear();
  FIsPosted = false;
}

void TKTCustomObjectInspector::TPropertyWatch::BeginScan() {
  // It lists what there is now.
  FIsScanWanted = false;
  for (auto& [object, watched] : FWatched) watched.IsEntered = false;
}

// The inspector's part.

/// Whether there is text in the editor that is not accepted yet.
bool TKTCustomObjectInspector::IsTyping() const {
  const TInplaceEdit* edit = IsEditorMode() ? InplaceEditor() : nullptr;
  return edit && edit->IsModified();
}

/// Whether there is text in the editor of the item, or of one below it, that is not accepted yet.
bool TKTCustomObjectInspector::IsBeingTyped(const TKTItemProperty& item) const {
  if (!IsTyping()) return false;
  for (const TKTItemProperty* at = GetSelected(); at; at = at->GetParent()) {
    if (at == &item) return true;
  }
  return false;
}

/// Whether the other inspected objects show what the item shows of the first.
bool TKTCustomObjectInspector::IsShownOfAll(TKTItemProperty& item) {
  const TLifeWatch self(this);
  const TItemWatch watched(&item);
  const QString text = item.GetValueLine(0);
  for (int i = 1; i < FObjects->GetCount(); ++i) {
    QString name = item.GetFullPathPropName();
    TObject* instance = GetInstance(FObjects->GetItem(i)->GetObjects(), name, &item);
    if (!instance || !self.IsAlive() || !watched) return false;
    const QString other = GetPropertyValue(instance, &item);
    if (!self.IsAlive() || !watched) return false;
    if (other != text && AnsiCompareText(other, text) != 0) return false;
  }
  return true;
}

bool TKTCustomObjectInspector::RefreshItem(TKTItemProperty& item) {
  const TLifeWatch self(this);
  const TItemWatch watched(&item);
  if (!item.RefreshValue() || !self.IsAlive() || !watched) return false;
  RefreshSharing(item);
  if (!self.IsAlive() || !watched) return false;
  return !item.HasItems() || RefreshMembers(item.GetItems());
}

/// What is freed meanwhile leads nowhere any more.
bool TKTCustomObjectInspector::RefreshMembers(TKTItemProperties& items) {
  const TLifeWatch self(this);
  const TLifeWatch level(&items);
  for (int i = 0; i < items.GetCount(); ++i) {
    if (!RefreshItem(*items.GetItem(i))) return false;
    if (!self.IsAlive() || !level.IsAlive()) return false;
  }
  return true;
}

/// Whether the other objects have the same. May free the item.
void TKTCustomObjectInspector::RefreshSharing(TKTItemProperty& item) {
  if (FObjects->GetCount() < 2 || IsMultiColumn() || !item.IsRealProperty()) return;
  const TLifeWatch self(this);
  const TItemWatch watched(&item);
  const bool isSame = IsShownOfAll(item);
  if (!self.IsAlive() || !watched) return;
  item.SetAllEqual(isSame);
  if (watched && item.GetPropertyKind() == pkSet && item.HasItems()) RefreshSharedMembers(item);
}

/// The members that all objects have, or none has.
void TKTCustomObjectInspector::RefreshSharedMembers(TKTItemProperty& set) {
  const TLifeWatch self(this);
  const TItemWatch watched(&set);
  qint64 inAll = -1;
  qint64 inSome = 0;
  for (int i = 0; i < FObjects->GetCount(); ++i) {
    QString name = set.GetFullPathPropName();
    TObject* instance = GetInstance(FObjects->GetItem(i)->GetObjects(), name, &set);
    const TPropInfo* property = instance && watched ? GetPropInfo(instance, name) : nullptr;
    if (!property) return;
    const qint64 bits = RawPropOrdinal(instance, *property);
    if (!self.IsAlive() || !watched) return;
    inAll &= bits;
    inSome |= bits;
  }
  for (int i = 0; watched && i < set.GetItems().GetCount(); ++i) {
    TKTItemProperty* member = set.GetItems().GetItem(i);
    const std::vector<Variant>& ordinals = member->GetRealValues();
    if (ordinals.empty() || ordinals[0].IsEmpty()) continue;
    const qint64 ordinal = ordinals[0].ToInt64();
    member->SetAllEqual((inAll >> ordinal & 1) == (inSome >> ordinal & 1));
  }
}

void TKTCustomObjectInspector::KTInvalidateValues() {
  if (HasState(csDestroying)) return;
  if (IsUpdatingObjects()) return FWatch->Discard();
  FWatch->Resume();
  const TLifeWatch self(this);
  bool isFresh = false;
  {
    TEditUpdateLock lock(*this);
    const TUpdateBracket bracket(lock);
    isFresh = FWatch->Refresh();
  }
  if (!self.IsAlive()) return;
  if (!isFresh) InvalidateScan();
  if (IsEditUpdateLocked()) return;
  Invalidate();
  const TInplaceEdit* edit = InplaceEditor();
  if (edit && !edit->IsModified()) ReloadEditor();
}

}  // namespace kt
