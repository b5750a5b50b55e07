#include "DesignerFixture.h"

namespace designer::tests {
namespace {

class SurfaceKeysTest : public TDesignerTest {};

TEST_F(SurfaceKeysTest, AnArrowMovesByAPixel) {
  Select("Button1");
  Key(Qt::Key_Right);
  Key(Qt::Key_Down);
  EXPECT_EQ(Bounds("Button1"), "17 17 75 25");
}

TEST_F(SurfaceKeysTest, AnArrowMovesAllThatIsSelected) {
  Session().Select({&Component("Button1"), &Component("CheckBox1")});
  Key(Qt::Key_Left);
  EXPECT_EQ(Bounds("Button1"), "15 16 75 25");
  EXPECT_EQ(Bounds("CheckBox1"), "15 80 97 17");
  EXPECT_EQ(UndoText(), "Move 2 components");
}

TEST_F(SurfaceKeysTest, MovesByKeysAreOneStep) {
  Select("Button1");
  Key(Qt::Key_Right);
  Key(Qt::Key_Right);
  Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(UndoText(), "Move Button1");
  EXPECT_EQ(Document().UndoStack().count(), 1);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Bounds("Button1"), "16 16 75 25");
}

TEST_F(SurfaceKeysTest, ControlAndAnArrowMoveByAStepOfTheGrid) {
  Select("Button1");
  Key(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(Bounds("Button1"), "8 16 75 25");
}

TEST_F(SurfaceKeysTest, ShiftAndAnArrowSizeByAPixel) {
  Select("Button1");
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(Bounds("Button1"), "16 16 76 24");
  EXPECT_EQ(UndoText(), "Size Button1");
}

TEST_F(SurfaceKeysTest, BothSizeByAStepOfTheGrid) {
  Select("Button1");
  Key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Bounds("Button1"), "16 16 83 25");
}

TEST_F(SurfaceKeysTest, AltAndAnArrowGoToTheNeighbour) {
  Select("Button1");
  Key(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Selected(), "Button2");
  Key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Selected(), "Button1");
  Key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Selected(), "CheckBox1");
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(SurfaceKeysTest, TabGoesByTheOrderOfTabs) {
  dynamic_cast<kt::TWinControl&>(Component("CheckBox1")).SetTabOrder(0);
  Select("SmallForm");
  QStringList way;
  for (int i = 0; i < 4; ++i) {
    Key(Qt::Key_Tab);
    way.append(Selected());
  }
  EXPECT_EQ(way.join(u' '), "CheckBox1 Button1 Button2 Menu1");
}

TEST_F(SurfaceKeysTest, TabGoesThroughAllComponentsAndRound) {
  Select("SmallForm");
  Key(Qt::Key_Tab);
  EXPECT_EQ(Selected(), "Button1");
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "SmallForm");
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "Menu1");
}

TEST_F(SurfaceKeysTest, EscapeSelectsWhatIsAround) {
  Select("Button1");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Selected(), "SmallForm");
}

TEST_F(SurfaceKeysTest, DeleteDeletes) {
  Select("Button1");
  Key(Qt::Key_Delete);
  EXPECT_EQ(Document().Find(u"Button1"), nullptr);
  EXPECT_EQ(Selected(), "SmallForm");
  EXPECT_EQ(UndoText(), "Delete Button1");
}

TEST_F(SurfaceKeysTest, DeleteLeavesTheFormAlone) {
  Select("SmallForm");
  Key(Qt::Key_Delete);
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(SurfaceKeysTest, CopiesComeBackBesideWhatTheyWereCopiedFrom) {
  Select("Button1");
  Key(Qt::Key_C, Qt::ControlModifier);
  Key(Qt::Key_Escape);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "Button3");
  EXPECT_EQ(Bounds("Button3"), "24 24 75 25");
  EXPECT_EQ(UndoText(), "Paste Button3");
}

TEST_F(SurfaceKeysTest, CutAndPasteKeepTheName) {
  Select("Button1");
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Document().Find(u"Button1"), nullptr);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Bounds("Button1"), "16 16 75 25");
}

TEST_F(SurfaceKeysTest, SelectAllSelectsWhatStandsOnTheForm) {
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "Button1 Button2 CheckBox1 Menu1");
}

TEST_F(SurfaceKeysTest, ReturnGoesToTheInspector) {
  Key(Qt::Key_Return);
  EXPECT_TRUE(FWindow->Panel().isAncestorOf(QApplication::focusWidget()));
}

TEST_F(SurfaceKeysTest, ThePaneKeyGoesThroughAllPartsOfTheWindow) {
  Key(Qt::Key_F6);
  EXPECT_EQ(QApplication::focusWidget(), &FWindow->Tree());
  Key(Qt::Key_F6);
  EXPECT_TRUE(FWindow->Panel().isAncestorOf(QApplication::focusWidget()));
  Key(Qt::Key_F6);
  EXPECT_EQ(QApplication::focusWidget(), &FWindow->Palette());
  Key(Qt::Key_F6);
  EXPECT_EQ(QApplication::focusWidget(), &Surface());
}

}  // namespace
}  // namespace designer::tests
