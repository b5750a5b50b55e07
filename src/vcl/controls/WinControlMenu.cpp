// The pop-up menu of TWinControl.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/menus/PopupMenu.h"

namespace kt {

bool TWinControl::IsMenuKey(quint16 key, TShiftState shift) {
  if (HasState(csDesigning)) return false;
  const TLifeWatch self(this);
  for (TWinControl* control = this; control; control = control->GetParent()) {
    if (control->GetPopupMenu() && control->GetPopupMenu()->IsShortCut(key, shift)) return true;
    // Who was freed by an action that was not done in the end has no use for the key either.
    if (control->IsActionKey(key, shift) || !self.IsAlive()) return true;
  }
  return false;
}

void TWinControl::WMContextMenu(TMessage& message) {
  if (message.Result != 0 || HasState(csDesigning)) return DefaultHandler(message);
  const bool isKey = message.LParam == -1;
  const QPoint client = isKey ? QPoint(-1, -1) : ScreenToClient(PointOfMessage(message.LParam));
  if (!isKey && !GetClientRect().contains(client)) return DefaultHandler(message);
  const TLifeWatch self(this);
  bool isHandled = false;
  DoContextPopup(client, isHandled);
  message.Result = isHandled || !self.IsAlive();
  if (message.Result != 0) return;
  TPopupMenu* const menu = GetPopupMenu();
  if (!menu || !menu->IsAutoPopup()) return DefaultHandler(message);
  Perform(CM_CANCELMODE);
  menu->SetPopupComponent(this);
  const QPoint place = isKey ? ClientToScreen({0, 0}) : PointOfMessage(message.LParam);
  message.Result = 1;
  menu->Popup(place.x(), place.y());
}

}  // namespace kt
