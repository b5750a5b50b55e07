#include "kt/rtl/collections/ItemsExchange.h"

#include "kt/rtl/objects/UnhandledExceptions.h"

#include <algorithm>

namespace kt {

TItemsExchange::TItemsExchange(TCollection& collection) : FCollection(collection) {
  FItems.reserve(collection.GetCount());
  try {
    while (collection.GetCount() > 0) {
      TCollectionItem* item = collection.GetItem(collection.GetCount() - 1);
      // Room first, as an observer may have added some: what has left the collection must have an owner.
      FItems.reserve(FItems.size() + 1);
      item->SetCollection(nullptr);
      FItems.emplace_back(item);
    }
  } catch (...) {
    Append();
    throw;
  }
}

void TItemsExchange::PutBack() noexcept {
  GuardedCall([this] { FCollection.Clear(); });
  Append();
}

void TItemsExchange::Append() noexcept {
  const int nextID = FCollection.FNextID;
  for (; !FItems.empty(); FItems.pop_back()) {
    TCollectionItem* item = FItems.back().get();
    FCollection.FNextID = item->FID;
    GuardedCall([&] { item->SetCollection(&FCollection); });
    if (item->GetCollection()) static_cast<void>(FItems.back().release());
  }
  FCollection.FNextID = std::max(nextID, FCollection.FNextID);
}

}  // namespace kt
