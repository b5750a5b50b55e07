#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/extctrls/PaintBox.h"
#include "support/FormText.h"
#include "support/PaintWorld.h"
#include "support/Published.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

class PaintBoxTest : public tests::TPaintWorld {
 protected:
  TPaintBox& Box = Add<TPaintBox>("Box", {10, 10, 40, 30});
};

TEST_F(PaintBoxTest, ItPublishesWhatFormsSay) {
  EXPECT_EQ(
      "Align=alNone Anchors Color Constraints DragCursor=-12 DragKind=dkDrag DragMode=dmManual Enabled=True Font "
      "ParentColor=True ParentFont=True ParentShowHint=True PopupMenu ShowHint Visible=True OnClick OnContextPopup "
      "OnDblClick OnMouseDown OnMouseEnter OnMouseLeave OnMouseMove OnMouseUp OnDragDrop OnDragOver OnEndDrag "
      "OnStartDrag OnPaint",
      tests::PublishedOf(TPaintBox::Class()));
  EXPECT_EQ("object TPaintBox\n  Left = 0\n  Top = 0\n  Width = 105\n  Height = 105\nend\n",
            tests::TextOf(Make<TPaintBox>().get()));
}

TEST_F(PaintBoxTest, TheProgramDrawsOnItFromItsCorner) {
  Box.OnPaint = [this](TObject*) {
    Box.GetCanvas().GetBrush().SetColor(clRed);
    Box.GetCanvas().FillRect({0, 0, 5, 5});
  };
  EXPECT_EQ("clRed clWhite", ColorsAt({{14, 14}, {15, 15}}));
}

TEST_F(PaintBoxTest, TheCanvasHasItsFontAndItsColor) {
  Box.SetColor(clLime);
  Box.GetFont().SetHeight(-20);
  Box.OnPaint = [this](TObject*) {
    Box.GetCanvas().FillRect({0, 0, 40, 30});
    Note(QString::number(Box.GetCanvas().GetFont().GetHeight()));
  };
  EXPECT_EQ("clLime", ColorsAt({{14, 14}}));
  EXPECT_EQ("-20", Log());
}

TEST_F(PaintBoxTest, OutsideOfPaintingTheCanvasDrawsNothing) {
  EXPECT_EQ("Canvas does not allow drawing", tests::MessageOf<EInvalidOperation>([this] {
              Box.GetCanvas().FillRect({0, 0, 5, 5});
            }));
}

TEST_F(PaintBoxTest, InADesignerItShowsWhereItIsAndRunsNoHandler) {
  Box.OnPaint = [this](TObject*) { Note("painted"); };
  const QImage running = Shown();
  EXPECT_EQ("painted", Log());
  FForm->SetDesigning(true);
  EXPECT_NE(running, Shown());
  EXPECT_EQ("", Log());
}

TEST_F(PaintBoxTest, ItMayGoWhileItIsPainted) {
  Box.OnPaint = [](TObject* sender) { delete sender; };
  Shown();
  EXPECT_EQ(0, FForm->GetControlCount());
}

}  // namespace
}  // namespace kt
