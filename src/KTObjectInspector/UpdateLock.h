#pragma once

#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/rtl/objects/LifeWatch.h"

namespace kt {

/// The edit-update lock of an inspector, for a bracket. An inspector that died meanwhile is left alone.
class TInspectorLock {
 public:
  explicit TInspectorLock(TKTCustomObjectInspector& inspector) : FInspector(inspector), FLife(&inspector) {}

  bool IsAlive() const { return FLife.IsAlive(); }
  void BeginUpdate() { FInspector.DisableEditUpdate(); }
  void EndUpdate() {
    if (FLife.IsAlive()) FInspector.EnableEditUpdate();
  }

 private:
  TKTCustomObjectInspector& FInspector;
  TLifeWatch FLife;
};

/// The update bracket of a collection that handlers may free.
template <class T>
class TLivingUpdate {
 public:
  explicit TLivingUpdate(T& items) : FItems(items), FLife(&items) {}

  bool IsAlive() const { return FLife.IsAlive(); }
  void BeginUpdate() { FItems.BeginUpdate(); }
  void EndUpdate() {
    if (FLife.IsAlive()) FItems.EndUpdate();
  }

 private:
  T& FItems;
  TLifeWatch FLife;
};

using TLevelUpdate = TLivingUpdate<TKTItemProperties>;

}  // namespace kt
