#include "kt/vcl/graphics/FontData.h"

namespace kt {

bool operator==(const TFontData& a, const TFontData& b) {
  return a.Height == b.Height && a.PixelsPerInch == b.PixelsPerInch && a.Orientation == b.Orientation &&
         a.Color == b.Color && a.Charset == b.Charset && a.Pitch == b.Pitch && a.Style == b.Style && a.Name == b.Name;
}

const TFontDataPointer& DefaultFontData() {
  static const TFontDataPointer data(new TFontData);
  return data;
}

}  // namespace kt
