// How a writer decides what of an object's properties to write, and writes it.
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/Fixups.h"
#include "kt/rtl/streams/IntegerConsts.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <QScopeGuard>

#include <utility>

namespace kt {
namespace {

constexpr TTypeKinds OrdKinds = {tkInteger, tkChar, tkWChar, tkEnumeration, tkSet};

/// A sub-component belongs to the property of its owner; others only refer to it.
bool IsReference(const TComponent* value, const TPersistent* instance, const TPropInfo* property) {
  if (!value->GetComponentStyle().Has(csSubComponent)) return true;
  const TPersistent* owner = value->GetOwnerComponent();
  return property->IsWritable() && owner && owner != instance;
}

/// Equal as streams see it: by what would be written in the form `root`, and in that of the ancestor.
bool CollectionsEqual(TCollection& a, TComponent* root, TCollection& b, TComponent* ancestorRoot) {
  if (a.GetCount() != b.GetCount()) return false;
  TWriter first;
  TWriter second;
  first.SetRoot(root);
  second.SetRoot(ancestorRoot);
  first.WriteCollection(a);
  second.WriteCollection(b);
  return first.Data() == second.Data();
}

/// The name by which a reader of the form `root` finds a handler: that of a published method of the root itself. Empty
/// for any other.
QString HandlerName(const TMethod& method, const TComponent* root) {
  return root && method.Instance() == root ? root->ClassType()->MethodName(method) : QString();
}

/// The property of that name which the ancestor has; null when there is none that can be read.
const TPropInfo* ReadableProp(TPersistent* ancestor, const TPropInfo* property, TTypeKinds kinds) {
  const TPropInfo* inherited = ancestor ? GetPropInfo(ancestor, property->Name(), kinds) : nullptr;
  return inherited && inherited->IsReadable() ? inherited : nullptr;
}

/// Variants of one type compare without a conversion, so nothing is raised, and a text is no number.
bool VariantsEqual(const Variant& a, const Variant& b) { return VarType(a) == VarType(b) && VarSameValue(a, b); }

}  // namespace

void TWriter::WriteObjectProperties(TPersistent* instance) {
  for (const TPropInfo* property : instance->ClassType()->Props()) {
    if (IsStoredProp(instance, property)) WriteProperty(instance, property);
  }
  instance->DefineProperties(*this);
  WriteKeptProperties(instance);
}

void TWriter::WriteProperties(TPersistent& instance, TPersistent* ancestor) {
  const QString path = std::exchange(FPropPath, QString());
  TPersistent* outer = std::exchange(FAncestor, ancestor);
  const auto done = qScopeGuard([&] {
    FAncestor = outer;
    FPropPath = path;
  });
  WriteObjectProperties(&instance);
}

void TWriter::WriteKeptProperties(TPersistent* instance) {
  const TKeptData* kept = FindKeptData(instance);
  if (!kept) return;
  for (const TKeptData::TProperty& property : kept->Properties) {
    WritePropertyName(property.Path);
    FOutput.WriteRaw(property.Value);
  }
}

void TWriter::WriteProperty(TPersistent* instance, const TPropInfo* property) {
  if (!property->IsReadable()) return;
  if (property->Kind() == tkClass) return WriteClassProperty(instance, property);
  if (!property->IsWritable()) return;
  if (property->Kind() == tkInterface) return WriteInterfaceProperty(instance, property);
  if (property->Kind() == tkMethod) return WriteMethodProperty(instance, property);
  if (!HasDefaultValue(instance, property)) WriteValue(instance, property);
}

bool TWriter::HasDefaultValue(TPersistent* instance, const TPropInfo* property) {
  auto* ancestor = FAncestor && FAncestor->ClassType()->InheritsFrom(instance->ClassType()) ? FAncestor : nullptr;
  if (OrdKinds.Has(property->Kind())) {
    const qint64 value = GetOrdProp(instance, property);
    if (ancestor) return value == GetOrdProp(ancestor, property);
    return property->HasDefault() && value == property->Default();
  }
  switch (property->Kind()) {
    case tkFloat:
      return GetExtendedProp(instance, property) == (ancestor ? GetExtendedProp(ancestor, property) : 0.0L);
    case tkString:
    case tkLString:
    case tkWString:
      return GetStrProp(instance, property) == (ancestor ? GetStrProp(ancestor, property) : QString());
    case tkInt64:
      return GetInt64Prop(instance, property) == (ancestor ? GetInt64Prop(ancestor, property) : 0);
    case tkVariant:
      return VariantsEqual(GetVariantProp(instance, property),
                           ancestor ? GetVariantProp(ancestor, property) : Variant());
    default:
      return true;
  }
}

void TWriter::WriteValue(TPersistent* instance, const TPropInfo* property) {
  WritePropertyName(property->Name());
  switch (property->Kind()) {
    case tkFloat:
      return FOutput.WriteFloat(GetExtendedProp(instance, property));
    case tkString:
    case tkLString:
    case tkWString:
      return FOutput.WriteString(GetStrProp(instance, property));
    case tkInt64:
      return FOutput.WriteInteger(GetInt64Prop(instance, property));
    case tkVariant:
      return WriteVariant(GetVariantProp(instance, property));
    default:
      WriteOrdValue(property->PropType(), GetOrdProp(instance, property));
  }
}

void TWriter::WriteOrdValue(const TTypeInfo* type, qint64 value) {
  switch (type->Kind()) {
    case tkChar:
    case tkWChar:
      return FOutput.WriteString(QString(QChar(static_cast<char16_t>(value))));
    case tkEnumeration:
      return FOutput.WriteIdent(GetEnumName(type, value));
    case tkSet:
      return WriteSetValue(type, value);
    default:
      break;
  }
  const auto consts = FindIntegerConsts(type);
  const QString ident = consts ? consts->IntToIdent(value) : QString();
  ident.isEmpty() ? FOutput.WriteInteger(value) : FOutput.WriteIdent(ident);
}

void TWriter::WriteSetValue(const TTypeInfo* type, qint64 bits) {
  FOutput.WriteSetBegin();
  for (const QString& name : SetToString(type, bits).split(u',', Qt::SkipEmptyParts)) FOutput.WriteSetElement(name);
  FOutput.WriteSetEnd();
}

TObject* TWriter::AncestorObject(const TPropInfo* property) {
  const TPropInfo* inherited = ReadableProp(FAncestor, property, {tkClass});
  return inherited ? GetObjectProp(FAncestor, inherited) : nullptr;
}

IInterface* TWriter::AncestorInterface(const TPropInfo* property) {
  const TPropInfo* inherited = ReadableProp(FAncestor, property, {tkInterface});
  return inherited ? GetInterfaceProp(FAncestor, inherited) : nullptr;
}

void TWriter::WriteClassProperty(TPersistent* instance, const TPropInfo* property) {
  TObject* value = GetObjectProp(instance, property);
  if (!value) {
    if (WriteWaitingReference(instance, property)) return;
    if (!property->IsWritable() || !AncestorObject(property)) return;
    WritePropertyName(property->Name());
    return FOutput.WriteConstant(fcNil);
  }
  auto* component = dynamic_cast<TComponent*>(value);
  if (component && IsReference(component, instance, property)) {
    if (!property->IsWritable()) return;
    WriteReference(property, dynamic_cast<TComponent*>(AncestorObject(property)), component);
  } else if (auto* collection = dynamic_cast<TCollection*>(value)) {
    WriteCollectionProperty(property, collection);
  } else if (auto* object = dynamic_cast<TPersistent*>(value)) {
    WriteNested(property, object);
  }
}

/// A reference read with the policy to keep whose component has not come to exist; true when there is one.
bool TWriter::WriteWaitingReference(const TPersistent* instance, const TPropInfo* property) {
  const QString name = FindKeptReference(instance, property);
  if (name.isEmpty()) return false;
  const TPropInfo* inherited = FAncestor ? GetPropInfo(FAncestor, property->Name()) : nullptr;
  if (inherited && FindKeptReference(FAncestor, inherited) == name) return true;
  WritePropertyName(property->Name());
  FOutput.WriteIdent(name);
  return true;
}

void TWriter::WriteReference(const TPropInfo* property, const TComponent* inherited, TComponent* target) {
  const QString name = ReferenceName(target);
  if (name.isEmpty() || (inherited && SameReference(inherited, target))) return;
  WritePropertyName(property->Name());
  FOutput.WriteIdent(name);
}

/// The counterpart in the ancestor form counts as the same component.
bool TWriter::SameReference(const TComponent* inherited, const TComponent* target) const {
  if (inherited == target) return true;
  if (inherited->GetName() != target->GetName()) return false;
  const TComponent* owner = target->GetOwnerComponent();
  const TComponent* inheritedOwner = inherited->GetOwnerComponent();
  if (!inheritedOwner) return false;
  return (inheritedOwner == FRootAncestor && owner == FRoot) ||
         (inheritedOwner == FLookupAncestor && owner == FLookupRoot);
}

QString TWriter::ReferenceName(TComponent* target) {
  if (target == FLookupRoot) return QStringLiteral("Owner");
  QString name = target->GetName();
  if (name.isEmpty()) return {};
  TComponent* owner = target->GetOwnerComponent();
  for (; owner && owner != FLookupRoot && !owner->GetName().isEmpty(); owner = owner->GetOwnerComponent()) {
    name = owner->GetName() + u'.' + name;
  }
  return name;
}

void TWriter::WriteNested(const TPropInfo* property, TPersistent* object) {
  const QString path = std::exchange(FPropPath, FPropPath + property->Name() + u'.');
  TPersistent* outer = std::exchange(FAncestor, dynamic_cast<TPersistent*>(AncestorObject(property)));
  WriteObjectProperties(object);
  FAncestor = outer;
  FPropPath = path;
}

void TWriter::WriteCollectionProperty(const TPropInfo* property, TCollection* collection) {
  WriteNested(property, collection);
  auto* inherited = dynamic_cast<TCollection*>(AncestorObject(property));
  // Without an ancestor an empty collection is written too, as the framework does.
  if (inherited && CollectionsEqual(*collection, FRoot, *inherited, FAncestorOfRoot)) return;
  WritePropertyName(property->Name());
  WriteCollection(*collection);
}

void TWriter::WriteInterfaceProperty(TPersistent* instance, const TPropInfo* property) {
  IInterface* value = GetInterfaceProp(instance, property);
  IInterface* inherited = AncestorInterface(property);
  if (!value && WriteWaitingReference(instance, property)) return;
  if (!value && inherited) {
    WritePropertyName(property->Name());
    return FOutput.WriteConstant(fcNil);
  }
  if (TComponent* target = ComponentBehind(value)) WriteReference(property, ComponentBehind(inherited), target);
}

void TWriter::WriteMethodProperty(TPersistent* instance, const TPropInfo* property) {
  const TPropInfo* inheritedProp = ReadableProp(FAncestor, property, tkMethods);
  const TMethod inherited = inheritedProp ? GetMethodProp(FAncestor, inheritedProp) : TMethod();
  const TMethod method = GetMethodProp(instance, property);
  if (method.IsEmpty() && !inherited.IsEmpty()) {
    WritePropertyName(property->Name());
    return FOutput.WriteConstant(fcNil);
  }
  const QString name = HandlerName(method, FRoot);
  if (name.isEmpty() || name == HandlerName(inherited, FAncestorOfRoot)) return;
  WritePropertyName(property->Name());
  FOutput.WriteIdent(name);
}

}  // namespace kt
