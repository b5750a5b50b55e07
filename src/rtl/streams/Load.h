#pragma once

#include "kt/rtl/streams/Fixups.h"
#include "kt/rtl/streams/UndoLog.h"

#include <memory>
#include <utility>
#include <vector>

namespace kt {

class Exception;
class TComponent;
class TPersistent;

/// What one load has made so far. While it exists, objects that are destroyed disappear from it by themselves, so that
/// a handler may free any of them in the middle of a load. Lives on the stack of the operation that loads.
class TLoad {
 public:
  /// Says, for its own time, that the load is at work on an object and cannot go on without it. Lives on the stack.
  class TUse {
   public:
    explicit TUse(TLoad& load, TPersistent* object = nullptr)
        : FLoad(load), FObject(object), FOuter(std::exchange(load.FUses, this)) {}
    ~TUse() { FLoad.FUses = FOuter; }
    TUse(const TUse&) = delete;
    TUse& operator=(const TUse&) = delete;
    void SetObject(TPersistent* object) { FObject = object; }
    /// False when it was destroyed, or never set.
    bool IsAlive() const { return FObject != nullptr; }

   private:
    friend class TLoad;
    TLoad& FLoad;
    TPersistent* FObject;
    TUse* FOuter;
  };

  /// Errors word their place by `wording`.
  explicit TLoad(TPlaceWording wording = {});
  ~TLoad();
  TLoad(const TLoad&) = delete;
  TLoad& operator=(const TLoad&) = delete;

  /// A component that the load created; destroyed at once when it cannot be remembered.
  void AddCreated(std::unique_ptr<TComponent> component);
  /// Marks a component as being loaded, which Undo() takes back.
  void BeginLoading(TComponent* component);
  /// Marks all that `root` owns, and itself, as introduced by the ancestor form whose descendant is read over it.
  void MarkAncestor(TComponent* root);
  /// Tells a component that is marked so that a descendant form changes it; Finish() and Undo() tell it the end.
  void BeginUpdating(TComponent* component);
  /// A component whose properties and children are complete: its Loaded() is still to be called. It begins at `offset`
  /// of the input.
  void AddLoaded(TComponent* component, qint64 offset);
  TFixups& Fixups() { return FFixups; }
  /// What existed before and is about to be changed.
  TUndoLog& UndoLog() { return FUndoLog; }
  /// True for the component that the load created last.
  bool HasJustCreated(const TComponent* component) const { return !FCreated.empty() && FCreated.back() == component; }
  /// True once an object was destroyed that the load was at work on.
  bool HasLostObject() const { return FHasLostObject; }

  /// Resolves the references, ends the updates, then calls Loaded() of each component in the order of AddLoaded().
  void Finish();
  /// Everything has succeeded: what the load created is the caller's. Answers the component added first to those to be
  /// told, the root; null when a handler has freed it.
  TComponent* Keep() noexcept;
  /// Destroys what the load created, and leaves the others as they were before.
  void Undo() noexcept;

  /// Tells all loads of this thread that an object is being destroyed.
  static void Forget(TPersistent* object);

 private:
  void ForgetHere(TPersistent* object);
  void EndUpdating();
  void TellLoaded();
  void AddPlace(Exception& error, const TComponent* component) const;
  void ForgetUses(const TPersistent* object);

  std::vector<TComponent*> FCreated;
  std::vector<TComponent*> FLoading;
  std::vector<TComponent*> FMarked;
  std::vector<TComponent*> FUpdating;
  std::vector<TComponent*> FLoaded;
  /// Where each of those begins.
  std::vector<qint64> FOffsets;
  TPlaceWording FWording;
  TFixups FFixups;
  TUndoLog FUndoLog;
  TUse* FUses = nullptr;
  bool FHasLostObject = false;
  TLoad* FOuter;
};

}  // namespace kt
