// The action of TMenuItem.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/menus/MenuActionLink.h"
#include "kt/vcl/menus/MenuItem.h"

namespace kt {

TBasicAction* TMenuItem::GetAction() const { return FActionLink ? FActionLink->GetAction() : nullptr; }

void TMenuItem::SetAction(TBasicAction* value) {
  if (!value) return FActionLink.reset();
  if (!FActionLink) FActionLink = Make<TMenuActionLink>(*this);
  FActionLink->SetAction(value);
  FActionLink->OnChange = {this, &TMenuItem::DoActionChange};
  value->FreeNotification(this);
  // What is being loaded has its own values read, or to be read.
  ActionChange(value, HasState(csLoading) || value->HasState(csLoading));
}

void TMenuItem::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && FActionLink && component == FActionLink->GetAction()) SetAction(nullptr);
}

void TMenuItem::DoActionChange(TObject* sender) {
  if (sender == GetAction()) ActionChange(sender, false);
}

void TMenuItem::ActionChange(TObject* action, bool onlyDefaults) {
  const auto* custom = dynamic_cast<TCustomAction*>(action);
  if (!custom) return;
  const TLifeWatch self(this);
  const TLifeWatch source(custom);
  // Each setter tells the menu, whose handler may free either.
  const auto take = [&](const auto& isDefault, const auto& set) {
    if (self.IsAlive() && source.IsAlive() && (!onlyDefaults || isDefault())) set();
  };
  take([&] { return !FAutoCheck; }, [&] { SetAutoCheck(custom->IsAutoCheck()); });
  take([&] { return FCaption.isEmpty(); }, [&] { SetCaption(custom->GetCaption()); });
  take([&] { return !FChecked; }, [&] { SetChecked(custom->IsChecked()); });
  take([&] { return FEnabled; }, [&] { SetEnabled(custom->IsEnabled()); });
  take([&] { return FGroupIndex == 0; }, [&] { SetGroupIndex(static_cast<quint8>(custom->GetGroupIndex())); });
  take([&] { return FHelpContext == 0; }, [&] { SetHelpContext(custom->GetHelpContext()); });
  take([&] { return FHint.isEmpty(); }, [&] { SetHint(custom->GetHint()); });
  take([&] { return FImageIndex == -1; }, [&] { SetImageIndex(custom->GetImageIndex()); });
  take([&] { return FShortCut == scNone; }, [&] { SetShortCut(custom->GetShortCut()); });
  take([&] { return FVisible; }, [&] { SetVisible(custom->IsVisible()); });
  take([&] { return OnClick.IsEmpty(); }, [&] { OnClick = custom->GetOnExecute(); });
}

void TMenuItem::InitiateActions() {
  const TLifeWatch self(this);
  if (FActionLink && !HasState(csDesigning)) FActionLink->Update();
  for (int i = 0; self.IsAlive() && i < GetCount(); ++i) FItems[i]->InitiateActions();
}

void TMenuItem::Click() {
  if (!FEnabled) return;
  // The action checks itself, and with it the entry. A radio item that is checked stays so: another one of its group
  // has to take the check over.
  const bool isCheckedByAction = FActionLink && FActionLink->IsAutoCheckLinked();
  const TLifeWatch self(this);
  if (FAutoCheck && !isCheckedByAction && !(FRadioItem && FChecked)) SetChecked(!FChecked);
  if (!self.IsAlive()) return;
  TBasicAction* action = GetAction();
  // A handler of its own goes before the action's.
  const bool isOwn = OnClick && action && !(OnClick == action->GetOnExecute());
  if (isOwn || !FActionLink || HasState(csDesigning)) return OnClick(this);
  FActionLink->Execute(this);
}

// What streams leave out because it comes from the action.

bool TMenuItem::IsAutoCheckStored() const { return !FActionLink || !FActionLink->IsAutoCheckLinked(); }
bool TMenuItem::IsCaptionStored() const { return !FActionLink || !FActionLink->IsCaptionLinked(); }
bool TMenuItem::IsCheckedStored() const { return !FActionLink || !FActionLink->IsCheckedLinked(); }
bool TMenuItem::IsEnabledStored() const { return !FActionLink || !FActionLink->IsEnabledLinked(); }
bool TMenuItem::IsGroupIndexStored() const { return !FActionLink || !FActionLink->IsGroupIndexLinked(); }
bool TMenuItem::IsHelpContextStored() const { return !FActionLink || !FActionLink->IsHelpContextLinked(); }
bool TMenuItem::IsHintStored() const { return !FActionLink || !FActionLink->IsHintLinked(); }
bool TMenuItem::IsImageIndexStored() const { return !FActionLink || !FActionLink->IsImageIndexLinked(); }
bool TMenuItem::IsShortCutStored() const { return !FActionLink || !FActionLink->IsShortCutLinked(); }
bool TMenuItem::IsVisibleStored() const { return !FActionLink || !FActionLink->IsVisibleLinked(); }
bool TMenuItem::IsOnClickStored() const { return !FActionLink || !FActionLink->IsOnExecuteLinked(); }

}  // namespace kt
