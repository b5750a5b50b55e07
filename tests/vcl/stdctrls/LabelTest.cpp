#include "kt/vcl/Registration.h"
#include "kt/vcl/graphics/RealFont.h"
#include "kt/vcl/stdctrls/Label.h"
#include "support/FormText.h"
#include "support/PaintWorld.h"
#include "support/Published.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

namespace kt {
namespace {

class LabelTest : public tests::TPaintWorld {
 protected:
  TLabel& AddLabel(const QString& caption, const QRect& place = {10, 10, 65, 17}) {
    TLabel& label = Add<TLabel>(QString(), place);
    label.SetCaption(caption);
    return label;
  }
  static std::string SizeOf(const TControl& control) {
    return QStringLiteral("%1x%2").arg(control.GetWidth()).arg(control.GetHeight()).toStdString();
  }
  /// Whether a control has the size of a line of text, within the pixels that letters reach beyond their widths.
  bool Fits(const TControl& control, const QString& text) {
    const QFontMetrics& metrics = TRealFont::Of(FForm->GetFont())->Metrics();
    const int rest = control.GetWidth() - metrics.horizontalAdvance(text);
    return rest >= 0 && rest <= 2 && std::abs(control.GetHeight() - metrics.height()) <= 1;
  }
  /// The part of a label's place that has something dark on it.
  QRect InkOf(const TControl& control) {
    const QImage image = Shown().copy(control.GetBoundsRect());
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (qGray(image.pixel(x, y)) < 128) ink |= QRect(x, y, 1, 1);
      }
    }
    return ink;
  }
};

TEST_F(LabelTest, ItPublishesWhatFormsSay) {
  EXPECT_EQ(
      "Align=alNone Alignment=taLeftJustify Anchors AutoSize=True BiDiMode Caption Color Constraints "
      "DragCursor=-12 DragKind=dkDrag DragMode=dmManual EllipsisPosition=epNone Enabled=True FocusControl Font "
      "ParentBiDiMode=True ParentColor=True ParentFont=True ParentShowHint=True PopupMenu ShowAccelChar=True ShowHint "
      "Transparent Layout=tlTop Visible=True WordWrap=False OnClick OnContextPopup OnDblClick OnMouseDown OnMouseEnter "
      "OnMouseLeave OnMouseMove OnMouseUp OnDragDrop OnDragOver OnEndDrag OnStartDrag",
      tests::PublishedOf(TLabel::Class()));
}

TEST_F(LabelTest, ItIsAsLargeAsItsText) {
  TLabel& label = AddLabel("Some text");
  EXPECT_TRUE(Fits(label, "Some text"));
  label.SetCaption("Some more text");
  EXPECT_TRUE(Fits(label, "Some more text"));
}

TEST_F(LabelTest, TheSignForTheLetterTakesNoRoomUnlessItIsShown) {
  TLabel& label = AddLabel("&Name");
  EXPECT_TRUE(Fits(label, "Name"));
  label.SetShowAccelChar(false);
  EXPECT_TRUE(Fits(label, "&Name"));
}

TEST_F(LabelTest, AnEmptyOneHasTheHeightOfALine) {
  TLabel& label = AddLabel("text");
  label.SetCaption("");
  EXPECT_TRUE(Fits(label, " "));
}

TEST_F(LabelTest, ItGrowsWithTheFontItsOwnOrItsParents) {
  TLabel& label = AddLabel("Some text");
  FForm->GetFont().SetSize(20);
  EXPECT_TRUE(Fits(label, "Some text"));
}

TEST_F(LabelTest, WithoutAutoSizeItKeepsItsSize) {
  TLabel& label = AddLabel("text");
  label.SetAutoSize(false);
  label.SetBounds(10, 10, 90, 40);
  label.SetCaption("Some text");
  EXPECT_EQ("90x40", SizeOf(label));
}

TEST_F(LabelTest, ATextThatKeepsToTheRightGrowsToTheLeft) {
  TLabel& label = AddLabel("text");
  label.SetAlignment(taRightJustify);
  const int right = label.GetLeft() + label.GetWidth();
  label.SetCaption("Some text");
  EXPECT_EQ(right, label.GetLeft() + label.GetWidth());
  label.SetBiDiMode(bdRightToLeft);
  const int left = label.GetLeft();
  label.SetCaption("text");
  EXPECT_EQ(left, label.GetLeft());
}

TEST_F(LabelTest, WordsWrapWithinTheWidth) {
  TLabel& label = AddLabel("one two");
  label.SetAutoSize(false);
  label.SetWidth(label.GetWidth() - 5);
  label.SetWordWrap(true);
  label.SetAutoSize(true);
  EXPECT_EQ(2 * TRealFont::Of(label.GetFont())->Height(), label.GetHeight());
}

TEST_F(LabelTest, AnAlignedOneHasItsParentsWidth) {
  TLabel& label = AddLabel("text");
  label.SetAlign(alTop);
  EXPECT_EQ(200, label.GetWidth());
  label.SetCaption("Some text");
  EXPECT_EQ(200, label.GetWidth());
}

