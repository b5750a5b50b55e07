// How a label leads to the control that it is for.
#include "kt/vcl/stdctrls/CustomEdit.h"
#include "kt/vcl/stdctrls/Label.h"
#include "support/PaintWorld.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

/// Something for the keyboard to be in.
class TNamedEdit : public TCustomEdit {
 public:
  using Inherited = TCustomEdit;

 protected:
  explicit TNamedEdit(TComponent* owner = nullptr) : TCustomEdit(owner) {}
};

class LabelFocusTest : public tests::TPaintWorld {
 protected:
  LabelFocusTest() {
    Other.SetTabOrder(0);
    Label.SetCaption("&Name");
    Label.SetFocusControl(&Edit);
    Show();
    Other.SetFocus();
  }
  TNamedEdit& Edit = Add<TNamedEdit>("Edit", {10, 30, 80, 20});
  TNamedEdit& Other = Add<TNamedEdit>("Other", {10, 60, 80, 20});
  TLabel& Label = Add<TLabel>("Label", {10, 10, 65, 17});
};

TEST_F(LabelFocusTest, ItsLetterTogetherWithAltLeadsToWhatItIsFor) {
  tests::TWindowProbe::Key(Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(Edit.Focused());
  EXPECT_EQ("Other", Other.GetText().toStdString());
}

TEST_F(LabelFocusTest, AnotherLetterDoesNot) {
  tests::TWindowProbe::Key(Qt::Key_A, Qt::AltModifier);
  tests::TWindowProbe::Key(Qt::Key_N);
  EXPECT_TRUE(Other.Focused());
  EXPECT_EQ("n", Other.GetText().toStdString());
}

TEST_F(LabelFocusTest, AClickLeadsThereToo) {
  Label.OnClick = [this](TObject*) { Note("click"); };
  QTest::mouseClick(Window(), Qt::LeftButton, {}, {12, 12});
  EXPECT_TRUE(Edit.Focused());
  EXPECT_EQ("click", Log());
}

TEST_F(LabelFocusTest, ADisabledOneAndOneInADesignerDoNot) {
  Label.SetEnabled(false);
  tests::TWindowProbe::Key(Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(Other.Focused());
  Label.SetEnabled(true);
  FForm->SetDesigning(true);
  tests::TWindowProbe::Key(Qt::Key_N, Qt::AltModifier);
  QTest::mouseClick(Window(), Qt::LeftButton, {}, {12, 12});
  EXPECT_TRUE(Other.Focused());
}

TEST_F(LabelFocusTest, WithoutALetterToShowThereIsNone) {
  Label.SetShowAccelChar(false);
  tests::TWindowProbe::Key(Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(Other.Focused());
}

TEST_F(LabelFocusTest, WhatItIsForMayGo) {
  delete &Edit;
  EXPECT_EQ(nullptr, Label.GetFocusControl());
  tests::TWindowProbe::Key(Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(Other.Focused());
}

TEST_F(LabelFocusTest, ItMayGoInAClickOrWhenTheKeyboardMoves) {
  Edit.OnEnter = [this](TObject*) { delete &Label; };
  QTest::mouseClick(Window(), Qt::LeftButton, {}, {12, 12});
  EXPECT_TRUE(Edit.Focused());
  EXPECT_EQ(2, FForm->GetControlCount());
}

}  // namespace
}  // namespace kt
