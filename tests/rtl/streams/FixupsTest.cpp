#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/Fixups.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::TextOf;
using tests::TSample;

/// A form that refers to a component of another form.
constexpr char Referring[] = "object Form1: TSample\n  Partner = Data1.Table1\nend\n";

class FixupsTest : public ::testing::Test {
 protected:
  FixupsTest() {
    RegisterClass(TSample::Class());
    FFinder = RegisterFindGlobalComponentProc(
        [this](const QString& name) { return FData && FData->GetName() == name ? FData.get() : nullptr; });
  }
  ~FixupsTest() override {
    UnRegisterFindGlobalComponentProc(FFinder);
    UnRegisterClass(TSample::Class());
  }

  void MakeData() {
    FData = Make<TSample>();
    FData->SetName(QStringLiteral("Data1"));
    New<TSample>(FData.get())->SetName(QStringLiteral("Table1"));
  }
  static std::unique_ptr<TSample> Load(const char* text) {
    TReader reader(BinaryOf(text));
    return reader.ReadRoot<TSample>();
  }

  std::unique_ptr<TSample> FData;
  int FFinder = 0;
};

TEST_F(FixupsTest, AReferenceToAnotherFormIsSetWhenThatExists) {
  MakeData();
  EXPECT_EQ(FData->FindComponent(u"Table1"), Load(Referring)->Partner);
}

TEST_F(FixupsTest, AReferenceWaitsUntilTheOtherFormExists) {
  const auto form = Load(Referring);
  EXPECT_EQ(nullptr, form->Partner);
  EXPECT_EQ(QStringList{QStringLiteral("Data1.Table1")}, GetFixupReferenceNames(form.get()));
  MakeData();
  GlobalFixupReferences();
  EXPECT_EQ(FData->FindComponent(u"Table1"), form->Partner);
  EXPECT_TRUE(GetFixupReferenceNames(form.get()).isEmpty());
}

TEST_F(FixupsTest, ADestroyedObjectNoLongerWaits) {
  Load(Referring).reset();
  MakeData();
  GlobalFixupReferences();
  EXPECT_TRUE(GetFixupReferenceNames(nullptr).isEmpty());
}

TEST_F(FixupsTest, ADanglingReferenceStaysNil) {
  const auto form = Load("object Form1: TSample\n  Partner = NoSuchComponent\nend\n");
  EXPECT_EQ(nullptr, form->Partner);
}

TEST_F(FixupsTest, ADanglingReferenceIsWrittenBackUnderThePolicyToKeep) {
  const char* const text =
      "object Form1: TSample\n"
      "  Small = 0\n"
      "  Color = 0\n"
      "  Partner = Data1.Table1\n"
      "  Reference = Nowhere\n"
      "  Items = <>\n"
      "end\n";
  TReader reader(BinaryOf(text));
  reader.UnknownClasses = upKeep;
  EXPECT_EQ(text, TextOf(reader.ReadRoot<TSample>().get()));
}

TEST_F(FixupsTest, ADanglingReferenceIsNotWrittenUnderTheOtherPolicies) {
  EXPECT_EQ(std::string::npos, TextOf(Load(Referring).get()).find("Partner"));
}

TEST_F(FixupsTest, AReferenceThatHasBeenSetIsWrittenAsItIsNow) {
  TReader reader(BinaryOf(Referring));
  reader.UnknownClasses = upKeep;
  const auto form = reader.ReadRoot<TSample>();
  form->Partner = form.get();
  EXPECT_NE(std::string::npos, TextOf(form.get()).find("Partner = Owner"));
}

TEST_F(FixupsTest, AnInheritedDanglingReferenceIsLeftOut) {
  TReader first(BinaryOf(Referring));
  TReader second(BinaryOf(Referring));
  first.UnknownClasses = second.UnknownClasses = upKeep;
  const auto ancestor = first.ReadRoot<TSample>();
  const auto descendant = second.ReadRoot<TSample>();
  TWriter writer;
  writer.WriteRootComponent(descendant.get(), ancestor.get());
  EXPECT_EQ("inherited Form1: TSample\nend\n", TextOf(writer.Data()));
}

