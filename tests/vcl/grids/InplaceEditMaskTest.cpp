#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/grids/InplaceEdit.h"
#include "kt/vcl/mask/MaskErrors.h"
#include "support/Expect.h"
#include "support/GridProbe.h"
#include "support/WindowProbe.h"

#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TGridProbe;
using tests::TWindowProbe;

constexpr char kInvalid[] = "Invalid input value.  Use escape key to abandon changes";

/// A grid whose first column of cells is masked: "(00) 0", the text "123".
class InplaceEditMaskTest : public testing::Test {
 protected:
  InplaceEditMaskTest() {
    Grid.SetOptions(Grid.GetOptions() + TGridOptions{goEditing});
    Grid.OnGetEditMask = [](TObject*, int col, int, QString& mask) {
      if (col == 1) mask = QStringLiteral("(00) 0;0");
    };
    Grid.OnGetEditText = [](TObject*, int, int, QString& text) { text = QStringLiteral("123"); };
    Grid.OnSetEditText = [this](TObject*, int col, int row, const QString& text) {
      FLog += QStringLiteral("set(%1,%2)=%3").arg(col).arg(row).arg(text);
    };
    Application().OnException = [this](TObject*, const Exception& error) {
      FLog += dynamic_cast<const EDBEditError*>(&error) ? error.Message() : QStringLiteral("another error");
    };
    FWindow = std::make_unique<TWindowProbe>(Grid);
    Grid.SetFocus();
  }
  ~InplaceEditMaskTest() override { Application().OnException = nullptr; }

  void EditAlways() { Grid.SetOptions(Grid.GetOptions() + TGridOptions{goAlwaysShowEditor}); }
  TInplaceEdit& Editor() { return *Grid.InplaceEditor(); }
  bool IsShown() { return Grid.InplaceEditor() && Editor().Visible(); }
  /// The first cell's editor, with its second digit deleted.
  void MakeIncomplete() {
    TWindowProbe::Key(Qt::Key_F2);
    Editor().SetSelStart(2);
    TWindowProbe::Key(Qt::Key_Delete);
    FLog.clear();
  }
  QString Log() { return std::exchange(FLog, {}).join(u'|'); }
  QPoint At(int col, int row) { return Grid.CellRect(col, row).center() + QPoint(2, 2); }

  std::unique_ptr<TGridProbe> FGrid = Make<TGridProbe>();
  TGridProbe& Grid = *FGrid;
  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FLog;
};

TEST_F(InplaceEditMaskTest, TakesTheMaskOfItsCell) {
  EditAlways();
  EXPECT_EQ(Editor().GetEditText(), "(12) 3");
  TWindowProbe::Key(Qt::Key_Tab);
  Grid.SetCol(2);
  EXPECT_EQ(Editor().GetEditText(), "123");
  EXPECT_FALSE(Editor().IsMasked());
}

TEST_F(InplaceEditMaskTest, WritesTheValueWithEachKey) {
  TWindowProbe::Key(Qt::Key_F2);
  Editor().SetSelStart(0);
  TWindowProbe::Type(QStringLiteral("98"));
  EXPECT_EQ(Log(), "set(1,1)=923|set(1,1)=983");
}

TEST_F(InplaceEditMaskTest, TypingInTheGridStartsAtTheFirstCell) {
  TWindowProbe::Type(QStringLiteral("9"));
  EXPECT_EQ(Editor().GetEditText(), "(9_) _");
}

TEST_F(InplaceEditMaskTest, MovingOffAnIncompleteTextIsAnErrorAndTheCellStays) {
  MakeIncomplete();
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(Log(), kInvalid);
  EXPECT_EQ(Grid.GetRow(), 1);
  EXPECT_TRUE(IsShown());
  EXPECT_TRUE(Editor().Focused());
  EXPECT_EQ(Editor().GetEditText(), "(1_) 3");
  EXPECT_EQ(Editor().GetSelStart(), 2);
}

TEST_F(InplaceEditMaskTest, AClickOnAnotherCellDoesNotLeaveAnIncompleteText) {
  MakeIncomplete();
  FWindow->Click(At(2, 2));
  EXPECT_EQ(Log(), kInvalid);
  EXPECT_EQ(Grid.Where(), "1,1 sel 1,1-1,1 at 1,1");
  EXPECT_TRUE(Editor().Focused());
}

