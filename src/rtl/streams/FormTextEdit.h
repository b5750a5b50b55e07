#pragma once

#include "kt/rtl/conversions/EightBit.h"

#include <QByteArray>

namespace kt {

// Changing the file of a form so that what did not change stays as somebody wrote it. `before` is the binary form that
// was written after the file was loaded, `after` the one written when it had been changed; `encoding` is that of text
// that is not Unicode.

/// The text file `original` with the changes that lead from `before` to `after`.
///
/// Only lines that say something new differ: those of changed properties, of objects and collection items that came or
/// went, and of the headers of renamed ones. What is new stands behind the sibling before it, indented as its
/// surroundings; what moved takes its lines along. An object is the same when it has its name and class, at first below
/// the same parent, then anywhere; one without a name by its order; an item by what it says, else by its place between
/// others. New lines are written in the manner of the file: encoding, byte-order mark, line ends, and whether
/// characters beyond ASCII stand as they are or as numbers. A character that the file's 8-bit encoding lacks becomes a
/// number.
///
/// Siblings that the file has in another order than they are written in stay where they are, unless their order has
/// changed. The result is parsed and compared before it is answered; a file that this way does not fit, or that does
/// not hold the objects of `before`, is written anew as a whole, with its encoding and line ends. Raises EParserError
/// when the file is no form, and EWriteError when a name has a character that the encoding lacks.
QByteArray EditFormText(const QByteArray& original, const QByteArray& before, const QByteArray& after,
                        TEightBitEncoding encoding = eeWindows1252);

/// The same for a file in whatever format. A binary form keeps values and their order that were not changed; a resource
/// keeps name, number and flags of its header, and either keeps what follows the form.
QByteArray EditFormFile(const QByteArray& original, const QByteArray& before, const QByteArray& after,
                        TEightBitEncoding encoding = eeWindows1252);

}  // namespace kt
