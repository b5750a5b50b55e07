// How controls without a window get the mouse from that of their parent.
#include "kt/vcl/menus/PopupMenu.h"
#include "support/ControlProbe.h"
#include "support/PaintWorld.h"

#include <QContextMenuEvent>
#include <QHelpEvent>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TColored;

/// Hears of its hints, and has none shown.
class THinted : public TColored {
 public:
  QString Hint;

 protected:
  explicit THinted(TComponent* owner = nullptr) : TColored(owner) {}
  void WndProc(TMessage& message) override {
    if (message.Msg != CM_HINTSHOW) return TColored::WndProc(message);
    const auto* info = MessagePointer<THintInfo>(message.LParam);
    Hint = QStringLiteral("%1@%2,%3").arg(info->HintStr).arg(info->CursorPos.x()).arg(info->CursorPos.y());
    message.Result = 1;
  }
};

/// A at 10,10 and B beside it, 20 x 20 each, on the form.
class GraphicControlMouseTest : public tests::TPaintWorld {
 protected:
  GraphicControlMouseTest() {
    Listen(A, "A");
    Listen(B, "B");
    Listen(*FForm, "form");
    Show();
    // From nowhere near.
    MoveTo({190, 90});
    Log();
  }
  /// The mouse comes, and its button is pressed.
  void PressAt(QPoint place) {
    MoveTo(place);
    Log();
    Press(place);
  }
  void ClickAt(QPoint place) {
    PressAt(place);
    Release(place);
  }

  TColored& A = AddColored(clRed, {10, 10, 20, 20});
  TColored& B = AddColored(clBlue, {30, 10, 20, 20});
};

TEST_F(GraphicControlMouseTest, AClickIsTheChilds) {
  ClickAt({13, 14});
  EXPECT_EQ("A down 3,4 | A click | A up 3,4", Log());
}

TEST_F(GraphicControlMouseTest, BesideTheChildrenItIsTheParents) {
  ClickAt({60, 60});
  EXPECT_EQ("form down 60,60 | form click | form up 60,60", Log());
}

TEST_F(GraphicControlMouseTest, TheTopmostChildGetsIt) {
  TColored& top = AddColored(clLime, {10, 10, 20, 20});
  Listen(top, "top");
  ClickAt({13, 14});
  EXPECT_EQ("top down 3,4 | top click | top up 3,4", Log());
}

TEST_F(GraphicControlMouseTest, WhoIsPressedGetsTheReleaseWhereverItIs) {
  PressAt({13, 14});
  MoveTo({33, 14});
  Release({33, 14});
  EXPECT_EQ("A down 3,4 | A leave | A up 23,4 | B enter", Log());
}

TEST_F(GraphicControlMouseTest, AReleaseOverAChildIsTheParentsThatWasPressed) {
  PressAt({60, 60});
  Release({13, 14});
  EXPECT_EQ("form down 60,60 | form click | form up 13,14 | form leave | A enter", Log());
}

TEST_F(GraphicControlMouseTest, ADisabledOrHiddenChildLetsTheParentHaveIt) {
  A.SetEnabled(false);
  B.Hide();
  ClickAt({13, 14});
  EXPECT_EQ("form down 13,14 | form click | form up 13,14", Log());
  ClickAt({33, 14});
  EXPECT_EQ("form down 33,14 | form click | form up 33,14", Log());
}

TEST_F(GraphicControlMouseTest, TwoClicksAreADoubleOne) {
  MoveTo({13, 14});
  Log();
  QTest::mouseDClick(Window(), Qt::LeftButton, {}, {13, 14});
  EXPECT_EQ("A down 3,4 | A click | A up 3,4 | A double | A down 3,4 | A up 3,4", Log());
}

TEST_F(GraphicControlMouseTest, TheMouseComesAndGoesFromOneToTheOther) {
  MoveTo({60, 60});
  MoveTo({13, 14});
  MoveTo({33, 14});
  MoveTo({60, 60});
  EXPECT_EQ("form leave | A enter | A leave | B enter | B leave | form enter", Log());
}

TEST_F(GraphicControlMouseTest, WhenItLeavesTheWindowFromAChildThatIsToldSo) {
  MoveTo({13, 14});
  Log();
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(FForm->GetHandle(), &leave);
  EXPECT_EQ("A leave", Log());
}

TEST_F(GraphicControlMouseTest, WhileAButtonIsHeldOthersDoNotHearOfIt) {
  PressAt({13, 14});
  Log();
  MoveTo({33, 14});
  EXPECT_EQ("A leave", Log());
  Release({33, 14});
  EXPECT_EQ("A up 23,4 | B enter", Log());
}

TEST_F(GraphicControlMouseTest, APressedParentKeepsTheMouse) {
  PressAt({60, 60});
  Log();
  MoveTo({13, 14});
  EXPECT_EQ("", Log());
  Release({13, 14});
  EXPECT_EQ("form click | form up 13,14 | form leave | A enter", Log());
}