TEST_F(InplaceEditMaskTest, EnterDoesNotLeaveAnIncompleteText) {
  MakeIncomplete();
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ(Log(), kInvalid);
  EXPECT_TRUE(IsShown());
}

TEST_F(InplaceEditMaskTest, EnterInThePermanentEditorValidates) {
  EditAlways();
  MakeIncomplete();
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ(Log(), kInvalid);
}

TEST_F(InplaceEditMaskTest, TheGridIsNotLeftWithAnIncompleteText) {
  auto* button = new QPushButton(FWindow->Window());
  button->show();
  MakeIncomplete();
  button->setFocus();
  EXPECT_EQ(Log(), kInvalid);
  EXPECT_TRUE(Editor().Focused());
  EXPECT_TRUE(IsShown());
}

TEST_F(InplaceEditMaskTest, ThePermanentEditorIsNotLeftEither) {
  auto* button = new QPushButton(FWindow->Window());
  button->show();
  EditAlways();
  MakeIncomplete();
  button->setFocus();
  EXPECT_EQ(Log(), kInvalid);
  EXPECT_TRUE(Editor().Focused());
}

TEST_F(InplaceEditMaskTest, AProgramThatMovesTheCellGetsTheError) {
  MakeIncomplete();
  EXPECT_EQ(MessageOf<EDBEditError>([&] { Grid.SetRow(2); }), kInvalid);
  EXPECT_EQ(MessageOf<EDBEditError>([&] { Grid.SetEditorMode(false); }), kInvalid);
  EXPECT_EQ(Grid.GetRow(), 1);
}

TEST_F(InplaceEditMaskTest, AGridThatHidesItsEditorItselfIsNotHeldUp) {
  MakeIncomplete();
  Grid.HideEditor();
  EXPECT_FALSE(IsShown());
  EXPECT_EQ(Log(), "set(1,1)=1 3");
}

TEST_F(InplaceEditMaskTest, AnEditorScrolledOutOfViewComesBackWithTheError) {
  Grid.SetRowCount(100);
  MakeIncomplete();
  Grid.SetTopRow(50);
  EXPECT_EQ(MessageOf<EDBEditError>([&] { Grid.SetRow(60); }), kInvalid);
  EXPECT_EQ(Grid.GetTopRow(), 1);
  EXPECT_TRUE(IsShown());
}

TEST_F(InplaceEditMaskTest, EscapeBringsTheTextBack) {
  MakeIncomplete();
  TWindowProbe::Key(Qt::Key_Escape);
  EXPECT_EQ(Editor().GetEditText(), "(12) 3");
  EXPECT_EQ(Log(), "set(1,1)=123");
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(Grid.GetRow(), 2);
}

TEST_F(InplaceEditMaskTest, ACompleteTextMayBeLeft) {
  TWindowProbe::Type(QStringLiteral("987"));
  Log();
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(Grid.GetRow(), 2);
  EXPECT_EQ(Log(), "set(1,1)=987");
}

TEST_F(InplaceEditMaskTest, ACellThatIsOnlyLookedAtIsNotWritten) {
  TWindowProbe::Key(Qt::Key_F2);
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ(Log(), "");
}

TEST_F(InplaceEditMaskTest, ArrowsStayInsideTheTextUntilItsEnds) {
  EditAlways();
  Editor().SetSelStart(0);
  TWindowProbe::Key(Qt::Key_Right);
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ(Editor().GetCaretPos(), 5);
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ(Editor().GetCaretPos(), 6);
  EXPECT_EQ(Grid.GetCol(), 1);
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ(Grid.GetCol(), 2);
}

TEST_F(InplaceEditMaskTest, AtTheFirstCellLeftIsTheGrids) {
  EditAlways();
  Grid.SetFixedCols(0);
  Grid.SetCol(1);
  Editor().SetSelStart(0);
  TWindowProbe::Key(Qt::Key_Left);
  EXPECT_EQ(Grid.GetCol(), 0);
}

TEST_F(InplaceEditMaskTest, ACellThatMayNotBeChangedStays) {
  TWindowProbe::Key(Qt::Key_F2);
  Editor().SetReadOnly(true);
  Editor().Perform(WM_CHAR, '9');
  EXPECT_EQ(Editor().GetEditText(), "(12) 3");
}

}  // namespace
}  // namespace kt
