#pragma once

#include "kt/rtl/conversions/EightBit.h"
#include "kt/rtl/streams/FormErrors.h"
#include "kt/rtl/streams/TextEncoding.h"

#include <QByteArray>

namespace kt {

/// Where the object, item or property begins in the text of a form whose header or value is at `offset` of the binary
/// form that ObjectTextToBinary() made of it; or the last one before. Parses the text as a whole.
TTextPosition FindPlaceInText(const QByteArray& text, qint64 offset, TEightBitEncoding encoding = eeWindows1252);

/// For a reader of the binary form that ObjectTextToBinary() made of `text`: its errors tell the line and column, as in
/// "Class TFoo not found on line 3, column 5 (Form1.Foo1)". Parses the text again for each error, so a load without one
/// costs nothing more.
TPlaceWording PlacesInText(const QByteArray& text, TEightBitEncoding encoding = eeWindows1252);

}  // namespace kt
