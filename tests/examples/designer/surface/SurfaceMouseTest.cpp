#include "DesignerFixture.h"
#include "designer/surface/Grid.h"

namespace designer::tests {
namespace {

class SurfaceMouseTest : public TDesignerTest {
 protected:
  QPoint Handle(const QString& name, int index) {
    return HandleRect(RectOf(name), kHandles[static_cast<size_t>(index)]).center();
  }
};

TEST_F(SurfaceMouseTest, AClickSelects) {
  Click(At("Button1"));
  EXPECT_EQ(Selected(), "Button1");
}

TEST_F(SurfaceMouseTest, AClickOnTheGroundSelectsTheForm) {
  Select("Button1");
  Click(OnForm(280, 180));
  EXPECT_EQ(Selected(), "SmallForm");
}

TEST_F(SurfaceMouseTest, AClickWithShiftTakesInAndOut) {
  Click(At("Button1"));
  Click(At("Button2"), Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "Button1 Button2");
  Click(At("Button1"), Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "Button2");
}

TEST_F(SurfaceMouseTest, TheLiveButtonDoesNotReact) {
  Press(At("Button1"));
  EXPECT_FALSE(dynamic_cast<kt::TWinControl&>(Control("Button1")).GetHandle()->hasFocus());
  QTest::mouseRelease(&Surface(), Qt::LeftButton, Qt::NoModifier, At("Button1"));
  EXPECT_TRUE(Surface().hasFocus());
}

TEST_F(SurfaceMouseTest, ADragMovesAlongTheGrid) {
  Drag(At("Button1"), At("Button1") + QPoint(21, 33));
  EXPECT_EQ(Bounds("Button1"), "40 48 75 25");
  EXPECT_EQ(UndoText(), "Move Button1");
}

TEST_F(SurfaceMouseTest, ADragWithAltMovesFreely) {
  Drag(At("Button1"), At("Button1") + QPoint(21, 33), Qt::AltModifier);
  EXPECT_EQ(Bounds("Button1"), "37 49 75 25");
}

TEST_F(SurfaceMouseTest, OthersThatAreSelectedKeepTheirDistance) {
  Click(At("Button1"));
  Click(At("CheckBox1"), Qt::ShiftModifier);
  Drag(At("Button1"), At("Button1") + QPoint(16, 0));
  EXPECT_EQ(Bounds("Button1"), "32 16 75 25");
  EXPECT_EQ(Bounds("CheckBox1"), "32 80 97 17");
  EXPECT_EQ(UndoText(), "Move 2 components");
}

TEST_F(SurfaceMouseTest, APressThatHardlyMovesMovesNothing) {
  Drag(At("Button1"), At("Button1") + QPoint(1, 1));
  EXPECT_EQ(Bounds("Button1"), "16 16 75 25");
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(SurfaceMouseTest, EscapeTakesADragBack) {
  Press(At("Button1"));
  MoveTo(At("Button1") + QPoint(40, 40));
  EXPECT_EQ(Bounds("Button1"), "56 56 75 25");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Bounds("Button1"), "16 16 75 25");
  EXPECT_FALSE(Document().IsModified());
  QTest::mouseRelease(&Surface(), Qt::LeftButton, Qt::NoModifier, At("Button1"));
}

TEST_F(SurfaceMouseTest, UndoInTheMiddleOfADragEndsIt) {
  Drag(At("Button2"), At("Button2") + QPoint(16, 0));
  Press(At("Button1"));
  MoveTo(At("Button1") + QPoint(40, 40));
  Do("undo");
  MoveTo(At("Button1") + QPoint(80, 80));
  EXPECT_EQ(Bounds("Button1"), "16 16 75 25");
  QTest::mouseRelease(&Surface(), Qt::LeftButton, Qt::NoModifier, At("Button1"));
}

TEST_F(SurfaceMouseTest, WhatKeepsToASideCannotBeDraggedOff) {
  Control("Button1").SetAlign(kt::alTop);
  Settle();
  Drag(At("Button1"), At("Button1") + QPoint(0, 64));
  EXPECT_EQ(Bounds("Button1"), "0 0 300 25");
}

TEST_F(SurfaceMouseTest, AHandleSizesAlongTheGrid) {
  Select("Button1");
  Drag(Handle("Button1", 4), Handle("Button1", 4) + QPoint(20, 10));
  EXPECT_EQ(Bounds("Button1"), "16 16 96 32");
  EXPECT_EQ(UndoText(), "Size Button1");
}

TEST_F(SurfaceMouseTest, AHandleOnTheLeftLeavesTheRightSideAlone) {
  Select("Button2");
  Drag(Handle("Button2", 7), Handle("Button2", 7) + QPoint(17, 0));
  EXPECT_EQ(Bounds("Button2"), "136 16 73 25");
}

TEST_F(SurfaceMouseTest, EachOfSeveralShowsItsHandles) {
  Session().Select({&Component("Button1"), &Component("Button2")});
  Settle();
  const QImage picture = Surface().grab().toImage();
  const auto colour = [&](QPoint point) { return picture.pixelColor(point).name(); };
  const QPalette palette = Surface().palette();
  for (int handle = 0; handle < kHandleCount; ++handle) {
    EXPECT_EQ(colour(Handle("Button1", handle) - QPoint(3, 3)), palette.color(QPalette::Highlight).name()) << handle;
    EXPECT_EQ(colour(Handle("Button1", handle)), palette.color(QPalette::Base).name()) << handle;
    EXPECT_EQ(colour(Handle("Button2", handle) - QPoint(3, 3)), palette.color(QPalette::Dark).name()) << handle;
    EXPECT_EQ(colour(Handle("Button2", handle)), palette.color(QPalette::Base).name()) << handle;
  }
}

TEST_F(SurfaceMouseTest, ConstraintsHoldTheSideThatIsNotDragged) {
  Control("Button2").GetConstraints().SetMinWidth(80);
  Select("Button2");
  Drag(Handle("Button2", 7), Handle("Button2", 7) + QPoint(32, 0));
  EXPECT_EQ(Bounds("Button2"), "129 16 80 25");
}

TEST_F(SurfaceMouseTest, TheFormIsSizedByItsLowerRightCornerAndStaysInItsPlace) {
  Drag(Handle("SmallForm", 4), Handle("SmallForm", 4) + QPoint(20, 20));
  EXPECT_EQ(Bounds("SmallForm"), "40 30 320 224");
}

TEST_F(SurfaceMouseTest, TheFormsUpperLeftCornerIsNoHandle) {
  EXPECT_FALSE(CanDrag(Session().Form(), kHandles[0]));
  EXPECT_TRUE(CanDrag(Session().Form(), kHandles[4]));
}

TEST_F(SurfaceMouseTest, ARubberBandSelectsWhatItTouches) {
  Drag(OnForm(4, 4), OnForm(140, 60));
  EXPECT_EQ(Selected(), "Button1 Button2");
}

TEST_F(SurfaceMouseTest, ARubberBandWithShiftAdds) {
  Select("CheckBox1");
  Drag(OnForm(4, 4), OnForm(60, 60), Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "CheckBox1 Button1");
}

TEST_F(SurfaceMouseTest, AnIconIsSelectedAndMoved) {
  Drag(At("Menu1"), At("Menu1") + QPoint(16, -40));
  EXPECT_EQ(Selected(), "Menu1");
  EXPECT_EQ(DesignPlace(Component("Menu1")), QPoint(216, 80));
  EXPECT_EQ(UndoText(), "Move Menu1");
}

TEST_F(SurfaceMouseTest, ATakenClassIsPlacedByAClick) {
  Surface().SetTool(kt::TWinControl::Class());
  FWindow->Palette().OnTake(TPaletteList::ClassOf(FWindow->Palette().ItemOf("TRadioButton")));
  Click(OnForm(160, 82));
  EXPECT_EQ(Selected(), "RadioButton1");
  EXPECT_EQ(Control("RadioButton1").GetBoundsRect().topLeft(), QPoint(160, 80));
  EXPECT_EQ(UndoText(), "Add RadioButton1");
  EXPECT_EQ(Surface().Tool(), nullptr);
}

TEST_F(SurfaceMouseTest, ATakenClassIsPlacedWithTheSizeOfADrag) {
  Surface().SetTool(TPaletteList::ClassOf(FWindow->Palette().ItemOf("TListBox")));
  Drag(OnForm(160, 64), OnForm(256, 128));
  EXPECT_EQ(Bounds("ListBox1"), "160 64 96 64");
}

TEST_F(SurfaceMouseTest, TheBoundsSpeakForTheWholeFormWhateverItsOwnPlace) {
  EXPECT_EQ(Bounds("SmallForm"), "40 30 300 200");
  EXPECT_EQ(RectOf("SmallForm").size(), QSize(300, 200));
}

TEST_F(SurfaceMouseTest, NothingOfTheLiveFormCanGetTheKeyboard) {
  for (const QWidget* widget : Session().Form().GetHandle()->findChildren<QWidget*>()) {
    EXPECT_EQ(widget->focusPolicy(), Qt::NoFocus) << widget->metaObject()->className();
  }
}

TEST_F(SurfaceMouseTest, AClickOnOneOfSeveralSelectsItAlone) {
  Session().Select({&Component("Button1"), &Component("Button2")});
  Click(RectOf("Button2").center());
  EXPECT_EQ(Selected(), "Button2");
}

}  // namespace
}  // namespace designer::tests
