// Forms and scroll boxes whose controls take more room than there is.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/extctrls/Panel.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/forms/ScrollBox.h"
#include "kt/vcl/stdctrls/Edit.h"
#include "support/FormText.h"
#include "support/Print.h"
#include "support/WindowProbe.h"

#include <QScrollBar>
#include <QWheelEvent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kt {
namespace {

using testing::HasSubstr;
using testing::Not;
using tests::TWindowProbe;

/// A form with a client area of 200 x 100, and a control in it.
class ScrollingTest : public testing::Test {
 protected:
  ScrollingTest() {
    Form.SetClientWidth(200);
    Form.SetClientHeight(100);
    Child.SetParent(&Form);
    Child.SetBounds(10, 10, 50, 30);
  }
  void Show() {
    Form.Show();
    QApplication::setActiveWindow(Form.GetHandle());
    TWindowProbe::Settle();
  }
  TControlScrollBar& Horz() { return Form.GetHorzScrollBar(); }
  TControlScrollBar& Vert() { return Form.GetVertScrollBar(); }
  QScrollBar* Bar(Qt::Orientation orientation) {
    for (QScrollBar* bar : Form.GetHandle()->findChildren<QScrollBar*>(Qt::FindDirectChildrenOnly)) {
      if (bar->orientation() == orientation && !bar->isHidden()) return bar;
    }
    return nullptr;
  }
  bool Turn(int delta) {
    QWidget* const window = Form.GetHandle();
    QWheelEvent event({5, 5}, window->mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    event.ignore();
    QApplication::sendEvent(window, &event);
    return event.isAccepted();
  }

  std::unique_ptr<TForm> FForm = Make<TForm>();
  TForm& Form = *FForm;
  TPanel& Child = *New<TPanel>(FForm.get());
};

TEST_F(ScrollingTest, WhereAllHasRoomThereIsNoBar) {
  Show();
  EXPECT_EQ(Horz().GetRange(), 60);
  EXPECT_EQ(Vert().GetRange(), 40);
  EXPECT_EQ(Bar(Qt::Horizontal), nullptr);
  EXPECT_EQ(Bar(Qt::Vertical), nullptr);
  EXPECT_EQ(Form.GetClientWidth(), 200);
}

TEST_F(ScrollingTest, AChildBeyondTheEndBringsABarThatTakesRoom) {
  Show();
  Child.SetTop(150);
  ASSERT_TRUE(Bar(Qt::Vertical));
  EXPECT_EQ(Vert().GetRange(), 180);
  EXPECT_EQ(Form.GetClientWidth(), 200 - Bar(Qt::Vertical)->width());
  EXPECT_EQ(Form.GetClientHeight(), 100);
  EXPECT_EQ(Bar(Qt::Vertical)->geometry(), QRect(Form.GetClientWidth(), 0, Bar(Qt::Vertical)->width(), 100));
  Child.SetTop(10);
  EXPECT_EQ(Bar(Qt::Vertical), nullptr);
  EXPECT_EQ(Form.GetClientWidth(), 200);
}

TEST_F(ScrollingTest, TheRoomOfABarMayBringTheOther) {
  Show();
  Child.SetBounds(0, 0, 195, 150);
  EXPECT_TRUE(Bar(Qt::Vertical));
  EXPECT_TRUE(Bar(Qt::Horizontal));
}

TEST_F(ScrollingTest, ScrollingMovesTheChildrenAndTheirWindows) {
  Show();
  Child.SetTop(150);
  Vert().SetPosition(60);
  EXPECT_EQ(Child.GetBoundsRect(), QRect(10, 90, 50, 30));
  EXPECT_EQ(Child.GetHandle()->geometry(), QRect(10, 90, 50, 30));
  EXPECT_EQ(Bar(Qt::Vertical)->value(), 60);
  EXPECT_EQ(Vert().GetRange(), 180);
  Vert().SetPosition(5000);
  EXPECT_EQ(Vert().GetPosition(), 80);
  Vert().SetPosition(-1);
  EXPECT_EQ(Child.GetTop(), 150);
}

TEST_F(ScrollingTest, TheUserScrollsWithTheBar) {
  Show();
  Child.SetTop(150);
  Bar(Qt::Vertical)->triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(Vert().GetPosition(), 8);
  EXPECT_EQ(Child.GetTop(), 142);
  Vert().SetIncrement(20);
  Bar(Qt::Vertical)->triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(Vert().GetPosition(), 28);
}

TEST_F(ScrollingTest, WithoutTrackingTheChildrenWaitForTheThumb) {
  Show();
  Child.SetTop(150);
  Bar(Qt::Vertical)->setSliderDown(true);
  Bar(Qt::Vertical)->setSliderPosition(40);
  EXPECT_EQ(Child.GetTop(), 150);
  Bar(Qt::Vertical)->setSliderDown(false);
  EXPECT_EQ(Child.GetTop(), 110);
  Vert().SetTracking(true);
  Bar(Qt::Vertical)->setSliderDown(true);
  Bar(Qt::Vertical)->setSliderPosition(50);
  EXPECT_EQ(Child.GetTop(), 100);
  Bar(Qt::Vertical)->setSliderDown(false);
}

TEST_F(ScrollingTest, TheWheelScrollsWhatCanBeScrolled) {
  Show();
  EXPECT_FALSE(Turn(-120));
  Child.SetTop(150);
  EXPECT_TRUE(Turn(-60));
  EXPECT_EQ(Vert().GetPosition(), 0);
  EXPECT_TRUE(Turn(-60));
  EXPECT_EQ(Vert().GetPosition(), 48);
  EXPECT_TRUE(Turn(120));
  EXPECT_EQ(Vert().GetPosition(), 0);
}

TEST_F(ScrollingTest, AChildThatGetsTheKeyboardComesIntoView) {
  auto& edit = *New<TEdit>(&Form);
  edit.SetParent(&Form);
  edit.SetBounds(10, 150, 60, 24);
  Show();
  edit.SetFocus();
  EXPECT_GE(edit.GetTop(), 0);
  EXPECT_LE(edit.GetTop() + edit.GetHeight(), Form.GetClientHeight());
}

TEST_F(ScrollingTest, WhatBecomesSuperfluousIsScrolledBack) {
  Show();
  Child.SetTop(150);
  Vert().SetPosition(80);
  Form.SetHeight(Form.GetHeight() + 50);
  EXPECT_EQ(Vert().GetPosition(), 30);
  EXPECT_EQ(Child.GetTop(), 120);
  Form.SetHeight(Form.GetHeight() + 50);
  EXPECT_EQ(Vert().GetPosition(), 0);
  EXPECT_EQ(Child.GetTop(), 150);
}

TEST_F(ScrollingTest, AnchorsHoldWhileTheFormIsScrolled) {
  auto& anchored = *New<TPanel>(&Form);
  anchored.SetParent(&Form);
  anchored.SetBounds(100, 20, 40, 20);
  anchored.SetAnchors({akRight, akTop});
  Show();
  Child.SetTop(150);
  const int bar = Bar(Qt::Vertical)->width();
  EXPECT_EQ(anchored.GetLeft(), 100 - bar);
  Vert().SetPosition(30);
  EXPECT_EQ(anchored.GetBoundsRect().topLeft(), QPoint(100 - bar, -10));
  Form.SetWidth(Form.GetWidth() + 25);
  EXPECT_EQ(anchored.GetBoundsRect().topLeft(), QPoint(125 - bar, -10));
}

TEST_F(ScrollingTest, AlignedChildrenShareAllThatCanBeScrolledTo) {
  Form.SetAutoScroll(false);
  Vert().SetRange(300);
  Child.SetAlign(alClient);
  Show();
  EXPECT_EQ(Child.GetHeight(), 300);
  Vert().SetPosition(120);
  EXPECT_EQ(Child.GetTop(), -120);
  EXPECT_EQ(Child.GetHeight(), 300);
}

TEST_F(ScrollingTest, ABarThatIsNotVisibleNeverShows) {
  Show();
  Vert().SetVisible(false);
  Child.SetTop(150);
  EXPECT_EQ(Bar(Qt::Vertical), nullptr);
  Vert().SetVisible(true);
  EXPECT_TRUE(Bar(Qt::Vertical));
}

TEST_F(ScrollingTest, ARangeThatIsSetEndsAutoScroll) {
  Show();
  Vert().SetRange(400);
  EXPECT_FALSE(Form.IsAutoScroll());
  EXPECT_TRUE(Bar(Qt::Vertical));
  Form.SetAutoScroll(true);
  EXPECT_EQ(Vert().GetRange(), 40);
  EXPECT_EQ(Bar(Qt::Vertical), nullptr);
}

TEST_F(ScrollingTest, InADesignerAlignedControlsStayAsTheFormSays) {
  class TDesignedScroller : public TForm {
   public:
    using TComponent::SetDesigning;
  };
  const auto form = Make<TDesignedScroller>();
  form->SetDesigning(true);
  form->SetClientWidth(200);
  auto* const aligned = New<TPanel>(form.get());
  auto* const free = New<TPanel>(form.get());
  aligned->SetParent(form.get());
  aligned->SetAlign(alTop);
  free->SetParent(form.get());
  free->SetBounds(900, 60, 50, 20);
  EXPECT_EQ(aligned->GetWidth(), 200);
  EXPECT_EQ(form->GetHorzScrollBar().GetRange(), 0);
}

TEST_F(ScrollingTest, FromRightToLeftTheBarIsOnTheLeft) {
  Show();
  Child.SetTop(150);
  Form.SetBiDiMode(bdRightToLeft);
  EXPECT_EQ(Bar(Qt::Vertical)->x(), 0);
  EXPECT_EQ(Child.GetHandle()->x(), 10 + Bar(Qt::Vertical)->width());
}

TEST_F(ScrollingTest, ABorderWidthStaysFree) {
  Form.SetBorderWidth(6);
  Form.SetClientWidth(200);
  Show();
  EXPECT_EQ(Form.GetWidth(), 212);
  EXPECT_EQ(Child.GetHandle()->pos(), QPoint(16, 16));
}

TEST_F(ScrollingTest, AHandlerMayFreeTheFormThatTheUserScrolls) {
  Show();
  Child.SetTop(150);
  Child.OnCanResize = [this](TObject*, int&, int&, bool&) { FForm.reset(); };
  Bar(Qt::Vertical)->triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(FForm, nullptr);
}

TEST_F(ScrollingTest, AWindowThatIsMadeAnewHasItsBarsAgain) {
  Show();
  Child.SetTop(150);
  Vert().SetPosition(20);
  Form.Perform(CM_RECREATEWND);
  ASSERT_TRUE(Bar(Qt::Vertical));
  EXPECT_EQ(Bar(Qt::Vertical)->value(), 20);
  EXPECT_EQ(Child.GetTop(), 130);
}

// Streams.

TEST_F(ScrollingTest, WhatFollowsFromTheChildrenIsNotWritten) {
  Child.SetTop(150);
  EXPECT_THAT(tests::TextOf(&Form), Not(HasSubstr("ScrollBar")));
  EXPECT_THAT(tests::TextOf(&Form), Not(HasSubstr("AutoScroll")));
}

TEST_F(ScrollingTest, TheBorderOfAFormDecidesAboutAutoScrollUntilItIsSet) {
  Form.SetBorderStyle(bsDialog);
  EXPECT_FALSE(Form.IsAutoScroll());
  EXPECT_THAT(tests::TextOf(&Form), Not(HasSubstr("AutoScroll")));
  Form.SetAutoScroll(true);
  EXPECT_THAT(tests::TextOf(&Form), HasSubstr("AutoScroll = True"));
}

TEST(ScrollingStreamTest, AFormIsReadAsItSays) {
  RegisterVisualPlatform();
  const auto form = Make<TForm>();
  const char text[] = R"(object Form1: TForm
  Left = 0
  Top = 0
  Width = 200
  Height = 100
  HorzScrollBar.Increment = 17
  VertScrollBar.Position = 30
  VertScrollBar.Range = 400
  VertScrollBar.Tracking = True
  AutoScroll = False
  object Box: TScrollBox
    Left = 5
    Top = -20
    Width = 100
    Height = 50
    HorzScrollBar.Visible = False
    TabOrder = 0
  end
end
)";
  ReadFormText(*form, text);
  EXPECT_FALSE(form->IsAutoScroll());
  EXPECT_EQ(form->GetVertScrollBar().GetPosition(), 30);
  EXPECT_EQ(form->GetVertScrollBar().GetRange(), 400);
  EXPECT_EQ(form->GetControls(0)->GetTop(), -20);
  const std::string written = tests::TextOf(form.get());
  for (const char* line : {"HorzScrollBar.Increment = 17", "VertScrollBar.Position = 30", "VertScrollBar.Range = 400",
                           "VertScrollBar.Tracking = True", "AutoScroll = False", "HorzScrollBar.Visible = False"}) {
    EXPECT_THAT(written, HasSubstr(line));
  }
  form->GetVertScrollBar().SetPosition(0);
  EXPECT_EQ(form->GetControls(0)->GetTop(), 10);
}

TEST(ScrollBoxTest, AScrollBoxScrollsInsideItsBorder) {
  const auto form = Make<TForm>();
  auto& box = *New<TScrollBox>(form.get());
  auto& child = *New<TPanel>(form.get());
  box.SetParent(form.get());
  box.SetBounds(10, 10, 104, 54);
  child.SetParent(&box);
  child.SetBounds(0, 0, 80, 90);
  form->Show();
  TWindowProbe::Settle();
  EXPECT_TRUE(box.GetVertScrollBar().IsShown());
  EXPECT_FALSE(box.GetHorzScrollBar().IsShown());
  EXPECT_EQ(box.GetClientHeight(), 50);
  box.GetVertScrollBar().SetPosition(40);
  EXPECT_EQ(child.GetHandle()->pos(), QPoint(2, -38));
  EXPECT_FALSE(form->GetVertScrollBar().IsShown());
}

}  // namespace
}  // namespace kt
