#include "KTItemListEditor/InplaceEditListFixture.h"

#include <QElapsedTimer>
#include <QPushButton>
#include <QScreen>

namespace kt::tests {
namespace {

using InplaceEditListDropDownTest = TInplaceEditListTest;

TEST_F(InplaceEditListDropDownTest, AltDownOpensTheListWithTheTextSelected) {
  Item(0).SetValue(QStringLiteral("green"));
  ShowColors();
  EXPECT_FALSE(Edit().IsListVisible());
  OpenList();
  EXPECT_TRUE(Edit().IsListVisible());
  EXPECT_TRUE(List().GetHandle()->isVisible());
  EXPECT_EQ("red >green blue", Lines());
}

TEST_F(InplaceEditListDropDownTest, ATextThatIsNotInTheListSelectsNothing) {
  ShowColors();
  OpenList();
  EXPECT_EQ("red green blue", Lines());
}

TEST_F(InplaceEditListDropDownTest, NoTextSelectsNothing) {
  Item(0).SetValue({});
  ShowPickList({QStringLiteral("x"), QString()});
  OpenList();
  EXPECT_EQ(-1, List().GetItemIndex());
}

TEST_F(InplaceEditListDropDownTest, AltUpClosesItAndTakesTheSelectionOver) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ("red >green blue", Lines());
  EXPECT_EQ("1", Value(0));
  Key(Qt::Key_Up, Qt::AltModifier);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("green", Edit().GetText());
  EXPECT_EQ("green", Value(0));
}

TEST_F(InplaceEditListDropDownTest, AltUpOpensAClosedList) {
  ShowColors();
  Key(Qt::Key_Up, Qt::AltModifier);
  EXPECT_TRUE(Edit().IsListVisible());
}

TEST_F(InplaceEditListDropDownTest, EnterTakesTheSelectionOverAndHasItValidated) {
  ShowColors();
  Editor.OnSetEditText = [this](TObject*, int col, int row, const QString& text) {
    Log += QStringLiteral("set(%1,%2)=%3").arg(col).arg(row).arg(text);
  };
  OpenList();
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_FALSE(List().GetHandle()->isVisible());
  EXPECT_EQ("set(1,1)=red validate(a=red) validated(a)", TakeLog());
  EXPECT_TRUE(Edit().Focused());
}

TEST_F(InplaceEditListDropDownTest, EscapeClosesTheListAndChangesNothing) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Key(Qt::Key_Escape);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
  EXPECT_EQ("", TakeLog());
}

TEST_F(InplaceEditListDropDownTest, TakingOverWhatIsThereAlreadySetsNothing) {
  Item(0).SetValue(QStringLiteral("red"));
  ShowColors();
  Editor.OnSetEditText = [this](TObject*, int, int, const QString&) { Log += QStringLiteral("set"); };
  OpenList();
  Key(Qt::Key_Return);
  EXPECT_EQ("", TakeLog());
}

TEST_F(InplaceEditListDropDownTest, AReadOnlyItemTakesNothingOver) {
  Item(0).SetReadOnly(true);
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
  EXPECT_EQ("", TakeLog());
}

/// The value is written before it is checked, and stays.
TEST_F(InplaceEditListDropDownTest, APickedLineThatTheExpressionRefusesIsToldAndStays) {
  Item(0).SetExpressionMask(true);
  Item(0).SetEditMask(QStringLiteral("[0-9]+"));
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_EQ("No argument for format '\"%s\" is not a valid property va'", TakeErrors());
  EXPECT_EQ("red", Value(0));
  EXPECT_EQ("", TakeLog());
}

// Sizes and places.

TEST_F(InplaceEditListDropDownTest, AnEmptyListDropsDownOneBlankRow) {
  ShowPickList({});
  OpenList();
  EXPECT_EQ(List().GetItemHeight() + 4, List().GetHeight());
  EXPECT_EQ(List().GetItemHeight(), List().GetClientHeight());
}

TEST_F(InplaceEditListDropDownTest, AShortListIsAsHighAsItsLines) {
  ShowColors();
  OpenList();
  EXPECT_EQ(3 * List().GetItemHeight() + 4, List().GetHeight());
}

