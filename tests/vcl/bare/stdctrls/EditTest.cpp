#include "kt/rtl/objects/Make.h"
#include "kt/vcl/stdctrls/Edit.h"
#include "support/Expect.h"
#include "support/PublishedText.h"

namespace kt {
namespace {

using tests::PublishedBy;

/// A line of text without a window.
class EditTest : public testing::Test {
 protected:
  std::unique_ptr<TEdit> FEdit = Make<TEdit>();
  TEdit& Edit = *FEdit;
};

TEST_F(EditTest, PublishesWhatFormsSayOfIt) {
  EXPECT_EQ(
      "Align=alNone Anchors AutoSelect=True AutoSize=True BevelEdges=15 BevelInner=bvRaised BevelKind=bkNone "
      "BevelOuter=bvLowered BiDiMode BorderStyle=bsSingle CharCase=ecNormal Color=-16777211 Constraints Ctl3D "
      "ParentCtl3D=True DragCursor=-12 DragKind=dkDrag DragMode=dmManual Enabled=True Font HideSelection=True "
      "MaxLength=0 OEMConvert=False ImeMode=imDontCare ImeName ParentBiDiMode=True ParentColor=False "
      "ParentFont=True ParentShowHint=True PasswordChar=0 PopupMenu ReadOnly=False ShowHint TabOrder=-1 "
      "TabStop=True Text Visible=True OnChange OnClick OnContextPopup OnDblClick OnMouseDown OnMouseEnter "
      "OnMouseLeave OnMouseMove OnMouseUp OnDragDrop OnDragOver OnEndDrag OnStartDrag OnEnter OnExit OnKeyDown "
      "OnKeyPress OnKeyUp",
      PublishedBy(TEdit::Class()));
}

TEST_F(EditTest, HasTheSizeThatFormsExpect) { EXPECT_EQ(QRect(0, 0, 121, 21), Edit.GetBoundsRect()); }

TEST_F(EditTest, UpperCaseIsThatOfWhateverIsSet) {
  Edit.SetText(QStringLiteral("so"));
  Edit.SetCharCase(ecUpperCase);
  EXPECT_EQ("SO", Edit.GetText());
  Edit.SetText(QStringLiteral("straße"));
  EXPECT_EQ(QString::fromUtf8("STRAßE"), Edit.GetText());
}

TEST_F(EditTest, LowerCaseIsThatOfWhatReplacesTheSelection) {
  Edit.SetCharCase(ecLowerCase);
  Edit.SetText(QStringLiteral("abc"));
  Edit.Select(1, 2);
  Edit.SetSelText(QStringLiteral("XY"));
  EXPECT_EQ("axyc", Edit.GetText());
  EXPECT_EQ(3, Edit.GetSelStart());
}

TEST_F(EditTest, TheProgramMaySetMoreThanTheUserMayType) {
  Edit.SetMaxLength(2);
  Edit.SetText(QStringLiteral("abcd"));
  EXPECT_EQ("abcd", Edit.GetText());
}

TEST_F(EditTest, WithoutAClipboardNothingIsCopiedOrCut) {
  Edit.SetText(QStringLiteral("abc"));
  Edit.SelectAll();
  Edit.CopyToClipboard();
  Edit.CutToClipboard();
  Edit.PasteFromClipboard();
  EXPECT_EQ("abc", Edit.GetText());
}

TEST_F(EditTest, AHandlerOfAChangeMayFreeIt) {
  Edit.OnChange = [this](TObject*) { FEdit.reset(); };
  Edit.SetSelText(QStringLiteral("x"));
  EXPECT_EQ(nullptr, FEdit);
}

}  // namespace
}  // namespace kt
