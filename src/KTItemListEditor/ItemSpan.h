#pragma once

namespace kt {

/// How much room something takes in the lists of the editor: an item with its subtree, or all items of a collection.
struct TItemSpan {
  int Items = 0;  ///< entries in the list of all items
  int Rows = 0;   ///< rows

  TItemSpan& operator+=(TItemSpan other) {
    Items += other.Items;
    Rows += other.Rows;
    return *this;
  }
  friend TItemSpan operator-(TItemSpan a) { return {-a.Items, -a.Rows}; }
  friend bool operator==(TItemSpan a, TItemSpan b) = default;
};

}  // namespace kt
