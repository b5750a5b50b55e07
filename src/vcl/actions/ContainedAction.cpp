#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/actions/ActionList.h"

namespace kt {

const TClassInfo* TContainedAction::Class() {
  static const TClassInfo info = TClassBuilder<TContainedAction>("TContainedAction").Done();
  return &info;
}

void TContainedAction::Destruct() {
  if (FActionList) std::exchange(FActionList, nullptr)->RemoveAction(this);
  TBasicAction::Destruct();
}

void TContainedAction::SetActionList(TCustomActionList* value) {
  if (FActionList == value) return;
  const TLifeWatch self(this);
  if (FActionList) std::exchange(FActionList, nullptr)->RemoveAction(this);
  if (!self.IsAlive() || !value) return;
  FActionList = value;
  value->AddAction(this);
}

int TContainedAction::GetIndex() const { return FActionList ? FActionList->IndexOf(this) : -1; }

void TContainedAction::SetIndex(int value) {
  if (FActionList) FActionList->MoveAction(this, value);
}

void TContainedAction::SetCategory(const QString& value) {
  if (FCategory == value) return;
  FCategory = value;
  if (FActionList) FActionList->Change();
}

bool TContainedAction::Execute() {
  const TLifeWatch self(this);
  if (FActionList && FActionList->ExecuteAction(*this)) return true;
  // Whoever freed the action has seen to it.
  return !self.IsAlive() || TBasicAction::Execute();
}

bool TContainedAction::Update() {
  const TLifeWatch self(this);
  if (FActionList && FActionList->UpdateAction(*this)) return true;
  return !self.IsAlive() || TBasicAction::Update();
}

TComponent* TContainedAction::GetParentComponent() { return FActionList; }

void TContainedAction::SetParentComponent(TComponent* value) {
  if (auto* list = dynamic_cast<TCustomActionList*>(value)) SetActionList(list);
}

void TContainedAction::Change() {
  const TLifeWatch self(this);
  TBasicAction::Change();
  if (self.IsAlive() && FActionList) FActionList->Change();
}

}  // namespace kt
