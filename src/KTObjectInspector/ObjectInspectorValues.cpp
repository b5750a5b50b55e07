// How an inspector reads the properties of its objects, and writes what was edited.
#include "kt/KTItemListEditor/EditUpdateLock.h"
#include "kt/KTItemListEditor/ItemPropValueStrings.h"
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/PropViews.h"
#include "kt/KTObjectInspector/PropertyWatch.h"
#include "kt/KTObjectInspector/StringItems.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/grids/InplaceEdit.h"

#include <QVarLengthArray>

#include <algorithm>

namespace kt {

namespace {

QString ObjectText(TObject* object, const QString& typeName) {
  if (!object) return {};
  if (const auto* component = dynamic_cast<TComponent*>(object)) return component->GetName();
  return u'(' + typeName + u')';
}

QString TextOf(TObject* instance, const TPropInfo* property) {
  switch (property->Kind()) {
    case tkInteger:
    case tkChar:
    case tkWChar:
      return QString::number(GetOrdProp(instance, property));
    case tkEnumeration:
      return GetEnumProp(instance, property);
    case tkFloat:
      return Variant(GetFloatProp(instance, property)).ToString();
    case tkString:
    case tkLString:
      return GetStrProp(instance, property);
    case tkWString:
      return GetWideStrProp(instance, property);
    case tkSet:
      return GetSetProp(instance, property, true);
    case tkClass:
      return ObjectText(GetObjectProp(instance, property), property->PropType()->Name());
    case tkMethod:
    case tkInterface:
      return property->PropType()->Name();
    case tkVariant:
      return VarToStr(GetVariantProp(instance, property));
    case tkInt64:
      return VarToStr(GetPropValue(instance, property, false));
    default:
      throw EPropertyConvertError(Format(SInvalidPropertyType, {property->PropType()->Name()}));
  }
}

/// The next object on a path: what `object` holds under that name.
TObject* ObjectBehind(TObject* object, const QString& name) {
  const TPropInfo* property = GetPropInfo(object, name);
  if (!property) return nullptr;
  if (property->Kind() == tkInterface) return ComponentBehind(GetInterfaceProp(object, property));
  return property->Kind() == tkClass ? ViewedObject(object, *property) : nullptr;
}

/// What an item says of the way to those below it, kept because a getter on the way may free the item.
struct TStep {
  QString Name;
  /// Of a category, or of a part of the name of a line: what is below belongs to the same object.
  bool IsPassedOver;
  /// Of a collection, which has that number in it; -1 when that is not known.
  bool IsElement;
  int Element;
};

TObject* ElementAt(TObject* object, int index) {
  const auto* collection = dynamic_cast<TCollection*>(object);
  return collection && index >= 0 && index < collection->GetCount() ? collection->GetItem(index) : nullptr;
}

}  // namespace

// Reading.

TObject* TKTCustomObjectInspector::GetInstance(TObject* object, QString& path, TKTItemProperty* item) const {
  if (!item->GetParent()) return object;
  QVarLengthArray<TStep, 8> way;
  for (TKTItemProperty* at = item->GetParent(); at; at = at->GetParent()) {
    const bool isElement = FInplaceCollections && at->GetPropertyKind() == pkCollectionItem;
    const bool isPassedOver = at->GetCategory() || IsStringItem(*at);
    way.append({at->GetRealPropName(), isPassedOver, isElement, isElement ? at->ElementNumber(0) : -1});
  }
  const qsizetype delimiter = GetPathDelimiter().size();
  const TItemWatch watched(item);
  const TLifeWatch self(this);
  for (qsizetype i = way.size() - 1; object && i >= 0; --i) {
    const TStep& step = way[i];
    // By the length of the name, which may hold a delimiter.
    path.remove(0, step.Name.size() + delimiter);
    if (step.IsPassedOver) continue;
    object = step.IsElement ? ElementAt(object, step.Element) : ObjectBehind(object, step.Name);
    if (!watched || !self.IsAlive()) return nullptr;
  }
  return object;
}

QString TKTCustomObjectInspector::GetPropertyValue(TObject* instance, TKTItemProperty* item) {
  const bool isAsked = bool(item->GetOnGetProperty());
  return GetPropertyValue(instance, item, isAsked ? nullptr : FindPropInfo(instance, item->GetRealPropName()));
}

/// For callers that have looked the property up already, which costs as much as reading it.
QString TKTCustomObjectInspector::GetPropertyValue(TObject* instance, TKTItemProperty* item,
                                                   const TPropInfo* property) {
  if (const TKTItemGetPropertyEvent handler = item->GetOnGetProperty()) {
    QString value;
    // By a name of its own: the handler may free the item.
    handler(item, instance, QString(item->GetRealPropName()), value);
    return value;
  }
  return ViewedText(instance, *property, [&] { return TextOf(instance, property); });
}

// Writing.

bool TKTCustomObjectInspector::SetPropertyValue(TObject* instance, TKTItemProperty* item, const QString& value) {
  const TItemWatch watched(item);
  QString name = item->GetFullPathPropName();
  const TObjectRef holder(GetInstance(instance, name, item));
  if (!watched) return false;
  const TKTItemSetPropertyEvent handler = item->GetOnSetProperty();
  if (!holder && !handler) return false;
  const bool isOther = !holder || GetPropertyValue(holder.Get(), item) != value;
  if (!watched || (!holder && !handler)) return isOther;
  if (handler) {
    handler(item, holder.Get(), name, value);
    return isOther;
  }
  const TPropInfo* property = FindPropInfo(holder.Get(), name);
  IPropView* view = PropViewOf(holder.Get());
  if (view && view->SetPropText(*property, value)) return isOther;
  // The wide Boolean types take their names only as truth values.
  const TOrdTypeInfo* type = OrdTypeOf(property->PropType());
  const bool isWide = IsBoolType(type) && type->MinValue() < 0;
  SetPropValue(holder.Get(), property, isWide ? Variant(Variant(value).ToBool()) : Variant(value));
  return isOther;
}

void TKTCustomObjectInspector::PropertyChanging(TKTItemProperty* item) {
  const TItemWatch watched(item);
  const TLifeWatch self(this);
  item->SetAllEqual(!IsMultiColumn());
  // All objects are about to have the same members.
  const bool hasMembers = watched && item->GetPropertyKind() == pkSet && item->HasItems();
  for (int i = 0; hasMembers && watched && i < item->GetItems().GetCount(); ++i) {
    item->GetItems().GetItem(i)->SetAllEqual(!IsMultiColumn());
  }
  if (watched && self.IsAlive()) OnPropertyChanging(this, item);
}

void TKTCustomObjectInspector::PropertyChanged(int index) { InvalidateProperty(index); }

void TKTCustomObjectInspector::InvalidateProperty(int index) { PostMessage(KT_INVALIDATEPROPERTY, index, 0); }

void TKTCustomObjectInspector::SetProperty(TKTItemProperty* item) {
  const TItemWatch watched(item);
  const TLifeWatch self(this);
  PropertyChanging(item);
  if (!self.IsAlive()) return;
  // Setters may change the item's texts, and the objects.
  QStringList texts;
  const int count = IsMultiColumn() ? std::min(FObjects->GetCount(), GetValueCount()) : 1;
  for (int i = 0; watched && i < count; ++i) texts.append(item->GetValueLine(i));
  const int index = watched ? item->GetAbsoluteIndex() : -1;
  for (int i = 0; watched && i < FObjects->GetCount(); ++i) {
    TObject* object = FObjects->GetItem(i)->GetObjects();
    const QString text = texts.value(i < texts.size() ? i : 0);
    if (object && (i < texts.size() || !IsMultiColumn())) SetPropertyValue(object, item, text);
    if (!self.IsAlive()) return;
  }
  PropertyChanged(index);
}

void TKTCustomObjectInspector::KTInvalidateProperty(const TMessage& message) {
  const TLifeWatch self(this);
  FWatch->Resume();
  const bool isFresh = UpdateProperties(GetItems());
  if (!self.IsAlive()) return;
  if (!isFresh) InvalidateScan();
  // Deliberately an index among all items, held against the number of rows.
  const auto index = static_cast<int>(message.WParam);
  TKTItemProperty* item = index < GetVisibleItemCount() ? GetItem(index) : nullptr;
  if (item) OnPropertyChanged(this, item);
}

// Refreshing.

void TKTCustomObjectInspector::RefreshProperties() {
  if (HasState(csDestroying) || IsUpdatingObjects()) return;
  const TLifeWatch self(this);
  const bool isFresh = UpdateProperties(GetItems());
  if (self.IsAlive() && !isFresh) InvalidateScan();
}

bool TKTCustomObjectInspector::UpdateProperties(TKTItemProperties& items) {
  if (HasState(csDestroying) || IsUpdatingObjects()) return true;
  const TLifeWatch self(this);
  bool isFresh = false;
  {
    TEditUpdateLock lock(*this);
    const TUpdateBracket bracket(lock);
    isFresh = RefreshItems(items);
  }
  if (!self.IsAlive() || IsEditUpdateLocked()) return isFresh;
  Invalidate();
  ReloadEditor();
  return isFresh;
}

/// What is freed meanwhile leads nowhere any more.
bool TKTCustomObjectInspector::RefreshItems(TKTItemProperties& items) {
  const TLifeWatch self(this);
  const TLifeWatch level(&items);
  for (int i = 0; i < items.GetCount(); ++i) {
    const TItemWatch item(items.GetItem(i));
    if (!static_cast<TKTItemProperty&>(*item).RefreshValue()) return false;
    if (!self.IsAlive() || !level.IsAlive() || !item) return false;
    if (item->HasItems() && !UpdateProperties(static_cast<TKTItemProperty&>(*item).GetItems())) return false;
    if (!self.IsAlive() || !level.IsAlive() || !item) return false;
  }
  return true;
}

/// The editor shows what its cell holds now; text, selection and caret stay where that is the same.
void TKTCustomObjectInspector::ReloadEditor() {
  TInplaceEdit* edit = IsEditorMode() ? InplaceEditor() : nullptr;
  const TGridRect selection = GetSelection();
  const bool isOneLine =
      GetOrientation() == goVertical ? selection.Top == selection.Bottom : selection.Left == selection.Right;
  if (!edit || !isOneLine || !IsValueCell(GetCol(), GetRow())) return;
  const TLifeWatch watch(edit);
  const QString text = GetEditText(GetCol(), GetRow());
  if (!watch.IsAlive() || edit->GetText() == text) return;
  edit->SetText(text);
  if (watch.IsAlive()) edit->SelectAll();
  if (watch.IsAlive()) ShowEditor();
}

// The clipboard.

/// The object that the selected property holds, or null.
TObject* TKTCustomObjectInspector::SelectedObject(int index) {
  TKTItemProperty* item = GetSelected();
  const bool hasObject =
      item && item->GetTypeKind() == tkClass && (item->IsRealProperty() || item->GetPropertyKind() == pkCollectionItem);
  return hasObject ? item->GetObjectProperty(index) : nullptr;
}

void TKTCustomObjectInspector::CopyToClipboard() {
  TMessage message{.Msg = WM_COPY};
  if (TObject* object = SelectedObject(-1)) object->Dispatch(message);
}

void TKTCustomObjectInspector::PasteFromClipboard() {
  const TLifeWatch self(this);
  if (!SelectedObject(-1)) return;
  for (int i = 0; self.IsAlive() && i < FObjects->GetCount(); ++i) {
    TMessage message{.Msg = WM_PASTE};
    if (TObject* object = SelectedObject(i)) object->Dispatch(message);
  }
  if (self.IsAlive()) InvalidateScan();
}

}  // namespace kt
