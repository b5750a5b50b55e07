// How drags begin: by a press, at once or after some pixels, on controls of several kinds.
#include "kt/vcl/grids/DrawGrid.h"
#include "kt/vcl/mask/MaskEdit.h"
#include "kt/vcl/stdctrls/ListBox.h"
#include "support/DragWorld.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

class DragModeTest : public tests::TDragWorld {
 protected:
  /// On the first form, below the others.
  template <class T>
  T& AddControl() {
    T& control = *New<T>(First.get());
    control.SetName("X");
    control.SetBounds(10, 70, 200, 120);
    control.SetParent(First.get());
    Listen(control);
    ListenToMouse(control);
    return control;
  }
  void ListenToMouse(TControl& control) {
    control.OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { Note("down"); };
    control.OnMouseUp = [this](TObject*, TMouseButton, TShiftState, int, int) { Note("up"); };
    control.OnClick = [this](TObject*) { Note("click"); };
    control.OnDblClick = [this](TObject*) { Note("double"); };
  }
};

TEST_F(DragModeTest, ANewControlIsDraggedByNothing) {
  ListenToMouse(*A());
  Press(*A());
  MoveTo(B(), {7, 8});
  Release();
  EXPECT_EQ(Log(), "down | up");
}

TEST_F(DragModeTest, APressDragsInsteadOfBeingOne) {
  ListenToMouse(*A());
  A()->SetDragMode(dmAutomatic);
  Press(*A());
  Release();
  EXPECT_EQ(Log(), "A start | A enter 5,5 | A move 5,5 | A leave 5,5 | A drop 5,5 | A end A 5,5");
}

TEST_F(DragModeTest, OtherButtonsAreLeftAlone) {
  ListenToMouse(*A());
  A()->SetDragMode(dmAutomatic);
  QTest::mouseClick(A()->GetHandle()->window()->windowHandle(), Qt::RightButton, {}, QPoint(20, 20));
  EXPECT_EQ(Log(), "down | up");
}

TEST_F(DragModeTest, WhereTheProgramWantsItTheMouseHasToMoveFirst) {
  Mouse().SetDragImmediate(false);
  A()->SetDragMode(dmAutomatic);
  Press(*A(), {5, 5});
  EXPECT_EQ(Log(), "A start");
  MoveTo(A(), {9, 9});
  EXPECT_EQ(Log(), "");
  MoveTo(A(), {9, 10});
  EXPECT_EQ(Log(), "A enter 9,10 | A move 9,10");
  MoveTo(A(), {5, 5});
  EXPECT_EQ(Log(), "A move 5,5");
  Release();
  EXPECT_EQ(Log(), "A leave 5,5 | A drop 5,5 | A end A 5,5");
}

TEST_F(DragModeTest, AMouseThatDoesNotMoveDropsNothing) {
  Drag(A(), false);
  MoveTo(A(), {8, 8});
  EXPECT_EQ(Left(), "drag");
  Release();
  EXPECT_EQ(Log(), "A start | A end nobody 0,0");
  EXPECT_TRUE(A()->WasCanceled);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragModeTest, TheDistanceMayBeGiven) {
  Mouse().SetDragThreshold(3);
  EXPECT_EQ(Mouse().GetDragThreshold(), 3);
  Drag(A(), false);
  Log();
  MoveTo(A(), {2, 5});
  EXPECT_EQ(Log(), "A enter 2,5 | A move 2,5");
  Release();
  Drag(A(), false, 10);
  Log();
  MoveTo(A(), {14, 14});
  EXPECT_EQ(Log(), "");
  MoveTo(A(), {15, 14});
  EXPECT_EQ(Log(), "A enter 15,14 | A move 15,14");
  Release();
}

TEST_F(DragModeTest, ADragThatBeginsInAPressHasTheReleaseAndTheClickComeFirst) {
  ListenToMouse(*A());
  A()->OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) {
    Note("down");
    A()->BeginDrag(false);
  };
  Press(*A());
  EXPECT_EQ(Log(), "down | click | up | A start");
  Release();
  EXPECT_EQ(Log(), "A end nobody 0,0");
  Press(*A());
  EXPECT_EQ(Log(), "down | click | up | A start");
}

TEST_F(DragModeTest, WhatCannotBeDockedIsNotDragged) {
  ListenToMouse(*A());
  A()->SetDragMode(dmAutomatic);
  A()->SetDragKind(dkDock);
  Press(*A());
  A()->BeginDrag(true);
  EXPECT_FALSE(A()->Dragging());
  Release();
  EXPECT_EQ(Log(), "down | click | up");
}

TEST_F(DragModeTest, AFormIsNotDragged) {
  Listen(*First);
  ListenToMouse(*First);
  First->SetDragMode(dmAutomatic);
  Press(*First, {200, 150});
  Release();
  EXPECT_EQ(Log(), "down | click | up");
  EXPECT_EQ(tests::MessageOf<EInvalidOperation>([this] { First->BeginDrag(true); }), "Cannot drag a form");
  EXPECT_EQ(Left(), "");
}

