#include "kt/rtl/conversions/TextCompare.h"
#include "rtl/conversions/LocaleGuard.h"

#include <QCollator>

#include <gtest/gtest.h>
#include <random>

namespace kt {
namespace {

int Sign(int value) { return (value > 0) - (value < 0); }

TEST(TextCompareTest, CompareStrIsOrdinal) {
  EXPECT_LT(CompareStr(u"B", u"a"), 0);
  EXPECT_GT(CompareStr(u"ab", u"a"), 0);
  EXPECT_EQ(0, CompareStr(u"a", u"a"));
  EXPECT_NE(0, CompareStr(u"a", u"A"));
}

TEST(TextCompareTest, CompareTextIgnoresTheCaseOfAsciiLetters) {
  EXPECT_EQ(0, CompareText(u"Caption", u"cAPTION"));
  EXPECT_LT(CompareText(u"a", u"B"), 0);
  EXPECT_GT(CompareText(u"b", u"A"), 0);
}

TEST(TextCompareTest, CompareTextKeepsTheCaseOfOtherLetters) { EXPECT_NE(0, CompareText(u"\u00e9", u"\u00c9")); }

TEST(TextCompareTest, CompareTextFoldsToUpperCaseSoThatAnUnderscoreFollowsLetters) {
  EXPECT_LT(CompareText(u"z", u"_"), 0);
}

TEST(TextCompareTest, AShorterTextComesFirst) {
  EXPECT_LT(CompareText(u"ab", u"abc"), 0);
  EXPECT_GT(CompareText(u"a", u""), 0);
  EXPECT_EQ(0, CompareText(u"", u""));
}

TEST(TextCompareTest, SameTextNeedsTheSameLength) {
  EXPECT_TRUE(SameText(u"TButton", u"tbutton"));
  EXPECT_FALSE(SameText(u"TButton", u"tbutton1"));
}

TEST(TextCompareTest, TheInvariantLocaleIsOrdinalForStr) {
  const TLocaleGuard guard{QLocale::c()};
  EXPECT_LT(AnsiCompareStr(u"B", u"a"), 0);
}

TEST(TextCompareTest, TheInvariantLocaleIgnoresCaseOfEveryLetterForText) {
  const TLocaleGuard guard{QLocale::c()};
  EXPECT_EQ(0, AnsiCompareText(u"\u00e9A", u"\u00c9a"));
  EXPECT_LT(AnsiCompareText(u"a", u"B"), 0);
}

TEST(TextCompareTest, LettersComeInDictionaryOrderInALanguage) {
  const TLocaleGuard guard{QLocale(QLocale::English)};
  EXPECT_LT(AnsiCompareStr(u"a", u"B"), 0);
  EXPECT_LT(AnsiCompareStr(u"a", u"A"), 0);
  EXPECT_LT(AnsiCompareStr(u"A", u"ab"), 0);
  EXPECT_LT(AnsiCompareStr(u"e", u"\u00e9"), 0);
  EXPECT_LT(AnsiCompareStr(u"\u00e9", u"f"), 0);
}

TEST(TextCompareTest, CaseDecidesOnlyWhenNothingElseDoes) {
  const TLocaleGuard guard{QLocale(QLocale::English)};
  EXPECT_LT(AnsiCompareStr(u"Aa", u"aB"), 0);
  EXPECT_GT(AnsiCompareStr(u"AB", u"aB"), 0);
}

TEST(TextCompareTest, CaseDoesNotMatterForText) {
  const TLocaleGuard guard{QLocale(QLocale::English)};
  EXPECT_TRUE(AnsiSameText(u"\u00c9cole", u"\u00e9COLE"));
  EXPECT_FALSE(AnsiSameStr(u"\u00c9cole", u"\u00e9COLE"));
  EXPECT_TRUE(AnsiSameStr(u"\u00e9", u"\u00e9"));
}

TEST(TextCompareTest, AnAccentBehindTheDecidingLetterIsSeen) {
  const TLocaleGuard guard{QLocale(QLocale::Spanish)};
  EXPECT_GT(AnsiCompareText(u"n\u0303", u"nz"), 0);
  EXPECT_LT(AnsiCompareText(u"n\u0303", u"o"), 0);
}

TEST(TextCompareTest, ContractionsOfALanguageAreKept) {
  const TLocaleGuard guard{QLocale(QLocale::Czech)};
  EXPECT_GT(AnsiCompareText(u"chata", u"cz"), 0);
}

TEST(TextCompareTest, ANewLocaleIsUsedAtOnce) {
  const TLocaleGuard english{QLocale(QLocale::English)};
  EXPECT_LT(AnsiCompareText(u"chata", u"cz"), 0);
  const TLocaleGuard czech{QLocale(QLocale::Czech)};
  EXPECT_GT(AnsiCompareText(u"chata", u"cz"), 0);
}

/// Random texts of few characters: most are plain, some hold accents, control characters and letters beyond ASCII.
QString RandomText(std::mt19937& random) {
  static const QString alphabet = QStringLiteral(
      "aAbBcCnNoOzZ019 -_'.,!?/\\()[]{}<>=+*&%$#@^`~|;:\"\u00e9\u0301\u0303\u00f1\u00b7\u0001\t\u00df\u4e00");
  const std::size_t limit = random() % 4 == 0 ? static_cast<std::size_t>(alphabet.size()) : 50;
  QString result;
  for (std::size_t count = random() % 6; count > 0; --count)
    result += alphabet.at(static_cast<qsizetype>(random() % limit));
  return result;
}

class TextCompareLanguageTest : public ::testing::TestWithParam<QLocale::Language> {
 protected:
  /// The first pair on which the comparison and the collator disagree.
  static QString FirstDifference(const QLocale& locale, Qt::CaseSensitivity sensitivity) {
    QCollator collator(locale);
    collator.setCaseSensitivity(sensitivity);
    std::mt19937 random(20060101);
    for (int i = 0; i < 30000; ++i) {
      const QString a = RandomText(random);
      const QString b = RandomText(random);
      const int ours = sensitivity == Qt::CaseSensitive ? AnsiCompareStr(a, b) : AnsiCompareText(a, b);
      if (Sign(ours) != Sign(collator.compare(a, b))) return a + QStringLiteral(" | ") + b;
    }
    return QString();
  }
};

TEST_P(TextCompareLanguageTest, AgreesWithTheCollatorOnRandomTexts) {
  const QLocale locale(GetParam());
  const TLocaleGuard guard{locale};
  EXPECT_EQ(QString(), FirstDifference(locale, Qt::CaseSensitive));
  EXPECT_EQ(QString(), FirstDifference(locale, Qt::CaseInsensitive));
}

INSTANTIATE_TEST_SUITE_P(TextCompareTest, TextCompareLanguageTest,
                         ::testing::Values(QLocale::C, QLocale::English, QLocale::German, QLocale::French,
                                           QLocale::Italian, QLocale::Dutch, QLocale::Spanish, QLocale::Portuguese,
                                           QLocale::Czech, QLocale::Danish, QLocale::Hungarian));

}  // namespace
}  // namespace kt