TEST_F(GraphicControlMouseTest, ThePointerIsTheChildsWhereItHasOne) {
  A.SetCursor(crHandPoint);
  FForm->SetCursor(crCross);
  MoveTo({13, 14});
  EXPECT_EQ(Qt::PointingHandCursor, FForm->GetHandle()->cursor().shape());
  MoveTo({33, 14});
  EXPECT_EQ(Qt::CrossCursor, FForm->GetHandle()->cursor().shape());
  B.SetCursor(crIBeam);
  EXPECT_EQ(Qt::IBeamCursor, FForm->GetHandle()->cursor().shape());
  MoveTo({60, 60});
  EXPECT_EQ(Qt::CrossCursor, FForm->GetHandle()->cursor().shape());
}

TEST_F(GraphicControlMouseTest, TheHintIsTheChildsAndTheApplicationHasItsLongOne) {
  auto& child = Add<THinted>("Hinted", {100, 10, 20, 20});
  FForm->SetShowHint(true);
  child.SetHint(QStringLiteral("short|long"));
  MoveTo({103, 14});
  EXPECT_EQ("long", Application().GetHint());
  HideControlHint();
  QHelpEvent event(QEvent::ToolTip, {103, 14}, {103, 14});
  QApplication::sendEvent(FForm->GetHandle(), &event);
  EXPECT_EQ("short@3,4", child.Hint);
  MoveTo({60, 60});
  EXPECT_EQ("", Application().GetHint());
}

TEST_F(GraphicControlMouseTest, ADisabledChildHasAHintAllTheSame) {
  auto& child = Add<THinted>("Hinted", {100, 10, 20, 20});
  FForm->SetShowHint(true);
  child.SetHint(QStringLiteral("why not"));
  child.SetEnabled(false);
  ShowHintAt(*FForm, {103, 14}, {103, 14});
  EXPECT_EQ("why not@3,4", child.Hint);
}

TEST_F(GraphicControlMouseTest, TheMenuIsTheChildsAndElseTheParents) {
  A.OnContextPopup = [this](TObject*, const QPoint& place, bool& handled) {
    Note(QStringLiteral("A menu %1,%2").arg(place.x()).arg(place.y()));
    handled = true;
  };
  FForm->OnContextPopup = [this](TObject*, const QPoint& place, bool& handled) {
    Note(QStringLiteral("form menu %1,%2").arg(place.x()).arg(place.y()));
    handled = true;
  };
  const auto askAt = [this](QPoint place) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, FForm->GetHandle()->mapToGlobal(place));
    QApplication::sendEvent(FForm->GetHandle(), &event);
  };
  askAt({13, 14});
  askAt({33, 14});
  EXPECT_EQ("A menu 3,4 | form menu 33,14", Log());
}

TEST_F(GraphicControlMouseTest, AChildIsDraggedToAnother) {
  A.SetDragMode(dmAutomatic);
  B.OnDragOver = [](TObject*, TObject*, int, int, TDragState, bool& accept) { accept = true; };
  B.OnDragDrop = [this](TObject*, TObject* source, int x, int y) {
    Note(QStringLiteral("%1 dropped at %2,%3").arg(source == &A ? "A" : "?").arg(x).arg(y));
  };
  A.OnEndDrag = [this](TObject*, TObject* target, int, int) { Note(target == &B ? "ended on B" : "ended"); };
  PressAt({13, 14});
  EXPECT_EQ("", Log());
  MoveTo({33, 14});
  Release({33, 14});
  EXPECT_EQ("A dropped at 3,4 | ended on B", Log());
}

TEST_F(GraphicControlMouseTest, AChildMayGoWhenItIsPressed) {
  A.OnMouseDown = [](TObject* sender, TMouseButton, TShiftState, int, int) { delete sender; };
  ClickAt({13, 14});
  EXPECT_EQ("form up 13,14 | form enter", Log());
}

TEST_F(GraphicControlMouseTest, AChildMayGoWhenItIsClickedOrTheMouseComes) {
  A.OnClick = [](TObject* sender) { delete sender; };
  ClickAt({13, 14});
  B.OnMouseEnter = [](TObject* sender) { delete sender; };
  MoveTo({33, 14});
  EXPECT_EQ(0, FForm->GetControlCount());
}

TEST_F(GraphicControlMouseTest, TheFormMayGoWhenItsChildIsClicked) {
  A.OnClick = [this](TObject*) { FForm.release()->Release(); };
  ClickAt({13, 14});
  tests::TWindowProbe::Settle();
  EXPECT_EQ("A down 3,4 | A up 3,4", Log());
}

TEST_F(GraphicControlMouseTest, TheTopmostAtAPlaceIsFound) {
  auto& window = Add<tests::TControlProbe>("Window", {10, 10, 10, 10});
  EXPECT_EQ(&A, FForm->ControlAtPos({13, 14}, false));
  EXPECT_EQ(&window, FForm->ControlAtPos({13, 14}, false, true));
  EXPECT_EQ(nullptr, FForm->ControlAtPos({60, 60}, true, true));
  A.SetEnabled(false);
  EXPECT_EQ(nullptr, FForm->ControlAtPos({25, 25}, false));
  EXPECT_EQ(&A, FForm->ControlAtPos({25, 25}, true));
  FForm->SetDesigning(true);
  EXPECT_EQ(&A, FForm->ControlAtPos({25, 25}, false));
}

}  // namespace
}  // namespace kt
