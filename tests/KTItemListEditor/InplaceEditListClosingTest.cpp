#include "KTItemListEditor/InplaceEditListFixture.h"

#include <QPushButton>

namespace kt::tests {
namespace {

/// What an open list does with focus, mouse and wheel, and what closes it.
using InplaceEditListClosingTest = TInplaceEditListTest;

// The keyboard and the activation.

TEST_F(InplaceEditListClosingTest, TheListTakesNeitherFocusNorActivation) {
  ShowColors();
  OpenList();
  Settle();
  EXPECT_TRUE(Edit().Focused());
  EXPECT_EQ(Window->Window(), QApplication::activeWindow());
  EXPECT_TRUE(List().GetHandle()->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_TRUE(Edit().IsListVisible());
}

TEST_F(InplaceEditListClosingTest, LosingTheFocusClosesTheListAndChangesNothing) {
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

TEST_F(InplaceEditListClosingTest, APressOnTheGridClosesTheListAndChangesNothing) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Window->Press(Editor.CellRect(1, 3).center() + QPoint(2, 2));
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
}

TEST_F(InplaceEditListClosingTest, APressOnSomebodyElsesWidgetClosesTheList) {
  auto* label = std::make_unique<QWidget>().release();
  ShowColors();
  Window->Window()->layout()->addWidget(label);
  OpenList();
  QTest::mousePress(label, Qt::LeftButton);
  EXPECT_FALSE(Edit().IsListVisible());
}

TEST_F(InplaceEditListClosingTest, MovingTheWindowClosesTheList) {
  ShowColors();
  OpenList();
  Window->Window()->move(20, 30);
  Settle();
  EXPECT_FALSE(Edit().IsListVisible());
}

TEST_F(InplaceEditListClosingTest, HidingTheEditorClosesTheList) {
  ShowColors();
  OpenList();
  Editor.SetEditorMode(false);
  EXPECT_FALSE(Edit().IsListVisible());
}

TEST_F(InplaceEditListClosingTest, ReadingTheCellAgainClosesTheList) {
  ShowColors();
  OpenList();
  Editor.Refresh();
  EXPECT_FALSE(Edit().IsListVisible());
}

// Somebody else takes the mouse.

TEST_F(InplaceEditListClosingTest, ACancelFromElsewhereClosesTheListAndChangesNothing) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  Edit().Perform(CM_CANCELMODE, 0, PointerMessage<TControl>(&Editor));
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
}

TEST_F(InplaceEditListClosingTest, ACancelFromNobodyClosesTheList) {
  ShowColors();
  OpenList();
  Edit().Perform(CM_CANCELMODE);
  EXPECT_FALSE(Edit().IsListVisible());
}

TEST_F(InplaceEditListClosingTest, ACancelFromTheEditorItselfLeavesTheListOpen) {
  ShowColors();
  OpenList();
  Edit().Perform(CM_CANCELMODE, 0, PointerMessage<TControl>(&Edit()));
  EXPECT_TRUE(Edit().IsListVisible());
}

TEST_F(InplaceEditListClosingTest, ACancelFromTheListLeavesItOpen) {
  ShowColors();
  OpenList();
  Edit().Perform(CM_CANCELMODE, 0, PointerMessage<TControl>(Edit().GetActiveList()));
  EXPECT_TRUE(Edit().IsListVisible());
}

// The mouse.

TEST_F(InplaceEditListClosingTest, AClickOnALineTakesItOver) {
  ShowColors();
  OpenList();
  ClickLine(2);
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("blue", Value(0));
  EXPECT_EQ("validate(a=blue) validated(a)", TakeLog());
  EXPECT_TRUE(Edit().Focused());
}

TEST_F(InplaceEditListClosingTest, AReleaseOutsideTheListTakesNothingOver) {
  ShowColors();
  OpenList();
  QWidget* const viewport = ViewportOf(List());
  QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, {5, 5});
  QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, {5, -20});
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
}

/// The release of any button closes the list, and within it takes over what is selected.
TEST_F(InplaceEditListClosingTest, ARightClickInTheListTakesOverWhatIsSelectedDeliberately) {
  ShowColors();
  OpenList();
  Key(Qt::Key_Down);
  QTest::mouseClick(ViewportOf(List()), Qt::RightButton, Qt::NoModifier, {5, 5});
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("red", Value(0));
  EXPECT_EQ("validate(a=red) validated(a)", TakeLog());
}

TEST_F(InplaceEditListClosingTest, ARightClickWithNothingSelectedClosesTheListOnly) {
  ShowColors();
  OpenList();
  QTest::mouseClick(ViewportOf(List()), Qt::RightButton, Qt::NoModifier, {5, 5});
  EXPECT_FALSE(Edit().IsListVisible());
  EXPECT_EQ("1", Value(0));
}

TEST_F(InplaceEditListClosingTest, PressDragAndReleaseOnTheArrowPicksALine) {
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

TEST_F(InplaceEditListClosingTest, TheWheelOverTheListScrollsIt) {
  QStringList lines;
  for (int i = 0; i < 100; ++i) lines += QString::number(i + 1000);
  ShowPickList(lines);
  OpenList();
  Wheel(ViewportOf(List()), -120);
  EXPECT_EQ(3, List().GetTopIndex());
  EXPECT_EQ("1", Value(0));
  EXPECT_TRUE(Edit().IsListVisible());
}

TEST_F(InplaceEditListClosingTest, TheWheelOverTheEditorScrollsTheGridAndChangesNoValue) {
  for (int i = 0; i < 50; ++i) Editor.GetItems().Add()->SetName(QString::number(i));
  ShowColors();
  Wheel(Edit().GetHandle(), -120);
  EXPECT_GT(Editor.GetTopRow(), 1);
  EXPECT_EQ("1", Value(0));
}

}  // namespace
}  // namespace kt::tests