TEST_F(FixupsTest, AComponentWhoseReferenceWaitsSaysSo) {
  const auto form = Load("object Form1: TSample\n  Reference = Data1\n  Partner = Nowhere\nend\n");
  EXPECT_TRUE(form->HasState(csFixups));
  MakeData();
  GlobalFixupReferences();
  EXPECT_TRUE(form->Reference && form->HasState(csFixups));
}

TEST_F(FixupsTest, AComponentWithoutWaitingReferencesNoLongerSaysSo) {
  const auto form = Load(Referring);
  EXPECT_TRUE(form->HasState(csFixups));
  MakeData();
  GlobalFixupReferences();
  EXPECT_FALSE(form->HasState(csFixups));
}

TEST_F(FixupsTest, TheFormThatManyReferencesMissIsAskedForOnce) {
  const auto form = Load(
      "object Form1: TSample\n  Partner = Far.A\n  Reference = Far.B\n  object C: TSample\n    Partner = Far.C\n  end\n"
      "end\n");
  int asked = 0;
  const int finder = RegisterFindGlobalComponentProc([&asked](const QString&) -> TComponent* {
    ++asked;
    return nullptr;
  });
  GlobalFixupReferences();
  UnRegisterFindGlobalComponentProc(finder);
  EXPECT_EQ(1, asked);
  EXPECT_EQ(3, GetFixupReferenceNames(form.get()).size());
}

TEST_F(FixupsTest, TwoComponentsMayReferToEachOther) {
  const auto form = Load(
      "object Form1: TSample\n  object A: TSample\n    Partner = B\n  end\n"
      "  object B: TSample\n    Partner = A\n  end\nend\n");
  auto* a = static_cast<TSample*>(form->FindComponent(u"A"));
  auto* b = static_cast<TSample*>(form->FindComponent(u"B"));
  EXPECT_EQ(b, a->Partner);
  EXPECT_EQ(a, b->Partner);
}

TEST_F(FixupsTest, AComponentMayReferToItsFormByNameOrAsOwner) {
  const auto form = Load(
      "object Form1: TSample\n  object A: TSample\n    Partner = Form1\n  end\n"
      "  object B: TSample\n    Partner = Owner\n  end\nend\n");
  EXPECT_EQ(form.get(), static_cast<TSample*>(form->FindComponent(u"A"))->Partner);
}

TEST_F(FixupsTest, AWaitingReferenceToTheOwnerOfAnotherFormIsThatForm) {
  const auto form = Load("object Form1: TSample\n  Partner = Data1.Owner\nend\n");
  EXPECT_EQ(nullptr, form->Partner);
  MakeData();
  GlobalFixupReferences();
  EXPECT_EQ(FData.get(), form->Partner);
  EXPECT_TRUE(GetFixupReferenceNames(form.get()).isEmpty());
}

TEST_F(FixupsTest, AReferenceToAnotherFormItselfIsThatForm) {
  MakeData();
  EXPECT_EQ(FData.get(), Load("object Form1: TSample\n  Partner = Data1\nend\n")->Partner);
}

TEST_F(FixupsTest, NestedComponentsAreFoundByPath) {
  MakeData();
  EXPECT_EQ(FData->FindComponent(u"Table1"), FindNestedComponent(FData.get(), u"Table1"));
  EXPECT_EQ(FData.get(), FindNestedComponent(FData.get(), u"Owner"));
  EXPECT_EQ(FData.get(), FindNestedComponent(FData.get(), u"data1"));
  EXPECT_EQ(nullptr, FindNestedComponent(FData.get(), u"Table1.Field1"));
}

}  // namespace
}  // namespace kt
