// Which lines of TCustomListBox are selected.
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/vcl/stdctrls/ListBoxView.h"

#include <algorithm>

namespace kt {

bool TCustomListBox::GetSelected(int index) const {
  if (!IsLine(index)) return false;
  return FMultiSelect ? index < static_cast<int>(FSelected.size()) && FSelected[index] : index == FItemIndex;
}

void TCustomListBox::SetItemIndex(int value) {
  FItemIndex = IsLine(value) ? value : -1;
  FAnchorIndex = FItemIndex;
  SelectInView();
}

void TCustomListBox::SetSelected(int index, bool value) {
  if (!IsLine(index)) throw EListError(Format(SListIndexError, {index}));
  if (FMultiSelect) {
    FSelected.resize(GetCount());
    FSelected[index] = value;
    return SelectInView();
  }
  if (value) {
    SetItemIndex(index);
  } else if (index == FItemIndex) {
    SetItemIndex(-1);
  }
}

void TCustomListBox::SetMultiSelect(bool value) {
  if (FMultiSelect == value) return;
  FMultiSelect = value;
  FSelected.assign(value ? GetCount() : 0, false);
  if (value && FItemIndex >= 0) FSelected[FItemIndex] = true;
  SelectInView();
}

int TCustomListBox::GetSelCount() const {
  return FMultiSelect ? static_cast<int>(std::count(FSelected.begin(), FSelected.end(), true)) : -1;
}

void TCustomListBox::ClearSelection() {
  if (!FMultiSelect) return SetItemIndex(-1);
  FSelected.assign(GetCount(), false);
  SelectInView();
}

void TCustomListBox::SelectAll() {
  if (!FMultiSelect) return;
  FSelected.assign(GetCount(), true);
  SelectInView();
}

void TCustomListBox::DeleteSelected() {
  if (IsVirtual()) return;
  TStrings& lines = GetItems();
  lines.BeginUpdate();
  for (int i = GetCount() - 1; i >= 0; --i) {
    if (GetSelected(i)) lines.Delete(i);
  }
  lines.EndUpdate();
}

void TCustomListBox::CopySelection(TCustomListBox& destination) {
  for (int i = 0; i < GetCount(); ++i) {
    if (GetSelected(i)) destination.AddItem(GetLine(i), GetLineObject(i));
  }
}

void TCustomListBox::MoveSelection(TCustomListBox& destination) {
  CopySelection(destination);
  DeleteSelected();
}

// What the user selects.

void TCustomListBox::SelectOnly(int first, int last) {
  FSelected.assign(GetCount(), false);
  for (int i = std::min(first, last); i <= std::max(first, last); ++i) {
    if (IsLine(i)) FSelected[i] = true;
  }
}

void TCustomListBox::TurnLine(int index) {
  FSelected.resize(GetCount());
  FSelected[index] = !FSelected[index];
  FItemIndex = index;
  FAnchorIndex = index;
  SelectInView();
}

void TCustomListBox::PressLine(int index, TShiftState shift) {
  if (!FMultiSelect) return SetItemIndex(index);
  if (!FExtendedSelect || (shift.Has(ssCtrl) && !shift.Has(ssShift))) return TurnLine(index);
  if (!shift.Has(ssShift) || FAnchorIndex < 0) FAnchorIndex = index;
  FItemIndex = index;
  SelectOnly(FAnchorIndex, index);
  SelectInView();
}

/// The mouse is held and has come to another line.
void TCustomListBox::FollowTo(int index) {
  if (!FMultiSelect) return SetItemIndex(index);
  FItemIndex = index;
  if (FExtendedSelect) SelectOnly(FAnchorIndex, index);
  SelectInView();
}

/// A key leads to a line.
void TCustomListBox::SelectByUser(int index, TShiftState shift) {
  index = std::clamp(index, 0, GetCount() - 1);
  if (index == FItemIndex && GetSelected(index)) return;
  if (!FMultiSelect) {
    SetItemIndex(index);
    return Click();
  }
  FItemIndex = index;
  if (FExtendedSelect && !shift.Has(ssCtrl)) {
    if (!shift.Has(ssShift) || FAnchorIndex < 0) FAnchorIndex = index;
    SelectOnly(FAnchorIndex, index);
  }
  SelectInView();
  Click();
}

// The view.

void TCustomListBox::SelectInView() {
  TView* view = View();
  if (!view) return;
  const TLiveFlag selecting(this, FIsSelecting);
  if (FMultiSelect) {
    view->ShowSelection(FSelected, FItemIndex);
  } else if (FItemIndex < 0) {
    view->selectionModel()->clear();
  } else {
    view->selectionModel()->setCurrentIndex(view->Model().index(FItemIndex), QItemSelectionModel::ClearAndSelect);
  }
  ShowSelected();
}

void TCustomListBox::ShowSelected() {
  TView* view = View();
  if (view && FItemIndex >= 0) view->scrollTo(view->Model().index(FItemIndex));
}

/// The view has selected by itself: it searches for what is typed.
void TCustomListBox::SelectedInView(int index) {
  if (FIsSelecting || index == FItemIndex) return;
  FItemIndex = index;
  if (FMultiSelect) {
    FAnchorIndex = index;
    if (FExtendedSelect) SelectOnly(index, index);
    SelectInView();
  }
  Click();
}

}  // namespace kt
