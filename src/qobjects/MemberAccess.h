#pragma once

#include "kt/qobjects/ValueMember.h"
#include "kt/rtl/typeinfo/PropAccess.h"

#include <QStringList>

namespace kt {

class TPropInfo;

/// How a member is shown and typed where reflection has no words for it. Each may be empty.
struct TMemberTexts {
  std::function<QString(TValueHolder&)> ToText = {};
  /// False for what reflection is to write.
  std::function<bool(TValueHolder&, const QString&)> FromText = {};
  /// What can be chosen.
  std::function<QStringList(TValueHolder&)> Choices = {};
};

/// The road to a member, whatever passes along.
class IMemberAccess {
 public:
  virtual const TMemberPtr& Member() const = 0;
  virtual const TMemberTexts& Texts() const = 0;

 protected:
  virtual ~IMemberAccess() = default;
};

/// The road to a member whose values pass through reflection as V. An empty function closes its direction.
template <class V>
class TMemberAccess final : public TValueAccess<V>, public IMemberAccess {
 public:
  using TGetter = std::function<V(TObject&)>;
  using TSetter = std::function<void(TObject&, const V&)>;

  TMemberAccess(TMemberPtr member, TGetter getter, TSetter setter, TMemberTexts texts)
      : TValueAccess<V>(bool(getter), bool(setter)),
        FMember(std::move(member)),
        FGetter(std::move(getter)),
        FSetter(std::move(setter)),
        FTexts(std::move(texts)) {}

  V Get(TObject& instance) const override { return FGetter(instance); }
  void Set(TObject& instance, const V& value) const override { FSetter(instance, value); }
  const TMemberPtr& Member() const override { return FMember; }
  const TMemberTexts& Texts() const override { return FTexts; }

 private:
  TMemberPtr FMember;
  TGetter FGetter;
  TSetter FSetter;
  TMemberTexts FTexts;
};

/// The road of a property; null for those that are no members.
const IMemberAccess* FindMemberAccess(const TPropInfo& property);

}  // namespace kt
