#include "kt/vcl/stdctrls/ComboBox.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/stdctrls/ComboBoxView.h"

#include <algorithm>
#include <utility>

namespace kt {

TCustomComboBox::TCustomComboBox(TComponent* owner) : TWinControl(owner) {}

TCustomComboBox::~TCustomComboBox() = default;

void TCustomComboBox::Construct() {
  TWinControl::Construct();
  FLines = Make<TLines>(*this);
  FLines->SetDuplicates(dupAccept);
  // What is picked is a click, not what is pressed.
  SetControlStyle({csSetCaption, csDoubleClicks, csFixedHeight});
  SetParentColor(false);
  SetTabStop(true);
  SetBounds(0, 0, 145, 21);
}

void TCustomComboBox::Loaded() {
  TWinControl::Loaded();
  const int index = std::exchange(FLoadedIndex, -1);
  if (index >= 0) return SetItemIndex(index);
  if (!IsEditable()) SetText(QString(GetText()));
}

// Lines that come and go.

TStrings& TCustomComboBox::GetItems() const { return *FLines; }

void TCustomComboBox::SetItems(TStrings& value) { FLines->Assign(&value); }

void TCustomComboBox::LineInserted(int index) {
  if (FItemIndex >= index) ++FItemIndex;
}

void TCustomComboBox::LineDeleted(int index) {
  if (FItemIndex == index) {
    FItemIndex = -1;
  } else if (FItemIndex > index) {
    --FItemIndex;
  }
}

void TCustomComboBox::LinesChanged() {
  FItemIndex = std::min(FItemIndex, GetItemCount() - 1);
  // A form may name the line before the lines.
  if (!IsEditable() && !HasState(csLoading)) TakeTextOfLine();
  ShowLines();
}

void TCustomComboBox::SetSorted(bool value) {
  if (FSorted == value) return;
  FSorted = value;
  const bool hasPicked = FItemIndex >= 0;
  const QString picked = hasPicked ? FLines->GetStrings(FItemIndex) : QString();
  FLines->SetSorted(value);
  if (hasPicked && value) SetItemIndex(FLines->IndexOf(picked));
}

void TCustomComboBox::Clear() {
  FLines->Clear();
  SetText({});
}

// Text and line.

int TCustomComboBox::LineOf(const QString& text) const {
  for (int i = 0; i < GetItemCount(); ++i) {
    if (FLines->GetStrings(i).compare(text, Qt::CaseInsensitive) == 0) return i;
  }
  return -1;
}

void TCustomComboBox::TakeTextOfLine() { StoreText(FItemIndex < 0 ? QString() : FLines->GetStrings(FItemIndex)); }

void TCustomComboBox::SetItemIndex(int value) {
  if (HasState(csLoading)) {
    FLoadedIndex = value;
    return;
  }
  FItemIndex = value >= 0 && value < GetItemCount() ? value : -1;
  const QString before = GetText();
  TakeTextOfLine();
  ShowPicked();
  if (GetText() != before) Perform(CM_TEXTCHANGED);
}

void TCustomComboBox::SetText(const QString& value) {
  const QString text = InCharCase(value, FCharCase);
  if (!IsEditable() && !HasState(csLoading)) return SetItemIndex(LineOf(text));
  if (GetText() == text) return;
  if (FItemIndex >= 0 && FLines->GetStrings(FItemIndex) != text) FItemIndex = -1;
  StoreText(text);
  ShowPicked();
  Perform(CM_TEXTCHANGED);
}

void TCustomComboBox::SetStyle(TComboBoxStyle value) {
  if (FStyle == value) return;
  FStyle = value;
  ShowStyle();
  if (!IsEditable() && !HasState(csLoading)) SetItemIndex(FItemIndex >= 0 ? FItemIndex : LineOf(GetText()));
}

void TCustomComboBox::SetCharCase(TEditCharCase value) {
  if (FCharCase == value) return;
  FCharCase = value;
  if (IsEditable()) SetText(QString(GetText()));
}

void TCustomComboBox::SetItemHeight(int value) {
  if (value > 0) FItemHeight = value;
}

// What the user does.

void TCustomComboBox::DoSelect() {
  if (OnSelect) return OnSelect(this);
  Change();
}

void TCustomComboBox::DropDownByUser() {
  // The release of the button goes to the list.
  FControlState.Exclude(csLButtonDown);
  DropDown();
}

void TCustomComboBox::PickedByUser(int index) {
  if (FIsShowing || HasState(csDesigning) || index < 0 || index >= GetItemCount()) return;
  const QString text = FLines->GetStrings(index);
  if (index == FItemIndex && GetText() == text) return;
  FItemIndex = index;
  StoreText(text);
  const TLifeWatch self(this);
  Click();
  if (self.IsAlive()) DoSelect();
}

}  // namespace kt
