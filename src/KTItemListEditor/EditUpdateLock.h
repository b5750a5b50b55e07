#pragma once

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/objects/LifeWatch.h"

namespace kt {

/// The edit-update lock of an editor, for a bracket: taken and given back also when what is between throws. An editor
/// that died meanwhile is left alone.
class TEditUpdateLock {
 public:
  explicit TEditUpdateLock(TKTCustomItemListEditor& editor) : FEditor(editor), FLife(&editor) {}

  void BeginUpdate() { FEditor.DisableEditUpdate(); }
  void EndUpdate() {
    if (FLife.IsAlive()) FEditor.EnableEditUpdate();
  }

 private:
  TKTCustomItemListEditor& FEditor;
  TLifeWatch FLife;
};

}  // namespace kt
