#include "kt/KTItemListEditor/ItemWatch.h"

namespace kt {

namespace {

thread_local TItemWatcher* Newest = nullptr;

}  // namespace

TItemWatcher::TItemWatcher() : FOlder(Newest) {
  if (FOlder) FOlder->FNewer = this;
  Newest = this;
}

TItemWatcher::~TItemWatcher() {
  (FNewer ? FNewer->FOlder : Newest) = FOlder;
  if (FOlder) FOlder->FNewer = FNewer;
}

void TItemWatcher::TellDeath(TKTItemProp* item) {
  for (TItemWatcher* watcher = Newest; watcher; watcher = watcher->FOlder) watcher->Forget(item);
}

}  // namespace kt
