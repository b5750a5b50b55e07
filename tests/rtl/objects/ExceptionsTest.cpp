#include "kt/rtl/objects/Exceptions.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(ExceptionsTest, WhatIsTheMessageInUtf8) {
  const EConvertError error(QStringLiteral("\u00e9 is no number"));
  EXPECT_STREQ("\xc3\xa9 is no number", error.what());
}

TEST(ExceptionsTest, WhatFollowsAChangeOfTheMessage) {
  EConvertError error(QStringLiteral("no number"));
  EXPECT_STREQ("no number", error.what());
  error.SetMessage(QStringLiteral("line 3: no number"));
  EXPECT_STREQ("line 3: no number", error.what());
}

TEST(ExceptionsTest, ADescendantIsCaughtAsItsAncestor) {
  try {
    throw EClassNotFound(QStringLiteral("Class TFoo not found"));
  } catch (const EFilerError& error) {
    EXPECT_EQ(QStringLiteral("Class TFoo not found"), error.Message());
  }
}

}  // namespace
}  // namespace kt
