#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/FormErrors.h"
#include "kt/rtl/streams/FormPath.h"

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

TEST(FormErrorsTest, ALongTextKeepsItsEnds) {
  EXPECT_EQ(QString(60, u'x'), Shortened(QString(60, u'x')));
  const QString text = QString(1000, u'a') + QString(1000, u'z');
  EXPECT_EQ(QString(29, u'a') + QStringLiteral("...") + QString(28, u'z'), Shortened(text));
}

TEST(FormErrorsTest, NoCharacterIsCutInHalf) {
  const QString pair = QStringLiteral("\U0001F600");
  EXPECT_TRUE(Shortened(pair.repeated(100)).isValidUtf16());
  EXPECT_TRUE(Shortened(u'a' + pair.repeated(100)).isValidUtf16());
}

TEST(FormErrorsTest, OfADeepPathTheEndsAreShown) {
  TFormPath path;
  for (int i = 0; i < 1000; ++i) path.EnterObject(QStringLiteral("O%1").arg(i), {});
  const QString shown = path.ToString();
  EXPECT_TRUE(shown.startsWith(QStringLiteral("O0.O1.")));
  EXPECT_TRUE(shown.contains(QStringLiteral(".O15....O984.")));
  EXPECT_TRUE(shown.endsWith(QStringLiteral(".O998.O999")));
  EXPECT_LT(shown.size(), 200);
}

TEST(FormErrorsTest, WhatCannotBePrintedIsShownAsAQuestionMark) {
  EXPECT_EQ(QStringLiteral("a?b"), ShownName(u"a\nb"));
}

}  // namespace
}  // namespace kt
