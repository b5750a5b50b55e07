// The action of TControl.
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/actions/ControlActionLink.h"
#include "kt/vcl/controls/Control.h"

namespace kt {

TBasicAction* TControl::GetAction() const { return FActionLink ? FActionLink->GetAction() : nullptr; }

std::unique_ptr<TControlActionLink> TControl::MakeActionLink() { return Make<TControlActionLink>(*this); }

void TControl::SetAction(TBasicAction* value) {
  if (!value) {
    FActionLink.reset();
    FControlStyle.Exclude(csActionClient);
    return;
  }
  FControlStyle.Include(csActionClient);
  if (!FActionLink) FActionLink = MakeActionLink();
  FActionLink->SetAction(value);
  FActionLink->OnChange = {this, &TControl::DoActionChange};
  value->FreeNotification(this);
  // What is being loaded has its own values read, or to be read.
  ActionChange(value, HasState(csLoading) || value->HasState(csLoading));
}

void TControl::DoActionChange(TObject* sender) {
  if (sender == GetAction()) ActionChange(sender, false);
}

void TControl::ActionChange(TObject* action, bool onlyDefaults) {
  auto* custom = dynamic_cast<TCustomAction*>(action);
  if (!custom) return;
  const TLifeWatch self(this);
  const TLifeWatch source(custom);
  // Each of them may run handlers that free either.
  const auto take = [&](bool isDefault, auto set) {
    if (self.IsAlive() && source.IsAlive() && (!onlyDefaults || isDefault)) set();
  };
  take(GetText().isEmpty() || GetText() == GetName(), [&] { SetText(custom->GetCaption()); });
  if (!self.IsAlive() || !source.IsAlive()) return;
  take(FEnabled, [&] { SetEnabled(custom->IsEnabled()); });
  if (!self.IsAlive() || !source.IsAlive()) return;
  take(FHint.isEmpty(), [&] { SetHint(custom->GetHint()); });
  take(FHelpContext == 0, [&] { SetHelpContext(custom->GetHelpContext()); });
  take(FHelpKeyword.isEmpty(), [&] { SetHelpKeyword(custom->GetHelpKeyword()); });
  take(OnClick.IsEmpty(), [&] { OnClick = custom->GetOnExecute(); });
  take(FVisible, [&] { SetVisible(custom->IsVisible()); });
}

void TControl::Click() {
  TBasicAction* action = GetAction();
  // A handler of its own goes before the action's.
  const bool isOwn = OnClick && action && !(OnClick == action->GetOnExecute());
  if (isOwn || !FActionLink || HasState(csDesigning)) return OnClick(this);
  FActionLink->Execute(this);
}

// What streams leave out because it comes from the action.

bool TControl::IsCaptionStored() const { return !FActionLink || !FActionLink->IsCaptionLinked(); }
bool TControl::IsEnabledStored() const { return !FActionLink || !FActionLink->IsEnabledLinked(); }
bool TControl::IsHelpContextStored() const { return !FActionLink || !FActionLink->IsHelpContextLinked(); }
bool TControl::IsHelpStored() const { return !FActionLink || !FActionLink->IsHelpLinked(); }
bool TControl::IsHintStored() const { return !FActionLink || !FActionLink->IsHintLinked(); }
bool TControl::IsOnClickStored() const { return !FActionLink || !FActionLink->IsOnExecuteLinked(); }
bool TControl::IsVisibleStored() const { return !FActionLink || !FActionLink->IsVisibleLinked(); }

}  // namespace kt
