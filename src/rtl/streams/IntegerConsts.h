#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace kt {

class TTypeInfo;

/// Names for values of an integer type, as colours and cursors have: form files use the name where there is one.
struct TIntegerConsts {
  std::function<std::optional<qint64>(QStringView ident)> IdentToInt;
  /// Empty when the value has no name.
  std::function<QString(qint64 value)> IntToIdent;
};

/// Registers the names of an integer type for the whole process; a second registration replaces the first.
void RegisterIntegerConsts(const TTypeInfo* type, TIntegerConsts consts);
void UnRegisterIntegerConsts(const TTypeInfo* type);
/// The names of a type, or null. They stay valid while held, whatever is registered meanwhile, in whichever thread.
std::shared_ptr<const TIntegerConsts> FindIntegerConsts(const TTypeInfo* type);

}  // namespace kt
