// Where the window of a control is, whether it shows, and who gets the mouse.
#include "kt/rtl/objects/Make.h"
#include "support/ControlProbe.h"
#include "support/Expect.h"
#include "support/WindowProbe.h"

#include <QLabel>
#include <QPointer>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TWindowProbe;

class TProbe : public tests::TControlProbe {
 public:
  using TControlProbe::SetMouseCapture;

 protected:
  explicit TProbe(TComponent* owner = nullptr) : TControlProbe(owner) {}
};

TEST(WinControlWindowTest, AWindowFollowsItsControlToAParent) {
  auto parent = Make<TProbe>();
  auto& child = *New<TProbe>(parent.get());
  child.SetBounds(5, 6, 70, 80);
  QWidget* const window = child.GetHandle();
  parent->HandleNeeded();
  child.SetParent(parent.get());
  EXPECT_EQ(child.GetHandle(), window);
  EXPECT_EQ(window->parentWidget(), parent->GetHandle());
  EXPECT_EQ(window->geometry(), QRect(5, 6, 70, 80));
  EXPECT_TRUE(window->isVisibleTo(parent->GetHandle()));
}

TEST(WinControlWindowTest, AWindowThatItsParentCutOffShowsWholeWhenTheParentGrows) {
  auto parent = Make<TProbe>();
  parent->SetBounds(0, 0, 50, 50);
  auto& child = *New<TProbe>(parent.get());
  child.SetBounds(30, 30, 40, 40);
  child.SetParent(parent.get());
  parent->HandleNeeded();
  EXPECT_EQ(child.GetHandle()->mask().boundingRect(), QRect(0, 0, 20, 20));
  parent->SetBounds(0, 0, 100, 60);
  EXPECT_EQ(child.GetHandle()->mask().boundingRect(), QRect(0, 0, 40, 30));
  parent->SetBounds(0, 0, 100, 100);
  EXPECT_TRUE(child.GetHandle()->mask().isEmpty());
}

TEST(WinControlWindowTest, AControlHasNoWindowInAParentWithoutOne) {
  auto parent = Make<TProbe>();
  auto& child = *New<TProbe>(parent.get());
  child.HandleNeeded();
  child.SetParent(parent.get());
  EXPECT_FALSE(child.HandleAllocated());
  parent->HandleNeeded();
  EXPECT_EQ(child.GetHandle()->parentWidget(), parent->GetHandle());
}

TEST(WinControlWindowTest, AControlThatWasEmbeddedLeavesTheLayoutForItsParent) {
  auto parent = Make<TProbe>();
  auto& child = *New<TProbe>(parent.get());
  TWindowProbe window(child);
  parent->HandleNeeded();
  child.SetParent(parent.get());
  EXPECT_EQ(window.Window()->layout()->count(), 0);
  EXPECT_EQ(child.GetHandle()->parentWidget(), parent->GetHandle());
}

TEST(WinControlWindowTest, AControlInALayoutReadsAsTheWindowAroundIt) {
  auto control = Make<TProbe>();
  auto& child = *New<TProbe>(control.get());
  child.SetParent(control.get());
  TWindowProbe window(*control);
  window.Window()->setLayoutDirection(Qt::RightToLeft);
  EXPECT_EQ(control->GetBiDiMode(), bdRightToLeft);
  EXPECT_EQ(child.GetBiDiMode(), bdRightToLeft);
  EXPECT_TRUE(control->IsParentBiDiMode());
  window.Window()->setLayoutDirection(Qt::LeftToRight);
  EXPECT_EQ(control->GetBiDiMode(), bdLeftToRight);
  EXPECT_EQ(child.GetBiDiMode(), bdLeftToRight);
}

TEST(WinControlWindowTest, AControlThatIsPutIntoALayoutReadsAsItsWindowFromThenOn) {
  QWidget host;
  host.setLayoutDirection(Qt::RightToLeft);
  auto control = Make<TProbe>();
  control->GetHandle()->setParent(&host);
  EXPECT_EQ(control->GetBiDiMode(), bdRightToLeft);
}

TEST(WinControlWindowTest, AControlWithADirectionOfItsOwnKeepsIt) {
  auto control = Make<TProbe>();
  control->SetBiDiMode(bdRightToLeftReadingOnly);
  TWindowProbe window(*control);
  window.Window()->setLayoutDirection(Qt::RightToLeft);
  EXPECT_EQ(control->GetBiDiMode(), bdRightToLeftReadingOnly);
}

TEST(WinControlWindowTest, WhatIsInvisibleIsNotShownByALayout) {
  auto control = Make<TProbe>();
  control->SetVisible(false);
  TWindowProbe window(*control);
  EXPECT_FALSE(control->GetHandle()->isVisible());
  control->SetVisible(true);
  EXPECT_TRUE(control->GetHandle()->isVisible());
}

TEST(WinControlWindowTest, WhatWasHiddenBeforeItIsEmbeddedIsNotShown) {
  auto control = Make<TProbe>();
  control->HandleNeeded();
  control->SetVisible(false);
  TWindowProbe window(*control);
  EXPECT_FALSE(control->IsShowing());
}

TEST(WinControlWindowTest, WhatBecomesVisibleBeforeItIsEmbeddedAppearsWithItsSurroundings) {
  auto control = Make<TProbe>();
  control->SetVisible(false);
  control->HandleNeeded();
  control->SetVisible(true);
  EXPECT_FALSE(control->GetHandle()->isVisible());
  TWindowProbe window(*control);
  EXPECT_TRUE(control->IsShowing());
}

