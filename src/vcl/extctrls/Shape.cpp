#include "kt/vcl/extctrls/Shape.h"

#include "kt/vcl/controls/Publish.h"

#include <algorithm>

namespace kt {

const TClassInfo* TShape::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TShape> builder("TShape");
    Publish::Align(builder);
    Publish::Anchors(builder);
    builder.Property<&TShape::GetBrush, &TShape::SetBrush>("Brush");
    Publish::Constraints(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::ParentShowHint(builder);
    builder.Property<&TShape::GetPen, &TShape::SetPen>("Pen");
    builder.Property<&TShape::GetShape, &TShape::SetShape>("Shape").Default(stRectangle);
    Publish::ShowHint(builder);
    Publish::Visible(builder);
    builder.Property<&TControl::OnContextPopup>("OnContextPopup");
    Publish::ButtonEvents(builder);
    Publish::DragEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TShape::Construct() {
  TGraphicControl::Construct();
  FControlStyle.Include(csReplicatable);
  FBrush = Make<TBrush>();
  FPen = Make<TPen>();
  FBrush->OnChange = {this, &TShape::ToolChanged};
  FPen->OnChange = {this, &TShape::ToolChanged};
  SetBounds(0, 0, 65, 65);
}

void TShape::SetShape(TShapeType value) {
  if (FShape == value) return;
  FShape = value;
  Invalidate();
}

/// What the pen goes along: half of its width is inside.
QRect TShape::Outline() const {
  const int width = FPen->GetWidth();
  const int inset = width / 2;
  QRect rect(inset, inset, GetWidth() - std::max(width - 1, 0), GetHeight() - std::max(width - 1, 0));
  if (FShape != stSquare && FShape != stRoundSquare && FShape != stCircle) return rect;
  const int side = std::min(rect.width(), rect.height());
  return {rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2, side, side};
}

void TShape::Paint() {
  TCanvas& canvas = GetCanvas();
  canvas.SetBrush(FBrush.get());
  canvas.SetPen(FPen.get());
  const QRect rect = Outline();
  const int corner = std::min(rect.width(), rect.height()) / 4;
  switch (FShape) {
    case stRectangle:
    case stSquare:
      return canvas.Rectangle(rect);
    case stRoundRect:
    case stRoundSquare:
      return canvas.RoundRect(rect, corner, corner);
    case stEllipse:
    case stCircle:
      return canvas.Ellipse(rect);
  }
}

}  // namespace kt
