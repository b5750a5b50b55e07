#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "support/Expect.h"
#include "support/Samples.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TSample;
using tests::TSamplePart;

class PropValuesTest : public ::testing::Test {
 protected:
  QString Text(const char* name, bool preferStrings = true) {
    return VarToStr(GetPropValue(Sample.get(), QString::fromLatin1(name), preferStrings));
  }

  std::unique_ptr<TSample> Sample = Make<TSample>();
};

TEST_F(PropValuesTest, AnUnknownNameRaises) {
  EXPECT_EQ(QStringLiteral("Property Nonsense does not exist"),
            MessageOf<EPropertyError>([&] { GetOrdProp(Sample.get(), u"Nonsense"); }));
}

TEST_F(PropValuesTest, AnOperationForAnotherKindRaises) {
  EXPECT_EQ(QStringLiteral("Invalid property type: string"),
            MessageOf<EPropertyError>([&] { GetOrdProp(Sample.get(), u"Text"); }));
}

TEST_F(PropValuesTest, WritingAReadOnlyPropertyRaises) {
  EXPECT_EQ(QStringLiteral("Property is read-only"),
            MessageOf<EPropReadOnly>([&] { SetOrdProp(Sample.get(), u"Double", 1); }));
}

TEST_F(PropValuesTest, OrdinalsAreReadAndWritten) {
  SetOrdProp(Sample.get(), u"whole", -7);
  EXPECT_EQ(-7, Sample->Whole);
  EXPECT_EQ(-14, GetOrdProp(Sample.get(), u"Double"));
  SetOrdProp(Sample.get(), u"Letter", 0xE9);
  EXPECT_EQ(0xE9, GetOrdProp(Sample.get(), u"Letter"));
  SetOrdProp(Sample.get(), u"WideLetter", 0x20AC);
  EXPECT_EQ(QChar(u'\u20AC'), Sample->WideLetter);
}

TEST_F(PropValuesTest, AWideBooleanReadsAsMinusOneWhenTrue) {
  SetOrdProp(Sample.get(), u"Wide", 5);
  EXPECT_TRUE(Sample->Wide);
  EXPECT_EQ(-1, GetOrdProp(Sample.get(), u"Wide"));
}

TEST_F(PropValuesTest, EnumerationsAreReadAndWrittenByName) {
  SetEnumProp(Sample.get(), u"Align", u"sabottom");
  EXPECT_EQ(tests::saBottom, Sample->Align);
  EXPECT_EQ(QStringLiteral("saBottom"), GetEnumProp(Sample.get(), u"Align"));
}

TEST_F(PropValuesTest, AnUnknownEnumerationNameRaises) {
  EXPECT_EQ(QStringLiteral("Invalid property element: saLeft"),
            MessageOf<EPropertyConvertError>([&] { SetEnumProp(Sample.get(), u"Align", u"saLeft"); }));
}

TEST_F(PropValuesTest, TrueIsNoNameForAWideBoolean) {
  // Its ordinal is -1, which is also what an unknown name gives.
  EXPECT_EQ(QStringLiteral("Invalid property element: True"),
            MessageOf<EPropertyConvertError>([&] { SetEnumProp(Sample.get(), u"Wide", u"True"); }));
}

TEST_F(PropValuesTest, SetsAreReadAndWrittenByNames) {
  SetSetProp(Sample.get(), u"Styles", u"[ssBold,ssUnderline]");
  EXPECT_EQ((tests::TSampleStyles{tests::ssBold, tests::ssUnderline}), Sample->Styles);
  EXPECT_EQ(QStringLiteral("[ssBold,ssUnderline]"), GetSetProp(Sample.get(), u"Styles", true));
  EXPECT_EQ(0b101, GetOrdProp(Sample.get(), u"Styles"));
}

TEST_F(PropValuesTest, FloatsOfEveryStorageAreDoubles) {
  SetFloatProp(Sample.get(), u"Ratio", 0.25);
  SetFloatProp(Sample.get(), u"Narrow", 0.5);
  SetFloatProp(Sample.get(), u"Price", 12.34);
  EXPECT_EQ(0.25, GetFloatProp(Sample.get(), u"Ratio"));
  EXPECT_EQ(0.5f, Sample->Narrow);
  EXPECT_EQ(12.34, GetFloatProp(Sample.get(), u"Price"));
}

TEST_F(PropValuesTest, AFloatBeyondItsStorageRaises) {
  const TPropInfo* narrow = FindPropInfo(Sample.get(), u"Narrow");
  SetExtendedProp(Sample.get(), narrow, 0.5L);
  EXPECT_EQ(QStringLiteral("Range check error"),
            MessageOf<ERangeError>([&] { SetExtendedProp(Sample.get(), narrow, 1e39L); }));
  EXPECT_THROW(SetFloatProp(Sample.get(), u"Narrow", -1e39), ERangeError);
  EXPECT_EQ(0.5f, Sample->Narrow);
}