TEST_F(InplaceEditListDropDownTest, ALongListHasDropDownRows) {
  QStringList lines;
  for (int i = 0; i < 30; ++i) lines += QString::number(i + 100);
  ShowPickList(lines);
  OpenList();
  EXPECT_EQ(8 * List().GetItemHeight() + 4, List().GetHeight());
  Key(Qt::Key_Escape);
  Editor.SetDropDownRows(5);
  OpenList();
  EXPECT_EQ(5 * List().GetItemHeight() + 4, List().GetHeight());
}

TEST_F(InplaceEditListDropDownTest, TheListIsAsWideAsTheEditor) {
  ShowColors();
  OpenList();
  EXPECT_EQ(Edit().GetWidth(), List().GetWidth());
}

TEST_F(InplaceEditListDropDownTest, TheListIsWideEnoughForItsLongestLine) {
  const QString longest(60, u'm');
  ShowPickList({QStringLiteral("red"), longest});
  OpenList();
  const int textWidth = List().GetHandle()->fontMetrics().horizontalAdvance(longest);
  EXPECT_GT(List().GetClientWidth(), textWidth);
  EXPECT_LT(List().GetClientWidth(), textWidth + 20);
}

TEST_F(InplaceEditListDropDownTest, TheListOpensBelowTheEditor) {
  ShowColors();
  OpenList();
  EXPECT_EQ(Edit().ClientToScreen({0, Edit().GetHeight()}), List().GetHandle()->pos());
}

TEST_F(InplaceEditListDropDownTest, AListThatIsHigherThanTheRoomBelowOpensAbove) {
  ShowColors();
  const QRect screen = Window->Window()->screen()->availableGeometry();
  Window->Window()->move(100, screen.bottom() - 50);
  Settle();
  OpenList();
  const QRect list = List().GetHandle()->geometry();
  EXPECT_EQ(Edit().ClientToScreen({0, 0}).y(), list.y() + list.height());
  EXPECT_EQ(3 * List().GetItemHeight() + 4, list.height());
}

TEST_F(InplaceEditListDropDownTest, TheListStaysOnItsScreen) {
  ShowPickList({QStringLiteral("red"), QString(60, u'm')});
  const QRect screen = Window->Window()->screen()->availableGeometry();
  Window->Window()->move(screen.right() - 250, 50);
  Settle();
  OpenList();
  EXPECT_TRUE(screen.contains(List().GetHandle()->geometry()));
}

TEST_F(InplaceEditListDropDownTest, TheListHasTheEditorsFontButNeitherBoldNorItalic) {
  Item(0).GetValueFont().SetStyle({fsBold, fsItalic});
  Item(0).GetValueFont().SetSize(17);
  ShowColors();
  OpenList();
  EXPECT_EQ(17, List().GetFont().GetSize());
  EXPECT_TRUE(List().GetFont().GetStyle().IsEmpty());
}

TEST_F(InplaceEditListDropDownTest, AListOfTenThousandLinesOpensAtOnce) {
  QStringList lines;
  for (int i = 0; i < 10000; ++i) lines += QStringLiteral("line %1").arg(i);
  ShowPickList(lines);
  const auto widgets = QApplication::allWidgets().size();
  QElapsedTimer timer;
  timer.start();
  OpenList();
  Settle();
  EXPECT_LT(timer.elapsed(), 1000);
  EXPECT_EQ(10000, List().GetCount());
  EXPECT_LT(QApplication::allWidgets().size(), widgets + 20);
  timer.restart();
  Type(QStringLiteral("line 9998"));
  EXPECT_LT(timer.elapsed(), 1000);
  EXPECT_EQ(9998, List().GetItemIndex());
}

// Searching.

TEST_F(InplaceEditListDropDownTest, TypingSelectsTheFirstLineThatBeginsWithAllThatWasTyped) {
  ShowPickList({QStringLiteral("Bear"), QStringLiteral("badger"), QStringLiteral("bat")});
  OpenList();
  Type(QStringLiteral("b"));
  EXPECT_EQ(">Bear badger bat", Lines());
  Type(QStringLiteral("at"));
  EXPECT_EQ("Bear badger >bat", Lines());
  EXPECT_EQ("1", Edit().GetText());
}

