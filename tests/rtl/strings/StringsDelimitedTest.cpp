#include "rtl/strings/StringsFixture.h"

namespace kt::tests {
namespace {

std::string CommaTextOf(const QStringList& lines) { return NewList(lines)->GetCommaText().toStdString(); }

std::string LinesOf(const QString& commaText) {
  auto list = NewList({"old"});
  list->SetCommaText(commaText);
  return Lines(*list);
}

std::unique_ptr<TStringList> NewStrictList(const QStringList& lines = {}) {
  auto list = NewList(lines);
  list->SetStrictDelimiter(true);
  return list;
}

std::string StrictLinesOf(const QString& text) {
  auto list = NewStrictList();
  list->SetDelimitedText(text);
  return Lines(*list);
}

TEST(StringsDelimitedTest, CommasStandBetweenLines) { EXPECT_EQ("a,b,c", CommaTextOf({"a", "b", "c"})); }

TEST(StringsDelimitedTest, LinesWithSpecialCharactersAreQuoted) {
  EXPECT_EQ("\"a b\",\"c,d\",\"e\tf\"", CommaTextOf({"a b", "c,d", "e\tf"}));
}

TEST(StringsDelimitedTest, QuotesAreDoubled) { EXPECT_EQ("\"a\"\"b\",\"\"\"\"", CommaTextOf({"a\"b", "\""})); }

TEST(StringsDelimitedTest, ANoBreakSpaceNeedsNoQuotes) { EXPECT_EQ("a\u00a0b", CommaTextOf({"a\u00a0b"})); }

TEST(StringsDelimitedTest, EmptyLinesShowByTheirCommas) {
  EXPECT_EQ("a,,b,", CommaTextOf({"a", "", "b", ""}));
  EXPECT_EQ(",", CommaTextOf({"", ""}));
}

TEST(StringsDelimitedTest, OneEmptyLineIsTwoQuotesAndNoLineIsNothing) {
  EXPECT_EQ("\"\"", CommaTextOf({""}));
  EXPECT_EQ("", CommaTextOf({}));
}

TEST(StringsDelimitedTest, CommasAndBlanksSeparateLines) {
  EXPECT_EQ("a | b | c | d", LinesOf("a,b c\td"));
  EXPECT_EQ("a | b", LinesOf("  a  ,  b  "));
}

TEST(StringsDelimitedTest, QuotedLinesKeepTheirSpecialCharacters) {
  EXPECT_EQ("a b | c,d | e\"f", LinesOf("\"a b\", \"c,d\" \"e\"\"f\""));
}

TEST(StringsDelimitedTest, AQuoteWithinAWordIsACharacter) { EXPECT_EQ("a\"b | c", LinesOf("a\"b,c")); }

TEST(StringsDelimitedTest, WhatFollowsAQuotedLineIsALineOfItsOwn) { EXPECT_EQ("a | b | c", LinesOf("\"a\"b,c")); }

TEST(StringsDelimitedTest, AnUnfinishedQuotedLineTakesTheRest) { EXPECT_EQ("a | b,c", LinesOf("a,\"b,c")); }

TEST(StringsDelimitedTest, CommasInARowMakeEmptyLines) { EXPECT_EQ(" | a |  | b", LinesOf(",a,,b")); }

TEST(StringsDelimitedTest, ACommaAtTheVeryEndMakesAnEmptyLine) { EXPECT_EQ("a | ", LinesOf("a,")); }

// Only the last character counts; so it is with the framework's lists.
TEST(StringsDelimitedTest, ACommaAndABlankAtTheEndMakeNoEmptyLine) { EXPECT_EQ("a", LinesOf("a, ")); }

TEST(StringsDelimitedTest, ACommaAloneIsTwoEmptyLines) {
  auto list = NewList();
  list->SetCommaText(",");
  EXPECT_EQ(2, list->GetCount());
}

TEST(StringsDelimitedTest, AnEmptyOrBlankTextGivesNoLine) {
  auto list = NewList({"a"});
  list->SetCommaText("");
  EXPECT_EQ(0, list->GetCount());
  list->SetCommaText(" \t ");
  EXPECT_EQ(0, list->GetCount());
}

TEST(StringsDelimitedTest, TwoQuotesGiveOneEmptyLine) {
  auto list = NewList();
  list->SetCommaText("\"\"");
  EXPECT_EQ(1, list->GetCount());
  EXPECT_EQ("", list->GetStrings(0));
}

TEST(StringsDelimitedTest, TheTextEndsAtANulCharacter) {
  EXPECT_EQ("a | b", LinesOf(QString::fromUtf16(u"a,b\0,c", 6)));
}

TEST(StringsDelimitedTest, SettingIsOneChange) {
  auto list = NewList({"x"});
  TEventLog log(*list);
  list->SetCommaText("a,b");
  EXPECT_EQ("changing(x) changed(a | b)", log.Take());
}

TEST(StringsDelimitedTest, DelimiterAndQuoteCharCanBeChosen) {
  auto list = NewList({"a,b", "c;d", "e'f"});
  list->SetDelimiter(u';');
  list->SetQuoteChar(u'\'');
  EXPECT_EQ("a,b;'c;d';'e''f'", list->GetDelimitedText());
  list->SetDelimitedText("'x;y';z \"w");
  EXPECT_EQ("x;y | z | \"w", Lines(*list));
}

TEST(StringsDelimitedTest, ReadingCommaTextKeepsTheSettings) {
  auto list = NewList({"a", "b"});
  list->SetDelimiter(u';');
  list->SetQuoteChar(u'\'');
  EXPECT_EQ("a,b", list->GetCommaText());
  EXPECT_EQ("a;b", list->GetDelimitedText());
}

TEST(StringsDelimitedTest, SettingCommaTextMakesTheDelimiterAComma) {
  auto list = NewList();
  list->SetDelimiter(u';');
  list->SetQuoteChar(u'\'');
  list->SetCommaText("\"a;b\",c");
  EXPECT_EQ("a;b | c", Lines(*list));
  EXPECT_EQ(u',', list->GetDelimiter());
  EXPECT_EQ(u'"', list->GetQuoteChar());
}

TEST(StringsDelimitedTest, ABlankCanBeTheDelimiter) {
  auto list = NewList({"a", "b c"});
  list->SetDelimiter(u' ');
  EXPECT_EQ("a \"b c\"", list->GetDelimitedText());
  list->SetDelimitedText("x  y \"z w\"");
  EXPECT_EQ("x | y | z w", Lines(*list));
}

TEST(StringsDelimitedTest, WithoutAQuoteCharNothingIsQuoted) {
  auto list = NewList({"a b", "\"c"});
  list->SetQuoteChar(QChar(0));
  EXPECT_EQ("a b,\"c", list->GetDelimitedText());
  list->SetDelimitedText("\"x y\"");
  EXPECT_EQ("\"x | y\"", Lines(*list));
}

TEST(StringsDelimitedTest, WithoutAQuoteCharOneEmptyLineGivesNoText) {
  auto list = NewList({""});
  list->SetQuoteChar(QChar(0));
  EXPECT_EQ("", list->GetDelimitedText());
}

TEST(StringsDelimitedTest, AStrictDelimiterLeavesBlanksAlone) {
  EXPECT_EQ(" a b | c ", StrictLinesOf(" a b,c "));
  EXPECT_EQ("a |  ", StrictLinesOf("a, "));
  EXPECT_EQ("a,b", NewStrictList({"a", "b"})->GetDelimitedText());
  EXPECT_EQ("a b,\"c,d\"", NewStrictList({"a b", "c,d"})->GetDelimitedText());
}

TEST(StringsDelimitedTest, AStrictDelimiterStillKnowsQuotes) {
  EXPECT_EQ("a,b | c", StrictLinesOf("\"a,b\",c"));
  EXPECT_EQ(" \"a | b\"", StrictLinesOf(" \"a,b\""));
}

TEST(StringsDelimitedTest, TheTextHoldsTheLinesThatReadingLeaves) {
  EXPECT_EQ("a,x,x", NewFilling(3, {"a"})->GetDelimitedText());
  EXPECT_EQ("a", NewFilling(1, {"a", "b", "c"})->GetDelimitedText());
  EXPECT_EQ("a", NewFilling(1, {"a", "b", "c"})->GetCommaText());
}

TEST(StringsDelimitedTest, AStrictDelimiterHoldsForCommaTextToo) {
  auto list = NewStrictList();
  list->SetCommaText("a b,c");
  EXPECT_EQ("a b | c", Lines(*list));
}

class StringsDelimitedRoundTripTest : public testing::TestWithParam<QStringList> {};

TEST_P(StringsDelimitedRoundTripTest, TheLinesComeBack) {
  auto list = NewList(GetParam());
  auto copy = NewList();
  copy->SetCommaText(list->GetCommaText());
  EXPECT_EQ(Lines(*list), Lines(*copy));
  EXPECT_EQ(list->GetCount(), copy->GetCount());
}

INSTANTIATE_TEST_SUITE_P(StringsDelimitedTest, StringsDelimitedRoundTripTest,
                         testing::Values(QStringList{}, QStringList{""}, QStringList{"", ""}, QStringList{"a", ""},
                                         QStringList{"", "a"}, QStringList{" "}, QStringList{" a", "b "},
                                         QStringList{"\"", "\"\""}, QStringList{",", "\",\""}, QStringList{"a\r\nb"},
                                         QStringList{"\u00e9 \U0001f600", "'x'"}));

}  // namespace
}  // namespace kt::tests
