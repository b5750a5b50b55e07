// Controls as plain data: no window, no display, no application object.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/controls/Control.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TControlProbe;

/// A parent of 200 x 100 at (10, 20) with a child of 50 x 30 at (5, 6).
class ControlTest : public testing::Test {
 protected:
  ControlTest() {
    FParent->SetBounds(10, 20, 200, 100);
    Child.SetParent(FParent.get());
    Child.SetBounds(5, 6, 50, 30);
  }

  std::unique_ptr<TControlProbe> FParent = Make<TControlProbe>();
  TControlProbe& Parent = *FParent;
  TControlProbe& Child = *New<TControlProbe>(FParent.get());
};

TEST_F(ControlTest, ASizeIsNeverNegative) {
  Child.SetWidth(-4);
  EXPECT_EQ(Child.Bounds(), "5,6,0,30");
}

TEST_F(ControlTest, ConstraintsCutTheSizeAtOnceAndLater) {
  Child.GetConstraints().SetMaxWidth(40);
  EXPECT_EQ(Child.Bounds(), "5,6,40,30");
  Child.SetWidth(90);
  EXPECT_EQ(Child.Bounds(), "5,6,40,30");
}

TEST_F(ControlTest, ALeastSizeTakesTheGreatestAlong) {
  TSizeConstraints& constraints = Child.GetConstraints();
  constraints.SetMaxHeight(40);
  constraints.SetMinHeight(60);
  EXPECT_EQ(constraints.GetMaxHeight(), 60);
  EXPECT_EQ(Child.GetHeight(), 60);
}

TEST_F(ControlTest, AResizeIsToldOnceAndAMoveIsNot) {
  Child.OnResize = [this](TObject*) { Child.Note(QStringLiteral("resize")); };
  Child.SetBounds(7, 7, 50, 30);
  Child.SetBounds(8, 8, 51, 31);
  Child.SetBounds(8, 8, 51, 31);
  EXPECT_EQ(Child.Log(), "resize");
}

TEST_F(ControlTest, RightAndBottomAnchorsKeepTheDistance) {
  Child.SetAnchors({akRight, akBottom});
  Parent.SetBounds(10, 20, 260, 140);
  EXPECT_EQ(Child.Bounds(), "65,46,50,30");
}

TEST_F(ControlTest, OppositeAnchorsStretch) {
  Child.SetAnchors({akLeft, akTop, akRight, akBottom});
  Parent.SetBounds(10, 20, 260, 140);
  EXPECT_EQ(Child.Bounds(), "5,6,110,70");
}

TEST_F(ControlTest, WithoutAnchorsAControlStaysInTheMiddle) {
  Child.SetAnchors({});
  Parent.SetBounds(10, 20, 260, 140);
  EXPECT_EQ(Child.Bounds(), "35,26,50,30");
}

TEST_F(ControlTest, AnchorsDoNotDriftWhenTheParentGoesBackAndForth) {
  Child.SetAnchors({});
  Parent.SetWidth(201);
  Parent.SetWidth(203);
  Parent.SetWidth(0);
  Parent.SetWidth(200);
  EXPECT_EQ(Child.Bounds(), "5,6,50,30");
}

TEST_F(ControlTest, AlignedControlsTakeTheirSidesInOrder) {
  auto& top = *New<TControlProbe>(FParent.get());
  auto& left = *New<TControlProbe>(FParent.get());
  top.SetBounds(0, 0, 10, 20);
  left.SetBounds(0, 0, 30, 10);
  top.SetParent(FParent.get());
  left.SetParent(FParent.get());
  left.SetAlign(alLeft);
  top.SetAlign(alTop);
  Child.SetAlign(alClient);
  EXPECT_EQ(top.Bounds(), "0,0,200,20");
  EXPECT_EQ(left.Bounds(), "0,20,30,80");
  EXPECT_EQ(Child.Bounds(), "30,20,170,80");
}

