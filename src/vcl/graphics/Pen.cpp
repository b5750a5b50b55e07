#include "kt/vcl/graphics/Pen.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TPen::Class() {
  static const TClassInfo info = TClassBuilder<TPen>("TPen")
                                     .Property<&TPen::GetColor, &TPen::SetColor>("Color")
                                     .Default(clBlack)
                                     .Property<&TPen::GetMode, &TPen::SetMode>("Mode")
                                     .Default(pmCopy)
                                     .Property<&TPen::GetStyle, &TPen::SetStyle>("Style")
                                     .Default(psSolid)
                                     .Property<&TPen::GetWidth, &TPen::SetWidth>("Width")
                                     .Default(1)
                                     .Creatable()
                                     .Done();
  return &info;
}

template <class V>
void TPen::Store(V& field, V value) {
  if (field == value) return;
  field = value;
  Changed();
}

void TPen::SetColor(TColor value) { Store(FColor, value); }
void TPen::SetMode(TPenMode value) { Store(FMode, value); }
void TPen::SetStyle(TPenStyle value) { Store(FStyle, value); }
void TPen::SetWidth(int value) {
  if (value >= 0) Store(FWidth, value);
}

void TPen::Assign(TPersistent* source) {
  const auto* pen = dynamic_cast<TPen*>(source);
  if (!pen) return TPersistent::Assign(source);
  const bool isSame = FColor == pen->FColor && FMode == pen->FMode && FStyle == pen->FStyle && FWidth == pen->FWidth;
  if (isSame) return;
  FColor = pen->FColor;
  FMode = pen->FMode;
  FStyle = pen->FStyle;
  FWidth = pen->FWidth;
  Changed();
}

}  // namespace kt
