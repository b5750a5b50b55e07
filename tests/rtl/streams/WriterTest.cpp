#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/BinaryReader.h"
#include "kt/rtl/streams/FormNumbers.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace kt {
namespace {

using tests::TextOf;
using tests::TSample;

/// A component with children of its own below it: a form, a nested form or a panel.
class TNest : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TNest>("TNest")
                                       .Property<&TNest::Whole>("Whole")
                                       .Default(0)
                                       .Property<&TNest::Partner>("Partner")
                                       .Creatable()
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  int Whole = 0;
  TComponent* Partner = nullptr;
  std::vector<TComponent*> Order;
  bool FailsToWrite = false;

  void MakeInline() { SetInline(true); }
  TNest* Add(const char* name) {
    auto* child = New<TNest>(this);
    child->SetName(QString::fromLatin1(name));
    Order.push_back(child);
    return child;
  }
  QString Names() const {
    QStringList names;
    for (TComponent* child : Order) names.append(child->GetName());
    return names.join(u' ');
  }

 protected:
  explicit TNest(TComponent* owner = nullptr) : TComponent(owner) {}
  void DefineProperties(TFiler&) override {
    if (FailsToWrite) throw EAbort(QStringLiteral("no value"));
  }
  void GetChildren(const TGetChildProc& proc, TComponent*) override {
    for (TComponent* child : Order) proc(child);
  }
  TComponent* GetChildOwner() override { return HasState(csInline) ? this : nullptr; }
  void SetParentComponent(TComponent* parent) override { static_cast<TNest*>(parent)->Order.push_back(this); }
  void SetChildOrder(TComponent* child, int order) override {
    Order.erase(std::find(Order.begin(), Order.end(), child));
    Order.insert(Order.begin() + order, child);
  }
};

class WriterTest : public ::testing::Test {
 protected:
  WriterTest() { RegisterClasses({TSample::Class(), TNest::Class()}); }
  ~WriterTest() override { UnRegisterClasses({TSample::Class(), TNest::Class()}); }

  static Variant Through(const Variant& value) {
    TWriter writer;
    writer.WriteVariant(value);
    TReader reader(writer.Data());
    return reader.ReadVariant();
  }

  static std::string TypeAndText(const Variant& value) {
    return (VarTypeAsText(VarType(value)) + u' ' + VarToStr(value)).toStdString();
  }

  /// The text of a sample whose variant is `value`, as the descendant of one whose variant is `inherited`.
  static std::string DescendantText(const Variant& inherited, const Variant& value) {
    const auto ancestor = Make<TSample>();
    const auto descendant = Make<TSample>();
    ancestor->Anything = inherited;
    descendant->Anything = value;
    return DescendantText(descendant.get(), ancestor.get());
  }

  static std::string DescendantText(TComponent* descendant, TComponent* ancestor) {
    TWriter writer;
    writer.WriteRootComponent(descendant, ancestor);
    return TextOf(writer.Data());
  }

  /// A form with the children `names`.
  static std::unique_ptr<TNest> Form(std::initializer_list<const char*> names) {
    auto form = Make<TNest>();
    form->SetName(QStringLiteral("Form1"));
    for (const char* name : names) form->Add(name);
    return form;
  }

  /// The order of a form with the children `inherited` after `form` was written as its descendant and read over it.
  static QString OrderAfterReading(TNest* form, std::initializer_list<const char*> inherited) {
    const auto ancestor = Form(inherited);
    TWriter writer;
    writer.WriteRootComponent(form, ancestor.get());
    TReader reader(writer.Data());
    reader.ReadRootComponent(ancestor.get());
    return ancestor->Names();
  }
};

TEST_F(WriterTest, ADateVariantComesBackAsThatDate) {
  const Variant back = Through(Variant::FromDateTime(38718.0 + 1.0 / 3));
  EXPECT_EQ(varDate, VarType(back));
  EXPECT_EQ(38718.0 + 1.0 / 3, back.ToDateTime());
}

TEST_F(WriterTest, ACurrencyVariantComesBackToTheLastDigit) {
  const Variant back = Through(Variant(Currency::FromScaled(std::numeric_limits<qint64>::max())));
  EXPECT_EQ(varCurrency, VarType(back));
  EXPECT_EQ(std::numeric_limits<qint64>::max(), back.ToCurrency().Scaled());
}

