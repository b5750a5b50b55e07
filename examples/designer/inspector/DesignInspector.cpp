#include "designer/inspector/DesignInspector.h"

#include "designer/document/DocumentErrors.h"
#include "designer/surface/Grid.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Integers.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/controls/Control.h"
#include "kt/vcl/controls/SizeConstraints.h"

namespace designer {

using namespace kt;

namespace {

bool IsSize(const TObject* instance, const QString& name) {
  static const QStringList ofControls = {QStringLiteral("Left"),        QStringLiteral("Top"),
                                         QStringLiteral("Width"),       QStringLiteral("Height"),
                                         QStringLiteral("ClientWidth"), QStringLiteral("ClientHeight")};
  if (dynamic_cast<const TControl*>(instance)) return ofControls.contains(name);
  return dynamic_cast<const TSizeConstraints*>(instance) && (name.startsWith(u"Min") || name.startsWith(u"Max"));
}

/// What no screen shows is a slip of whoever types.
void CheckSize(const TObject* instance, const QString& name, const QString& value) {
  qint64 number = 0;
  if (!IsSize(instance, name) || !TryStrToInt64(value.trimmed(), number)) return;
  if (number >= -kLargestSize && number <= kLargestSize) return;
  throw EDocumentError(QStringLiteral("%1 must be from -%2 to %2").arg(name).arg(kLargestSize));
}

}  // namespace

void TDesignInspector::Construct() {
  TKTObjectInspector::Construct();
  // What a component refers to is inspected by selecting it.
  SetInplaceComponents(false);
  SetInplaceCollections(true);
  SetInplaceTStrings(true);
  AddSetMembersPreset();
}

void TDesignInspector::Inspect(const std::vector<TObject*>& objects) {
  const TUpdateBracket bracket(GetObjects());
  GetObjects().Clear();
  for (TObject* object : objects) GetObjects().Add(object);
}

// Writing.

void TDesignInspector::SetProperty(TKTItemProperty* item) {
  const TLifeWatch self(this);
  if (OnWriting) OnWriting();
  const QString name = item->GetPropertyKind() == pkSetMember && item->GetParent()
                           ? item->GetParent()->GetName() + u'.' + item->GetName()
                           : item->GetName();
  // What a handler shows instead of the plain value may show elsewhere, too, and in several objects in another way.
  const bool needsScan = bool(item->GetOnGetProperty()) || GetObjects().GetCount() > 1;
  try {
    TKTObjectInspector::SetProperty(item);
  } catch (...) {
    if (self.IsAlive() && OnFailed) OnFailed();
    throw;
  }
  if (self.IsAlive() && OnWritten) OnWritten(name);
  if (self.IsAlive() && needsScan) InvalidateScan();
}

/// Without a handler to set them, members are written by way of their set, which then gets all of its members' texts.
void TDesignInspector::AddSetMembersPreset() {
  TKTPropertyPreset* preset = GetPresets().Add();
  preset->SetName(QStringLiteral("Members of sets"));
  preset->SetMatchTypes({mtPropertyType});
  preset->SetTypeKinds({tkEnumeration});
  preset->OnMatchPreset = [](TObject*, TKTItemProperty* item, bool& result) {
    result = result && item->GetPropertyKind() == pkSetMember;
  };
  // Never called: this inspector writes them itself.
  preset->OnSetProperty = [](TObject*, TObject*, const QString&, const QString&) {};
  preset->SetActions({pftValidate});
}

bool TDesignInspector::SetPropertyValue(TObject* instance, TKTItemProperty* item, const QString& value) {
  CheckSize(HolderOf(instance, *item), item->GetRealPropName(), value);
  if (item->GetPropertyKind() == pkSetMember) return WriteMember(instance, *item, value);
  return TKTObjectInspector::SetPropertyValue(instance, item, value);
}

/// Puts the one member in or out, and leaves the others of each object's set as they are.
bool TDesignInspector::WriteMember(TObject* instance, TKTItemProperty& member, const QString& value) {
  TKTItemProperty* set = member.GetParentItem(pkSet);
  TObject* holder = set ? HolderOf(instance, *set) : nullptr;
  if (!holder) return false;
  const TPropInfo* property = FindPropInfo(holder, set->GetRealPropName());
  const TSetTypeInfo* type = SetTypeOf(property->PropType());
  const qint64 ordinal = GetEnumValue(type->CompType(), member.GetRealPropName());
  const qint64 wanted = GetEnumValue(TypeInfoOf<bool>(), value);
  if (ordinal < 0 || wanted < 0) {
    throw EPropertyConvertError(QStringLiteral("'%1' is neither True nor False").arg(value));
  }
  const qint64 bit = qint64(1) << ordinal;
  const qint64 before = GetOrdProp(holder, property);
  const qint64 after = wanted != 0 ? before | bit : before & ~bit;
  if (after == before) return false;
  SetOrdProp(holder, property, after);
  return true;
}

// The keyboard.

void TDesignInspector::DoEnter() {
  const TLifeWatch self(this);
  TKTObjectInspector::DoEnter();
  if (self.IsAlive()) ShowEditor();
}

void TDesignInspector::KeyDown(quint16& key, TShiftState shift) {
  const TLifeWatch self(this);
  TKTObjectInspector::KeyDown(key, shift);
  if (self.IsAlive() && IsActiveControl() && !IsEditorMode()) ShowEditor();
}

// The filter.

void TDesignInspector::SetNameFilter(const QString& value) {
  if (FNameFilter == value) return;
  FNameFilter = value;
  ApplyFilter();
  Refresh();
}

void TDesignInspector::AfterScan(TKTItemProperty* item) {
  // While rows still stand in the scan's update bracket.
  const TLifeWatch self(this);
  if (!item) ApplyFilter();
  if (self.IsAlive()) TKTObjectInspector::AfterScan(item);
}

void TDesignInspector::ApplyFilter() {
  const TUpdateBracket bracket(GetItems());
  ApplyFilter(GetItems());
}

/// Goes by the names of whole properties, below their categories; whether any is left.
bool TDesignInspector::ApplyFilter(TKTItemProperties& items) {
  bool hasAny = false;
  for (int i = 0; i < items.GetCount(); ++i) {
    TKTItemProperty* item = items.GetItem(i);
    // One name for several components would be refused.
    const bool isWanted = item->GetCategory() ? ApplyFilter(item->GetItems())
                                              : item->GetName().contains(FNameFilter, Qt::CaseInsensitive);
    const bool isCommonName = GetObjects().GetCount() > 1 && !GetDisplayOptions().Has(doMultiColValues) &&
                              item->GetRealPropName() == u"Name" && item->GetTypeName() == u"TComponentName";
    item->SetVisible(isWanted && !isCommonName);
    hasAny = hasAny || isWanted;
  }
  return hasAny;
}

// The way to an item.

namespace {

TObject* ObjectOf(TObject* inspected, TKTItemProperty* item) {
  if (!item) return inspected;
  TObject* holder = ObjectOf(inspected, item->GetParent());
  if (!holder || item->GetCategory()) return holder;
  if (item->GetPropertyKind() == pkCollectionItem) {
    const auto* collection = dynamic_cast<TCollection*>(holder);
    const std::vector<Variant>& values = item->GetRealValues();
    const int index = values.empty() || values.front().IsEmpty() ? -1 : values.front().ToInt();
    return collection && index >= 0 && index < collection->GetCount() ? collection->GetItem(index) : nullptr;
  }
  const TPropInfo* property = GetPropInfo(holder, item->GetRealPropName(), {tkClass});
  return property ? GetObjectProp(holder, property) : nullptr;
}

}  // namespace

TObject* HolderOf(TObject* inspected, TKTItemProperty& item) { return ObjectOf(inspected, item.GetParent()); }

}  // namespace designer
