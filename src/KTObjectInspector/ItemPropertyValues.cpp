// How items get the texts of their values, and give them back.
#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTItemListEditor/Messages.h"
#include "kt/KTObjectInspector/ItemProperties.h"
#include "kt/KTObjectInspector/ItemProperty.h"
#include "kt/KTObjectInspector/Messages.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/PropViews.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/grids/InplaceEdit.h"

#include <algorithm>

namespace kt {

namespace {

constexpr int kSetBits = 32;

qint64 BitsOf(const std::vector<Variant>& values, int index) {
  return static_cast<size_t>(index) < values.size() ? values[static_cast<size_t>(index)].ToInt64() : 0;
}

/// How many objects the items have texts of. Columns for all of them come with the scan that follows the option.
int TextCountIn(const TKTCustomObjectInspector& inspector) {
  if (!inspector.GetDisplayOptions().Has(doMultiColValues)) return 1;
  return std::min(inspector.GetObjects().GetCount(), inspector.GetValueCount());
}

}  // namespace

// Reading.

bool TKTItemProperty::HasRefreshableValue() const {
  if (FIsRealProperty || GetOnGetProperty()) return true;
  return FPropertyKind == pkSetMember || FPropertyKind == pkCollection || FPropertyKind == pkCollectionItem;
}

bool TKTItemProperty::RefreshValue() {
  const TItemWatch self(this);
  TKTCustomObjectInspector* inspector = GetEditor();
  const bool hasValue = inspector && inspector->GetObjects().GetCount() > 0 && HasRefreshableValue();
  const bool isFresh = !hasValue || RefreshValues(*inspector);
  if (!self) return false;
  TellRefreshed();
  return isFresh && self;
}

bool TKTItemProperty::RefreshValues(TKTCustomObjectInspector& inspector) {
  const TItemWatch self(this);
  const TLifeWatch watchOfInspector(&inspector);
  const int count = TextCountIn(inspector);
  for (int i = 0; i < count; ++i) {
    if (!RefreshValueOf(inspector, i)) return false;
    // The handler of the value may have freed the item, or removed objects.
    if (!self || !watchOfInspector.IsAlive() || i + 1 > inspector.GetObjects().GetCount()) return false;
  }
  return true;
}

bool TKTItemProperty::RefreshValueOf(TKTCustomObjectInspector& inspector, int index) {
  const TItemWatch self(this);
  QString name = GetFullPathPropName();
  const TObjectRef instance(inspector.GetInstance(inspector.GetObjects().GetItem(index)->GetObjects(), name, this));
  // A getter on the way may have freed the item.
  if (!self) return false;
  if (const TKTItemGetPropertyEvent handler = GetOnGetProperty()) {
    QString text = name;
    // By a name of its own: the handler may free the item.
    handler(this, instance.Get(), QString(FRealPropName), text);
    if (self) SetValueLine(index, text);
    return bool(self);
  }
  if (FPropertyKind == pkSetMember) {
    SetValueLine(index, MemberText(index));
    return true;
  }
  if (!instance) return false;
  TCollectionItem* element = FPropertyKind == pkCollectionItem ? ElementIn(instance.Get(), index) : nullptr;
  if (FPropertyKind == pkCollectionItem && !element) return false;
  const TPropInfo* property = element ? nullptr : FindPropInfo(instance.Get(), FRealPropName);
  const QString text = element ? element->GetDisplayName() : inspector.GetPropertyValue(instance.Get(), this, property);
  if (!self) return false;
  SetValueLine(index, text);
  if (!self || !FIsRealProperty || !property || !instance) return bool(self);
  Variant value = RawPropValue(instance.Get(), *property);
  if (!self) return false;
  std::vector<Variant>& values = GetRealValues();
  if (static_cast<size_t>(index) < values.size()) values[static_cast<size_t>(index)] = std::move(value);
  MarkChanged(index, instance.Get(), *property);
  return bool(self);
}

QString TKTItemProperty::MemberText(int index) {
  TKTItemProperty* set = GetParentItem(pkSet);
  const qint64 ordinal = BitsOf(GetRealValues(), index);
  const qint64 bits = set ? BitsOf(set->GetRealValues(), index) : 0;
  const bool has = ordinal >= 0 && ordinal < kSetBits && (bits >> ordinal & 1) != 0;
  return has ? QStringLiteral("True") : QStringLiteral("False");
}

/// The number of the element that the item stands for; -1 when it is not known.
int TKTItemProperty::ElementNumber(int index) {
  const std::vector<Variant>& values = GetRealValues();
  const bool isKnown = static_cast<size_t>(index) < values.size() && !values[static_cast<size_t>(index)].IsEmpty();
  return isKnown ? values[static_cast<size_t>(index)].ToInt() : -1;
}

/// The element that the item stands for, in the collection that `instance` is; null when there is none any more.
TCollectionItem* TKTItemProperty::ElementIn(TObject* instance, int index) {
  auto* collection = dynamic_cast<TCollection*>(instance);
  if (!collection) return nullptr;
  const int element = ElementNumber(index);
  return element >= 0 && element < collection->GetCount() ? collection->GetItem(element) : nullptr;
}

void TKTItemProperty::TellRefreshed() {
  TKTCustomObjectInspector* inspector = GetEditor();
  if (const TKTItemPropertyEvent handler = GetOnRefreshValue()) {
    handler(inspector, this);
  } else if (inspector) {
    inspector->OnRefreshValue(inspector, this);
  }
}

// Writing.

void TKTItemProperty::UpdateProperty() {
  TKTCustomObjectInspector* inspector = GetEditor();
  if (!inspector) return;
  if (FIsRealProperty || GetOnSetProperty()) return inspector->SetProperty(this);
  if (TKTItemProperty* parent = GetParent()) parent->UpdateChildProperty(this);
}

void TKTItemProperty::UpdateChildProperty(TKTItemProperty*) {
  TKTCustomObjectInspector* inspector = GetEditor();
  if (!inspector || !FIsRealProperty || FTypeKind != tkSet) return;
  const TItemWatch self(this);
  const int count = TextCountIn(*inspector);
  for (int i = 0; self && i < count; ++i) {
    QStringList names;
    for (int j = 0; HasItems() && j < GetItems().GetCount(); ++j) {
      TKTItemProperty* child = GetItems().GetItem(j);
      const QString text = child->GetValueLine(i);
      const int value = GetEnumValue(TypeInfoOf<bool>(), text);
      if (value < 0) throw EPropertyConvertError(Format(SInvalidPropertyElement, {text}));
      // Deliberately not "is True": see the header.
      if (value > -1) names.append(child->FRealPropName);
    }
    SetValueLine(i, names.join(u','));
  }
  if (self) UpdateProperty();
}

void TKTItemProperty::DoValidated() {
  const TItemWatch self(this);
  UpdateProperty();
  if (self) TKTItemProp::DoValidated();
}

void TKTItemProperty::DoValidateError(const Exception& error) {
  TKTCustomObjectInspector* inspector = GetEditor();
  TInplaceEdit* edit = inspector ? inspector->InplaceEditor() : nullptr;
  if (!edit) return TellValidateError(error);
  const QString typed = edit->GetText();
  const QString message = FIsRealProperty ? Format(SInvalidRealPropValue, {typed, FTypeName, error.Message()})
                                          : Format(SInvalidPropValue, {typed, error.Message()});
  // Thrown and caught, so that whoever raises it again raises this one.
  try {
    throw ETORVException(message);
  } catch (const ETORVException& described) {
    const TItemWatch self(this);
    edit->Undo();
    if (self) TellValidateError(described);
  }
}

// What differs from its default.

bool TKTItemProperty::IsModified() {
  const TKTCustomObjectInspector* inspector = GetEditor();
  if (!inspector || !inspector->IsMultiColumn()) return IsModified(0);
  const TItemWatch self(this);
  const TLifeWatch watchOfInspector(inspector);
  for (int i = 0; self && watchOfInspector.IsAlive() && i < inspector->GetObjects().GetCount(); ++i) {
    if (IsModified(i)) return true;
  }
  return false;
}

bool TKTItemProperty::IsModified(int index) {
  if (!FIsRealProperty || !GetEditor()) return false;
  if (static_cast<size_t>(index) < FMarks.size() && FMarks[static_cast<size_t>(index)]) {
    return *FMarks[static_cast<size_t>(index)];
  }
  QString name;
  TObject* holder = HolderOf(index, name);
  return holder && IsModifiedIn(holder, index);
}

bool TKTItemProperty::IsModifiedIn(TObject* instance, int index) {
  const TPropInfo* property = GetPropInfo(instance, FRealPropName);
  const TItemWatch self(this);
  if (!property || !property->IsStored(*instance) || !self) return false;
  switch (property->Kind()) {
    case tkString:
    case tkLString:
    case tkWString:
      return true;
    case tkInteger:
    case tkChar:
    case tkEnumeration:
    case tkSet:
    case tkWChar:
      break;
    default:
      return false;
  }
  const std::vector<Variant>& values = GetRealValues();
  if (static_cast<size_t>(index) >= values.size() || values[static_cast<size_t>(index)].IsEmpty()) return false;
  const Variant& value = values[static_cast<size_t>(index)];
  const bool isBoolean = VarIsType(value, varBoolean);
  return property->Default() != (isBoolean ? GetEnumValue(property->PropType(), value.ToString()) : value.ToInt64());
}

/// For whoever has just read the value. The getter may free the item.
void TKTItemProperty::MarkChanged(int index, TObject* instance, const TPropInfo& property) {
  IPropView* view = PropViewOf(instance);
  if (!view && FMarks.empty()) return;
  const TItemWatch self(this);
  std::optional<bool> mark;
  if (view) {
    try {
      mark = view->IsPropChanged(property);
    } catch (...) {
      // The row shows what is wrong with the value.
      mark = false;
    }
  }
  if (!self) return;
  const auto place = static_cast<size_t>(index);
  if (FMarks.size() <= place) FMarks.resize(place + 1);
  FMarks[place] = mark;
}

TFont& TKTItemProperty::GetIndividualValueFont(int index) {
  TKTCustomObjectInspector* inspector = GetEditor();
  const bool marks = inspector && !inspector->HasState(csDesigning) && inspector->GetShowValueChangedFont() &&
                     inspector->GetObjects().GetCount() > 0 && FIsRealProperty;
  const TItemWatch self(this);
  const TLifeWatch watchOfInspector(inspector);
  const bool isChanged = marks && (inspector->IsMultiColumn() ? IsModified(index) : IsModified());
  if (!self) {
    // Getters on the way to the value have freed the item; what is left is what a value without item looks like.
    if (!watchOfInspector.IsAlive()) throw EInvalidOperation(SObjectFreed.toString());
    return inspector->GetValueFont();
  }
  return isChanged ? inspector->GetValueChangedFont() : TKTItemProp::GetIndividualValueFont(index);
}

}  // namespace kt
