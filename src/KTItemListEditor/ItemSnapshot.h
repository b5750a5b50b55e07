#pragma once

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemWatch.h"

#include <algorithm>
#include <vector>

namespace kt {

/// The items of a collection, or of a whole tree, as they stood, for a walk in which items come, go and move. Those
/// that died are null. Noticing a death takes time in proportion to the number of items.
class TItemSnapshot final : public TItemWatcher {
 public:
  explicit TItemSnapshot(const TKTItemProps& items) {
    FItems.reserve(static_cast<size_t>(items.GetCount()));
    for (int i = 0; i < items.GetCount(); ++i) FItems.push_back(items.GetItem(i));
  }
  explicit TItemSnapshot(const TKTCustomItemListEditor& editor) {
    FItems.reserve(static_cast<size_t>(editor.GetItemCount()));
    for (int i = 0; i < editor.GetItemCount(); ++i) FItems.push_back(editor.GetItem(i));
  }

  int Count() const { return static_cast<int>(FItems.size()); }
  TKTItemProp* operator[](int index) const { return FItems[static_cast<size_t>(index)]; }

 private:
  void Forget(TKTItemProp* item) override { std::replace(FItems.begin(), FItems.end(), item, Nobody); }

  static constexpr TKTItemProp* Nobody = nullptr;

  std::vector<TKTItemProp*> FItems;
};

}  // namespace kt
