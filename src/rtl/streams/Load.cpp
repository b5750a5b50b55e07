#include "kt/rtl/streams/Load.h"

#include "kt/rtl/objects/Component.h"

#include <algorithm>

namespace kt {
namespace {

thread_local TLoad* Innermost = nullptr;

}  // namespace

TLoad::TLoad() : FOuter(std::exchange(Innermost, this)) {}

TLoad::~TLoad() { Innermost = FOuter; }

void TLoad::Finish() {
  FFixups.Resolve();
  // By index: a handler may free components, which become null here.
  for (size_t i = 0; i < FLoaded.size(); ++i) {
    if (FLoaded[i]) FLoaded[i]->Loaded();
  }
  FLoaded.clear();
  FCreated.clear();
}

void TLoad::Undo() noexcept {
  FLoaded.clear();
  FFixups.Clear();
  while (!FCreated.empty()) {
    TComponent* last = FCreated.back();
    FCreated.pop_back();
    delete last;
  }
}

void TLoad::Forget(TPersistent* object) {
  for (TLoad* load = Innermost; load; load = load->FOuter) load->ForgetHere(object);
}

void TLoad::ForgetHere(TPersistent* object) {
  FFixups.Remove(object);
  std::replace_if(
      FCreated.begin(), FCreated.end(), [object](const TComponent* other) { return other == object; }, nullptr);
  std::replace_if(
      FLoaded.begin(), FLoaded.end(), [object](const TComponent* other) { return other == object; }, nullptr);
}

}  // namespace kt
