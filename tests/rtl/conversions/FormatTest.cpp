#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"

#include <gtest/gtest.h>
#include <limits>

namespace kt {
namespace {

QString ErrorOf(QAnyStringView format, std::initializer_list<TVarRec> args) {
  try {
    Format(format, args);
  } catch (const EConvertError& error) {
    return error.Message();
  }
  return QStringLiteral("no error");
}

TEST(FormatTest, ATextWithoutPlaceholdersStaysAsItIs) { EXPECT_EQ("abc", Format("abc")); }

TEST(FormatTest, AnEmptyTextStaysEmpty) { EXPECT_EQ("", Format("")); }

TEST(FormatTest, TwoPercentSignsMakeOne) { EXPECT_EQ("50% a%b", Format("%d%% a%%b", {50})); }

TEST(FormatTest, MessageConstantsAndStringsAreFormats) {
  EXPECT_EQ("List index out of bounds (7)", Format(SListIndexError, {7}));
  EXPECT_EQ("<x>", Format(QStringLiteral("<%s>"), {QStringLiteral("x")}));
}

TEST(FormatTest, EveryKindOfTextFitsS) {
  const QString text = QStringLiteral("string");
  EXPECT_EQ("string view latin lit\u00e9ral c d",
            Format("%s %s %s %s %s %s",
                   {text, QStringView(u"view"), QLatin1StringView("latin"), "lit\u00e9ral", 'c', QChar(u'd')}));
}

TEST(FormatTest, EveryIntegerFitsD) {
  EXPECT_EQ("-1 -2 3 4 -5 6", Format("%d %d %d %d %d %d", {short{-1}, -2, 3U, quint8{4}, qint64{-5}, quint64{6}}));
}

TEST(FormatTest, TheLowestAndHighestIntegersAreExact) {
  EXPECT_EQ("-2147483648 2147483647",
            Format("%d %d", {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}));
  EXPECT_EQ("-9223372036854775808 9223372036854775807",
            Format("%d %d", {std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()}));
  EXPECT_EQ("18446744073709551615", Format("%d", {std::numeric_limits<quint64>::max()}));
}

TEST(FormatTest, PrecisionPadsIntegersWithZerosAfterTheSign) {
  EXPECT_EQ("007 -007 00FF", Format("%.3d %.3d %.4x", {7, -7, 255}));
}

TEST(FormatTest, WidthPadsWithBlanksOnTheLeft) { EXPECT_EQ("[    7][   ab]", Format("[%5d][%5s]", {7, "ab"})); }

TEST(FormatTest, AMinusSignAlignsToTheLeft) { EXPECT_EQ("[7    ][ab   ]", Format("[%-5d][%-5s]", {7, "ab"})); }

TEST(FormatTest, AWidthThatIsTooSmallCutsNothing) { EXPECT_EQ("abcdef", Format("%3s", {"abcdef"})); }

TEST(FormatTest, PrecisionTruncatesTexts) { EXPECT_EQ("[   ab][]", Format("[%5.2s][%.0s]", {"abcd", "abcd"})); }

TEST(FormatTest, TypesAreCaseInsensitive) { EXPECT_EQ("7 FF ab 1.50", Format("%D %X %S %F", {7, 255, "ab", 1.5})); }

TEST(FormatTest, UnsignedShowsTheBitsOfANegativeNumber) {
  EXPECT_EQ("4294967295", Format("%u", {-1}));
  EXPECT_EQ("18446744073709551615", Format("%u", {qint64{-1}}));
}

TEST(FormatTest, HexadecimalShowsTheBitsOfANegativeNumber) {
  EXPECT_EQ("FFFFFFFF", Format("%x", {-1}));
  EXPECT_EQ("FFFFFFFFFFFFFFFE", Format("%x", {qint64{-2}}));
}

TEST(FormatTest, AStarTakesWidthAndPrecisionFromTheArguments) {
  EXPECT_EQ("[    1.500]", Format("[%*.*f]", {9, 3, 1.5}));
}

TEST(FormatTest, AnIndexChoosesItsArgument) { EXPECT_EQ("b a", Format("%1:s %0:s", {"a", "b"})); }

TEST(FormatTest, PlaceholdersAfterAnIndexGoOnFromThere) { EXPECT_EQ("10 20 10 20", Format("%d %d %0:d %d", {10, 20})); }

TEST(FormatTest, IndexAlignmentWidthAndPrecisionCombine) { EXPECT_EQ("[ab   ]", Format("[%1:-5.2s]", {"x", "abcd"})); }

TEST(FormatTest, FixedHasTwoDecimalsUnlessToldOtherwise) {
  EXPECT_EQ("3.14 3.1416 3", Format("%f %.4f %.0f", {3.14159265, 3.14159265, 3.14159265}));
}

TEST(FormatTest, FixedRoundsHalvesAwayFromZero) { EXPECT_EQ("0.13 -0.13", Format("%f %f", {0.125, -0.125})); }

TEST(FormatTest, ANegativeNumberThatRoundsToZeroHasNoSign) { EXPECT_EQ("0.00", Format("%f", {-0.001})); }

TEST(FormatTest, ScientificHasFifteenDigitsAndThreeOfExponent) {
  EXPECT_EQ("1.23450000000000E+003", Format("%e", {1234.5}));
  EXPECT_EQ("-1.23E-003", Format("%.3e", {-0.00123}));
}

TEST(FormatTest, GeneralIsTheShortestText) { EXPECT_EQ("1234.5 0.1 1E020", Format("%g %g %g", {1234.5, 0.1, 1e20})); }

TEST(FormatTest, NumberHasThousandSeparators) {
  EXPECT_EQ("1,234,567.89 -123.0", Format("%n %.1n", {1234567.89, -123.0}));
}

TEST(FormatTest, MoneyFollowsTheSettings) {
  TFormatSettings settings;
  settings.CurrencyString = QStringLiteral("$");
  settings.CurrencyFormat = 0;
  settings.NegCurrFormat = 0;
  EXPECT_EQ("$1,234.50 ($1.00)", Format("%m %m", {1234.5, -1.0}, settings));
}

TEST(FormatTest, SeparatorsFollowTheSettings) {
  EXPECT_EQ("1.234,50", Format("%n", {1234.5}, TFormatSettings(QLocale(QLocale::German))));
}

TEST(FormatTest, CurrencyIsExact) {
  EXPECT_EQ("922,337,203,685,477.5807", Format("%.4n", {Currency::FromScaled(std::numeric_limits<qint64>::max())}));
}

TEST(FormatTest, APointerHasAllItsDigits) {
  const QString text = Format("%p", {reinterpret_cast<const void*>(quintptr{0xabc})});
  EXPECT_EQ(QStringLiteral("ABC").rightJustified(2 * sizeof(void*), u'0'), text);
}

TEST(FormatTest, AMissingArgumentIsAnError) {
  EXPECT_EQ("No argument for format '%s and %s'", ErrorOf("%s and %s", {"one"}));
  EXPECT_EQ("No argument for format '%3:d'", ErrorOf("%3:d", {1, 2, 3}));
  EXPECT_EQ("No argument for format '%*d'", ErrorOf("%*d", {5}));
}

TEST(FormatTest, AnErrorQuotesThirtyOneCharacters) {
  EXPECT_EQ("No argument for format '%s34567890123456789012345678901'",
            ErrorOf("%s34567890123456789012345678901234", {}));
}

TEST(FormatTest, AnErrorNeverCutsASurrogatePair) {
  const QString start = QStringLiteral("%s3456789012345678901234567890");
  EXPECT_EQ("No argument for format '" + start + "'",
            ErrorOf(QString(start + QStringLiteral("\U0001F600 and more")), {}));
}

struct TMismatch {
  const char* Text;
  TVarRec Arg;
};

class FormatMismatchTest : public ::testing::TestWithParam<TMismatch> {};

TEST_P(FormatMismatchTest, IsAnError) {
  EXPECT_EQ(QStringLiteral("Format '") + GetParam().Text + QStringLiteral("' invalid or incompatible with argument"),
            ErrorOf(GetParam().Text, {GetParam().Arg}));
}

INSTANTIATE_TEST_SUITE_P(FormatTest, FormatMismatchTest,
                         ::testing::Values(TMismatch{"%d", "text"}, TMismatch{"%d", 1.5}, TMismatch{"%x", 'c'},
                                           TMismatch{"%u", true}, TMismatch{"%s", 1}, TMismatch{"%s", 1.5},
                                           TMismatch{"%s", true}, TMismatch{"%f", 1}, TMismatch{"%g", "1"},
                                           TMismatch{"%p", 1}, TMismatch{"%m", 1}, TMismatch{"%*d", "x"},
                                           TMismatch{"%q", 1}, TMismatch{"%", 1}, TMismatch{"%5", 1},
                                           TMismatch{"%5.", 1}, TMismatch{"%:s", "x"}, TMismatch{"%99999999999d", 1}));

}  // namespace
}  // namespace kt
