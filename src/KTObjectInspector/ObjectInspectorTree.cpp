// How an inspector turns its objects into items.
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTObjectInspector/PropViews.h"
#include "kt/KTObjectInspector/PropertyWatch.h"
#include "kt/KTObjectInspector/Scan.h"
#include "kt/KTObjectInspector/StringItems.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/TextCompare.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/ObjectRef.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <algorithm>

namespace kt {

namespace {

/// As many members of a set as have a bit in what an inspector keeps of it.
constexpr int kListedMembers = 32;
/// So many levels of objects that know their properties themselves are listed below each other: such references may go
/// on without end.
constexpr int kDeepestView = 24;

/// What an object of the list has in the place of `property`, which belongs to the first. Null when there is none, or
/// when one of the two objects is gone.
const TPropInfo* CounterpartIn(TKTInspectorObjects& objects, int index, const TPropInfo& property) {
  TObject* first = objects.GetItem(0)->GetObjects();
  TObject* object = objects.GetItem(index)->GetObjects();
  if (!first || !object) return nullptr;
  // What objects of one class publish needs no search.
  return object->ClassType() == first->ClassType() ? &property : GetPropInfo(object, property.Name());
}

/// Only what all objects publish under the same name with the same type is listed.
bool IsSharedProperty(TKTInspectorObjects& objects, const TPropInfo& property) {
  for (int i = 1; i < objects.GetCount(); ++i) {
    const TPropInfo* other = CounterpartIn(objects, i, property);
    if (!other) return false;
    if (other == &property) continue;
    if (other->Kind() != property.Kind() || other->PropType()->Name() != property.PropType()->Name()) return false;
  }
  return true;
}

const QStringList& TruthNames() {
  static const QStringList names{QStringLiteral("False"), QStringLiteral("True")};
  return names;
}

void FillPickList(TKTItemProperty& item, const QStringList& names) {
  TStringList& list = item.GetPickList();
  const TUpdateBracket bracket(list);
  list.SetCapacity(std::max(list.GetCount(), static_cast<int>(names.size())));
  for (const QString& name : names) list.Add(name);
}

void OfferNamesOf(const TTypeInfo* type, TKTItemProperty& item) {
  // These are in order.
  if (IsBoolType(type)) return FillPickList(item, TruthNames());
  QStringList names;
  const TEnumTypeInfo* enumeration = EnumTypeOf(type);
  const qint64 last = enumeration && !enumeration->Names().isEmpty() ? enumeration->MaxValue() : -1;
  for (qint64 i = enumeration ? enumeration->MinValue() : 0; i <= last; ++i) names.append(GetEnumName(type, i));
  FillPickList(item, names);
  item.GetPickList().Sort();
}

/// The names of the members that are listed; empty where the members have none.
QStringList MemberNames(const TTypeInfo* type) {
  const TSetTypeInfo* set = SetTypeOf(type);
  const TOrdTypeInfo* member = set ? OrdTypeOf(set->CompType()) : nullptr;
  if (!member || (member->Kind() != tkEnumeration && member->Kind() != tkInteger)) return {};
  QStringList names;
  const auto last = std::min<qint64>(member->MaxValue(), kListedMembers - 1);
  for (qint64 ordinal = 0; ordinal <= last; ++ordinal) {
    names.append(ordinal < member->MinValue() ? QString() : GetEnumName(member, ordinal));
  }
  return names;
}

bool HasBit(const Variant& set, int bit) { return !set.IsEmpty() && (set.ToInt64() >> bit & 1) != 0; }

QString TruthName(bool value) { return value ? QStringLiteral("True") : QStringLiteral("False"); }

int DepthOf(const TKTItemProperty& item) {
  int depth = 0;
  for (const TKTItemProperty* at = item.GetParent(); at; at = at->GetParent()) ++depth;
  return depth;
}

/// Whether a value of a class-typed property shows but cannot be replaced by typing.
bool IsOwnedObject(TObject* object, const TPropInfo& property) {
  if (IPropView* view = PropViewOf(object)) return !view->TakesPropText(property);
  if (property.Kind() != tkClass) return false;
  const TObject* value = GetObjectProp(object, &property);
  return value && !dynamic_cast<const TComponent*>(value);
}

}  // namespace

/// A property as the list of its class gave it.
struct TKTCustomObjectInspector::TListedProperty {
  const TClassInfo* Class;
  const TPropInfo* Info;
};

// What a scan does with one level.

void TKTCustomObjectInspector::BuildCommonProperties(TScan& scan, TKTInspectorObjects& objects,
                                                     TKTItemProperties& props) {
  TObject* first = objects.GetCount() > 0 ? objects.GetItem(0)->GetObjects() : nullptr;
  if (!first) return;
  for (int i = 0; i < objects.GetCount(); ++i) {
    scan.Enter(objects.GetItem(i)->GetObjects());
    FWatch->Enter(objects.GetItem(i)->GetObjects(), props);
  }
  const TClassInfo* listed = first->ClassType();
  const auto properties = GetPropList(listed, FDisplayKinds, IsSorted() ? poSorted : poDeclared);
  const TUpdateBracket level(props);
  for (const TPropInfo* property : properties) {
    // What can only be written has nothing to show.
    if (!property->IsReadable() || !IsSharedProperty(objects, *property)) continue;
    const TItemWatch item(props.Add());
    if (item) BuildProperty(scan, static_cast<TKTItemProperty*>(item.Get()), objects, {listed, property});
    if (!scan.IsGoing() || !level.IsAlive()) return;
    const TKTItemProp* parent = item ? item->GetParent() : nullptr;
    if (!GetArrangeByCategory() || !parent || !parent->GetCategory()) continue;
    Categorize(item.Get(), props.GetCategories(), true);
    if (!scan.IsGoing() || !level.IsAlive()) return;
  }
  BuildElements(scan, objects, props);
}

/// What a property has below it besides the properties of its object.
void TKTCustomObjectInspector::BuildElements(TScan& scan, TKTInspectorObjects& objects, TKTItemProperties& props) {
  TKTItemProperty* owner = props.GetParent();
  if (!owner || !owner->IsAllEqual()) return;
  if (FInplaceCollections && owner->GetPropertyKind() == pkCollection) {
    BuildCollectionItems(scan, objects, *owner);
  } else if (FInplaceTStrings && owner->GetTypeKind() == tkClass) {
    std::vector<TObjectRef> lists;
    for (int i = 0; i < objects.GetCount(); ++i) {
      if (auto* lines = dynamic_cast<TStrings*>(objects.GetItem(i)->GetObjects())) lists.emplace_back(lines);
    }
    const TLiveFlag parts(this, FIsListingParts);
    if (!lists.empty()) BuildTStringsItemProperties(*owner, lists, FInplaceTStringsOptions, FStringsItemFormat);
  }
}

// One property.

void TKTCustomObjectInspector::BuildProperty(TScan& scan, TKTItemProperty* item, TKTInspectorObjects& objects,
                                             const TListedProperty& listed) {
  const TItemWatch watched(item);
  const QString name = listed.Info->Name();
  item->SetName(name);
  if (!watched || !scan.IsGoing()) return;
  item->SetRealPropName(name);
  TObject* first = objects.GetItem(0)->GetObjects();
  if (!first) return;
  // What is published may depend on the object, and have changed since.
  const TPropInfo& property = first->ClassType() == listed.Class ? *listed.Info : *FindPropInfo(first, name);
  item->SetTypeKind(property.Kind());
  item->SetTypeName(property.PropType()->Name());
  if (!watched || !scan.IsGoing()) return;
  FillValues(*item, objects, property);
  first = objects.GetItem(0)->GetObjects();
  if (!watched || !scan.IsGoing() || !first) return;
  const bool isOwned = IsOwnedObject(first, property);
  if (!watched || !scan.IsGoing()) return;
  const bool isFixed = !property.IsWritable() || property.Kind() == tkMethod || property.Kind() == tkInterface;
  if (isFixed || isOwned) item->SetReadOnly(true);
  if (!isFixed) OfferChoices(*item, *first, property);
  if (!watched || !scan.IsGoing()) return;
  switch (property.Kind()) {
    case tkEnumeration:
      return OfferNamesOf(property.PropType(), *item);
    case tkSet:
      return BuildMembers(*item, objects, property);
    case tkClass:
    case tkInterface:
      return BuildObjects(scan, *item, objects, property.Name());
    default:
      return;
  }
}

void TKTCustomObjectInspector::FillValues(TKTItemProperty& item, TKTInspectorObjects& objects,
                                          const TPropInfo& property) {
  const TItemWatch watched(&item);
  const TTypeKind kind = property.Kind();
  TObject* first = objects.GetItem(0)->GetObjects();
  const bool isCollection = kind == tkClass && dynamic_cast<TCollection*>(ViewedObject(first, property));
  // Getters may do anything.
  if (!watched) return;
  item.SetPropertyKind(isCollection ? pkCollection : kind == tkSet ? pkSet : pkNormal);
  if (watched) item.SetIsRealProperty(kind != tkInterface);
  if (!watched) return;
  const int count = IsMultiColumn() ? objects.GetCount() : 1;
  for (int i = 0; i < count; ++i) {
    TObject* object = objects.GetItem(i)->GetObjects();
    const TPropInfo* own = CounterpartIn(objects, i, property);
    if (!own) return;
    const TLifeWatch watchOfObject(object);
    Variant value = kind != tkInterface ? RawPropValue(object, *own) : Variant();
    if (!watchOfObject.IsAlive() || !watched) return;
    std::vector<Variant>& values = item.GetRealValues();
    if (static_cast<size_t>(i) < values.size()) values[static_cast<size_t>(i)] = std::move(value);
    const QString text = GetPropertyValue(object, &item, own);
    if (!watched) return;
    item.SetValueLine(i, text);
    if (!watched) return;
    item.MarkChanged(i, watchOfObject.IsAlive() ? object : nullptr, *own);
    if (!watched) return;
  }
  if (!objects.GetItem(0)->GetObjects()) return;
  const bool isSame = IsSameInAll(item, objects, property);
  if (watched) item.SetAllEqual(isSame);
}

bool TKTCustomObjectInspector::IsSameInAll(TKTItemProperty& item, TKTInspectorObjects& objects,
                                           const TPropInfo& property) {
  if (objects.GetCount() == 1) return true;
  if (IsMultiColumn()) return false;
  const TItemWatch watched(&item);
  const QString text = item.GetValueLine(0);
  for (int i = 1; i < objects.GetCount(); ++i) {
    const TPropInfo* own = CounterpartIn(objects, i, property);
    const QString other = own ? GetPropertyValue(objects.GetItem(i)->GetObjects(), &item, own) : QString();
    if (!watched) return false;
    if (other != text && AnsiCompareText(other, text) != 0) return false;
  }
  return true;
}

// Sets.

namespace {

/// The members, as bits, that are in the sets of all objects or of none.
qint64 SharedMembers(TKTInspectorObjects& objects, const TPropInfo& property) {
  if (objects.GetCount() == 1) return -1;
  TObject* first = objects.GetItem(0)->GetObjects();
  const qint64 members = first ? RawPropOrdinal(first, property) : 0;
  qint64 shared = -1;
  for (int i = 1; i < objects.GetCount(); ++i) {
    const TPropInfo* own = CounterpartIn(objects, i, property);
    if (!own) return 0;
    shared &= ~(members ^ RawPropOrdinal(objects.GetItem(i)->GetObjects(), *own));
  }
  return shared;
}

}  // namespace

void TKTCustomObjectInspector::BuildMembers(TKTItemProperty& set, TKTInspectorObjects& objects,
                                            const TPropInfo& property) {
  const QStringList names = MemberNames(property.PropType());
  if (names.isEmpty()) return;
  const TItemWatch watched(&set);
  // Several columns show each object's own.
  const bool showsEach = IsMultiColumn() && objects.GetCount() > 1;
  const qint64 shared = showsEach ? 0 : SharedMembers(objects, property);
  if (!watched) return;
  TKTItemProperties& members = set.GetItems();
  members.SetSorted(false);
  const TUpdateBracket level(members);
  const TLiveFlag parts(this, FIsListingParts);
  for (int ordinal = 0; ordinal < names.size(); ++ordinal) {
    if (names[ordinal].isEmpty()) continue;
    TKTItemProperty* member = members.Add();
    // Whoever heard of it may have freed it.
    if (!member) return;
    member->SetName(names[ordinal]);
    member->SetRealPropName(names[ordinal]);
    member->SetPropertyKind(pkSetMember);
    member->SetTypeKind(tkEnumeration);
    member->SetTypeName(QStringLiteral("Boolean"));
    member->SetAllEqual((shared >> ordinal & 1) != 0);
    const std::vector<Variant>& bits = set.GetRealValues();
    std::vector<Variant>& ordinals = member->GetRealValues();
    for (size_t i = 0; i < ordinals.size(); ++i) {
      ordinals[i] = ordinal;
      member->SetValueLine(static_cast<int>(i), TruthName(HasBit(bits[i], ordinal)));
    }
    FillPickList(*member, TruthNames());
    if (!property.IsWritable()) member->SetReadOnly(true);
    if (!watched || !level.IsAlive()) return;
  }
}

// Objects.

/// The object that takes its place below a property of `object`, or null.
TObject* TKTCustomObjectInspector::ObjectToEnter(const TScan& scan, TObject* object, const QString& name) const {
  const TPropInfo* property = object ? GetPropInfo(object, name) : nullptr;
  if (!property || !property->IsReadable()) return nullptr;
  TObject* value = nullptr;
  if (property->Kind() == tkInterface) {
    value = FInplaceComponents ? ComponentBehind(GetInterfaceProp(object, property)) : nullptr;
  } else {
    value = ViewedObject(object, *property);
    if (!scan.IsGoing()) return nullptr;
    if (dynamic_cast<TStrings*>(value) && !FInplaceTStrings) return nullptr;
    if (dynamic_cast<TComponent*>(value) && !FInplaceComponents) return nullptr;
  }
  return value && !scan.HasEntered(value) ? value : nullptr;
}

void TKTCustomObjectInspector::BuildObjects(TScan& scan, TKTItemProperty& item, TKTInspectorObjects& objects,
                                            const QString& name) {
  const TItemWatch watched(&item);
  const auto below = Make<TKTInspectorObjects>(nullptr);
  for (int i = 0; i < objects.GetCount(); ++i) {
    TObject* object = ObjectToEnter(scan, objects.GetItem(i)->GetObjects(), name);
    // Only what every object has is listed below it, and nothing once a getter has ended the scan.
    if (!object || !watched || !scan.IsGoing()) return;
    if (PropViewOf(object) && DepthOf(item) >= kDeepestView) return;
    below->Add()->SetObjects(object);
  }
  BuildBelow(scan, item, *below);
}

void TKTCustomObjectInspector::BuildBelow(TScan& scan, TKTItemProperty& item, TKTInspectorObjects& objects) {
  const TItemWatch watched(&item);
  const bool isWanted = BeforeScan(&item);
  // Null would stand for the whole scan.
  if (isWanted && watched && scan.IsGoing()) BuildCommonProperties(scan, objects, item.GetItems());
  if (watched && scan.IsGoing()) AfterScan(&item);
}

}  // namespace kt
