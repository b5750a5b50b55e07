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

TEST_F(FixupsTest, NestedComponentsAreFoundByPath) {
  MakeData();
  EXPECT_EQ(FData->FindComponent(u"Table1"), FindNestedComponent(FData.get(), u"Table1"));
  EXPECT_EQ(FData.get(), FindNestedComponent(FData.get(), u"Owner"));
  EXPECT_EQ(FData.get(), FindNestedComponent(FData.get(), u"data1"));
  EXPECT_EQ(nullptr, FindNestedComponent(FData.get(), u"Table1.Field1"));
}

}  // namespace
}  // namespace kt
