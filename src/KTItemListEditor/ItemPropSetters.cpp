#include "kt/KTItemListEditor/ItemListEditor.h"
#include "kt/KTItemListEditor/ItemPropRare.h"
#include "kt/KTItemListEditor/ItemProps.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/rtl/objects/Make.h"

namespace kt {

namespace {

const QString NoText;

}  // namespace

// Plain values that few items have.

const QString& TKTItemProp::GetHint() const { return FRare ? FRare->Hint : NoText; }

void TKTItemProp::SetHint(const QString& value) {
  if (GetHint() == value) return;
  Rare().Hint = value;
  Changed(false);
}

const QString& TKTItemProp::GetEditMask() const { return FRare ? FRare->EditMask : NoText; }

void TKTItemProp::SetEditMask(const QString& value) {
  if (GetEditMask() == value) return;
  Rare().EditMask = value;
  Changed(false);
}

TObject* TKTItemProp::GetItemObject() const { return FRare ? FRare->ItemObject : nullptr; }

void TKTItemProp::SetItemObject(TObject* value) {
  if (GetItemObject() == value) return;
  Rare().ItemObject = value;
  Changed(false);
}

int TKTItemProp::GetTag() const { return FRare ? FRare->Tag : 0; }

void TKTItemProp::SetTag(int value) {
  if (GetTag() != value) Rare().Tag = value;
}

void TKTItemProp::SetEditStyle(TEditStyle value) {
  if (GetEditStyle() == value) return;
  FEditStyle = value;
  Changed(false);
}

void TKTItemProp::SetExpressionMask(bool value) {
  if (FExpressionMask == value) return;
  FExpressionMask = value;
  Changed(false);
}

// The name.

void TKTItemProp::SetName(const QString& value) {
  if (FName == value) return;
  // The uniqueness check asks for the other items of that name, which is why the own one may stay.
  if (TKTItemProps* items = GetCollection(); items && items->RequiresUniqueNames()) {
    items->IsValid(value, items->IndexOf(value) != GetIndex());
  }
  const QString name = value;
  const TItemWatch self(this);
  Changing();
  if (self) MoveProp(name);
  if (!self) return;
  FName = name;
  if (TKTCustomItemListEditor* editor = GetEditor(); editor && IsVisible()) editor->Invalidate();
  if (self) Changed(false);
}

void TKTItemProp::MoveProp(const QString& newName) {
  const TItemWatch self(this);
  TKTCustomItemListEditor* editor = GetEditor();
  if (editor && !FCategory && editor->GetArrangeByCategory()) {
    TKTItemProp* category = editor->Categorize(this, newName, GetCollection()->GetCategories());
    if (!self) return;
    if (category && &category->GetItems() != GetCollection()) SetCollection(&category->GetItems());
  }
  if (self) MoveToSortedPlace(newName);
}

void TKTItemProp::MoveToSortedPlace(const QString& newName) {
  TKTItemProps* items = GetCollection();
  if (!items || !items->GetSorted()) return;
  int index = 0;
  items->Find(newName, index);
  SetIndex(std::min(index, items->GetCount() - 1));
}

// Flags.

void TKTItemProp::SetReadOnly(bool value) {
  if (IsReadOnly() == value) return;
  FReadOnly = value;
  const TItemWatch self(this);
  const TKTCustomItemListEditor* editor = GetEditor();
  if (editor && !editor->GetDisplayOptions().Has(doShowReadOnly)) VisibleChanged();
  if (self) Changed(false);
}

void TKTItemProp::SetVisible(bool value) {
  if (GetVisible() == value) return;
  FVisible = value;
  VisibleChanged();
}

void TKTItemProp::SetEnabled(bool value) {
  if (FEnabled == value) return;
  FEnabled = value;
  const TItemWatch self(this);
  // Disabled means read-only, and such items may have no row.
  const TKTCustomItemListEditor* editor = GetEditor();
  if (editor && !editor->GetDisplayOptions().Has(doShowReadOnly)) VisibleChanged();
  if (self) InvalidateRow();
  if (self) Changed(false);
}

void TKTItemProp::SetCategory(bool value) {
  if (FCategory == value) return;
  FCategory = value;
  const TItemWatch self(this);
  if (!value && FDefaultCategory) SetDefaultCategory(false);
  if (self) ParentFontChanged(nullptr);
  // Who is below may inherit from elsewhere now.
  if (self) FollowFonts();
  // Categories show although they are read-only.
  if (self && IsReadOnly()) VisibleChanged();
  if (self) Changed(false);
}

void TKTItemProp::SetDefaultCategory(bool value) {
  if (FDefaultCategory == value) return;
  FDefaultCategory = value;
  const TItemWatch self(this);
  try {
    if (value && !FCategory) SetCategory(true);
    if (!self) return;
    if (TKTItemProps* items = GetCollection()) items->DefaultCategoryChanged(this);
  } catch (...) {
    // The flag stays as it is stored, so its collection has to know.
    if (TKTItemProps* items = self ? GetCollection() : nullptr) items->TKTItemProps::DefaultCategoryChanged(this);
    throw;
  }
}

// The pick list.

TStringList& TKTItemProp::GetPickList() {
  if (!Rare().PickList) {
    Rare().PickList = Make<TStringList>();
    Rare().PickList->OnChange = {this, &TKTItemProp::PickListChange};
  }
  return *Rare().PickList;
}

void TKTItemProp::SetPickList(TStrings& value) { GetPickList().Assign(&value); }

bool TKTItemProp::HasPickList() const { return FRare && FRare->PickList && FRare->PickList->GetCount() > 0; }

void TKTItemProp::PickListChange(TObject*) {
  const bool hasLines = HasPickList();
  if (GetEditStyle() == esSimple && hasLines) {
    SetEditStyle(esPickList);
  } else if (GetEditStyle() == esPickList && !hasLines) {
    SetEditStyle(esSimple);
  }
}

// Events.

TNotifyEvent TKTItemProp::GetOnEditButtonClick() const { return FRare ? FRare->OnEditButtonClick : nullptr; }
void TKTItemProp::SetOnEditButtonClick(const TNotifyEvent& value) { Rare().OnEditButtonClick = value; }
TKTGetPickListEvent TKTItemProp::GetOnGetPickList() const { return FRare ? FRare->OnGetPickList : nullptr; }
void TKTItemProp::SetOnGetPickList(const TKTGetPickListEvent& value) { Rare().OnGetPickList = value; }
TKTOnValidateEvent TKTItemProp::GetOnValidate() const { return FRare ? FRare->OnValidate : nullptr; }
void TKTItemProp::SetOnValidate(const TKTOnValidateEvent& value) { Rare().OnValidate = value; }
TKTOnValidateEvent TKTItemProp::GetOnValidated() const { return FRare ? FRare->OnValidated : nullptr; }
void TKTItemProp::SetOnValidated(const TKTOnValidateEvent& value) { Rare().OnValidated = value; }
TKTOnValidateErrorEvent TKTItemProp::GetOnValidateError() const { return FRare ? FRare->OnValidateError : nullptr; }
void TKTItemProp::SetOnValidateError(const TKTOnValidateErrorEvent& value) { Rare().OnValidateError = value; }

void TKTItemProp::AssignEvents(TPersistent* source) {
  const auto* other = dynamic_cast<TKTItemProp*>(source);
  if (!other || (!FRare && !other->FRare)) return;
  SetOnEditButtonClick(other->GetOnEditButtonClick());
  SetOnGetPickList(other->GetOnGetPickList());
  SetOnValidate(other->GetOnValidate());
}

}  // namespace kt
