#include "kt/qobjects/ReferenceWatch.h"

#include "kt/qobjects/ComponentOf.h"
#include "kt/qobjects/QObjectComponent.h"
#include "kt/qobjects/ValueMember.h"

#include <QObject>

#include <algorithm>
#include <utility>
#include <vector>

namespace kt {

void TReferenceWatch::Follow(const TValueMember& member, QObject& object) {
  TComponent* component = ComponentOf(&object);
  TTarget& target = FTargets[&member];
  if (target.Address == &object && target.Component == component && target.Object) return;
  TComponent* before = std::exchange(target, {component, &object, &object, false}).Component;
  if (before && before != component && !IsFollowed(*before)) before->RemoveFreeNotification(this);
  if (component) component->FreeNotification(this);
}

bool TReferenceWatch::IsFollowed(const TComponent& component) const {
  return std::any_of(FTargets.begin(), FTargets.end(),
                     [&](const auto& target) { return target.second.Component == &component; });
}

bool TReferenceWatch::IsGone(const TValueMember& member, const QObject* object) const {
  const auto found = FTargets.find(&member);
  if (found == FTargets.end() || found->second.Address != object) return false;
  return found->second.IsGone || !found->second.Object;
}

void TReferenceWatch::Refreshed(const QString& member) {
  std::erase_if(FTargets, [&](const auto& target) { return target.first->Name == member && target.second.IsGone; });
}

void TReferenceWatch::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation != opRemove) return;
  const auto* known = dynamic_cast<const TQObjectComponent*>(component);
  std::vector<const TValueMember*> changed;
  for (auto& [member, target] : FTargets) {
    if (target.Component != component) continue;
    target.Component = nullptr;
    target.IsGone = known && known->HasLostObject();
    changed.push_back(member);
  }
  for (const TValueMember* member : changed) FHolder.MemberChanged(*member);
}

}  // namespace kt
