#pragma once

#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/rtl/objects/LifeWatch.h"

#include <unordered_set>
#include <utility>

namespace kt {

/// The building of a tree: which objects it has entered, and whether it still goes on. Handlers may free the inspector,
/// change the inspected objects or clear the tree; then what was being built is gone, and there is nothing to finish.
class TKTCustomObjectInspector::TScan {
 public:
  explicit TScan(TKTCustomObjectInspector& inspector)
      : FInspector(inspector), FLife(&inspector), FOuter(inspector.FScan) {
    inspector.FScan = this;
  }
  ~TScan() {
    if (!FLife.IsAlive()) return;
    FInspector.FScan = FOuter;
    // Not before: an event loop inside the scan would have nothing to do but to put the request off again.
    if (!FOuter && std::exchange(FInspector.FIsScanAwaited, false)) FInspector.InvalidateScan();
  }
  TScan(const TScan&) = delete;
  TScan& operator=(const TScan&) = delete;

  bool IsGoing() const { return FLife.IsAlive() && !FIsBroken; }
  void Break() { FIsBroken = true; }

  /// An object that has been entered is not entered again, which ends cycles of references.
  void Enter(const TObject* object) { FEntered.insert(object); }
  bool HasEntered(const TObject* object) const { return FEntered.contains(object); }

 private:
  TKTCustomObjectInspector& FInspector;
  TLifeWatch FLife;
  TScan* FOuter;
  std::unordered_set<const TObject*> FEntered;
  bool FIsBroken = false;
};

}  // namespace kt
