#include "kt/rtl/collections/ItemsExchange.h"

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/objects/UnhandledExceptions.h"

#include <algorithm>

namespace kt {

TItemsExchange::TItemsExchange(TCollection& collection) : FCollection(collection) {
  FItems.reserve(collection.GetCount());
  const TLifeWatch watch(&collection);
  try {
    while (collection.GetCount() > 0) {
      TCollectionItem* item = collection.GetItem(collection.GetCount() - 1);
      // Room first, as an observer may have added some: what has left the collection must have an owner.
      FItems.reserve(FItems.size() + 1);
      item->SetCollection(nullptr);
      FItems.emplace_back(item);
      if (!watch.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
    }
  } catch (...) {
    if (watch.IsAlive()) Append();
    throw;
  }
}

void TItemsExchange::PutBack() noexcept {
  const TLifeWatch watch(&FCollection);
  GuardedCall([this] { FCollection.Clear(); });
  if (watch.IsAlive()) Append();
}

void TItemsExchange::Append() noexcept {
  const int nextID = FCollection.FNextID;
  const TLifeWatch watch(&FCollection);
  for (; !FItems.empty(); FItems.pop_back()) {
    TCollectionItem* item = FItems.back().release();
    const TLifeWatch watchOfItem(item);
    FCollection.FNextID = item->FID;
    GuardedCall([&] { item->SetCollection(&FCollection); });
    if (watchOfItem.IsAlive() && !item->GetCollection()) delete item;
    if (!watch.IsAlive()) return;
  }
  FCollection.FNextID = std::max(nextID, FCollection.FNextID);
}

}  // namespace kt
