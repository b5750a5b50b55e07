#include "kt/rtl/streams/Fixups.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/streams/BinaryWriter.h"
#include "kt/rtl/streams/Load.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <QScopeGuard>

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>

namespace kt {
namespace {

/// References that wait for a component of a form that is not loaded yet. Objects of any thread look here when they are
/// destroyed, nearly always when nothing waits.
struct TWaitingList {
  std::atomic<size_t> Count = 0;
  std::mutex Mutex;
  std::vector<TFixups::TFixup> List;
};

TWaitingList& Waiting() {
  // Never destroyed: objects with static storage look here after the end of main.
  static auto* waiting = new TWaitingList;
  return *waiting;
}

void Wait(const TFixups::TFixup& fixup) {
  const std::lock_guard lock(Waiting().Mutex);
  Waiting().List.push_back(fixup);
  Waiting().Count = Waiting().List.size();
}

std::vector<TFixups::TFixup> TakeWaiting() {
  const std::lock_guard lock(Waiting().Mutex);
  // Those that go on waiting shall find room.
  std::vector<TFixups::TFixup> room;
  room.reserve(Waiting().List.size());
  Waiting().Count = 0;
  return std::exchange(Waiting().List, std::move(room));
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

void SetReference(const TFixups::TFixup& fixup, TComponent* target) {
  if (fixup.Property->Kind() == tkInterface) {
    SetInterfaceProp(fixup.Instance, fixup.Property, static_cast<IInterfaceComponentReference*>(target));
  } else {
    SetObjectProp(fixup.Instance, fixup.Property, target);
  }
}

/// The identifier as the binary format stores it.
QByteArray StoredIdent(const QString& name) {
  QByteArray value;
  TBinaryWriter writer(value);
  writer.WriteIdent(name);
  writer.Flush();
  return value;
}

/// False while the component is missing.
bool Apply(const TFixups::TFixup& fixup) {
  TComponent* target = Target(fixup);
  if (!target || !fixup.Instance) return false;
  if (fixup.IsKept && dynamic_cast<TUnknownComponent*>(target)) {
    EnsureKeptData(fixup.PathStart).Properties.push_back({fixup.Path, StoredIdent(fixup.Name)});
    return true;
  }
  try {
    SetReference(fixup, target);
  } catch (const EInvalidCast& error) {
    const QString object = fixup.Instance ? fixup.PathStart->GetNamePath() : QString();
    throw EReadError(Format(SPropertyException, {object, u'.', fixup.Path, error.Message()}));
  }
  return true;
}

bool Concerns(const TFixups::TFixup& fixup, const TPersistent* object) {
  return fixup.Instance == object || fixup.PathStart == object || static_cast<const TPersistent*>(fixup.Root) == object;
}

void RemoveFrom(std::vector<TFixups::TFixup>& list, const TPersistent* object) {
  std::erase_if(list, [object](const TFixups::TFixup& fixup) { return Concerns(fixup, object); });
}

}  // namespace

void TFixups::Remove(const TPersistent* object) {
  RemoveFrom(FList, object);
  if (FCurrent && Concerns(*FCurrent, object)) FCurrent->Instance = nullptr;
}

template <class F>
void TFixups::ResolveAll(F apply) {
  // Taken out one by one: a setter may destroy an object that a later reference belongs to.
  std::reverse(FList.begin(), FList.end());
  while (!FList.empty()) {
    TFixup fixup = std::move(FList.back());
    FList.pop_back();
    FCurrent = &fixup;
    const auto done = qScopeGuard([this] { FCurrent = nullptr; });
    if (!apply(fixup) && fixup.Instance) Wait(fixup);
  }
}

void TFixups::Resolve() {
  ResolveAll([](const TFixup& fixup) { return Apply(fixup); });
}

void TFixups::ResolveGuarded() {
  ResolveAll([](const TFixup& fixup) {
    bool isSet = true;
    GuardedCall([&] { isSet = Apply(fixup); });
    return isSet;
  });
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
  if (Waiting().Count == 0) return;
  // While they are being resolved they belong to a load, so that objects destroyed meanwhile disappear.
  TLoad load;
  load.Fixups().Take(TakeWaiting());
  load.Fixups().ResolveGuarded();
}

QStringList GetFixupReferenceNames(TComponent* root) {
  const std::lock_guard lock(Waiting().Mutex);
  QStringList names;
  for (const TFixups::TFixup& fixup : Waiting().List) {
    if (fixup.Root == root) names.append(fixup.Name);
  }
  return names;
}

QString FindWaitingReference(const TPersistent* instance, const TPropInfo* property) {
  if (Waiting().Count == 0) return {};
  const std::lock_guard lock(Waiting().Mutex);
  for (const TFixups::TFixup& fixup : Waiting().List) {
    if (fixup.Instance == instance && fixup.Property == property) return fixup.Name;
  }
  return {};
}

void RemoveFixups(TPersistent* object) {
  if (Waiting().Count == 0) return;
  const std::lock_guard lock(Waiting().Mutex);
  RemoveFrom(Waiting().List, object);
  Waiting().Count = Waiting().List.size();
}

}  // namespace kt
