#pragma once

#include "kt/rtl/conversions/EightBit.h"

#include <QByteArray>

namespace ktform {

/// The text file `original` with the changes that lead from the binary form `before` to `after`, where `before` is what
/// `original` was loaded as with `encoding` for text that is not Unicode. Only the lines of changed properties differ
/// from the original; they are written in its manner: encoding, byte-order mark, line ends, and whether characters
/// beyond ASCII stand as they are or as numbers. A character that the file's 8-bit encoding lacks becomes a number.
///
/// A text that does not name the objects in the order in which they are saved is written anew as a whole, with its
/// encoding and line ends. Throws EWriteError when a name has a character that the encoding lacks.
QByteArray EditFormText(const QByteArray& original, const QByteArray& before, const QByteArray& after,
                        kt::TEightBitEncoding encoding = kt::eeWindows1252);

}  // namespace ktform