TEST_F(PropValuesTest, InfinitiesAndNaNFitEveryFloat) {
  SetFloatProp(Sample.get(), u"Narrow", -std::numeric_limits<double>::infinity());
  EXPECT_EQ(-std::numeric_limits<float>::infinity(), Sample->Narrow);
  SetFloatProp(Sample.get(), u"Narrow", std::numeric_limits<double>::quiet_NaN());
  EXPECT_TRUE(std::isnan(Sample->Narrow));
}

TEST_F(PropValuesTest, AShortStringIsCutToItsLength) {
  SetStrProp(Sample.get(), u"ShortText", QString(300, u'x'));
  EXPECT_EQ(255, Sample->ShortText.size());
}

TEST_F(PropValuesTest, LargeIntegersKeepEveryBit) {
  SetInt64Prop(Sample.get(), u"Big", std::numeric_limits<qint64>::min());
  EXPECT_EQ(std::numeric_limits<qint64>::min(), GetInt64Prop(Sample.get(), u"Big"));
  Sample->Huge = std::numeric_limits<quint64>::max();
  EXPECT_EQ(QStringLiteral("18446744073709551615"), Text("Huge"));
}

TEST_F(PropValuesTest, AnOwnedObjectIsReadByReferenceAndWrittenByCopy) {
  const auto part = Make<TSamplePart>();
  part->SetSize(31);
  SetObjectProp(Sample.get(), u"Part", part.get());
  EXPECT_EQ(31, Sample->GetPart().GetSize());
  EXPECT_EQ(&Sample->GetPart(), GetObjectProp(Sample.get(), u"Part"));
}

TEST_F(PropValuesTest, AnOwnedObjectCannotBecomeNil) {
  EXPECT_EQ(QStringLiteral("Cannot assign a nil to a TSamplePart"),
            MessageOf<EConvertError>([&] { SetObjectProp(Sample.get(), u"Part", nullptr); }));
}

TEST_F(PropValuesTest, AnObjectOfAnotherClassIsRefused) {
  const auto other = Make<TPersistent>();
  EXPECT_EQ(QStringLiteral("Invalid class typecast"),
            MessageOf<EInvalidCast>([&] { SetObjectProp(Sample.get(), u"Partner", other.get()); }));
}

TEST_F(PropValuesTest, AReferenceOfTooLowAClassReadsAsNil) {
  const auto partner = Make<TComponent>();
  Sample->Partner = partner.get();
  EXPECT_EQ(partner.get(), GetObjectProp(Sample.get(), u"Partner", TComponent::Class()));
  EXPECT_EQ(nullptr, GetObjectProp(Sample.get(), u"Partner", TSample::Class()));
}

TEST_F(PropValuesTest, TheDeclaredClassOfAPropertyIsKnown) {
  EXPECT_EQ(TComponent::Class(), GetObjectPropClass(Sample.get(), u"Partner"));
  EXPECT_THROW(GetObjectPropClass(Sample.get(), u"Whole"), EPropertyError);
}

TEST_F(PropValuesTest, EventsAreReadAndWritten) {
  const TNotifyEvent event(Sample.get(), &TSample::HandleAction);
  SetMethodProp(Sample.get(), u"OnAction", event);
  EXPECT_EQ(event, GetMethodProp(Sample.get(), u"OnAction"));
  SetMethodProp(Sample.get(), u"OnAction", TMethod());
  EXPECT_TRUE(Sample->OnAction.IsEmpty());
}

struct TOtherEvent : TEvent<int> {
  using TEvent::TEvent;
};

TEST_F(PropValuesTest, AMethodOfAnotherSignatureIsRefused) {
  EXPECT_EQ(QStringLiteral("Invalid property type: TNotifyEvent"), MessageOf<EPropertyConvertError>([&] {
              SetMethodProp(Sample.get(), u"OnAction", TOtherEvent([](int) {}));
            }));
}

TEST_F(PropValuesTest, InterfacesAreReadAndWritten) {
  const auto partner = Make<TComponent>();
  SetInterfaceProp(Sample.get(), u"Reference", static_cast<IInterfaceComponentReference*>(partner.get()));
  EXPECT_EQ(partner.get(), ComponentBehind(GetInterfaceProp(Sample.get(), u"Reference")));
}

TEST_F(PropValuesTest, VariantsAreReadAndWritten) {
  SetVariantProp(Sample.get(), u"Anything", Variant(5));
  EXPECT_EQ(5, GetVariantProp(Sample.get(), u"Anything").ToInt64());
}

