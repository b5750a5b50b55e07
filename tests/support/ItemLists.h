#pragma once

#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/objects/Make.h"

#include <gtest/gtest.h>
#include <string>

namespace kt::tests {

/// The whole tree as a text: "a [b [c] d] e".
std::string Tree(TKTItemProps& items);
/// The rows, with the selected one marked: "a | >b | c".
std::string Rows(const TKTCustomItemListEditor& editor);
/// The names of all items in the order of the editor's list.
std::string Entries(const TKTCustomItemListEditor& editor);

/// The same two texts by a plain walk through the tree: what the editor's lists have to be.
std::string WalkedRows(const TKTCustomItemListEditor& editor);
std::string WalkedEntries(const TKTCustomItemListEditor& editor);
/// The update counts of all collections, added up.
int OpenBrackets(TKTItemProps& items);

/// An editor with no window, for tests of the item model.
class TItemListTest : public testing::Test {
 protected:
  TKTItemProps& Items() { return FEditor->GetItems(); }
  /// Adds items from a text such as "a [b [c] d] e"; nothing is expanded.
  void Fill(const std::string& tree);
  /// By its full path name; the test fails without it.
  TKTItemProp& Item(const QString& path);
  std::string TreeText() { return Tree(Items()); }
  std::string RowsText() { return Rows(*FEditor); }
  std::string EntriesText() { return Entries(*FEditor); }

  /// The name of the item under the cursor, or "-".
  std::string SelectedText();

  std::unique_ptr<TKTItemListEditor> FEditor = Make<TKTItemListEditor>();
};

}  // namespace kt::tests
