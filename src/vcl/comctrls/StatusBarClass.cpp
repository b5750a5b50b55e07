// What status bars publish.
#include "kt/vcl/comctrls/StatusBar.h"
#include "kt/vcl/controls/Publish.h"

namespace kt {

const TClassInfo* TCustomStatusBar::Class() {
  static const TClassInfo info = TClassBuilder<TCustomStatusBar>("TCustomStatusBar").Done();
  return &info;
}

const TClassInfo* TStatusBar::Class() {
  using T = TStatusBar;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TStatusBar");
    Publish::Action(builder);
    builder.Property<&T::IsAutoHint, &T::SetAutoHint>("AutoHint").Default(false);
    builder.Property<&TControl::GetAlign, &TControl::SetAlign>("Align").Default(alBottom);
    Publish::Anchors(builder);
    Publish::BiDiMode(builder);
    Publish::Color(builder, clBtnFace);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    builder.Property<&TControl::GetFont, &TControl::SetFont>("Font").Stored(&T::IsBarFontStored);
    Publish::Constraints(builder);
    builder.Property<&T::GetPanels, &T::SetPanels>("Panels");
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder, false);
    Publish::ParentFont(builder, false);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ShowHint(builder);
    builder.Property<&T::IsSimplePanel, &T::SetSimplePanel>("SimplePanel").Default(false);
    builder.Property<&T::GetSimpleText, &T::SetSimpleText>("SimpleText");
    builder.Property<&T::IsSizeGrip, &T::SetSizeGrip>("SizeGrip").Default(true);
    builder.Property<&T::IsUseSystemFont, &T::SetUseSystemFont>("UseSystemFont").Default(true);
    Publish::Visible(builder);
    Publish::MouseEvents(builder);
    Publish::DragEvents(builder);
    builder.Property<&T::OnHint>("OnHint");
    builder.Property<&TControl::OnResize>("OnResize");
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
