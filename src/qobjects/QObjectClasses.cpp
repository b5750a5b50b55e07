#include "kt/qobjects/QObjectClasses.h"

#include "kt/qobjects/ComponentOf.h"
#include "kt/qobjects/FreshValues.h"
#include "kt/qobjects/PropertyKinds.h"
#include "kt/qobjects/QObjectComponent.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <QMetaProperty>

#include <map>
#include <utility>
#include <vector>

namespace kt {

namespace {

bool ListsHidden = false;
int Generation = 0;

TQObjectComponent& ComponentIn(TValueHolder& holder) { return static_cast<TQObjectComponent&>(holder); }

/// Whether another property of the same name stands for this one: that of the nearest descendant, unless an ancestor
/// has said that its own is final.
bool IsShadowed(const QMetaObject& meta, int index) {
  const QMetaProperty property = meta.property(index);
  for (int i = 0; i < meta.propertyCount(); ++i) {
    const QMetaProperty other = meta.property(i);
    if (i == index || qstrcmp(other.name(), property.name()) != 0) continue;
    if (i < index ? other.isFinal() : !property.isFinal()) return true;
  }
  return false;
}

bool IsPublished(const QMetaObject& meta, int index) {
  return meta.property(index).isReadable() && !IsShadowed(meta, index);
}

bool IsListed(const QMetaObject& meta, int index) {
  return meta.property(index).isDesignable() && IsPublished(meta, index);
}

TMemberPtr MemberOf(const QMetaObject& meta, int index, const TFreshValues* fresh) {
  const QMetaProperty property = meta.property(index);
  TValueMember member;
  member.Name = PublishedPropertyName(meta, index);
  member.Type = property.metaType();
  if (property.isEnumType()) member.Enumeration = property.enumerator();
  member.Read = [property](TValueHolder& holder) { return ComponentIn(holder).Read(property); };
  if (property.isWritable() && !property.isConstant()) {
    member.Write = [property](TValueHolder& holder, const QVariant& value) {
      ComponentIn(holder).Write(property, value);
    };
  }
  if (property.isResettable()) {
    member.Reset = [property](TValueHolder& holder) { return ComponentIn(holder).Reset(property); };
  }
  member.IsStored = property.isStored();
  member.HasFresh = fresh && fresh->Has(index);
  if (member.HasFresh) member.Fresh = fresh->Value(index);
  return std::make_shared<const TValueMember>(std::move(member));
}

/// A class of which there is a fresh object publishes what it inherits, too: the defaults are its own.
TClassInfo::TDefinition DefinitionOf(const QMetaObject& meta) {
  const QMetaObject* parent = meta.superClass();
  TClassInfo::TDefinition definition{.Name = QString::fromUtf8(meta.className()),
                                     .Parent = parent ? QObjectClassOf(parent) : TComponent::Class()};
  const TFreshValues* fresh = FreshValuesFor(meta);
  for (int i = fresh ? 0 : meta.propertyOffset(); i < meta.propertyCount(); ++i) {
    if (IsListed(meta, i)) definition.Properties.push_back(DefineProperty(MemberOf(meta, i, fresh)));
  }
  return definition;
}

/// The class with what it hides from designers.
TClassInfo::TDefinition FullDefinitionOf(const QMetaObject& meta) {
  const TClassInfo* listed = QObjectClassOf(&meta);
  TClassInfo::TDefinition definition{.Name = listed->ClassName(), .Parent = listed};
  const TFreshValues* fresh = FreshValuesFor(meta);
  for (int i = 0; i < meta.propertyCount(); ++i) {
    const bool isHidden = IsPublished(meta, i) && !IsListed(meta, i);
    if (isHidden) definition.Properties.push_back(DefineProperty(MemberOf(meta, i, fresh)));
  }
  return definition;
}

const TClassInfo* FullClassOf(const QMetaObject* meta) {
  static std::map<const QMetaObject*, std::unique_ptr<const TClassInfo>> known;
  auto& info = known[meta];
  if (!info) info = std::make_unique<const TClassInfo>(FullDefinitionOf(*meta));
  return info.get();
}

/// Without dynamic properties.
const TClassInfo* ListedClassOf(const QMetaObject* meta) {
  return ListsHidden ? FullClassOf(meta) : QObjectClassOf(meta);
}

// Dynamic properties.

struct TDynamicProperty {
  QByteArray Name;
  QMetaType Type;
};

/// Qt keeps notes of its own in dynamic properties.
bool IsQtsOwn(const QByteArray& name) { return name.startsWith("_q_"); }

std::vector<TDynamicProperty> DynamicPropertiesOf(const QObject& object) {
  std::vector<TDynamicProperty> properties;
  for (const QByteArray& name : object.dynamicPropertyNames()) {
    if (!ListsHidden && IsQtsOwn(name)) continue;
    properties.push_back({name, object.property(name.constData()).metaType()});
  }
  return properties;
}

QByteArray SignatureOf(const std::vector<TDynamicProperty>& properties) {
  QByteArray signature;
  for (const TDynamicProperty& property : properties) {
    signature += property.Name + '\0' + QByteArray::number(property.Type.id()) + '\0';
  }
  return signature;
}

/// What dynamic properties are published as: no name is that of another property, but for case.
QStringList FreeNames(const TClassInfo& base, const std::vector<TDynamicProperty>& properties) {
  QStringList names;
  for (const TDynamicProperty& property : properties) {
    QString name = QString::fromUtf8(property.Name);
    while (base.FindProp(name) || names.contains(name, Qt::CaseInsensitive)) name += u'_';
    names += name;
  }
  return names;
}

TMemberPtr DynamicMember(const TDynamicProperty& property, const QString& name) {
  TValueMember member;
  member.Name = name;
  member.Type = property.Type;
  member.Read = [name = property.Name](TValueHolder& holder) { return ComponentIn(holder).ReadDynamic(name); };
  member.Write = [name = property.Name](TValueHolder& holder, const QVariant& value) {
    ComponentIn(holder).WriteDynamic(name, value);
  };
  return std::make_shared<const TValueMember>(std::move(member));
}

}  // namespace

const TClassInfo* QObjectClassOf(const QMetaObject* meta) {
  static std::map<const QMetaObject*, std::unique_ptr<const TClassInfo>> known;
  if (const auto found = known.find(meta); found != known.end()) return found->second.get();
  auto made = std::make_unique<const TClassInfo>(DefinitionOf(*meta));
  // A constructor that ran for the defaults may have asked for the same.
  return known.try_emplace(meta, std::move(made)).first->second.get();
}

const TClassInfo* QObjectClassWithDynamic(const QObject& object) {
  static std::map<std::pair<const TClassInfo*, QByteArray>, std::unique_ptr<const TClassInfo>> known;
  const TClassInfo* base = ListedClassOf(object.metaObject());
  const std::vector<TDynamicProperty> properties = DynamicPropertiesOf(object);
  if (properties.empty()) return base;
  auto& info = known[{base, SignatureOf(properties)}];
  if (info) return info.get();
  TClassInfo::TDefinition definition{.Name = base->ClassName(), .Parent = base};
  const QStringList names = FreeNames(*base, properties);
  for (size_t i = 0; i < properties.size(); ++i) {
    const QString& name = names[static_cast<qsizetype>(i)];
    definition.Properties.push_back(DefineProperty(DynamicMember(properties[i], name)));
  }
  info = std::make_unique<const TClassInfo>(std::move(definition));
  return info.get();
}

QString PublishedDynamicName(const QObject& object, const QByteArray& name) {
  const std::vector<TDynamicProperty> properties = DynamicPropertiesOf(object);
  const QStringList names = FreeNames(*ListedClassOf(object.metaObject()), properties);
  for (size_t i = 0; i < properties.size(); ++i) {
    if (properties[i].Name == name) return names[static_cast<qsizetype>(i)];
  }
  return QString::fromUtf8(name);
}

int QObjectClassGeneration() { return Generation; }

bool GetListsHiddenProperties() { return ListsHidden; }

void SetListsHiddenProperties(bool value) {
  if (ListsHidden == value) return;
  ListsHidden = value;
  ++Generation;
}

QString PublishedPropertyName(const QMetaObject& meta, int index) {
  const QString own = QString::fromUtf8(meta.property(index).name());
  QString name = own;
  for (int i = 0; i < index; ++i) {
    const QString other = QString::fromUtf8(meta.property(i).name());
    if (other != own && SameText(other, name)) name += u'_';
  }
  return name;
}

int FindPublishedProperty(const QMetaObject& meta, QStringView name) {
  for (int i = meta.propertyCount() - 1; i >= 0; --i) {
    if (SameText(PublishedPropertyName(meta, i), name) && IsPublished(meta, i)) return i;
  }
  return -1;
}

}  // namespace kt
