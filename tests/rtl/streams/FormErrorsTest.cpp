#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(FormErrorsTest, ATextIsFilledIn) { EXPECT_EQ(QStringLiteral("'[' expected"), MessageAbout(SCharExpected, u"[")); }

TEST(FormErrorsTest, ANumberIsFilledIn) {
  EXPECT_EQ(QStringLiteral("Nesting deeper than 200 levels"), MessageAbout(SNestingTooDeep, u"200"));
}

TEST(FormErrorsTest, AMessageWithoutAPlaceStaysAsItIs) {
  EXPECT_EQ(SIdentifierExpected, MessageAbout(SIdentifierExpected, u"x"));
}

TEST(FormErrorsTest, WhatIsFilledInMayLookLikeAPlaceholder) {
  EXPECT_EQ(QStringLiteral("%d%s%% expected"), MessageAbout(SSymbolExpected, u"%d%s%%"));
  EXPECT_EQ(QStringLiteral("%d%s%% on line 3, column 7"), OnLine(QStringLiteral("%d%s%%"), 3, 7));
}

TEST(FormErrorsTest, ALineBeyond32BitsIsShownInFull) {
  EXPECT_EQ(QStringLiteral("x on line 5000000000, column 1"), OnLine(QStringLiteral("x"), 5000000000, 1));
}

TEST(FormErrorsTest, AnOffsetIsShownWithThePathIfThereIsOne) {
  EXPECT_EQ(QStringLiteral("x at offset 9"), AtOffset(QStringLiteral("x"), 9, {}));
  EXPECT_EQ(QStringLiteral("x at offset 9 (Form1.Tag)"), AtOffset(QStringLiteral("x"), 9, QStringLiteral("Form1.Tag")));
}

TEST(FormErrorsTest, WhatCannotBePrintedIsShownAsAQuestionMark) {
  EXPECT_EQ(QStringLiteral("a?b"), ShownName(u"a\nb"));
}

}  // namespace
}  // namespace kt