TEST_F(WriterTest, AnUnsignedVariantBeyondInt64ComesBackExactly) {
  EXPECT_EQ("UInt64 18446744073709551615", TypeAndText(Through(Variant(Q_UINT64_C(18446744073709551615)))));
  EXPECT_EQ("UInt64 9223372036854775809", TypeAndText(Through(Variant(Q_UINT64_C(9223372036854775809)))));
  EXPECT_EQ("Int64 9223372036854775807", TypeAndText(Through(Variant(Q_UINT64_C(9223372036854775807)))));
}

TEST_F(WriterTest, ADoubleVariantInTheRangeOfUnsignedIntegersStaysADouble) {
  const Variant back = Through(Variant(0x1p63));
  EXPECT_EQ(varDouble, VarType(back));
  EXPECT_EQ(0x1p63, back.ToDouble());
}

TEST_F(WriterTest, NumbersTextsAndTruthValuesOfVariantsKeepTheirTypes) {
  EXPECT_EQ("Double 0.1", TypeAndText(Through(Variant(0.1))));
  EXPECT_EQ("Single 0.1", TypeAndText(Through(Variant(0.1f))));
  EXPECT_EQ("Boolean True", TypeAndText(Through(Variant(true))));
  EXPECT_EQ("String 5", TypeAndText(Through(Variant("5"))));
  EXPECT_EQ("Integer 5", TypeAndText(Through(Variant(5))));
}

TEST_F(WriterTest, NullAndUnassignedVariantsComeBack) {
  EXPECT_TRUE(VarIsNull(Through(Variant::Null())));
  EXPECT_TRUE(VarIsEmpty(Through(Variant())));
}

TEST_F(WriterTest, VariantPropertiesGoThroughTextWithTheirTypes) {
  const auto sample = Make<TSample>();
  sample->Anything = Variant::FromDateTime(38718.25);
  EXPECT_NE(std::string::npos, TextOf(sample.get()).find("Anything = 38718.25d"));
  sample->Anything = Variant(Currency::FromScaled(-12345));
  EXPECT_NE(std::string::npos, TextOf(sample.get()).find("Anything = -12345c"));
  sample->Anything = Variant::Null();
  EXPECT_NE(std::string::npos, TextOf(sample.get()).find("Anything = Null"));
}

TEST_F(WriterTest, AnInheritedVariantOfAnotherTypeDiffersWithoutAnError) {
  EXPECT_NE(std::string::npos, DescendantText(Variant(5), Variant("abc")).find("Anything = 'abc'"));
  EXPECT_NE(std::string::npos, DescendantText(Variant(5), Variant("5")).find("Anything = '5'"));
  EXPECT_NE(std::string::npos, DescendantText(Variant(5), Variant::Null()).find("Anything = Null"));
  EXPECT_NE(std::string::npos, DescendantText(Variant(5), Variant()).find("Anything = nil"));
}

TEST_F(WriterTest, AnInheritedVariantThatIsTheSameIsLeftOut) {
  EXPECT_EQ("inherited TSample\nend\n", DescendantText(Variant("abc"), Variant("abc")));
}

TEST_F(WriterTest, ACurrencyPropertyIsWrittenToTheLastDigit) {
  const auto sample = Make<TSample>();
  sample->Price = Currency::FromScaled(std::numeric_limits<qint64>::max());
  EXPECT_NE(std::string::npos, TextOf(sample.get()).find("Price = 922337203685477.5807"));
}

TEST_F(WriterTest, AnInterfaceOfAComponentWithoutANameIsLeftOut) {
  const auto form = Make<TSample>();
  form->Reference = New<TSample>(form.get());
  EXPECT_EQ(std::string::npos, TextOf(form.get()).find("Reference"));
}

TEST_F(WriterTest, AnInheritedInterfaceIsLeftOut) {
  const auto ancestor = Make<TSample>();
  const auto descendant = Make<TSample>();
  ancestor->Reference = New<TSample>(ancestor.get());
  ancestor->Reference->GetComponent()->SetName(QStringLiteral("Other"));
  descendant->Reference = New<TSample>(descendant.get());
  descendant->Reference->GetComponent()->SetName(QStringLiteral("Other"));
  EXPECT_EQ(std::string::npos, DescendantText(descendant.get(), ancestor.get()).find("Reference"));
}

