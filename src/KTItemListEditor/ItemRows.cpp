#include "kt/KTItemListEditor/ItemRows.h"

#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemSums.h"

#include <QScopeGuard>
#include <QVarLengthArray>

#include <vector>

namespace kt {

void TItemRows::AddUp(TKTItemProp& item, TItemSpan change) {
  for (TKTItemProp* child = &item; child && child->FIsCounted;) {
    TKTItemProps* items = child->GetCollection();
    items->FSpan += change;
    if (items->FSums) items->FSums->Add(*child, change);
    child = items->FOwnerItem;
    if (!child) return;
    // A parent of one row or none does not show what is below it.
    if (child->FRows <= 1) change.Rows = 0;
    child->FRows += change.Rows;
  }
}

void TItemRows::Enter(TKTItemProp& item) {
  item.FIsCounted = true;
  AddUp(item, item.Span());
  // It may have come from another editor, which shows other items.
  if (item.FItems) MarkAllStale(*item.FItems);
  MarkStale(item);
}

void TItemRows::Leave(TKTItemProp& item) {
  if (!item.FIsCounted) return;
  AddUp(item, -item.Span());
  item.FIsCounted = false;
  item.FRows = 0;
  TKTItemProps* items = item.GetCollection();
  if (items->FStale == &item) items->FStale = nullptr;
}

void TItemRows::LeaveBelow(TKTItemProp& item) {
  if (!item.FIsCounted) return;
  const TItemSpan below{item.FItems->FSpan.Items, item.FRows > 1 ? item.FRows - 1 : 0};
  AddUp(item, -below);
  item.FRows -= below.Rows;
}

void TItemRows::EnterAgain(TKTItemProp& item) {
  if (!item.FIsCounted) Enter(item);
  Settle(item);
}

void TItemRows::MarkStale(TKTItemProp& item) {
  for (TKTItemProp* child = &item; child;) {
    TKTItemProps* items = child->GetCollection();
    // Where something is stale, all above it know.
    if (!items || items->FAllStale || items->FStale == child) return;
    if (items->FStale) {
      items->FAllStale = true;
      return;
    }
    items->FStale = child;
    child = items->FOwnerItem;
  }
}

void TItemRows::MarkChanged(TKTItemProp& item) {
  auto stale = qScopeGuard([&] { MarkStale(item); });
  if (!item.FItems && WantedRows(item) == item.FRows) stale.dismiss();
}

// Trees are as deep as their builders like: no recursion where an item is moved with all below it.

void TItemRows::MarkAllStale(TKTItemProps& items) {
  if (items.FOwnerItem) MarkStale(*items.FOwnerItem);
  std::vector<TKTItemProps*> pending{&items};
  while (!pending.empty()) {
    TKTItemProps& next = *pending.back();
    pending.pop_back();
    if (next.FIsStaleBelow) continue;
    next.FAllStale = next.FIsStaleBelow = true;
    for (int i = 0; i < next.GetCount(); ++i) {
      if (TKTItemProps* below = next.GetItem(i)->FItems.get()) pending.push_back(below);
    }
  }
}

int TItemRows::WantedRows(TKTItemProp& item) {
  if (!item.FIsCounted || !item.WantsRow()) return 0;
  return item.FExpanded && item.FItems ? 1 + item.FItems->FSpan.Rows : 1;
}

void TItemRows::RecountOne(TKTItemProp& item) {
  const TItemSpan change{0, WantedRows(item) - item.FRows};
  TKTItemProps* items = item.GetCollection();
  item.FRows += change.Rows;
  items->FSpan += change;
  if (items->FSums) items->FSums->Add(item, change);
}

void TItemRows::RecountAll(TKTItemProps& items) {
  if (items.FSums) items.FSums->Rearranged();
  int rows = 0;
  for (int i = 0; i < items.GetCount(); ++i) {
    TKTItemProp& item = *items.GetItem(i);
    item.FRows = WantedRows(item);
    rows += item.FRows;
  }
  items.FSpan.Rows = rows;
}

bool TItemRows::IsStale(const TKTItemProps* items) { return items && (items->FAllStale || items->FStale); }

void TItemRows::Recount(TKTItemProps& items) {
  if (!IsStale(&items)) return;
  // Parents before what is below them; counted are the lowest first.
  QVarLengthArray<TKTItemProps*, 32> stale{&items};
  for (qsizetype i = 0; i < stale.size(); ++i) {
    TKTItemProps& next = *stale[i];
    next.FIsStaleBelow = false;
    const int count = next.FAllStale ? next.GetCount() : 1;
    for (int j = 0; j < count; ++j) {
      TKTItemProps* below = (next.FAllStale ? next.GetItem(j) : next.FStale)->FItems.get();
      if (IsStale(below)) stale.push_back(below);
    }
  }
  for (qsizetype i = stale.size() - 1; i >= 0; --i) {
    TKTItemProps& next = *stale[i];
    if (next.FAllStale) {
      RecountAll(next);
    } else {
      RecountOne(*next.FStale);
    }
    next.FAllStale = false;
    next.FStale = nullptr;
  }
}

void TItemRows::Settle(TKTItemProp& item) {
  TKTItemProps* root = item.GetCollection();
  while (root && root->FOwnerItem) root = root->FOwnerItem->GetCollection();
  if (root && root->GetUpdateCount() == 0) Recount(*root);
}

TItemSpan TItemRows::Before(const TKTItemProp& item) {
  TKTItemProps& items = *item.GetCollection();
  if (TItemSums* sums = items.Sums()) return sums->Before(item);
  TItemSpan sum;
  for (int i = 0; items.GetItem(i) != &item; ++i) sum += items.GetItem(i)->Span();
  return sum;
}

std::optional<TItemRows::TPlace> TItemRows::PlaceOf(const TKTItemProp& item) {
  TItemSpan before;
  bool hasRow = item.FRows > 0;
  for (const TKTItemProp* child = &item; child;) {
    if (!child->FIsCounted) return std::nullopt;
    before += Before(*child);
    child = child->GetParent();
    if (!child) break;
    before += {1, 1};
    hasRow = hasRow && child->FRows > 1;
  }
  return TPlace{before.Items, hasRow ? std::optional(before.Rows) : std::nullopt};
}

TKTItemProp* TItemRows::FindIn(const TKTItemProps& items, int TItemSpan::*what, int& number) {
  if (TItemSums* sums = const_cast<TKTItemProps&>(items).Sums()) return sums->Find(what, number);
  for (int i = 0; i < items.GetCount(); ++i) {
    const int size = items.GetItem(i)->Span().*what;
    if (number < size) return items.GetItem(i);
    number -= size;
  }
  return nullptr;
}

TKTItemProp* TItemRows::Find(const TKTItemProps& items, int TItemSpan::*what, int number) {
  if (number < 0) return nullptr;
  for (const TKTItemProps* level = &items; level;) {
    TKTItemProp* item = FindIn(*level, what, number);
    if (!item || number == 0) return item;
    --number;
    level = item->FItems.get();
  }
  return nullptr;
}

TKTItemProp* TItemRows::FindEntry(const TKTItemProps& items, int number) {
  return Find(items, &TItemSpan::Items, number);
}

TKTItemProp* TItemRows::FindRow(const TKTItemProps& items, int number) { return Find(items, &TItemSpan::Rows, number); }

}  // namespace kt
