#include "kt/rtl/objects/Make.h"
#include "kt/vcl/stdctrls/ComboBox.h"
#include "support/Expect.h"
#include "support/PublishedText.h"

namespace kt {
namespace {

using tests::PublishedBy;

/// A combo box without a window.
class ComboBoxTest : public testing::Test {
 protected:
  ComboBoxTest() {
    for (const char* line : {"red", "green", "blue"}) Box.GetItems().Add(QString::fromLatin1(line));
    const TNotifyEvent note = [this](TObject*) { ++FEvents; };
    Box.OnChange = Box.OnSelect = Box.OnClick = note;
  }
  /// "green (1)": text and line.
  QString State() { return QStringLiteral("%1 (%2)").arg(Box.GetText()).arg(Box.GetItemIndex()); }

  std::unique_ptr<TComboBox> FBox = Make<TComboBox>();
  TComboBox& Box = *FBox;
  int FEvents = 0;
};

TEST_F(ComboBoxTest, PublishesWhatFormsSayOfIt) {
  EXPECT_EQ(
      "Align=alNone AutoComplete=True AutoDropDown=False AutoCloseUp=False Style=csDropDown Anchors BevelEdges=15 "
      "BevelInner=bvRaised BevelKind=bkNone BevelOuter=bvLowered BiDiMode CharCase=ecNormal Color=-16777211 "
      "Constraints Ctl3D ParentCtl3D=True DragCursor=-12 DragKind=dkDrag DragMode=dmManual DropDownCount=8 "
      "Enabled=True Font ItemHeight Items ItemIndex=-1 MaxLength=0 ImeMode=imDontCare ImeName ParentBiDiMode=True "
      "ParentColor=False ParentFont=True ParentShowHint=True PopupMenu ShowHint Sorted=False TabOrder=-1 "
      "TabStop=True Text Visible=True OnChange OnClick OnCloseUp OnContextPopup OnDblClick OnDragDrop OnDragOver "
      "OnEndDrag OnStartDrag OnDrawItem OnDropDown OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp "
      "OnMeasureItem OnMouseEnter OnMouseLeave OnSelect",
      PublishedBy(TComboBox::Class()));
}

TEST_F(ComboBoxTest, HasTheSizeThatFormsExpect) { EXPECT_EQ(QRect(0, 0, 145, 21), Box.GetBoundsRect()); }

TEST_F(ComboBoxTest, ALineThatIsPickedIsTheText) {
  Box.SetItemIndex(1);
  EXPECT_EQ("green (1)", State());
  Box.SetItemIndex(7);
  EXPECT_EQ(" (-1)", State());
}

TEST_F(ComboBoxTest, ATextIsNoPick) {
  Box.SetItemIndex(1);
  Box.SetText(QStringLiteral("pink"));
  EXPECT_EQ("pink (-1)", State());
}

TEST_F(ComboBoxTest, WithoutAnEditATextPicksItsLine) {
  Box.SetStyle(csDropDownList);
  Box.SetText(QStringLiteral("BLUE"));
  EXPECT_EQ("blue (2)", State());
  Box.SetText(QStringLiteral("pink"));
  EXPECT_EQ(" (-1)", State());
}

TEST_F(ComboBoxTest, AnotherStyleKeepsATextThatIsALine) {
  Box.SetText(QStringLiteral("red"));
  Box.SetStyle(csDropDownList);
  EXPECT_EQ("red (0)", State());
  Box.SetStyle(csDropDown);
  Box.SetText(QStringLiteral("pink"));
  Box.SetStyle(csOwnerDrawFixed);
  EXPECT_EQ(" (-1)", State());
}

TEST_F(ComboBoxTest, TheIndexStaysWithItsLine) {
  Box.SetItemIndex(1);
  Box.GetItems().Insert(0, QStringLiteral("white"));
  EXPECT_EQ("green (2)", State());
  Box.SetSorted(true);
  EXPECT_EQ("green (1)", State());
  EXPECT_EQ("blue,green,red,white", Box.GetItems().GetCommaText());
  Box.GetItems().Delete(1);
  EXPECT_EQ("green (-1)", State());
}

TEST_F(ComboBoxTest, WithoutAnEditTheTextGoesWithItsLine) {
  Box.SetStyle(csDropDownList);
  Box.SetItemIndex(1);
  Box.GetItems().Delete(1);
  EXPECT_EQ(" (-1)", State());
}

TEST_F(ComboBoxTest, WhatTheProgramDoesIsToldToNobody) {
  Box.SetItemIndex(1);
  Box.SetText(QStringLiteral("pink"));
  Box.Clear();
  EXPECT_EQ(0, FEvents);
  EXPECT_EQ(" (-1)", State());
}

TEST_F(ComboBoxTest, ItsLettersAreThoseOfTheCase) {
  Box.SetText(QStringLiteral("pink"));
  Box.SetCharCase(ecUpperCase);
  EXPECT_EQ("PINK (-1)", State());
}

TEST_F(ComboBoxTest, WithoutAWindowNothingDropsDown) {
  Box.SetDroppedDown(true);
  EXPECT_FALSE(Box.IsDroppedDown());
}

TEST_F(ComboBoxTest, ASelectionIsOneOfTheText) {
  Box.SetText(QStringLiteral("abcd"));
  Box.SetSelStart(1);
  Box.SetSelLength(2);
  EXPECT_EQ("bc", Box.GetSelText());
  Box.SetSelText(QStringLiteral("X"));
  EXPECT_EQ("aXd", Box.GetText());
  EXPECT_EQ(2, Box.GetSelStart());
}

}  // namespace
}  // namespace kt
