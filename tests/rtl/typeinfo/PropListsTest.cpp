#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TSample;
using tests::TSamplePart;

QString NamesOf(const std::vector<const TPropInfo*>& list) {
  QStringList names;
  for (const TPropInfo* property : list) names.append(property->Name());
  return names.join(u' ');
}

class PropListsTest : public ::testing::Test {
 protected:
  std::unique_ptr<TSample> Sample = Make<TSample>();
};

TEST_F(PropListsTest, APropertyIsFoundWithoutRegardToCase) {
  EXPECT_EQ(QStringLiteral("Whole"), GetPropInfo(Sample.get(), u"wHOLE")->Name());
  EXPECT_EQ(GetPropInfo(TSample::Class(), u"Whole"), GetPropInfo(Sample.get(), u"Whole"));
}

TEST_F(PropListsTest, APropertyOfAnotherKindThanAskedForIsNotFound) {
  EXPECT_EQ(nullptr, GetPropInfo(Sample.get(), u"Whole", {tkClass}));
  EXPECT_NE(nullptr, GetPropInfo(Sample.get(), u"Whole", {tkClass, tkInteger}));
  EXPECT_EQ(nullptr, GetPropInfo(Sample.get(), u"NoSuch"));
}

TEST_F(PropListsTest, FindPropInfoRaisesForAnUnknownName) {
  EXPECT_EQ(QStringLiteral("Property NoSuch does not exist"),
            MessageOf<EPropertyError>([&] { FindPropInfo(Sample.get(), u"NoSuch"); }));
}

TEST_F(PropListsTest, PublishedIsWhatTheClassOrAnAncestorPublishes) {
  EXPECT_TRUE(IsPublishedProp(Sample.get(), u"Whole"));
  EXPECT_TRUE(IsPublishedProp(Sample.get(), u"tag"));
  EXPECT_FALSE(IsPublishedProp(Sample.get(), u"IsTextStored"));
  EXPECT_FALSE(IsPublishedProp(Sample.get(), u""));
}

TEST_F(PropListsTest, TheTypeOfAPropertyIsKnownByItsName) {
  EXPECT_EQ(tkWChar, PropType(Sample.get(), u"WideLetter"));
  EXPECT_TRUE(PropIsType(Sample.get(), u"Price", tkFloat));
  EXPECT_FALSE(PropIsType(Sample.get(), u"Price", tkInteger));
}

TEST_F(PropListsTest, AskingForTheTypeOfAnUnknownPropertyRaises) {
  EXPECT_EQ(QStringLiteral("Property NoSuch does not exist"),
            MessageOf<EPropertyError>([&] { PropType(Sample.get(), u"NoSuch"); }));
  EXPECT_EQ(QStringLiteral("Property NoSuch does not exist"),
            MessageOf<EPropertyError>([&] { PropIsType(Sample.get(), u"NoSuch", tkInteger); }));
}

TEST_F(PropListsTest, WhetherAPropertyIsStoredIsAskedOfTheInstance) {
  const TPropInfo* text = FindPropInfo(Sample.get(), u"Text");
  EXPECT_TRUE(IsStoredProp(Sample.get(), text));
  Sample->IsTextStored = false;
  EXPECT_FALSE(IsStoredProp(Sample.get(), text));
  EXPECT_FALSE(IsStoredProp(Sample.get(), u"Text"));
  EXPECT_THROW(IsStoredProp(Sample.get(), u"NoSuch"), EPropertyError);
}

TEST_F(PropListsTest, TheClassOfAnObjectPropertyIsTheDeclaredOne) {
  EXPECT_EQ(TSample::Class(), GetObjectPropClass(FindPropInfo(Sample.get(), u"Sibling")));
  EXPECT_EQ(TSamplePart::Class(), GetObjectPropClass(Sample.get(), u"Part"));
  EXPECT_EQ(QStringLiteral("Invalid property type: string"),
            MessageOf<EPropertyError>([&] { GetObjectPropClass(Sample.get(), u"Text"); }));
}

TEST_F(PropListsTest, AListHasTheKindsAskedForInTheOrderAskedFor) {
  const TTypeKinds kinds = {tkClass, tkInterface, tkMethod};
  EXPECT_EQ(QStringLiteral("Partner Sibling Reference Part Items OnAction"),
            NamesOf(GetPropList(TSample::Class(), kinds, poDeclared)));
  EXPECT_EQ(QStringLiteral("Items OnAction Part Partner Reference Sibling"),
            NamesOf(GetPropList(TSample::Class(), kinds, poSorted)));
}

TEST_F(PropListsTest, AnAncestorsPropertiesComeFirst) {
  EXPECT_EQ(QStringLiteral("Name Text ShortText WideText"),
            NamesOf(GetPropList(TSample::Class(), {tkString, tkLString, tkWString}, poDeclared)));
}

}  // namespace
}  // namespace kt
