#include "kt/rtl/conversions/EightBit.h"
#include "support/FormTesting.h"

#include <QSet>

#include <numeric>

namespace kt {
namespace {

QString Decoded(QByteArrayView bytes, TEightBitEncoding encoding) {
  QString text;
  return DecodeEightBit(bytes, encoding, text) ? text : QStringLiteral("invalid");
}

QString DecodedName(QByteArrayView bytes, TEightBitEncoding encoding) {
  QString text;
  DecodeName(bytes, encoding, text);
  return text;
}

TEST(EightBitTest, AsciiIsItselfInEveryEncoding) {
  EXPECT_EQ("a\x7f", Decoded("a\x7f", eeWindows1252));
  EXPECT_EQ("a\x7f", Decoded("a\x7f", eeLatin1));
  EXPECT_EQ("a\x7f", Decoded("a\x7f", eeUtf8));
}

TEST(EightBitTest, Windows1252HasItsOwnCharactersBelow160) {
  EXPECT_EQ(QStringLiteral("\u20ac\u201c\u0178\u00a0\u00ff"), Decoded("\x80\x93\x9F\xA0\xFF", eeWindows1252));
}

TEST(EightBitTest, UnassignedBytesBecomeControlsSoThatNothingIsLost) {
  EXPECT_EQ(QStringLiteral("\u0081\u008d\u008f\u0090\u009d"), Decoded("\x81\x8D\x8F\x90\x9D", eeWindows1252));
}

TEST(EightBitTest, Latin1IsTheByteItself) { EXPECT_EQ(QStringLiteral("\u0080\u00e9"), Decoded("\x80\xE9", eeLatin1)); }

struct TCodePageCase {
  const char* Name;
  TEightBitEncoding Encoding;
  const char* Bytes;
  QString Text;
};

void PrintTo(const TCodePageCase& value, std::ostream* out) { *out << value.Name; }

class EightBitCodePageTest : public ::testing::TestWithParam<TCodePageCase> {};

TEST_P(EightBitCodePageTest, HasItsOwnLetters) {
  EXPECT_EQ(GetParam().Text, Decoded(GetParam().Bytes, GetParam().Encoding));
  EXPECT_EQ(GetParam().Text, DecodedName(GetParam().Bytes, GetParam().Encoding));
}

TEST_P(EightBitCodePageTest, LosesNothing) {
  QByteArray bytes(256, Qt::Uninitialized);
  std::iota(bytes.begin(), bytes.end(), char(0));
  const QString text = Decoded(bytes, GetParam().Encoding);
  EXPECT_EQ(256, QSet<QChar>(text.begin(), text.end()).size());
  EXPECT_EQ(QString::fromLatin1(bytes.first(128)), text.first(128));
}

// Each word ends with the first or the last byte beyond ASCII that the page has a character for.
INSTANTIATE_TEST_SUITE_P(Pages, EightBitCodePageTest,
                         ::testing::Values(TCodePageCase{"Central", eeWindows1250, "\x8Alut\xFD \x9Er\xFF",
                                                         QStringLiteral("\u0160lut\u00FD \u017Er\u02D9")},
                                           TCodePageCase{"Cyrillic", eeWindows1251, "\xCF\xF0\xB8 \x80\xFF",
                                                         QStringLiteral("\u041F\u0440\u0451 \u0402\u044F")},
                                           TCodePageCase{"Western", eeWindows1252,
                                                         "Stra\xDF"
                                                         "e \x80\xFF",
                                                         QStringLiteral("Stra\u00DFe \u20AC\u00FF")},
                                           TCodePageCase{"Greek", eeWindows1253, "\xC1\xF9\xB6 \x80\xFE",
                                                         QStringLiteral("\u0391\u03C9\u00B6 \u20AC\u03CE")},
                                           TCodePageCase{
                                               "Turkish", eeWindows1254, "\xDD\xFD\xDE\xFE\xD0\xF0 \x80\xFF",
                                               QStringLiteral("\u0130\u0131\u015E\u015F\u011E\u011F \u20AC\u00FF")},
                                           TCodePageCase{"Hebrew", eeWindows1255, "\xF9\xEC\xE5\xED \xA4",
                                                         QStringLiteral("\u05E9\u05DC\u05D5\u05DD \u20AA")},
                                           TCodePageCase{"Arabic", eeWindows1256, "\xD3\xE1\xC7\xE3 \x81\xFF",
                                                         QStringLiteral("\u0633\u0644\u0627\u0645 \u067E\u06D2")},
                                           TCodePageCase{"Baltic", eeWindows1257, "\xE8\xF0\xFE \x80\xFF",
                                                         QStringLiteral("\u010D\u0161\u017E \u20AC\u02D9")},
                                           TCodePageCase{"Vietnamese", eeWindows1258, "\xD0\xF5\xFE \xCC",
                                                         QStringLiteral("\u0110\u01A1\u20AB \u0300")},
                                           TCodePageCase{"Thai", eeWindows874, "\xE4\xB7\xC2 \x80\xFB",
                                                         QStringLiteral("\u0E44\u0E17\u0E22 \u20AC\u0E5B")}),
                         [](const auto& page) { return page.param.Name; });

TEST(EightBitTest, AByteWithoutACharacterBecomesThatOfTheSameNumber) {
  EXPECT_EQ(QStringLiteral("\u00AA\u00D2\u00FF"), Decoded("\xAA\xD2\xFF", eeWindows1253));
  EXPECT_EQ(QStringLiteral("\u0098"), Decoded("\x98", eeWindows1251));
}

TEST(EightBitTest, Utf8MustBeValid) {
  EXPECT_EQ(QStringLiteral("\u00e9"), Decoded("\xC3\xA9", eeUtf8));
  EXPECT_EQ("invalid", Decoded("\xE9", eeUtf8));
}

TEST(EightBitTest, AByteOrderMarkInsideTextIsACharacter) {
  EXPECT_EQ(QStringLiteral("\ufeffa"), Decoded("\xEF\xBB\xBF"
                                               "a",
                                               eeUtf8));
  EXPECT_EQ(QStringLiteral("\ufeff\u00e9"), TextOfUtf8("\xEF\xBB\xBF\xC3\xA9"));
}

TEST(EightBitTest, ANameIsUtf8WhenItCanBe) {
  EXPECT_EQ(QStringLiteral("\u00e9"), DecodedName("\xC3\xA9", eeWindows1252));
  EXPECT_EQ(QStringLiteral("\u00e9\u20ac"), DecodedName("\xE9\x80", eeWindows1252));
  EXPECT_EQ(QStringLiteral("\u00e9\u0080"), DecodedName("\xE9\x80", eeLatin1));
  EXPECT_EQ(QStringLiteral("\u00e9\u20ac"), DecodedName("\xE9\x80", eeUtf8));
}

struct TUtf8Case {
  const char* Name;
  QByteArray Bytes;
  int Invalid;
};

void PrintTo(const TUtf8Case& value, std::ostream* out) { *out << value.Name; }

std::string Utf8CaseName(const ::testing::TestParamInfo<TUtf8Case>& info) { return info.param.Name; }

class EightBitUtf8Test : public ::testing::TestWithParam<TUtf8Case> {};

TEST_P(EightBitUtf8Test, FindsTheFirstInvalidByte) { EXPECT_EQ(GetParam().Invalid, FindInvalidUtf8(GetParam().Bytes)); }

INSTANTIATE_TEST_SUITE_P(
    Sequences, EightBitUtf8Test,
    ::testing::Values(TUtf8Case{"Empty", "", -1}, TUtf8Case{"LongAscii", QByteArray(100, 'x'), -1},
                      TUtf8Case{"EveryLength", "\xC2\x80\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", -1},
                      TUtf8Case{"LoneContinuation", "abc\x80", 3}, TUtf8Case{"Overlong2", "\xC1\xBF", 0},
                      TUtf8Case{"Overlong3", "a\xE0\x9F\xBF", 1}, TUtf8Case{"Overlong4", "\xF0\x8F\xBF\xBF", 0},
                      TUtf8Case{"Surrogate", "\xED\xA0\x80", 0}, TUtf8Case{"LastBeforeSurrogates", "\xED\x9F\xBF", -1},
                      TUtf8Case{"BeyondUnicode", "\xF4\x90\x80\x80", 0}, TUtf8Case{"NoLead", "\xF5\x80\x80\x80", 0},
                      TUtf8Case{"Short2", "\xC3", 0}, TUtf8Case{"Short4", "\xF0\x90\x80", 0},
                      TUtf8Case{"BadContinuation", "\xE1\x80(", 0},
                      TUtf8Case{"BehindAscii", QByteArray(17, 'x') + "\xFF", 17}),
    Utf8CaseName);

}  // namespace
}  // namespace kt
