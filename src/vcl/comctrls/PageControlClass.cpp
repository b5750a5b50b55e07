// What page controls publish.
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/imagelist/ImageList.h"

namespace kt {

const TClassInfo* TPageControl::Class() {
  using T = TPageControl;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TPageControl");
    builder.Property<&T::GetActivePage, &T::SetActivePage>("ActivePage");
    Publish::Align(builder);
    Publish::Anchors(builder);
    Publish::BiDiMode(builder);
    Publish::Constraints(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    builder.Property<&T::IsHotTrack, &T::SetHotTrack>("HotTrack").Default(false);
    builder.Property<&T::GetImages, &T::SetImages>("Images");
    builder.Property<&T::IsMultiLine, &T::SetMultiLine>("MultiLine").Default(false);
    Publish::ParentBiDiMode(builder);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    builder.Property<&T::IsRaggedRight, &T::SetRaggedRight>("RaggedRight").Default(false);
    builder.Property<&T::IsScrollOpposite, &T::SetScrollOpposite>("ScrollOpposite").Default(false);
    Publish::ShowHint(builder);
    builder.Property<&T::GetStyle, &T::SetStyle>("Style").Default(tsTabs);
    builder.Property<&T::GetTabHeight, &T::SetTabHeight>("TabHeight").Default(0);
    builder.Property<&T::GetTabIndex, &T::SetTabIndex>("TabIndex").NotStored();
    Publish::TabOrder(builder);
    builder.Property<&T::GetTabPosition, &T::SetTabPosition>("TabPosition").Default(tpTop);
    Publish::TabStop(builder, true);
    builder.Property<&T::GetTabWidth, &T::SetTabWidth>("TabWidth").Default(0);
    Publish::Visible(builder);
    builder.Property<&T::OnChange>("OnChange");
    builder.Property<&T::OnChanging>("OnChanging");
    builder.Property<&TControl::OnContextPopup>("OnContextPopup");
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    builder.Property<&T::OnGetImageIndex>("OnGetImageIndex");
    Publish::ButtonEvents(builder);
    builder.Property<&TControl::OnResize>("OnResize");
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
