#include "kt/vcl/menus/PopupMenu.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/Hints.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/forms/Application.h"

#include <QActionGroup>
#include <QHash>
#include <QMenu>

namespace kt {

namespace {

using TChoices = QHash<const QAction*, TMenuItem*>;

QString TextOf(const TMenuItem& item) {
  const QString key = ShortCutToText(item.GetShortCut());
  return key.isEmpty() ? item.GetCaption() : item.GetCaption() + u'\t' + key;
}

void ShowCheck(QAction& action, const TMenuItem& item) {
  if (!item.IsChecked()) return;
  action.setCheckable(true);
  action.setChecked(true);
  // What makes the mark a round one.
  if (item.IsRadioItem()) (new QActionGroup(&action))->addAction(&action);
}

void Fill(QMenu& menu, const TMenuItem& items, TChoices& choices) {
  for (int i = 0; i < items.GetCount(); ++i) {
    TMenuItem* const item = items.GetItems(i);
    if (!item->IsVisible()) continue;
    if (item->IsLine()) {
      menu.addSeparator();
      continue;
    }
    QAction* const action =
        item->GetCount() > 0 ? menu.addMenu(item->GetCaption())->menuAction() : menu.addAction(TextOf(*item));
    action->setEnabled(item->IsEnabled());
    action->setStatusTip(GetLongHint(item->GetHint()));
    ShowCheck(*action, *item);
    if (item->IsDefault()) menu.setDefaultAction(action);
    if (item->GetCount() > 0) Fill(*action->menu(), *item, choices);
    choices.insert(action, item);
  }
}

}  // namespace

const TClassInfo* TPopupMenu::Class() {
  using T = TPopupMenu;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TPopupMenu");
    builder.Property<&T::GetAlignment, &T::SetAlignment>("Alignment").Default(paLeft);
    builder.Property<&T::IsAutoPopup, &T::SetAutoPopup>("AutoPopup").Default(true);
    builder.Property<&T::GetHelpContext, &T::SetHelpContext>("HelpContext").Default(0);
    builder.Property<&T::OnPopup>("OnPopup");
    return builder.Creatable().Done();
  }();
  return &info;
}

void TPopupMenu::Destruct() {
  CloseMenu();
  TMenu::Destruct();
}

void TPopupMenu::SetPopupComponent(TComponent* value) {
  FPopupComponent = value;
  if (value) value->FreeNotification(this);
}

void TPopupMenu::Notification(TComponent* component, TOperation operation) {
  TMenu::Notification(component, operation);
  if (operation == opRemove && component == FPopupComponent) FPopupComponent = nullptr;
}

void TPopupMenu::CloseMenu() {
  if (FMenu) FMenu->close();
}

QPoint TPopupMenu::PlaceOf(const QMenu& menu) const {
  const int width = menu.sizeHint().width();
  if (FAlignment == paRight) return FPopupPoint - QPoint(width, 0);
  if (FAlignment == paCenter) return FPopupPoint - QPoint(width / 2, 0);
  return FPopupPoint;
}

void TPopupMenu::Popup(int x, int y) {
  const TLifeWatch self(this);
  FPopupPoint = {x, y};
  OnPopup(this);
  if (!self.IsAlive()) return;
  GetItems().InitiateActions();
  if (!self.IsAlive()) return;
  if (TMenuItem* const item = Choose()) item->Click();
}

TMenuItem* TPopupMenu::Choose() {
  CloseMenu();
  const auto* control = dynamic_cast<TWinControl*>(FPopupComponent);
  const TLifeWatch self(this);
  // Goes with the window that it is opened for.
  const QPointer<QMenu> menu = new QMenu(
      control && control->HandleAllocated() ? const_cast<TWinControl*>(control)->GetHandle()->window() : nullptr);
  FMenu = menu;
  TChoices choices;
  Fill(*menu, GetItems(), choices);
  if (control && control->UseRightToLeftReading()) menu->setLayoutDirection(Qt::RightToLeft);
  QObject::connect(menu, &QMenu::hovered, menu,
                   [](const QAction* action) { GuardedCall([=] { Application().SetHint(action->statusTip()); }); });
  TMenuItem* const chosen = choices.value(menu->exec(PlaceOf(*menu)));
  delete menu;
  // While the menu was open anything may have been freed.
  return chosen && self.IsAlive() && GetItems().Contains(chosen) ? chosen : nullptr;
}

}  // namespace kt
