#pragma once

#include <QPoint>
#include <QRect>

class QMenuBar;

namespace kt {
class TComponent;
class TCustomForm;
class TMenuItem;
}  // namespace kt

namespace designer {

// The live form's bar of menus, whose entries stand for their items.

/// Null when the form shows none.
QMenuBar* MenuBarOf(kt::TCustomForm& form);
/// Where the entry of an item is in the bar; empty for an item without one.
QRect EntryRect(kt::TCustomForm& form, const kt::TMenuItem& item);
/// What a place of the bar stands for: the item of an entry, beside these the menu itself. Null outside the bar.
kt::TComponent* MenuPartAt(kt::TCustomForm& form, QPoint globalPoint);

}  // namespace designer
