#pragma once

#include "kt/rtl/streams/IntegerConsts.h"

#include <QString>

#include <initializer_list>
#include <optional>
#include <span>

namespace kt {

/// One name of a value; a table of them has the order in which the names are offered.
struct TNamedInteger {
  const char* Name;
  qint32 Value;
};

/// The names of an integer type, as colours, cursors and character sets have. Where several names have one value, the
/// first is its name. A view of a table that lives as long as the process.
class TNamedIntegers {
 public:
  constexpr TNamedIntegers(std::span<const TNamedInteger> entries) : FEntries(entries) {}

  std::span<const TNamedInteger> Entries() const { return FEntries; }
  /// Compares without regard to ASCII case.
  std::optional<qint32> ValueOf(QStringView name) const;
  /// Empty when the value has no name.
  QString NameOf(qint64 value) const;
  /// Lets form files use the names for values of `type`.
  void RegisterFor(const TTypeInfo* type) const;

 private:
  std::span<const TNamedInteger> FEntries;
};

}  // namespace kt
