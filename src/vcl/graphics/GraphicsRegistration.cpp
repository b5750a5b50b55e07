#include "kt/vcl/graphics/GraphicsRegistration.h"

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Brush.h"
#include "kt/vcl/graphics/Cursor.h"
#include "kt/vcl/graphics/Font.h"
#include "kt/vcl/graphics/Icon.h"
#include "kt/vcl/graphics/Pen.h"
#include "kt/vcl/graphics/Picture.h"

namespace kt {

void RegisterGraphics() {
  RegisterColorNames();
  RegisterCursorNames();
  RegisterCharsetNames();
  RegisterClasses(
      {TFont::Class(), TBrush::Class(), TPen::Class(), TBitmap::Class(), TIcon::Class(), TPicture::Class()});
}

}  // namespace kt
