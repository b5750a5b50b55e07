// The typed accessors of items: reading and writing the property of one inspected object.
#include "kt/KTItemListEditor/ItemWatch.h"
#include "kt/KTObjectInspector/ItemProperty.h"
#include "kt/KTObjectInspector/Messages.h"
#include "kt/KTObjectInspector/ObjectInspector.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"

namespace kt {

void TKTItemProperty::RequireReal() const {
  if (!FIsRealProperty) throw ETORVException(Format(SNotRealProperty, {GetFullPathPropName()}));
}

/// The object that has the property, and the property's name; null when there is none.
TObject* TKTItemProperty::HolderOf(int index, QString& name) {
  const TKTCustomObjectInspector* inspector = GetEditor();
  if (!inspector) return nullptr;
  const int object = index == -1 ? inspector->GetCurrentValueIndex() : index;
  const TKTInspectorObjects& objects = inspector->GetObjects();
  if (object < 0 || object >= objects.GetCount()) return nullptr;
  name = GetFullPathPropName();
  return inspector->GetInstance(objects.GetItem(object)->GetObjects(), name, this);
}

template <class T, class F>
T TKTItemProperty::ReadProperty(int index, F read) {
  RequireReal();
  QString name;
  TObject* holder = HolderOf(index, name);
  return holder ? read(holder, name) : T();
}

/// Whether an index given to a setter means that object.
bool TKTItemProperty::IsWrittenBy(int object, int index) const {
  if (index != -1) return object == index;
  const TKTCustomObjectInspector* inspector = GetEditor();
  return !inspector->IsMultiColumn() || object == inspector->GetCurrentValueIndex();
}

template <class F>
void TKTItemProperty::WriteProperty(int index, TTypeKind kind, const QString& text, F write) {
  const TItemWatch self(this);
  TKTCustomObjectInspector* inspector = GetEditor();
  const TLifeWatch watchOfInspector(inspector);
  const int place = GetAbsoluteIndex();
  if (inspector) inspector->PropertyChanging(this);
  if (!self || (inspector && !watchOfInspector.IsAlive())) return;
  if (!inspector || !FIsRealProperty) {
    SetTypeKind(kind);
    if (self) SetValue(text);
  }
  // Setters and handlers may change the inspected objects.
  for (int i = 0; inspector && self && FIsRealProperty && i < inspector->GetObjects().GetCount(); ++i) {
    if (!IsWrittenBy(i, index)) continue;
    QString name;
    if (TObject* holder = HolderOf(i, name)) write(holder, name);
    if (!watchOfInspector.IsAlive()) return;
  }
  if (inspector && watchOfInspector.IsAlive()) inspector->PropertyChanged(place);
}

// Reading.

double TKTItemProperty::GetFloatProperty(int index) {
  return ReadProperty<double>(index, [](TObject* holder, const QString& name) { return GetFloatProp(holder, name); });
}

qint64 TKTItemProperty::GetInt64Property(int index) {
  return ReadProperty<qint64>(index, [](TObject* holder, const QString& name) { return GetInt64Prop(holder, name); });
}

IInterface* TKTItemProperty::GetInterfaceProperty(int index) {
  return ReadProperty<IInterface*>(index,
                                   [](TObject* holder, const QString& name) { return GetInterfaceProp(holder, name); });
}

TMethod TKTItemProperty::GetMethodProperty(int index) {
  return ReadProperty<TMethod>(index, [](TObject* holder, const QString& name) { return GetMethodProp(holder, name); });
}

TObject* TKTItemProperty::GetObjectProperty(int index) {
  if (FPropertyKind != pkCollectionItem) {
    return ReadProperty<TObject*>(index,
                                  [](TObject* holder, const QString& name) { return GetObjectProp(holder, name); });
  }
  const TItemWatch self(this);
  TKTItemProperty* owner = GetParentItem(pkCollection);
  auto* collection = owner ? dynamic_cast<TCollection*>(owner->GetObjectProperty(-1)) : nullptr;
  return self ? ElementIn(collection, 0) : nullptr;
}

const TClassInfo* TKTItemProperty::GetObjectPropertyClass() {
  return ReadProperty<const TClassInfo*>(
      0, [](TObject* holder, const QString& name) { return GetObjectPropClass(holder, name); });
}

qint64 TKTItemProperty::GetOrdProperty(int index) {
  return ReadProperty<qint64>(index, [](TObject* holder, const QString& name) { return GetOrdProp(holder, name); });
}

QString TKTItemProperty::GetStringProperty(int index) {
  if (!FIsRealProperty) return GetValue();
  return ReadProperty<QString>(index, [](TObject* holder, const QString& name) { return GetStrProp(holder, name); });
}

Variant TKTItemProperty::GetVariantProperty(int index) {
  return ReadProperty<Variant>(index,
                               [](TObject* holder, const QString& name) { return GetVariantProp(holder, name); });
}

// Writing.

void TKTItemProperty::SetFloatProperty(double value, int index) {
  WriteProperty(index, tkFloat, Variant(value).ToString(),
                [&](TObject* holder, const QString& name) { SetFloatProp(holder, name, value); });
}

void TKTItemProperty::SetInt64Property(qint64 value, int index) {
  WriteProperty(index, tkInt64, QString::number(value),
                [&](TObject* holder, const QString& name) { SetInt64Prop(holder, name, value); });
}

void TKTItemProperty::SetInterfaceProperty(IInterface* value, int index) {
  TComponent* component = ComponentBehind(value);
  const TObjectRef watched(component);
  WriteProperty(index, tkInterface, component ? component->GetName() : QString(),
                [&](TObject* holder, const QString& name) {
                  SetInterfaceProp(holder, name, component && !watched ? nullptr : value);
                });
}

void TKTItemProperty::SetMethodProperty(const TMethod& value, int index) {
  const TMethod method = value;
  TObject* instance = method.Instance();
  const TObjectRef watched(instance);
  const QString text = instance ? instance->ClassType()->MethodName(method) : QString();
  WriteProperty(index, tkMethod, text, [&](TObject* holder, const QString& name) {
    SetMethodProp(holder, name, instance && !watched ? TMethod() : method);
  });
}

void TKTItemProperty::SetObjectProperty(TObject* value, int index) {
  const TObjectRef object(value);
  const auto* component = dynamic_cast<TComponent*>(value);
  const QString text = component ? component->GetName() : value ? u'(' + value->ClassName() + u')' : QString();
  WriteProperty(index, tkClass, text,
                [&](TObject* holder, const QString& name) { SetObjectProp(holder, name, object.Get()); });
}

void TKTItemProperty::SetOrdProperty(qint64 value, int index) {
  WriteProperty(index, tkInteger, QString::number(value),
                [&](TObject* holder, const QString& name) { SetOrdProp(holder, name, value); });
}

void TKTItemProperty::SetStringProperty(const QString& value, int index) {
  // A text of its own: `value` may be one of the item's, which a handler may free.
  const QString text = value;
  WriteProperty(index, tkLString, text, [&](TObject* holder, const QString& name) { SetStrProp(holder, name, text); });
}

void TKTItemProperty::SetVariantProperty(const Variant& value, int index) {
  const Variant own = value;
  WriteProperty(index, tkVariant, VarToStr(own),
                [&](TObject* holder, const QString& name) { SetVariantProp(holder, name, own); });
}

}  // namespace kt