TEST_F(WriterTest, AnInheritedInterfaceThatIsNilNowIsWritten) {
  const auto ancestor = Make<TSample>();
  const auto descendant = Make<TSample>();
  ancestor->Reference = ancestor.get();
  EXPECT_NE(std::string::npos, DescendantText(descendant.get(), ancestor.get()).find("Reference = nil"));
}

TEST_F(WriterTest, AHandlerOfTheRootIsWrittenForItsChildren) {
  const auto form = Make<TSample>();
  New<TSample>(form.get())->OnAction = TNotifyEvent(form.get(), &TSample::HandleAction);
  EXPECT_NE(std::string::npos, TextOf(form.get()).find("    OnAction = HandleAction\n"));
}

TEST_F(WriterTest, AHandlerOfAnotherObjectIsLeftOut) {
  const auto form = Make<TSample>();
  auto* child = New<TSample>(form.get());
  form->OnAction = TNotifyEvent(child, &TSample::HandleAction);
  child->OnAction = TNotifyEvent(child, &TSample::HandleAction);
  EXPECT_EQ(std::string::npos, TextOf(form.get()).find("OnAction"));
}

TEST_F(WriterTest, ADescendantsHandlerOfAnotherObjectIsNoInheritedOne) {
  const auto ancestor = Make<TSample>();
  const auto descendant = Make<TSample>();
  const auto other = Make<TSample>();
  ancestor->OnAction = TNotifyEvent(other.get(), &TSample::HandleAction);
  descendant->OnAction = TNotifyEvent(descendant.get(), &TSample::HandleAction);
  EXPECT_EQ("inherited TSample\n  OnAction = HandleAction\nend\n", DescendantText(descendant.get(), ancestor.get()));
  ancestor->OnAction = TNotifyEvent(ancestor.get(), &TSample::HandleAction);
  EXPECT_EQ("inherited TSample\nend\n", DescendantText(descendant.get(), ancestor.get()));
}

TEST_F(WriterTest, AnInheritedHandlerThatIsGoneIsWrittenAsNil) {
  const auto ancestor = Make<TSample>();
  const auto descendant = Make<TSample>();
  ancestor->OnAction = TNotifyEvent(ancestor.get(), &TSample::HandleAction);
  EXPECT_EQ("inherited TSample\n  OnAction = nil\nend\n", DescendantText(descendant.get(), ancestor.get()));
}

TEST_F(WriterTest, AComponentThatFailsToBeWrittenIsNotLeftInTheWritingState) {
  const auto form = Form({"A"});
  static_cast<TNest*>(form->Order[0])->FailsToWrite = true;
  EXPECT_THROW(WriteComponentToBinary(form.get()), EAbort);
  EXPECT_FALSE(form->HasState(csWriting));
  EXPECT_FALSE(form->Order[0]->HasState(csWriting));
}

TEST_F(WriterTest, ChildrenOfAnInlineComponentAreComparedWithItsCounterpart) {
  const auto ancestor = Form({"Frame", "Button"});
  const auto descendant = Form({"Frame", "Button"});
  for (TNest* form : {ancestor.get(), descendant.get()}) {
    auto* frame = static_cast<TNest*>(form->FindComponent(u"Frame"));
    frame->MakeInline();
    frame->Add("Button")->Whole = 7;
  }
  static_cast<TNest*>(descendant->FindComponent(u"Button"))->Whole = 8;
  EXPECT_EQ(
      "inherited Form1: TNest\n"
      "  inherited Frame: TNest\n"
      "    inherited Button: TNest\n"
      "    end\n"
      "  end\n"
      "  inherited Button: TNest\n"
      "    Whole = 8\n"
      "  end\n"
      "end\n",
      DescendantText(descendant.get(), ancestor.get()));
}

TEST_F(WriterTest, AReferenceInsideAnInlineComponentIsComparedWithItsCounterpart) {
  const auto ancestor = Form({"Frame"});
  const auto descendant = Form({"Frame"});
  for (TNest* form : {ancestor.get(), descendant.get()}) {
    auto* frame = static_cast<TNest*>(form->Order[0]);
    frame->MakeInline();
    frame->Add("A")->Partner = frame->Add("B");
  }
  EXPECT_EQ(std::string::npos, DescendantText(descendant.get(), ancestor.get()).find("Partner"));
}

