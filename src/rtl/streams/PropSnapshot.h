#pragma once

#include "kt/rtl/conversions/Variant.h"
#include "kt/rtl/objects/LifeTable.h"
#include "kt/rtl/typeinfo/Event.h"

#include <QString>

#include <variant>
#include <vector>

namespace kt {

class IInterface;
class TPersistent;
class TPropInfo;

/// The values that the published properties of an object had, to be given back to it. Left out is what cannot be
/// written, read (a getter that raises) or watched (an interface whose object is no TObject).
class TPropSnapshot {
 public:
  TPropSnapshot(TPersistent& object, TLifeTable& lives);

  bool IsOfLiving() const { return FLives.IsAlive(FObject); }
  TPersistent& Object() const;
  /// The objects that live in properties, as a font does, and not elsewhere.
  const std::vector<TLifeTable::TLife>& Parts() const { return FParts; }
  /// Writes what differs now, the last property first; answers whether anything did. What a setter raises is reported
  /// (HandleException()), once for each property. References to objects that are gone are left alone.
  bool WriteBack() noexcept;

 private:
  using TData = std::variant<qint64, long double, QString, Variant, TMethod, TObject*, IInterface*>;
  struct TValue {
    const TPropInfo* Property;
    TData Data;
    /// The object that the data refer to.
    TLifeTable::TLife Target = {};
  };

  void Take(const TPropInfo* property);
  bool WriteBack(TValue& value);
  static TData DataOf(TPersistent& object, const TPropInfo* property);
  static bool AreEqual(const TData& a, const TData& b);
  static void Write(TPersistent& object, const TValue& value);

  TLifeTable& FLives;
  TLifeTable::TLife FObject;
  std::vector<TValue> FValues;
  std::vector<TLifeTable::TLife> FParts;
};

}  // namespace kt
