#include "kt/KTPropertyPresets/PropertyPresets.h"

#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TKTPropertyPresets::Class() {
  static const TClassInfo info = TClassBuilder<TKTPropertyPresets>("TKTPropertyPresets").Done();
  return &info;
}

TKTPropertyPresets::TKTPropertyPresets(TKTCustomObjectInspector* inspector)
    : TOwnedCollection(inspector, TKTPropertyPreset::Class()), FInspector(inspector) {}

TKTPropertyPreset* TKTPropertyPresets::Add(const TClassInfo* presetClass) {
  if (!presetClass->InheritsFrom(TKTPropertyPreset::Class())) throw EInvalidCast(SInvalidCast.toString());
  return static_cast<TKTPropertyPreset*>(presetClass->CreateInstance(this));
}

int TKTPropertyPresets::IndexOf(const TClassInfo* presetClass) const {
  for (int i = 0; i < GetCount(); ++i) {
    if (GetItem(i)->ClassType() == presetClass) return i;
  }
  return -1;
}

int TKTPropertyPresets::IndexOf(const QString& name) const {
  for (int i = 0; i < GetCount(); ++i) {
    if (GetItem(i)->GetDisplayName() == name) return i;
  }
  return -1;
}

/// False when nothing more is to be applied to the item.
static bool ApplyPreset(TKTPropertyPreset& preset, TKTItemProperty& item) {
  const TItemWatch watched(&item);
  if (!preset.GetActive() || !preset.Matches(&item)) return bool(watched);
  // What matches is alive.
  preset.CopyPreset(&item);
  return watched && item.RefreshValue();
}

void TKTPropertyPresets::CopyPresetsToProperty(TKTItemProperty* item) {
  const TLifeWatch self(this);
  const TItemWatch watched(item);
  for (int i = 0; i < GetCount();) {
    TKTPropertyPreset* preset = GetItem(i);
    const TLifeWatch watchOfPreset(preset);
    const bool goesOn = ApplyPreset(*preset, *item);
    if (!goesOn || !self.IsAlive() || !watched) return;
    // Behind a preset that has gone, the next one has moved up.
    const bool isHere = watchOfPreset.IsAlive() && preset->GetCollection() == this;
    if (isHere) i = preset->GetIndex() + 1;
  }
}

void TKTPropertyPresets::Notify(TCollectionItem* item, TCollectionNotification action) {
  auto* preset = static_cast<TKTPropertyPreset*>(item);
  if (action == cnExtracting) preset->TakeBackHandlers();
  const TLifeWatch self(this);
  const TLifeWatch watchOfPreset(preset);
  TOwnedCollection::Notify(item, action);
  if (!self.IsAlive() || !watchOfPreset.IsAlive()) return;
  if (FInspector) FInspector->PresetNotify(preset, action);
}

void TKTPropertyPresets::Update(TCollectionItem* item) {
  const TLifeWatch self(this);
  TOwnedCollection::Update(item);
  if (self.IsAlive() && FInspector) FInspector->PresetUpdate(static_cast<TKTPropertyPreset*>(item));
}

}  // namespace kt
