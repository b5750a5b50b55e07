#pragma once

/// Colours, cursors, fonts, pens and brushes, the canvas that draws with them, and pictures.
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Brush.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/graphics/Cursor.h"
#include "kt/vcl/graphics/DrawText.h"
#include "kt/vcl/graphics/Font.h"
#include "kt/vcl/graphics/Graphic.h"
#include "kt/vcl/graphics/GraphicsErrors.h"
#include "kt/vcl/graphics/Icon.h"
#include "kt/vcl/graphics/Pen.h"
#include "kt/vcl/graphics/Picture.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/graphics/QtCursor.h"
#include "kt/vcl/graphics/RealFont.h"
