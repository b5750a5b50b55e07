#include "kt/rtl/conversions/Text.h"
#include "rtl/conversions/LocaleGuard.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(TextTest, TrimTakesBlanksAndControlCharacters) {
  EXPECT_EQ("a b", Trim(u" \t\r\n\u0001a b\u001f "));
  EXPECT_EQ("a ", TrimLeft(u" a "));
  EXPECT_EQ(" a", TrimRight(u" a "));
}

TEST(TextTest, TrimOfBlanksIsEmpty) {
  EXPECT_EQ("", Trim(u" \t "));
  EXPECT_EQ("", TrimLeft(u"  "));
  EXPECT_EQ("", TrimRight(u"  "));
  EXPECT_EQ("", Trim(u""));
}

TEST(TextTest, TrimKeepsANoBreakSpace) { EXPECT_EQ(QStringLiteral("\u00a0a"), Trim(u"\u00a0a ")); }

TEST(TextTest, UpperCaseChangesAsciiAlone) {
  EXPECT_EQ(QStringLiteral("AZ\u00e9{`"), UpperCase(u"az\u00e9{`"));
  EXPECT_EQ(QStringLiteral("az\u00c9[@"), LowerCase(u"AZ\u00c9[@"));
}

TEST(TextTest, AnsiUpperCaseChangesEveryLetter) {
  EXPECT_EQ(QStringLiteral("A\u00c9"), AnsiUpperCase(QStringLiteral("a\u00e9")));
  EXPECT_EQ(QStringLiteral("a\u00e9"), AnsiLowerCase(QStringLiteral("A\u00c9")));
}

TEST(TextTest, PosCountsFromOne) {
  EXPECT_EQ(1, Pos(u"a", u"abc"));
  EXPECT_EQ(3, AnsiPos(u"c", u"abc"));
  EXPECT_EQ(0, Pos(u"C", u"abc"));
  EXPECT_EQ(0, Pos(u"", u"abc"));
  EXPECT_EQ(0, Pos(u"a", u""));
}

TEST(TextTest, AnIdentifierStartsWithALetterOrUnderscore) {
  EXPECT_TRUE(IsValidIdent(u"Button1"));
  EXPECT_TRUE(IsValidIdent(u"_"));
  EXPECT_FALSE(IsValidIdent(u"1Button"));
  EXPECT_FALSE(IsValidIdent(u""));
  EXPECT_FALSE(IsValidIdent(u"a b"));
  EXPECT_FALSE(IsValidIdent(u"\u00e9"));
}

TEST(TextTest, AnIdentifierHasDotsOnlyWhereAllowed) {
  EXPECT_FALSE(IsValidIdent(u"Unit1.TForm"));
  EXPECT_TRUE(IsValidIdent(u"Unit1.TForm", drAllowDots));
  EXPECT_FALSE(IsValidIdent(u".a", drAllowDots));
  EXPECT_FALSE(IsValidIdent(u"a.", drAllowDots));
  EXPECT_FALSE(IsValidIdent(u"a..b", drAllowDots));
  EXPECT_FALSE(IsValidIdent(u"a.1", drAllowDots));
}

TEST(TextTest, QuotingDoublesTheQuotesInside) {
  EXPECT_EQ("'it''s'", QuotedStr(u"it's"));
  EXPECT_EQ("\"a\"\"\"", AnsiQuotedStr(u"a\"", u'"'));
  EXPECT_EQ("''", QuotedStr(u""));
}

TEST(TextTest, ExtractingLeavesTheRest) {
  QStringView source = u"\"a\"\"b\",c";
  EXPECT_EQ("a\"b", AnsiExtractQuotedStr(source, u'"'));
  EXPECT_EQ(QStringView(u",c"), source);
}

TEST(TextTest, ExtractingWithoutAnOpeningQuoteTakesNothing) {
  QStringView source = u"abc";
  EXPECT_EQ("", AnsiExtractQuotedStr(source, u'"'));
  EXPECT_EQ(QStringView(u"abc"), source);
}

TEST(TextTest, ExtractingWithoutAClosingQuoteTakesEverything) {
  QStringView source = u"\"abc";
  EXPECT_EQ("abc", AnsiExtractQuotedStr(source, u'"'));
  EXPECT_TRUE(source.isEmpty());
}

TEST(TextTest, DequotingUndoesQuoting) { EXPECT_EQ("it's", AnsiDequotedStr(QuotedStr(u"it's"), u'\'')); }

TEST(TextTest, DequotingLeavesWhatIsNotQuoted) {
  EXPECT_EQ("abc", AnsiDequotedStr(u"abc", u'\''));
  EXPECT_EQ("'abc", AnsiDequotedStr(u"'abc", u'\''));
  EXPECT_EQ("'", AnsiDequotedStr(u"'", u'\''));
  EXPECT_EQ("", AnsiDequotedStr(u"", u'\''));
}

TEST(TextTest, LineBreaksBecomeOneStyle) {
  EXPECT_EQ("a\r\nb\r\nc\r\n\r\n", AdjustLineBreaks(u"a\nb\rc\r\n\r"));
  EXPECT_EQ("a\nb\nc\n\n", AdjustLineBreaks(u"a\nb\rc\r\n\r", tlbsLF));
}

}  // namespace
}  // namespace kt
