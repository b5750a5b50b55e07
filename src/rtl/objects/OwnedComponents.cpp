#include "kt/rtl/objects/OwnedComponents.h"

#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Component.h"

#include <algorithm>

namespace kt {

int TOwnedComponents::IndexOf(const TComponent* component) const {
  const auto found = std::find(FList.rbegin(), FList.rend(), component);
  return found == FList.rend() ? -1 : static_cast<int>(FList.rend() - found) - 1;
}

TComponent* TOwnedComponents::Find(QStringView name) const { return FByName.value(name.toString().toLower()); }

void TOwnedComponents::Add(TComponent* component, const QString& name) {
  FList.push_back(component);
  if (component->HearsNotifications()) FListeners.push_back(component);
  IndexName(component, name);
}

void TOwnedComponents::Remove(TComponent* component, const QString& name) {
  const int index = IndexOf(component);
  if (index < 0) return;
  FList.erase(FList.begin() + index);
  if (component->HearsNotifications()) ForgetListener(component);
  ForgetName(component, name);
}

void TOwnedComponents::Move(int from, int to) {
  TComponent* component = FList[from];
  FList.erase(FList.begin() + from);
  FList.insert(FList.begin() + to, component);
  ListenersChanged();
}

void TOwnedComponents::ForgetListener(const TComponent* component) {
  const auto found = std::find(FListeners.rbegin(), FListeners.rend(), component);
  if (found != FListeners.rend()) FListeners.erase(std::next(found).base());
}

const std::vector<TComponent*>& TOwnedComponents::Listeners() {
  if (FListenersAreKnown) return FListeners;
  FListenersAreKnown = true;
  FListeners.clear();
  std::copy_if(FList.begin(), FList.end(), std::back_inserter(FListeners),
               [](const TComponent* component) { return component->HearsNotifications(); });
  return FListeners;
}

void TOwnedComponents::Renamed(TComponent* component, const QString& from, const QString& to) {
  ForgetName(component, from);
  IndexName(component, to);
}

void TOwnedComponents::IndexName(TComponent* component, const QString& name) {
  if (name.isEmpty()) return;
  TComponent*& entry = FByName[name.toLower()];
  if (entry) {
    FHasEqualNames = true;
  } else {
    entry = component;
  }
}

void TOwnedComponents::ForgetName(TComponent* component, const QString& name) {
  const auto entry = FByName.find(name.toLower());
  if (name.isEmpty() || entry == FByName.end() || *entry != component) return;
  FByName.erase(entry);
  if (!FHasEqualNames) return;
  // A class may allow equal names by overriding ValidateRename(): the next one of the name takes the place.
  const auto next = std::find_if(FList.begin(), FList.end(), [&](const TComponent* other) {
    return other != component && SameText(other->GetName(), name);
  });
  if (next != FList.end()) FByName.insert(name.toLower(), *next);
}

}  // namespace kt
