// How and when an inspector builds its tree.
#include "kt/KTItemListEditor/EditUpdateLock.h"
#include "kt/KTItemListEditor/ItemSnapshot.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/PropertyWatch.h"
#include "kt/KTObjectInspector/Scan.h"
#include "kt/KTPropertyPresets/PropertyPresets.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"

#include <exception>
#include <optional>

namespace kt {

bool TKTCustomObjectInspector::IsUpdatingObjects() const { return FObjects->GetUpdateCount() > 0; }

// Requests.

void TKTCustomObjectInspector::InvalidateScan() {
  if (FIsConstructing || HasState(csLoading) || HasState(csDestroying)) return;
  // One request stands for all until it is delivered.
  if (FIsScanPosted) return;
  FIsScanPosted = true;
  PostMessage(KT_INVALIDATESCAN);
}

void TKTCustomObjectInspector::KTInvalidateScan() {
  FIsScanPosted = false;
  Rescan();
}

void TKTCustomObjectInspector::ListUpdating() {
  const TLifeWatch self(this);
  HideEditor();
  if (!self.IsAlive() || HasState(csLoading)) return;
  KeepSelected();
  KeepView();
  if (FScan) FScan->Break();
  GetItems().Clear();
}

void TKTCustomObjectInspector::ListUpdate(TKTInspectorObject*) {
  if (!HasState(csDestroying)) InvalidateScan();
}

void TKTCustomObjectInspector::PresetNotify(TKTPropertyPreset*, TCollectionNotification) { PresetUpdate(nullptr); }

/// What a preset does is done to new items. Without inspected objects the items are the application's own.
void TKTCustomObjectInspector::PresetUpdate(TKTPropertyPreset*) {
  if (!FIsConstructing && FObjects && FObjects->GetCount() > 0) InvalidateScan();
}

// The frame of a scan.

bool TKTCustomObjectInspector::BeforeScan(TKTItemProperty* item) {
  const TLifeWatch self(this);
  bool result = true;
  OnBeforeScan(this, item, result);
  if (!item && result && self.IsAlive()) {
    GetItems().BeginUpdate();
    DisableEditUpdate();
  }
  return result;
}

/// Deliberately also ends the brackets of a scan that was vetoed, which did not begin them; those of whoever has begun
/// some, then.
void TKTCustomObjectInspector::AfterScan(TKTItemProperty* item) {
  const TLifeWatch self(this);
  const TItemWatch watched(item);
  if (!item) {
    FIsScanPending = false;
    EndScanUpdates();
  }
  if (self.IsAlive()) OnAfterScan(this, static_cast<TKTItemProperty*>(watched.Get()));
}

/// Each, whatever the other raises.
void TKTCustomObjectInspector::EndScanUpdates() {
  struct TItemsUpdate {
    TKTCustomObjectInspector& Inspector;
    TLifeWatch Life{&Inspector};
    void BeginUpdate() {}
    void EndUpdate() {
      if (Life.IsAlive() && Inspector.GetItems().GetUpdateCount() > 0) Inspector.GetItems().EndUpdate();
    }
  } update{*this};
  const TUpdateBracket bracket(update);
  if (IsEditUpdateLocked()) EnableEditUpdate();
}

void TKTCustomObjectInspector::Rescan() {
  if (HasState(csLoading) || HasState(csDestroying) || IsUpdatingObjects()) return;
  // Whoever asks from inside a scan gets one when that is done.
  if (FScan) {
    FIsScanAwaited = true;
    return;
  }
  const TLifeWatch self(this);
  KeepSelected();
  KeepView();
  TScan scan(*this);
  const bool isWanted = BeforeScan(nullptr);
  if (!self.IsAlive()) return;
  FIsScanPending = isWanted;
  try {
    GetItems().Clear();
    if (self.IsAlive()) FWatch->BeginScan();
    if (scan.IsGoing() && FIsScanPending) ScanProperties();
    if (self.IsAlive()) FWatch->EndScan();
    if (self.IsAlive()) RestoreExpansion();
    if (self.IsAlive()) Refresh();
  } catch (...) {
    const std::exception_ptr error = std::current_exception();
    try {
      if (self.IsAlive()) AfterScan(nullptr);
    } catch (...) {
      // The first exception is the one that tells what went wrong.
    }
    std::rethrow_exception(error);
  }
  if (self.IsAlive()) AfterScan(nullptr);
  if (self.IsAlive()) RestoreView();
}

void TKTCustomObjectInspector::ScanProperties() {
  TKTInspectorObject* first = FObjects->GetCount() > 0 ? FObjects->GetItem(0) : nullptr;
  if (!first || !first->GetObjects()) {
    if (IsMultiColumn()) SetGridCount(gcFieldCount, 2);
    return;
  }
  const TLifeWatch self(this);
  TEditUpdateLock lock(*this);
  const TUpdateBracket bracket(lock);
  const auto objects = Make<TKTInspectorObjects>(nullptr);
  objects->AssignNonEmpty(*FObjects);
  if (objects->GetCount() == 0) return;
  SetGridCount(gcFieldCount, IsMultiColumn() ? objects->GetCount() + 1 : 2);
  if (!self.IsAlive()) return;
  std::optional<TScan> own;
  if (!FScan) own.emplace(*this);
  TScan& scan = *FScan;
  BuildCommonProperties(scan, *objects, GetItems());
  if (scan.IsGoing()) RemoveFilterProperties();
  if (scan.IsGoing()) CopyPresetsToProperties();
}

// Filters.

bool TKTCustomObjectInspector::IsFiltered(TKTItemProperty& item) {
  const bool isNamed = FFilters->IndexOf(item.GetName()) >= 0 || FFilters->IndexOf(item.GetFullPathName()) >= 0;
  return isNamed != FFilterOptions.Has(foInclusive);
}

void TKTCustomObjectInspector::RemoveFilterProperties() {
  if (!FFiltersEnabled || FFilters->GetCount() == 0) return;
  const TLifeWatch self(this);
  for (int i = 0; self.IsAlive() && i < GetItemCount();) {
    TKTItemProperty* item = GetItem(i);
    // Categories are nobody's properties: what they hold is asked for by itself.
    if (!item->GetCategory() && IsFiltered(*item)) {
      delete item;
    } else {
      ++i;
    }
  }
}

void TKTCustomObjectInspector::ChangingFilters(TObject*) { OnFiltersChanging(this); }

void TKTCustomObjectInspector::ChangeFilters(TObject*) {
  const TLifeWatch self(this);
  OnFiltersChanged(this);
  if (self.IsAlive() && FFiltersEnabled) InvalidateScan();
}

// Presets.

void TKTCustomObjectInspector::CopyPresetsToProperties() {
  if (FPresets->GetCount() == 0) return;
  const TLifeWatch self(this);
  // An alias moves its item within a sorted level, or to another category.
  const TItemSnapshot items(*this);
  for (int i = 0; self.IsAlive() && i < items.Count(); ++i) {
    if (items[i]) FPresets->CopyPresetsToProperty(static_cast<TKTItemProperty*>(items[i]));
  }
}

void TKTCustomObjectInspector::CustomPreset(TKTPropertyPreset* preset, TKTItemProperty* item) {
  OnCustomPreset(this, preset, item);
}

void TKTCustomObjectInspector::MatchPreset(TKTPropertyPreset* preset, TKTItemProperty* item, bool& result) {
  OnMatchPreset(this, preset, item, result);
}

}  // namespace kt