TEST(WinControlWindowTest, ARecreatedWindowStandsWhereTheOldOneWas) {
  auto parent = Make<TProbe>();
  auto& child = *New<TProbe>(parent.get());
  child.SetParent(parent.get());
  child.SetBounds(5, 6, 70, 80);
  TWindowProbe window(*parent);
  const QPointer<QWidget> old = child.GetHandle();
  child.Perform(CM_RECREATEWND);
  EXPECT_TRUE(old.isNull());
  EXPECT_EQ(child.GetHandle()->geometry(), QRect(5, 6, 70, 80));
  EXPECT_TRUE(child.IsShowing());
}

TEST(WinControlWindowTest, ARecreatedWindowHasTheFocusOfTheOldOne) {
  auto parent = Make<TProbe>();
  auto& child = *New<TProbe>(parent.get());
  child.SetParent(parent.get());
  TWindowProbe window(*parent);
  child.SetFocus();
  child.Perform(CM_RECREATEWND);
  EXPECT_TRUE(child.Focused());
}

TEST(WinControlWindowTest, ARecreatedWindowKeepsItsPlaceInTheLayout) {
  auto control = Make<TProbe>();
  auto& child = *New<TProbe>(control.get());
  child.SetParent(control.get());
  TWindowProbe window(*control);
  window.Window()->layout()->addWidget(new QLabel);
  const QPointer<QWidget> old = control->GetHandle();
  control->Perform(CM_RECREATEWND);
  TWindowProbe::Settle();
  EXPECT_TRUE(old.isNull());
  EXPECT_EQ(window.Window()->layout()->indexOf(control->GetHandle()), 0);
  EXPECT_EQ(window.Window()->layout()->count(), 2);
  EXPECT_TRUE(control->IsShowing());
  EXPECT_TRUE(child.IsShowing());
}

TEST(WinControlWindowTest, ARecreatedWindowIsInThePlaceItHadWithoutALayout) {
  auto control = Make<TProbe>();
  QWidget host;
  control->GetHandle()->setParent(&host);
  control->GetHandle()->setGeometry(7, 8, 90, 60);
  host.show();
  control->Perform(CM_RECREATEWND);
  EXPECT_EQ(control->GetHandle()->parentWidget(), &host);
  EXPECT_EQ(control->GetHandle()->geometry(), QRect(7, 8, 90, 60));
  EXPECT_TRUE(control->GetHandle()->isVisible());
}

TEST(WinControlWindowTest, WithoutAWindowThereIsNothingToRecreate) {
  auto control = Make<TProbe>();
  control->Perform(CM_RECREATEWND);
  EXPECT_FALSE(control->HandleAllocated());
}

/// Two controls side by side in a window.
class WinControlCaptureTest : public testing::Test {
 protected:
  WinControlCaptureTest() {
    Left.SetParent(FParent.get());
    Left.SetBounds(0, 0, 100, 100);
    Right.SetParent(FParent.get());
    Right.SetBounds(100, 0, 100, 100);
    Left.OnMouseDown = Note("left");
    Right.OnMouseDown = Note("right");
    FWindow = std::make_unique<TWindowProbe>(*FParent);
  }
  TMouseEvent Note(const char* who) {
    return [this, who](TObject*, TMouseButton, TShiftState, int x, int y) {
      FLog += QStringLiteral("%1(%2,%3)").arg(QLatin1String(who)).arg(x).arg(y);
    };
  }
  /// What a press at a place of the window tells.
  QString PressAt(QPoint point) {
    QWindow* const window = FWindow->Window()->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, point);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, point);
    return std::exchange(FLog, {}).join(u' ');
  }

  QStringList FLog;
  std::unique_ptr<TProbe> FParent = Make<TProbe>();
  TProbe& Left = *New<TProbe>(FParent.get());
  TProbe& Right = *New<TProbe>(FParent.get());
  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(WinControlCaptureTest, ThePressGoesToWhatIsUnderTheMouse) { EXPECT_EQ(PressAt({150, 20}), "right(50,20)"); }

TEST_F(WinControlCaptureTest, WhoCapturedTheMouseGetsThePressFromElsewhere) {
  Left.SetMouseCapture(true);
  EXPECT_TRUE(Left.HasMouseCapture());
  EXPECT_EQ(PressAt({150, 20}), "left(150,20)");
  Left.SetMouseCapture(false);
  EXPECT_EQ(PressAt({150, 20}), "right(50,20)");
}

TEST_F(WinControlCaptureTest, TheLastOneToCaptureHasIt) {
  Left.SetMouseCapture(true);
  Right.SetMouseCapture(true);
  EXPECT_FALSE(Left.HasMouseCapture());
  EXPECT_EQ(PressAt({20, 20}), "right(-80,20)");
  Right.SetMouseCapture(false);
}

TEST_F(WinControlCaptureTest, WhoDoesNotHaveItCannotGiveItUp) {
  Left.SetMouseCapture(true);
  Right.SetMouseCapture(false);
  EXPECT_TRUE(Left.HasMouseCapture());
  Left.SetMouseCapture(false);
}

TEST_F(WinControlCaptureTest, AWindowThatGoesLetsGo) {
  Left.SetMouseCapture(true);
  Left.SetParent(nullptr);
  EXPECT_FALSE(Left.HasMouseCapture());
  EXPECT_EQ(PressAt({150, 20}), "right(50,20)");
}

TEST(WinControlWindowTest, CapturingTheMouseMakesTheWindow) {
  auto control = Make<TProbe>();
  control->SetMouseCapture(true);
  EXPECT_TRUE(control->HandleAllocated());
  EXPECT_TRUE(control->HasMouseCapture());
  control->SetMouseCapture(false);
}

}  // namespace
}  // namespace kt
