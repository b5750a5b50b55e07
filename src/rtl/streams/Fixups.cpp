#include "kt/rtl/streams/Fixups.h"

#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/streams/BinaryWriter.h"
#include "kt/rtl/streams/FormErrors.h"
#include "kt/rtl/streams/Load.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"

#include <QHash>
#include <QScopeGuard>

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>
#include <optional>

namespace kt {
namespace {

/// References that wait for a component of a form that is not loaded yet. Objects of any thread look here when they are
/// destroyed, nearly always when nothing waits.
struct TWaitingList {
  std::atomic<size_t> Count = 0;
  std::mutex Mutex;
  TFixupList List;
};

TWaitingList& Waiting() {
  // Never destroyed: objects with static storage look here after the end of main.
  static auto* waiting = new TWaitingList;
  return *waiting;
}

/// Works on the list, and remembers how long it is.
template <class F>
void ChangeWaiting(F change) {
  const std::lock_guard lock(Waiting().Mutex);
  const auto done = qScopeGuard([] { Waiting().Count = Waiting().List.Count(); });
  change(Waiting().List);
}

TFixupList::TNumber AddWaiting(const TFixup& fixup) {
  TFixupList::TNumber number = 0;
  ChangeWaiting([&](TFixupList& list) {
    number = list.NextNumber();
    list.Add(fixup);
  });
  return number;
}

void RemoveWaiting(TFixupList::TNumber number) {
  ChangeWaiting([number](TFixupList& list) { list.Remove(number); });
}

/// The first waiting reference from `number` on, which is set to its number.
std::optional<TFixup> WaitingFrom(TFixupList::TNumber& number) {
  const std::lock_guard lock(Waiting().Mutex);
  const auto* found = Waiting().List.From(number);
  if (!found) return std::nullopt;
  number = found->first;
  return found->second;
}

TFixupList::TNumber EndOfWaiting() {
  const std::lock_guard lock(Waiting().Mutex);
  return Waiting().List.NextNumber();
}

std::map<int, TFindGlobalComponent>& Finders() {
  static std::map<int, TFindGlobalComponent> finders;
  return finders;
}

TComponent* TargetInScope(const TFixup& fixup) {
  for (TComponent* scope = fixup.Root; scope; scope = scope->GetOwnerComponent()) {
    if (TComponent* found = FindNestedComponent(scope, fixup.Name)) return found;
  }
  return nullptr;
}

QString GlobalName(const TFixup& fixup) { return fixup.Name.section(u'.', 0, 0); }

TComponent* Target(const TFixup& fixup) {
  if (TComponent* found = TargetInScope(fixup)) return found;
  const qsizetype dot = fixup.Name.indexOf(u'.');
  TComponent* root = FindGlobalComponent(GlobalName(fixup));
  return root && dot >= 0 ? FindNestedComponent(root, QStringView(fixup.Name).sliced(dot + 1)) : root;
}

/// Forms that are known to be missing, so that many references to one of them ask for it once.
class TMissingForms {
 public:
  bool Has(const TFixup& fixup) {
    const QString name = GlobalName(fixup);
    const auto known = FKnown.constFind(name);
    return known != FKnown.constEnd() ? *known : *FKnown.insert(name, !FindGlobalComponent(name));
  }

