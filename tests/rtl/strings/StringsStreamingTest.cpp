// A string list as a property of a component: to a form file and back.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "rtl/strings/StringsFixture.h"
#include "support/FormText.h"

namespace kt::tests {
namespace {

/// A component with a published list of lines.
class TLined : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  TStrings& GetLines() { return *FLines; }
  void SetLines(TStrings* value) { FLines->Assign(value); }
  TStringList& List() { return *FLines; }

 protected:
  explicit TLined(TComponent* owner = nullptr) : TComponent(owner) {}
  void Construct() override {
    FLines = NewList();
    TComponent::Construct();
  }

 private:
  std::unique_ptr<TStringList> FLines;
};

const TClassInfo* TLined::Class() {
  static const TClassInfo info =
      TClassBuilder<TLined>("TLined").Property<&TLined::GetLines, &TLined::SetLines>("Lines").Creatable().Done();
  return &info;
}

class StringsStreamingTest : public ::testing::Test {
 protected:
  StringsStreamingTest() { RegisterClass(TLined::Class()); }
  ~StringsStreamingTest() override { UnRegisterClass(TLined::Class()); }

  static std::unique_ptr<TLined> NewLined(const QStringList& lines) {
    auto lined = Make<TLined>();
    lined->SetName(QStringLiteral("Form1"));
    for (const QString& line : lines) lined->GetLines().Add(line);
    return lined;
  }

  static std::string TextOver(TLined* lined, TLined* ancestor) {
    TWriter writer;
    writer.WriteRootComponent(lined, ancestor);
    return TextOf(writer.Data());
  }
};

TEST_F(StringsStreamingTest, TheLinesAreWrittenAsOneListOfStrings) {
  EXPECT_EQ(
      "object Form1: TLined\n"
      "  Lines.Strings = (\n"
      "    'one'\n"
      "    ''\n"
      "    'two three')\n"
      "end\n",
      TextOf(NewLined({"one", "", "two three"}).get()));
}

TEST_F(StringsStreamingTest, TheLinesComeBack) {
  const auto original = NewLined({"one", "", " a ", "two\r\nlines", "\u00e9\U0001f600"});
  TReader reader(WriteComponentToBinary(original.get()));
  const auto copy = reader.ReadRoot<TLined>();
  EXPECT_EQ(5, copy->GetLines().GetCount());
  EXPECT_EQ(Lines(original->GetLines()), Lines(copy->GetLines()));
}

TEST_F(StringsStreamingTest, AnEmptyListIsNotWritten) {
  EXPECT_EQ(
      "object Form1: TLined\n"
      "end\n",
      TextOf(NewLined({}).get()));
}

TEST_F(StringsStreamingTest, TheLinesOfTheAncestorAreNotWritten) {
  EXPECT_EQ(
      "inherited Form1: TLined\n"
      "end\n",
      TextOver(NewLined({"one", "two"}).get(), NewLined({"one", "two"}).get()));
}

TEST_F(StringsStreamingTest, OneLineUnlikeTheAncestorsWritesThemAll) {
  EXPECT_EQ(
      "inherited Form1: TLined\n"
      "  Lines.Strings = (\n"
      "    'one'\n"
      "    'TWO')\n"
      "end\n",
      TextOver(NewLined({"one", "TWO"}).get(), NewLined({"one", "two"}).get()));
}

TEST_F(StringsStreamingTest, AListThatIsEmptyUnlikeTheAncestorsIsWrittenEmpty) {
  EXPECT_EQ(
      "inherited Form1: TLined\n"
      "  Lines.Strings = ()\n"
      "end\n",
      TextOver(NewLined({}).get(), NewLined({"one"}).get()));
}

TEST_F(StringsStreamingTest, ReadingReplacesTheLinesAndTellsOnce) {
  const auto lined = NewLined({"old"});
  TEventLog log(lined->List());
  TReader reader(
      BinaryOf("inherited Form1: TLined\n"
               "  Lines.Strings = ('a' 'b')\n"
               "end\n"));
  reader.ReadRootComponent(lined.get());
  EXPECT_EQ("changing(old) changed(a | b)", log.Take());
}

TEST_F(StringsStreamingTest, AnEmptyListThatIsReadEmptiesTheLines) {
  const auto lined = NewLined({"old"});
  TReader reader(
      BinaryOf("inherited Form1: TLined\n"
               "  Lines.Strings = ()\n"
               "end\n"));
  reader.ReadRootComponent(lined.get());
  EXPECT_EQ(0, lined->GetLines().GetCount());
}

}  // namespace
}  // namespace kt::tests
