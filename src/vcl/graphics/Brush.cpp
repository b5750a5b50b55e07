#include "kt/vcl/graphics/Brush.h"

#include "kt/rtl/typeinfo/ClassBuilder.h"

namespace kt {

const TClassInfo* TBrush::Class() {
  static const TClassInfo info = TClassBuilder<TBrush>("TBrush")
                                     .Property<&TBrush::GetColor, &TBrush::SetColor>("Color")
                                     .Default(clWhite)
                                     .Property<&TBrush::GetStyle, &TBrush::SetStyle>("Style")
                                     .Default(bsSolid)
                                     .Creatable()
                                     .Done();
  return &info;
}

void TBrush::Store(TColor color, TBrushStyle style) {
  if (color == FColor && style == FStyle) return;
  FColor = color;
  FStyle = style;
  Changed();
}

void TBrush::SetColor(TColor value) { Store(value, FStyle == bsClear ? bsSolid : FStyle); }
void TBrush::SetStyle(TBrushStyle value) { Store(FColor, value); }

void TBrush::Assign(TPersistent* source) {
  const auto* brush = dynamic_cast<TBrush*>(source);
  if (!brush) return TPersistent::Assign(source);
  Store(brush->FColor, brush->FStyle);
}

}  // namespace kt
