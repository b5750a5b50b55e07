// What combo boxes publish.
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/stdctrls/ComboBoxView.h"

namespace kt {

const TClassInfo* TCustomComboBox::Class() {
  static const TClassInfo info = TClassBuilder<TCustomComboBox>("TCustomComboBox").Done();
  return &info;
}

const TClassInfo* TComboBox::Class() {
  using T = TComboBox;
  static const TClassInfo info = [] {
    TClassBuilder<T> builder("TComboBox");
    Publish::Align(builder);
    builder.Property<&T::IsAutoComplete, &T::SetAutoComplete>("AutoComplete").Default(true);
    builder.Property<&T::IsAutoDropDown, &T::SetAutoDropDown>("AutoDropDown").Default(false);
    builder.Property<&T::IsAutoCloseUp, &T::SetAutoCloseUp>("AutoCloseUp").Default(false);
    // Before the text that it allows, or does not.
    builder.Property<&T::GetStyle, &T::SetStyle>("Style").Default(csDropDown);
    Publish::Anchors(builder);
    Publish::Bevels(builder);
    Publish::BiDiMode(builder);
    builder.Property<&T::GetCharCase, &T::SetCharCase>("CharCase").Default(ecNormal);
    Publish::Color(builder, clWindow);
    Publish::Constraints(builder);
    Publish::Ctl3D(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    builder.Property<&T::GetDropDownCount, &T::SetDropDownCount>("DropDownCount").Default(8);
    Publish::Enabled(builder);
    Publish::Font(builder);
    builder.Property<&T::GetItemHeight, &T::SetItemHeight>("ItemHeight");
    builder.Property<&T::GetItems, &T::SetItems>("Items");
    builder.Property<&T::GetItemIndex, &T::SetItemIndex>("ItemIndex").Default(-1);
    builder.Property<&T::GetMaxLength, &T::SetMaxLength>("MaxLength").Default(0);
    Publish::InputMethod(builder);
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder, false);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ShowHint(builder);
    builder.Property<&T::IsSorted, &T::SetSorted>("Sorted").Default(false);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, true);
    builder.Property<&T::GetText, &T::SetText>("Text");
    Publish::Visible(builder);
    builder.Property<&T::OnChange>("OnChange");
    builder.Property<&TControl::OnClick>("OnClick").Stored(&TControl::IsOnClickStored);
    builder.Property<&T::OnCloseUp>("OnCloseUp");
    builder.Property<&TControl::OnContextPopup>("OnContextPopup");
    builder.Property<&TControl::OnDblClick>("OnDblClick");
    Publish::DragEvents(builder);
    builder.Property<&T::OnDrawItem>("OnDrawItem");
    builder.Property<&T::OnDropDown>("OnDropDown");
    Publish::FocusEvents(builder);
    Publish::KeyEvents(builder);
    builder.Property<&T::OnMeasureItem>("OnMeasureItem");
    builder.Property<&TControl::OnMouseEnter>("OnMouseEnter");
    builder.Property<&TControl::OnMouseLeave>("OnMouseLeave");
    builder.Property<&T::OnSelect>("OnSelect");
    return builder.Creatable().Done();
  }();
  return &info;
}

}  // namespace kt
