// What ends a drag besides the release of the button: keys, windows, handlers that raise, and handlers that meddle.
#include "support/DragWorld.h"
#include "support/Expect.h"

#include <QMenu>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TDragProbe;
using tests::TWindowProbe;

/// A is being dragged over B.
class DragEndTest : public tests::TDragWorld {
 protected:
  DragEndTest() {
    Drag(A());
    MoveTo(B(), {7, 8});
    Log();
  }
  /// Drags A to B, and answers all that is told.
  QString DragOnceMore() {
    if (QGuiApplication::mouseButtons() != Qt::NoButton) Release();
    Log();
    Drag(A());
    MoveTo(B(), {7, 8});
    Release();
    return Log();
  }
  static constexpr char kCanceled[] = "B leave 7,8 | A end nobody 0,0";
  static constexpr char kWhole[] =
      "A start | A enter 5,5 | A move 5,5 | A leave 5,5 | B enter 7,8 | B move 7,8 | B leave 7,8 | B drop 7,8 | "
      "A end B 7,8";
};

TEST_F(DragEndTest, EscapeCancels) {
  QTest::keyClick(A()->GetHandle(), Qt::Key_Escape);
  EXPECT_EQ(Log(), kCanceled);
  EXPECT_EQ(Left(), "");
  Release();
  EXPECT_EQ(DragOnceMore(), kWhole);
}

TEST_F(DragEndTest, EscapeIsNobodyElses) {
  QStringList keys;
  First->SetKeyPreview(true);
  First->OnKeyDown = [&](TObject*, quint16& key, TShiftState) { keys += QString::number(key); };
  QTest::keyClick(A()->GetHandle(), Qt::Key_Escape);
  EXPECT_EQ(keys.join(u' '), "");
  QTest::keyClick(A()->GetHandle(), Qt::Key_Escape);
  EXPECT_EQ(keys.join(u' '), "27");
}

TEST_F(DragEndTest, CancelDragDropsNothing) {
  CancelDrag();
  EXPECT_EQ(Log(), kCanceled);
  EXPECT_EQ(Left(), "");
  CancelDrag();
  EXPECT_EQ(Log(), "");
}

TEST_F(DragEndTest, WhoTakesTheMouseEndsTheDrag) {
  C()->SetMouseCapture(true);
  EXPECT_EQ(Log(), kCanceled);
  EXPECT_EQ(QWidget::mouseGrabber(), C()->GetHandle());
  C()->SetMouseCapture(false);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, WhoLetsGoOfTheMouseEndsTheDrag) {
  A()->SetMouseCapture(false);
  EXPECT_EQ(Log(), kCanceled);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AControlThatDisappearsIsNoLongerDragged) {
  A()->Hide();
  EXPECT_EQ(Log(), kCanceled);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AFormThatDisappearsEndsIt) {
  First->Hide();
  EXPECT_EQ(Log().section(" | ", -1), "A end nobody 0,0");
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AControlWithoutAParentIsNoLongerDragged) {
  A()->SetParent(nullptr);
  EXPECT_TRUE(A()->Dragging());
  TWindowProbe::Settle();
  EXPECT_EQ(Log(), kCanceled);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AnotherProgramEndsIt) {
  QApplicationStateChangeEvent event(Qt::ApplicationInactive);
  QCoreApplication::sendEvent(qApp, &event);
  EXPECT_EQ(Log(), kCanceled);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AModalFormEndsIt) {
  const auto modal = Make<TForm>();
  modal->OnShow = [&](TObject*) { modal->PostMessage(WM_USER); };
  QMetaObject::invokeMethod(
      qApp,
      [&] {
        EXPECT_EQ(Log(), kCanceled);
        EXPECT_EQ(Left(), "");
        modal->SetModalResult(mrOk);
      },
      Qt::QueuedConnection);
  EXPECT_EQ(modal->ShowModal(), mrOk);
}

