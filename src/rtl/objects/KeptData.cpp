#include "kt/rtl/objects/KeptData.h"

#include <atomic>
#include <mutex>
#include <unordered_map>

namespace kt {
namespace {

/// Objects of any thread ask on their destruction, nearly always when there is no entry at all.
struct TKeptTable {
  std::atomic<size_t> Count = 0;
  std::mutex Mutex;
  std::unordered_map<const TPersistent*, TKeptData> Entries;
};

TKeptTable& Table() {
  // Never destroyed: objects with static storage ask after the end of main.
  static auto* table = new TKeptTable;
  return *table;
}

}  // namespace

TKeptData* FindKeptData(const TPersistent* object) {
  if (Table().Count == 0) return nullptr;
  const std::lock_guard lock(Table().Mutex);
  const auto found = Table().Entries.find(object);
  return found == Table().Entries.end() ? nullptr : &found->second;
}

TKeptData& EnsureKeptData(const TPersistent* object) {
  const std::lock_guard lock(Table().Mutex);
  TKeptData& kept = Table().Entries[object];
  Table().Count = Table().Entries.size();
  return kept;
}

void ForgetKeptData(const TPersistent* object) {
  if (Table().Count == 0) return;
  const std::lock_guard lock(Table().Mutex);
  Table().Entries.erase(object);
  Table().Count = Table().Entries.size();
}

}  // namespace kt
