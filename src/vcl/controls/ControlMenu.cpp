// The pop-up menu of TControl.
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

void TControl::WMContextMenu(TMessage& message) {
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

/// The child without a window that the mouse is over goes first.
void TWinControl::WMContextMenu(TMessage& message) {
  const bool isMouse = message.LParam != -1 && message.Result == 0 && !HasState(csDesigning);
  TControl* const child = isMouse ? ControlAtPos(ScreenToClient(PointOfMessage(message.LParam)), false) : nullptr;
  const TLifeWatch self(this);
  if (child) message.Result = child->Perform(WM_CONTEXTMENU, message.WParam, message.LParam);
  if (!self.IsAlive()) message.Result = 1;
  if (!child || message.Result == 0) TControl::WMContextMenu(message);
}

}  // namespace kt