TEST_F(InplaceEditListDropDownTest, WhatNoLineBeginsWithSelectsNothingElse) {
  ShowColors();
  OpenList();
  Type(QStringLiteral("gx"));
  EXPECT_EQ("red >green blue", Lines());
}

TEST_F(InplaceEditListDropDownTest, BackspaceHasTheSearchStartAnew) {
  ShowColors();
  OpenList();
  Type(QStringLiteral("g"));
  Key(Qt::Key_Backspace);
  Type(QStringLiteral("b"));
  EXPECT_EQ("red green >blue", Lines());
}

TEST_F(InplaceEditListDropDownTest, APauseHasTheSearchStartAnew) {
  ShowColors();
  OpenList();
  Type(QStringLiteral("g"));
  QTest::qWait(2100);
  Type(QStringLiteral("b"));
  EXPECT_EQ("red green >blue", Lines());
}

TEST_F(InplaceEditListDropDownTest, AtMostThirtyTwoCharactersAreSearchedFor) {
  ShowPickList({QStringLiteral("x"), QString(32, u'y') + u'1'});
  OpenList();
  Type(QString(40, u'y'));
  EXPECT_EQ(1, List().GetItemIndex());
}

// Filling.

TEST_F(InplaceEditListDropDownTest, TheHandlerAddsToTheItemsPickList) {
  ShowColors();
  Editor.OnGetPickList = [this](TObject* sender, const QString& name, TStrings& values) {
    Log += sender == &Editor ? name : QStringLiteral("?");
    values.Add(QStringLiteral("more"));
  };
  OpenList();
  EXPECT_EQ("red green blue more", Lines());
  EXPECT_EQ("a", TakeLog());
}

TEST_F(InplaceEditListDropDownTest, TheItemsHandlerGoesBeforeTheEditors) {
  ShowPickList({});
  Editor.OnGetPickList = [](TObject*, const QString&, TStrings& values) { values.Add(QStringLiteral("editor")); };
  Item(0).SetOnGetPickList([this](TObject* sender, const QString&, TStrings& values) {
    values.Add(sender == &Item(0) ? QStringLiteral("item") : QStringLiteral("?"));
  });
  OpenList();
  EXPECT_EQ("item", Lines());
}

TEST_F(InplaceEditListDropDownTest, AListIsFilledOnceAVisit) {
  ShowPickList({});
  Editor.OnGetPickList = [this](TObject*, const QString& name, TStrings& values) {
    Log += name;
    values.Add(QStringLiteral("x"));
  };
  OpenList();
  Key(Qt::Key_Escape);
  OpenList();
  Key(Qt::Key_Escape);
  EXPECT_EQ("a", TakeLog());
  Key(Qt::Key_Down);
  Key(Qt::Key_Up);
  OpenList();
  EXPECT_EQ("a", TakeLog());
}

TEST_F(InplaceEditListDropDownTest, AListThatCameEmptyIsFilledAgain) {
  ShowPickList({});
  Editor.OnGetPickList = [this](TObject*, const QString& name, TStrings&) { Log += name; };
  OpenList();
  Key(Qt::Key_Escape);
  OpenList();
  EXPECT_EQ("a a", TakeLog());
}

TEST_F(InplaceEditListDropDownTest, AnItemWithoutANameIsNotAskedFor) {
  Item(0).SetName({});
  ShowPickList({});
  Editor.OnGetPickList = [this](TObject*, const QString&, TStrings&) { Log += QStringLiteral("asked"); };
  OpenList();
  EXPECT_EQ("", TakeLog());
}

TEST_F(InplaceEditListDropDownTest, OtherCellsHaveNoList) {
  ShowColors();
  Key(Qt::Key_Down);
  EXPECT_EQ(nullptr, Edit().GetActiveList());
  EXPECT_EQ(esSimple, Edit().GetEditStyle());
  OpenList();
  EXPECT_FALSE(Edit().IsListVisible());
}

// Keyboard and activation.

