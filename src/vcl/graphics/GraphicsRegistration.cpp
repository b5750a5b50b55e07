#include "kt/vcl/graphics/GraphicsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/graphics/Brush.h"
#include "kt/vcl/graphics/Cursor.h"
#include "kt/vcl/graphics/Font.h"
#include "kt/vcl/graphics/Pen.h"

namespace kt {

void RegisterGraphics() {
  RegisterColorNames();
  RegisterCursorNames();
  RegisterCharsetNames();
  RegisterClasses({TFont::Class(), TBrush::Class(), TPen::Class()});
}

}  // namespace kt
