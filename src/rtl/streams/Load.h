#pragma once

#include "kt/rtl/streams/Fixups.h"

#include <vector>

namespace kt {

class TComponent;
class TPersistent;

/// What one load has made so far. While it exists, objects that are destroyed disappear from it by themselves, so that
/// a handler may free any of them in the middle of a load. Lives on the stack of the operation that loads.
class TLoad {
 public:
  TLoad();
  ~TLoad();
  TLoad(const TLoad&) = delete;
  TLoad& operator=(const TLoad&) = delete;

  /// A component that the load created.
  void AddCreated(TComponent* component) { FCreated.push_back(component); }
  /// Marks a component as being loaded, which Finish() and Undo() take back.
  void BeginLoading(TComponent* component);
  /// Marks all that `root` owns, and itself, as introduced by the ancestor form whose descendant is read over it.
  void MarkAncestor(TComponent* root);
  /// Tells a component that is marked so that a descendant form changes it; Finish() and Undo() tell it the end.
  void BeginUpdating(TComponent* component);
  /// A component whose properties and children are complete: its Loaded() is still to be called.
  void AddLoaded(TComponent* component) { FLoaded.push_back(component); }
  TFixups& Fixups() { return FFixups; }

  /// Resolves the references, ends the updates, then calls Loaded() of each component in the order of AddLoaded().
  /// Answers the first of them, the root; null when a handler has freed it.
  TComponent* Finish();
  /// Destroys what the load created, and leaves the others as not being loaded.
  void Undo() noexcept;

  /// Tells all loads of this thread that an object is being destroyed.
  static void Forget(TPersistent* object);

 private:
  void ForgetHere(TPersistent* object);
  void EndUpdating();

  std::vector<TComponent*> FCreated;
  std::vector<TComponent*> FLoading;
  std::vector<TComponent*> FMarked;
  std::vector<TComponent*> FUpdating;
  std::vector<TComponent*> FLoaded;
  TFixups FFixups;
  TLoad* FOuter;
};

}  // namespace kt
