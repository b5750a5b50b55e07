// What masked lines of text publish.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/mask/MaskEdit.h"
#include "kt/vcl/stdctrls/PublishEdit.h"

namespace kt {

namespace {

const TTypeInfo* EditMaskTypeInfo() {
  static const TTypeInfo info(tkLString, QStringLiteral("TEditMask"));
  return &info;
}

}  // namespace

const TClassInfo* TMaskEdit::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TMaskEdit> builder("TMaskEdit");
    Publish::Action(builder);
    Publish::Align(builder);
    Publish::Anchors(builder);
    Publish::AutoSelect(builder);
    Publish::AutoSize(builder);
    Publish::Bevels(builder);
    Publish::BiDiMode(builder);
    Publish::EditBorderStyle(builder);
    Publish::CharCase(builder);
    Publish::Color(builder, clWindow);
    Publish::Constraints(builder);
    Publish::Ctl3D(builder);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    builder.Property<&TMaskEdit::GetEditMask, &TMaskEdit::SetEditMask>("EditMask", &EditMaskTypeInfo);
    Publish::Font(builder);
    builder.Property<&TMaskEdit::GetMaxLength, &TMaskEdit::SetMaxLength>("MaxLength")
        .Default(0)
        .Stored(&TMaskEdit::IsMaxLengthStored);
    Publish::InputMethod(builder);
    Publish::ParentBiDiMode(builder);
    Publish::ParentColor(builder, false);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PasswordChar(builder);
    Publish::PopupMenu(builder);
    Publish::ReadOnly(builder);
    Publish::ShowHint(builder);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, true);
    builder.Property<&TMaskEdit::GetText, &TMaskEdit::SetText>("Text");
    Publish::Visible(builder);
    builder.Property<&TCustomEdit::OnChange>("OnChange");
    Publish::MouseEvents(builder);
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    Publish::KeyEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TMaskEdit::CreateWnd() {
  const TLifeWatch self(this);
  TCustomMaskEdit::CreateWnd();
  if (self.IsAlive()) UpdateDirection();
}

void TMaskEdit::CMBiDiModeChanged(TMessage& message) {
  TCustomMaskEdit::CMBiDiModeChanged(message);
  UpdateDirection();
}

}  // namespace kt
