#include "kt/vcl/Registration.h"
#include "kt/vcl/extctrls/Panel.h"
#include "kt/vcl/stdctrls/Button.h"
#include "support/ControlProbe.h"
#include "support/FormText.h"
#include "support/PaintWorld.h"
#include "support/Published.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

class PanelTest : public tests::TPaintWorld {
 protected:
  static std::string BoundsOf(const TControl& control) {
    return QStringLiteral("%1,%2 %3x%4")
        .arg(control.GetLeft())
        .arg(control.GetTop())
        .arg(control.GetWidth())
        .arg(control.GetHeight())
        .toStdString();
  }
  bool HasInk(const QRect& place) {
    const QImage image = Shown().copy(place);
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (qGray(image.pixel(x, y)) < 100) return true;
      }
    }
    return false;
  }

  TPanel& Panel = Add<TPanel>("Panel", {10, 10, 100, 60});
};

TEST_F(PanelTest, ItPublishesWhatFormsSay) {
  EXPECT_EQ(
      "Align=alNone Alignment=taCenter Anchors AutoSize=False BevelEdges=15 BevelInner=bvNone BevelKind=bkNone "
      "BevelOuter=bvRaised BevelWidth=1 "
      "BiDiMode BorderStyle=bsNone BorderWidth=0 Caption Color=-16777201 Constraints DockSite=False Ctl3D "
      "ParentCtl3D=True DragCursor=-12 DragKind=dkDrag DragMode=dmManual Enabled=True Font FullRepaint=True "
      "Locked=False ParentBackground ParentBiDiMode=True ParentColor=False ParentFont=True ParentShowHint=True "
      "PopupMenu ShowHint TabOrder=-1 TabStop=False UseDockManager=True Visible=True OnClick OnContextPopup "
      "OnDblClick OnMouseDown OnMouseEnter OnMouseLeave OnMouseMove OnMouseUp OnDragDrop OnDragOver OnEndDrag "
      "OnStartDrag OnEnter OnExit OnCanResize OnConstrainedResize OnResize",
      tests::PublishedOf(TPanel::Class()));
}

TEST_F(PanelTest, ANewOneTakesControlsAndHasTheSizeOfTheFramework) {
  auto panel = Make<TPanel>();
  EXPECT_EQ("0,0 185x41", BoundsOf(*panel));
  EXPECT_TRUE(panel->GetControlStyle().Has(csAcceptsControls));
  EXPECT_FALSE(panel->IsParentColor());
}

// Edges.

TEST_F(PanelTest, AlignedControlsStayInsideTheEdges) {
  auto& button = Add<TButton>("Button", {0, 0, 10, 10}, &Panel);
  button.SetAlign(alClient);
  EXPECT_EQ("1,1 98x58", BoundsOf(button));
  Panel.SetBevelInner(bvLowered);
  EXPECT_EQ("2,2 96x56", BoundsOf(button));
  Panel.SetBevelWidth(3);
  EXPECT_EQ("6,6 88x48", BoundsOf(button));
  Panel.SetBorderWidth(5);
  EXPECT_EQ("11,11 78x38", BoundsOf(button));
  Panel.SetBevelOuter(bvNone);
  EXPECT_EQ("8,8 84x44", BoundsOf(button));
}

TEST_F(PanelTest, OtherControlsAreCountedFromTheCorner) {
  auto& button = Add<TButton>("Button", {0, 0, 10, 10}, &Panel);
  Panel.SetBevelWidth(5);
  Show();
  EXPECT_EQ(QPoint(0, 0), button.GetHandle()->pos());
}

TEST_F(PanelTest, AFrameMakesTheClientAreaSmaller) {
  auto& button = Add<TButton>("Button", {3, 4, 10, 10}, &Panel);
  auto& filler = Add<TButton>("Filler", {0, 0, 10, 10}, &Panel);
  filler.SetAlign(alBottom);
  Show();
  Panel.SetBorderStyle(bsSingle);
  EXPECT_EQ(QRect(0, 0, 96, 56), Panel.GetClientRect());
  EXPECT_EQ(QPoint(5, 6), button.GetHandle()->pos());
  EXPECT_EQ("1,45 94x10", BoundsOf(filler));
}

TEST_F(PanelTest, ARaisedEdgeIsLightAboveAndDarkBelow) {
  const QPalette palette = QApplication::palette();
  Panel.SetBevelWidth(2);
  const QImage raised = Shown();
  Panel.SetBevelOuter(bvLowered);
  const QImage lowered = Shown();
  const QRgb light = palette.light().color().rgb();
  const QRgb dark = palette.dark().color().rgb();
  EXPECT_EQ(light, raised.pixel(50, 11));
  EXPECT_EQ(dark, raised.pixel(50, 68));
  EXPECT_EQ(dark, lowered.pixel(50, 11));
  EXPECT_EQ(light, lowered.pixel(50, 68));
}

