#pragma once

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Object.h"
#include "kt/rtl/typeinfo/PropView.h"

#include <QMetaEnum>
#include <QMetaType>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>

class QObject;

namespace kt {

class TValueHolder;

/// A value that an object of Qt's, or a value made of values, has under a name. Immutable once a property is made of
/// it.
struct TValueMember {
  QString Name;
  QMetaType Type;
  /// For enumerations and flags.
  QMetaEnum Enumeration = {};
  /// May do anything, as getters do: the holder can be gone afterwards.
  std::function<QVariant(TValueHolder&)> Read;
  /// What a value of the holder's type has as this member; only for members of values.
  std::function<QVariant(const QVariant&)> Pick = {};
  /// Empty for what cannot be written. May do anything, too.
  std::function<void(TValueHolder&, const QVariant&)> Write = {};
  /// The member's own way back to its value before any change; empty for none. False when nothing came of it.
  std::function<bool(TValueHolder&)> Reset = {};
  bool IsStored = true;
  /// What a fresh object has; only with HasFresh.
  QVariant Fresh = {};
  bool HasFresh = false;
};

using TMemberPtr = std::shared_ptr<const TValueMember>;

class TReferenceWatch;

/// Has members: the component of an object of Qt's, or a part that stands for a value made of values.
class TValueHolder : public IPropView {
 public:
  TValueHolder();
  ~TValueHolder() override;
  TValueHolder(const TValueHolder&) = delete;
  TValueHolder& operator=(const TValueHolder&) = delete;

  /// The holder as the object that it is.
  virtual TObject& AsObject() = 0;
  /// The object of Qt's that all is part of; null once it is gone.
  virtual QObject* Root() const = 0;
  /// What a member is in a fresh object; nothing where that is not known.
  virtual std::optional<QVariant> FreshValueOf(const TValueMember& member) const = 0;
  /// A member may have another value.
  virtual void MemberChanged(const TValueMember& member) = 0;
  /// The object that stands for a member whose value is shown as one; made by `make` when it is asked for first, and
  /// kept as long as the holder.
  TObject* Part(const TMemberPtr& member, const std::function<std::unique_ptr<TObject>()>& make);
  /// The objects that members point to.
  TReferenceWatch& References();

  std::optional<QString> PropText(const TPropInfo& property) override;
  bool TakesPropText(const TPropInfo& property) override;
  bool SetPropText(const TPropInfo& property, const QString& text) override;
  bool HasPropChoices(const TPropInfo& property) override;
  QStringList PropChoices(const TPropInfo& property) override;
  bool IsPropChanged(const TPropInfo& property) override;
  bool CanResetProp(const TPropInfo& property) override;
  bool ResetProp(const TPropInfo& property) override;

 protected:
  /// Of what is kept for members.
  void DropParts();
  /// The owner of what a member points to has told of a change.
  void ReferenceTold(const QString& member);

 private:
  std::unique_ptr<TReferenceWatch> FReferences;
  std::unordered_map<const TValueMember*, std::unique_ptr<TObject>> FParts;
};

/// The holder that an object with such members is.
TValueHolder& HolderIn(TObject& object);

/// Whether two values of a member are the same; false where their type cannot tell.
bool IsSameValue(const QVariant& a, const QVariant& b);

/// Writes what `make` makes of the present value, unless that is the same. The object may be gone afterwards.
template <class F>
void ChangeMember(TObject& object, const TValueMember& member, F make) {
  const TLifeWatch watch(&object);
  const QVariant current = member.Read(HolderIn(object));
  if (!watch.IsAlive()) return;
  const QVariant value = make(current);
  if (!IsSameValue(current, value)) member.Write(HolderIn(object), value);
}

}  // namespace kt
