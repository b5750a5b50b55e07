#include "kt/vcl/actions/ActionList.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/LifeWatch.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/imagelist/ImageList.h"

#include <algorithm>

namespace kt {

const TClassInfo* TCustomActionList::Class() {
  static const TClassInfo info = TClassBuilder<TCustomActionList>("TCustomActionList").Done();
  return &info;
}

const TClassInfo* TActionList::Class() {
  using T = TActionList;
  static const TClassInfo info = TClassBuilder<T>("TActionList")
                                     .Property<&T::GetImages, &T::SetImages>("Images")
                                     .Property<&T::GetState, &T::SetState>("State")
                                     .Default(asNormal)
                                     .Property<&T::OnChange>("OnChange")
                                     .Property<&T::OnExecute>("OnExecute")
                                     .Property<&T::OnStateChange>("OnStateChange")
                                     .Property<&T::OnUpdate>("OnUpdate")
                                     .Creatable()
                                     .Done();
  return &info;
}

void TCustomActionList::Destruct() {
  Destroying();
  FImages.reset();
  while (!FActions.empty()) delete FActions.back();
  TComponent::Destruct();
}

TContainedAction* TCustomActionList::GetActions(int index) const {
  if (index < 0 || index >= GetActionCount()) throw EListError(Format(SListIndexError, {index}));
  return FActions[index];
}

int TCustomActionList::IndexOf(const TContainedAction* action) const {
  const auto found = std::find(FActions.begin(), FActions.end(), action);
  return found == FActions.end() ? -1 : static_cast<int>(found - FActions.begin());
}

void TCustomActionList::AddAction(TContainedAction* action) {
  FActions.push_back(action);
  Change();
}

void TCustomActionList::RemoveAction(TContainedAction* action) {
  if (std::erase(FActions, action) > 0) Change();
}

void TCustomActionList::MoveAction(TContainedAction* action, int index) {
  index = std::clamp(index, 0, GetActionCount() - 1);
  if (std::erase(FActions, action) > 0) FActions.insert(FActions.begin() + index, action);
}

void TCustomActionList::Change() {
  if (!HasState(csDestroying)) OnChange(this);
}

void TCustomActionList::SetImages(TCustomImageList* value) {
  if (GetImages() == value) return;
  FollowImages(FImages, value, TNotifyEvent([this](TObject*) { Change(); }));
  Change();
}

void TCustomActionList::SetState(TActionListState value) {
  if (FState == value) return;
  const TActionListState before = std::exchange(FState, value);
  const TLifeWatch self(this);
  for (int i = 0; self.IsAlive() && i < GetActionCount(); ++i) {
    auto* action = dynamic_cast<TCustomAction*>(FActions[i]);
    if (action) action->ListStateChanged(before, value);
  }
  if (self.IsAlive()) OnStateChange(this);
}

bool TCustomActionList::ExecuteAction(TBasicAction& action) {
  bool isHandled = false;
  OnExecute(&action, isHandled);
  return isHandled;
}

bool TCustomActionList::UpdateAction(TBasicAction& action) {
  bool isHandled = false;
  OnUpdate(&action, isHandled);
  return isHandled;
}

bool TCustomActionList::IsShortCut(quint16 key, TShiftState shift) {
  const TShortCut shortCut = ShortCut(key, shift);
  if (shortCut == scNone || FState != asNormal) return false;
  const TLifeWatch self(this);
  for (int i = 0; self.IsAlive() && i < GetActionCount(); ++i) {
    auto* action = dynamic_cast<TCustomAction*>(FActions[i]);
    const bool isMine =
        action && (action->GetShortCut() == shortCut ||
                   (action->HasSecondaryShortCuts() && action->GetSecondaryShortCuts().IndexOfShortCut(shortCut) >= 0));
    if (isMine && action->HandleShortCut()) return true;
  }
  return false;
}

void TCustomActionList::GetChildren(const TGetChildProc& proc, TComponent* root) {
  for (TContainedAction* action : std::vector<TContainedAction*>(FActions)) {
    if (action->GetOwnerComponent() == root) proc(action);
  }
}

void TCustomActionList::SetChildOrder(TComponent* child, int order) {
  if (auto* action = dynamic_cast<TContainedAction*>(child)) MoveAction(action, order);
}

}  // namespace kt
