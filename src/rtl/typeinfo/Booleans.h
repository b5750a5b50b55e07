#pragma once

#include <QtGlobal>

namespace kt {

/// A Boolean stored in a wider integer, with a type name of its own. Its ordinal is 0 or -1; every other ordinal reads
/// as true.
template <class Storage>
class TWideBoolean {
 public:
  constexpr TWideBoolean() = default;
  constexpr TWideBoolean(bool value) : FValue(value) {}
  constexpr operator bool() const { return FValue; }

 private:
  bool FValue = false;
};

using ByteBool = TWideBoolean<qint8>;
using WordBool = TWideBoolean<qint16>;
using LongBool = TWideBoolean<qint32>;

}  // namespace kt
