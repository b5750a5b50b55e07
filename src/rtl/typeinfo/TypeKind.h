#pragma once

#include "kt/rtl/typeinfo/Set.h"

namespace kt {

/// The kinds of type that a published property can have. The ordinals are part of the streamed form of TTypeKinds.
enum TTypeKind {
  tkUnknown,
  tkInteger,
  tkChar,
  tkEnumeration,
  tkFloat,
  tkString,  ///< the short string
  tkSet,
  tkClass,
  tkMethod,
  tkWChar,
  tkLString,  ///< the long string
  tkWString,  ///< the wide string
  tkVariant,
  tkArray,
  tkRecord,
  tkInterface,
  tkInt64,
  tkDynArray
};
using TTypeKinds = TSet<TTypeKind>;

template <class E>
struct TEnumNames;
template <>
struct TEnumNames<TTypeKind> {
  static constexpr char Name[] = "TTypeKind";
  static constexpr const char* Values[] = {"tkUnknown",   "tkInteger", "tkChar",    "tkEnumeration", "tkFloat",
                                           "tkString",    "tkSet",     "tkClass",   "tkMethod",      "tkWChar",
                                           "tkLString",   "tkWString", "tkVariant", "tkArray",       "tkRecord",
                                           "tkInterface", "tkInt64",   "tkDynArray"};
  static constexpr char SetName[] = "TTypeKinds";
};

/// Every kind.
inline constexpr TTypeKinds tkAny = TTypeKinds::Range(tkUnknown, tkDynArray);
inline constexpr TTypeKinds tkMethods = {tkMethod};
/// Every kind that holds data: all but tkUnknown and tkMethod.
inline constexpr TTypeKinds tkProperties = tkAny - TTypeKinds{tkUnknown, tkMethod};

/// How an ordinal type is stored.
enum TOrdType { otSByte, otUByte, otSWord, otUWord, otSLong, otULong };
/// How a floating-point type is stored.
enum TFloatType { ftSingle, ftDouble, ftExtended, ftComp, ftCurr };

}  // namespace kt
