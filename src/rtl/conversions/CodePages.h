#pragma once

#include "kt/rtl/conversions/EightBit.h"

namespace kt {

/// The characters of the bytes 128 to 255 in that encoding, as the registry of character sets of the Unicode consortium
/// lists them; a byte without a character has that of its own number, and no character comes twice. Null for an
/// encoding that is no code page.
const char16_t* UpperHalfOf(TEightBitEncoding encoding);

}  // namespace kt
