// How a reader gives objects the values of their properties.
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"
#include "kt/rtl/streams/IntegerConsts.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <limits>
#include <utility>

namespace kt {
namespace {

/// Colours and the like are stored with or without their sign: 32 bits fit every 32-bit type.
bool FitsType(const TOrdTypeInfo* type, qint64 value) {
  const bool isFullWidth = type->OrdType() == otSLong || type->OrdType() == otULong;
  const qint64 least = isFullWidth ? std::numeric_limits<qint32>::min() : type->MinValue();
  const qint64 most = isFullWidth ? std::numeric_limits<quint32>::max() : type->MaxValue();
  return value >= least && value <= most;
}

}  // namespace

void TReader::ReadProperty(TPersistent* instance) {
  const QString path = FInput.ReadShortString();
  const TPropPath place{instance, path, FInput.Position()};
  const TPropPath outer = std::exchange(FPropPath, place);
  try {
    if (AsUnknown(instance)) {
      KeepProperty();
    } else {
      ReadPropertyPath(instance, path);
    }
    CheckNothingLost();
  } catch (const EAbort&) {
    throw;
  } catch (const Exception& error) {
    HandlePropertyError(place, error);
    FInput.Seek(place.Start);
    FInput.SkipValue();
  }
  FPropPath = outer;
}

void TReader::HandlePropertyError(const TPropPath& place, const Exception& error) {
  const bool isLost = FLoad->HasLostObject();
  const QString object = isLost ? FPlace : PathOf(place.Instance);
  const QString dot = object.isEmpty() ? QString() : QStringLiteral(".");
  const QString message = Format(SPropertyException, {object, dot, place.Path, error.Message()});
  if (isLost || !OnError || !OnError(message)) {
    // Around the property of an item stands that of its collection; the inner one has the place.
    if (HasPlace(error)) {
      FPlacedMessage = message;
      throw EReadError(message);
    }
    EReadError failure(message);
    AddPlace(failure, place.Start, (isLost ? object : FullPathOf(place.Instance)) + dot + place.Path);
    throw EReadError(failure.Message());
  }
  // The event itself may have freed it.
  if (FLoad->HasLostObject()) HandlePropertyError(place, EReadError(SObjectFreed.toString()));
}

void TReader::ReadPropertyPath(TPersistent* instance, const QString& path) {
  TPersistent* target = instance;
  QStringView rest = path;
  for (qsizetype dot = rest.indexOf(u'.'); dot >= 0; dot = rest.indexOf(u'.')) {
    const TPropInfo* property = GetPropInfo(target, rest.left(dot));
    if (!property) {
      if (TakeUnknownProperty()) return;
      throw EReadError(Format(SUnknownProperty, {rest.left(dot)}));
    }
    TObject* object = property->Kind() == tkClass ? GetObjectProp(target, property) : nullptr;
    target = dynamic_cast<TPersistent*>(object);
    if (!target) throw EReadError(SInvalidPropertyPath.toString());
    rest = rest.sliced(dot + 1);
  }
  const bool existedBefore = ExistedBefore(instance, target);
  if (existedBefore) FLoad->UndoLog().Remember(*target);
  if (const TPropInfo* property = GetPropInfo(target, rest)) return ReadPropValue(target, property);
  ReadDefinedProperty(target, rest.toString(), existedBefore);
  if (FDefinedName.isEmpty() || TakeUnknownProperty()) return;
  throw EReadError(Format(SUnknownProperty, {rest}));
}

bool TReader::ExistedBefore(const TPersistent* instance, TPersistent* target) const {
  if (!FTargetIsNew) return true;
  for (TPersistent* part = target; part && part != instance; part = part->OwnerOf()) {
    const auto* component = dynamic_cast<const TComponent*>(part);
    // The path has followed a reference.
    if (component && !component->GetComponentStyle().Has(csSubComponent)) return true;
  }
  // Parts that know no owner belong to the object in whose property they are.
  return false;
}

/// Offers the value to DefineProperties(); the name is still there afterwards when nobody took it.
void TReader::ReadDefinedProperty(TPersistent* instance, const QString& name, bool existedBefore) {
  if (existedBefore) FLoad->UndoLog().RememberDefined(*instance, name, FRoot);
  CheckNothingLost();
  FDefinedName = name;
  instance->DefineProperties(*this);
}

/// False when the policy is to raise.
bool TReader::TakeUnknownProperty() {
  FDefinedName.clear();
  if (UnknownProperties == upRaise) return false;
  if (UnknownProperties == upKeep) {
    KeepProperty();
  } else {
    FInput.SkipValue();
  }
  return true;
}

void TReader::KeepProperty() { EnsureKeptData(FPropPath.Instance).Properties.push_back({FPropPath.Path, TakeValue()}); }

void TReader::ReadPropValue(TPersistent* instance, const TPropInfo* property) {
  const bool isOwnedObject = property->Kind() == tkClass && FInput.NextValue() == vaCollection;
  if (!property->IsWritable() && !isOwnedObject) throw EReadError(SReadOnlyProperty.toString());
  switch (property->Kind()) {
    case tkInteger:
    case tkChar:
    case tkWChar:
    case tkEnumeration:
      return ReadOrdValue(instance, property);
    case tkSet:
      return ReadSetValue(instance, property);
    case tkFloat:
      return SetExtendedProp(instance, property, FInput.ReadFloat());
    case tkString:
    case tkLString:
    case tkWString:
      return SetStrProp(instance, property, FInput.ReadString());
    case tkInt64:
      return SetInt64Prop(instance, property, FInput.ReadInt64());
    case tkVariant:
      return SetVariantProp(instance, property, ReadVariant());
    case tkClass:
      return ReadClassValue(instance, property);
    case tkInterface:
      return ReadReference(instance, property);
    case tkMethod:
      return ReadMethodValue(instance, property);
    default:
      throw EReadError(Format(SInvalidPropertyType, {property->PropType()->Name()}));
  }
}

void TReader::ReadOrdValue(TPersistent* instance, const TPropInfo* property) {
  const TTypeInfo* type = property->PropType();
  if (type->Kind() == tkChar || type->Kind() == tkWChar) return ReadCharValue(instance, property);
  const bool isIdent = FInput.NextValue() == vaIdent || type->Kind() == tkEnumeration;
  if (!isIdent) {
    const qint64 value = FInput.ReadInt64();
    if (!FitsType(OrdTypeOf(type), value)) {
      throw EReadError(SInvalidPropertyValue.toString());
    }
    return SetOrdProp(instance, property, value);
  }
  const QString ident = FInput.ReadIdent();
  if (type->Kind() == tkEnumeration) {
    const qint64 value = GetEnumValue(type, ident);
    // The ordinal of True where False and True are as wide as an integer; such a type refuses unknown names itself.
    const bool hasNegative = OrdTypeOf(type)->MinValue() < 0;
    if (value < 0 && !hasNegative) throw EReadError(SInvalidPropertyValue.toString());
    return SetOrdProp(instance, property, value);
  }
  const auto consts = FindIntegerConsts(type);
  const std::optional<qint64> value = consts ? consts->IdentToInt(ident) : std::nullopt;
  if (!value) throw EReadError(SInvalidPropertyValue.toString());
  SetOrdProp(instance, property, *value);
}

/// An 8-bit property holds the characters up to U+00FF. One that a form's encoding puts beyond them is refused, rather
/// than cut to another character.
void TReader::ReadCharValue(TPersistent* instance, const TPropInfo* property) {
  const qint64 value = ReadChar().unicode();
  if (!FitsType(OrdTypeOf(property->PropType()), value)) throw EReadError(SInvalidPropertyValue.toString());
  SetOrdProp(instance, property, value);
}

void TReader::ReadSetValue(TPersistent* instance, const TPropInfo* property) {
  const TTypeInfo* component = SetTypeOf(property->PropType())->CompType();
  qint64 bits = 0;
  FInput.ReadSetBegin();
  for (QString name = FInput.ReadSetElement(); !name.isEmpty(); name = FInput.ReadSetElement()) {
    const qint64 ordinal = GetEnumValue(component, name);
    if (ordinal < 0 || ordinal > 63) throw EReadError(SInvalidPropertyValue.toString());
    bits |= qint64{1} << ordinal;
  }
  SetOrdProp(instance, property, bits);
}

void TReader::ReadClassValue(TPersistent* instance, const TPropInfo* property) {
  switch (FInput.NextValue()) {
    case vaNil:
      FInput.ReadValue();
      return SetObjectProp(instance, property, nullptr);
    case vaCollection: {
      auto* collection = dynamic_cast<TCollection*>(GetObjectProp(instance, property));
      if (!collection) throw EReadError(SInvalidPropertyValue.toString());
      FInput.ReadValue();
      return ReadCollection(*collection);
    }
    default:
      return ReadReference(instance, property);
  }
}

void TReader::ReadReference(TPersistent* instance, const TPropInfo* property) {
  if (FInput.NextValue() == vaNil) {
    FInput.ReadValue();
    return SetInterfaceProp(instance, property, nullptr);
  }
  QString name = FInput.ReadIdent();
  if (OnReferenceName) OnReferenceName(name);
  CheckNothingLost();
  FLoad->Fixups().Add({instance, property, FScope, name, FPropPath.Instance, FPropPath.Path, UnknownClasses == upKeep,
                       FPropPath.Start});
}

void TReader::ReadMethodValue(TPersistent* instance, const TPropInfo* property) {
  if (FInput.NextValue() == vaNil) {
    FInput.ReadValue();
    return SetMethodProp(instance, property, TMethod());
  }
  const qint64 start = FInput.Position();
  const QString name = FInput.ReadIdent();
  TMethod method = FRoot ? FRoot->ClassType()->FindMethod(name, FRoot) : TMethod();
  if (method.IsEmpty() && OnFindMethod) method = OnFindMethod(name);
  // The code of a form that is being designed is elsewhere.
  if (method.IsEmpty() && FRoot && FRoot->HasState(csDesignInstance))
    method = NamedMethod(property->PropType(), FRoot, name);
  CheckNothingLost();
  if (!method.IsEmpty()) return SetMethodProp(instance, property, method);
  // A handler that the application does not have is as unknown as a property.
  FInput.Seek(start);
  if (!TakeUnknownProperty()) throw EReadError(SInvalidPropertyValue.toString());
}

/// With the names of the owners before it, up to the root's.
QString TReader::FullPathOf(TPersistent* instance) const {
  QString path = PathOf(instance);
  auto* component = dynamic_cast<TComponent*>(instance);
  while (component && component != FRoot) {
    component = component->GetOwnerComponent();
    if (component && !component->GetName().isEmpty()) path = component->GetName() + u'.' + path;
  }
  return path;
}

QString TReader::PathOf(TPersistent* instance) const {
  if (auto* component = dynamic_cast<TComponent*>(instance)) {
    return component->GetName().isEmpty() ? component->ClassName() : component->GetName();
  }
  return instance->GetNamePath();
}

}  // namespace kt
