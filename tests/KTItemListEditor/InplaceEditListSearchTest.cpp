#include "KTItemListEditor/InplaceEditListFixture.h"
#include "kt/KTItemListEditor/DropDownList.h"

#include <QInputMethodEvent>

namespace kt::tests {
namespace {

/// Typing while the list is open.
class InplaceEditListSearchTest : public TInplaceEditListTest {
 protected:
  /// From here on only `Now` tells the time.
  void UseClock() {
    Now = {};
    dynamic_cast<TKTDropDownList&>(List()).SetClock([] { return Now; });
  }
  static inline TKTDropDownList::TClock::time_point Now;
};

TEST_F(InplaceEditListSearchTest, TypingSelectsTheFirstLineThatBeginsWithAllThatWasTyped) {
  ShowPickList({QStringLiteral("Bear"), QStringLiteral("badger"), QStringLiteral("bat")});
  OpenList();
  Type(QStringLiteral("b"));
  EXPECT_EQ(">Bear badger bat", Lines());
  Type(QStringLiteral("at"));
  EXPECT_EQ("Bear badger >bat", Lines());
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(InplaceEditListSearchTest, ComposedTextIsSearchedForToo) {
  ShowPickList({QStringLiteral("\u00E4b"), QStringLiteral("\u00E9a"), QStringLiteral("\u00E9b")});
  OpenList();
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("\u00E9b"));
  QApplication::sendEvent(QApplication::focusWidget(), &composed);
  EXPECT_EQ("\u00E4b \u00E9a >\u00E9b", Lines());
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(InplaceEditListSearchTest, WhatNoLineBeginsWithSelectsNothingElse) {
  ShowColors();
  OpenList();
  Type(QStringLiteral("gx"));
  EXPECT_EQ("red >green blue", Lines());
}

TEST_F(InplaceEditListSearchTest, BackspaceHasTheSearchStartAnew) {
  ShowColors();
  OpenList();
  Type(QStringLiteral("g"));
  Key(Qt::Key_Backspace);
  Type(QStringLiteral("b"));
  EXPECT_EQ("red green >blue", Lines());
}

TEST_F(InplaceEditListSearchTest, APauseHasTheSearchStartAnew) {
  ShowColors();
  OpenList();
  UseClock();
  Type(QStringLiteral("g"));
  Now += TKTDropDownList::SearchPause + std::chrono::milliseconds(1);
  Type(QStringLiteral("b"));
  EXPECT_EQ("red green >blue", Lines());
}

TEST_F(InplaceEditListSearchTest, AShorterPauseGoesOnWithTheSearch) {
  ShowColors();
  OpenList();
  UseClock();
  Type(QStringLiteral("g"));
  Now += TKTDropDownList::SearchPause;
  Type(QStringLiteral("b"));
  EXPECT_EQ("red >green blue", Lines());
}

TEST_F(InplaceEditListSearchTest, AListThatOpensAgainSearchesForNothing) {
  ShowColors();
  OpenList();
  UseClock();
  Type(QStringLiteral("g"));
  Key(Qt::Key_Escape);
  OpenList();
  Type(QStringLiteral("b"));
  EXPECT_EQ("red green >blue", Lines());
}

/// The next one is not looked for, nor does it start another search.
TEST_F(InplaceEditListSearchTest, AtMostThirtyTwoCharactersAreSearchedFor) {
  const QString most(32, u'y');
  ShowPickList({QStringLiteral("x"), most + u'1', most + u'2', QStringLiteral("2")});
  OpenList();
  Type(most + u'2');
  EXPECT_EQ(1, List().GetItemIndex());
}

TEST_F(InplaceEditListSearchTest, ThirtyTwoCharactersAreAllSearchedFor) {
  const QString fewer(31, u'y');
  ShowPickList({QStringLiteral("x"), fewer + u'1', fewer + u'2'});
  OpenList();
  Type(fewer + u'2');
  EXPECT_EQ(2, List().GetItemIndex());
}

/// Keys of any keyboard come as characters of the list's language.
TEST_F(InplaceEditListSearchTest, LettersOfOtherScriptsAreSearchedFor) {
  const QStringList lines =
      QStringLiteral("\u043c\u0438\u0440 \u043c\u043e\u0440\u0435 \u732b \u00e9t\u00e9").split(u' ');
  ShowPickList(lines);
  OpenList();
  const auto put = [&](QChar character) { Edit().Perform(WM_CHAR, character.unicode()); };
  put(u'\u043c');
  put(u'\u043e');
  EXPECT_EQ(1, List().GetItemIndex());
  Key(Qt::Key_Backspace);
  put(u'\u732b');
  EXPECT_EQ(2, List().GetItemIndex());
  Key(Qt::Key_Backspace);
  put(u'\u00e9');
  EXPECT_EQ(3, List().GetItemIndex());
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(InplaceEditListSearchTest, ABlankIsSearchedForLikeAnyOtherCharacter) {
  ShowPickList({QStringLiteral("ab"), QStringLiteral("a b")});
  OpenList();
  Type(QStringLiteral("a "));
  EXPECT_EQ(1, List().GetItemIndex());
  EXPECT_TRUE(Edit().IsListVisible());
}

}  // namespace
}  // namespace kt::tests
