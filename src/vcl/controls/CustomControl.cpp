#include "kt/vcl/controls/CustomControl.h"

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <QPainter>

namespace kt {

const TClassInfo* TCustomControl::Class() {
  static const TClassInfo info = TClassBuilder<TCustomControl>("TCustomControl").Done();
  return &info;
}

void TCustomControl::Construct() {
  FCanvas = Make<TCanvas>();
  TWinControl::Construct();
}

void TCustomControl::PaintWindow(const QRect& clip) {
  QPainter painter(Window());
  PaintBorder(painter);
  const QPoint origin = GetClientOrigin();
  painter.translate(origin);
  const QRect visible = clip.translated(-origin).intersected(GetClientRect());
  if (visible.isEmpty()) return;
  painter.setClipRect(visible);
  FCanvas->SetPalette(Window()->palette());
  FCanvas->Begin(painter, visible);
  struct TEnd {
    TCanvas& Canvas;
    ~TEnd() { Canvas.End(); }
  } end{*FCanvas};
  FCanvas->SetFont(&GetFont());
  FCanvas->GetBrush().SetColor(GetColor());
  if (!GetControlStyle().Has(csOpaque)) FCanvas->FillRect(visible);
  Paint();
}

}  // namespace kt
