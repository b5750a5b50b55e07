// What panels publish.
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/extctrls/Panel.h"

#include <limits>

namespace kt {

const TTypeInfo* BevelWidthTypeInfo() {
  static const TOrdTypeInfo info(tkInteger, QStringLiteral("TBevelWidth"), otSLong, 1,
                                 std::numeric_limits<qint32>::max());
  return &info;
}

const TTypeInfo* BorderWidthTypeInfo() {
  static const TOrdTypeInfo info(tkInteger, QStringLiteral("TBorderWidth"), otSLong, 0,
                                 std::numeric_limits<qint32>::max());
  return &info;
}

const TClassInfo* TCustomPanel::Class() {
  static const TClassInfo info = TClassBuilder<TCustomPanel>("TCustomPanel").Done();
  return &info;
}

const TClassInfo* TPanel::Class() {
  using T = TPanel;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TPanel");
    Publish::Align(builder);
    builder.Property<&T::GetAlignment, &T::SetAlignment>("Alignment").Default(taCenter);
    Publish::Anchors(builder);
    builder.Property<&T::IsAutoSize, &T::SetAutoSize>("AutoSize").Default(false);
    builder.Property<&TWinControl::GetBevelEdges, &TWinControl::SetBevelEdges>("BevelEdges")
        .Default(TBevelEdges{beLeft, beTop, beRight, beBottom});
    builder.Property<&T::GetBevelInner, &T::SetBevelInner>("BevelInner").Default(bvNone);
    builder.Property<&TWinControl::GetBevelKind, &TWinControl::SetBevelKind>("BevelKind").Default(bkNone);
    builder.Property<&T::GetBevelOuter, &T::SetBevelOuter>("BevelOuter").Default(bvRaised);
    builder.Property<&T::GetBevelWidth, &T::SetBevelWidth>("BevelWidth", &BevelWidthTypeInfo).Default(1);
    Publish::BiDiMode(builder);
    builder.Property<&T::GetBorderStyle, &T::SetBorderStyle>("BorderStyle", &BorderStyleTypeInfo).Default(bsNone);
    builder.Property<&T::GetBorderWidth, &T::SetBorderWidth>("BorderWidth", &BorderWidthTypeInfo).Default(0);
    Publish::Caption(builder);
    Publish::Color(builder, clBtnFace);
    Publish::Constraints(builder);
    builder.Property<&T::IsDockSite, &T::SetDockSite>("DockSite").Default(false);
    Publish::Ctl3D(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    builder.Property<&T::IsFullRepaint, &T::SetFullRepaint>("FullRepaint").Default(true);
    builder.Property<&T::IsLocked, &T::SetLocked>("Locked").Default(false);
    builder.Property<&T::IsParentBackground, &T::SetParentBackground>("ParentBackground")
        .Stored(&T::IsParentBackgroundStored);
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder, false);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ShowHint(builder);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, false);
    builder.Property<&T::IsUseDockManager, &T::SetUseDockManager>("UseDockManager").Default(true);
    Publish::Visible(builder);
    Publish::MouseEvents(builder);
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    Publish::SizeEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
