// What is told to whom, and when, while a control is dragged.
#include "kt/vcl/forms/Screen.h"
#include "support/DragWorld.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

/// Paints nothing, but has a place.
class TPicture : public TControl {
 public:
  using Inherited = TControl;

 protected:
  explicit TPicture(TComponent* owner) : TControl(owner) {}
};

using tests::TDragProbe;
using DragOrderTest = tests::TDragWorld;

TEST_F(DragOrderTest, ADropEndsWhatAStartBegan) {
  A()->SetDragMode(dmAutomatic);
  Press(*A());
  EXPECT_EQ(Log(), "A start | A enter 5,5 | A move 5,5");
  MoveTo(B(), {7, 8});
  EXPECT_EQ(Log(), "A leave 5,5 | B enter 7,8 | B move 7,8");
  MoveTo(B(), {9, 8});
  EXPECT_EQ(Log(), "B move 9,8");
  Release();
  EXPECT_EQ(Log(), "B leave 9,8 | B drop 9,8 | A end B 9,8");
  EXPECT_FALSE(A()->WasCanceled);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragOrderTest, WhatNobodyAcceptsIsDroppedNowhere) {
  Accepts = false;
  A()->SetDragMode(dmAutomatic);
  Press(*A());
  MoveTo(B(), {7, 8});
  Log();
  Release();
  EXPECT_EQ(Log(), "B leave 7,8 | A end nobody 0,0");
  EXPECT_TRUE(A()->WasCanceled);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragOrderTest, TheAnswerAtTheEndDecides) {
  Drag(A());
  MoveTo(B(), {7, 8});
  Log();
  Accepts = false;
  Release();
  EXPECT_EQ(Log(), "B leave 7,8 | A end nobody 0,0");
}

TEST_F(DragOrderTest, WithoutAHandlerNothingIsAccepted) {
  B()->OnDragOver = nullptr;
  Drag(A());
  MoveTo(B(), {7, 8});
  EXPECT_EQ(Pointer(), Qt::ForbiddenCursor);
  Log();
  Release();
  EXPECT_EQ(Log(), "A end nobody 0,0");
}

TEST_F(DragOrderTest, OutsideOfAllWindowsThereIsNoTarget) {
  Drag(A());
  Log();
  MoveTo({350, 500});
  EXPECT_EQ(Log(), "A leave 5,5");
  EXPECT_EQ(Pointer(), Qt::ForbiddenCursor);
  Release();
  EXPECT_EQ(Log(), "A end nobody 0,0");
}

TEST_F(DragOrderTest, GoesOverToAnotherForm) {
  Drag(A());
  MoveTo({350, 500});
  Log();
  MoveTo(C(), {3, 4});
  EXPECT_EQ(Log(), "C enter 3,4 | C move 3,4");
  EXPECT_EQ(FSource, A());
  Release();
  EXPECT_EQ(Log(), "C leave 3,4 | C drop 3,4 | A end C 3,4");
}

TEST_F(DragOrderTest, AFormIsATargetToo) {
  Listen(*Second);
  Drag(A());
  MoveTo({350, 500});
  Log();
  MoveTo(Second.get(), {200, 100});
  Release();
  EXPECT_EQ(Log(),
            "Second enter 200,100 | Second move 200,100 | Second leave 200,100 | Second drop 200,100 | "
            "A end Second 200,100");
}

TEST_F(DragOrderTest, ADisabledControlLeavesItsPlaceToItsParent) {
  Listen(*First);
  B()->SetEnabled(false);
  Drag(A());
  Log();
  MoveTo(B(), {1, 2});
  EXPECT_EQ(Log(), "A leave 5,5 | First enter 151,12 | First move 151,12");
}

