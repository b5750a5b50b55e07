#include "kt/KTObjectInspector/ItemProperty.h"

#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ItemProperties.h"
#include "kt/KTObjectInspector/ItemPropertyEvents.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/StringItems.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/TextCompare.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TKTItemProperty::Class() {
  using T = TKTItemProperty;
  static const TClassInfo info = TClassBuilder<T>("TKTItemProperty")
                                     .Property<&T::GetPublishedProperties, &T::SetItems>("Items")
                                     .Property<&T::GetOnGetProperty, &T::SetOnGetProperty>("OnGetProperty")
                                     .Property<&T::GetOnSetProperty, &T::SetOnSetProperty>("OnSetProperty")
                                     .Property<&T::GetOnRefreshValue, &T::SetOnRefreshValue>("OnRefreshValue")
                                     .Creatable()
                                     .Done();
  return &info;
}

TKTItemProperty::TKTItemProperty(TCollection* collection) : TKTItemProp(collection) {}

TKTItemProperty::~TKTItemProperty() = default;

std::unique_ptr<TKTItemProps> TKTItemProperty::CreateItems() { return Make<TKTItemProperties>(this); }

// Where the item stands.

/// Asked many times for each item of a scan; the class infos tell in half the time of a dynamic cast.
TKTCustomObjectInspector* TKTItemProperty::GetEditor() const {
  TKTCustomItemListEditor* editor = TKTItemProp::GetEditor();
  const bool isInspector = editor && editor->InheritsFrom(TKTCustomObjectInspector::Class());
  return isInspector ? static_cast<TKTCustomObjectInspector*>(editor) : nullptr;
}

TKTItemProperty* TKTItemProperty::GetParent() const { return static_cast<TKTItemProperty*>(TKTItemProp::GetParent()); }

TKTItemProperties& TKTItemProperty::GetItems() { return static_cast<TKTItemProperties&>(TKTItemProp::GetItems()); }

void TKTItemProperty::SetItems(TKTItemProperties& value) { TKTItemProp::SetItems(value); }

TKTItemProperties& TKTItemProperty::GetPublishedProperties() {
  return static_cast<TKTItemProperties&>(GetPublishedItems());
}

QString TKTItemProperty::GetFullPathPropName() const {
  const TKTItemProperty* parent = GetParent();
  return parent ? parent->GetFullPathPropName() + GetPathDelimiter() + FRealPropName : FRealPropName;
}

TKTItemProperty* TKTItemProperty::GetParentItem(TKTPropertyKind kind) const {
  TKTItemProperty* parent = GetParent();
  while (parent && parent->FPropertyKind != kind) parent = parent->GetParent();
  return parent;
}

TKTItemProperty* TKTItemProperty::GetParentItem(TTypeKind kind, const QString& typeName) const {
  for (TKTItemProperty* parent = GetParent(); parent; parent = parent->GetParent()) {
    if (parent->FTypeKind != kind) continue;
    if (typeName.isEmpty() || CompareText(parent->FTypeName, typeName) == 0) return parent;
  }
  return nullptr;
}

// What the item stands for.

std::vector<Variant>& TKTItemProperty::GetRealValues() {
  if (const TKTCustomItemListEditor* editor = TKTItemProp::GetEditor()) {
    FRealValues.resize(static_cast<size_t>(std::max(editor->GetValueCount(), 0)));
  }
  return FRealValues;
}

void TKTItemProperty::SetRealValues(int index, const Variant& value) {
  std::vector<Variant>& values = GetRealValues();
  if (index < 0 || static_cast<size_t>(index) >= values.size()) throw EListError(Format(SListIndexError, {index}));
  Variant& slot = values[static_cast<size_t>(index)];
  if (!slot.IsEmpty() && VarCompareValue(value, slot) != vrNotEqual) return;
  slot = value;
  Changed(false);
}

bool TKTItemProperty::IsAllValuesEqual() {
  const std::vector<Variant>& values = GetRealValues();
  for (size_t i = 1; i < values.size(); ++i) {
    if (VarCompareValue(values[i], values[0]) == vrNotEqual) return false;
  }
  return true;
}

void TKTItemProperty::SetAllEqual(bool value) {
  if (IsAllEqual() == value) return;
  FAllEqual = value;
  Changed(false);
}

void TKTItemProperty::SetRealPropName(const QString& value) {
  if (FRealPropName == value) return;
  FRealPropName = value;
  Changed(false);
}

void TKTItemProperty::SetTypeName(const QString& value) {
  if (FTypeName == value) return;
  FTypeName = value;
  Changed(false);
}

