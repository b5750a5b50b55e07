#pragma once

/// Colours, cursors and fonts.
#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/graphics/Cursor.h"
#include "kt/vcl/graphics/Font.h"
