#include "kt/vcl/Registration.h"
#include "kt/vcl/stdctrls/Button.h"
#include "kt/vcl/stdctrls/CheckBox.h"
#include "kt/vcl/stdctrls/GroupBox.h"
#include "kt/vcl/stdctrls/Label.h"
#include "support/FormText.h"
#include "support/PaintWorld.h"
#include "support/Published.h"

#include <QAccessible>
#include <QStyle>
#include <QStyleOptionGroupBox>

#include <gtest/gtest.h>

namespace kt {
namespace {

class GroupBoxTest : public tests::TPaintWorld {
 protected:
  static std::string BoundsOf(const TControl& control) {
    const QRect rect = control.GetBoundsRect();
    return QStringLiteral("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height()).toStdString();
  }

  TGroupBox& Box = Add<TGroupBox>("Box", {5, 5, 150, 90});
};

TEST_F(GroupBoxTest, ItPublishesWhatFormsSay) {
  EXPECT_EQ(
      "Align=alNone Anchors BiDiMode Caption Color Constraints Ctl3D ParentCtl3D=True DragCursor=-12 "
      "DragKind=dkDrag DragMode=dmManual Enabled=True Font ParentBackground ParentBiDiMode=True ParentColor=True "
      "ParentFont=True ParentShowHint=True PopupMenu ShowHint TabOrder=-1 TabStop=False Visible=True OnClick "
      "OnContextPopup OnDblClick OnMouseDown OnMouseEnter OnMouseLeave OnMouseMove OnMouseUp OnDragDrop OnDragOver "
      "OnEndDrag OnStartDrag OnEnter OnExit",
      tests::PublishedOf(TGroupBox::Class()));
}

TEST_F(GroupBoxTest, ANewOneTakesControlsAndHasTheSizeOfTheFramework) {
  auto box = Make<TGroupBox>();
  EXPECT_EQ("0,0 185x105", BoundsOf(*box));
  EXPECT_TRUE(box->GetControlStyle().Has(csAcceptsControls));
}

TEST_F(GroupBoxTest, PlacesInItAreCountedFromItsCorner) {
  auto& button = Add<TButton>("Button", {3, 4, 50, 20}, &Box);
  Show();
  EXPECT_EQ(QPoint(3, 4), button.GetHandle()->pos());
  EXPECT_EQ(QRect(0, 0, 150, 90), Box.GetClientRect());
}

TEST_F(GroupBoxTest, AlignedControlsStayInsideTheFrame) {
  Box.SetCaption("Caption");
  auto& button = Add<TButton>("Button", {0, 0, 10, 10}, &Box);
  button.SetAlign(alClient);
  Show();
  const QRect inside = button.GetBoundsRect();
  EXPECT_GE(inside.top(), QFontMetrics(Box.GetHandle()->font()).height());
  EXPECT_GE(inside.left(), 2);
  EXPECT_LE(inside.right(), 147);
  EXPECT_LE(inside.bottom(), 87);
  EXPECT_GT(inside.height(), 50);
}

TEST_F(GroupBoxTest, BoxesInBoxesAndAnchorsFollowTheForm) {
  auto& inner = Add<TGroupBox>("Inner", {10, 20, 100, 60}, &Box);
  auto& button = Add<TButton>("Button", {40, 20, 50, 20}, &inner);
  Box.SetAnchors({akLeft, akTop, akRight, akBottom});
  inner.SetAnchors({akLeft, akTop, akRight, akBottom});
  button.SetAnchors({akRight, akBottom});
  FForm->SetBounds(0, 0, 250, 130);
  EXPECT_EQ("5,5 200x120", BoundsOf(Box));
  EXPECT_EQ("10,20 150x90", BoundsOf(inner));
  EXPECT_EQ("90,50 50x20", BoundsOf(button));
}

TEST_F(GroupBoxTest, ALargerFontLeavesLessForAlignedControls) {
  auto& button = Add<TButton>("Button", {0, 0, 10, 10}, &Box);
  button.SetAlign(alClient);
  const int top = button.GetTop();
  Box.GetFont().SetSize(20);
  EXPECT_GT(button.GetTop(), top);
}

TEST_F(GroupBoxTest, TheStyleDrawsCaptionAndFrame) {
  const QImage empty = Shown();
  Box.SetCaption("Caption");
  const QImage captioned = Shown();
  EXPECT_NE(empty.copy(5, 5, 150, 20), captioned.copy(5, 5, 150, 20));
  EXPECT_NE("clWhite", ColorsAt({{6, 60}}));
  EXPECT_EQ("clWhite", ColorsAt({{200 - 10, 60}}));
}

TEST_F(GroupBoxTest, FromRightToLeftTheCaptionStandsOnTheRight) {
  Box.SetCaption("Caption");
  const auto isInk = [this](const QRect& place) {
    const QImage image = Shown().copy(place);
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (qGray(image.pixel(x, y)) < 100) return true;
      }
    }
    return false;
  };
  EXPECT_TRUE(isInk({5, 5, 60, 14}));
  EXPECT_FALSE(isInk({95, 5, 60, 14}));
  Box.SetBiDiMode(bdRightToLeft);
  EXPECT_FALSE(isInk({5, 5, 60, 14}));
  EXPECT_TRUE(isInk({95, 5, 60, 14}));
}

TEST_F(GroupBoxTest, AColorOfItsOwnFillsItAndItsParentsShowsThrough) {
  EXPECT_TRUE(Box.IsParentBackground());
  EXPECT_EQ("clWhite", ColorsAt({{6, 6}}));
  Box.SetColor(clYellow);
  EXPECT_FALSE(Box.IsParentBackground());
  EXPECT_EQ("clYellow", ColorsAt({{6, 6}}));
  Box.SetParentBackground(true);
  EXPECT_EQ("clWhite", ColorsAt({{6, 6}}));
}

TEST_F(GroupBoxTest, ItsColorsAreNotThoseOfTheControlsInIt) {
  auto& check = Add<TCheckBox>("Check", {10, 30, 80, 20}, &Box);
  check.SetParentFont(false);
  Box.GetFont().SetColor(clRed);
  Show();
  EXPECT_EQ(FForm->GetHandle()->palette().color(QPalette::WindowText),
            check.GetHandle()->palette().color(QPalette::WindowText));
}

TEST_F(GroupBoxTest, ScreenReadersHearItsCaption) {
  Box.SetCaption("&Save && go");
  Show();
  QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(Box.GetHandle());
  ASSERT_NE(nullptr, reader);
  EXPECT_EQ(QAccessible::Grouping, reader->role());
  EXPECT_EQ("Save & go", reader->text(QAccessible::Name));
}

// The keyboard.

class GroupBoxKeysTest : public GroupBoxTest {
 protected:
  GroupBoxKeysTest() {
    Box.SetCaption("&Group");
    Show();
    Outside.SetFocus();
  }
  static void AltG() { tests::TWindowProbe::Key(Qt::Key_G, Qt::AltModifier); }

