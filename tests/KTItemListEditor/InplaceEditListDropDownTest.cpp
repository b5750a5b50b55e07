#include "KTItemListEditor/InplaceEditListFixture.h"

#include <QElapsedTimer>
#include <QScreen>

namespace kt::tests {
namespace {

using InplaceEditListDropDownTest = TInplaceEditListTest;

/// Opens what only descendants may call.
struct TRestoringEdit : TKTInplaceEditList {
  using TKTInplaceEditList::RestoreContents;
};

TEST_F(InplaceEditListDropDownTest, TheListHasWholeLinesOfElevenWithoutAWindow) {
  struct TOpenedEditor : TKTItemListEditor {
    using TKTItemListEditor::CreateEditor;
  };
  struct TOpenedEdit : TKTInplaceEditList {
    using TKTInplaceEditList::GetPickList;
  };
  TInplaceEdit* edit = (Editor.*&TOpenedEditor::CreateEditor)();
  auto& list = (dynamic_cast<TKTInplaceEditList&>(*edit).*&TOpenedEdit::GetPickList)();
  EXPECT_FALSE(list.HandleAllocated());
  EXPECT_EQ(11, list.GetItemHeight());
  EXPECT_TRUE(list.IsIntegralHeight());
}

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

/// The editor did not get the line as something typed: to start from, it has the text of the cell.
TEST_F(InplaceEditListDropDownTest, WhatTheEditorStartedFromComesBackAfterALineWasTakenOver) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  ASSERT_EQ("red", Edit().GetText());
  (Edit().*&TRestoringEdit::RestoreContents)();
  EXPECT_EQ("1", Edit().GetText());
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

TEST_F(InplaceEditListDropDownTest, ANewEditorHasTheDropDownRowsOfTheGrid) {
  Editor.SetDropDownRows(3);
  Show();
  EXPECT_EQ(3, Edit().GetDropDownRows());
  Editor.SetDropDownRows(0);
  EXPECT_EQ(3, Edit().GetDropDownRows());
}

TEST_F(InplaceEditListDropDownTest, WithoutDropDownRowsTheListIsAsHighAsAllOfItsLines) {
  ShowPickList(QStringLiteral("a,b,c,d,e,f,g,h,i,j,k,l").split(u','));
  Edit().SetDropDownRows(0);
  OpenList();
  EXPECT_EQ(12 * List().GetItemHeight() + 4, List().GetHeight());
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

TEST_F(InplaceEditListDropDownTest, TheListHasTheColourOfTheEditor) {
  Editor.SetColor(clYellow);
  ShowColors();
  OpenList();
  EXPECT_EQ(clYellow, Edit().GetColor());
  EXPECT_EQ(clYellow, List().GetColor());
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

}  // namespace
}  // namespace kt::tests
