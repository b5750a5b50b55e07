#include "kt/vcl/menus/PopupMenu.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "kt/vcl/menus/MenuContents.h"

#include <QMenu>

namespace kt {

const TClassInfo* TPopupMenu::Class() {
  using T = TPopupMenu;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TPopupMenu");
    builder.Property<&T::GetAlignment, &T::SetAlignment>("Alignment").Default(paLeft);
    builder.Property<&T::GetAutoHotkeys, &T::SetAutoHotkeys>("AutoHotkeys", &MenuAutoFlagTypeInfo).Default(maAutomatic);
    builder.Property<&T::GetAutoLineReduction, &T::SetAutoLineReduction>("AutoLineReduction", &MenuAutoFlagTypeInfo)
        .Default(maAutomatic);
    builder.Property<&T::IsAutoPopup, &T::SetAutoPopup>("AutoPopup").Default(true);
    builder.Property<&T::GetBiDiMode, &T::SetBiDiMode>("BiDiMode").Stored(&T::IsBiDiModeStored);
    builder.Property<&T::GetHelpContext, &T::SetHelpContext>("HelpContext").Default(0);
    builder.Property<&T::GetImages, &T::SetImages>("Images");
    builder.Property<&T::GetMenuAnimation, &T::SetMenuAnimation>("MenuAnimation").Default(TMenuAnimation{});
    builder.Property<&T::IsOwnerDraw, &T::SetOwnerDraw>("OwnerDraw").Default(false);
    builder.Property<&T::IsParentBiDiMode, &T::SetParentBiDiMode>("ParentBiDiMode").Default(true);
    builder.Property<&T::GetTrackButton, &T::SetTrackButton>("TrackButton").Default(tbRightButton);
    builder.Property<&T::OnChange>("OnChange");
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

bool TPopupMenu::IsRightToLeft() const {
  const auto* control = IsParentBiDiMode() ? dynamic_cast<TControl*>(FPopupComponent) : nullptr;
  return control ? control->UseRightToLeftReading() : GetBiDiMode() != bdLeftToRight;
}

TMenuItem* TPopupMenu::Choose() {
  CloseMenu();
  auto* control = dynamic_cast<TWinControl*>(FPopupComponent);
  const TLifeWatch self(this);
  // Goes with the window that it is opened for.
  const QPointer<QMenu> menu =
      new QMenu(control && control->HandleAllocated() ? control->GetHandle()->window() : nullptr);
  FMenu = menu;
  if (IsRightToLeft()) menu->setLayoutDirection(Qt::RightToLeft);
  TObjectRef chosen;
  ShowMenuItems(*menu, GetItems(), [&chosen](TMenuItem& item) { chosen = &item; });
  TellMenuHints(*menu);
  menu->exec(PlaceOf(*menu));
  delete menu;
  // While the menu was open anything may have been freed.
  auto* item = static_cast<TMenuItem*>(chosen.Get());
  return item && self.IsAlive() && GetItems().Contains(item) ? item : nullptr;
}

}  // namespace kt
