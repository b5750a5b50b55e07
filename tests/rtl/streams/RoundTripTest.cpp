// Objects to binary to objects, compared as text.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::TextOf;
using tests::TSample;
using tests::TSampleItem;

class RoundTripTest : public ::testing::Test {
 protected:
  RoundTripTest() { RegisterClass(TSample::Class()); }
  ~RoundTripTest() override { UnRegisterClass(TSample::Class()); }

  static std::unique_ptr<TSample> Copy(TComponent* original) {
    TReader reader(WriteComponentToBinary(original));
    return reader.ReadRoot<TSample>();
  }
};

TEST_F(RoundTripTest, AFreshObjectWritesOnlyWhatHasNoDefaultAndItsEmptyCollections) {
  const auto sample = Make<TSample>();
  sample->SetName(QStringLiteral("S"));
  EXPECT_EQ(
      "object S: TSample\n"
      "  Small = 0\n"
      "  Color = 0\n"
      "  Items = <>\n"
      "end\n",
      TextOf(sample.get()));
}

TEST_F(RoundTripTest, EveryKindOfValueComesBack) {
  const auto sample = Make<TSample>();
  sample->Whole = -5;
  sample->Small = 200;
  sample->Letter = 'z';
  sample->WideLetter = QChar(u'\u20AC');
  sample->Flag = true;
  sample->Wide = true;
  sample->Align = tests::saBottom;
  sample->Styles = {tests::ssBold, tests::ssUnderline};
  sample->Ratio = 0.1;
  sample->Narrow = 0.5f;
  sample->Price = Currency(12.3456);
  sample->Moment = 39000.25;
  sample->Text = QStringLiteral("It's\r\n\u00e9\u20ac");
  sample->ShortText = QStringLiteral("short");
  sample->WideText = QStringLiteral("wide");
  sample->Anything = Variant(QStringLiteral("any"));
  sample->Big = Q_INT64_C(0x7FFFFFFFFFFFFFFF);
  sample->Huge = Q_UINT64_C(0xFFFFFFFFFFFFFFFF);
  sample->GetPart().SetSize(12);
  sample->GetPart().SetStyle({tests::ssItalic});
  sample->GetItems().AddItem(QStringLiteral("one"));
  static_cast<TSampleItem*>(sample->GetItems().AddItem(QStringLiteral("two"))->GetChildren().Add())
      ->SetCaption(QStringLiteral("inner"));
  sample->OnAction = TNotifyEvent(sample.get(), &TSample::HandleAction);

  const auto copy = Copy(sample.get());
  EXPECT_EQ(TextOf(sample.get()), TextOf(copy.get()));
  EXPECT_EQ(0.1, copy->Ratio);
  EXPECT_EQ(sample->Text, copy->Text);
  EXPECT_EQ(sample->Huge, copy->Huge);
  EXPECT_EQ(TNotifyEvent(copy.get(), &TSample::HandleAction), copy->OnAction);
}

TEST_F(RoundTripTest, NestedPropertiesAndCollectionsAreWrittenByPath) {
  const auto sample = Make<TSample>();
  sample->GetPart().SetSize(12);
  sample->GetItems().AddItem(QStringLiteral("one"));
  EXPECT_EQ(
      "object TSample\n"
      "  Small = 0\n"
      "  Color = 0\n"
      "  Part.Size = 12\n"
      "  Items = <\n"
      "    item\n"
      "      Caption = 'one'\n"
      "      Children = <>\n"
      "    end>\n"
      "end\n",
      TextOf(sample.get()));
}

TEST_F(RoundTripTest, AReferenceToALaterSiblingIsSetAfterLoading) {
  const auto form = Make<TSample>();
  form->SetName(QStringLiteral("Form1"));
  auto* first = New<TSample>(form.get());
  first->SetName(QStringLiteral("First"));
  auto* second = New<TSample>(form.get());
  second->SetName(QStringLiteral("Second"));
  first->Partner = second;
  second->Reference = form.get();

  const auto copy = Copy(form.get());
  ASSERT_EQ(2, copy->GetComponentCount());
  auto* copiedFirst = static_cast<TSample*>(copy->FindComponent(u"First"));
  EXPECT_EQ(copy->FindComponent(u"Second"), copiedFirst->Partner);
  EXPECT_EQ(copy.get(), static_cast<TSample*>(copiedFirst->Partner)->Reference->GetComponent());
}

TEST_F(RoundTripTest, APropertyThatIsNotStoredIsLeftOut) {
  const auto sample = Make<TSample>();
  sample->Text = QStringLiteral("x");
  sample->IsTextStored = false;
  EXPECT_EQ(QString(), Copy(sample.get())->Text);
}

TEST_F(RoundTripTest, AHandlerThatIsNoPublishedMethodIsLeftOut) {
  const auto sample = Make<TSample>();
  sample->OnAction = TNotifyEvent([](TObject*) {});
  EXPECT_TRUE(Copy(sample.get())->OnAction.IsEmpty());
}

