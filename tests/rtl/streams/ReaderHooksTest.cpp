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

constexpr char kForm[] = "object A: TSample\n  object B: TSample\n  end\nend\n";

TEST_F(ReaderHooksTest, TheApplicationIsAskedForEveryClass) {
  TReader reader(BinaryOf(kForm));
  QStringList asked;
  reader.OnFindComponentClass = [&asked](const QString& name) -> const TClassInfo* {
    asked.append(name);
    return nullptr;
  };
  EXPECT_EQ(QStringLiteral("B"), reader.ReadRoot<TSample>()->GetComponents(0)->GetName());
  EXPECT_EQ((QStringList{QStringLiteral("TSample"), QStringLiteral("TSample")}), asked);
}

TEST_F(ReaderHooksTest, TheApplicationMayReplaceARegisteredClass) {
  TReader reader(BinaryOf(kForm));
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

}  // namespace
}  // namespace kt
