#pragma once

#include <QtGlobal>

#include <bit>
#include <initializer_list>
#include <type_traits>

namespace kt {

/// The integer that holds the members of a TSet. Specialise for enumerations with more than 32 values.
template <class E>
struct TSetStorage {
  using Type = quint32;
};

/// A set of values of an enumeration, a value itself. Bit n stands for ordinal n, which is also how the set is
/// streamed. Ordinals run from 0 to 31 (63 with a wider TSetStorage).
template <class E>
class TSet {
 public:
  using TElement = E;
  using TBits = typename TSetStorage<E>::Type;

  constexpr TSet() = default;
  constexpr TSet(std::initializer_list<E> members) {
    for (E member : members) Include(member);
  }
  static constexpr TSet FromBits(TBits bits) {
    TSet result;
    result.FBits = bits;
    return result;
  }
  /// All values from `first` to `last`, both included.
  static constexpr TSet Range(E first, E last) {
    TSet result;
    for (int ordinal = first; ordinal <= last; ++ordinal) result.Include(static_cast<E>(ordinal));
    return result;
  }

  constexpr TBits Bits() const { return FBits; }
  constexpr bool IsEmpty() const { return FBits == 0; }
  constexpr int Count() const { return std::popcount(FBits); }
  constexpr bool Has(E member) const { return (FBits & BitOf(member)) != 0; }
  constexpr void Include(E member) { FBits |= BitOf(member); }
  constexpr void Exclude(E member) { FBits &= ~BitOf(member); }
  /// Includes or excludes `member`.
  constexpr void Put(E member, bool present) { present ? Include(member) : Exclude(member); }
  constexpr bool IsSubsetOf(TSet other) const { return (FBits & ~other.FBits) == 0; }

  friend constexpr TSet operator+(TSet a, TSet b) { return FromBits(a.FBits | b.FBits); }
  friend constexpr TSet operator-(TSet a, TSet b) { return FromBits(a.FBits & ~b.FBits); }
  friend constexpr TSet operator*(TSet a, TSet b) { return FromBits(a.FBits & b.FBits); }
  constexpr TSet& operator+=(TSet other) { return *this = *this + other; }
  constexpr TSet& operator-=(TSet other) { return *this = *this - other; }
  friend constexpr bool operator==(TSet a, TSet b) = default;

 private:
  static constexpr TBits BitOf(E member) { return TBits{1} << static_cast<int>(member); }

  TBits FBits = 0;
};

template <class T>
inline constexpr bool IsSet = false;
template <class E>
inline constexpr bool IsSet<TSet<E>> = true;

}  // namespace kt
