#pragma once

#include "kt/vcl/graphics/Cursor.h"

#include <Qt>

namespace kt {

/// The shape of Qt's that a cursor has on the screen; what Qt lacks gets the nearest one, an unknown number the arrow.
Qt::CursorShape CursorShapeOf(TCursor cursor);

}  // namespace kt
