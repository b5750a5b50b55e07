#pragma once

#include "kt/vcl/graphics/Cursor.h"

#include <qnamespace.h>

namespace kt {

/// The shape that Qt has for a cursor; the arrow for numbers without one.
Qt::CursorShape QtCursorShape(TCursor cursor);

}  // namespace kt