 private:
  QHash<QString, bool> FKnown;
};

void SetReference(const TFixup& fixup, TComponent* target) {
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

/// The name of an object behind those of its owners.
QString FullPathOf(TPersistent* object) {
  QString path = object->GetNamePath();
  const auto* component = dynamic_cast<const TComponent*>(object);
  while (component && (component = component->GetOwnerComponent())) {
    if (!component->GetName().isEmpty()) path = component->GetName() + u'.' + path;
  }
  return path;
}

/// As errors of other properties are told.
[[noreturn]] void RaiseWithPlace(const TFixup& fixup, const Exception& error, const TPlaceWording& wording) {
  // Null when the setter has destroyed the object.
  const QString object = fixup.Instance ? fixup.PathStart->GetNamePath() : QString();
  const QString place = fixup.Instance ? FullPathOf(fixup.PathStart) + u'.' + fixup.Path : fixup.Path;
  const QString message = Format(SPropertyException, {object, u'.', fixup.Path, error.Message()});
  if (fixup.Offset < 0) throw EReadError(message + QStringLiteral(" (") + place + u')');
  throw EReadError(AtPlace(wording, message, fixup.Offset, place));
}

/// False while the component is missing.
bool Apply(const TFixup& fixup, const TPlaceWording& wording = {}) {
  TComponent* target = Target(fixup);
  if (!target || !fixup.Instance) return false;
  if (fixup.IsKept && dynamic_cast<TUnknownComponent*>(target)) {
    EnsureKeptData(fixup.PathStart).Properties.push_back({fixup.Path, StoredIdent(fixup.Name)});
    return true;
  }
  try {
    SetReference(fixup, target);
  } catch (const EAbort&) {
    throw;
  } catch (const Exception& error) {
    RaiseWithPlace(fixup, error, wording);
  }
  return true;
}

bool Concerns(const TFixup& fixup, const TPersistent* object) {
  return fixup.Instance == object || fixup.PathStart == object || static_cast<const TPersistent*>(fixup.Root) == object;
}

}  // namespace

void TFixups::Remove(const TPersistent* object) {
  std::erase_if(FList, [object](const TFixup& fixup) { return Concerns(fixup, object); });
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
    if (apply(fixup) || !fixup.Instance) continue;
    // Room first, so that what waits is never without its number here.
    if (FWaiting.size() == FWaiting.capacity()) FWaiting.reserve(FWaiting.size() * 2 + 1);
    FWaiting.push_back(AddWaiting(fixup));
  }
}

void TFixups::TakeBack() noexcept {
  FList.clear();
  for (const TFixupList::TNumber number : FWaiting) RemoveWaiting(number);
  FWaiting.clear();
}

void TFixups::Wait() {
  for (; !FList.empty(); FList.pop_back()) AddWaiting(FList.back());
}

void TFixups::Resolve(const TPlaceWording& wording) {
  ResolveAll([&wording](TFixup& fixup) {
    const bool isSet = Apply(fixup, wording);
    // When a reference that waits is set, nobody is there any more who knows what its offset means.
    if (!isSet && wording) fixup.Offset = -1;
    return isSet;
  });
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
  // While they are being set they belong to a load, so that objects destroyed meanwhile disappear.
  TLoad load;
  TMissingForms missing;
  const TFixupList::TNumber end = EndOfWaiting();
  TFixupList::TNumber number = 0;
  try {
    for (auto fixup = WaitingFrom(number); fixup && number < end; fixup = WaitingFrom(++number)) {
      const bool isFound = TargetInScope(*fixup) || (!missing.Has(*fixup) && Target(*fixup));
      if (!isFound) continue;
      load.Fixups().Add(*fixup);
      RemoveWaiting(number);
    }
  } catch (...) {
    load.Fixups().Wait();
    throw;
  }
  load.Fixups().ResolveGuarded();
}

QStringList GetFixupReferenceNames(TComponent* root) {
  const std::lock_guard lock(Waiting().Mutex);
  return Waiting().List.NamesOf(root);
}

QString FindKeptReference(const TPersistent* instance, const TPropInfo* property) {
  if (Waiting().Count == 0) return {};
  const std::lock_guard lock(Waiting().Mutex);
  const TFixup* fixup = Waiting().List.Find(instance, property);
  return fixup && fixup->IsKept ? fixup->Name : QString();
}

void RemoveFixups(TPersistent* object) {
  if (Waiting().Count == 0) return;
  ChangeWaiting([object](TFixupList& list) { list.RemoveAllOf(object); });
}

}  // namespace kt
