#include "kt/rtl/objects/LifeTable.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/objects/Persistent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

std::unique_ptr<TObject> AnObject() { return std::unique_ptr<TObject>(TPersistent::Class()->CreateInstance(nullptr)); }

TEST(LifeTableTest, AnObjectIsAliveUntilItIsDestroyed) {
  TLifeTable table;
  auto object = AnObject();
  const TLifeTable::TLife life = table.Watch(object.get());
  EXPECT_TRUE(table.IsAlive(life));
  object.reset();
  EXPECT_FALSE(table.IsAlive(life));
}

TEST(LifeTableTest, WatchingAgainTellsTheSameLife) {
  TLifeTable table;
  const auto object = AnObject();
  EXPECT_EQ(table.Watch(object.get()).Number, table.Watch(object.get()).Number);
}

TEST(LifeTableTest, AnotherObjectAtTheSameAddressIsAnother) {
  TLifeTable table;
  const auto object = AnObject();
  const TLifeTable::TLife life = table.Watch(object.get());
  TLifeTable::Forget(object.get());
  EXPECT_NE(life.Number, table.Watch(object.get()).Number);
  EXPECT_FALSE(table.IsAlive(life));
}

TEST(LifeTableTest, NothingIsAlwaysThere) {
  TLifeTable table;
  EXPECT_TRUE(table.IsAlive(table.Watch(nullptr)));
}

TEST(LifeTableTest, EveryTableIsTold) {
  TLifeTable outer;
  auto object = AnObject();
  const TLifeTable::TLife life = outer.Watch(object.get());
  const TLifeTable inner;
  object.reset();
  EXPECT_FALSE(outer.IsAlive(life));
}

}  // namespace
}  // namespace kt
