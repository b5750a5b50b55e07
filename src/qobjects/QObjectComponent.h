#pragma once

#include "kt/qobjects/ValueMember.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/typeinfo/PropListener.h"

#include <QHash>
#include <QMetaProperty>
#include <QObject>

#include <memory>
#include <vector>

namespace kt {

class TNotifySink;

/// Stands for an object of Qt's among components; ComponentOf() gives it. The registry makes and destroys it, and tells
/// it what happens to the object.
class TQObjectComponent : public TComponent, public TValueHolder, public IPropNotifier {
 public:
  using Inherited = TComponent;

  /// The class of the components of any object.
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override;
  ~TQObjectComponent() override;

  TObject& AsObject() override { return *this; }
  QObject* Root() const override { return FindObject(); }
  std::optional<QVariant> FreshValueOf(const TValueMember& member) const override;
  void MemberChanged(const TValueMember& member) override { TellChanged(member.Name); }
  /// Names the object, too.
  void SetName(const QString& value) override;
  void AddPropListener(IPropListener* listener) override;
  void RemovePropListener(IPropListener* listener) override;

  /// The object; null from the moment its destructor runs.
  QObject* FindObject() const;
  /// No value without an object.
  QVariant Read(const QMetaProperty& property) const;
  QVariant ReadDynamic(const QByteArray& name) const;
  /// Raises EPropertyError for a value that the object does not take, and EInvalidOperation without an object. The
  /// setter may destroy both.
  void Write(const QMetaProperty& property, const QVariant& value);
  void WriteDynamic(const QByteArray& name, const QVariant& value);
  /// By the property's own way; false when nothing came of it.
  bool Reset(const QMetaProperty& property);

  // For the registry.

  /// The address of the object, also of one that is gone.
  const QObject* Key() const { return FKey; }
  /// The object's name has changed, or those around it.
  void FollowName();
  /// To become another one's child the component must not have a name that is taken there.
  void DropName() { ChangeName(QString()); }
  void DynamicChanged(const QByteArray& name);
  bool HasListeners() const { return !FListeners.empty(); }
  void TellChanged(const QString& name);
  /// The object itself has told of a change.
  void PropertyTold(const QString& name);
  /// The object is gone: whatever happens until the component is, too, leaves it alone.
  void LoseObject();
  /// Whether the component goes because its object has gone.
  bool HasLostObject() const { return FHasLostObject; }

 protected:
  explicit TQObjectComponent(QObject& object);

  void Destruct() override;

 private:
  QObject& ObjectInUse() const;
  void WriteWide(const QMetaProperty& property, QVariant value);
  QString FreeNameFor(const QString& wanted) const;
  void TellListChanged();

  QObject* FObject;
  const QObject* const FKey;
  /// The class of the object when it was complete; another one says that it is not any more.
  mutable const QMetaObject* FMeta;
  mutable const TClassInfo* FClass = nullptr;
  mutable int FClassGeneration = 0;
  std::vector<IPropListener*> FListeners;
  bool FHasLostObject = false;
  /// By the names of children's objects, the number of the next one of that name.
  QHash<QString, int> FNextNamesakes;
  std::unique_ptr<TNotifySink> FSink;
};

}  // namespace kt
