#pragma once

#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/actions/BasicAction.h"
#include "kt/vcl/controls/WinControl.h"
#include "kt/vcl/menus/PopupMenu.h"

/// What controls have but leave to their final classes to publish, a line each; together with the defaults and stored
/// predicates that stay the same from class to class.
namespace kt::Publish {

template <class T>
void Action(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetAction, &TControl::SetAction>("Action");
}
template <class T>
void Align(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetAlign, &TControl::SetAlign>("Align").Default(alNone);
}
template <class T>
void Anchors(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetAnchors, &TControl::SetAnchors>("Anchors").Stored(&TControl::IsAnchorsStored);
}
template <class T>
void BiDiMode(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetBiDiMode, &TControl::SetBiDiMode>("BiDiMode")
      .Stored(&TControl::IsBiDiModeStored);
}
/// For classes that make their text public under this name.
template <class T>
void Caption(TClassBuilder<T>& builder) {
  builder.template Property<&T::GetCaption, &T::SetCaption>("Caption").Stored(&TControl::IsCaptionStored);
}
template <class T>
void Color(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetColor, &TControl::SetColor>("Color").Stored(&TControl::IsColorStored);
}
/// For classes whose colour is not their parent's.
template <class T>
void Color(TClassBuilder<T>& builder, TColor value) {
  builder.template Property<&TControl::GetColor, &TControl::SetColor>("Color").Default(value).Stored(
      &TControl::IsColorStored);
}
/// For windows with a border of Qt's.
template <class T>
void Bevels(TClassBuilder<T>& builder) {
  builder.template Property<&TWinControl::GetBevelEdges, &TWinControl::SetBevelEdges>("BevelEdges")
      .Default(TBevelEdges{beLeft, beTop, beRight, beBottom});
  builder.template Property<&TWinControl::GetBevelInner, &TWinControl::SetBevelInner>("BevelInner").Default(bvRaised);
  builder.template Property<&TWinControl::GetBevelKind, &TWinControl::SetBevelKind>("BevelKind").Default(bkNone);
  builder.template Property<&TWinControl::GetBevelOuter, &TWinControl::SetBevelOuter>("BevelOuter").Default(bvLowered);
}
template <class T>
void Constraints(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetConstraints, &TControl::SetConstraints>("Constraints");
}
/// With what says that it is the parent's.
template <class T>
void Ctl3D(TClassBuilder<T>& builder) {
  builder.template Property<&TWinControl::IsCtl3D, &TWinControl::SetCtl3D>("Ctl3D").Stored(&TWinControl::IsCtl3DStored);
  builder.template Property<&TWinControl::IsParentCtl3D, &TWinControl::SetParentCtl3D>("ParentCtl3D").Default(true);
}
template <class T>
void DragCursor(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetDragCursor, &TControl::SetDragCursor>("DragCursor").Default(crDrag);
}
template <class T>
void DragKind(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetDragKind, &TControl::SetDragKind>("DragKind").Default(dkDrag);
}
template <class T>
void DragMode(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetDragMode, &TControl::SetDragMode>("DragMode").Default(dmManual);
}
template <class T>
void Enabled(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::IsEnabled, &TControl::SetEnabled>("Enabled").Default(true).Stored(
      &TControl::IsEnabledStored);
}
template <class T>
void Font(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetFont, &TControl::SetFont>("Font").Stored(&TControl::IsFontStored);
}
template <class T>
void InputMethod(TClassBuilder<T>& builder) {
  builder.template Property<&TWinControl::GetImeMode, &TWinControl::SetImeMode>("ImeMode").Default(imDontCare);
  builder.template Property<&TWinControl::GetImeName, &TWinControl::SetImeName>("ImeName");
}
template <class T>
void ParentBiDiMode(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::IsParentBiDiMode, &TControl::SetParentBiDiMode>("ParentBiDiMode").Default(true);
}
template <class T>
void ParentColor(TClassBuilder<T>& builder, bool value = true) {
  builder.template Property<&TControl::IsParentColor, &TControl::SetParentColor>("ParentColor").Default(value);
}
template <class T>
void ParentFont(TClassBuilder<T>& builder, bool value = true) {
  builder.template Property<&TControl::IsParentFont, &TControl::SetParentFont>("ParentFont").Default(value);
}
template <class T>
void ParentShowHint(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::IsParentShowHint, &TControl::SetParentShowHint>("ParentShowHint").Default(true);
}
template <class T>
void PopupMenu(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::GetPopupMenu, &TControl::SetPopupMenu>("PopupMenu");
}
template <class T>
void ShowHint(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::IsShowHint, &TControl::SetShowHint>("ShowHint")
      .Stored(&TControl::IsShowHintStored);
}
/// Always streamed: its number depends on what else is there.
template <class T>
void TabOrder(TClassBuilder<T>& builder) {
  builder.template Property<&TWinControl::GetTabOrder, &TWinControl::SetTabOrder>("TabOrder").Default(-1);
}
template <class T>
void TabStop(TClassBuilder<T>& builder, bool value) {
  builder.template Property<&TWinControl::IsTabStop, &TWinControl::SetTabStop>("TabStop").Default(value);
}
template <class T>
void Visible(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::IsVisible, &TControl::SetVisible>("Visible").Default(true).Stored(
      &TControl::IsVisibleStored);
}

/// What comes from elsewhere.
template <class T>
void DropEvents(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::OnDragDrop>("OnDragDrop");
  builder.template Property<&TControl::OnDragOver>("OnDragOver");
}
/// For what can be dragged itself.
template <class T>
void DragEvents(TClassBuilder<T>& builder) {
  DropEvents(builder);
  builder.template Property<&TControl::OnEndDrag>("OnEndDrag");
  builder.template Property<&TControl::OnStartDrag>("OnStartDrag");
}
/// The mouse's own, without what they add up to.
template <class T>
void ButtonEvents(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::OnMouseDown>("OnMouseDown");
  builder.template Property<&TControl::OnMouseEnter>("OnMouseEnter");
  builder.template Property<&TControl::OnMouseLeave>("OnMouseLeave");
  builder.template Property<&TControl::OnMouseMove>("OnMouseMove");
  builder.template Property<&TControl::OnMouseUp>("OnMouseUp");
}
template <class T>
void MouseEvents(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::OnClick>("OnClick").Stored(&TControl::IsOnClickStored);
  builder.template Property<&TControl::OnContextPopup>("OnContextPopup");
  builder.template Property<&TControl::OnDblClick>("OnDblClick");
  ButtonEvents(builder);
}
template <class T>
void WheelEvents(TClassBuilder<T>& builder) {
  builder.template Property<&TWinControl::OnMouseWheel>("OnMouseWheel");
  builder.template Property<&TWinControl::OnMouseWheelDown>("OnMouseWheelDown");
  builder.template Property<&TWinControl::OnMouseWheelUp>("OnMouseWheelUp");
}
template <class T>
void SizeEvents(TClassBuilder<T>& builder) {
  builder.template Property<&TControl::OnCanResize>("OnCanResize");
  builder.template Property<&TControl::OnConstrainedResize>("OnConstrainedResize");
  builder.template Property<&TControl::OnResize>("OnResize");
}
template <class T>
void FocusEvents(TClassBuilder<T>& builder) {
  builder.template Property<&TWinControl::OnEnter>("OnEnter");
  builder.template Property<&TWinControl::OnExit>("OnExit");
}
template <class T>
void KeyEvents(TClassBuilder<T>& builder) {
  builder.template Property<&TWinControl::OnKeyDown>("OnKeyDown");
  builder.template Property<&TWinControl::OnKeyPress>("OnKeyPress");
  builder.template Property<&TWinControl::OnKeyUp>("OnKeyUp");
}

}  // namespace kt::Publish
