#include "kt/vcl/forms/ScrollBox.h"

#include "kt/vcl/controls/Publish.h"

#include <qdrawutil.h>

namespace kt {

namespace {

/// Of the frame of bsSingle.
constexpr int kBoxBorder = 2;

}  // namespace

const TClassInfo* TScrollBox::Class() {
  using T = TScrollBox;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TScrollBox");
    Publish::Align(builder);
    Publish::Anchors(builder);
    builder.Property<&T::IsAutoScroll, &T::SetAutoScroll>("AutoScroll").Default(true);
    Publish::Bevels(builder);
    Publish::BiDiMode(builder);
    builder.Property<&T::GetBorderStyle, &T::SetBorderStyle>("BorderStyle", &BorderStyleTypeInfo).Default(bsSingle);
    Publish::Color(builder);
    Publish::Constraints(builder);
    Publish::Ctl3D(builder);
    builder.Property<&T::IsDockSite, &T::SetDockSite>("DockSite").Default(false);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    builder.Property<&T::GetHorzScrollBar, &T::SetHorzScrollBar>("HorzScrollBar");
    builder.Property<&T::IsParentBackground, &T::SetParentBackground>("ParentBackground")
        .Stored(&T::IsParentBackgroundStored);
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ShowHint(builder);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, false);
    builder.Property<&T::GetVertScrollBar, &T::SetVertScrollBar>("VertScrollBar");
    Publish::Visible(builder);
    Publish::MouseEvents(builder);
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    Publish::SizeEvents(builder);
    Publish::WheelEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TScrollBox::Construct() {
  TScrollingWinControl::Construct();
  SetControlStyle({csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks});
  SetBounds(0, 0, 185, 41);
}

QMargins TScrollBox::GetClientMargins() const {
  return TScrollingWinControl::GetClientMargins() + (FBorderStyle == bsSingle ? kBoxBorder : 0);
}

void TScrollBox::SetBorderStyle(TBorderStyle value) {
  if (FBorderStyle == value) return;
  FBorderStyle = value;
  PlaceChildWindows();
  Invalidate();
  Realign();
}

void TScrollBox::SetParentBackground(bool value) {
  if (FGround.Set(*this, value)) Invalidate();
}

void TScrollBox::PaintBorder(QPainter& painter) {
  if (FBorderStyle == bsSingle) qDrawShadePanel(&painter, Window()->rect(), Window()->palette(), true, kBoxBorder);
}

}  // namespace kt
