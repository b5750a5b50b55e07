#include "kt/rtl/streams/Fixups.h"

#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/streams/Load.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <algorithm>
#include <map>

namespace kt {
namespace {

/// References that wait for a component of a form that is not loaded yet. Forms are loaded in one thread.
std::vector<TFixups::TFixup>& Waiting() {
  static std::vector<TFixups::TFixup> list;
  return list;
}

std::map<int, TFindGlobalComponent>& Finders() {
  static std::map<int, TFindGlobalComponent> finders;
  return finders;
}

TComponent* Target(const TFixups::TFixup& fixup) {
  for (TComponent* scope = fixup.Root; scope; scope = scope->GetOwnerComponent()) {
    if (TComponent* found = FindNestedComponent(scope, fixup.Name)) return found;
  }
  const qsizetype dot = fixup.Name.indexOf(u'.');
  TComponent* root = FindGlobalComponent(dot < 0 ? fixup.Name : fixup.Name.left(dot));
  return root && dot >= 0 ? FindNestedComponent(root, QStringView(fixup.Name).sliced(dot + 1)) : root;
}

/// False while the component is missing.
bool Apply(const TFixups::TFixup& fixup) {
  TComponent* target = Target(fixup);
  if (!target) return false;
  if (fixup.Property->Kind() == tkInterface) {
    SetInterfaceProp(fixup.Instance, fixup.Property, static_cast<IInterfaceComponentReference*>(target));
  } else {
    SetObjectProp(fixup.Instance, fixup.Property, target);
  }
  return true;
}

void RemoveFrom(std::vector<TFixups::TFixup>& list, const TPersistent* object) {
  const auto belongs = [object](const TFixups::TFixup& fixup) {
    return fixup.Instance == object || static_cast<const TPersistent*>(fixup.Root) == object;
  };
  list.erase(std::remove_if(list.begin(), list.end(), belongs), list.end());
}

}  // namespace

void TFixups::Remove(const TPersistent* object) { RemoveFrom(FList, object); }

void TFixups::Resolve() {
  // Taken out one by one: a setter may destroy an object that a later reference belongs to.
  std::reverse(FList.begin(), FList.end());
  while (!FList.empty()) {
    const TFixup fixup = std::move(FList.back());
    FList.pop_back();
    if (!Apply(fixup)) Waiting().push_back(fixup);
  }
}

int RegisterFindGlobalComponentProc(TFindGlobalComponent proc) {
  static int lastNumber = 0;
  Finders().emplace(++lastNumber, std::move(proc));
  return lastNumber;
}

void UnRegisterFindGlobalComponentProc(int number) { Finders().erase(number); }

TComponent* FindGlobalComponent(const QString& name) {
  for (const auto& [number, find] : Finders()) {
    if (TComponent* found = find(name)) return found;
  }
  return nullptr;
}

TComponent* FindNestedComponent(TComponent* root, QStringView path) {
  TComponent* current = root;
  for (const QStringView name : path.split(u'.')) {
    TComponent* found = current->FindComponent(name);
    const bool isItself = SameText(name, u"Owner") || (current == root && SameText(name, root->GetName()));
    if (!found && isItself) found = current;
    if (!found) return nullptr;
    current = found;
  }
  return current;
}

void GlobalFixupReferences() {
  if (Waiting().empty()) return;
  TLoad load;
  for (TFixups::TFixup& fixup : std::exchange(Waiting(), {})) load.Fixups().Add(std::move(fixup));
  load.Fixups().Resolve();
}

QStringList GetFixupReferenceNames(TComponent* root) {
  QStringList names;
  for (const TFixups::TFixup& fixup : Waiting()) {
    if (fixup.Root == root) names.append(fixup.Name);
  }
  return names;
}

void RemoveFixups(TPersistent* object) {
  if (!Waiting().empty()) RemoveFrom(Waiting(), object);
}

}  // namespace kt
