#pragma once

#include "kt/rtl/typeinfo/PropAccess.h"
#include "kt/rtl/typeinfo/TypeInfo.h"

#include <QString>

#include <atomic>
#include <functional>
#include <limits>
#include <memory>

namespace kt {

/// A published property: its name, type, road to the value, declared default and stored rule.
/// Immutable but for the lazily asked type (a class may publish a property of a class that is not described yet).
///
/// That the type is what its kind says and the road belongs to the family of that kind is checked once, when the type
/// is asked for first: EPropertyError "Invalid property type: %s" with the name of the type.
class TPropInfo {
 public:
  using TTypeGetter = std::function<const TTypeInfo*()>;
  using TStoredRule = std::function<bool(TObject&)>;

  /// The default of a property that declares none: it is always written (the framework's value for "no default").
  static constexpr qint64 NoDefault = std::numeric_limits<qint32>::min();

  /// What a property is made of.
  struct TDefinition {
    QString Name;
    TTypeGetter Type;
    std::unique_ptr<TPropAccess> Access;
    qint64 Default = NoDefault;
    /// Empty for "always".
    TStoredRule Stored = {};
  };

  /// Raises EPropertyError "Invalid property" for a definition without a type or a road to the value.
  explicit TPropInfo(TDefinition definition);
  TPropInfo(const TPropInfo&) = delete;
  TPropInfo& operator=(const TPropInfo&) = delete;

  const QString& Name() const { return FDefinition.Name; }
  const TTypeInfo* PropType() const {
    const TTypeInfo* type = FType.load(std::memory_order_acquire);
    return type ? type : AskType();
  }
  TTypeKind Kind() const { return PropType()->Kind(); }
  bool IsReadable() const { return FDefinition.Access->IsReadable(); }
  bool IsWritable() const { return FDefinition.Access->IsWritable(); }
  /// The declared default as an ordinal (the bits of a set), or NoDefault.
  qint64 Default() const { return FDefinition.Default; }
  bool HasDefault() const { return FDefinition.Default != NoDefault; }
  bool IsStored(TObject& instance) const { return !FDefinition.Stored || FDefinition.Stored(instance); }

  /// The road to the value, of the family that belongs to the property's kind.
  template <class V>
  const TValueAccess<V>& AccessTo() const {
    Q_ASSERT(dynamic_cast<const TValueAccess<V>*>(FDefinition.Access.get()));
    return static_cast<const TValueAccess<V>&>(*FDefinition.Access);
  }

 private:
  const TTypeInfo* AskType() const;

  TDefinition FDefinition;
  mutable std::atomic<const TTypeInfo*> FType = nullptr;
};

}  // namespace kt
