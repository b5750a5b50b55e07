// Each property operation by name and by property: the same value, and the same three errors.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TSample;
using tests::TSampleStyles;

class PropValuesByNameTest : public ::testing::Test {
 protected:
  const TPropInfo* Prop(QStringView name) { return FindPropInfo(Sample.get(), name); }

  std::unique_ptr<TSample> Sample = Make<TSample>();
};

TEST_F(PropValuesByNameTest, WideTextsGoThroughEitherOperation) {
  SetWideStrProp(Sample.get(), u"WideText", QStringLiteral("\u20AC"));
  EXPECT_EQ(QStringLiteral("\u20AC"), GetWideStrProp(Sample.get(), Prop(u"WideText")));
  SetWideStrProp(Sample.get(), Prop(u"Text"), QStringLiteral("t"));
  EXPECT_EQ(QStringLiteral("t"), GetWideStrProp(Sample.get(), u"Text"));
  EXPECT_EQ(QStringLiteral("t"), GetStrProp(Sample.get(), u"Text"));
}

TEST_F(PropValuesByNameTest, AWideOperationCutsAShortStringToo) {
  SetWideStrProp(Sample.get(), u"ShortText", QString(256, u'x'));
  EXPECT_EQ(255, GetWideStrProp(Sample.get(), u"ShortText").size());
}

TEST_F(PropValuesByNameTest, AWideOperationRefusesAnotherKind) {
  EXPECT_EQ(QStringLiteral("Invalid property type: Integer"),
            MessageOf<EPropertyError>([&] { GetWideStrProp(Sample.get(), u"Whole"); }));
  EXPECT_EQ(QStringLiteral("Invalid property type: Integer"),
            MessageOf<EPropertyError>([&] { SetWideStrProp(Sample.get(), u"Whole", QString()); }));
}

/// The ways to write a set as text, with what comes back.
struct TSetText {
  const char16_t* Text;
  const char* Result;
};
class SetTextTest : public ::testing::TestWithParam<TSetText> {};

TEST_P(SetTextTest, ASetIsReadFromText) {
  const auto sample = Make<TSample>();
  SetSetProp(sample.get(), u"Styles", GetParam().Text);
  EXPECT_EQ(QString::fromLatin1(GetParam().Result), GetSetProp(sample.get(), u"Styles", true));
}

INSTANTIATE_TEST_SUITE_P(Texts, SetTextTest,
                         ::testing::Values(TSetText{u"", "[]"}, TSetText{u"[]", "[]"}, TSetText{u"ssBold", "[ssBold]"},
                                           TSetText{u"[SSITALIC]", "[ssItalic]"},
                                           TSetText{u" [ssUnderline, ssBold] ", "[ssBold,ssUnderline]"},
                                           TSetText{u"ssBold ssItalic", "[ssBold,ssItalic]"},
                                           TSetText{u"[ssBold,ssBold]", "[ssBold]"}));

TEST_F(PropValuesByNameTest, ASetIsWrittenWithoutBracketsUnlessAskedFor) {
  Sample->Styles = {tests::ssBold, tests::ssItalic};
  EXPECT_EQ(QStringLiteral("ssBold,ssItalic"), GetSetProp(Sample.get(), u"Styles"));
  EXPECT_EQ(QStringLiteral("ssBold,ssItalic"), GetSetProp(Sample.get(), Prop(u"Styles")));
  EXPECT_EQ(QStringLiteral("[ssBold,ssItalic]"), GetSetProp(Sample.get(), Prop(u"Styles"), true));
}

TEST_F(PropValuesByNameTest, AnUnknownMemberRaisesAndLeavesTheSet) {
  Sample->Styles = {tests::ssBold};
  EXPECT_EQ(QStringLiteral("Invalid property element: ssStrange"),
            MessageOf<EPropertyConvertError>([&] { SetSetProp(Sample.get(), u"Styles", u"[ssItalic,ssStrange]"); }));
  EXPECT_EQ(TSampleStyles{tests::ssBold}, Sample->Styles);
}

TEST_F(PropValuesByNameTest, ASetOperationRefusesAnotherKind) {
  EXPECT_EQ(QStringLiteral("Invalid property type: TSampleAlign"),
            MessageOf<EPropertyError>([&] { GetSetProp(Sample.get(), u"Align"); }));
  EXPECT_EQ(QStringLiteral("Invalid property type: TSampleAlign"),
            MessageOf<EPropertyError>([&] { SetSetProp(Sample.get(), u"Align", u"[]"); }));
}

