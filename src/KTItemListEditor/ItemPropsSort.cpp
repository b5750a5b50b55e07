#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/strings/StringList.h"

#include <numeric>

namespace kt {

namespace {

using TOrder = std::vector<int>;

/// The framework's quicksort over places; `order` says which item has come to a place. What it yields for items that
/// compare equal depends on every step, so the steps stay as they are.
class TQuickSort {
 public:
  TQuickSort(TKTItemProps& items, const TKTItemPropsCompare& compare, TOrder& order)
      : FItems(items), FCompare(compare), FOrder(order) {}

  /// The smaller part goes first, so that the stack stays low; the order of the parts changes nothing else.
  void Run(int left, int right) {
    while (left < right) {
      const auto [end, next] = Partition(left, right);
      if (end - left < right - next) {
        Run(left, end);
        left = next;
      } else {
        Run(next, right);
        right = end;
      }
    }
  }

 private:
  /// Parts the range around the item in the middle; answers the end of the first part and the beginning of the second.
  std::pair<int, int> Partition(int left, int right) {
    int i = left;
    int j = right;
    int pivot = static_cast<int>((static_cast<unsigned>(left) + static_cast<unsigned>(right)) >> 1);
    do {
      while (Compare(i, pivot) < 0) ++i;
      while (Compare(j, pivot) > 0) --j;
      if (i > j) break;
      std::swap(FOrder[i], FOrder[j]);
      // The pivot may have been one of the two.
      if (pivot == i) {
        pivot = j;
      } else if (pivot == j) {
        pivot = i;
      }
      ++i;
      --j;
    } while (i <= j);
    return {j, i};
  }

  int Compare(int a, int b) { return FCompare(FItems, ItemAt(a), ItemAt(b)); }

  /// A comparison that contradicts itself leads out of the range.
  int ItemAt(int place) {
    FItems.GetItem(place);
    return FOrder[place];
  }

  TKTItemProps& FItems;
  const TKTItemPropsCompare& FCompare;
  TOrder& FOrder;
};

int CompareNames(TKTItemProps& items, int first, int second) {
  return items.CompareStrings(items.GetItem(first)->GetName(), items.GetItem(second)->GetName());
}

}  // namespace

void TKTItemProps::Sort(bool thisLevelOnly) { CustomSort(&CompareNames, thisLevelOnly); }

void TKTItemProps::CustomSort(const TKTItemPropsCompare& compare, bool thisLevelOnly) {
  if (FSorted || GetCount() == 0) return;
  const TUpdateBracket bracket(*this);
  if (!bracket.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
  TOrder order(static_cast<size_t>(GetCount()));
  std::iota(order.begin(), order.end(), 0);
  TQuickSort(*this, compare, order).Run(0, GetCount() - 1);
  // A comparison that adds or removes items.
  if (static_cast<int>(order.size()) != GetCount()) throw EListError(Format(SListCountError, {GetCount()}));
  PermuteItems(order);
  if (thisLevelOnly) return;
  for (int i = 0; bracket.IsAlive() && i < GetCount(); ++i) {
    if (GetItem(i)->FItems) GetItem(i)->FItems->CustomSort(compare, false);
  }
}

void TKTItemProps::StoreSorted(bool value) {
  if (!value || !FCategories || FCategories->GetSorted() || FCategories->GetCount() < 2) return StoreSortedFlags(value);
  // Who hears of the lines is asked before both change and told when both have changed: what is thrown there finds them
  // alike.
  const TUpdateBracket bracket(*FCategories);
  if (bracket.IsAlive()) StoreSortedFlags(true);
}

void TKTItemProps::StoreSortedFlags(bool value) {
  if (FCategories) FCategories->SetSorted(value);
  FSorted = value;
}

void TKTItemProps::StoreSortedBelow(bool value) {
  const TLifeWatch self(this);
  for (int i = 0; self.IsAlive() && i < GetCount(); ++i) {
    TKTItemProp* item = GetItem(i);
    item->FSortsItems = value;
    if (item->FItems) item->FItems->SetSorted(value);
  }
}

void TKTItemProps::SetSorted(bool value) {
  if (FSorted == value) return;
  if (!value) {
    StoreSortedBelow(false);
    return StoreSorted(false);
  }
  // Both ends of the bracket ask handlers, which may free the level: the editor closes and rows show.
  const TLifeWatch self(this);
  {
    const TUpdateBracket bracket(*this);
    if (self.IsAlive()) StoreSortedBelow(true);
    if (self.IsAlive()) Sort(true);
    if (self.IsAlive()) StoreSorted(true);
  }
  TKTCustomItemListEditor* editor = self.IsAlive() ? GetEditor() : nullptr;
  if (editor) editor->Refresh();
}

}  // namespace kt
