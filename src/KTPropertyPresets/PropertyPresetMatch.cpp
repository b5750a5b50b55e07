// How presets tell the items that they are for.
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/KTPropertyPresets/MatchClassName.h"
#include "kt/KTPropertyPresets/PropertyPreset.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/strings/StringList.h"

namespace kt {

namespace {

TKTItemProperty* HolderAbove(const TKTItemProperty* item) {
  return item ? item->GetParentItem(tkClass, QString()) : nullptr;
}

bool IsNameListed(TStringList& names, TKTItemProperty* item, bool byFullName, bool byName) {
  if (!item) return false;
  return (byName && names.IndexOf(item->GetName()) >= 0) || (byFullName && names.IndexOf(item->GetFullPathName()) >= 0);
}

/// The class of the objects that the property holds; null when nobody knows one.
const TClassInfo* ObjectClassOf(TKTItemProperty& item) {
  if (const TClassInfo* registered = GetClass(item.GetTypeName())) return registered;
  // What is no real property, as an element of a collection, cannot be asked.
  return item.IsRealProperty() ? item.GetObjectPropertyClass() : nullptr;
}

}  // namespace

bool TKTPropertyPreset::Matches(TKTItemProperty* item) {
  const TLifeWatch self(this);
  const TItemWatch watched(item);
  const auto isLost = [&] { return !self.IsAlive() || watched.Get() != item; };
  const bool passes = PassesTests(item);
  if (isLost()) return false;
  // Deliberately so without any test too: an exclusive preset then matches everything.
  bool result = passes == FInclusive;
  if (const TKTItemPropertyQueryEvent handler = OnMatchPreset) {
    handler(this, item, result);
  } else if (TKTCustomObjectInspector* inspector = GetInspector()) {
    inspector->MatchPreset(this, item, result);
  }
  return result && !isLost();
}

bool TKTPropertyPreset::PassesTests(TKTItemProperty* item) {
  using TTest = bool (TKTPropertyPreset::*)(TKTItemProperty*);
  static constexpr TTest tests[] = {&TKTPropertyPreset::PassesNames, &TKTPropertyPreset::PassesTypes,
                                    &TKTPropertyPreset::PassesClass, &TKTPropertyPreset::PassesParentTypes,
                                    &TKTPropertyPreset::PassesParentNames};
  if (FMatchTypes.IsEmpty()) return false;
  const TLifeWatch self(this);
  const TItemWatch watched(item);
  for (const TTest passes : tests) {
    if (!(this->*passes)(item)) return false;
    // Finding a class reads properties of the inspected objects, which may do anything.
    if (!self.IsAlive() || watched.Get() != item) return false;
  }
  return true;
}

bool TKTPropertyPreset::PassesNames(TKTItemProperty* item) {
  const bool byName = FMatchTypes.Has(mtPropertyName);
  const bool byFullName = FMatchTypes.Has(mtFullPropertyName);
  return (!byName && !byFullName) || IsNameListed(*FPropNames, item, byFullName, byName);
}

bool TKTPropertyPreset::PassesTypes(TKTItemProperty* item) {
  return !FMatchTypes.Has(mtPropertyType) || HasType(item, FTypeKinds, *FTypeNames);
}

bool TKTPropertyPreset::PassesClass(TKTItemProperty*) {
  if (!FMatchTypes.Has(mtClassName) || FParentClassNames->GetCount() == 0) return true;
  const TKTCustomObjectInspector* inspector = GetInspector();
  if (!inspector || inspector->GetObjects().GetCount() == 0) return false;
  const TObject* object = inspector->GetObjects().GetItem(0)->GetObjects();
  return object && IsMatchClassName(object->ClassType(), *FParentClassNames);
}

bool TKTPropertyPreset::PassesParentTypes(TKTItemProperty* item) {
  return !FMatchTypes.Has(mtParentPropertyType) || HasType(HolderAbove(item), FParentTypeKinds, *FParentTypeNames);
}

bool TKTPropertyPreset::PassesParentNames(TKTItemProperty* item) {
  const bool byName = FMatchTypes.Has(mtParentPropertyName);
  const bool byFullName = FMatchTypes.Has(mtParentFullPropertyName);
  return (!byName && !byFullName) || IsNameListed(*FParentPropNames, HolderAbove(item), byFullName, byName);
}

bool TKTPropertyPreset::HasType(TKTItemProperty* item, TTypeKinds kinds, TStringList& names) {
  if (!item) return false;
  // Deliberately whatever the names.
  if (kinds == TTypeKinds{tkUnknown}) return true;
  if (!kinds.Has(item->GetTypeKind())) return false;
  if (names.GetCount() == 0 || names.IndexOf(item->GetTypeName()) >= 0) return true;
  if (item->GetTypeKind() != tkClass) return false;
  const TLifeWatch self(this);
  const TClassInfo* found = ObjectClassOf(*item);
  return self.IsAlive() && IsMatchClassName(found, names);
}

}  // namespace kt