TEST_F(PropValuesTest, EveryKindHasAVariantForm) {
  Sample->Align = tests::saTop;
  Sample->Styles = {tests::ssItalic};
  Sample->Flag = true;
  Sample->Text = QStringLiteral("t");
  EXPECT_EQ(QStringLiteral("saTop"), Text("Align"));
  EXPECT_EQ(QStringLiteral("1"), Text("Align", false));
  EXPECT_EQ(QStringLiteral("ssItalic"), Text("Styles"));
  EXPECT_EQ(QStringLiteral("2"), Text("Styles", false));
  EXPECT_EQ(QStringLiteral("True"), Text("Flag"));
  EXPECT_EQ(QStringLiteral("True"), Text("Flag", false));
  EXPECT_EQ(QStringLiteral("65"), Text("Letter"));
  EXPECT_EQ(QStringLiteral("t"), Text("Text"));
  EXPECT_EQ(QStringLiteral("TNotifyEvent"), Text("OnAction"));
}

TEST_F(PropValuesTest, AnInterfaceHasNoVariantForm) {
  EXPECT_EQ(QStringLiteral("Invalid property type: IInterfaceComponentReference"),
            MessageOf<EPropertyConvertError>([&] { GetPropValue(Sample.get(), u"Reference"); }));
}

TEST_F(PropValuesTest, AVariantIsConvertedToThePropertysKind) {
  SetPropValue(Sample.get(), u"Whole", Variant(QStringLiteral("42")));
  SetPropValue(Sample.get(), u"Align", Variant(QStringLiteral("saTop")));
  SetPropValue(Sample.get(), u"Flag", Variant(true));
  SetPropValue(Sample.get(), u"Wide", Variant(true));
  SetPropValue(Sample.get(), u"Styles", Variant(QStringLiteral("[ssBold]")));
  SetPropValue(Sample.get(), u"Text", Variant(7));
  EXPECT_EQ(42, Sample->Whole);
  EXPECT_EQ(tests::saTop, Sample->Align);
  EXPECT_TRUE(Sample->Flag);
  EXPECT_TRUE(Sample->Wide);
  EXPECT_EQ(tests::TSampleStyles({tests::ssBold}), Sample->Styles);
  EXPECT_EQ(QStringLiteral("7"), Sample->Text);
}

TEST_F(PropValuesTest, DecimalsAreDeliberatelyCutOffForAnInteger) {
  SetPropValue(Sample.get(), u"Whole", Variant(QStringLiteral("2.7")));
  EXPECT_EQ(2, Sample->Whole);
  SetPropValue(Sample.get(), u"Whole", Variant(-2.7));
  EXPECT_EQ(-2, Sample->Whole);
}

TEST_F(PropValuesTest, ALargeIntegerAsATextKeepsEveryBit) {
  SetPropValue(Sample.get(), u"Big", Variant(QStringLiteral("9223372036854775807")));
  EXPECT_EQ(std::numeric_limits<qint64>::max(), Sample->Big);
}

TEST_F(PropValuesTest, AnOrdinalOutsideTheTypeRaises) {
  EXPECT_EQ(QStringLiteral("Range check error"),
            MessageOf<ERangeError>([&] { SetPropValue(Sample.get(), u"Small", Variant(256)); }));
  EXPECT_THROW(SetPropValue(Sample.get(), u"Align", Variant(3)), ERangeError);
  EXPECT_THROW(SetPropValue(Sample.get(), u"Whole", Variant(Q_INT64_C(0x80000000))), ERangeError);
}

TEST_F(PropValuesTest, ATextThatIsNoNumberRaises) {
  EXPECT_THROW(SetPropValue(Sample.get(), u"Whole", Variant(QStringLiteral("abc"))), EVariantTypeCastError);
}

TEST_F(PropValuesTest, TheStoredRuleIsAskedForTheInstance) {
  EXPECT_TRUE(IsStoredProp(Sample.get(), u"Text"));
  Sample->IsTextStored = false;
  EXPECT_FALSE(IsStoredProp(Sample.get(), u"Text"));
  EXPECT_FALSE(IsStoredProp(Sample.get(), u"Name"));
}

TEST_F(PropValuesTest, ListsAreSortedOrInDeclarationOrderAndOfTheKindsAskedFor) {
  const auto sorted = GetPropList(TSamplePart::Class(), tkAny, poSorted);
  const auto declared = GetPropList(TSamplePart::Class(), {tkInteger, tkSet}, poDeclared);
  ASSERT_EQ(3u, sorted.size());
  EXPECT_EQ(QStringLiteral("Style"), sorted[1]->Name());
  ASSERT_EQ(2u, declared.size());
  EXPECT_EQ(QStringLiteral("Size"), declared[0]->Name());
}

