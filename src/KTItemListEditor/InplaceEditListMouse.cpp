// What the mouse does in TKTInplaceEditList.
#include "kt/KTItemListEditor/DropDownList.h"
#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/objects/LifeWatch.h"

namespace kt {

void TKTInplaceEditList::DefaultHandler(TMessage& message) {
  // The button is no text: no caret goes there, and nothing is selected from there.
  const bool isMouse = message.Msg >= WM_MOUSEMOVE && message.Msg <= WM_LBUTTONDBLCLK;
  const bool isPress = message.Msg == WM_LBUTTONDOWN || message.Msg == WM_LBUTTONDBLCLK;
  if (isMouse && FTracking) return;
  if (isPress && FEditStyle != esSimple && OverButton(PointOfMessage(message.LParam))) return;
  TInplaceEdit::DefaultHandler(message);
}

void TKTInplaceEditList::PressButton(QPoint point) {
  if (FListVisible) return CloseUp(false);
  SetMouseCapture(true);
  FTracking = true;
  TrackButton(point);
  if (FActiveList) DropDown();
}

void TKTInplaceEditList::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TLifeWatch self(this);
  if (button == mbLeft && FEditStyle != esSimple && OverButton({x, y})) PressButton({x, y});
  if (self.IsAlive()) TInplaceEdit::MouseDown(button, shift, x, y);
}

/// Hands a press that began on the button over to the list; true when the pointer is there.
bool TKTInplaceEditList::DragIntoList(QPoint point) {
  if (!FListVisible || !FActiveList) return false;
  const QPoint inList = FActiveList->ScreenToClient(ClientToScreen(point));
  if (!FActiveList->GetClientRect().contains(inList)) return false;
  StopTracking();
  FActiveList->Perform(WM_LBUTTONDOWN, TShiftState{ssLeft}.Bits(), MessagePoint(inList.x(), inList.y()));
  return true;
}

void TKTInplaceEditList::MouseMove(TShiftState shift, int x, int y) {
  UpdateCursorAt({x, y});
  if (FTracking) {
    TrackButton({x, y});
    if (DragIntoList({x, y})) return;
  }
  TInplaceEdit::MouseMove(shift, x, y);
}

void TKTInplaceEditList::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const bool wasPressed = FPressed;
  const TLifeWatch self(this);
  StopTracking();
  if (button == mbLeft && FEditStyle == esEllipsis && wasPressed) DoEditButtonClick();
  if (self.IsAlive()) TInplaceEdit::MouseUp(button, shift, x, y);
}

/// To the value that comes next in the list, from the last one to the first.
void TKTInplaceEditList::StepPickList() {
  const TLifeWatch self(this);
  DoGetPickListItems();
  if (!self.IsAlive() || FEditStyle != esPickList) return;
  TCustomListBox& list = GetPickList();
  if (list.GetCount() == 0) return;
  const int next = list.GetItemIndex() + 1;
  list.SetItemIndex(next < list.GetCount() ? next : 0);
  PickText(list.GetItems().GetStrings(list.GetItemIndex()));
  if (self.IsAlive()) SelectAll();
}

void TKTInplaceEditList::DblClick() {
  TKTCustomItemListEditor& grid = GetGrid();
  if (FEditStyle == esPickList && IsPickListActive() && HasReadOnlyItem()) return;
  const TLifeWatch self(this);
  const bool isPickList = FEditStyle == esPickList;
  if (FEditStyle == esSimple || grid.OnDblClick) {
    TInplaceEdit::DblClick();
  } else if (FEditStyle == esEllipsis) {
    DoEditButtonClick();
  } else if (!OverButton(FMouse)) {
    StepPickList();
  }
  if (isPickList && self.IsAlive()) grid.Validate();
}

}  // namespace kt