TEST_F(DragOrderTest, AControlWithoutAWindowIsATarget) {
  auto* const picture = New<TPicture>(First.get());
  picture->SetName("P");
  picture->SetBounds(10, 100, 40, 40);
  picture->SetParent(First.get());
  Listen(*picture);
  Drag(A());
  Log();
  MoveTo(First.get(), {12, 103});
  Release();
  EXPECT_EQ(Log(), "A leave 5,5 | P enter 2,3 | P move 2,3 | P leave 2,3 | P drop 2,3 | A end P 2,3");
  picture->SetEnabled(false);
  Drag(A());
  Log();
  MoveTo(First.get(), {12, 103});
  EXPECT_EQ(Log(), "A leave 5,5");
}

TEST_F(DragOrderTest, ThePointerTellsWhetherItIsAccepted) {
  A()->SetDragCursor(crHandPoint);
  Drag(A());
  EXPECT_EQ(Pointer(), Qt::PointingHandCursor);
  MoveTo(C(), {7, 8});
  EXPECT_EQ(Pointer(), Qt::PointingHandCursor);
  Accepts = false;
  MoveTo(C(), {8, 8});
  EXPECT_EQ(Pointer(), Qt::ForbiddenCursor);
  Release();
  EXPECT_EQ(Left(), "");
}

TEST_F(DragOrderTest, APointerOfTheProgramComesBack) {
  Screen().SetCursor(crHourGlass);
  Drag(A());
  EXPECT_EQ(Pointer(), Qt::DragMoveCursor);
  Screen().SetCursor(crCross);
  EXPECT_EQ(Pointer(), Qt::DragMoveCursor);
  Release();
  EXPECT_EQ(Pointer(), Qt::CrossCursor);
  Screen().SetCursor(crDefault);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragOrderTest, TheControlIsDraggingUntilTheDrop) {
  QString states;
  const auto note = [&] { states += A()->Dragging() ? u'1' : u'0'; };
  At["A start"] = At["B move"] = At["B leave"] = At["B drop"] = At["A end"] = note;
  EXPECT_FALSE(A()->Dragging());
  Drag(A());
  EXPECT_TRUE(A()->Dragging());
  EXPECT_TRUE(Mouse().IsDragging());
  EXPECT_FALSE(B()->Dragging());
  MoveTo(B(), {7, 8});
  Release();
  EXPECT_EQ(states, "11100");
}

TEST_F(DragOrderTest, TheMouseIsNobodyElses) {
  for (TDragProbe* probe : {A(), B()}) {
    probe->OnMouseMove = [probe](TObject*, TShiftState, int, int) { probe->Note("move"); };
    probe->OnMouseUp = [probe](TObject*, TMouseButton, TShiftState, int, int) { probe->Note("up"); };
    probe->OnMouseDown = [probe](TObject*, TMouseButton, TShiftState, int, int) { probe->Note("down"); };
  }
  A()->SetDragMode(dmAutomatic);
  Press(*A());
  // The way there.
  A()->Log();
  MoveTo(B(), {7, 8});
  Button(QEvent::MouseButtonPress, Qt::MiddleButton);
  Release(Qt::MiddleButton);
  EXPECT_TRUE(A()->Dragging());
  Release();
  EXPECT_EQ(A()->Log() + B()->Log(), "");
}

TEST_F(DragOrderTest, TheRightButtonDropsAsWell) {
  Drag(A());
  MoveTo(B(), {7, 8});
  Log();
  Button(QEvent::MouseButtonPress, Qt::RightButton);
  Release(Qt::RightButton);
  EXPECT_EQ(Log(), "B leave 7,8 | B drop 7,8 | A end B 7,8");
  Release();
}

TEST_F(DragOrderTest, TheControlKeyAsksAnew) {
  Drag(A());
  MoveTo(B(), {7, 8});
  Log();
  QTest::keyPress(A()->GetHandle(), Qt::Key_Control);
  EXPECT_EQ(Log(), "B move 7,8");
  QTest::keyPress(A()->GetHandle(), Qt::Key_Shift);
  EXPECT_EQ(Log(), "");
  QTest::keyRelease(A()->GetHandle(), Qt::Key_Control);
  EXPECT_EQ(Log(), "B move 7,8");
}