TEST_F(LabelTest, TheTextStandsWhereItIsAskedFor) {
  TLabel& label = AddLabel("text");
  label.SetAutoSize(false);
  label.SetBounds(10, 10, 100, 60);
  const QRect leftTop = InkOf(label);
  label.SetAlignment(taRightJustify);
  label.SetLayout(tlBottom);
  const QRect rightBottom = InkOf(label);
  label.SetAlignment(taCenter);
  label.SetLayout(tlCenter);
  const QRect middle = InkOf(label);
  EXPECT_LT(leftTop.right(), 40);
  EXPECT_LT(leftTop.bottom(), 20);
  EXPECT_GT(rightBottom.left(), 60);
  EXPECT_GT(rightBottom.top(), 40);
  EXPECT_NEAR(50, middle.center().x(), 2);
  EXPECT_NEAR(30, middle.center().y(), 4);
}

TEST_F(LabelTest, FromRightToLeftLeftIsRight) {
  TLabel& label = AddLabel("text");
  label.SetAutoSize(false);
  label.SetBounds(10, 10, 100, 20);
  label.SetBiDiMode(bdRightToLeft);
  EXPECT_GT(InkOf(label).left(), 60);
}

TEST_F(LabelTest, WhatDoesNotFitMayEndInDots) {
  TLabel& label = AddLabel("A text that is too long");
  label.SetAutoSize(false);
  label.SetWidth(40);
  const QImage cut = Shown();
  label.SetEllipsisPosition(epEndEllipsis);
  EXPECT_NE(cut, Shown());
}

TEST_F(LabelTest, OnlyWhatIsNotTransparentShowsItsColor) {
  TLabel& label = AddLabel("");
  label.SetColor(clYellow);
  EXPECT_TRUE(label.IsTransparent());
  EXPECT_EQ("clWhite", ColorsAt({{11, 11}}));
  label.SetTransparent(false);
  EXPECT_EQ("clYellow", ColorsAt({{11, 11}}));
}

TEST_F(LabelTest, ADisabledOneIsGrey) {
  TLabel& label = AddLabel("text");
  EXPECT_FALSE(InkOf(label).isNull());
  label.SetEnabled(false);
  EXPECT_TRUE(InkOf(label).isNull());
}

TEST_F(LabelTest, OnALightGroundOfTheProgramsALightSystemColorGivesWay) {
  const QPalette light = QApplication::palette();
  QPalette dark(QColor(49, 54, 59), QColor(35, 38, 41));
  dark.setColor(QPalette::Text, QColor(239, 240, 241));
  QApplication::setPalette(dark);
  TLabel& label = AddLabel("MMMM");
  label.SetColor(clYellow);
  label.SetTransparent(false);
  const QRect ink = InkOf(label);
  QApplication::setPalette(light);
  EXPECT_FALSE(ink.isNull());
}

TEST_F(LabelTest, OnADarkGroundADarkTextIsLighter) {
  FForm->SetColor(clBlack);
  TLabel& label = AddLabel("MMMM");
  label.GetFont().SetColor(clNavy);
  const QImage image = Shown().copy(label.GetBoundsRect());
  int brightest = 0;
  for (int x = 0; x < image.width(); ++x) brightest = std::max(brightest, qGray(image.pixel(x, image.height() / 2)));
  EXPECT_GT(brightest, 80);
}

// Form files.

TEST_F(LabelTest, AFormFileSaysAllOfIt) {
  RegisterVisualPlatform();
  ReadFormText(*FForm, R"(object Form: TForm
    object Edit: TMaskEdit
      Left = 5
      Top = 40
    end
    object L: TLabel
      Left = 20
      Top = 8
      Width = 150
      Height = 30
      Alignment = taRightJustify
      AutoSize = False
      Caption = '&Name:'
      FocusControl = Edit
      ShowAccelChar = False
      Transparent = False
      Layout = tlCenter
      WordWrap = True
    end
  end
)");
  auto* label = dynamic_cast<TLabel*>(FForm->FindComponent(u"L"));
  ASSERT_NE(nullptr, label);
  EXPECT_EQ("150x30", SizeOf(*label));
  EXPECT_EQ(FForm->FindComponent(u"Edit"), label->GetFocusControl());
  const std::string text = tests::TextOf(FForm.get());
  EXPECT_EQ(
      "  object L: TLabel\n    Left = 20\n    Top = 8\n    Width = 150\n    Height = 30\n"
      "    Alignment = taRightJustify\n    AutoSize = False\n    Caption = '&Name:'\n    FocusControl = Edit\n"
      "    ShowAccelChar = False\n    Transparent = False\n    Layout = tlCenter\n    WordWrap = True\n  end\nend\n",
      text.substr(text.find("  object L:")));
}

TEST_F(LabelTest, ANewOneSaysItsPlaceAlone) {
  auto label = Make<TLabel>();
  EXPECT_EQ("object TLabel\n  Left = 0\n  Top = 0\n  Width = 65\n  Height = 17\nend\n", tests::TextOf(label.get()));
}

TEST_F(LabelTest, TheSizeInAFormFileGivesWayToTheText) {
  RegisterVisualPlatform();
  ReadFormText(*FForm, R"(object Form: TForm
    object L: TLabel
      Left = 20
      Top = 8
      Width = 7
      Height = 7
      Caption = 'Some text'
    end
  end
)");
  EXPECT_TRUE(Fits(*static_cast<TLabel*>(FForm->FindComponent(u"L")), "Some text"));
}

}  // namespace
}  // namespace kt
