#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/grids/DrawGrid.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace kt {
namespace {

QStringList PublishedNames(const TClassInfo* info) {
  QStringList names;
  for (const TPropInfo* prop : info->Props()) names += prop->Name();
  return names;
}

/// The properties whose value in a fresh grid is not the declared default, so that streams would write them.
QStringList NotAtDefault(TObject& object) {
  QStringList names;
  for (const TPropInfo* prop : object.ClassType()->Props()) {
    if (prop->Default() == TPropInfo::NoDefault) continue;
    if (GetOrdProp(&object, prop) != prop->Default()) names += prop->Name();
  }
  return names;
}

TEST(DrawGridTest, AFreshGridIsAtItsDeclaredDefaults) {
  auto grid = Make<TDrawGrid>();
  EXPECT_EQ(NotAtDefault(*grid).join(u' '), "");
}

TEST(DrawGridTest, PublishesWhatTheBaseClassesKeepBack) {
  const QStringList names = PublishedNames(TDrawGrid::Class());
  EXPECT_TRUE(names.contains(QStringLiteral("Options")));
  EXPECT_TRUE(names.contains(QStringLiteral("OnDrawCell")));
  EXPECT_FALSE(PublishedNames(TCustomDrawGrid::Class()).contains(QStringLiteral("Options")));
}

TEST(DrawGridTest, TheColourIsItsOwnAndNotTheParents) {
  auto grid = Make<TDrawGrid>();
  EXPECT_EQ(grid->GetColor(), clWindow);
  EXPECT_FALSE(grid->IsParentColor());
}

}  // namespace
}  // namespace kt
