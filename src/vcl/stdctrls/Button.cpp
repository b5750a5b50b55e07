#include "kt/vcl/stdctrls/Button.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/vcl/controls/Publish.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/stdctrls/ButtonBody.h"

#include <QPushButton>

namespace kt {

const TClassInfo* TButton::Class() {
  static const TClassInfo info = [] {
    TClassBuilder<TButton> builder("TButton");
    Publish::Action(builder);
    Publish::Anchors(builder);
    Publish::BiDiMode(builder);
    builder.Property<&TButton::IsCancel, &TButton::SetCancel>("Cancel").Default(false);
    Publish::Caption(builder);
    Publish::Constraints(builder);
    builder.Property<&TButton::IsDefault, &TButton::SetDefault>("Default").Default(false);
    Publish::DragCursor(builder);
    Publish::DragKind(builder);
    Publish::DragMode(builder);
    Publish::Enabled(builder);
    Publish::Font(builder);
    builder.Property<&TButton::GetModalResult, &TButton::SetModalResult>("ModalResult", &ModalResultTypeInfo)
        .Default(mrNone);
    Publish::ParentBiDiMode(builder);
    Publish::ParentFont(builder);
    Publish::ParentShowHint(builder);
    Publish::PopupMenu(builder);
    Publish::ShowHint(builder);
    Publish::TabOrder(builder);
    Publish::TabStop(builder, true);
    Publish::Visible(builder);
    builder.Property<&TButtonControl::IsWordWrap, &TButtonControl::SetWordWrap>("WordWrap").Default(false);
    // A press that comes twice is two clicks.
    builder.Property<&TControl::OnClick>("OnClick").Stored(&TControl::IsOnClickStored);
    builder.Property<&TControl::OnContextPopup>("OnContextPopup");
    Publish::ButtonEvents(builder);
    Publish::DragEvents(builder);
    Publish::FocusEvents(builder);
    Publish::KeyEvents(builder);
    return builder.Creatable().Done();
  }();
  return &info;
}

void TButton::Construct() {
  TButtonControl::Construct();
  SetControlStyle({csSetCaption});
  SetBounds(0, 0, 75, 25);
}

QWidget* TButton::CreateBody(QWidget* parent) { return MakeButton<QPushButton>(parent); }

void TButton::CreateWnd() {
  TButtonControl::CreateWnd();
  // The form looks after Enter, not Qt.
  static_cast<QPushButton*>(Button())->setAutoDefault(false);
  static_cast<QPushButton*>(Button())->setDefault(FActive);
}

void TButton::SetDefault(bool value) {
  if (FDefault == value) return;
  FDefault = value;
  TCustomForm* form = GetParentForm(this);
  if (!form) return SetActiveDefault(value);
  form->Perform(CM_FOCUSCHANGED, 0, PointerMessage<TWinControl>(form->GetActiveControl()));
}

void TButton::SetActiveDefault(bool value) {
  FActive = value;
  if (HandleAllocated()) static_cast<QPushButton*>(Button())->setDefault(value);
}

void TButton::Click() {
  if (TCustomForm* form = GetParentForm(this)) {
    const TLifeWatch self(this);
    form->SetModalResult(FModalResult);
    if (!self.IsAlive()) return;
  }
  TButtonControl::Click();
}

void TButton::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case CM_DIALOGKEY:
      return DialogKey(message);
    case CM_FOCUSCHANGED: {
      const auto* focused = MessagePointer<TWinControl>(message.LParam);
      // A button that has the keyboard takes Enter for itself.
      SetActiveDefault(dynamic_cast<const TButton*>(focused) ? focused == this : FDefault);
      return TButtonControl::Dispatch(message);
    }
    default:
      TButtonControl::Dispatch(message);
  }
}

void TButton::DialogKey(TMessage& message) {
  const bool isPlain = TShiftState::FromBits(static_cast<quint32>(message.LParam)).IsEmpty();
  const bool isMine = (message.WParam == VK_RETURN && FActive) || (message.WParam == VK_ESCAPE && FCancel);
  if (!isMine || !isPlain || !CanFocus()) return TButtonControl::Dispatch(message);
  message.Result = 1;
  Click();
}

}  // namespace kt
