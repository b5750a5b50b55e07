#include "kt/qobjects/QObjectComponent.h"

#include "kt/qobjects/Messages.h"
#include "kt/qobjects/NotifySink.h"
#include "kt/qobjects/QObjectClasses.h"
#include "kt/qobjects/QObjectRegistry.h"
#include "kt/qobjects/ValueEnums.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <algorithm>
#include <utility>

namespace kt {

const TClassInfo* TQObjectComponent::Class() { return QObjectClassOf(&QObject::staticMetaObject); }

TQObjectComponent::TQObjectComponent(QObject& object) : FObject(&object), FKey(&object), FMeta(object.metaObject()) {}

TQObjectComponent::~TQObjectComponent() = default;

void TQObjectComponent::Destruct() {
  QObjectRegistry().Forget(*this);
  // Nobody tells from now on when the object goes.
  FObject = nullptr;
  FListeners.clear();
  FSink.reset();
  DropParts();
  TComponent::Destruct();
}

// The object.

QObject* TQObjectComponent::FindObject() const {
  if (!FObject) return nullptr;
  const QMetaObject* meta = FObject->metaObject();
  if (meta == FMeta) return FObject;
  // In its destructors an object goes back through its ancestors; in its constructors it comes the other way.
  if (!meta->inherits(FMeta)) return nullptr;
  FMeta = meta;
  FClass = nullptr;
  return FObject;
}

QObject& TQObjectComponent::ObjectInUse() const {
  QObject* object = FindObject();
  if (!object) throw EInvalidOperation(SObjectFreed.toString());
  return *object;
}

const TClassInfo* TQObjectComponent::ClassType() const {
  const QObject* object = FindObject();
  if (FClass && FClassGeneration == QObjectClassGeneration()) return FClass;
  FClassGeneration = QObjectClassGeneration();
  return FClass = object ? QObjectClassWithDynamic(*object) : QObjectClassOf(FMeta);
}

// Properties.

QVariant TQObjectComponent::Read(const QMetaProperty& property) const {
  QObject* object = FindObject();
  return object ? property.read(object) : QVariant();
}

QVariant TQObjectComponent::ReadDynamic(const QByteArray& name) const {
  const QObject* object = FindObject();
  return object ? object->property(name.constData()) : QVariant();
}

void TQObjectComponent::Write(const QMetaProperty& property, const QVariant& value) {
  if (IsWideEnum(property.metaType()) && value.metaType() == property.metaType()) return WriteWide(property, value);
  if (property.write(&ObjectInUse(), value)) return;
  throw EPropertyError(Format(SValueNotTaken, {QLatin1StringView(property.name()),
                                               QLatin1StringView(property.enclosingMetaObject()->className())}));
}

/// QMetaProperty would pass 32 bits on.
void TQObjectComponent::WriteWide(const QMetaProperty& property, QVariant value) {
  QVariant whole = value;
  int status = -1;
  int flags = 0;
  void* arguments[] = {value.data(), &whole, &status, &flags};
  QMetaObject::metacall(&ObjectInUse(), QMetaObject::WriteProperty, property.propertyIndex(), arguments);
}

bool TQObjectComponent::Reset(const QMetaProperty& property) { return property.reset(&ObjectInUse()); }

std::optional<QVariant> TQObjectComponent::FreshValueOf(const TValueMember& member) const {
  return member.HasFresh ? std::optional(member.Fresh) : std::nullopt;
}

void TQObjectComponent::LoseObject() {
  FObject = nullptr;
  FHasLostObject = true;
}

void TQObjectComponent::WriteDynamic(const QByteArray& name, const QVariant& value) {
  ObjectInUse().setProperty(name.constData(), value);
}

// The name.

void TQObjectComponent::SetName(const QString& value) {
  // That of an object whose name is none for a component is empty, and stays the object's.
  if (value == GetName()) return;
  const TLifeWatch self(this);
  TComponent::SetName(value);
  QObject* object = self.IsAlive() ? FindObject() : nullptr;
  if (object && object->objectName() != value) object->setObjectName(value);
}

/// That name, or one made of it where a sibling has it already.
QString TQObjectComponent::FreeNameFor(const QString& wanted) const {
  TComponent* owner = GetOwnerComponent();
  const TComponent* namesake = owner ? owner->FindComponent(wanted) : nullptr;
  if (!namesake || namesake == this) return wanted;
  const QString stem = wanted + u'_';
  // The one that it has is as good as any.
  QString present = GetName();
  bool isNumbered = false;
  if (present.startsWith(stem)) present.mid(stem.size()).toUInt(&isNumbered);
  if (isNumbered) return present;
  auto* known = dynamic_cast<TQObjectComponent*>(owner);
  int number = known ? known->FNextNamesakes.value(wanted, 2) : 2;
  while (owner->FindComponent(stem + QString::number(number))) ++number;
  if (known) known->FNextNamesakes[wanted] = number + 1;
  return stem + QString::number(number);
}

void TQObjectComponent::FollowName() {
  const QObject* object = FindObject();
  const QString wanted = object ? object->objectName() : QString();
  const QString name = IsValidIdent(wanted) ? FreeNameFor(wanted) : QString();
  if (name == GetName()) return;
  ChangeName(name);
  TellChanged(QStringLiteral("Name"));
}

// Changes.

void TQObjectComponent::AddPropListener(IPropListener* listener) {
  if (std::find(FListeners.begin(), FListeners.end(), listener) != FListeners.end()) return;
  FListeners.push_back(listener);
  QObject* object = FSink ? nullptr : FindObject();
  if (object) FSink = std::make_unique<TNotifySink>(*object, *this);
}

void TQObjectComponent::RemovePropListener(IPropListener* listener) {
  FListeners.erase(std::remove(FListeners.begin(), FListeners.end(), listener), FListeners.end());
  if (FListeners.empty()) FSink.reset();
}

void TQObjectComponent::TellChanged(const QString& name) {
  for (IPropListener* listener : FListeners) listener->PropChanged(this, name);
}

void TQObjectComponent::PropertyTold(const QString& name) {
  ReferenceTold(name);
  TellChanged(name);
}

void TQObjectComponent::TellListChanged() {
  for (IPropListener* listener : FListeners) listener->PropListChanged(this);
}

void TQObjectComponent::DynamicChanged(const QByteArray& name) {
  const QObject* object = FindObject();
  if (!object) return;
  const TClassInfo* before = std::exchange(FClass, nullptr);
  if (before && before == ClassType()) return PropertyTold(PublishedDynamicName(*object, name));
  TellListChanged();
}

}  // namespace kt
