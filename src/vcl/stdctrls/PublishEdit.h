#pragma once

#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/stdctrls/CustomEdit.h"

/// What edits publish in common.
namespace kt::Publish {

template <class T>
void AutoSelect(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomEdit::IsAutoSelect, &TCustomEdit::SetAutoSelect>("AutoSelect").Default(true);
}
template <class T>
void AutoSize(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomEdit::IsAutoSize, &TCustomEdit::SetAutoSize>("AutoSize").Default(true);
}
template <class T>
void EditBorderStyle(TClassBuilder<T>& builder) {
  builder
      .template Property<&TCustomEdit::GetBorderStyle, &TCustomEdit::SetBorderStyle>("BorderStyle",
                                                                                     &BorderStyleTypeInfo)
      .Default(bsSingle);
}
template <class T>
void CharCase(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomEdit::GetCharCase, &TCustomEdit::SetCharCase>("CharCase").Default(ecNormal);
}
template <class T>
void HideSelection(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomEdit::IsHideSelection, &TCustomEdit::SetHideSelection>("HideSelection")
      .Default(true);
}
template <class T>
void MaxLength(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomEdit::GetMaxLength, &TCustomEdit::SetMaxLength>("MaxLength").Default(0);
}
template <class T>
void OEMConvert(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomEdit::IsOEMConvert, &TCustomEdit::SetOEMConvert>("OEMConvert").Default(false);
}
template <class T>
void PasswordChar(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomEdit::GetPasswordChar, &TCustomEdit::SetPasswordChar>("PasswordChar").Default(0);
}
template <class T>
void ReadOnly(TClassBuilder<T>& builder) {
  builder.template Property<&TCustomEdit::IsReadOnly, &TCustomEdit::SetReadOnly>("ReadOnly").Default(false);
}

}  // namespace kt::Publish
