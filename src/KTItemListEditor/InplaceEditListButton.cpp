// The button of TKTInplaceEditList.
#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/vcl/stdctrls/EditButton.h"

namespace kt {

QRect TKTInplaceEditList::GetButtonRect() const {
  const int left = GetGrid().UseRightToLeftAlignment() ? 0 : GetWidth() - FButtonWidth;
  return {left, 0, FButtonWidth, GetHeight()};
}

void TKTInplaceEditList::PaintOver(TCanvas& canvas) {
  TEditButton button;
  button.Kind = FEditStyle == esEllipsis ? TEditButton::Ellipsis : TEditButton::DropDown;
  button.IsPressed = FPressed;
  button.IsEnabled = FEditStyle == esEllipsis || FActiveList;
  button.Draw(canvas, GetButtonRect());
}

void TKTInplaceEditList::TrackButton(QPoint point) {
  const bool isPressed = OverButton(point);
  if (FPressed == isPressed) return;
  FPressed = isPressed;
  InvalidateRect(GetButtonRect());
}

void TKTInplaceEditList::StopTracking() {
  if (!FTracking) return;
  TrackButton({-1, -1});
  FTracking = false;
  SetMouseCapture(false);
}

void TKTInplaceEditList::DoEditButtonClick() { OnEditButtonClick(&GetGrid()); }

void TKTInplaceEditList::UpdateCursorAt(QPoint point) {
  if (FEditStyle != esSimple && OverButton(point)) {
    ShowCursor(crArrow);
  } else {
    Perform(CM_CURSORCHANGED);
  }
}

}  // namespace kt
