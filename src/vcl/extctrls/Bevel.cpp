#include "kt/vcl/extctrls/Bevel.h"

#include "kt/vcl/controls/Publish.h"

#include <QPainter>
#include <qdrawutil.h>

namespace kt {

const TClassInfo* TBevel::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TBevel> builder("TBevel");
    Publish::Align(builder);
    Publish::Anchors(builder);
    Publish::Constraints(builder);
    Publish::ParentShowHint(builder);
    builder.Property<&TBevel::GetShape, &TBevel::SetShape>("Shape").Default(bsBox);
    Publish::ShowHint(builder);
    builder.Property<&TBevel::GetStyle, &TBevel::SetStyle>("Style").Default(bsLowered);
    Publish::Visible(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TBevel::Construct() {
  TGraphicControl::Construct();
  FControlStyle.Include(csReplicatable);
  SetBounds(0, 0, 50, 50);
}

void TBevel::SetShape(TBevelShape value) {
  if (FShape == value) return;
  FShape = value;
  Invalidate();
}

void TBevel::SetStyle(TBevelStyle value) {
  if (FStyle == value) return;
  FStyle = value;
  Invalidate();
}

void TBevel::Paint() {
  const QRect rect = GetClientRect();
  const bool isSunken = FStyle == bsLowered;
  const QPalette palette = GetCanvas().GetPalette();
  if (rect.isEmpty()) return;
  switch (FShape) {
    case bsBox:
      return qDrawShadePanel(&GetCanvas().Painter(), rect, palette, isSunken);
    case bsFrame:
      return qDrawShadeRect(&GetCanvas().Painter(), rect, palette, isSunken);
    case bsSpacer:
      // Only whoever places it has to see it.
      if (HasState(csDesigning)) GetCanvas().DrawFocusRect(rect);
      return;
    default:
      DrawLine(GetCanvas().Painter(), palette);
  }
}

/// Two pixels wide, a dark one and a light one.
void TBevel::DrawLine(QPainter& painter, const QPalette& palette) const {
  const int right = GetWidth() - 1;
  const int bottom = GetHeight() - 1;
  const bool isSunken = FStyle == bsLowered;
  const QColor first = isSunken ? palette.dark().color() : palette.light().color();
  const QColor second = isSunken ? palette.light().color() : palette.dark().color();
  switch (FShape) {
    case bsTopLine:
    case bsBottomLine: {
      const int top = FShape == bsTopLine ? 0 : bottom - 1;
      painter.fillRect(0, top, right + 1, 1, first);
      return painter.fillRect(0, top + 1, right + 1, 1, second);
    }
    default: {
      const int left = FShape == bsLeftLine ? 0 : right - 1;
      painter.fillRect(left, 0, 1, bottom + 1, first);
      return painter.fillRect(left + 1, 0, 1, bottom + 1, second);
    }
  }
}

}  // namespace kt
