#include "kt/vcl/stdctrls/CheckBox.h"
#include "kt/vcl/stdctrls/RadioButton.h"
#include "support/FormText.h"
#include "vcl/stdctrls/ButtonFixture.h"

namespace kt::tests {
namespace {

class RadioButtonTest : public TButtonTest {
 protected:
  /// Three on the form: "-x-" for the second one checked, as the controls and their windows say.
  void AddThree() {
    for (int i = 0; i < 3; ++i) FRadios.push_back(&Add<TRadioButton>(QString(QChar(u'a' + i)), 20 * i));
  }
  std::string Checked() {
    std::string text;
    for (TRadioButton* radio : FRadios) {
      EXPECT_TRUE(!radio->HandleAllocated() || ButtonOf(*radio)->isChecked() == radio->IsChecked());
      text += radio->IsChecked() ? 'x' : '-';
    }
    return text;
  }

  std::vector<TRadioButton*> FRadios;
};

TEST_F(RadioButtonTest, AClickTakesTheSignFromTheOthers) {
  AddThree();
  Show();
  Click(*FRadios[1]);
  EXPECT_EQ("-x-", Checked());
  Click(*FRadios[2]);
  EXPECT_EQ("--x", Checked());
  EXPECT_EQ("b c", TakeLog());
}

TEST_F(RadioButtonTest, AClickOnTheCheckedOneChangesNothing) {
  AddThree();
  Show();
  Click(*FRadios[1]);
  TakeLog();
  Click(*FRadios[1]);
  EXPECT_EQ("-x-", Checked());
  EXPECT_EQ("", TakeLog());
}

TEST_F(RadioButtonTest, WithoutWindowsItIsTheSame) {
  AddThree();
  FRadios[0]->SetChecked(true);
  FRadios[2]->SetChecked(true);
  EXPECT_EQ("--x", Checked());
  EXPECT_EQ("a c", TakeLog());
}

TEST_F(RadioButtonTest, OnlyTheCheckedOneIsAStopOfTheTabKey) {
  AddThree();
  FRadios[1]->SetChecked(true);
  EXPECT_FALSE(FRadios[0]->IsTabStop());
  EXPECT_TRUE(FRadios[1]->IsTabStop());
}

TEST_F(RadioButtonTest, ThoseOfAnotherParentKeepTheirSign) {
  AddThree();
  auto& other = *New<TForm>(FForm.get());
  auto& radio = *New<TRadioButton>(&other);
  radio.SetParent(&other);
  radio.SetChecked(true);
  FRadios[0]->SetChecked(true);
  EXPECT_TRUE(radio.IsChecked());
}

TEST_F(RadioButtonTest, AHandlerThatFreesTheSiblingsIsSurvived) {
  AddThree();
  Show();
  Click(*FRadios[0]);
  FRadios[1]->OnClick = [this](TObject*) {
    delete std::exchange(FRadios[0], nullptr);
    delete std::exchange(FRadios[2], nullptr);
  };
  Click(*FRadios[1]);
  EXPECT_TRUE(FRadios[1]->IsChecked());
}

// The arrow keys.

TEST_F(RadioButtonTest, TheArrowsTakeTheSignToTheNextOneAndAround) {
  AddThree();
  Show();
  FRadios[0]->SetFocus();
  FRadios[0]->SetChecked(true);
  TakeLog();
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ("-x-", Checked());
  TWindowProbe::Key(Qt::Key_Right);
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ("x--", Checked());
  TWindowProbe::Key(Qt::Key_Up);
  EXPECT_EQ("--x", Checked());
  EXPECT_TRUE(FRadios[2]->Focused());
  EXPECT_EQ("b c a c", TakeLog());
}

TEST_F(RadioButtonTest, TheArrowsPassByWhatCannotBeClickedAndByOtherControls) {
  AddThree();
  Add<TCheckBox>("box", 70).SetTabOrder(1);
  FRadios[1]->SetEnabled(false);
  Show();
  FRadios[0]->SetFocus();
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ("--x", Checked());
  EXPECT_TRUE(FRadios[2]->Focused());
}

TEST_F(RadioButtonTest, AnArrowThatAHandlerTakesLeadsNowhere) {
  AddThree();
  Show();
  FRadios[0]->SetFocus();
  FRadios[0]->OnKeyDown = [](TObject*, quint16& key, TShiftState) { key = 0; };
  TWindowProbe::Key(Qt::Key_Down);
  EXPECT_EQ("---", Checked());
}

TEST_F(RadioButtonTest, TheFormMayGoAsAnArrowLeadsOn) {
  AddThree();
  Show();
  FRadios[0]->SetFocus();
  FRadios[1]->OnClick = [this](TObject*) { FForm.reset(); };
  QTest::keyPress(FRadios[0]->GetHandle(), Qt::Key_Down);
  EXPECT_EQ(nullptr, FForm);
}

TEST_F(RadioButtonTest, OnlyOneThatIsCheckedSaysWhetherItIsATabStop) {
  AddThree();
  FRadios[0]->SetChecked(true);
  const auto says = [](TRadioButton* radio) { return TextOf(radio).find("TabStop") != std::string::npos; };
  EXPECT_TRUE(says(FRadios[0]));
  EXPECT_FALSE(says(FRadios[1]));
  FRadios[0]->SetTabStop(false);
  EXPECT_TRUE(says(FRadios[0]));
}

}  // namespace
}  // namespace kt::tests