/// Every published property of a class: a fresh instance shows the declared default, and its value can be written back.
class EveryPropertyTest : public ::testing::TestWithParam<const TClassInfo*> {};

TEST_P(EveryPropertyTest, AFreshInstanceShowsTheDeclaredDefaultAndTakesItsOwnValueBack) {
  const std::unique_ptr<TObject> instance(GetParam()->CreateInstance(nullptr));
  for (const TPropInfo* property : GetParam()->Props()) {
    SCOPED_TRACE(property->Name().toStdString());
    if (property->HasDefault()) {
      EXPECT_EQ(property->Default(), GetOrdProp(instance.get(), property));
    }
    if (!property->IsWritable() || property->Kind() == tkInterface || property->Kind() == tkMethod) continue;
    if (property->Kind() == tkClass) {
      SetObjectProp(instance.get(), property, GetObjectProp(instance.get(), property));
      continue;
    }
    const Variant before = GetPropValue(instance.get(), property, false);
    SetPropValue(instance.get(), property, before);
    EXPECT_EQ(VarToStr(before), VarToStr(GetPropValue(instance.get(), property, false)));
  }
}

INSTANTIATE_TEST_SUITE_P(Classes, EveryPropertyTest,
                         ::testing::Values(TComponent::Class(), TSample::Class(), TSamplePart::Class(),
                                           tests::TSampleItem::Class()));

TEST_F(PropValuesTest, AnInterfaceOfAnotherTypeRaises) {
  class TStranger : public IInterface {};
  TStranger stranger;
  EXPECT_EQ(QStringLiteral("Invalid class typecast"),
            MessageOf<EInvalidCast>([&] { SetInterfaceProp(Sample.get(), u"Reference", &stranger); }));
}

TEST_F(PropValuesTest, AnInterfaceCanBeSetToNil) {
  Sample->Reference = Sample.get();
  SetInterfaceProp(Sample.get(), u"Reference", nullptr);
  EXPECT_EQ(nullptr, Sample->Reference);
}

TEST_F(PropValuesTest, AnAmountBeyondTheRangeRaises) {
  EXPECT_EQ(QStringLiteral("Range check error"),
            MessageOf<ERangeError>([&] { SetFloatProp(Sample.get(), u"Price", 922337203685478.0); }));
  EXPECT_THROW(SetFloatProp(Sample.get(), u"Price", -1e300), ERangeError);
  EXPECT_THROW(SetFloatProp(Sample.get(), u"Price", std::numeric_limits<double>::quiet_NaN()), ERangeError);
  EXPECT_THROW(SetExtendedProp(Sample.get(), FindPropInfo(Sample.get(), u"Price"), 922337203685477.5809L), ERangeError);
}

/// Amounts at the ends of the range and with more digits than a double has, in ten-thousandths.
class AmountTest : public ::testing::TestWithParam<qint64> {};

TEST_P(AmountTest, AnAmountIsExactAsAnExtendedNumber) {
  const auto from = Make<TSample>();
  const auto to = Make<TSample>();
  from->Price = Currency::FromScaled(GetParam());
  const TPropInfo* price = FindPropInfo(from.get(), u"Price");
  SetExtendedProp(to.get(), price, GetExtendedProp(from.get(), price));
  EXPECT_EQ(GetParam(), to->Price.Scaled());
}

TEST_P(AmountTest, AnAmountIsExactAsAVariant) {
  const auto from = Make<TSample>();
  const auto to = Make<TSample>();
  from->Price = Currency::FromScaled(GetParam());
  SetPropValue(to.get(), u"Price", GetPropValue(from.get(), u"Price"));
  EXPECT_EQ(GetParam(), to->Price.Scaled());
}

TEST_P(AmountTest, AnAmountIsExactAsText) {
  const auto from = Make<TSample>();
  const auto to = Make<TSample>();
  from->Price = Currency::FromScaled(GetParam());
  SetPropValue(to.get(), u"Price", Variant(VarToStr(GetPropValue(from.get(), u"Price"))));
  EXPECT_EQ(GetParam(), to->Price.Scaled());
}

INSTANTIATE_TEST_SUITE_P(Extremes, AmountTest,
                         ::testing::Values(0, 1, -1, Q_INT64_C(90071992547409931), Q_INT64_C(-90071992547409931),
                                           Q_INT64_C(4611686018427387905), std::numeric_limits<qint64>::max() - 1,
                                           std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min() + 1,
                                           std::numeric_limits<qint64>::min()));

}  // namespace
}  // namespace kt
