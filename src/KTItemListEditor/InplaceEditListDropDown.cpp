// The drop-down list of TKTInplaceEditList.
#include "kt/KTItemListEditor/DropDownList.h"
#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/stdctrls/EditButton.h"
#include "kt/vcl/stdctrls/ListOpening.h"

#include <algorithm>

namespace kt {

namespace {

/// What a list is higher than its lines.
constexpr int kListBorder = 4;

}  // namespace

TCustomListBox& TKTInplaceEditList::GetPickList() {
  if (!FPickList) {
    FPickList = New<TKTDropDownList>(this);
    FPickList->OnMouseUp = {this, &TKTInplaceEditList::ListMouseUp};
  }
  return *FPickList;
}

bool TKTInplaceEditList::IsPickListActive() {
  return FActiveList && FActiveList == static_cast<TWinControl*>(&GetPickList());
}

void TKTInplaceEditList::DoGetPickListItems() {
  if (FPickListLoaded) return;
  TKTCustomItemListEditor& grid = GetGrid();
  const TLifeWatch self(this);
  OnGetPickListItems(grid.GetCol(), grid.GetRow(), GetPickList().GetItems());
  if (!self.IsAlive()) return;
  TCustomListBox& list = GetPickList();
  FPickListLoaded = list.GetCount() > 0;
  list.SetItemIndex(list.GetItems().IndexOf(GetText()));
}

/// As wide as the editor, but never too narrow for the longest line together with what surrounds it: the room beside
/// the text, and the scroll bar where there is one.
void TKTInplaceEditList::SizeList(TCustomListBox& list) {
  const int count = list.GetCount();
  const int most = FDropDownRows > 0 ? std::min(count, FDropDownRows) : count;
  // An empty list still shows one blank row.
  list.SetHeight(std::max(most, 1) * list.GetItemHeight() + kListBorder);
  list.SetItemIndex(GetText().isEmpty() ? -1 : list.GetItems().IndexOf(GetText()));
  const int barWidth = most < count ? TEditButton::UsualWidth() : 0;
  list.SetClientWidth(std::max(list.GetClientWidth(), list.LongestLineWidth() + barWidth));
}

void TKTInplaceEditList::DropDown() {
  if (FListVisible || !FActiveList || !HandleAllocated()) return;
  FActiveList->SetWidth(GetWidth());
  if (IsPickListActive()) {
    const TLifeWatch self(this);
    DoGetPickListItems();
    // A handler may have led the grid elsewhere.
    if (!self.IsAlive() || FListVisible || !IsPickListActive() || !IsVisible()) return;
    TCustomListBox& list = GetPickList();
    list.HandleNeeded();
    list.SetColor(GetColor());
    list.SetFont(GetFont());
    // Values may be bold or italic; what can be picked is not.
    list.GetFont().SetStyle({});
    SizeList(list);
    OpenListBeside(list, *this);
  }
  FListVisible = true;
  Invalidate();
  SetFocus();
}

void TKTInplaceEditList::HideList(bool accept) {
  TCustomListBox& list = GetPickList();
  for (TWinControl* control : {static_cast<TWinControl*>(this), static_cast<TWinControl*>(&list)}) {
    if (control->HasMouseCapture()) control->Perform(WM_CANCELMODE);
  }
  const bool hasPicked = list.GetItemIndex() >= 0;
  const QString picked = hasPicked ? list.GetItems().GetStrings(list.GetItemIndex()) : QString();
  CloseList(list);
  FListVisible = false;
  Invalidate();
  if (accept && hasPicked && picked != GetText()) PickText(picked);
}

void TKTInplaceEditList::CloseUp(bool accept) {
  TKTCustomItemListEditor& grid = GetGrid();
  if (HasReadOnlyItem()) accept = false;
  const TLifeWatch self(this);
  if (FListVisible && IsPickListActive()) HideList(accept);
  // An editor that lives has a grid.
  if (!accept || !self.IsAlive()) return;
  if (!ValidateExpression()) RaiseExpressionError();
  grid.Validate();
}

void TKTInplaceEditList::ListMouseUp(TObject*, TMouseButton button, TShiftState, int x, int y) {
  if (button == mbLeft && FActiveList) CloseUp(FActiveList->GetClientRect().contains(x, y));
}

// What closes it.

void TKTInplaceEditList::CMCancelMode(TMessage& message) {
  const auto* sender = MessagePointer<TControl>(message.LParam);
  if (sender != this && sender != FActiveList) CloseUp(false);
}

void TKTInplaceEditList::WMCancelMode(TMessage& message) {
  StopTracking();
  TInplaceEdit::WMCancelMode(message);
}

void TKTInplaceEditList::WMKillFocus(TMessage& message) {
  const TLifeWatch self(this);
  TInplaceEdit::WMKillFocus(message);
  if (self.IsAlive()) CloseUp(false);
}

void TKTInplaceEditList::CMVisibleChanged(TMessage& message) {
  TInplaceEdit::CMVisibleChanged(message);
  if (!IsVisible() && FListVisible) CloseUp(false);
}

bool TKTInplaceEditList::DoMouseWheel(TShiftState shift, int delta, bool isHorizontal, QPoint position) {
  // The grid scrolls; what is open above it would stay behind.
  const TLifeWatch self(this);
  if (FListVisible) CloseUp(false);
  return self.IsAlive() && TInplaceEdit::DoMouseWheel(shift, delta, isHorizontal, position);
}

}  // namespace kt
