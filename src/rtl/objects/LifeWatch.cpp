#include "kt/rtl/objects/LifeWatch.h"

#include <utility>

namespace kt {
namespace {

thread_local TLifeWatch* InnermostWatch = nullptr;

}  // namespace

TLifeWatch::TLifeWatch(const TObject* object) : FObject(object), FOuter(std::exchange(InnermostWatch, this)) {}

TLifeWatch::~TLifeWatch() { InnermostWatch = FOuter; }

void TLifeWatch::Forget(const TObject* object) noexcept {
  for (TLifeWatch* watch = InnermostWatch; watch; watch = watch->FOuter) {
    if (watch->FObject == object) watch->FObject = nullptr;
  }
}

}  // namespace kt
