#include "kt/rtl/objects/LifeWatch.h"

#include <utility>

namespace kt {
namespace {

thread_local TLifeWatch* Innermost = nullptr;

}  // namespace

TLifeWatch::TLifeWatch(const TObject* object) : FObject(object), FOuter(std::exchange(Innermost, this)) {}

TLifeWatch::~TLifeWatch() { Innermost = FOuter; }

void TLifeWatch::Forget(const TObject* object) noexcept {
  for (TLifeWatch* watch = Innermost; watch; watch = watch->FOuter) {
    if (watch->FObject == object) watch->FObject = nullptr;
  }
}

}  // namespace kt
