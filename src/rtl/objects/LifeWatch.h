#pragma once

namespace kt {

class TObject;

/// Tells, after a call that may free anything, whether an object is still there. Lives on the stack, in the thread that
/// uses the object; costs two stores, and one comparison for each object destroyed meanwhile.
class TLifeWatch {
 public:
  explicit TLifeWatch(const TObject* object);
  ~TLifeWatch();
  TLifeWatch(const TLifeWatch&) = delete;
  TLifeWatch& operator=(const TLifeWatch&) = delete;
  bool IsAlive() const { return FObject != nullptr; }

  /// Tells all watches of this thread that the memory of an object is about to go.
  static void Forget(const TObject* object) noexcept;

 private:
  const TObject* FObject;
  TLifeWatch* FOuter;
};

/// Sets a flag of an object for the time of a block, in which the object may die. Nests.
class TLiveFlag {
 public:
  TLiveFlag(const TObject* owner, bool& flag) : FOwner(owner), FFlag(flag), FBefore(flag) { FFlag = true; }
  ~TLiveFlag() {
    if (FOwner.IsAlive()) FFlag = FBefore;
  }
  TLiveFlag(const TLiveFlag&) = delete;
  TLiveFlag& operator=(const TLiveFlag&) = delete;

 private:
  const TLifeWatch FOwner;
  bool& FFlag;
  const bool FBefore;
};

}  // namespace kt