/// What an item stands for decides whether it shows although it is read-only.
template <class F>
void TKTItemProperty::ChangeRole(F change) {
  const bool wantedRow = IsVisibleItem();
  change();
  if (IsVisibleItem() != wantedRow) VisibleChanged();
}

void TKTItemProperty::SetTypeKind(TTypeKind value) {
  if (FTypeKind == value) return;
  const TItemWatch self(this);
  ChangeRole([&] { FTypeKind = value; });
  if (self) Changed(false);
}

void TKTItemProperty::SetPropertyKind(TKTPropertyKind value) {
  ChangeRole([&] { FPropertyKind = value; });
}

void TKTItemProperty::SetIsRealProperty(bool value) {
  ChangeRole([&] { FIsRealProperty = value; });
}

bool TKTItemProperty::IsReadOnly() const { return TKTItemProp::IsReadOnly() || FTypeKind == tkSet; }

bool TKTItemProperty::IsVisibleItem() {
  if (!GetVisible()) return false;
  if (!IsReadOnly() || GetCategory()) return true;
  const bool leadsOn = (FIsRealProperty && (FTypeKind == tkSet || FTypeKind == tkClass)) || FPropertyKind != pkNormal;
  if (leadsOn) return true;
  const TKTCustomItemListEditor* editor = TKTItemProp::GetEditor();
  return !editor || editor->GetDisplayOptions().Has(doShowReadOnly);
}

void TKTItemProperty::SetName(const QString& value) { TKTItemProp::SetName(value); }

void TKTItemProperty::MoveProp(const QString& newName) {
  const TKTCustomObjectInspector* inspector = GetEditor();
  if (!inspector || (inspector->GetArrangeByCategory() && !inspector->FIsListingParts)) {
    TKTItemProp::MoveProp(newName);
  } else if (!inspector->FScan || !IsInPlaceAsLast(newName)) {
    MoveToSortedPlace(newName);
  }
}

/// A scan names its new items nearly in their order, so that most need no search.
bool TKTItemProperty::IsInPlaceAsLast(const QString& newName) const {
  TKTItemProps* items = GetCollection();
  if (!items || GetIndex() != items->GetCount() - 1) return false;
  return GetIndex() == 0 || items->CompareStrings(items->GetItem(GetIndex() - 1)->GetName(), newName) < 0;
}

// Events.

TKTItemProperty::TEvents& TKTItemProperty::Events() {
  if (!FEvents) FEvents = std::make_unique<TEvents>();
  return *FEvents;
}

TKTItemGetPropertyEvent TKTItemProperty::GetOnGetProperty() const { return FEvents ? FEvents->OnGetProperty : nullptr; }

void TKTItemProperty::SetOnGetProperty(const TKTItemGetPropertyEvent& value) {
  if (value || FEvents) Events().OnGetProperty = value;
}

TKTItemSetPropertyEvent TKTItemProperty::GetOnSetProperty() const { return FEvents ? FEvents->OnSetProperty : nullptr; }

void TKTItemProperty::SetOnSetProperty(const TKTItemSetPropertyEvent& value) {
  if (value || FEvents) Events().OnSetProperty = value;
}

TKTItemPropertyEvent TKTItemProperty::GetOnRefreshValue() const { return FEvents ? FEvents->OnRefreshValue : nullptr; }

void TKTItemProperty::SetOnRefreshValue(const TKTItemPropertyEvent& value) {
  if (value || FEvents) Events().OnRefreshValue = value;
}

// Copying.

void TKTItemProperty::Assign(TPersistent* source) {
  if (auto* other = dynamic_cast<TKTItemProperty*>(source); other && other != this) {
    FAllEqual = other->IsAllEqual();
    FRealPropName = other->FRealPropName;
    FRealValues = other->FRealValues;
    FMarks = other->FMarks;
    FTypeKind = other->FTypeKind;
    FTypeName = other->FTypeName;
    FIsRealProperty = other->FIsRealProperty;
    FPropertyKind = other->FPropertyKind;
    // Without its handlers the copy of a line, below another category say, would stand for nothing.
    if (IsStringItem(*other)) AssignEvents(other);
  }
  TKTItemProp::Assign(source);
}

void TKTItemProperty::AssignEvents(TPersistent* source) {
  if (const auto* other = dynamic_cast<TKTItemProperty*>(source)) {
    SetOnSetProperty(other->GetOnSetProperty());
    SetOnGetProperty(other->GetOnGetProperty());
    SetOnRefreshValue(other->GetOnRefreshValue());
  }
  TKTItemProp::AssignEvents(source);
}

}  // namespace kt
