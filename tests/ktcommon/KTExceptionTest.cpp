#include "kt/ktcommon/KTException.h"
#include "kt/ktcommon/NewLine.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(KTExceptionTest, IsCaughtAsAnException) {
  EXPECT_EQ(QStringLiteral("no"), tests::MessageOf<Exception>([] { throw EKTException(QStringLiteral("no")); }));
}

TEST(KTExceptionTest, ANewLineIsCarriageReturnAndLineFeed) {
  EXPECT_EQ(QStringLiteral("\r\n"), QString(NewLineString));
}

}  // namespace
}  // namespace kt
