#include "kt/rtl/conversions/EightBit.h"
#include "support/FormTesting.h"

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

TEST(EightBitTest, Utf8MustBeValid) {
  EXPECT_EQ(QStringLiteral("\u00e9"), Decoded("\xC3\xA9", eeUtf8));
  EXPECT_EQ("invalid", Decoded("\xE9", eeUtf8));
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