TEST_F(DragEndTest, AMenuThatOpensEndsIt) {
  QMenu menu;
  menu.addAction(QStringLiteral("x"));
  menu.popup({0, 0});
  EXPECT_EQ(Log(), kCanceled);
  menu.close();
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AReleaseThatSomebodyElseGotEndsIt) {
  const QPointF place(20, 20);
  QMouseEvent event(QEvent::MouseMove, place, A()->GetHandle()->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                    Qt::NoModifier);
  QApplication::sendEvent(A()->GetHandle(), &event);
  EXPECT_EQ(Log(), kCanceled);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AFormThatIsBlockedIsNoTarget) {
  CancelDrag();
  Release();
  Log();
  Second->GetHandle()->hide();
  Second->GetHandle()->setWindowModality(Qt::ApplicationModal);
  Second->GetHandle()->show();
  Drag(C());
  Log();
  MoveTo(B(), {7, 8});
  EXPECT_EQ(Log(), "C leave 5,5");
  MoveTo(C(), {7, 8});
  EXPECT_EQ(Log(), "C enter 7,8 | C move 7,8");
  Release();
}

// Handlers that raise.

class TThrow {
 public:
  void operator()() const { throw Exception(QStringLiteral("no")); }
};

TEST_F(DragEndTest, AnExceptionWhileMovingEndsTheDrag) {
  At["B move"] = TThrow();
  MoveTo(B(), {9, 9});
  EXPECT_EQ(Log(), "B move 9,9 | B leave 9,9 | A end nobody 0,0 | error no");
  EXPECT_EQ(Left(), "");
  EXPECT_EQ(DragOnceMore(), kWhole);
}

TEST_F(DragEndTest, AnExceptionOnTheWayEndsTheDrag) {
  At["B leave"] = TThrow();
  MoveTo(A(), {1, 1});
  EXPECT_EQ(Log(), "B leave 7,8 | B leave 7,8 | A end nobody 0,0 | error no");
  EXPECT_EQ(Left(), "");
  EXPECT_EQ(DragOnceMore(), kWhole);
}

TEST_F(DragEndTest, WhoRaisesWhenLeftForTheLastTimeGetsNothing) {
  At["B leave"] = TThrow();
  Release();
  EXPECT_EQ(Log(), "B leave 7,8 | A end nobody 0,0 | error no");
  EXPECT_EQ(Left(), "");
  EXPECT_EQ(DragOnceMore(), kWhole);
}

TEST_F(DragEndTest, AnExceptionInADropLetsTheSourceKnowItsEnd) {
  At["B drop"] = TThrow();
  Release();
  EXPECT_EQ(Log(), "B leave 7,8 | B drop 7,8 | A end B 7,8 | error no");
  EXPECT_EQ(Left(), "");
  EXPECT_EQ(DragOnceMore(), kWhole);
}

TEST_F(DragEndTest, AllExceptionsOfAnEndAreHandled) {
  At["B leave"] = At["A end"] = TThrow();
  Release();
  EXPECT_EQ(Log(), "B leave 7,8 | A end nobody 0,0 | error no | error no");
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AnExceptionAtTheStartKeepsTheDragFromBeginning) {
  CancelDrag();
  Release();
  Log();
  At["A start"] = TThrow();
  Drag(A());
  EXPECT_EQ(Log(), "A start | error no");
  EXPECT_EQ(Left(), "");
  EXPECT_EQ(DragOnceMore(), kWhole);
}

TEST_F(DragEndTest, AnExceptionOfTheFirstMoveComesToWhoBeganTheDrag) {
  CancelDrag();
  Release();
  Log();
  At["A move"] = TThrow();
  A()->OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) {
    EXPECT_EQ(tests::MessageOf<Exception>([this] { A()->BeginDrag(true); }), "no");
  };
  Press(*A());
  EXPECT_EQ(Log(), "A start | A enter 5,5 | A move 5,5 | A leave 5,5 | A end nobody 0,0");
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AnExceptionInADropComesToWhoCalledEndDrag) {
  At["B drop"] = TThrow();
  EXPECT_EQ(tests::MessageOf<Exception>([this] { A()->EndDrag(true); }), "no");
  EXPECT_EQ(Log(), "B leave 7,8 | B drop 7,8 | A end B 7,8");
}

