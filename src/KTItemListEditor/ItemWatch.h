#pragma once

namespace kt {

class TKTItemProp;

/// Learns of the death of items while it exists. For code that goes on after a call-out, where any handler may have
/// freed the item at hand. Watchers live on the stack or as members, on the user-interface thread.
class TItemWatcher {
 public:
  TItemWatcher(const TItemWatcher&) = delete;
  TItemWatcher& operator=(const TItemWatcher&) = delete;

  /// Called by each item that dies. Costs a comparison while nobody watches.
  static void TellDeath(TKTItemProp* item);

 protected:
  TItemWatcher();
  ~TItemWatcher();

  virtual void Forget(TKTItemProp* item) = 0;

 private:
  TItemWatcher* FOlder;
  TItemWatcher* FNewer = nullptr;
};

/// A pointer to an item that becomes null when the item dies.
class TItemWatch final : public TItemWatcher {
 public:
  explicit TItemWatch(TKTItemProp* item = nullptr) : FItem(item) {}

  TItemWatch& operator=(TKTItemProp* item) {
    FItem = item;
    return *this;
  }
  TKTItemProp* Get() const { return FItem; }
  TKTItemProp* operator->() const { return FItem; }
  TKTItemProp& operator*() const { return *FItem; }
  explicit operator bool() const { return FItem; }

 private:
  void Forget(TKTItemProp* item) override {
    if (FItem == item) FItem = nullptr;
  }

  TKTItemProp* FItem;
};

}  // namespace kt
