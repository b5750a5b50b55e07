#include "rtl/strings/StringsFixture.h"

namespace kt::tests {
namespace {

std::string LinesOfText(const QString& text, const QString& lineBreak = "\r\n") {
  auto list = NewList();
  list->SetLineBreak(lineBreak);
  list->SetText(text);
  return Lines(*list);
}

TEST(StringsTextTest, EachLineIsEndedByCrLf) { EXPECT_EQ("a\r\n\r\nb\r\n", NewList({"a", "", "b"})->GetText()); }

TEST(StringsTextTest, NoLineGivesNoText) { EXPECT_EQ("", NewList()->GetText()); }

TEST(StringsTextTest, OneEmptyLineGivesOneLineBreak) { EXPECT_EQ("\r\n", NewList({""})->GetText()); }

TEST(StringsTextTest, CrLfAndBothEndALine) { EXPECT_EQ("a | b | c | d", LinesOfText("a\rb\nc\r\nd")); }

TEST(StringsTextTest, LfAndThenCrAreTwoEnds) { EXPECT_EQ("a |  | b", LinesOfText("a\n\rb")); }

TEST(StringsTextTest, ALineBreakAtTheEndMakesNoFurtherLine) {
  EXPECT_EQ("a | b", LinesOfText("a\r\nb\r\n"));
  EXPECT_EQ("a | b", LinesOfText("a\r\nb"));
}

TEST(StringsTextTest, EmptyLinesAreKept) { EXPECT_EQ(" | a |  | ", LinesOfText("\na\n\n\n")); }

TEST(StringsTextTest, AnEmptyTextGivesNoLine) {
  auto list = NewList({"a"});
  list->SetText("");
  EXPECT_EQ(0, list->GetCount());
}

TEST(StringsTextTest, TheTextEndsAtANulCharacter) {
  EXPECT_EQ("a | b", LinesOfText(QString::fromUtf16(u"a\nb\0c\nd", 7)));
  EXPECT_EQ("a", LinesOfText(QString::fromUtf16(u"a\r\n\0b", 5)));
}

TEST(StringsTextTest, SettingReplacesTheLinesAndTheirObjects) {
  auto list = NewList({"a", "b"});
  list->SetObjects(0, list.get());
  list->SetText("c");
  EXPECT_EQ("c", Lines(*list));
  EXPECT_EQ(nullptr, list->GetObjects(0));
}

TEST(StringsTextTest, SettingIsOneChange) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  list->SetText("b\nc\n");
  EXPECT_EQ("changing(a) changed(b | c)", log.Take());
}

TEST(StringsTextTest, ASortedListSortsWhatIsRead) {
  auto list = NewSortedList({});
  list->SetText("b\na\nb\n");
  EXPECT_EQ("a | b", Lines(*list));
}

TEST(StringsTextTest, AnotherLineBreakEndsEachLine) {
  auto list = NewList({"a", "b"});
  list->SetLineBreak("; ");
  EXPECT_EQ("a; b; ", list->GetText());
}

TEST(StringsTextTest, AnotherLineBreakIsTheOnlyOneWhenReading) {
  EXPECT_EQ("a\r | b\rc", LinesOfText("a\r\nb\rc", "\n"));
  EXPECT_EQ("a\nb |  | c", LinesOfText("a\nb<>"
                                       "<>c<>",
                                       "<>"));
}

TEST(StringsTextTest, AnEmptyLineBreakMakesTheWholeTextOneLine) { EXPECT_EQ("a\r\nb", LinesOfText("a\r\nb", "")); }

TEST(StringsTextTest, ATextSetFromTheListsOwnLineIsSafe) {
  auto list = NewList({"a\nb"});
  list->SetText(list->GetStrings(0));
  EXPECT_EQ("a | b", Lines(*list));
}

TEST(StringsTextTest, HoldsTheLinesThatReadingLeaves) {
  EXPECT_EQ("a\r\nx\r\nx\r\n", NewFilling(3, {"a"})->GetText());
  EXPECT_EQ("a\r\n", NewFilling(1, {"a", "b", "c"})->GetText());
}

TEST(StringsTextTest, ComesBackAsItWas) {
  auto list = NewList({"", " a ", "\u00e9\U0001f600", "", "tab\there", ""});
  auto copy = NewList();
  copy->SetText(list->GetText());
  EXPECT_TRUE(copy->Equals(*list));
}

}  // namespace
}  // namespace kt::tests