TEST_F(ControlTest, AnInvisibleControlGivesItsRoomAway) {
  auto& top = *New<TControlProbe>(FParent.get());
  top.SetBounds(0, 0, 10, 20);
  top.SetParent(FParent.get());
  top.SetAlign(alTop);
  Child.SetAlign(alClient);
  top.SetVisible(false);
  EXPECT_EQ(Child.Bounds(), "0,0,200,100");
}

TEST_F(ControlTest, AnAlignmentBringsItsAnchors) {
  Child.SetAlign(alBottom);
  EXPECT_EQ(Child.GetAnchors(), (TAnchors{akLeft, akRight, akBottom}));
  EXPECT_FALSE(Child.IsAnchorsStored());
}

TEST_F(ControlTest, TheClientSizeSetsTheSize) {
  Child.SetClientWidth(77);
  EXPECT_EQ(Child.GetWidth(), 77);
}

TEST_F(ControlTest, TheFontFollowsTheParentUntilItIsChanged) {
  Parent.GetFont().SetName(QStringLiteral("Serif"));
  EXPECT_EQ(Child.GetFont().GetName(), "Serif");
  EXPECT_TRUE(Child.IsParentFont());
  Child.GetFont().SetName(QStringLiteral("Mono"));
  EXPECT_FALSE(Child.IsParentFont());
  Parent.GetFont().SetName(QStringLiteral("Sans"));
  EXPECT_EQ(Child.GetFont().GetName(), "Mono");
}

TEST_F(ControlTest, GoingBackToTheParentsFontTakesIt) {
  Child.GetFont().SetName(QStringLiteral("Mono"));
  Parent.GetFont().SetName(QStringLiteral("Serif"));
  Child.SetParentFont(true);
  EXPECT_EQ(Child.GetFont().GetName(), "Serif");
}

TEST_F(ControlTest, TheColourFollowsTheParentUntilItIsChanged) {
  Parent.SetColor(clRed);
  EXPECT_EQ(Child.GetColor(), clRed);
  Child.SetColor(clBlue);
  Parent.SetColor(clGreen);
  EXPECT_EQ(Child.GetColor(), clBlue);
  EXPECT_TRUE(Child.IsColorStored());
}

TEST_F(ControlTest, HintsAreShownWhereTheParentShowsThem) {
  Parent.SetShowHint(true);
  EXPECT_TRUE(Child.IsShowHint());
  EXPECT_TRUE(Child.IsParentShowHint());
}

TEST_F(ControlTest, TheReadingDirectionFollowsTheParent) {
  Parent.SetBiDiMode(bdRightToLeft);
  EXPECT_TRUE(Child.UseRightToLeftAlignment());
}

TEST_F(ControlTest, AControlMovesFromParentToParent) {
  auto other = Make<TControlProbe>();
  Child.SetParent(other.get());
  EXPECT_EQ(Parent.GetControlCount(), 0);
  EXPECT_EQ(other->GetControls(0), &Child);
}

TEST_F(ControlTest, AParentFreesItsControlsWhoeverOwnsThem) {
  auto owner = Make<TComponent>();
  auto parent = Make<TControlProbe>();
  New<TControlProbe>(owner.get())->SetParent(parent.get());
  parent.reset();
  EXPECT_EQ(owner->GetComponentCount(), 0);
}

TEST_F(ControlTest, AskingForAControlThatIsNotThereFails) {
  EXPECT_EQ(MessageOf<EListError>([this] { Parent.GetControls(1); }), "List index out of bounds (1)");
}

TEST_F(ControlTest, TabsGoInTheOrderOfInsertion) {
  auto& second = *New<TControlProbe>(FParent.get());
  second.SetParent(FParent.get());
  EXPECT_EQ(Child.GetTabOrder(), 0);
  EXPECT_EQ(second.GetTabOrder(), 1);
}

