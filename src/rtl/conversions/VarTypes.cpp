#include "kt/rtl/conversions/VarTypes.h"

#include <array>

namespace kt {
namespace {

struct TVarTypeName {
  TVarType Type;
  QLatin1StringView Name;
};

constexpr std::array<TVarTypeName, 18> kNames{{
    {varEmpty, QLatin1StringView("Empty")},
    {varNull, QLatin1StringView("Null")},
    {varSmallint, QLatin1StringView("Smallint")},
    {varInteger, QLatin1StringView("Integer")},
    {varSingle, QLatin1StringView("Single")},
    {varDouble, QLatin1StringView("Double")},
    {varCurrency, QLatin1StringView("Currency")},
    {varDate, QLatin1StringView("Date")},
    {varOleStr, QLatin1StringView("OleStr")},
    {varBoolean, QLatin1StringView("Boolean")},
    {varShortInt, QLatin1StringView("ShortInt")},
    {varByte, QLatin1StringView("Byte")},
    {varWord, QLatin1StringView("Word")},
    {varLongWord, QLatin1StringView("LongWord")},
    {varInt64, QLatin1StringView("Int64")},
    {varUInt64, QLatin1StringView("UInt64")},
    {varString, QLatin1StringView("String")},
    {varAny, QLatin1StringView("Any")},
}};

}  // namespace

QLatin1StringView VarTypeAsText(TVarType type) {
  for (const TVarTypeName& entry : kNames) {
    if (entry.Type == type) return entry.Name;
  }
  return QLatin1StringView("Unknown");
}

}  // namespace kt
