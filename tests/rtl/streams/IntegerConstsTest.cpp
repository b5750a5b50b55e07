#include "kt/rtl/streams/IntegerConsts.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::SampleColorTypeInfo;

/// Names for one value of the sample colour, for as long as it lives.
class IntegerConstsTest : public ::testing::Test {
 protected:
  ~IntegerConstsTest() override { UnRegisterIntegerConsts(SampleColorTypeInfo()); }

  static void Register(const QString& name) {
    RegisterIntegerConsts(SampleColorTypeInfo(),
                          {[](QStringView) { return std::optional<qint64>(7); }, [name](qint64) { return name; }});
  }
};

TEST_F(IntegerConstsTest, ATypeHasNoNamesUntilTheyAreRegistered) {
  EXPECT_EQ(nullptr, FindIntegerConsts(SampleColorTypeInfo()));
  Register(QStringLiteral("clSeven"));
  EXPECT_EQ(QStringLiteral("clSeven"), FindIntegerConsts(SampleColorTypeInfo())->IntToIdent(7));
  EXPECT_EQ(7, FindIntegerConsts(SampleColorTypeInfo())->IdentToInt(u"clSeven"));
}

TEST_F(IntegerConstsTest, TheLastRegistrationCounts) {
  Register(QStringLiteral("clOld"));
  Register(QStringLiteral("clNew"));
  EXPECT_EQ(QStringLiteral("clNew"), FindIntegerConsts(SampleColorTypeInfo())->IntToIdent(7));
}

TEST_F(IntegerConstsTest, NamesThatAreHeldOutliveTheirRegistration) {
  Register(QStringLiteral("clReplaced"));
  const auto replaced = FindIntegerConsts(SampleColorTypeInfo());
  Register(QStringLiteral("clRemoved"));
  const auto removed = FindIntegerConsts(SampleColorTypeInfo());
  UnRegisterIntegerConsts(SampleColorTypeInfo());
  EXPECT_EQ(nullptr, FindIntegerConsts(SampleColorTypeInfo()));
  EXPECT_EQ(QStringLiteral("clReplaced"), replaced->IntToIdent(7));
  EXPECT_EQ(QStringLiteral("clRemoved"), removed->IntToIdent(7));
}

}  // namespace
}  // namespace kt
