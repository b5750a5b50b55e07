#include "kt/vcl/graphics/RealFont.h"
#include "kt/vcl/stdctrls/Button.h"
#include "vcl/stdctrls/ButtonFixture.h"

namespace kt::tests {
namespace {

class ButtonTest : public TButtonTest {};

TEST_F(ButtonTest, AClickIsToldOnce) {
  TButton& button = Add<TButton>("ok");
  Show();
  Click(button);
  EXPECT_EQ("ok", TakeLog());
}

TEST_F(ButtonTest, AReleaseElsewhereIsNoClick) {
  TButton& button = Add<TButton>("ok");
  Show();
  QTest::mousePress(button.GetHandle(), Qt::LeftButton);
  QTest::mouseMove(button.GetHandle(), QPoint(200, 200));
  QTest::mouseRelease(button.GetHandle(), Qt::LeftButton, {}, QPoint(200, 200));
  EXPECT_EQ("", TakeLog());
}

TEST_F(ButtonTest, APressThatComesTwiceIsTwoClicks) {
  TButton& button = Add<TButton>("ok");
  Show();
  Click(button);
  QTest::mouseDClick(button.GetHandle(), Qt::LeftButton);
  QTest::mouseRelease(button.GetHandle(), Qt::LeftButton);
  EXPECT_EQ("ok ok", TakeLog());
}

TEST_F(ButtonTest, TheSpaceBarClicksTheFocusedButton) {
  TButton& first = Add<TButton>("first");
  Add<TButton>("second", 30);
  Show();
  first.SetFocus();
  TWindowProbe::Key(Qt::Key_Space);
  EXPECT_EQ("first", TakeLog());
}

TEST_F(ButtonTest, TheMouseEventsComeAsWell) {
  TButton& button = Add<TButton>("click");
  button.OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { FLog += "down"; };
  button.OnMouseUp = [this](TObject*, TMouseButton, TShiftState, int, int) { FLog += "up"; };
  Show();
  Click(button);
  EXPECT_EQ("down click up", TakeLog());
}

TEST_F(ButtonTest, ADisabledButtonIsNotClicked) {
  TButton& button = Add<TButton>("ok");
  button.SetEnabled(false);
  Show();
  Click(button);
  EXPECT_EQ("", TakeLog());
}

TEST_F(ButtonTest, AClickInCodeNeedsNoWindow) {
  TButton& button = Add<TButton>("ok");
  button.Click();
  EXPECT_EQ("ok", TakeLog());
}

// Enter and Escape.

TEST_F(ButtonTest, EnterClicksTheDefaultButtonAndEscapeTheOneToCancel) {
  TButton& ok = Add<TButton>("ok");
  TButton& cancel = Add<TButton>("cancel", 30);
  ok.SetDefault(true);
  cancel.SetCancel(true);
  Show();
  FForm->SetFocus();
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ("ok", TakeLog());
  TWindowProbe::Key(Qt::Key_Escape);
  EXPECT_EQ("cancel", TakeLog());
}

TEST_F(ButtonTest, EnterClicksTheButtonWithTheKeyboardBeforeTheDefaultOne) {
  TButton& ok = Add<TButton>("ok");
  TButton& other = Add<TButton>("other", 30);
  ok.SetDefault(true);
  Show();
  other.SetFocus();
  EXPECT_TRUE(other.IsActiveDefault());
  EXPECT_FALSE(ok.IsActiveDefault());
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ("other", TakeLog());
}

TEST_F(ButtonTest, EnterWithAnotherKeyHeldClicksNothing) {
  TButton& ok = Add<TButton>("ok");
  ok.SetDefault(true);
  Show();
  FForm->SetFocus();
  TWindowProbe::Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ("", TakeLog());
}

TEST_F(ButtonTest, AHiddenDefaultButtonIsNotClicked) {
  TButton& ok = Add<TButton>("ok");
  ok.SetDefault(true);
  ok.SetVisible(false);
  Show();
  FForm->SetFocus();
  TWindowProbe::Key(Qt::Key_Return);
  EXPECT_EQ("", TakeLog());
}

TEST_F(ButtonTest, AClickAnswersTheFormBeforeItIsTold) {
  TButton& button = Add<TButton>("ok");
  button.SetModalResult(mrYes);
  button.OnClick = [this](TObject*) { FLog += QString::number(FForm->GetModalResult()); };
  Show();
  Click(button);
  EXPECT_EQ("6", TakeLog());
}

// Looks.

TEST_F(ButtonTest, TheCaptionShows) {
  TButton& button = Add<TButton>("&Save");
  Show();
  EXPECT_EQ("&Save", ButtonOf(button)->text());
  button.SetCaption("Load");
  EXPECT_EQ("Load", ButtonOf(button)->text());
}

TEST_F(ButtonTest, TheMarkedLetterPressesItTogetherWithAlt) {
  TButton& button = Add<TButton>("&Save");
  Add<TButton>("other", 30);
  Show();
  FForm->SetFocus();
  QTest::keyClick(FForm->GetHandle(), Qt::Key_S, Qt::AltModifier);
  // Qt shows it pressed for a moment, then clicks.
  EXPECT_TRUE(ButtonOf(button)->isDown());
}

TEST_F(ButtonTest, TheFontIsThatOfTheControl) {
  TButton& button = Add<TButton>("ok");
  Show();
  button.GetFont().SetSize(20);
  button.GetFont().SetColor(clRed);
  EXPECT_EQ(QtFont(button.GetFont()), button.GetHandle()->font());
  EXPECT_EQ(QColor(Qt::red), button.GetHandle()->palette().color(QPalette::ButtonText));
}

// Handlers.

TEST_F(ButtonTest, AButtonMayGoInItsOwnClickInCode) {
  TButton* button = &Add<TButton>("ok");
  Show();
  button->OnClick = [&button](TObject*) {
    delete button;
    button = nullptr;
  };
  Click(*button);
  EXPECT_EQ(nullptr, button);
}

TEST_F(ButtonTest, WhatAHandlerRaisesGoesToTheApplication) {
  TButton& button = Add<TButton>("ok");
  Application().OnException = [this](TObject*, const Exception& error) { FLog += error.Message(); };
  button.OnClick = [](TObject*) { throw Exception("no"); };
  Show();
  Click(button);
  EXPECT_EQ("no", TakeLog());
}

}  // namespace
}  // namespace kt::tests
