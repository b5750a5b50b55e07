#include "kt/vcl/graphics/NamedIntegers.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

constexpr TNamedInteger kEntries[] = {{"one", 1}, {"uno", 1}, {"two", -2}};
constexpr TNamedIntegers kNames(kEntries);

TEST(NamedIntegersTest, ANameIsFoundInAnyCase) {
  EXPECT_EQ(-2, kNames.ValueOf(u"TWO"));
  EXPECT_EQ(1, kNames.ValueOf(u"Uno"));
}

TEST(NamedIntegersTest, PartOfANameIsNoName) {
  EXPECT_EQ(std::nullopt, kNames.ValueOf(u"tw"));
  EXPECT_EQ(std::nullopt, kNames.ValueOf(u""));
}

TEST(NamedIntegersTest, TheFirstNameOfAValueIsItsName) { EXPECT_EQ(QStringLiteral("one"), kNames.NameOf(1)); }

TEST(NamedIntegersTest, AValueBeyondTheTableHasNoName) {
  EXPECT_EQ(QString(), kNames.NameOf(3));
  EXPECT_EQ(QString(), kNames.NameOf(0x1FFFFFFFE));
}

}  // namespace
}  // namespace kt