TEST_F(InplaceEditListDropDownTest, TheListTakesNeitherFocusNorActivation) {
  ShowColors();
  OpenList();
  Settle();
  EXPECT_TRUE(Edit().Focused());
  EXPECT_EQ(Window->Window(), QApplication::activeWindow());
  EXPECT_TRUE(List().GetHandle()->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_TRUE(Edit().IsListVisible());
}

TEST_F(InplaceEditListDropDownTest, LosingTheFocusClosesTheListAndChangesNothing) {
  auto* button = std::make_unique<QPushButton>().release();
  ShowColors();
  Window->Window()->layout()->addWidget(button);
  Settle();
  OpenList();
  Key(Qt::Key_Down);
  button->setFocus();
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
}

TEST_F(InplaceEditListDropDownTest, APressOnTheGridClosesTheListAndChangesNothing) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Window->Press(Editor.CellRect(1, 3).center() + QPoint(2, 2));
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
}

TEST_F(InplaceEditListDropDownTest, APressOnSomebodyElsesWidgetClosesTheList) {
  auto* label = std::make_unique<QWidget>().release();
  ShowColors();
  Window->Window()->layout()->addWidget(label);
  OpenList();
  QTest::mousePress(label, Qt::LeftButton);
  EXPECT_FALSE(Edit().IsListVisible());
}

TEST_F(InplaceEditListDropDownTest, MovingTheWindowClosesTheList) {
  ShowColors();
  OpenList();
  Window->Window()->move(20, 30);
  Settle();
  EXPECT_FALSE(Edit().IsListVisible());
}

TEST_F(InplaceEditListDropDownTest, HidingTheEditorClosesTheList) {
  ShowColors();
  OpenList();
  Editor.SetEditorMode(false);
  EXPECT_FALSE(Edit().IsListVisible());
}

TEST_F(InplaceEditListDropDownTest, ReadingTheCellAgainClosesTheList) {
  ShowColors();
  OpenList();
  Editor.Refresh();
  EXPECT_FALSE(Edit().IsListVisible());
}

// The mouse.

TEST_F(InplaceEditListDropDownTest, AClickOnALineTakesItOver) {
  ShowColors();
  OpenList();
  ClickLine(2);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("blue", Value(0));
  EXPECT_EQ("validate(a=blue) validated(a)", TakeLog());
  EXPECT_TRUE(Edit().Focused());
}

TEST_F(InplaceEditListDropDownTest, AReleaseOutsideTheListTakesNothingOver) {
  ShowColors();
  OpenList();
  QWidget* const viewport = ViewportOf(List());
  QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, {5, 5});
  QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, {5, -20});
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
}

TEST_F(InplaceEditListDropDownTest, PressDragAndReleaseOnTheArrowPicksALine) {
  ShowColors();
  PressAt(OnButton());
  ASSERT_TRUE(Edit().IsListVisible());
  const auto inEditor = [&](int line) {
    return Edit().ScreenToClient(List().ClientToScreen(List().ItemRect(line).center()));
  };
  MoveTo(inEditor(0));
  EXPECT_EQ(">red green blue", Lines());
  EXPECT_FALSE(Edit().IsPressed());
  QWidget* const list = List().GetHandle();
  EXPECT_TRUE(List().HasMouseCapture());
  const QPoint second = List().ItemRect(1).center() + QPoint(2, 2);
  QMouseEvent move(QEvent::MouseMove, second, list->mapToGlobal(second), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(list, &move);
  EXPECT_EQ("red >green blue", Lines());
  QTest::mouseRelease(list, Qt::LeftButton, Qt::NoModifier, second);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("green", Value(0));
  EXPECT_EQ(nullptr, QWidget::mouseGrabber());
}

TEST_F(InplaceEditListDropDownTest, TheWheelOverTheListScrollsIt) {
  QStringList lines;
  for (int i = 0; i < 100; ++i) lines += QString::number(i + 1000);
  ShowPickList(lines);
  OpenList();
  Wheel(ViewportOf(List()), -120);
  EXPECT_EQ(3, List().GetTopIndex());
  EXPECT_EQ("1", Value(0));
  EXPECT_TRUE(Edit().IsListVisible());
}

TEST_F(InplaceEditListDropDownTest, TheWheelOverTheEditorScrollsTheGridAndChangesNoValue) {
  for (int i = 0; i < 50; ++i) Editor.GetItems().Add()->SetName(QString::number(i));
  ShowColors();
  Wheel(Edit().GetHandle(), -120);
  EXPECT_GT(Editor.GetTopRow(), 1);
  EXPECT_EQ("1", Value(0));
}

}  // namespace
}  // namespace kt::tests