// Handlers that begin and end drags.

TEST_F(DragEndTest, AHandlerOfTheMoveMayDrop) {
  At["B move"] = [this] { A()->EndDrag(true); };
  MoveTo(B(), {9, 9});
  EXPECT_EQ(Log(), "B move 9,9 | B leave 9,9 | B drop 9,9 | A end B 9,9");
  EXPECT_EQ(Left(), "");
  EXPECT_EQ(DragOnceMore(), kWhole);
}

TEST_F(DragEndTest, AHandlerOfTheWayMayCancel) {
  At["B leave"] = [] { CancelDrag(); };
  MoveTo(A(), {1, 1});
  EXPECT_EQ(Log(), "B leave 7,8 | B leave 7,8 | A end nobody 0,0");
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AnEndEndsOnce) {
  At["B leave"] = At["B drop"] = At["A end"] = [this] {
    A()->EndDrag(true);
    CancelDrag();
  };
  Release();
  EXPECT_EQ(Log(), "B leave 7,8 | B drop 7,8 | A end B 7,8");
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AHandlerOfTheStartMayRefuse) {
  CancelDrag();
  Release();
  Log();
  At["A start"] = [this] { A()->EndDrag(false); };
  Drag(A());
  EXPECT_EQ(Log(), "A start");
  EXPECT_EQ(Left(), "");
  EXPECT_EQ(DragOnceMore(), kWhole);
}

TEST_F(DragEndTest, WhatARefusedStartWasGivenGoesToo) {
  CancelDrag();
  Release();
  TObjectRef given(Make<TDragObjectEx>().release());
  Given = given;
  At["A start"] = [] { CancelDrag(); };
  A()->BeginDrag(true);
  EXPECT_FALSE(given);
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, TheReleaseThatComesBeforeMayRefuse) {
  CancelDrag();
  Release();
  Log();
  A()->OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { A()->BeginDrag(true); };
  A()->OnMouseUp = [this](TObject*, TMouseButton, TShiftState, int, int) { B()->EndDrag(false); };
  Press(*A());
  EXPECT_EQ(Log(), "");
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, AnotherDragMayBeginWhenOneHasEnded) {
  At["A end"] = [this] { B()->BeginDrag(true); };
  Release();
  EXPECT_EQ(Log(), "B leave 7,8 | B drop 7,8 | A end B 7,8 | B start | B enter 7,8 | B move 7,8");
  EXPECT_TRUE(B()->Dragging());
  CancelDrag();
  EXPECT_EQ(Log(), "B leave 7,8 | B end nobody 0,0");
  EXPECT_EQ(Left(), "");
}

TEST_F(DragEndTest, NoOtherDragBeginsBeforeThat) {
  At["B leave"] = At["B move"] = [this] { C()->BeginDrag(true); };
  MoveTo(B(), {9, 9});
  Release();
  EXPECT_EQ(Log(), "B move 9,9 | B leave 9,9 | B drop 9,9 | A end B 9,9");
}

TEST_F(DragEndTest, AHandlerMayHaveTheNextMoveComeBeforeItIsDone) {
  At["B leave"] = [this] { MoveTo(C(), {3, 3}); };
  MoveTo(A(), {1, 1});
  EXPECT_EQ(Log(), "B leave 7,8 | B leave 7,8 | C enter 3,3 | C move 3,3");
  Release();
  EXPECT_EQ(Log(), "C leave 3,3 | C drop 3,3 | A end C 3,3");
}

}  // namespace
}  // namespace kt
