#pragma once

#include "kt/KTItemListEditor/ItemSpan.h"

#include <optional>

namespace kt {

class TKTItemProp;
class TKTItemProps;

/// The list of all items and the list of rows of a tree, which are no lists: each collection knows what its items take
/// in both, so that places follow from sums, and expanding an item of thousands of rows changes one number a level.
///
/// Entries follow the tree at once. Rows follow when Recount() is called; until then what was told by MarkStale() keeps
/// the rows it had, so that rows stand still while the top level is in an update bracket. An item that leaves the tree
/// takes its rows with it at once, and one that enters has none before the next Recount().
///
/// Nobody else writes these counts.
class TItemRows {
 public:
  /// `item` has become, or is about to be no longer, part of its collection.
  static void Enter(TKTItemProp& item);
  static void Leave(TKTItemProp& item);
  /// Everything below `item`, which has children, is about to be taken from it.
  static void LeaveBelow(TKTItemProp& item);
  /// An exception has kept `item` in its collection, whether it was about to leave or had just entered.
  static void EnterAgain(TKTItemProp& item);
  /// `item` may take another number of rows than before.
  static void MarkStale(TKTItemProp& item);
  /// The same for an item that can tell now. One without children mostly takes what it took, and then nobody comes back
  /// to count it.
  static void MarkChanged(TKTItemProp& item);
  /// All items at any level may.
  static void MarkAllStale(TKTItemProps& items);
  static void Recount(TKTItemProps& items);
  /// Recounts the whole tree that `item` is in, unless its top level is in an update bracket.
  static void Settle(TKTItemProp& item);

  /// The places in the two lists; no row for an item that has none, nothing for one outside the tree.
  struct TPlace {
    int Entry;
    std::optional<int> Row;
  };
  static std::optional<TPlace> PlaceOf(const TKTItemProp& item);
  /// Null outside 0 .. the number of entries or rows.
  static TKTItemProp* FindEntry(const TKTItemProps& items, int number);
  static TKTItemProp* FindRow(const TKTItemProps& items, int number);

 private:
  static void AddUp(TKTItemProp& item, TItemSpan change);
  static int WantedRows(TKTItemProp& item);
  static void RecountAll(TKTItemProps& items);
  static void RecountOne(TKTItemProp& item);
  static bool IsStale(const TKTItemProps* items);
  static TItemSpan Before(const TKTItemProp& item);
  static TKTItemProp* FindIn(const TKTItemProps& items, int TItemSpan::*what, int& number);
  static TKTItemProp* Find(const TKTItemProps& items, int TItemSpan::*what, int number);
};

}  // namespace kt