TEST_F(PropValuesByNameTest, AnEnumerationOperationRefusesAnotherKind) {
  EXPECT_EQ(QStringLiteral("Invalid property type: TSampleStyles"),
            MessageOf<EPropertyError>([&] { GetEnumProp(Sample.get(), u"Styles"); }));
  EXPECT_EQ(QStringLiteral("Invalid property type: TSampleStyles"),
            MessageOf<EPropertyError>([&] { SetEnumProp(Sample.get(), u"Styles", u"x"); }));
}

TEST_F(PropValuesByNameTest, AnEnumerationOutsideItsNamesRaises) {
  Sample->Align = static_cast<tests::TSampleAlign>(3);
  EXPECT_EQ(QStringLiteral("Range check error"), MessageOf<ERangeError>([&] { GetEnumProp(Sample.get(), u"Align"); }));
}

TEST_F(PropValuesByNameTest, EveryOperationTakesThePropertyItselfToo) {
  SetOrdProp(Sample.get(), Prop(u"Whole"), 1);
  SetEnumProp(Sample.get(), Prop(u"Align"), u"saTop");
  SetSetProp(Sample.get(), Prop(u"Styles"), u"[ssBold]");
  SetInt64Prop(Sample.get(), Prop(u"Big"), 4);
  SetFloatProp(Sample.get(), Prop(u"Ratio"), 0.5);
  SetStrProp(Sample.get(), Prop(u"Text"), QStringLiteral("five"));
  SetVariantProp(Sample.get(), Prop(u"Anything"), Variant(6));
  SetObjectProp(Sample.get(), Prop(u"Partner"), Sample.get());
  SetInterfaceProp(Sample.get(), Prop(u"Reference"), Sample.get());
  SetMethodProp(Sample.get(), Prop(u"OnAction"), TNotifyEvent(Sample.get(), &TSample::HandleAction));
  EXPECT_EQ(1, GetOrdProp(Sample.get(), Prop(u"Whole")));
  EXPECT_EQ(QStringLiteral("saTop"), GetEnumProp(Sample.get(), Prop(u"Align")));
  EXPECT_EQ(1, GetOrdProp(Sample.get(), Prop(u"Styles")));
  EXPECT_EQ(4, GetInt64Prop(Sample.get(), Prop(u"Big")));
  EXPECT_EQ(0.5, GetFloatProp(Sample.get(), Prop(u"Ratio")));
  EXPECT_EQ(QStringLiteral("five"), GetStrProp(Sample.get(), Prop(u"Text")));
  EXPECT_EQ(6, GetVariantProp(Sample.get(), Prop(u"Anything")).ToInt64());
  EXPECT_EQ(Sample.get(), GetObjectProp(Sample.get(), Prop(u"Partner")));
  EXPECT_EQ(Sample.get(), ComponentBehind(GetInterfaceProp(Sample.get(), Prop(u"Reference"))));
  EXPECT_EQ(Sample.get(), GetMethodProp(Sample.get(), Prop(u"OnAction")).Instance());
}

TEST_F(PropValuesByNameTest, AnInt64OperationTakesAnyOrdinal) {
  SetInt64Prop(Sample.get(), u"Whole", -3);
  EXPECT_EQ(-3, GetInt64Prop(Sample.get(), u"Whole"));
  EXPECT_EQ(0, GetInt64Prop(Sample.get(), u"Align"));
  EXPECT_EQ(QStringLiteral("Invalid property type: Int64"),
            MessageOf<EPropertyError>([&] { GetOrdProp(Sample.get(), u"Big"); }));
}

TEST_F(PropValuesByNameTest, TheOrdinalOfAnObjectIsItsAddress) {
  Sample->Partner = Sample.get();
  EXPECT_EQ(reinterpret_cast<qintptr>(static_cast<TObject*>(Sample.get())), GetOrdProp(Sample.get(), u"Partner"));
  EXPECT_EQ(QStringLiteral("Invalid property type: TComponent"),
            MessageOf<EPropertyError>([&] { SetOrdProp(Sample.get(), u"Partner", 0); }));
}

}  // namespace
}  // namespace kt
