#include "kt/rtl/strings/TextEncoding.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

QString Decoded(const char* bytes, int size) { return DecodeText(QByteArray(bytes, size)); }

TEST(TextEncodingTest, Utf8IsReadWithAndWithoutAMark) {
  EXPECT_EQ(u"\u00e9", Decoded("\xc3\xa9", 2));
  EXPECT_EQ(u"\u00e9", Decoded("\xef\xbb\xbf\xc3\xa9", 5));
}

TEST(TextEncodingTest, Utf16IsReadByItsMark) {
  EXPECT_EQ(u"\u00e9a", Decoded("\xff\xfe\xe9\0a\0", 6));
  EXPECT_EQ(u"\u00e9a", Decoded("\xfe\xff\0\xe9\0a", 6));
}

TEST(TextEncodingTest, WhatIsNoUtf8IsWindows1252) {
  EXPECT_EQ(u"caf\u00e9 \u20ac \u201equoted\u201c", Decoded("caf\xe9 \x80 \x84quoted\x93", 15));
}

TEST(TextEncodingTest, CutUtf8IsWindows1252) { EXPECT_EQ(u"a\u00c3", Decoded("a\xc3", 2)); }

TEST(TextEncodingTest, OverlongUtf8IsWindows1252) { EXPECT_EQ(u"\u00c0\u20ac", Decoded("\xc0\x80", 2)); }

TEST(TextEncodingTest, Windows1252GivesEveryByteACharacterOfItsOwn) {
  EXPECT_EQ(u"\u20ac\u0081\u201a", Decoded("\x80\x81\x82", 3));
  EXPECT_EQ(u"\u017e\u0178\u00a0\u00ff\u007f", Decoded("\x9e\x9f\xa0\xff\x7f", 5));
}

TEST(TextEncodingTest, NoBytesAreNoText) {
  EXPECT_EQ("", DecodeText({}));
  EXPECT_EQ("", Decoded("\xef\xbb\xbf", 3));
}

TEST(TextEncodingTest, TextIsWrittenInUtf8WithoutAMark) { EXPECT_EQ("\xc3\xa9", EncodeText(u"\u00e9"_qs)); }

TEST(TextEncodingTest, ATextThatBeginsWithAMarkComesBack) {
  const QString text = u"\ufeffa"_qs;
  EXPECT_EQ(text, DecodeText(EncodeText(text)));
}

}  // namespace
}  // namespace kt
