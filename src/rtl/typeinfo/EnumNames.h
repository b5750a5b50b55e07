#pragma once

#include "kt/rtl/typeinfo/TypeInfo.h"

#include <QString>

namespace kt {

/// The name of an ordinal: of an enumeration its declared name, of a wide Boolean "False" for 0 and "True" for anything
/// else, of an integer type the decimal number. Raises ERangeError for an ordinal that the enumeration does not have,
/// and EPropertyConvertError for a type without names.
QString GetEnumName(const TTypeInfo* type, qint64 value);

/// The ordinal of a name, without regard to ASCII case, or -1 when the enumeration has no such name. Wide Booleans:
/// "False" is 0 and "True" is -1 (which callers that take -1 for failure reject), anything else must be a number.
/// Integer types: the number. Raises EConvertError for what should be a number and is none.
qint64 GetEnumValue(const TTypeInfo* type, QStringView name);

/// The members of a set as names in declaration order, joined by commas, in square brackets when asked for. Bits from
/// the number of the type's members on, though at least 32 and at most 64, do not count.
QString SetToString(const TTypeInfo* type, qint64 bits, bool brackets = false);

/// The bits of a set written as names (or numbers, for sets of integers) separated by commas or blanks, with or without
/// square brackets. Raises EPropertyConvertError "Invalid property element: %s", also for a number from that limit on.
qint64 StringToSet(const TTypeInfo* type, QStringView text);

}  // namespace kt
