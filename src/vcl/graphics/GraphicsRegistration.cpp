#include "kt/vcl/graphics/GraphicsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/graphics/Cursor.h"
#include "kt/vcl/graphics/Font.h"

namespace kt {

void RegisterGraphics() {
  RegisterColorNames();
  RegisterCursorNames();
  RegisterCharsetNames();
  RegisterClass(TFont::Class());
}

}  // namespace kt
