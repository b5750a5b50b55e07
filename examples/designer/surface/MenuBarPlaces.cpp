#include "designer/surface/MenuBarPlaces.h"

#include "kt/vcl/forms/Form.h"
#include "kt/vcl/menus/MainMenu.h"
#include "kt/vcl/menus/MenuTexts.h"

#include <QAction>
#include <QMenuBar>

#include <algorithm>
#include <vector>

namespace designer {

using namespace kt;

namespace {

/// The items that have entries, in the order of these. The bar may be about to be filled anew.
std::vector<TMenuItem*> ItemsIn(const QMenuBar& bar, TMainMenu& menu) {
  std::vector<TMenuItem*> items;
  for (const TShownMenuItem& shown : ShownMenuItems(menu.GetItems())) items.push_back(shown.Item);
  items.resize(std::min(items.size(), static_cast<size_t>(bar.actions().size())));
  return items;
}

}  // namespace

QMenuBar* MenuBarOf(TCustomForm& form) {
  if (!form.GetMenu() || !form.HandleAllocated()) return nullptr;
  auto* bar = form.GetHandle()->findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
  return bar && bar->isVisibleTo(form.GetHandle()) ? bar : nullptr;
}

QRect EntryRect(TCustomForm& form, const TMenuItem& item) {
  const QMenuBar* bar = MenuBarOf(form);
  if (!bar) return {};
  const std::vector<TMenuItem*> items = ItemsIn(*bar, *form.GetMenu());
  const auto found = std::find(items.begin(), items.end(), &item);
  return found == items.end() ? QRect() : bar->actionGeometry(bar->actions().at(found - items.begin()));
}

TComponent* MenuPartAt(TCustomForm& form, QPoint globalPoint) {
  const QMenuBar* bar = MenuBarOf(form);
  const QPoint place = bar ? bar->mapFromGlobal(globalPoint) : QPoint();
  if (!bar || !bar->rect().contains(place)) return nullptr;
  for (TMenuItem* item : ItemsIn(*bar, *form.GetMenu())) {
    if (EntryRect(form, *item).contains(place)) return item;
  }
  return form.GetMenu();
}

}  // namespace designer
