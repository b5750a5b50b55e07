// What forms say of controls besides their properties, and of the frames of windows.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/extctrls/Panel.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/stdctrls/Edit.h"
#include "support/FormText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kt {
namespace {

using testing::HasSubstr;
using testing::Not;

class TDrawnForm : public TForm {
 public:
  TDrawnForm() : TForm(nullptr) {}
  using TComponent::SetDesigning;
};

constexpr char kFormWithDefinedValues[] = R"(object Form1: TForm
  ClientHeight = 100
  ClientWidth = 200
  DesignSize = (
    200
    100)
  object Panel1: TPanel
    Left = 10
    Top = 10
    Width = 50
    Height = 20
    ExplicitLeft = 3
    ExplicitWidth = 77
    TabOrder = 0
  end
end
)";

class ControlDefinedTest : public testing::Test {
 protected:
  ControlDefinedTest() { RegisterVisualPlatform(); }
  void Read() { ReadFormText(*FForm, kFormWithDefinedValues); }
  TPanel& Panel() { return *dynamic_cast<TPanel*>(FForm->FindComponent(QStringLiteral("Panel1"))); }
  std::string Written() { return tests::TextOf(FForm.get()); }

  std::unique_ptr<TDrawnForm> FForm = Make<TDrawnForm>();
};

TEST_F(ControlDefinedTest, WhatAFormSaysIsReadAndWrittenAgain) {
  Read();
  EXPECT_THAT(Written(), HasSubstr("ExplicitLeft = 3"));
  EXPECT_THAT(Written(), HasSubstr("ExplicitWidth = 77"));
  EXPECT_THAT(Written(), Not(HasSubstr("ExplicitTop")));
  EXPECT_THAT(Written(), HasSubstr("DesignSize = (\n    200\n    100)"));
}

TEST_F(ControlDefinedTest, NothingIsSaidOfAFormThatSaidNothing) {
  New<TPanel>(FForm.get())->SetParent(FForm.get());
  EXPECT_THAT(Written(), Not(HasSubstr("Explicit")));
  EXPECT_THAT(Written(), Not(HasSubstr("DesignSize")));
}

TEST_F(ControlDefinedTest, TheDesignSizeFollowsTheFormInADesigner) {
  Read();
  FForm->SetDesigning(true);
  FForm->SetClientWidth(240);
  EXPECT_THAT(Written(), HasSubstr("DesignSize = (\n    240\n    100)"));
}

TEST_F(ControlDefinedTest, Ctl3DComesFromTheParentUntilItIsSet) {
  auto* const panel = New<TPanel>(FForm.get());
  auto* const edit = New<TEdit>(FForm.get());
  panel->SetParent(FForm.get());
  edit->SetParent(panel);
  FForm->SetCtl3D(false);
  EXPECT_FALSE(edit->IsCtl3D());
  EXPECT_FALSE(edit->IsCtl3DStored());
  edit->SetCtl3D(true);
  EXPECT_TRUE(edit->IsCtl3DStored());
  panel->SetCtl3D(true);
  panel->SetCtl3D(false);
  EXPECT_TRUE(edit->IsCtl3D());
  edit->SetParentCtl3D(true);
  EXPECT_FALSE(edit->IsCtl3D());
}

TEST_F(ControlDefinedTest, WithoutAnInputMethodTheWindowAsksForNone) {
  auto* const edit = New<TEdit>(FForm.get());
  edit->SetParent(FForm.get());
  edit->SetImeMode(imDisable);
  EXPECT_FALSE(edit->GetHandle()->testAttribute(Qt::WA_InputMethodEnabled));
  edit->SetImeMode(imOpen);
  EXPECT_TRUE(edit->GetHandle()->testAttribute(Qt::WA_InputMethodEnabled));
}

}  // namespace
}  // namespace kt
