#include "kt/vcl/menus/MenuActionLink.h"

#include "kt/vcl/actions/Action.h"
#include "kt/vcl/menus/MenuItem.h"

namespace kt {

bool TMenuActionLink::IsAutoCheckLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.IsAutoCheck() == action->IsAutoCheck();
}

bool TMenuActionLink::IsCaptionLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.GetCaption() == action->GetCaption();
}

bool TMenuActionLink::IsCheckedLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.IsChecked() == action->IsChecked();
}

bool TMenuActionLink::IsEnabledLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.IsEnabled() == action->IsEnabled();
}

bool TMenuActionLink::IsGroupIndexLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.GetGroupIndex() == action->GetGroupIndex();
}

bool TMenuActionLink::IsHelpContextLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.GetHelpContext() == action->GetHelpContext();
}

bool TMenuActionLink::IsHintLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.GetHint() == action->GetHint();
}

bool TMenuActionLink::IsImageIndexLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.GetImageIndex() == action->GetImageIndex();
}

bool TMenuActionLink::IsShortCutLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.GetShortCut() == action->GetShortCut();
}

bool TMenuActionLink::IsVisibleLinked() const {
  const TCustomAction* action = GetCustomAction();
  return action && FClient.IsVisible() == action->IsVisible();
}

bool TMenuActionLink::IsOnExecuteLinked() const {
  return GetAction() && FClient.OnClick == GetAction()->GetOnExecute();
}

void TMenuActionLink::SetAutoCheck(bool value) {
  if (IsAutoCheckLinked()) FClient.SetAutoCheck(value);
}

void TMenuActionLink::SetCaption(const QString& value) {
  if (IsCaptionLinked()) FClient.SetCaption(value);
}

void TMenuActionLink::SetChecked(bool value) {
  if (IsCheckedLinked()) FClient.SetChecked(value);
}

void TMenuActionLink::SetEnabled(bool value) {
  if (IsEnabledLinked()) FClient.SetEnabled(value);
}

void TMenuActionLink::SetGroupIndex(int value) {
  if (IsGroupIndexLinked()) FClient.SetGroupIndex(static_cast<quint8>(value));
}

void TMenuActionLink::SetHelpContext(int value) {
  if (IsHelpContextLinked()) FClient.SetHelpContext(value);
}

void TMenuActionLink::SetHint(const QString& value) {
  if (IsHintLinked()) FClient.SetHint(value);
}

void TMenuActionLink::SetImageIndex(int value) {
  if (IsImageIndexLinked()) FClient.SetImageIndex(value);
}

void TMenuActionLink::SetShortCut(TShortCut value) {
  if (IsShortCutLinked()) FClient.SetShortCut(value);
}

void TMenuActionLink::SetVisible(bool value) {
  if (IsVisibleLinked()) FClient.SetVisible(value);
}

void TMenuActionLink::SetOnExecute(const TNotifyEvent& value) {
  if (IsOnExecuteLinked()) FClient.OnClick = value;
}

}  // namespace kt
