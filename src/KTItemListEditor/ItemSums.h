#pragma once

#include "kt/KTItemListEditor/ItemSpan.h"
#include "kt/rtl/collections/Collection.h"

#include <vector>

namespace kt {

class TKTItemProp;

/// Sums of the spans of a collection's items, so that the place of an item in the editor's lists, and the item at a
/// place, are found without walking through its siblings.
///
/// A tree of sums over the slots in which the collection keeps its items, sixteen to a node; the counts of one node lie
/// side by side, level by level. A changed span costs one addition a level, a question sixteen. When the slots are laid
/// anew everything is summed anew at the next question, which is as rare as growing is.
class TItemSums final : public TCollection::TItemSequence::TObserver {
 public:
  explicit TItemSums(const TCollection::TItemSequence& items) : FItems(items) {}

  /// The spans of all items before this one.
  TItemSpan Before(const TKTItemProp& item);
  /// The item in whose span the entry or row with this number lies, counted from the start of the collection; `number`
  /// becomes that within the item's span. Null when there are not so many.
  TKTItemProp* Find(int TItemSpan::*what, int& number);

  /// An item's span has changed.
  void Add(const TKTItemProp& item, TItemSpan change);
  /// Many spans have.
  void Rearranged() override { FIsValid = false; }
  void Moved(TCollectionItem* item, int from, int to) override;

  /// The sizes of nodes.
  static constexpr int Fan = 16;

 private:
  /// Where the counts of a level begin; level 0 sums slots.
  struct TLevel {
    int Begin;
    int Count;
  };

  void EnsureValid();
  void LayOut();
  void AddAt(int slot, TItemSpan change);
  TKTItemProp* FindInSlots(int first, int TItemSpan::*what, int& number) const;

  const TCollection::TItemSequence& FItems;
  std::vector<TItemSpan> FCounts;
  std::vector<TLevel> FLevels;
  bool FIsValid = false;
};

}  // namespace kt
