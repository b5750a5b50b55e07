// What list boxes publish.
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/stdctrls/ListBox.h"

namespace kt {

const TClassInfo* TCustomListBox::Class() {
  static const TClassInfo info = TClassBuilder<TCustomListBox>("TCustomListBox").Done();
  return &info;
}

const TClassInfo* TListBox::Class() {
  using T = TListBox;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TListBox");
    Publish::Action(builder);
    Publish::Align(builder);
    Publish::Anchors(builder);
    builder.Property<&T::IsAutoComplete, &T::SetAutoComplete>("AutoComplete").Default(true);
    Publish::Bevels(builder);
    Publish::BiDiMode(builder);
    builder.Property<&T::GetBorderStyle, &T::SetBorderStyle>("BorderStyle", &BorderStyleTypeInfo).Default(bsSingle);
    Publish::Color(builder, clWindow);
    builder.Property<&T::GetColumns, &T::SetColumns>("Columns").Default(0);
    Publish::Constraints(builder);
    Publish::Ctl3D(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    builder.Property<&T::IsExtendedSelect, &T::SetExtendedSelect>("ExtendedSelect").Default(true);
    Publish::Font(builder);
    builder.Property<&T::IsIntegralHeight, &T::SetIntegralHeight>("IntegralHeight").Default(false);
    builder.Property<&T::GetItemHeight, &T::SetItemHeight>("ItemHeight");
    // Before the lines, which virtual styles have none of.
    builder.Property<&T::GetStyle, &T::SetStyle>("Style").Default(lbStandard);
    builder.Property<&T::GetItems, &T::SetItems>("Items");
    builder.Property<&T::IsMultiSelect, &T::SetMultiSelect>("MultiSelect").Default(false);
    Publish::InputMethod(builder);
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder, false);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    builder.Property<&T::GetScrollWidth, &T::SetScrollWidth>("ScrollWidth").Default(0);
    Publish::ShowHint(builder);
    builder.Property<&T::IsSorted, &T::SetSorted>("Sorted").Default(false);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, true);
    builder.Property<&T::GetTabWidth, &T::SetTabWidth>("TabWidth").Default(0);
    Publish::Visible(builder);
    Publish::MouseEvents(builder);
    builder.Property<&T::OnData>("OnData");
    builder.Property<&T::OnDataFind>("OnDataFind");
    builder.Property<&T::OnDataObject>("OnDataObject");
    builder.Property<&T::OnDrawItem>("OnDrawItem");
    builder.Property<&T::OnMeasureItem>("OnMeasureItem");
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    Publish::KeyEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
