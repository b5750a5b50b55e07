#pragma once

#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/rtl/collections/Collection.h"

namespace kt {

/// The presets of an object inspector. They are applied in their order, so a later one wins over those before it.
///
/// Presets of any descendant class can be in it, each made through its class. The inspector is told of each preset that
/// comes or goes, and of changes.
class TKTPropertyPresets : public TOwnedCollection {
 public:
  using Inherited = TOwnedCollection;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TKTPropertyPreset* GetItem(int index) const {
    return static_cast<TKTPropertyPreset*>(TOwnedCollection::GetItem(index));
  }
  /// Copies `value` into the preset at `index`.
  void SetItem(int index, TKTPropertyPreset* value) { TOwnedCollection::SetItem(index, value); }
  TKTPropertyPreset* Add() { return static_cast<TKTPropertyPreset*>(TOwnedCollection::Add()); }
  /// Raises EInvalidCast for a class that is no descendant of TKTPropertyPreset.
  TKTPropertyPreset* Add(const TClassInfo* presetClass);
  TKTPropertyPreset* Insert(int index) { return static_cast<TKTPropertyPreset*>(TOwnedCollection::Insert(index)); }
  TKTPropertyPreset* FindItemID(int id) const {
    return static_cast<TKTPropertyPreset*>(TOwnedCollection::FindItemID(id));
  }
  /// The first preset of exactly that class, or -1.
  int IndexOf(const TClassInfo* presetClass) const;
  /// The first preset with that display name, with regard to case, or -1.
  int IndexOf(const QString& name) const;
  /// The inspector, or null.
  TKTCustomObjectInspector* GetOwner() override { return FInspector; }

  /// Lets each active preset that matches the item change it, in their order, and reads the item's value again after
  /// each. Stops when that fails, and when a handler frees the item or the collection. Handlers may add, move and
  /// remove presets: the walk goes on behind the present one.
  void CopyPresetsToProperty(TKTItemProperty* item);

 protected:
  /// `inspector` may be null.
  explicit TKTPropertyPresets(TKTCustomObjectInspector* inspector);

  void Notify(TCollectionItem* item, TCollectionNotification action) override;
  void Update(TCollectionItem* item) override;

 private:
  TKTCustomObjectInspector* FInspector;
};

}  // namespace kt