TEST_F(DragOrderTest, OneThingIsDraggedAtATime) {
  Drag(A());
  Log();
  B()->BeginDrag(true);
  B()->EndDrag(false);
  EXPECT_EQ(Log(), "");
  EXPECT_TRUE(A()->Dragging());
}

TEST_F(DragOrderTest, ADragNeedsNoButton) {
  A()->BeginDrag(true);
  EXPECT_TRUE(A()->HasMouseCapture());
  EXPECT_EQ(QWidget::mouseGrabber(), A()->GetHandle());
  A()->EndDrag(false);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragOrderTest, EndDragDropsOnWhatIsBelow) {
  Drag(A());
  MoveTo(C(), {7, 8});
  Log();
  A()->EndDrag(true);
  EXPECT_EQ(Log(), "C leave 7,8 | C drop 7,8 | A end C 7,8");
}

// Objects of the application's own.

class TParcel : public TDragControlObject {
 public:
  using Inherited = TDragControlObject;
  QString Ends;

 protected:
  explicit TParcel(TControl& control) : TDragControlObject(control) {}
  TCursor GetDragCursor(bool accepted, int x, int y) override {
    Ends += QStringLiteral("cursor%1(%2,%3) ").arg(accepted).arg(x - GetDragPos().x()).arg(y - GetDragPos().y());
    return crCross;
  }
  void EndDrag(TObject* target, int x, int y) override {
    Ends += QStringLiteral("end%1").arg(IsDropped());
    TDragControlObject::EndDrag(target, x, y);
  }
};

TEST_F(DragOrderTest, AnObjectOfTheApplicationIsDraggedInItsPlace) {
  const auto parcel = Make<TParcel>(*A());
  Given = parcel.get();
  Drag(A());
  MoveTo(B(), {7, 8});
  EXPECT_EQ(FSource, parcel.get());
  EXPECT_EQ(parcel->GetDragTarget(), B());
  EXPECT_EQ(parcel->GetDragTargetPos(), QPoint(7, 8));
  EXPECT_EQ(Pointer(), Qt::CrossCursor);
  Log();
  Release();
  EXPECT_EQ(Log(), "B leave 7,8 | B drop 7,8 | A end B 7,8");
  EXPECT_EQ(parcel->Ends, "cursor1(0,0) cursor1(0,0) end1");
}

TEST_F(DragOrderTest, AnObjectThatStandsForAnotherControlTellsThatOne) {
  const auto parcel = Make<TParcel>(*B());
  Given = parcel.get();
  Drag(A());
  Log();
  Release();
  EXPECT_EQ(Log(), "A leave 5,5 | A drop 5,5 | B end A 5,5");
}

TEST_F(DragOrderTest, SomeObjectsGoWithTheirDrag) {
  TObjectRef given(Make<TDragControlObjectEx>(*A()).release());
  Given = given;
  At["A end"] = [&] { EXPECT_TRUE(given); };
  Drag(A());
  EXPECT_EQ(FSource, given.Get());
  Release();
  EXPECT_FALSE(given);
}

TEST_F(DragOrderTest, AnObjectTakesOverWhereAnotherOneIs) {
  const auto parcel = Make<TParcel>(*A());
  const auto other = Make<TDragControlObject>(*B());
  Given = parcel.get();
  Drag(A());
  MoveTo(B(), {7, 8});
  other->Assign(parcel.get());
  EXPECT_EQ(other->GetDragTarget(), B());
  EXPECT_EQ(other->GetDragPos(), B()->ClientToScreen({7, 8}));
  EXPECT_EQ(other->GetControl(), A());
  EXPECT_EQ(other->GetName(), "TDragControlObject");
  Release();
}

}  // namespace
}  // namespace kt
