#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/PropPath.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TSample;

class PropPathTest : public ::testing::Test {
 protected:
  QString ErrorOf(const char16_t* path) {
    return MessageOf<EPropertyError>([&] { FindPropTarget(Sample.get(), QStringView(path)); });
  }

  std::unique_ptr<TSample> Sample = Make<TSample>();
};

TEST_F(PropPathTest, OneNameIsThePropertyItself) {
  const TPropTarget target = FindPropTarget(Sample.get(), u"whole");
  EXPECT_EQ(Sample.get(), target.Instance);
  EXPECT_EQ(QStringLiteral("Whole"), target.Property->Name());
}

TEST_F(PropPathTest, ADotLeadsIntoAnObject) {
  EXPECT_EQ(&Sample->GetPart(), FindPropTarget(Sample.get(), u"Part.Size").Instance);
}

TEST_F(PropPathTest, BracketsLeadToAnItem) {
  Sample->GetItems().AddItem(QStringLiteral("a"));
  tests::TSampleItem* second = Sample->GetItems().AddItem(QStringLiteral("b"));
  auto* inner = second->GetChildren().Add();
  EXPECT_EQ(second, FindPropTarget(Sample.get(), u"Items[1].Caption").Instance);
  EXPECT_EQ(inner, FindPropTarget(Sample.get(), u"Items[1].Children[0].Caption").Instance);
}

TEST_F(PropPathTest, AnUnknownNameRaises) {
  EXPECT_EQ(QStringLiteral("Property Nonsense does not exist"), ErrorOf(u"Part.Nonsense"));
  EXPECT_EQ(QStringLiteral("Property Nonsense does not exist"), ErrorOf(u"Nonsense.Size"));
  EXPECT_EQ(QStringLiteral("Property  does not exist"), ErrorOf(u""));
}

TEST_F(PropPathTest, APathBelowAPlainValueOrNilRaises) {
  EXPECT_EQ(QStringLiteral("Invalid property path"), ErrorOf(u"Whole.Size"));
  EXPECT_EQ(QStringLiteral("Invalid property path"), ErrorOf(u"Partner.Name"));
}

TEST_F(PropPathTest, BracketsThatAreNoIndexRaise) {
  EXPECT_EQ(QStringLiteral("Invalid property path"), ErrorOf(u"Items[x].Caption"));
  EXPECT_EQ(QStringLiteral("Invalid property path"), ErrorOf(u"Items[0.Caption"));
  EXPECT_EQ(QStringLiteral("Invalid property path"), ErrorOf(u"Part[0].Size"));
}

TEST_F(PropPathTest, AMissingItemRaises) {
  EXPECT_EQ(QStringLiteral("List index out of bounds (0)"),
            MessageOf<EListError>([&] { FindPropTarget(Sample.get(), u"Items[0].Caption"); }));
}

}  // namespace
}  // namespace kt
