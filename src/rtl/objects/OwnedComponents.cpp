#include "kt/rtl/objects/OwnedComponents.h"

#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Component.h"

#include <algorithm>

namespace kt {

int TOwnedComponents::IndexOf(const TComponent* component) const {
  const auto found = std::find(FList.rbegin(), FList.rend(), component);
  return found == FList.rend() ? -1 : static_cast<int>(FList.rend() - found) - 1;
}

TComponent* TOwnedComponents::Find(QStringView name) const {
  EnsureIndex();
  const auto entry = FByName.find(LowerCase(name));
  return entry == FByName.end() ? nullptr : entry->second;
}

void TOwnedComponents::Add(TComponent* component, const QString& name) {
  FList.push_back(component);
  try {
    if (component->HearsNotifications()) FListeners.reserve(FList.capacity());
    IndexName(component, name);
  } catch (...) {
    FList.pop_back();
    throw;
  }
  if (component->HearsNotifications()) FListeners.push_back(component);
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
  FListenersAreKnown = false;
}

void TOwnedComponents::ListenersChanged() {
  FListeners.reserve(FList.capacity());
  FListenersAreKnown = false;
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
  if (SameText(from, to)) return;
  IndexName(component, to);
  ForgetName(component, from);
}

void TOwnedComponents::DropIndex() {
  FByName.clear();
  FHasEqualNames = false;
  FIsIndexed = false;
}

void TOwnedComponents::EnsureIndex() const {
  if (FIsIndexed) return;
  std::unordered_map<QString, TComponent*> byName;
  bool hasEqualNames = false;
  for (TComponent* component : FList) {
    if (component->GetName().isEmpty()) continue;
    hasEqualNames |= !byName.try_emplace(LowerCase(component->GetName()), component).second;
  }
  FByName.swap(byName);
  FHasEqualNames = hasEqualNames;
  FIsIndexed = true;
}

void TOwnedComponents::IndexName(TComponent* component, const QString& name) {
  if (name.isEmpty() || !FIsIndexed) return;
  const bool isNew = FByName.try_emplace(LowerCase(name), component).second;
  if (!isNew) FHasEqualNames = true;
}

void TOwnedComponents::ForgetName(TComponent* component, const QString& name) {
  if (!FIsIndexed) return;
  const auto entry = FByName.find(LowerCase(name));
  if (name.isEmpty() || entry == FByName.end() || entry->second != component) return;
  if (!FHasEqualNames) {
    FByName.erase(entry);
    return;
  }
  // A class may allow equal names by overriding ValidateRename(): the next one of the name takes the place.
  const auto next = std::find_if(FList.begin(), FList.end(), [&](const TComponent* other) {
    return other != component && SameText(other->GetName(), name);
  });
  if (next != FList.end()) {
    entry->second = *next;
  } else {
    FByName.erase(entry);
  }
}

}  // namespace kt
