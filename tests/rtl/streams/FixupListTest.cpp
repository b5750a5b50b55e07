#include "kt/rtl/streams/FixupList.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TSample;

class FixupListTest : public ::testing::Test {
 protected:
  FixupListTest() {
    FForm->SetName(QStringLiteral("Form"));
    FChild = New<TSample>(FForm.get());
  }

  void Add(TSample* instance, const char* property, const char* name) {
    FList.Add({instance, FindPropInfo(instance, QString::fromLatin1(property)), FForm.get(), QString::fromLatin1(name),
               instance, QString(), false});
  }
  QString Find(TSample* instance, QStringView property) const {
    const TFixup* fixup = FList.Find(instance, FindPropInfo(instance, property));
    return fixup ? fixup->Name : QStringLiteral("none");
  }

  std::unique_ptr<TSample> FForm = Make<TSample>();
  TSample* FChild = nullptr;
  TFixupList FList;
};

TEST_F(FixupListTest, AReferenceIsFoundByItsObjectAndProperty) {
  Add(FChild, "Partner", "A");
  Add(FChild, "Sibling", "B");
  EXPECT_EQ(QStringLiteral("B"), Find(FChild, u"Sibling"));
  EXPECT_EQ(QStringLiteral("none"), Find(FForm.get(), u"Sibling"));
  EXPECT_EQ(QStringLiteral("none"), Find(FChild, u"Reference"));
}

TEST_F(FixupListTest, TheNamesOfARootComeInTheOrderOfAdding) {
  Add(FChild, "Sibling", "B");
  Add(FForm.get(), "Partner", "A");
  EXPECT_EQ((QStringList{QStringLiteral("B"), QStringLiteral("A")}), FList.NamesOf(FForm.get()));
  EXPECT_EQ(QStringList(), FList.NamesOf(FChild));
}

TEST_F(FixupListTest, TheReferencesOfAnObjectGoWithIt) {
  Add(FChild, "Partner", "A");
  Add(FForm.get(), "Partner", "B");
  FList.RemoveAllOf(FChild);
  EXPECT_EQ(QStringList{QStringLiteral("B")}, FList.NamesOf(FForm.get()));
  FList.RemoveAllOf(FForm.get());
  EXPECT_EQ(0U, FList.Count());
}

TEST_F(FixupListTest, TheReferencesRelativeToARootGoWithIt) {
  Add(FChild, "Partner", "A");
  FList.RemoveAllOf(FForm.get());
  EXPECT_EQ(0U, FList.Count());
  EXPECT_EQ(QStringLiteral("none"), Find(FChild, u"Partner"));
}

TEST_F(FixupListTest, NumbersGoOverThoseThatAreLeft) {
  Add(FChild, "Partner", "A");
  Add(FChild, "Sibling", "B");
  FList.Remove(0);
  ASSERT_NE(nullptr, FList.From(0));
  EXPECT_EQ(1U, FList.From(0)->first);
  EXPECT_EQ(nullptr, FList.From(2));
  EXPECT_EQ(2U, FList.NextNumber());
}

TEST_F(FixupListTest, TheHolderHasTheStateWhileSomethingWaits) {
  Add(FChild, "Partner", "A");
  Add(FChild, "Sibling", "B");
  FList.Remove(0);
  EXPECT_TRUE(FChild->HasState(csFixups));
  FList.Remove(1);
  EXPECT_FALSE(FChild->HasState(csFixups));
}

TEST_F(FixupListTest, TheHolderOfAnItemsReferenceIsTheComponentAroundIt) {
  tests::TSampleItem* item = FChild->GetItems().AddItem(QString());
  FList.Add({item, nullptr, FForm.get(), QStringLiteral("A"), item, QString(), false});
  EXPECT_TRUE(FChild->HasState(csFixups));
  FList.RemoveAllOf(item);
  EXPECT_FALSE(FChild->HasState(csFixups));
}

}  // namespace
}  // namespace kt
