#pragma once

#include "kt/rtl/streams/FormEvents.h"

#include <QByteArrayView>

#include <array>

namespace kt {

/// The byte before each value of the binary object format. All numbers are little-endian.
enum TValueType : quint8 {
  vaNull = 0,  ///< No value; also ends properties, objects, lists and collections.
  vaList = 1,  ///< Values up to a zero byte; also begins an item of a collection.
  vaInt8 = 2,
  vaInt16 = 3,
  vaInt32 = 4,
  vaExtended = 5,  ///< 10 bytes: 64-bit mantissa, 15-bit exponent, sign.
  vaString = 6,    ///< Length byte, 8-bit characters.
  vaIdent = 7,     ///< Length byte, name.
  vaFalse = 8,
  vaTrue = 9,
  vaBinary = 10,   ///< 32-bit length, bytes.
  vaSet = 11,      ///< Short strings up to an empty one.
  vaLString = 12,  ///< 32-bit length, 8-bit characters.
  vaNil = 13,
  vaCollection = 14,  ///< Items up to a zero byte: optional integer value, vaList, properties, zero byte.
  vaSingle = 15,
  vaCurrency = 16,  ///< 64-bit integer, in ten-thousandths.
  vaDate = 17,      ///< A double: days since 1899-12-30.
  vaWString = 18,   ///< 32-bit count of UTF-16 units, units.
  vaInt64 = 19,
  vaUTF8String = 20,  ///< 32-bit length in bytes, UTF-8.
  vaDouble = 21,
};

/// The first four bytes of a binary form.
inline constexpr QByteArrayView kFormSignature{"TPF0", 4};
/// The upper half of an object's prefix byte; the lower half holds TFilerFlags.
inline constexpr quint8 kPrefixMark = 0xF0;
/// A class name from this length on has a length byte that looks like a prefix, so a prefix must stand before it.
inline constexpr qsizetype kAmbiguousNameLength = 0xF0;
/// Names are stored with a length byte.
inline constexpr qsizetype kMaxShortString = 255;

inline constexpr qsizetype kExtendedSize = 10;
using TExtendedBytes = std::array<char, kExtendedSize>;
/// Decodes an 80-bit number. Where Extended is narrower it is rounded, and infinite when it is too large.
Extended DecodeExtended(const char* bytes);
/// Encodes as an 80-bit number, normalized; every not-a-number is stored as the same one.
TExtendedBytes EncodeExtended(Extended value);

}  // namespace kt