TEST_F(PanelTest, SpaceTakesRoomAndDrawsNothing) {
  Panel.SetBevelOuter(bvNone);
  const QImage plain = Shown();
  Panel.SetBevelOuter(bvSpace);
  Panel.SetBevelInner(bvSpace);
  EXPECT_EQ(plain, Shown());
  auto& button = Add<TButton>("Button", {0, 0, 10, 10}, &Panel);
  button.SetAlign(alLeft);
  EXPECT_EQ("2,2 10x56", BoundsOf(button));
}

// The caption.

TEST_F(PanelTest, TheCaptionStandsInTheMiddleUnlessItIsAskedForElsewhere) {
  Panel.SetCaption("WW");
  EXPECT_TRUE(HasInk({50, 30, 20, 20}));
  EXPECT_FALSE(HasInk({13, 30, 20, 20}));
  Panel.SetAlignment(taLeftJustify);
  EXPECT_TRUE(HasInk({11, 30, 20, 20}));
  EXPECT_FALSE(HasInk({50, 30, 20, 20}));
  Panel.SetBiDiMode(bdRightToLeft);
  EXPECT_TRUE(HasInk({88, 30, 20, 20}));
  EXPECT_FALSE(HasInk({13, 30, 20, 20}));
}

TEST_F(PanelTest, ACaptionThatIsCoveredDoesNotShineThrough) {
  Panel.SetCaption("WWWWWW");
  auto& inner = Add<TPanel>("Inner", {0, 0, 10, 10}, &Panel);
  inner.SetAlign(alClient);
  inner.SetCaption(QString());
  EXPECT_TRUE(inner.IsParentBackground());
  EXPECT_FALSE(HasInk({15, 20, 90, 40}));
}

// The ground.

TEST_F(PanelTest, AColorOfItsOwnFillsItAndElseTheParentShows) {
  EXPECT_EQ("clWhite", ColorsAt({{20, 20}}));
  Panel.SetColor(clYellow);
  EXPECT_EQ("clYellow", ColorsAt({{20, 20}}));
  Panel.SetParentBackground(true);
  EXPECT_EQ("clWhite", ColorsAt({{20, 20}}));
}

TEST_F(PanelTest, ItsFaceIsFilledWhenTheParentIsNotToShow) {
  Panel.SetParentBackground(false);
  const QImage image = Shown();
  EXPECT_EQ(QApplication::palette().window().color(), image.pixelColor(20, 20));
}

// Its size.

TEST_F(PanelTest, WithAutoSizeItIsAsLargeAsWhatIsInIt) {
  auto& button = Add<TButton>("Button", {10, 10, 50, 20}, &Panel);
  Panel.SetAutoSize(true);
  EXPECT_EQ("10,10 61x31", BoundsOf(Panel));
  button.SetBounds(20, 10, 60, 30);
  EXPECT_EQ("10,10 81x41", BoundsOf(Panel));
  button.Hide();
  EXPECT_EQ("10,10 81x41", BoundsOf(Panel));
}

TEST_F(PanelTest, WithAutoSizeAlignedControlsAddUp) {
  auto& first = Add<TButton>("First", {0, 0, 50, 20}, &Panel);
  auto& second = Add<TButton>("Second", {0, 30, 50, 25}, &Panel);
  first.SetAlign(alTop);
  second.SetAlign(alTop);
  Panel.SetAutoSize(true);
  EXPECT_EQ("10,10 100x47", BoundsOf(Panel));
  EXPECT_EQ("1,1 98x20", BoundsOf(first));
  EXPECT_EQ("1,21 98x25", BoundsOf(second));
}

TEST_F(PanelTest, AnAlignedOneIsSizedByItsParentThatWay) {
  auto& button = Add<TButton>("Button", {10, 10, 50, 20}, &Panel);
  Panel.SetAlign(alTop);
  Panel.SetAutoSize(true);
  EXPECT_EQ("0,0 200x31", BoundsOf(Panel));
  EXPECT_EQ("10,10 50x20", BoundsOf(button));
}

// Controls in it.

