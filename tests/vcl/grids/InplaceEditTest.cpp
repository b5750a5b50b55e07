#include "kt/rtl/objects/Make.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "support/Expect.h"
#include "support/GridProbe.h"
#include "support/WindowProbe.h"

#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TGridProbe;
using tests::TWindowProbe;

/// A grid of texts "c,r" that can be edited.
class InplaceEditTest : public testing::Test {
 protected:
  InplaceEditTest() {
    Grid.SetOptions(Grid.GetOptions() + TGridOptions{goEditing});
    Grid.OnGetEditText = [](TObject*, int col, int row, QString& text) {
      text = QStringLiteral("%1,%2").arg(col).arg(row);
    };
    Grid.OnSetEditText = [this](TObject*, int col, int row, const QString& text) {
      FLog += QStringLiteral("set(%1,%2)=%3").arg(col).arg(row).arg(text);
    };
    FWindow = std::make_unique<TWindowProbe>(Grid);
    Grid.SetFocus();
  }
  void EditAlways() { Grid.SetOptions(Grid.GetOptions() + TGridOptions{goAlwaysShowEditor}); }
  TInplaceEdit& Editor() { return *Grid.InplaceEditor(); }
  bool IsShown() { return Grid.InplaceEditor() && Editor().Visible() && Editor().GetHandle()->isVisible(); }
  QString Log() { return std::exchange(FLog, {}).join(u' '); }
  QPoint At(int col, int row) { return Grid.CellRect(col, row).center() + QPoint(2, 2); }

  std::unique_ptr<TGridProbe> FGrid = Make<TGridProbe>();
  TGridProbe& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FLog;
};

TEST_F(InplaceEditTest, AppearsOnF2OverTheCurrentCellWithItsText) {
  EXPECT_EQ(Grid.InplaceEditor(), nullptr);
  TWindowProbe::Key(Qt::Key_F2);
  ASSERT_TRUE(IsShown());
  EXPECT_EQ(Editor().GetText(), "1,1");
  EXPECT_EQ(Editor().GetBoundsRect(), Grid.CellRect(1, 1));
  EXPECT_TRUE(Editor().Focused());
  EXPECT_EQ(Editor().GetSelLength(), 0);
}

TEST_F(InplaceEditTest, EnterShowsAndHidesIt) {
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_TRUE(IsShown());
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_FALSE(IsShown());
  EXPECT_TRUE(Grid.Focused());
}

TEST_F(InplaceEditTest, TypingReplacesTheText) {
  TWindowProbe::Type(QStringLiteral("xy"));
  EXPECT_EQ(Editor().GetText(), "xy");
  EXPECT_TRUE(Editor().IsModified());
  EXPECT_EQ(Log(), "set(1,1)=x set(1,1)=xy");
}

TEST_F(InplaceEditTest, MovingOnHidesItAndKeepsTheText) {
  TWindowProbe::Type(QStringLiteral("x"));
  Log();
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_FALSE(IsShown());
  EXPECT_EQ(Grid.GetRow(), 2);
  EXPECT_EQ(Log(), "set(1,1)=x");
}

TEST_F(InplaceEditTest, AClickOnTheCurrentCellShowsIt) {
  FWindow->Click(At(1, 1));
  EXPECT_TRUE(IsShown());
}

TEST_F(InplaceEditTest, AClickOnAnotherCellOnlyGoesThere) {
  FWindow->Click(At(2, 2));
  EXPECT_FALSE(IsShown());
  EXPECT_EQ(Grid.GetCol(), 2);
}

TEST_F(InplaceEditTest, ThePermanentEditorFollowsTheCurrentCell) {
  EditAlways();
  EXPECT_TRUE(IsShown());
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(Editor().GetBoundsRect(), Grid.CellRect(1, 2));
  EXPECT_EQ(Editor().GetText(), "1,2");
  EXPECT_TRUE(Editor().Focused());
}

TEST_F(InplaceEditTest, ThePermanentEditorGivesArrowsAwayAtItsEnds) {
  EditAlways();
  Editor().Select(0, 0);
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ(Grid.GetCol(), 1);
  EXPECT_EQ(Editor().GetCaretPos(), 1);
  Editor().Select(3, 3);
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ(Grid.GetCol(), 2);
}

TEST_F(InplaceEditTest, TheGridCountsAsFocusedWhileTheEditorHasTheKeyboard) {
  QString log;
  Grid.OnEnter = [&](TObject*) { log += QStringLiteral("enter "); };
  Grid.OnExit = [&](TObject*) { log += QStringLiteral("exit "); };
  TWindowProbe::Key(Qt::Key_F2);
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ(log, "");
}

TEST_F(InplaceEditTest, LeavingTheGridHidesTheEditor) {
  auto* button = new QPushButton(FWindow->Window());
  button->show();
  TWindowProbe::Key(Qt::Key_F2);
  button->setFocus();
  EXPECT_FALSE(IsShown());
  EXPECT_TRUE(button->hasFocus());
}

TEST_F(InplaceEditTest, ThePermanentEditorStaysWhenTheGridIsLeft) {
  auto* button = new QPushButton(FWindow->Window());
  button->show();
  EditAlways();
  button->setFocus();
  EXPECT_TRUE(IsShown());
  EXPECT_TRUE(button->hasFocus());
}