  TButton& Outside = Add<TButton>("Outside", {160, 5, 40, 20});
  TButton& First = Add<TButton>("First", {10, 20, 40, 20}, &Box);
  TButton& Second = Add<TButton>("Second", {60, 20, 40, 20}, &Box);
};

TEST_F(GroupBoxKeysTest, ItsLetterLeadsToTheFirstControlInTabOrder) {
  AltG();
  EXPECT_TRUE(First.Focused());
  Outside.SetFocus();
  Second.SetTabOrder(0);
  AltG();
  EXPECT_TRUE(Second.Focused());
}

TEST_F(GroupBoxKeysTest, WhatCannotHaveTheKeyboardIsPassedBy) {
  First.SetEnabled(false);
  AltG();
  EXPECT_TRUE(Second.Focused());
}

TEST_F(GroupBoxKeysTest, OneWithoutTabStopComesOnlyWhereThereIsNoOther) {
  First.SetTabStop(false);
  AltG();
  EXPECT_TRUE(Second.Focused());
  Second.SetTabStop(false);
  Outside.SetFocus();
  AltG();
  EXPECT_TRUE(First.Focused());
}

TEST_F(GroupBoxKeysTest, ADisabledOrHiddenBoxTakesNoLetter) {
  Box.SetEnabled(false);
  AltG();
  EXPECT_TRUE(Outside.Focused());
  Box.SetEnabled(true);
  Box.Hide();
  AltG();
  EXPECT_TRUE(Outside.Focused());
}

TEST_F(GroupBoxKeysTest, ALabelInItHasALetterToo) {
  auto& label = Add<TLabel>("Label", {10, 50, 40, 20}, &Box);
  label.SetCaption("&Label");
  label.SetFocusControl(&Second);
  tests::TWindowProbe::Key(Qt::Key_L, Qt::AltModifier);
  EXPECT_TRUE(Second.Focused());
}

TEST_F(GroupBoxKeysTest, TheTabKeyGoesThroughItInOrder) {
  auto& inner = Add<TGroupBox>("Inner", {10, 50, 100, 40}, &Box);
  Add<TButton>("Third", {10, 15, 40, 20}, &inner);
  inner.SetTabOrder(0);
  FForm->SetFocus();
  QStringList names;
  for (int i = 0; i < 4; ++i) {
    tests::TWindowProbe::Key(Qt::Key_Tab);
    if (FForm->GetActiveControl()) names += FForm->GetActiveControl()->GetName();
  }
  EXPECT_EQ("Third First Second Outside", names.join(u' '));
}

TEST_F(GroupBoxKeysTest, ItMayGoWhenItsLetterMovesTheKeyboard) {
  First.OnEnter = [this](TObject*) { FForm->PostMessage(CM_RELEASE); };
  AltG();
  (void)FForm.release();
  tests::TWindowProbe::Settle();
  EXPECT_EQ(nullptr, QApplication::focusWidget());
}

TEST_F(GroupBoxTest, ItIsClickedBesideItsControls) {
  Show();
  MoveTo({25, 45});
  Listen(Box, "box");
  Press({25, 45});
  Release({25, 45});
  EXPECT_EQ("box down 20,40 | box click | box up 20,40", Log());
}

TEST_F(GroupBoxTest, AFormFileSaysWhatIsInIt) {
  RegisterVisualPlatform();
  auto form = Make<TForm>();
  ReadFormText(*form, R"(object Form: TForm
    object Box: TGroupBox
      Left = 10
      Top = 20
      Width = 150
      Height = 80
      Caption = 'Options'
      ParentBackground = False
      TabOrder = 0
      object Name: TLabel
        Left = 8
        Top = 24
        Width = 31
        Height = 13
        Caption = 'Name'
      end
    end
  end
)");
  auto* box = dynamic_cast<TGroupBox*>(form->FindComponent(u"Box"));
  ASSERT_NE(nullptr, box);
  EXPECT_FALSE(box->IsParentBackground());
  EXPECT_EQ(box, static_cast<TControl*>(form->FindComponent(u"Name"))->GetParent());
  const std::string text = tests::TextOf(form.get());
  EXPECT_EQ(0U, text.substr(text.find("  object Box"))
                    .find("  object Box: TGroupBox\n    Left = 10\n    Top = 20\n    Width = 150\n    Height = 80\n"
                          "    Caption = 'Options'\n    ParentBackground = False\n    TabOrder = 0\n"
                          "    object Name: TLabel\n      Left = 8\n      Top = 24\n"));
}

}  // namespace
}  // namespace kt
