#include "kt/vcl/actions/BasicAction.h"

#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <algorithm>

namespace kt {

// The link.

void TBasicActionLink::Destruct() {
  SetAction(nullptr);
  TObject::Destruct();
}

void TBasicActionLink::SetAction(TBasicAction* value) {
  if (FAction == value) return;
  if (FAction) FAction->UnRegisterChanges(*this);
  if (value) value->RegisterChanges(*this);
}

bool TBasicActionLink::Execute(TComponent* component) {
  if (!FAction) return false;
  FAction->SetActionComponent(component);
  return FAction->Execute();
}

bool TBasicActionLink::Update() { return FAction && FAction->Update(); }

void TBasicActionLink::Change() { OnChange(FAction); }

// The action.

const TClassInfo* TBasicAction::Class() {
  static const TClassInfo info = TClassBuilder<TBasicAction>("TBasicAction").Done();
  return &info;
}

void TBasicAction::Destruct() {
  // Clients are told first, while they still know whose end it is.
  TComponent::Destruct();
  while (!FLinks.empty()) UnRegisterChanges(*FLinks.back());
}

void TBasicAction::RegisterChanges(TBasicActionLink& link) {
  if (link.FAction) link.FAction->UnRegisterChanges(link);
  FLinks.push_back(&link);
  link.FAction = this;
}

void TBasicAction::UnRegisterChanges(TBasicActionLink& link) {
  if (std::erase(FLinks, &link) > 0) link.FAction = nullptr;
}

bool TBasicAction::HasLink(const TBasicActionLink* link) const {
  return std::find(FLinks.begin(), FLinks.end(), link) != FLinks.end();
}

bool TBasicAction::TellLinks(const std::function<void(TBasicActionLink& link)>& tell) {
  const TLifeWatch self(this);
  // Whoever is told may free others, or the action.
  const std::vector<TBasicActionLink*> links = FLinks;
  for (TBasicActionLink* link : links) {
    if (!self.IsAlive()) return false;
    if (HasLink(link)) tell(*link);
  }
  return self.IsAlive();
}

void TBasicAction::Change() {
  if (TellLinks([](TBasicActionLink& link) { link.Change(); })) OnChange(this);
}

void TBasicAction::SetOnExecute(const TNotifyEvent& value) {
  if (FOnExecute == value) return;
  if (!TellLinks([&](TBasicActionLink& link) { link.SetOnExecute(value); })) return;
  FOnExecute = value;
  Change();
}

void TBasicAction::SetActionComponent(TComponent* value) {
  FActionComponent = value;
  if (value) value->FreeNotification(this);
}

void TBasicAction::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && component == FActionComponent) FActionComponent = nullptr;
}

bool TBasicAction::Execute() {
  // A copy: the handler may free the action.
  const TNotifyEvent handler = FOnExecute;
  handler(this);
  return static_cast<bool>(handler);
}

bool TBasicAction::Update() {
  const TNotifyEvent handler = OnUpdate;
  handler(this);
  return static_cast<bool>(handler);
}

}  // namespace kt
