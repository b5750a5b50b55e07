#include "kt/vcl/extctrls/DesignFrame.h"

#include "kt/vcl/graphics/Canvas.h"

namespace kt {

void DrawDesignFrame(TCanvas& canvas, const QRect& rect) {
  canvas.GetPen().SetStyle(psDash);
  canvas.GetPen().SetColor(clBtnText);
  canvas.GetBrush().SetStyle(bsClear);
  canvas.Rectangle(rect);
  canvas.GetPen().SetStyle(psSolid);
}

}  // namespace kt
