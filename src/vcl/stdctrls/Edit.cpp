#include "kt/vcl/stdctrls/Edit.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/stdctrls/PublishEdit.h"

namespace kt {

const TClassInfo* TEdit::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TEdit> builder("TEdit");
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
    Publish::Font(builder);
    Publish::HideSelection(builder);
    Publish::MaxLength(builder);
    Publish::OEMConvert(builder);
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
    builder.Property<&TCustomEdit::GetText, &TCustomEdit::SetText>("Text");
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

void TEdit::CreateWnd() {
  const TLifeWatch self(this);
  TCustomEdit::CreateWnd();
  if (self.IsAlive()) UpdateDirection();
}

void TEdit::CMBiDiModeChanged(TMessage& message) {
  const TLifeWatch self(this);
  TCustomEdit::CMBiDiModeChanged(message);
  if (self.IsAlive()) UpdateDirection();
}

void TEdit::DefaultHandler(TMessage& message) {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): deliberately past the edit, to where the window does nothing
  if (IsDesigned(message)) return TWinControl::DefaultHandler(message);
  TCustomEdit::DefaultHandler(message);
}

}  // namespace kt
