// Forms and their controls while they are being designed.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/stdctrls/Button.h"
#include "support/WindowProbe.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::TWindowProbe;

class TDesignedForm : public TForm {
 public:
  TDesignedForm() : TForm(nullptr) {}
  using TComponent::SetDesigning;
};

class FormDesignTest : public testing::Test {
 protected:
  FormDesignTest() { Form->SetDesigning(true); }
  TButton* AddButton() {
    auto* button = New<TButton>(Form.get());
    button->SetParent(Form.get());
    return button;
  }
  /// Into the window of a designer.
  void Embed() {
    Form->GetHandle()->setParent(&Designer);
    Form->GetHandle()->show();
    Designer.show();
    TWindowProbe::Settle();
  }

  QWidget Designer;
  std::unique_ptr<TDesignedForm> Form = Make<TDesignedForm>();
};

TEST_F(FormDesignTest, AVisibleFormDoesNotAppearByItself) {
  Form->SetVisible(true);
  EXPECT_FALSE(Form->HandleAllocated());
}

TEST_F(FormDesignTest, AnEmbeddedFormStaysWhateverItSaysOfItself) {
  Embed();
  Form->SetVisible(true);
  Form->SetVisible(false);
  Form->SetBorderStyle(bsDialog);
  Form->SetWindowState(wsMinimized);
  EXPECT_TRUE(Form->GetHandle()->isVisible());
  EXPECT_FALSE(Form->GetHandle()->isWindow());
}

TEST_F(FormDesignTest, AHiddenDesignerKeepsTheFormInIt) {
  Embed();
  Designer.hide();
  Form->SetBorderStyle(bsDialog);
  Form->SetBorderIcons({});
  EXPECT_FALSE(Form->GetHandle()->isWindow());
}

TEST_F(FormDesignTest, HiddenControlsCanBeSeen) {
  TButton* button = AddButton();
  button->SetVisible(false);
  Embed();
  EXPECT_TRUE(button->GetHandle()->isVisible());
  button->SetVisible(true);
  button->SetVisible(false);
  EXPECT_TRUE(button->GetHandle()->isVisible());
}

TEST_F(FormDesignTest, TheActiveControlMayStandOnSomethingUnknown) {
  auto* button = New<TButton>(Form.get());
  Form->SetActiveControl(button);
  EXPECT_EQ(Form->GetActiveControl(), button);
  delete button;
  EXPECT_EQ(Form->GetActiveControl(), nullptr);
}

TEST_F(FormDesignTest, TheActiveControlDoesNotTakeTheKeyboard) {
  QLineEdit elsewhere(&Designer);
  TButton* button = AddButton();
  Embed();
  QApplication::setActiveWindow(&Designer);
  elsewhere.setFocus();
  Form->SetActiveControl(button);
  EXPECT_TRUE(elsewhere.hasFocus());
}

}  // namespace
}  // namespace kt
