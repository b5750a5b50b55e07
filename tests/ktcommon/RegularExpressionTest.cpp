#include "kt/ktcommon/KTException.h"
#include "kt/ktcommon/RegularExpression.h"
#include "kt/rtl/objects/Make.h"
#include "support/Expect.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

/// "position+length" of the first match from `start` on.
std::string Found(const QString& expression, const QString& subject, int start = 1) {
  int length = -1;
  const int position = Make<TGRegularExpression>(expression)->Match(subject, start, length);
  return std::to_string(position) + "+" + std::to_string(length);
}

int Position(const QString& expression, const QString& subject) {
  return Make<TGRegularExpression>(expression)->Match(subject);
}

TEST(RegularExpressionTest, PositionsCountFromOne) {
  EXPECT_EQ(1, Position(QStringLiteral("ab"), QStringLiteral("abc")));
  EXPECT_EQ(3, Position(QStringLiteral("c"), QStringLiteral("abc")));
}

TEST(RegularExpressionTest, WithoutAMatchThePositionIsZero) { EXPECT_EQ("0+0", Found("x", "abc")); }

TEST(RegularExpressionTest, TheFirstMatchCounts) { EXPECT_EQ("2+3", Found("[0-9]+", "a123b45")); }

TEST(RegularExpressionTest, SearchesFromAPositionOn) {
  EXPECT_EQ("6+2", Found("[0-9]+", "a123b45", 5));
  EXPECT_EQ("4+1", Found("[0-9]+", "a123b45", 4));
}

TEST(RegularExpressionTest, TheEndOfTheTextIsAPlaceToSearch) { EXPECT_EQ("4+0", Found("$", "abc", 4)); }

TEST(RegularExpressionTest, NothingIsFoundFromOutsideTheText) {
  EXPECT_EQ("0+0", Found("$", "abc", 5));
  EXPECT_EQ("0+0", Found("a", "abc", 0));
}

TEST(RegularExpressionTest, AnEmptyExpressionMatchesAtTheStart) {
  EXPECT_EQ("1+0", Found("", "abc"));
  EXPECT_EQ("1+0", Found("", ""));
}

TEST(RegularExpressionTest, CaseMakesADifference) { EXPECT_EQ(0, Position("A", "a")); }

TEST(RegularExpressionTest, TheAnchorsStandForTheEndsOfALine) {
  EXPECT_EQ(2, Position(QStringLiteral("^[0-9]+$"), QStringLiteral("\n12\r")));
  EXPECT_EQ(0, Position(QStringLiteral("^[0-9]+$"), QStringLiteral("\n12x\r")));
}

TEST(RegularExpressionTest, ADotIsNoEndOfLine) {
  EXPECT_EQ(0, Position(QStringLiteral("."), QStringLiteral("\n\r")));
  EXPECT_EQ(2, Position(QStringLiteral("."), QStringLiteral("\na\r")));
}

TEST(RegularExpressionTest, LettersOfAllLanguagesAreSingleCharacters) {
  EXPECT_EQ("2+2", Found(QStringLiteral("[äöü]+"), QStringLiteral("xäüy")));
}

TEST(RegularExpressionTest, TheExpressionCanBeChanged) {
  const auto expression = Make<TGRegularExpression>(QStringLiteral("a"));
  expression->SetExpression(QStringLiteral("b"));
  EXPECT_EQ("b", expression->GetExpression());
  EXPECT_EQ(2, expression->Match(QStringLiteral("ab")));
}

TEST(RegularExpressionTest, IsMadeEmpty) { EXPECT_EQ("", Make<TGRegularExpression>()->GetExpression()); }

TEST(RegularExpressionTest, AnInvalidExpressionIsToldWhenItIsUsed) {
  const auto expression = Make<TGRegularExpression>(QStringLiteral("(a"));
  EXPECT_EQ("(a", expression->GetExpression());
  EXPECT_EQ("Invalid regular expression \"(a\": missing closing parenthesis",
            MessageOf<EKTException>([&] { expression->Match(QStringLiteral("a")); }));
}

TEST(RegularExpressionTest, AnExpressionThatTakesTooLongIsGivenUp) {
  const auto expression = Make<TGRegularExpression>(QStringLiteral("(a+)+(a+)+(a+)+$"));
  const QString subject = QString(200, u'a') + u'b';
  QElapsedTimer timer;
  timer.start();
  EXPECT_EQ("Regular expression \"(a+)+(a+)+(a+)+$\" takes too long",
            MessageOf<EKTException>([&] { expression->Match(subject); }));
  EXPECT_LT(timer.elapsed(), 10000);
}

}  // namespace
}  // namespace kt::tests
