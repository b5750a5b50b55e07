#pragma once

#include "kt/rtl/objects/Object.h"
#include "kt/rtl/typeinfo/PropInfo.h"

#include <QStringView>

#include <vector>

namespace kt {

/// In which order properties are listed.
enum TPropOrder { poDeclared, poSorted };

/// The published property of that name (without regard to ASCII case) whose kind is among `kinds`; null when there is
/// none.
const TPropInfo* GetPropInfo(const TClassInfo* classInfo, QStringView name, TTypeKinds kinds = tkAny);
const TPropInfo* GetPropInfo(TObject* instance, QStringView name, TTypeKinds kinds = tkAny);
/// As GetPropInfo(), but raises EPropertyError "Property %s does not exist".
const TPropInfo* FindPropInfo(TObject* instance, QStringView name);

/// The published properties whose kinds are among `kinds`, in declaration order (ancestors' first) or sorted by name
/// without regard to ASCII case.
std::vector<const TPropInfo*> GetPropList(const TClassInfo* classInfo, TTypeKinds kinds = tkAny,
                                          TPropOrder order = poSorted);

bool IsPublishedProp(TObject* instance, QStringView name);
/// What the property's stored rule answers for this instance.
bool IsStoredProp(TObject* instance, const TPropInfo* property);
bool IsStoredProp(TObject* instance, QStringView name);
/// The kind of a property's type. Raises EPropertyError for an unknown name.
TTypeKind PropType(TObject* instance, QStringView name);
bool PropIsType(TObject* instance, QStringView name, TTypeKind kind);
/// The class that a class-typed property declares. Raises EPropertyError for an unknown name or another kind of
/// property.
const TClassInfo* GetObjectPropClass(const TPropInfo* property);
const TClassInfo* GetObjectPropClass(TObject* instance, QStringView name);

}  // namespace kt
