#include "kt/rtl/typeinfo/PropLists.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <algorithm>

namespace kt {

const TPropInfo* GetPropInfo(const TClassInfo* classInfo, QStringView name, TTypeKinds kinds) {
  const TPropInfo* found = classInfo->FindProp(name);
  return found && kinds.Has(found->Kind()) ? found : nullptr;
}

const TPropInfo* GetPropInfo(TObject* instance, QStringView name, TTypeKinds kinds) {
  return GetPropInfo(instance->ClassType(), name, kinds);
}

const TPropInfo* FindPropInfo(TObject* instance, QStringView name) {
  const TPropInfo* found = GetPropInfo(instance, name);
  if (!found) throw EPropertyError(Format(SUnknownProperty, {name}));
  return found;
}

std::vector<const TPropInfo*> GetPropList(const TClassInfo* classInfo, TTypeKinds kinds, TPropOrder order) {
  const auto& all = order == poSorted ? classInfo->PropsByName() : classInfo->Props();
  std::vector<const TPropInfo*> list;
  list.reserve(all.size());
  std::copy_if(all.begin(), all.end(), std::back_inserter(list),
               [kinds](const TPropInfo* property) { return kinds.Has(property->Kind()); });
  return list;
}

bool IsPublishedProp(TObject* instance, QStringView name) { return GetPropInfo(instance, name) != nullptr; }

bool IsStoredProp(TObject* instance, const TPropInfo* property) { return property->IsStored(*instance); }

bool IsStoredProp(TObject* instance, QStringView name) { return IsStoredProp(instance, FindPropInfo(instance, name)); }

TTypeKind PropType(TObject* instance, QStringView name) { return FindPropInfo(instance, name)->Kind(); }

bool PropIsType(TObject* instance, QStringView name, TTypeKind kind) { return PropType(instance, name) == kind; }

const TClassInfo* GetObjectPropClass(const TPropInfo* property) {
  const TClassInfo* classInfo = ClassOf(property->PropType());
  if (!classInfo) throw EPropertyError(Format(SInvalidPropertyType, {property->PropType()->Name()}));
  return classInfo;
}

const TClassInfo* GetObjectPropClass(TObject* instance, QStringView name) {
  return GetObjectPropClass(FindPropInfo(instance, name));
}

}  // namespace kt
