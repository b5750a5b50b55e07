#pragma once

#include <QString>

#include <vector>

namespace kt {

class TMenuItem;

/// An item as its menu shows it.
struct TShownMenuItem {
  TMenuItem* Item;
  /// The caption, with the letter that chooses the entry marked by "&".
  QString Text;
};

/// The items below an item that show, in their order. As far as the menu does that by itself: each has a letter that no
/// other one has, and no line stands at an end or beside another one.
std::vector<TShownMenuItem> ShownMenuItems(const TMenuItem& items);

}  // namespace kt