TEST_F(PanelTest, AlignmentAnchorsAndConstraintsWorkInPanelsInPanels) {
  auto& inner = Add<TPanel>("Inner", {0, 0, 40, 20}, &Panel);
  auto& left = Add<TButton>("Left", {0, 0, 30, 10}, &inner);
  auto& anchored = Add<TButton>("Anchored", {50, 10, 20, 10}, &inner);
  inner.SetAlign(alClient);
  left.SetAlign(alLeft);
  anchored.SetBounds(70, 30, 20, 10);
  anchored.SetAnchors({akRight, akBottom});
  left.GetConstraints().SetMaxHeight(70);
  Panel.SetAnchors({akLeft, akTop, akRight, akBottom});
  FForm->SetBounds(0, 0, 260, 150);
  EXPECT_EQ("10,10 160x110", BoundsOf(Panel));
  EXPECT_EQ("1,1 158x108", BoundsOf(inner));
  EXPECT_EQ("1,1 30x70", BoundsOf(left));
  EXPECT_EQ("130,80 20x10", BoundsOf(anchored));
}

TEST_F(PanelTest, TheTabKeyGoesFromPanelToPanelInOrder) {
  auto& other = Add<TPanel>("Other", {110, 10, 80, 60});
  auto& a = Add<TButton>("A", {5, 5, 20, 20}, &Panel);
  auto& b = Add<TButton>("B", {5, 5, 20, 20}, &other);
  auto& c = Add<TButton>("C", {30, 5, 20, 20}, &Panel);
  other.SetTabOrder(0);
  c.SetTabOrder(0);
  Show();
  b.SetFocus();
  tests::TWindowProbe::Key(Qt::Key_Tab);
  EXPECT_TRUE(c.Focused());
  tests::TWindowProbe::Key(Qt::Key_Tab);
  EXPECT_TRUE(a.Focused());
  tests::TWindowProbe::Key(Qt::Key_Tab);
  EXPECT_TRUE(b.Focused());
}

// Events.

TEST_F(PanelTest, ItIsClickedAndResized) {
  Show();
  MoveTo({30, 50});
  Listen(Panel, "panel");
  Panel.OnResize = [this](TObject*) { Note("resized"); };
  Press({30, 50});
  Release({30, 50});
  Panel.SetWidth(120);
  EXPECT_EQ("panel down 20,40 | panel click | panel up 20,40 | resized", Log());
}

TEST_F(PanelTest, WhatIsInItMayGoWithItWhenItIsClicked) {
  auto& colored = AddColored(clRed, {5, 5, 20, 20}, &Panel);
  colored.OnClick = [this](TObject*) { delete &Panel; };
  Show();
  MoveTo({20, 20});
  Press({20, 20});
  Release({20, 20});
  EXPECT_EQ(0, FForm->GetControlCount());
}

TEST_F(PanelTest, AFormFileSaysAllOfIt) {
  RegisterVisualPlatform();
  auto form = Make<TForm>();
  ReadFormText(*form, R"(object Form: TForm
    object Panel: TPanel
      Left = 10
      Top = 20
      Width = 150
      Height = 80
      Alignment = taLeftJustify
      BevelInner = bvLowered
      BevelWidth = 2
      BorderStyle = bsSingle
      BorderWidth = 3
      Caption = 'Options'
      Color = clRed
      DockSite = True
      FullRepaint = False
      Locked = True
      TabOrder = 0
      UseDockManager = False
      object Inner: TPanel
        Left = 7
        Top = 7
        Width = 132
        Height = 62
        Align = alClient
        TabOrder = 0
      end
    end
  end
)");
  const std::string text = tests::TextOf(form.get());
  EXPECT_EQ(
      "  object Panel: TPanel\n    Left = 10\n    Top = 20\n    Width = 150\n    Height = 80\n"
      "    Alignment = taLeftJustify\n    BevelInner = bvLowered\n    BevelWidth = 2\n    BorderStyle = bsSingle\n"
      "    BorderWidth = 3\n    Caption = 'Options'\n    Color = clRed\n    DockSite = True\n"
      "    FullRepaint = False\n    Locked = True\n    TabOrder = 0\n    UseDockManager = False\n"
      "    object Inner: TPanel\n      Left = 7\n      Top = 7\n      Width = 132\n      Height = 62\n"
      "      Align = alClient\n      TabOrder = 0\n    end\n  end\nend\n",
      text.substr(text.find("  object Panel")));
}

TEST_F(PanelTest, ItsNumbersAreCutToTheirRange) {
  Panel.SetBevelWidth(0);
  Panel.SetBorderWidth(-1);
  EXPECT_EQ(1, Panel.GetBevelWidth());
  EXPECT_EQ(0, Panel.GetBorderWidth());
}

}  // namespace
}  // namespace kt
