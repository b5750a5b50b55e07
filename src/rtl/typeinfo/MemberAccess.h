#pragma once

#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/PropAccess.h"
#include "kt/rtl/typeinfo/TypeOf.h"

#include <cmath>
#include <concepts>
#include <functional>
#include <type_traits>

namespace kt {

/// The ordinal of a value that an ordinal property can have: a number, character, Boolean, enumerator or set (its
/// bits).
template <class V>
constexpr qint64 OrdinalOf(const V& value) {
  if constexpr (IsSet<V>) {
    return static_cast<qint64>(value.Bits());
  } else if constexpr (IsWideBoolean<V>) {
    return value ? -1 : 0;
  } else if constexpr (std::same_as<V, QChar>) {
    return value.unicode();
  } else if constexpr (std::same_as<V, char>) {
    return static_cast<unsigned char>(value);
  } else {
    return static_cast<qint64>(value);
  }
}

/// The value of an ordinal. What lies outside the type is cut off; range checks are the caller's.
template <class V>
constexpr V ValueOfOrdinal(qint64 ordinal) {
  if constexpr (IsSet<V>) {
    return V::FromBits(static_cast<typename V::TBits>(ordinal));
  } else if constexpr (IsWideBoolean<V> || std::same_as<V, bool>) {
    return ordinal != 0;
  } else if constexpr (std::same_as<V, QChar>) {
    return QChar(static_cast<char16_t>(ordinal));
  } else {
    return static_cast<V>(ordinal);
  }
}

template <class V>
concept IsOrdinal = std::integral<V> || std::is_enum_v<V> || IsSet<V> || IsWideBoolean<V> || std::same_as<V, QChar>;
template <class V>
concept IsFloating = std::floating_point<V> || std::same_as<V, Currency>;
template <class V>
concept IsInterfacePointer = std::is_pointer_v<V> && std::derived_from<std::remove_pointer_t<V>, IInterface> &&
    !std::derived_from<std::remove_pointer_t<V>, TObject>;

namespace MemberAccess {

/// The type that reflection passes a property of C++ type V as.
template <class V>
struct TPassedAs {
  using Type = V;  // QString, Variant
};
template <IsOrdinal V>
struct TPassedAs<V> {
  using Type = qint64;
};
template <IsFloating V>
struct TPassedAs<V> {
  using Type = long double;
};
template <std::derived_from<TObject> V>
struct TPassedAs<V> {
  using Type = TObject*;
};
template <std::derived_from<TObject> V>
struct TPassedAs<V*> {
  using Type = TObject*;
};
template <IsInterfacePointer V>
struct TPassedAs<V> {
  using Type = IInterface*;
};
template <IsEvent V>
struct TPassedAs<V> {
  using Type = TMethod;
};

/// `method` when an event of type V can hold it; raises EPropertyConvertError otherwise.
const TMethod& CheckedMethod(const TMethod& method, bool accepted, const char* typeName);
template <IsEvent V>
const TMethod& Checked(const TMethod& method) {
  return CheckedMethod(method, V::Accepts(method), V::TypeName);
}
[[noreturn]] void RaiseCannotAssignNil(const TClassInfo* target);
[[noreturn]] void RaiseInvalidCast();
[[noreturn]] void RaiseRangeError();
/// The nearest number of a type that may be narrower; raises ERangeError when that would be an infinity made of a
/// finite value. Infinities and NaN stay what they are.
template <std::floating_point V>
V NarrowedFloat(long double value) {
  const auto narrowed = static_cast<V>(value);
  if (std::isinf(narrowed) && !std::isinf(value)) RaiseRangeError();
  return narrowed;
}
/// An amount on the road of floating-point numbers, and back: the nearest amount, halves to even. Raises ERangeError
/// for values that do not fit and for NaN.
long double FloatOfAmount(Currency amount);
Currency AmountOfFloat(long double value);

template <auto Member>
inline constexpr bool IsDataMember = std::is_member_object_pointer_v<decltype(Member)>;

}  // namespace MemberAccess

/// The road to a property of class C through a getter and a setter known at compile time, so that a reflected read is
/// one virtual call around the getter itself.
template <class C, auto Getter, auto Setter>
class TMemberAccess final
    : public TValueAccess<
          typename MemberAccess::TPassedAs<std::remove_cvref_t<std::invoke_result_t<decltype(Getter), C&>>>::Type> {
  using TResult = std::invoke_result_t<decltype(Getter), C&>;

 public:
  /// The C++ type of the property.
  using TValue = std::remove_cvref_t<TResult>;
  using TPassed = typename MemberAccess::TPassedAs<TValue>::Type;

  TMemberAccess() : TValueAccess<TPassed>(true, IsSettable) {}

  TPassed Get(TObject& instance) const override { return Pass(std::invoke(Getter, static_cast<C&>(instance))); }

  void Set(TObject& instance, const TPassed& value) const override {
    if constexpr (IsSettable) Store(static_cast<C&>(instance), value);
  }

 private:
  static constexpr bool HasSetter = !std::is_null_pointer_v<decltype(Setter)>;
  static constexpr bool IsSettable = HasSetter || MemberAccess::IsDataMember<Getter>;

  static TPassed Pass(TResult value) {
    if constexpr (IsOrdinal<TValue>) {
      return OrdinalOf<TValue>(value);
    } else if constexpr (std::same_as<TValue, Currency>) {
      return MemberAccess::FloatOfAmount(value);
    } else if constexpr (std::is_pointer_v<TValue>) {
      return const_cast<std::remove_const_t<std::remove_pointer_t<TValue>>*>(value);
    } else if constexpr (std::same_as<TPassed, TObject*>) {
      return const_cast<TValue*>(&value);
    } else {
      return static_cast<TPassed>(value);
    }
  }

  static void Store(C& object, const TPassed& value) {
    if constexpr (IsOrdinal<TValue>) {
      Assign(object, ValueOfOrdinal<TValue>(value));
    } else if constexpr (IsEvent<TValue>) {
      TValue event;
      event.SetMethod(MemberAccess::Checked<TValue>(value));
      Assign(object, event);
    } else if constexpr (std::same_as<TPassed, TObject*>) {
      StoreObject(object, value);
    } else if constexpr (std::same_as<TPassed, IInterface*>) {
      auto* target = dynamic_cast<TValue>(value);
      if (value && !target) MemberAccess::RaiseInvalidCast();
      Assign(object, target);
    } else if constexpr (std::same_as<TValue, Currency>) {
      Assign(object, MemberAccess::AmountOfFloat(value));
    } else if constexpr (std::floating_point<TValue>) {
      Assign(object, MemberAccess::NarrowedFloat<TValue>(value));
    } else {
      Assign(object, static_cast<TValue>(value));
    }
  }

  /// A setter that takes a reference copies and has no use for null; one that takes a pointer refers.
  static void StoreObject(C& object, TObject* value) {
    using TTarget = std::remove_const_t<std::remove_pointer_t<TValue>>;
    auto* target = static_cast<TTarget*>(value);
    if constexpr (!HasSetter || std::is_invocable_v<decltype(Setter), C&, TTarget*>) {
      Assign(object, target);
    } else {
      if (!target) MemberAccess::RaiseCannotAssignNil(TTarget::Class());
      Assign(object, *target);
    }
  }

  template <class V>
  static void Assign(C& object, V&& value) {
    if constexpr (HasSetter) {
      std::invoke(Setter, object, std::forward<V>(value));
    } else {
      std::invoke(Getter, object) = std::forward<V>(value);
    }
  }
};

}  // namespace kt
