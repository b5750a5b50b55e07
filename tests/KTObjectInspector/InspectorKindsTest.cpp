// Types that are rare: what is offered for them, and how they are shown and written.
#include "KTObjectInspector/InspectorFixture.h"
#include "KTObjectInspector/KindsSample.h"
#include "kt/rtl/objects/Exceptions.h"
#include "support/Expect.h"

namespace kt::tests {
namespace {

class InspectorKindsTest : public TInspectorTest {
 protected:
  std::unique_ptr<TSample> FSample = Make<TSample>();
  std::unique_ptr<TKindsSample> FKinds = Make<TKindsSample>();
};

TEST_F(InspectorKindsTest, ASetOfManyMembersListsThoseThatFit32Bits) {
  FKinds->Many = TSet<TManyMember>::FromBits(1ULL << 31 | 1ULL << 32 | 1);
  Inspect({FKinds.get()});
  TKTItemProperties& members = Item("Many").GetItems();
  ASSERT_EQ(32, members.GetCount());
  EXPECT_EQ("m31", members.GetItem(31)->GetName());
  EXPECT_EQ("True", Value("Many.m0"));
  EXPECT_EQ("False", Value("Many.m30"));
  EXPECT_EQ("True", Value("Many.m31"));
  EXPECT_EQ("[m0,m31,m32]", Value("Many"));
}

TEST_F(InspectorKindsTest, WideBooleansOfferFalseAndTrue) {
  Inspect({FKinds.get()});
  for (const char* name : {"Byte", "Long"}) {
    EXPECT_EQ("False,True", Item(name).GetPickList().GetCommaText()) << name;
    EXPECT_EQ("False", Value(name)) << name;
  }
  EXPECT_EQ("ByteBool", Item("Byte").GetTypeName());
  EXPECT_EQ("LongBool", Item("Long").GetTypeName());
}

TEST_F(InspectorKindsTest, ARangeOfAnEnumerationOffersItsOwnNamesOnly) {
  Inspect({FKinds.get()});
  EXPECT_EQ("saNone,saTop", Item("Low").GetPickList().GetCommaText());
  Edit("Low", "saTop");
  EXPECT_EQ(saTop, FKinds->Low);
}

TEST_F(InspectorKindsTest, StringsAndNumbersOfAllTypesShowAsTexts) {
  FSample->ShortText = "short";
  FSample->Narrow = 0.1F;
  FSample->Price = Currency(1.25);
  FSample->Moment = 36526.5;
  Inspect({FSample.get()});
  EXPECT_EQ("short", Value("ShortText"));
  // As the double that it is.
  EXPECT_EQ("0.100000001490116", Value("Narrow"));
  EXPECT_EQ("1.25", Value("Price"));
  EXPECT_EQ("36526.5", Value("Moment"));
}

TEST_F(InspectorKindsTest, AKindThatHasNoTextIsRefused) {
  Inspect({FKinds.get()});
  EXPECT_EQ(nullptr, Find("Record"));
  Item("Kept").SetRealPropName("Record");
  EXPECT_EQ("Invalid property type: TPoint",
            MessageOf<EPropertyConvertError>([&] { FInspector->RefreshProperties(); }));
}

TEST_F(InspectorKindsTest, CharactersAreWrittenByTheirCode) {
  Inspect({FSample.get()});
  Edit("Letter", "66");
  Edit("WideLetter", "8364");
  EXPECT_EQ('B', FSample->Letter);
  EXPECT_EQ(QChar(u'\u20ac'), FSample->WideLetter);
  EXPECT_THROW(Edit("Letter", "B"), Exception);
  EXPECT_EQ('B', FSample->Letter);
}

TEST_F(InspectorKindsTest, NumbersAreWrittenToAllTypes) {
  Inspect({FSample.get()});
  Edit("Narrow", "1.5");
  Edit("Price", "2.75");
  Edit("Moment", "36526.25");
  Edit("Huge", "18446744073709551615");
  EXPECT_EQ(1.5F, FSample->Narrow);
  EXPECT_EQ(Currency(2.75), FSample->Price);
  EXPECT_EQ(36526.25, FSample->Moment);
  EXPECT_EQ(~0ULL, FSample->Huge);
}

TEST_F(InspectorKindsTest, StringsAndVariantsAreWritten) {
  Inspect({FSample.get()});
  Edit("ShortText", "short");
  Edit("WideText", QStringLiteral("\u20ac"));
  Edit("Anything", "any");
  EXPECT_EQ("short", FSample->ShortText);
  EXPECT_EQ(QStringLiteral("\u20ac"), FSample->WideText);
  EXPECT_EQ("any", FSample->Anything.ToString());
}

TEST_F(InspectorKindsTest, ASetsOwnTextIsWrittenAsItStands) {
  FSample->Styles = {ssUnderline};
  Inspect({FSample.get()});
  Edit("Styles", "[ssBold,ssItalic]");
  EXPECT_EQ((TSampleStyles{ssBold, ssItalic}), FSample->Styles);
  Edit("Styles", "");
  EXPECT_EQ(TSampleStyles(), FSample->Styles);
}

TEST_F(InspectorKindsTest, AReferenceIsNotWrittenAsText) {
  const auto other = Make<TSample>();
  other->SetName("Other");
  Inspect({FSample.get()});
  EXPECT_EQ("Invalid property type: TComponent", MessageOf<EPropertyConvertError>([&] { Edit("Partner", "Other"); }));
  EXPECT_EQ(nullptr, FSample->Partner);
}

TEST_F(InspectorKindsTest, WideBooleansAreWrittenAsTruthValues) {
  Inspect({FKinds.get()});
  Edit("Byte", "True");
  Edit("Long", "True");
  EXPECT_TRUE(FKinds->Byte);
  EXPECT_TRUE(FKinds->Long);
  Edit("Byte", "False");
  Edit("Long", "False");
  EXPECT_FALSE(FKinds->Byte);
  EXPECT_FALSE(FKinds->Long);
}

}  // namespace
}  // namespace kt::tests
