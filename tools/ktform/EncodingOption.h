#pragma once

#include "kt/rtl/conversions/EightBit.h"

#include <QStringList>

namespace ktform {

/// Takes `--encoding NAME` or `--encoding=NAME` out of `arguments`: what bytes from 128 up mean in text that is not
/// Unicode, and in the 8-bit strings of binary forms. Windows-1252 when it is not there; of several the last counts.
/// Throws EUsageError for a name that nobody knows, or none.
kt::TEightBitEncoding TakeEncoding(QStringList& arguments);

/// The names that it takes, for messages and the help; in lines of so many, or in one.
QString EncodingNames(qsizetype perLine = 0);

}  // namespace ktform
