// What an application is asked while a form is read, and what of a component is streamed without a property.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::TextOf;
using tests::TSample;

class TBetterSample : public TSample {
 public:
  using Inherited = TSample;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TBetterSample>("TBetterSample").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TBetterSample(TComponent* owner = nullptr) : TSample(owner) {}
};

class ReaderHooksTest : public ::testing::Test {
 protected:
  ReaderHooksTest() { RegisterClass(TSample::Class()); }
  ~ReaderHooksTest() override { UnRegisterClass(TSample::Class()); }
};

constexpr char kFormOfHooks[] = "object A: TSample\n  object B: TSample\n  end\nend\n";

TEST_F(ReaderHooksTest, TheApplicationIsAskedForEveryClass) {
  TReader reader(BinaryOf(kFormOfHooks));
  QStringList asked;
  reader.OnFindComponentClass = [&asked](const QString& name) -> const TClassInfo* {
    asked.append(name);
    return nullptr;
  };
  EXPECT_EQ(QStringLiteral("B"), reader.ReadRoot<TSample>()->GetComponents(0)->GetName());
  EXPECT_EQ((QStringList{QStringLiteral("TSample"), QStringLiteral("TSample")}), asked);
}

TEST_F(ReaderHooksTest, TheApplicationMayReplaceARegisteredClass) {
  TReader reader(BinaryOf(kFormOfHooks));
  reader.OnFindComponentClass = [](const QString&) { return TBetterSample::Class(); };
  EXPECT_EQ(TBetterSample::Class(), reader.ReadRoot<TSample>()->ClassType());
}

TEST_F(ReaderHooksTest, ThePlaceOnADesignersFormIsStreamed) {
  const char* const text =
      "object A: TSample\n  Small = 0\n  Color = 0\n  Items = <>\n  Left = -3\n  Top = 32767\n"
      "  object B: TSample\n    Small = 0\n    Color = 0\n    Items = <>\n    Top = 7\n  end\nend\n";
  TReader reader(BinaryOf(text));
  const auto form = reader.ReadRoot<TSample>();
  EXPECT_EQ(0x7FFFFFFD, form->GetDesignInfo());
  EXPECT_EQ(0x00070000, form->GetComponents(0)->GetDesignInfo());
  EXPECT_EQ(text, TextOf(form.get()));
}

TEST_F(ReaderHooksTest, TheNameOfAReferenceMayBeChanged) {
  TReader reader(BinaryOf("object A: TSample\n  Partner = X\n  object B: TSample\n  end\nend\n"));
  reader.OnReferenceName = [](QString& name) { name = name == u'X' ? QStringLiteral("B") : name; };
  const auto form = reader.ReadRoot<TSample>();
  EXPECT_EQ(form->GetComponents(0), form->Partner);
}

/// As a designer edits it.
class TDesignedSample : public TSample {
 public:
  using Inherited = TSample;

 protected:
  explicit TDesignedSample(TComponent* owner = nullptr) : TSample(owner) {}
  void Construct() override {
    TSample::Construct();
    SetDesignInstance(true);
  }
};

constexpr char kHandledForm[] =
    "object A: TSample\n  OnAction = Foo\n  object B: TSample\n    OnAction = Foo\n  end\nend\n";

TEST_F(ReaderHooksTest, HandlersOfADesignedFormAreKnownByTheirNames) {
  TReader reader(BinaryOf(kHandledForm));
  const auto form = Make<TDesignedSample>();
  reader.ReadRootComponent(form.get());
  form->OnAction(form.get());
  EXPECT_EQ("Foo", form->ClassType()->MethodName(form->OnAction).toStdString());
  EXPECT_EQ(form->OnAction, static_cast<TSample*>(form->GetComponents(0))->OnAction);
  EXPECT_NE(std::string::npos, TextOf(form.get()).find("  OnAction = Foo\n  object B: TSample\n"));
}

TEST_F(ReaderHooksTest, AnAnswerOfTheApplicationGoesBeforeTheName) {
  TReader reader(BinaryOf(kHandledForm));
  const auto form = Make<TDesignedSample>();
  int calls = 0;
  reader.OnFindMethod = [&calls](const QString&) -> TMethod { return TNotifyEvent([&calls](TObject*) { ++calls; }); };
  reader.ReadRootComponent(form.get());
  form->OnAction(form.get());
  EXPECT_EQ(1, calls);
}

TEST_F(ReaderHooksTest, ElsewhereAHandlerThatNobodyHasIsAnError) {
  TReader reader(BinaryOf(kHandledForm));
  EXPECT_THROW(reader.ReadRoot<TSample>(), EReadError);
}

}  // namespace
}  // namespace kt
