#pragma once

#include "kt/rtl/streams/FixupList.h"
#include "kt/rtl/streams/FormErrors.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

namespace kt {

class TComponent;
class TPersistent;
class TPropInfo;

/// References to components that are known by name only until everything is loaded.
class TFixups {
 public:
  void Add(TFixup fixup) { FList.push_back(std::move(fixup)); }
  /// Drops the references that `object` holds or that are relative to it.
  void Remove(const TPersistent* object);
  /// Drops all references, those too that wait since Resolve().
  void TakeBack() noexcept;
  /// Lets all references wait.
  void Wait();
  /// Sets every reference whose component exists now and hands the others to the waiting list of the process. Errors
  /// word their place by `wording`.
  void Resolve(const TPlaceWording& wording);
  /// The same, but a reference that cannot be set is reported (HandleException()) and dropped, and the others go on.
  void ResolveGuarded();

 private:
  template <class F>
  void ResolveAll(F apply);

  std::vector<TFixup> FList;
  /// What Resolve() has handed to the waiting list.
  std::vector<TFixupList::TNumber> FWaiting;
  /// The one being set, which is no longer in the list.
  TFixup* FCurrent = nullptr;
};

/// How references find components of other forms: answers the form, data module or other root component of that name.
using TFindGlobalComponent = std::function<TComponent*(const QString& name)>;
/// Adds a way to find root components; returns a number to take it back with. All are asked in the order they came,
/// by every load and by GlobalFixupReferences(), in the thread that calls these.
///
/// Deliberately without a lock, as it would be held while application code runs: finders are added and taken back while
/// no other thread loads anything, and not from within a finder. One that raises makes the load fail, or ends
/// GlobalFixupReferences(); references that waited go on waiting.
int RegisterFindGlobalComponentProc(TFindGlobalComponent proc);
void UnRegisterFindGlobalComponentProc(int number);
TComponent* FindGlobalComponent(const QString& name);

/// The component that a dotted path of names leads to from `root`, sub-components and owned components alike; null when
/// a name is missing. "Owner" stands for the component reached so far, so a form's components write it for their form.
TComponent* FindNestedComponent(TComponent* root, QStringView path);

/// Sets all waiting references whose component exists now. To be called when a root component has come to exist.
void GlobalFixupReferences();
/// What a property of an object waits for, if it was read with the policy to keep what is unknown: writers put it back.
/// Empty otherwise.
QString FindKeptReference(const TPersistent* instance, const TPropInfo* property);
/// The waiting references of a root as names of what they wait for.
QStringList GetFixupReferenceNames(TComponent* root);
/// Forgets the waiting references that an object holds, or that are relative to it as their root. Every persistent
/// object does this when it is destroyed.
void RemoveFixups(TPersistent* object);

}  // namespace kt