TEST_F(WriterTest, AnInheritedInlineComponentIsStoredAsInheritedOnly) {
  const auto ancestor = Form({"Frame"});
  const auto descendant = Form({"Frame"});
  static_cast<TNest*>(descendant->Order[0])->MakeInline();
  TWriter writer;
  writer.WriteRootComponent(descendant.get(), ancestor.get());
  // The mark of a prefix with the flag of inheritance alone.
  EXPECT_TRUE(
      writer.Data().contains("\xF1\x05TNest\x05"
                             "Frame"));
}

TEST_F(WriterTest, ChildrenInTheAncestorsOrderHaveNoPosition) {
  const auto ancestor = Form({"A", "B"});
  const auto descendant = Form({"A", "B", "C"});
  EXPECT_EQ(std::string::npos, DescendantText(descendant.get(), ancestor.get()).find('['));
}

TEST_F(WriterTest, AChildThatWasMovedHasItsPosition) {
  const auto ancestor = Form({"A", "B", "C"});
  const auto descendant = Form({"C", "A", "B"});
  EXPECT_EQ(
      "inherited Form1: TNest\n"
      "  inherited C: TNest [0]\n"
      "  end\n"
      "  inherited A: TNest\n"
      "  end\n"
      "  inherited B: TNest\n"
      "  end\n"
      "end\n",
      DescendantText(descendant.get(), ancestor.get()));
}

TEST_F(WriterTest, ReadOverItsAncestorADescendantHasItsOwnOrder) {
  EXPECT_EQ(QStringLiteral("C A B"), OrderAfterReading(Form({"C", "A", "B"}).get(), {"A", "B", "C"}));
  EXPECT_EQ(QStringLiteral("B C D A"), OrderAfterReading(Form({"B", "C", "D", "A"}).get(), {"A", "B", "C", "D"}));
  EXPECT_EQ(QStringLiteral("X B Y A Z"), OrderAfterReading(Form({"X", "B", "Y", "A", "Z"}).get(), {"A", "B"}));
  EXPECT_EQ(QStringLiteral("D C B A"), OrderAfterReading(Form({"D", "C", "B", "A"}).get(), {"A", "B", "C", "D"}));
}

/// Amounts in ten-thousandths.
class WriterAmountTest : public ::testing::TestWithParam<qint64> {};

TEST_P(WriterAmountTest, TheTextOfACurrencyPropertyParsesToThatAmount) {
  const auto sample = Make<TSample>();
  sample->Price = Currency::FromScaled(GetParam());
  const TPropInfo* price = FindPropInfo(sample.get(), u"Price");
  const QByteArray text = FloatToFormText(fkExtended, GetExtendedProp(sample.get(), price));
  sample->Price = Currency();
  SetExtendedProp(sample.get(), price, ParseFormFloat(text, fkExtended).value());
  EXPECT_EQ(GetParam(), sample->Price.Scaled());
}

TEST_P(WriterAmountTest, TheBinaryFormOfACurrencyPropertyHoldsThatAmount) {
  const auto sample = Make<TSample>();
  sample->Price = Currency::FromScaled(GetParam());
  const TPropInfo* price = FindPropInfo(sample.get(), u"Price");
  TWriter writer;
  writer.WriteRootComponent(sample.get());
  const QByteArray data = writer.Data();
  TBinaryReader reader(data);
  reader.Seek(data.indexOf("Price") + 5);
  SetExtendedProp(sample.get(), price, reader.ReadFloat());
  EXPECT_EQ(GetParam(), sample->Price.Scaled());
}

INSTANTIATE_TEST_SUITE_P(Extremes, WriterAmountTest,
                         ::testing::Values(1, -1, Q_INT64_C(90071992547409931), Q_INT64_C(4611686018427387905),
                                           std::numeric_limits<qint64>::max() - 1, std::numeric_limits<qint64>::max(),
                                           std::numeric_limits<qint64>::min() + 1, std::numeric_limits<qint64>::min()));

TEST(WriterDataTest, WhatIsWrittenLaterFollowsWhatWasTakenBefore) {
  TWriter writer;
  writer.WriteInteger(1);
  const QByteArray first = writer.Data();
  EXPECT_EQ(first, writer.Data());
  writer.WriteInteger(2);
  EXPECT_EQ(QByteArray("\2\1\2\2"), writer.Data());
}

}  // namespace
}  // namespace kt
