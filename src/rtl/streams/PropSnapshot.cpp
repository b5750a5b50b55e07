#include "kt/rtl/streams/PropSnapshot.h"

#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <new>

namespace kt {
namespace {

bool IsPartOf(TPersistent* value, TPersistent* holder) {
  const auto* component = dynamic_cast<const TComponent*>(value);
  if (component && !component->GetComponentStyle().Has(csSubComponent)) return false;
  const TPersistent* owner = value->OwnerOf();
  return !owner || owner == holder;
}

}  // namespace

TPropSnapshot::TPropSnapshot(TPersistent& object, TLifeTable& lives) : FLives(lives), FObject(lives.Watch(&object)) {
  for (const TPropInfo* property : object.ClassType()->Props()) {
    if (!property->IsReadable() || !IsOfLiving()) continue;
    try {
      Take(property);
    } catch (const std::bad_alloc&) {
      throw;
    } catch (...) {
      // Deliberately no failure of the load: it does not need the value unless it fails itself.
    }
  }
}

TPersistent& TPropSnapshot::Object() const { return static_cast<TPersistent&>(*FObject.Object); }

void TPropSnapshot::Take(const TPropInfo* property) {
  constexpr TTypeKinds kKindsWithoutRoad = {tkUnknown, tkArray, tkRecord};
  if (kKindsWithoutRoad.Has(property->Kind())) return;
  TValue value{property, DataOf(Object(), property)};
  TObject* target = nullptr;
  if (const auto* object = std::get_if<TObject*>(&value.Data)) target = *object;
  if (const auto* method = std::get_if<TMethod>(&value.Data)) target = method->Instance();
  if (const auto* reference = std::get_if<IInterface*>(&value.Data)) {
    target = dynamic_cast<TObject*>(*reference);
    if (*reference && !target) return;
  }
  value.Target = FLives.Watch(target);
  auto* part = property->Kind() == tkClass ? dynamic_cast<TPersistent*>(target) : nullptr;
  if (part && IsPartOf(part, &Object())) FParts.push_back(value.Target);
  if (property->IsWritable()) FValues.push_back(std::move(value));
}

TPropSnapshot::TData TPropSnapshot::DataOf(TPersistent& object, const TPropInfo* property) {
  switch (property->Kind()) {
    case tkFloat:
      return GetExtendedProp(&object, property);
    case tkString:
    case tkLString:
    case tkWString:
      return GetStrProp(&object, property);
    case tkVariant:
    case tkDynArray:
      return GetVariantProp(&object, property);
    case tkMethod:
      return GetMethodProp(&object, property);
    case tkClass:
      return GetObjectProp(&object, property);
    case tkInterface:
      return GetInterfaceProp(&object, property);
    default:
      return GetInt64Prop(&object, property);
  }
}

bool TPropSnapshot::AreEqual(const TData& a, const TData& b) {
  const auto* first = std::get_if<Variant>(&a);
  const auto* second = std::get_if<Variant>(&b);
  if (first && second) return VarType(*first) == VarType(*second) && VarSameValue(*first, *second);
  return a == b;
}

bool TPropSnapshot::WriteBack() noexcept {
  bool hasWritten = false;
  for (auto value = FValues.rbegin(); value != FValues.rend(); ++value) {
    if (!value->Property || !IsOfLiving() || !FLives.IsAlive(value->Target)) continue;
    try {
      hasWritten |= WriteBack(*value);
    } catch (...) {
      value->Property = nullptr;
      HandleException(std::current_exception());
    }
  }
  return hasWritten;
}

bool TPropSnapshot::WriteBack(TValue& value) {
  if (AreEqual(DataOf(Object(), value.Property), value.Data)) return false;
  Write(Object(), value);
  return true;
}

void TPropSnapshot::Write(TPersistent& object, const TValue& value) {
  switch (value.Property->Kind()) {
    case tkFloat:
      return SetExtendedProp(&object, value.Property, std::get<long double>(value.Data));
    case tkString:
    case tkLString:
    case tkWString:
      return SetStrProp(&object, value.Property, std::get<QString>(value.Data));
    case tkVariant:
    case tkDynArray:
      return SetVariantProp(&object, value.Property, std::get<Variant>(value.Data));
    case tkMethod:
      return SetMethodProp(&object, value.Property, std::get<TMethod>(value.Data));
    case tkClass:
      return SetObjectProp(&object, value.Property, std::get<TObject*>(value.Data));
    case tkInterface:
      return SetInterfaceProp(&object, value.Property, std::get<IInterface*>(value.Data));
    default:
      return SetInt64Prop(&object, value.Property, std::get<qint64>(value.Data));
  }
}

}  // namespace kt