TEST_F(DragModeTest, AGridIsDraggedByItsCells) {
  TDrawGrid& grid = AddControl<TDrawGrid>();
  grid.SetDragMode(dmAutomatic);
  const TGridCoord before{grid.GetCol(), grid.GetRow()};
  Press(grid, {100, 60});
  MoveTo(B(), {7, 8});
  Release();
  EXPECT_EQ(Log(),
            "X start | X enter 100,60 | X move 100,60 | X leave 100,60 | B enter 7,8 | B move 7,8 | "
            "B leave 7,8 | B drop 7,8 | X end B 7,8");
  EXPECT_EQ(grid.GetCol(), before.X);
  EXPECT_EQ(grid.GetRow(), before.Y);
}

TEST_F(DragModeTest, AGridWhoseHandlerDragsHasSelectedAndStopped) {
  TDrawGrid& grid = AddControl<TDrawGrid>();
  grid.OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int, int) { grid.BeginDrag(false); };
  const QPoint cell = grid.CellRect(2, 2).center();
  Press(grid, cell);
  EXPECT_EQ(grid.GetCol(), 2);
  EXPECT_EQ(grid.GetRow(), 2);
  Log();
  MoveTo(&grid, grid.CellRect(1, 1).center());
  MoveTo(B(), {7, 8});
  Release();
  EXPECT_EQ(Log().section(" | ", -3), "B leave 7,8 | B drop 7,8 | X end B 7,8");
  EXPECT_EQ(grid.GetSelection().Left, 2);
  EXPECT_EQ(grid.GetSelection().Bottom, 2);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragModeTest, TheWheelScrollsWhileSomethingIsDragged) {
  TDrawGrid& grid = AddControl<TDrawGrid>();
  grid.SetRowCount(100);
  Drag(A());
  QWheelEvent event(QPointF(50, 50), grid.GetHandle()->mapToGlobal(QPointF(50, 50)), {}, {0, -120}, Qt::LeftButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(grid.GetHandle(), &event);
  EXPECT_EQ(grid.GetTopRow(), 4);
  EXPECT_TRUE(A()->Dragging());
}

TEST_F(DragModeTest, AListBoxSelectsTheLineThatIsDragged) {
  TListBox& box = AddControl<TListBox>();
  for (const char* line : {"one", "two", "three"}) box.GetItems().Add(QLatin1String(line));
  box.SetDragMode(dmAutomatic);
  const QPoint second(20, box.GetItemHeight() + 2);
  Press(box, second);
  EXPECT_EQ(Log(), "down | click | up | X start");
  EXPECT_EQ(box.GetItemIndex(), 1);
  MoveTo(B(), {7, 8});
  EXPECT_EQ(box.GetItemIndex(), 1);
  Release();
  EXPECT_EQ(Log(), "B enter 7,8 | B move 7,8 | B leave 7,8 | B drop 7,8 | X end B 7,8");
  EXPECT_EQ(Left(), "");
}

TEST_F(DragModeTest, AListBoxTakesWhatIsDroppedOnALine) {
  TListBox& box = AddControl<TListBox>();
  Drag(A());
  Log();
  MoveTo(&box, {30, 20});
  Release();
  EXPECT_EQ(Log(), "A leave 5,5 | X enter 30,20 | X move 30,20 | X leave 30,20 | X drop 30,20 | A end X 30,20");
}

TEST_F(DragModeTest, AnEditIsDraggedInsteadOfGettingTheCaret) {
  TMaskEdit& edit = AddControl<TMaskEdit>();
  edit.SetText(QStringLiteral("some text"));
  edit.SetDragMode(dmAutomatic);
  edit.SetSelStart(0);
  Press(edit, {60, 10});
  EXPECT_EQ(Log(), "X start | X enter 60,10 | X move 60,10");
  Release();
  EXPECT_EQ(edit.GetSelStart(), 0);
}

TEST_F(DragModeTest, AfterADragThePressIsOver) {
  A()->SetDragMode(dmAutomatic);
  Press(*A());
  Release();
  A()->SetMouseCapture(true);
  EXPECT_EQ(QWidget::mouseGrabber(), A()->GetHandle());
  A()->SetMouseCapture(false);
}

TEST_F(DragModeTest, WithoutAWindowAControlMayStillBeDragged) {
  const auto loose = Make<tests::TDragProbe>();
  loose->SetName("L");
  Listen(*loose);
  Press(*A());
  loose->BeginDrag(false);
  MoveTo(B(), {7, 8});
  Release();
  EXPECT_EQ(Log(), "L start | B enter 7,8 | B move 7,8 | B leave 7,8 | B drop 7,8 | L end B 7,8");
  EXPECT_EQ(Left(), "");
}

}  // namespace
}  // namespace kt
