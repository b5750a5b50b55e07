#include "kt/rtl/streams/IntegerConsts.h"

#include <map>
#include <memory>
#include <mutex>

namespace kt {
namespace {

struct TConstsRegistry {
  std::mutex Mutex;
  std::map<const TTypeInfo*, std::shared_ptr<const TIntegerConsts>> Consts;
};

TConstsRegistry& Registry() {
  static TConstsRegistry registry;
  return registry;
}

}  // namespace

void RegisterIntegerConsts(const TTypeInfo* type, TIntegerConsts consts) {
  auto shared = std::make_shared<const TIntegerConsts>(std::move(consts));
  const std::lock_guard lock(Registry().Mutex);
  // What was registered before is freed after unlocking, with whatever its functions hold.
  Registry().Consts[type].swap(shared);
}

void UnRegisterIntegerConsts(const TTypeInfo* type) {
  const std::lock_guard lock(Registry().Mutex);
  Registry().Consts.erase(type);
}

std::shared_ptr<const TIntegerConsts> FindIntegerConsts(const TTypeInfo* type) {
  const std::lock_guard lock(Registry().Mutex);
  const auto found = Registry().Consts.find(type);
  return found == Registry().Consts.end() ? nullptr : found->second;
}

}  // namespace kt