TEST_F(RoundTripTest, ADescendantWritesOnlyWhatDiffersFromItsAncestor) {
  const auto ancestor = Make<TSample>();
  ancestor->SetName(QStringLiteral("Form1"));
  ancestor->Whole = 3;
  ancestor->Text = QStringLiteral("same");
  ancestor->GetItems().AddItem(QStringLiteral("one"));
  const auto descendant = Copy(ancestor.get());
  descendant->Whole = 0;
  TWriter writer;
  writer.WriteRootComponent(descendant.get(), ancestor.get());
  EXPECT_EQ(
      "inherited Form1: TSample\n"
      "  Whole = 0\n"
      "end\n",
      TextOf(writer.Data()));
}

TEST_F(RoundTripTest, ADescendantDoesNotWriteTheHandlerThatItInherits) {
  const auto ancestor = Make<TSample>();
  TReader(BinaryOf("object Form1: TSample\n  OnAction = HandleAction\nend\n")).ReadRootComponent(ancestor.get());
  const auto descendant = Copy(ancestor.get());
  TWriter same;
  same.WriteRootComponent(descendant.get(), ancestor.get());
  EXPECT_EQ("inherited Form1: TSample\nend\n", TextOf(same.Data()));
  ancestor->OnAction = {};
  TWriter different;
  different.WriteRootComponent(descendant.get(), ancestor.get());
  EXPECT_EQ("inherited Form1: TSample\n  OnAction = HandleAction\nend\n", TextOf(different.Data()));
}

TEST_F(RoundTripTest, ADescendantWritesThatItHasNoObjectWhereItsAncestorHas) {
  const auto ancestor = Make<TSample>();
  ancestor->SetName(QStringLiteral("Form1"));
  const auto partner = Make<TSample>();
  partner->SetName(QStringLiteral("Other"));
  const auto descendant = Copy(ancestor.get());
  ancestor->Partner = partner.get();
  TWriter writer;
  writer.WriteRootComponent(descendant.get(), ancestor.get());
  EXPECT_EQ("inherited Form1: TSample\n  Partner = nil\nend\n", TextOf(writer.Data()));
  ancestor->Partner = nullptr;
}

TEST_F(RoundTripTest, AReferenceIntoAnotherComponentIsAPathOfOwners) {
  const auto sample = Make<TSample>();
  sample->SetName(QStringLiteral("Form1"));
  auto* frame = New<TSample>(sample.get());
  frame->SetName(QStringLiteral("Frame"));
  auto* button = New<TSample>(frame);
  button->SetName(QStringLiteral("Button"));
  sample->Partner = button;
  EXPECT_NE(std::string::npos, TextOf(sample.get()).find("\n  Partner = Frame.Button\n"));
}

TEST_F(RoundTripTest, ADescendantsChildrenAreInheritedOrNew) {
  const auto ancestor = Make<TSample>();
  ancestor->SetName(QStringLiteral("Form1"));
  New<TSample>(ancestor.get())->SetName(QStringLiteral("Old"));
  const auto descendant = Copy(ancestor.get());
  New<TSample>(descendant.get())->SetName(QStringLiteral("Fresh"));
  TWriter writer;
  writer.WriteRootComponent(descendant.get(), ancestor.get());
  EXPECT_EQ(
      "inherited Form1: TSample\n"
      "  inherited Old: TSample\n"
      "  end\n"
      "  object Fresh: TSample\n"
      "    Small = 0\n"
      "    Color = 0\n"
      "    Items = <>\n"
      "  end\n"
      "end\n",
      TextOf(writer.Data()));
}

TEST_F(RoundTripTest, ADescendantIsReadOverItsAncestor) {
  const auto form = Make<TSample>();
  auto* old = New<TSample>(form.get());
  old->SetName(QStringLiteral("Old"));
  old->Whole = 1;
  TReader reader(
      BinaryOf("inherited Form1: TSample\n"
               "  Text = 'new'\n"
               "  inherited Old: TSample\n"
               "    Small = 9\n"
               "  end\n"
               "end\n"));
  reader.ReadRootComponent(form.get());
  EXPECT_EQ(1, form->GetComponentCount());
  EXPECT_EQ(QStringLiteral("new"), form->Text);
  EXPECT_EQ(1, old->Whole);
  EXPECT_EQ(9, old->Small);
}

TEST_F(RoundTripTest, SomeComponentsOfAFormGoThroughTheClipboard) {
  const auto form = Make<TSample>();
  auto* one = New<TSample>(form.get());
  one->SetName(QStringLiteral("One"));
  auto* two = New<TSample>(form.get());
  two->SetName(QStringLiteral("Two"));
  one->Partner = two;
  TWriter writer;
  writer.WriteComponents({one, two}, form.get());

  const auto target = Make<TSample>();
  TReader reader(writer.Data());
  QStringList names;
  reader.ReadComponents(target.get(), target.get(), [&](TComponent* read) { names.append(read->GetName()); });
  EXPECT_EQ((QStringList{QStringLiteral("One"), QStringLiteral("Two")}), names);
  EXPECT_EQ(target->FindComponent(u"Two"), static_cast<TSample*>(target->FindComponent(u"One"))->Partner);
}

}  // namespace
}  // namespace kt
