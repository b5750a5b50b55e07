#pragma once

/// Colours, cursors, fonts, pens and brushes, and the canvas that draws with them.
#include "kt/vcl/graphics/Brush.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/graphics/Cursor.h"
#include "kt/vcl/graphics/Font.h"
#include "kt/vcl/graphics/Graphic.h"
#include "kt/vcl/graphics/GraphicsErrors.h"
#include "kt/vcl/graphics/Pen.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/graphics/RealFont.h"
