#pragma once

#include <functional>

class QWidget;

namespace kt {

class TMenuItem;

/// Fills a menu or a menu bar of Qt's with entries for the visible items below `items`, in place of those it has. Menus
/// further down are filled anew each time that they open, when their actions are up to date and OnClick of their item
/// was raised. `choose` is called for an item that is chosen; not in a designer. Items may die at any time.
void ShowMenuItems(QWidget& widget, TMenuItem& items, const std::function<void(TMenuItem&)>& choose);

/// Has the highlighted entry tell its long hint to the application.
void TellMenuHints(QWidget& widget);

}  // namespace kt
