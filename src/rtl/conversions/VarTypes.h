#pragma once

#include <QLatin1StringView>
#include <QtGlobal>

namespace kt {

/// The code of what a Variant holds; the numbers are part of the framework's formats.
using TVarType = quint16;

inline constexpr TVarType varEmpty = 0;
inline constexpr TVarType varNull = 1;
inline constexpr TVarType varSmallint = 2;
inline constexpr TVarType varInteger = 3;
inline constexpr TVarType varSingle = 4;
inline constexpr TVarType varDouble = 5;
inline constexpr TVarType varCurrency = 6;
inline constexpr TVarType varDate = 7;
inline constexpr TVarType varOleStr = 8;
inline constexpr TVarType varBoolean = 11;
inline constexpr TVarType varShortInt = 16;
inline constexpr TVarType varByte = 17;
inline constexpr TVarType varWord = 18;
inline constexpr TVarType varLongWord = 19;
inline constexpr TVarType varInt64 = 20;
inline constexpr TVarType varUInt64 = 21;
inline constexpr TVarType varString = 256;
/// Any other value that a QVariant can hold.
inline constexpr TVarType varAny = 257;

/// The type's name as error messages show it.
QLatin1StringView VarTypeAsText(TVarType type);

}  // namespace kt
