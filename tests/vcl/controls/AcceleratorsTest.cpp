#include "kt/vcl/controls/Accelerators.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(AcceleratorsTest, TheLetterBehindTheSignIsTheHotkey) {
  EXPECT_EQ("n", GetHotkey("&name"));
  EXPECT_EQ("m", GetHotkey("na&me"));
}

TEST(AcceleratorsTest, ADoubledSignIsNone) {
  EXPECT_EQ("", GetHotkey("a && b"));
  EXPECT_EQ("b", GetHotkey("a && &b"));
}

TEST(AcceleratorsTest, ASignAtTheEndMarksNothing) {
  EXPECT_EQ("", GetHotkey("name&"));
  EXPECT_EQ("", GetHotkey(""));
}

TEST(AcceleratorsTest, ACaptionReadsWithoutTheSigns) {
  EXPECT_EQ("a & b", StripHotkey("&a && b"));
  EXPECT_EQ("name", StripHotkey("name&"));
}

TEST(AcceleratorsTest, TheCaseOfTheLetterIsOfNoMatter) {
  EXPECT_TRUE(IsAccel(u'N', "&name"));
  EXPECT_TRUE(IsAccel(u'n', "&Name"));
  EXPECT_FALSE(IsAccel(u'a', "&name"));
  EXPECT_FALSE(IsAccel(u'n', "name"));
}

}  // namespace
}  // namespace kt
