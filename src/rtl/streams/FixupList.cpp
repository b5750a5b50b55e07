#include "kt/rtl/streams/FixupList.h"

#include "kt/rtl/objects/Component.h"

#include <set>

namespace kt {
namespace {

TComponent* ComponentAround(TPersistent* object) {
  for (; object; object = object->OwnerOf()) {
    if (auto* component = dynamic_cast<TComponent*>(object)) return component;
  }
  return nullptr;
}

TComponent* HolderOf(const TFixup& fixup) {
  TComponent* holder = ComponentAround(fixup.Instance);
  return holder ? holder : ComponentAround(fixup.PathStart);
}

}  // namespace

void TFixupList::Add(TFixup fixup) {
  fixup.Holder = HolderOf(fixup);
  const TNumber number = FNext++;
  // The indexes first: a number too many does no harm there.
  FByInstance[fixup.Instance].push_back(number);
  const std::set<const TPersistent*> concerned = {fixup.Instance, fixup.Root, fixup.PathStart, fixup.Holder};
  for (const TPersistent* object : concerned) {
    if (object) FByObject[object].push_back(number);
  }
  size_t& count = FCountOfHolder[fixup.Holder];
  TComponent* holder = FFixups.emplace(number, std::move(fixup)).first->second.Holder;
  ++count;
  if (holder) holder->FComponentState.Include(csFixups);
}

const std::pair<const TFixupList::TNumber, TFixup>* TFixupList::From(TNumber number) const {
  const auto found = FFixups.lower_bound(number);
  return found == FFixups.end() ? nullptr : &*found;
}

void TFixupList::Remove(TNumber number) {
  const auto found = FFixups.find(number);
  if (found == FFixups.end()) return;
  TComponent* holder = found->second.Holder;
  FFixups.erase(found);
  if (--FCountOfHolder[holder] == 0) {
    FCountOfHolder.erase(holder);
    if (holder) holder->FComponentState.Exclude(csFixups);
  }
  if (!FFixups.empty()) return;
  FByInstance.clear();
  FByObject.clear();
  FCountOfHolder.clear();
}

void TFixupList::RemoveAllOf(const TPersistent* object) {
  const auto found = FByObject.find(object);
  if (found == FByObject.end()) return;
  const std::vector<TNumber> numbers = std::move(found->second);
  FByObject.erase(found);
  FByInstance.erase(object);
  for (const TNumber number : numbers) Remove(number);
}

const TFixup* TFixupList::Find(const TPersistent* instance, const TPropInfo* property) const {
  const auto found = FByInstance.find(instance);
  if (found == FByInstance.end()) return nullptr;
  for (const TNumber number : found->second) {
    const auto fixup = FFixups.find(number);
    if (fixup != FFixups.end() && fixup->second.Property == property) return &fixup->second;
  }
  return nullptr;
}

QStringList TFixupList::NamesOf(const TPersistent* root) const {
  QStringList names;
  const auto found = FByObject.find(root);
  if (found == FByObject.end()) return names;
  for (const TNumber number : found->second) {
    const auto fixup = FFixups.find(number);
    if (fixup != FFixups.end() && fixup->second.Root == root) names.append(fixup->second.Name);
  }
  return names;
}

}  // namespace kt
