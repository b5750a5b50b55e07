#pragma once

#include "kt/rtl/collections/Collection.h"

#include <memory>
#include <vector>

namespace kt {

/// The items that a collection had, taken out so that others can take their place and put back when that fails. Those
/// that are not put back are freed at the end of the scope. Observers see the same notifications as for Clear(), and
/// those of adding for items that are put back; these keep their ids.
class TItemsExchange {
 public:
  /// Takes all items out. Passes on what an observer raises, after putting back what was out already; raises
  /// EInvalidOperation when an observer frees the collection.
  explicit TItemsExchange(TCollection& collection);
  /// Frees what the collection has now and puts the former items back. Exceptions of observers are reported
  /// (HandleException()).
  void PutBack() noexcept;

 private:
  void Append() noexcept;

  TCollection& FCollection;
  /// The last first.
  std::vector<std::unique_ptr<TCollectionItem>> FItems;
};

}  // namespace kt
