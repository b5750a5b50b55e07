#include "kt/vcl/actions/ControlActionLink.h"

#include "kt/vcl/actions/Action.h"
#include "kt/vcl/actions/IdleActions.h"
#include "kt/vcl/controls/Control.h"

namespace kt {

void TControlActionLink::Construct() {
  TActionLink::Construct();
  TIdleActions::Add(*this);
}

void TControlActionLink::Destruct() {
  TIdleActions::Remove(*this);
  TActionLink::Destruct();
}

bool TControlActionLink::IsCaptionLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.GetText() == action->GetCaption();
}

bool TControlActionLink::IsEnabledLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.IsEnabled() == action->IsEnabled();
}

bool TControlActionLink::IsHelpContextLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.GetHelpContext() == action->GetHelpContext();
}

bool TControlActionLink::IsHelpLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.GetHelpType() == action->GetHelpType() &&
         FClient.GetHelpKeyword() == action->GetHelpKeyword();
}

bool TControlActionLink::IsHintLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.GetHint() == action->GetHint();
}

bool TControlActionLink::IsVisibleLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.IsVisible() == action->IsVisible();
}

bool TControlActionLink::IsOnExecuteLinked() const {
  return GetAction() && FClient.OnClick == GetAction()->GetOnExecute();
}

void TControlActionLink::SetCaption(const QString& value) {
  if (IsCaptionLinked()) FClient.SetText(value);
}

void TControlActionLink::SetEnabled(bool value) {
  if (IsEnabledLinked()) FClient.SetEnabled(value);
}

void TControlActionLink::SetHelpContext(int value) {
  if (IsHelpContextLinked()) FClient.SetHelpContext(value);
}

void TControlActionLink::SetHelpKeyword(const QString& value) {
  if (IsHelpLinked()) FClient.SetHelpKeyword(value);
}

void TControlActionLink::SetHelpType(THelpType value) {
  if (IsHelpLinked()) FClient.SetHelpType(value);
}

void TControlActionLink::SetHint(const QString& value) {
  if (IsHintLinked()) FClient.SetHint(value);
}

void TControlActionLink::SetVisible(bool value) {
  if (IsVisibleLinked()) FClient.SetVisible(value);
}

void TControlActionLink::SetOnExecute(const TNotifyEvent& value) {
  if (IsOnExecuteLinked()) FClient.OnClick = value;
}

bool TControlActionLink::DoShowHint(QString& hint) const {
  TCustomAction* action = GetCustomAction();
  return !action || action->DoHint(hint);
}

}  // namespace kt
