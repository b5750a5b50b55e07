#include "kt/vcl/controls/CustomControl.h"

#include "kt/rtl/objects/LifeWatch.h"
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
  const QRegion opaque = OpaqueArea().intersected(visible);
  const QRegion own = QRegion(visible) - opaque;
  if (own.isEmpty()) return;
  if (opaque.isEmpty()) {
    painter.setClipRect(visible);
  } else {
    painter.setClipRegion(own);
  }
  FCanvas->SetPalette(Window()->palette());
  FCanvas->Begin(painter, visible);
  // The handler of the painting may free this one.
  const TLifeWatch self(this);
  struct TEnd {
    const TLifeWatch& Life;
    TCanvas& Canvas;
    ~TEnd() {
      if (Life.IsAlive()) Canvas.End();
    }
  } end{self, *FCanvas};
  FCanvas->SetFont(&GetFont());
  FCanvas->GetBrush().SetColor(GetColor());
  if (FillsGround()) FCanvas->FillRect(visible);
  Paint();
}

}  // namespace kt
