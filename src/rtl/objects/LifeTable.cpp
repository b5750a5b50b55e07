#include "kt/rtl/objects/LifeTable.h"

#include <utility>

namespace kt {
namespace {

thread_local TLifeTable* InnermostTable = nullptr;

}  // namespace

TLifeTable::TLifeTable() : FOuter(std::exchange(InnermostTable, this)) {}

TLifeTable::~TLifeTable() { InnermostTable = FOuter; }

TLifeTable::TLife TLifeTable::Watch(TObject* object) {
  if (!object) return {};
  const auto [entry, isNew] = FAlive.try_emplace(object, FLast + 1);
  if (isNew) ++FLast;
  return {object, entry->second};
}

bool TLifeTable::IsAlive(const TLife& life) const {
  if (!life.Object) return true;
  const auto found = FAlive.find(life.Object);
  return found != FAlive.end() && found->second == life.Number;
}

void TLifeTable::Forget(const TObject* object) noexcept {
  for (TLifeTable* table = InnermostTable; table; table = table->FOuter) table->FAlive.erase(object);
}

}  // namespace kt