TEST_F(ControlTest, ATabOrderPushesTheOthersBack) {
  auto& second = *New<TControlProbe>(FParent.get());
  second.SetParent(FParent.get());
  second.SetTabOrder(0);
  EXPECT_EQ(Child.GetTabOrder(), 1);
}

TEST_F(ControlTest, WithoutParentThereIsNoTabOrder) { EXPECT_EQ(Parent.GetTabOrder(), -1); }

TEST_F(ControlTest, AChangedTextIsToldOnce) {
  QString log;
  class TTextProbe : public TControlProbe {
   public:
    explicit TTextProbe(QString& log) : FLogged(log) {}
    void CMTextChanged(TMessage&) override { FLogged += GetText() + u';'; }
    QString& FLogged;
  };
  auto control = Make<TTextProbe>(log);
  control->SetText(QStringLiteral("a"));
  control->SetText(QStringLiteral("a"));
  EXPECT_EQ(log, "a;");
}

TEST_F(ControlTest, AMessageThatNobodyKnowsHasNoResult) { EXPECT_EQ(Child.Perform(WM_USER + 1, 3, 4), 0); }

TEST_F(ControlTest, APressAndReleaseInsideIsAClick) {
  Child.OnClick = [this](TObject*) { Child.Note(QStringLiteral("click")); };
  Child.OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int x, int y) {
    Child.Note(QStringLiteral("down(%1,%2)").arg(x).arg(y));
  };
  Child.OnMouseUp = [this](TObject*, TMouseButton, TShiftState, int, int) { Child.Note(QStringLiteral("up")); };
  Child.Perform(WM_LBUTTONDOWN, 0, MessagePoint(3, 4));
  Child.Perform(WM_LBUTTONUP, 0, MessagePoint(3, 4));
  EXPECT_EQ(Child.Log(), "down(3,4) click up");
}

TEST_F(ControlTest, AReleaseOutsideIsNoClick) {
  Child.OnClick = [this](TObject*) { Child.Note(QStringLiteral("click")); };
  Child.Perform(WM_LBUTTONDOWN, 0, MessagePoint(3, 4));
  Child.Perform(WM_LBUTTONUP, 0, MessagePoint(-3, 4));
  EXPECT_EQ(Child.Log(), "");
}

TEST_F(ControlTest, ADoubleClickComesBeforeItsPress) {
  Child.OnDblClick = [this](TObject*) { Child.Note(QStringLiteral("double")); };
  Child.OnMouseDown = [this](TObject*, TMouseButton, TShiftState shift, int, int) {
    Child.Note(shift.Has(ssDouble) ? QStringLiteral("down+double") : QStringLiteral("down"));
  };
  Child.Perform(WM_LBUTTONDBLCLK, 0, MessagePoint(3, 4));
  EXPECT_EQ(Child.Log(), "double down+double");
}

TEST_F(ControlTest, NegativePositionsSurviveTheirMessage) {
  EXPECT_EQ(PointOfMessage(MessagePoint(-3, -70)), QPoint(-3, -70));
}

TEST_F(ControlTest, HelpGoesByWhatWasSetLast) {
  EXPECT_EQ(Child.GetHelpType(), htContext);
  Child.SetHelpKeyword(QStringLiteral("grids"));
  EXPECT_EQ(Child.GetHelpType(), htKeyword);
  Child.SetHelpContext(7);
  EXPECT_EQ(Child.GetHelpType(), htContext);
}

TEST_F(ControlTest, HelpThatIsTakenAwayDoesNotChangeWhatItGoesBy) {
  Child.SetHelpKeyword(QStringLiteral("grids"));
  Child.SetHelpContext(0);
  EXPECT_EQ(Child.GetHelpType(), htKeyword);
}

TEST_F(ControlTest, AskingForAPaintNeedsNoWindow) {
  Child.Invalidate();
  Child.Repaint();
  EXPECT_FALSE(Child.HandleAllocated());
  EXPECT_FALSE(Child.IsShowing());
}

}  // namespace
}  // namespace kt
