#include "kt/rtl/streams/IntegerConsts.h"

#include <map>
#include <memory>
#include <mutex>

namespace kt {
namespace {

struct TConstsRegistry {
  std::mutex Mutex;
  std::map<const TTypeInfo*, TIntegerConsts> Consts;
};

TConstsRegistry& Registry() {
  static TConstsRegistry registry;
  return registry;
}

}  // namespace

void RegisterIntegerConsts(const TTypeInfo* type, TIntegerConsts consts) {
  const std::lock_guard lock(Registry().Mutex);
  Registry().Consts.insert_or_assign(type, std::move(consts));
}

void UnRegisterIntegerConsts(const TTypeInfo* type) {
  const std::lock_guard lock(Registry().Mutex);
  Registry().Consts.erase(type);
}

const TIntegerConsts* FindIntegerConsts(const TTypeInfo* type) {
  const std::lock_guard lock(Registry().Mutex);
  const auto found = Registry().Consts.find(type);
  return found == Registry().Consts.end() ? nullptr : &found->second;
}

}  // namespace kt
