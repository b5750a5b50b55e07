#pragma once

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Object.h"

#include <QMetaEnum>
#include <QMetaType>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <unordered_map>

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
  /// Empty for what cannot be written. May do anything, too.
  std::function<void(TValueHolder&, const QVariant&)> Write = {};
  bool IsStored = true;
  /// What a fresh object has; only with HasFresh.
  QVariant Fresh = {};
  bool HasFresh = false;
};

using TMemberPtr = std::shared_ptr<const TValueMember>;

/// Has members: the component of an object of Qt's, or a part that stands for a value made of values.
class TValueHolder {
 public:
  TValueHolder() = default;
  virtual ~TValueHolder() = default;
  TValueHolder(const TValueHolder&) = delete;
  TValueHolder& operator=(const TValueHolder&) = delete;

  /// The holder as the object that it is.
  virtual TObject& AsObject() = 0;
  /// The object that stands for a member whose value is shown as one; made by `make` when it is asked for first, and
  /// kept as long as the holder.
  TObject* Part(const TMemberPtr& member, const std::function<std::unique_ptr<TObject>()>& make);

 protected:
  void DropParts() { FParts.clear(); }

 private:
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
