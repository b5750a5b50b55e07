#pragma once

#include "kt/rtl/objects/Interface.h"
#include "kt/rtl/typeinfo/Booleans.h"
#include "kt/rtl/typeinfo/Event.h"
#include "kt/rtl/typeinfo/Set.h"
#include "kt/rtl/typeinfo/TypeInfo.h"

#include <QChar>
#include <QString>

#include <concepts>
#include <iterator>
#include <limits>
#include <type_traits>

namespace kt {

class Currency;
class Variant;
class TClassInfo;

/// The names of an enumeration. Specialise next to the enumeration:
///   template <> struct TEnumNames<TAlign> {
///     static constexpr char Name[] = "TAlign";
///     static constexpr const char* Values[] = {"alNone", "alTop"};   // ordinals 0, 1, ...
///     static constexpr char SetName[] = "TAligns";                   // only where sets of it are published
///   };
template <class E>
struct TEnumNames;

template <class T>
concept IsNamedEnum = std::is_enum_v<T> && requires {
  TEnumNames<T>::Values;
};
template <class T>
concept IsWideBoolean = std::same_as<T, ByteBool> || std::same_as<T, WordBool> || std::same_as<T, LongBool>;
template <class T>
concept IsCharacter = std::same_as<T, char> || std::same_as<T, QChar> || std::same_as<T, char16_t>;
template <class T>
concept IsInteger = std::integral<T> && !std::same_as<T, bool> && !IsCharacter<T>;

/// The type infos that other type infos and reflection itself refer to.
namespace TypeInfos {
const TEnumTypeInfo* Boolean();
const TTypeInfo* ByteBoolean();
const TTypeInfo* WordBoolean();
const TTypeInfo* LongBoolean();
const TTypeInfo* AnsiCharacter();
const TTypeInfo* WideCharacter();
const TTypeInfo* Integer(int bytes, bool isSigned);
const TTypeInfo* Floating(TFloatType storage);
const TTypeInfo* LongString();
const TTypeInfo* WideText();
const TTypeInfo* ShortText();
/// Texts with types of their own, so that editors tell them from any other.
const TTypeInfo* FileName();
const TTypeInfo* ComponentName();
const TTypeInfo* VariantType();
const TTypeInfo* DateTime();
const TTypeInfo* Date();
const TTypeInfo* Time();
const TTypeInfo* OfClass(const TClassInfo* classInfo);
}  // namespace TypeInfos

/// The type info of a C++ type that a published property has. Pointers and references to framework classes stand for
/// the class.
template <class T>
struct TTypeOf;

template <class T>
const TTypeInfo* TypeInfoOf() {
  return TTypeOf<std::remove_cvref_t<T>>::Info();
}

template <>
struct TTypeOf<bool> {
  static const TTypeInfo* Info() { return TypeInfos::Boolean(); }
};
template <>
struct TTypeOf<ByteBool> {
  static const TTypeInfo* Info() { return TypeInfos::ByteBoolean(); }
};
template <>
struct TTypeOf<WordBool> {
  static const TTypeInfo* Info() { return TypeInfos::WordBoolean(); }
};
template <>
struct TTypeOf<LongBool> {
  static const TTypeInfo* Info() { return TypeInfos::LongBoolean(); }
};
template <>
struct TTypeOf<char> {
  static const TTypeInfo* Info() { return TypeInfos::AnsiCharacter(); }
};
template <>
struct TTypeOf<QChar> {
  static const TTypeInfo* Info() { return TypeInfos::WideCharacter(); }
};
template <>
struct TTypeOf<char16_t> : TTypeOf<QChar> {};
template <IsInteger T>
struct TTypeOf<T> {
  static const TTypeInfo* Info() { return TypeInfos::Integer(sizeof(T), std::signed_integral<T>); }
};
template <>
struct TTypeOf<float> {
  static const TTypeInfo* Info() { return TypeInfos::Floating(ftSingle); }
};
template <>
struct TTypeOf<double> {
  static const TTypeInfo* Info() { return TypeInfos::Floating(ftDouble); }
};
template <>
struct TTypeOf<long double> {
  static const TTypeInfo* Info() { return TypeInfos::Floating(ftExtended); }
};
template <>
struct TTypeOf<Currency> {
  static const TTypeInfo* Info() { return TypeInfos::Floating(ftCurr); }
};
template <>
struct TTypeOf<QString> {
  static const TTypeInfo* Info() { return TypeInfos::LongString(); }
};
template <>
struct TTypeOf<Variant> {
  static const TTypeInfo* Info() { return TypeInfos::VariantType(); }
};

template <IsNamedEnum E>
struct TTypeOf<E> {
  static const TTypeInfo* Info() {
    static const TEnumTypeInfo info(QString::fromLatin1(TEnumNames<E>::Name), Names());
    return &info;
  }

 private:
  static QStringList Names() {
    QStringList names;
    for (const char* name : TEnumNames<E>::Values) names.append(QString::fromLatin1(name));
    return names;
  }
};

/// Whether sets of an enumeration have a bit for each of its names.
template <class E>
inline constexpr bool SetHoldsNames = std::size(TEnumNames<E>::Values) <= 8 * sizeof(typename TSet<E>::TBits);

template <class E>
struct TTypeOf<TSet<E>> {
  static_assert(SetHoldsNames<E>, "specialise TSetStorage for an enumeration with more than 32 names");
  static const TTypeInfo* Info() {
    static const TSetTypeInfo info(QString::fromLatin1(TEnumNames<E>::SetName), TypeInfoOf<E>());
    return &info;
  }
};

template <std::derived_from<TObject> C>
struct TTypeOf<C> {
  static const TTypeInfo* Info() { return TypeInfos::OfClass(C::Class()); }
};
template <std::derived_from<TObject> C>
struct TTypeOf<C*> : TTypeOf<std::remove_const_t<C>> {};

template <std::derived_from<IInterface> I>
requires(!std::derived_from<I, TObject>) struct TTypeOf<I*> {
  static const TTypeInfo* Info() {
    static const TInterfaceTypeInfo info(QString::fromLatin1(I::TypeName), I::Guid);
    return &info;
  }
};

template <IsEvent T>
struct TTypeOf<T> {
  static const TTypeInfo* Info() {
    static const TMethodTypeInfo info(QString::fromLatin1(T::TypeName), &T::Named);
    return &info;
  }
};

}  // namespace kt
