#include "kt/vcl/extctrls/PaintBox.h"

#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/extctrls/DesignFrame.h"

namespace kt {

const TClassInfo* TPaintBox::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TPaintBox> builder("TPaintBox");
    Publish::Align(builder);
    Publish::Anchors(builder);
    Publish::Color(builder);
    Publish::Constraints(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    Publish::ParentColor(builder);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ShowHint(builder);
    Publish::Visible(builder);
    Publish::MouseEvents(builder);
    Publish::DragEvents(builder);
    builder.Property<&TPaintBox::OnPaint>("OnPaint");
    return builder.Creatable().Done();
  }();
  return &info;
}

void TPaintBox::Construct() {
  TGraphicControl::Construct();
  FControlStyle.Include(csReplicatable);
  SetBounds(0, 0, 105, 105);
}

void TPaintBox::Paint() {
  if (HasState(csDesigning)) return DrawDesignFrame(GetCanvas(), GetClientRect());
  const TNotifyEvent handler = OnPaint;
  handler(this);
}

}  // namespace kt
