#include "kt/KTObjectInspector/ResetCommand.h"

#include "kt/KTObjectInspector/Messages.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/vcl/menus/MenuItem.h"
#include "kt/vcl/menus/PopupMenu.h"

namespace kt {

namespace {

/// Null once the inspector is gone, or while it has no selected row.
TKTItemProperty* SelectedIn(const TObjectRef& inspector) {
  auto* present = static_cast<TKTCustomObjectInspector*>(inspector.Get());
  return present ? present->GetSelected() : nullptr;
}

void ResetSelected(const TObjectRef& inspector) {
  TKTItemProperty* item = SelectedIn(inspector);
  if (!item) return;
  static_cast<TKTCustomObjectInspector&>(*inspector.Get()).ResetProperty(*item);
}

bool CanResetSelected(const TObjectRef& inspector) {
  TKTItemProperty* item = SelectedIn(inspector);
  return item && static_cast<TKTCustomObjectInspector&>(*inspector.Get()).CanResetProperty(*item);
}

}  // namespace

TMenuItem* AddResetCommand(TKTCustomObjectInspector& inspector, TPopupMenu& menu) {
  auto* command = New<TMenuItem>(&menu);
  command->SetCaption(SResetCommand.toString());
  const TObjectRef watched(&inspector);
  command->OnClick = [watched](TObject*) { ResetSelected(watched); };
  const TObjectRef own(command);
  menu.OnPopup = [watched, own, others = menu.OnPopup](TObject* sender) {
    // The call runs on a copy of the handler: what it frees leaves these where they are.
    others(sender);
    if (!own) return;
    const bool can = CanResetSelected(watched);
    if (own) static_cast<TMenuItem&>(*own.Get()).SetEnabled(can);
  };
  menu.GetItems().Add(command);
  return command;
}

}  // namespace kt