TEST_F(InplaceEditTest, TabLeavesTheGridInBothDirections) {
  EditAlways();
  auto* before = new QPushButton;
  auto* after = new QPushButton;
  static_cast<QVBoxLayout*>(FWindow->Window()->layout())->insertWidget(0, before);
  FWindow->Window()->layout()->addWidget(after);
  QWidget::setTabOrder(before, Grid.GetHandle());
  QWidget::setTabOrder(Grid.GetHandle(), after);
  TWindowProbe::Settle();
  ASSERT_TRUE(Editor().Focused());
  TWindowProbe::Key(Qt::Key_Tab);
  EXPECT_TRUE(after->hasFocus());
  TWindowProbe::Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(Editor().Focused());
  TWindowProbe::Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(before->hasFocus());
}

TEST_F(InplaceEditTest, ScrollsWithItsCellAndOutOfView) {
  EditAlways();
  Grid.SetRowCount(100);
  Grid.SetTopRow(2);
  EXPECT_FALSE(IsShown());
  Grid.SetTopRow(1);
  EXPECT_TRUE(IsShown());
  EXPECT_EQ(Editor().GetBoundsRect(), Grid.CellRect(1, 1));
}

TEST_F(InplaceEditTest, FollowsTheWidthOfItsColumn) {
  EditAlways();
  Grid.SetColWidths(1, 111);
  EXPECT_EQ(Editor().GetWidth(), 111);
}

TEST_F(InplaceEditTest, InvalidatingItReadsTheTextAgainAndWritesNothing) {
  EditAlways();
  Log();
  Grid.OnGetEditText = [](TObject*, int, int, QString& text) { text = QStringLiteral("new"); };
  Grid.InvalidateEditor();
  EXPECT_EQ(Editor().GetText(), "new");
  EXPECT_EQ(Log(), "");
}

TEST_F(InplaceEditTest, ResetBringsBackTheTextItBeganWith) {
  TWindowProbe::Type(QStringLiteral("abc"));
  Editor().Reset();
  EXPECT_EQ(Editor().GetText(), "1,1");
  EXPECT_FALSE(Editor().IsModified());
}

TEST_F(InplaceEditTest, TheHandlersOfTheGridSeeItsKeysFirst) {
  Grid.OnKeyPress = [](TObject*, QChar& key) {
    if (key == u'a') key = u'b';
  };
  TWindowProbe::Key(Qt::Key_F2);
  Editor().SelectAll();
  TWindowProbe::Type(QStringLiteral("a"));
  EXPECT_EQ(Editor().GetText(), "b");
}

TEST_F(InplaceEditTest, TheWheelOverItScrollsTheGrid) {
  EditAlways();
  Grid.SetRowCount(100);
  QWheelEvent event(QPointF(5, 5), QPointF(5, 5), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(Editor().GetHandle(), &event);
  EXPECT_EQ(Grid.GetTopRow(), 4);
  EXPECT_EQ(Editor().GetText(), "1,1");
}

TEST_F(InplaceEditTest, AHandlerThatEmptiesTheGridWhileTypingIsSurvived) {
  Grid.SetRow(3);
  Grid.OnSetEditText = [this](TObject*, int, int, const QString&) { Grid.SetRowCount(2); };
  TWindowProbe::Type(QStringLiteral("x"));
  EXPECT_EQ(Grid.GetRow(), 1);
}

TEST_F(InplaceEditTest, DiesWithTheGrid) {
  EditAlways();
  FGrid.reset();
  EXPECT_EQ(FWindow->Window()->layout()->count(), 0);
}

TEST_F(InplaceEditTest, APressInTheTextMovesTheCaret) {
  EditAlways();
  ASSERT_EQ(Editor().GetSelLength(), 3);
  QTest::mousePress(Editor().GetHandle(), Qt::LeftButton, Qt::NoModifier, {Editor().GetWidth() - 4, 8});
  QTest::mouseRelease(Editor().GetHandle(), Qt::LeftButton, Qt::NoModifier, {Editor().GetWidth() - 4, 8});
  EXPECT_EQ(Editor().GetSelLength(), 0);
  EXPECT_EQ(Editor().GetCaretPos(), 3);
}

TEST_F(InplaceEditTest, AClickIntoThePermanentEditorFocusesIt) {
  auto* button = new QPushButton(FWindow->Window());
  button->show();
  EditAlways();
  button->setFocus();
  const QPoint point = Editor().GetHandle()->mapTo(FWindow->Window(), QPoint(5, 5));
  QTest::mouseClick(FWindow->Window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, point);
  EXPECT_TRUE(Editor().Focused());
}

TEST_F(InplaceEditTest, UndoAndClipboardAreThoseOfTheLineEditor) {
  TWindowProbe::Key(Qt::Key_F2);
  Editor().SelectAll();
  TWindowProbe::Type(QStringLiteral("z"));
  TWindowProbe::Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Editor().GetText(), "1,1");
}

TEST_F(InplaceEditTest, GoesWhenTheOptionsLeaveNothingToEdit) {
  TWindowProbe::Key(Qt::Key_F2);
  Grid.SetOptions(Grid.GetOptions() + TGridOptions{goRowSelect});
  EXPECT_FALSE(IsShown());
  Grid.SetOptions(Grid.GetOptions() - TGridOptions{goRowSelect});
  Grid.SetEditorMode(true);
  ASSERT_TRUE(IsShown());
  Grid.SetOptions(Grid.GetOptions() - TGridOptions{goEditing});
  EXPECT_FALSE(IsShown());
}

}  // namespace
}  // namespace kt
