#include "kt/vcl/menus/MenuContents.h"

#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/vcl/controls/ControlBody.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/menus/Menu.h"
#include "kt/vcl/menus/MenuTexts.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPointer>

namespace kt {

namespace {

using TChoose = std::function<void(TMenuItem&)>;

TMenuItem* ItemOf(const TObjectRef& ref) { return static_cast<TMenuItem*>(ref.Get()); }

bool IsDesigning(const TMenuItem& item) {
  const TMenu* menu = item.GetParentMenu();
  return menu && menu->HasState(csDesigning);
}

void ShowCheck(QAction& action, const TMenuItem& item) {
  if (!item.IsChecked()) return;
  action.setCheckable(true);
  action.setChecked(true);
  // What makes the mark a round one.
  if (item.IsRadioItem()) (new QActionGroup(&action))->addAction(&action);
}

/// The entry was chosen; Qt has toggled the check, which is the item's.
void Chosen(const QPointer<QAction>& action, const TObjectRef& ref, const TChoose& choose) {
  TMenuItem* item = ItemOf(ref);
  if (!item) return;
  // A check that goes by the item is shown anew when the menu opens the next time.
  if (action) action->setChecked(item->IsChecked());
  if (!IsDesigning(*item)) choose(*item);
}

/// The menu below an item is about to open.
void Open(const QPointer<QMenu>& menu, const TObjectRef& ref, const TChoose& choose) {
  if (ItemOf(ref) && !IsDesigning(*ItemOf(ref))) {
    ItemOf(ref)->InitiateActions();
    if (ItemOf(ref)) ItemOf(ref)->Click();
  }
  if (menu && ItemOf(ref)) ShowMenuItems(*menu, *ItemOf(ref), choose);
}

/// Handlers may free the form, whose windows have to outlive what Qt is doing.
template <class F>
void FromQt(F&& call) {
  const TControlBody::TInEvent running;
  GuardedCall(std::forward<F>(call));
}

void AddMenuBelow(QAction& action, QWidget& widget, TMenuItem& item, const TChoose& choose) {
  auto* menu = new QMenu(&widget);
  action.setMenu(menu);
  menu->setLayoutDirection(widget.layoutDirection());
  ShowMenuItems(*menu, item, choose);
  const QPointer<QMenu> shown(menu);
  QObject::connect(menu, &QMenu::aboutToShow, menu,
                   [shown, ref = TObjectRef(&item), choose] { FromQt([&] { Open(shown, ref, choose); }); });
}

void AddEntry(QWidget& widget, const TShownMenuItem& shown, const TChoose& choose) {
  TMenuItem& item = *shown.Item;
  auto* action = new QAction(&widget);
  widget.addAction(action);
  if (item.IsLine()) return action->setSeparator(true);
  const bool isInBar = qobject_cast<QMenuBar*>(&widget) != nullptr;
  const QString key = isInBar || item.GetCount() > 0 ? QString() : ShortCutToText(item.GetShortCut());
  action->setText(key.isEmpty() ? shown.Text : shown.Text + u'\t' + key);
  action->setEnabled(item.IsEnabled());
  action->setStatusTip(GetLongHint(item.GetHint()));
  const QImage image = item.GetImage();
  if (!image.isNull()) action->setIcon(QPixmap::fromImage(image));
  ShowCheck(*action, item);
  auto* menu = qobject_cast<QMenu*>(&widget);
  if (menu && item.IsDefault()) menu->setDefaultAction(action);
  if (item.GetCount() > 0) return AddMenuBelow(*action, widget, item, choose);
  const QPointer<QAction> entry(action);
  QObject::connect(action, &QAction::triggered, action,
                   [entry, ref = TObjectRef(&item), choose] { FromQt([&] { Chosen(entry, ref, choose); }); });
}

void TakeAllAway(QWidget& widget) {
  const QList<QAction*> actions = widget.actions();
  for (QAction* action : actions) {
    QMenu* below = action->menu();
    widget.removeAction(action);
    // One of them may be what is being handled.
    action->deleteLater();
    if (below) below->deleteLater();
  }
}

}  // namespace

void ShowMenuItems(QWidget& widget, TMenuItem& items, const std::function<void(TMenuItem&)>& choose) {
  TakeAllAway(widget);
  for (const TShownMenuItem& shown : ShownMenuItems(items)) AddEntry(widget, shown, choose);
}

void TellMenuHints(QWidget& widget) {
  const auto tell = [](const QAction* action) { GuardedCall([=] { Application().SetHint(action->statusTip()); }); };
  if (auto* menu = qobject_cast<QMenu*>(&widget)) QObject::connect(menu, &QMenu::hovered, menu, tell);
  if (auto* bar = qobject_cast<QMenuBar*>(&widget)) QObject::connect(bar, &QMenuBar::hovered, bar, tell);
}

}  // namespace kt
