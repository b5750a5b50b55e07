#include "kt/rtl/objects/KeptData.h"

#include <unordered_map>

namespace kt {
namespace {

thread_local std::unordered_map<const TPersistent*, TKeptData> Kept;

}  // namespace

TKeptData* FindKeptData(const TPersistent* object) {
  if (Kept.empty()) return nullptr;
  const auto found = Kept.find(object);
  return found == Kept.end() ? nullptr : &found->second;
}

TKeptData& EnsureKeptData(const TPersistent* object) { return Kept[object]; }

void ForgetKeptData(const TPersistent* object) {
  if (!Kept.empty()) Kept.erase(object);
}

}  // namespace kt
