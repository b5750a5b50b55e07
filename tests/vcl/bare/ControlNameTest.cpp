// How the text of a control keeps to its name.
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/stdctrls/Button.h"
#include "kt/vcl/stdctrls/Edit.h"
#include "kt/vcl/stdctrls/Memo.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

TEST(ControlNameTest, ANewControlIsCalledAsItIsNamed) {
  const auto button = Make<TButton>();
  button->SetName(QStringLiteral("Button1"));
  EXPECT_EQ(button->GetCaption(), QStringLiteral("Button1"));
  button->SetName(QStringLiteral("Go"));
  EXPECT_EQ(button->GetCaption(), QStringLiteral("Go"));
}

TEST(ControlNameTest, ATextOfItsOwnStays) {
  const auto button = Make<TButton>();
  button->SetName(QStringLiteral("Button1"));
  button->SetCaption(QStringLiteral("&Go"));
  button->SetName(QStringLiteral("Go"));
  EXPECT_EQ(button->GetCaption(), QStringLiteral("&Go"));
}

TEST(ControlNameTest, EditsFollowAsWell) {
  const auto edit = Make<TEdit>();
  edit->SetName(QStringLiteral("Edit1"));
  EXPECT_EQ(edit->GetText(), QStringLiteral("Edit1"));
  const auto memo = Make<TMemo>();
  memo->SetName(QStringLiteral("Memo1"));
  EXPECT_EQ(memo->GetText(), QStringLiteral("Memo1"));
}

TEST(ControlNameTest, AKindThatSetsNoCaptionKeepsItsText) {
  class TQuiet : public TButton {
   protected:
    void Construct() override {
      TButton::Construct();
      FControlStyle.Exclude(csSetCaption);
    }
  };
  const auto button = Make<TQuiet>();
  button->SetName(QStringLiteral("Button1"));
  EXPECT_EQ(button->GetCaption(), QString());
}

TEST(ControlNameTest, ATextThatAFormLeavesOutStaysEmpty) {
  RegisterVisualPlatform();
  const auto form = Make<TForm>();
  ReadFormText(*form, "object Form1: TForm\n  object Button1: TButton\n  end\nend\n");
  const auto* const button = dynamic_cast<TButton*>(form->FindComponent(QStringLiteral("Button1")));
  ASSERT_TRUE(button);
  EXPECT_EQ(button->GetCaption(), QString());
  EXPECT_EQ(form->GetCaption(), QString());
}

}  // namespace
}  // namespace kt
