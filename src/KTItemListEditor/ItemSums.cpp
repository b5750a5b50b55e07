#include "kt/KTItemListEditor/ItemSums.h"

#include "kt/KTItemListEditor/ItemProp.h"

#include <algorithm>

namespace kt {

namespace {

TItemSpan SpanOf(const TCollectionItem* item) {
  return item ? static_cast<const TKTItemProp*>(item)->Span() : TItemSpan{};
}

}  // namespace

void TItemSums::LayOut() {
  FLevels.clear();
  int begin = 0;
  int count = FItems.Capacity();
  do {
    count = (count + Fan - 1) / Fan;
    FLevels.push_back({begin, count});
    begin += count;
  } while (count > Fan);
  FCounts.assign(static_cast<size_t>(begin), {});
}

void TItemSums::EnsureValid() {
  if (FIsValid) return;
  LayOut();
  for (int slot = 0; slot < FItems.Capacity(); ++slot) FCounts[slot / Fan] += SpanOf(FItems.AtSlot(slot));
  for (size_t level = 1; level < FLevels.size(); ++level) {
    const TLevel below = FLevels[level - 1];
    for (int i = 0; i < below.Count; ++i) FCounts[FLevels[level].Begin + i / Fan] += FCounts[below.Begin + i];
  }
  FIsValid = true;
}

void TItemSums::AddAt(int slot, TItemSpan change) {
  int index = slot;
  for (const TLevel& level : FLevels) {
    index /= Fan;
    FCounts[level.Begin + index] += change;
  }
}

void TItemSums::Add(const TKTItemProp& item, TItemSpan change) {
  const int slot = FItems.SlotOf(&item);
  if (FIsValid && slot >= 0) AddAt(slot, change);
}

void TItemSums::Moved(TCollectionItem* item, int from, int to) {
  if (!FIsValid) return;
  const TItemSpan span = SpanOf(item);
  if (from >= 0) AddAt(from, -span);
  if (to >= 0) AddAt(to, span);
}

TItemSpan TItemSums::Before(const TKTItemProp& item) {
  EnsureValid();
  TItemSpan sum;
  int index = FItems.SlotOf(&item);
  if (index < 0) {
    // Kept aside: comes after all others.
    for (int i = FLevels.back().Begin; i < static_cast<int>(FCounts.size()); ++i) sum += FCounts[i];
    return sum;
  }
  for (int i = index / Fan * Fan; i < index; ++i) sum += SpanOf(FItems.AtSlot(i));
  for (const TLevel& level : FLevels) {
    index /= Fan;
    for (int i = index / Fan * Fan; i < index; ++i) sum += FCounts[level.Begin + i];
  }
  return sum;
}

TKTItemProp* TItemSums::FindInSlots(int first, int TItemSpan::*what, int& number) const {
  const int end = std::min(first + Fan, FItems.Capacity());
  for (int slot = first; slot < end; ++slot) {
    TCollectionItem* item = FItems.AtSlot(slot);
    const int size = SpanOf(item).*what;
    if (number < size) return static_cast<TKTItemProp*>(item);
    number -= size;
  }
  return nullptr;
}

TKTItemProp* TItemSums::Find(int TItemSpan::*what, int& number) {
  EnsureValid();
  int index = 0;
  for (auto level = FLevels.rbegin(); level != FLevels.rend(); ++level) {
    const int end = std::min(index + Fan, level->Count);
    while (index < end && number >= FCounts[level->Begin + index].*what)
      number -= FCounts[level->Begin + index++].*what;
    // Past all slots: only whoever is kept aside is left.
    if (index == end) {
      TCollectionItem* aside = FItems.Aside();
      return number < SpanOf(aside).*what ? static_cast<TKTItemProp*>(aside) : nullptr;
    }
    index *= Fan;
  }
  return FindInSlots(index, what, number);
}

}  // namespace kt
