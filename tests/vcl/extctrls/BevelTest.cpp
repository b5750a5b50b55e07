#include "kt/vcl/extctrls/Bevel.h"
#include "support/FormText.h"
#include "support/PaintWorld.h"
#include "support/Published.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

/// A bevel of 10 x 8 at 0,0; what it draws as letters: "d" dark, "l" light, "." nothing.
class BevelTest : public tests::TPaintWorld {
 protected:
  BevelTest() { FForm->SetColor(clRed); }

  std::string Drawn(TBevelShape shape, TBevelStyle style = bsLowered) {
    Bevel.SetShape(shape);
    Bevel.SetStyle(style);
    const QPalette palette = QApplication::palette();
    const QImage image = Shown().copy(0, 0, 10, 8);
    QStringList rows;
    for (int y = 0; y < image.height(); ++y) {
      QString row;
      for (int x = 0; x < image.width(); ++x) {
        const QRgb color = image.pixel(x, y);
        row += color == palette.dark().color().rgb() ? u'd' : color == palette.light().color().rgb() ? u'l' : u'.';
      }
      rows += row;
    }
    return rows.join(u'/').toStdString();
  }

  TBevel& Bevel = Add<TBevel>("Bevel", {0, 0, 10, 8});
};

TEST_F(BevelTest, ItPublishesWhatFormsSay) {
  EXPECT_EQ("Align=alNone Anchors Constraints ParentShowHint=True Shape=bsBox ShowHint Style=bsLowered Visible=True",
            tests::PublishedOf(TBevel::Class()));
}

TEST_F(BevelTest, ALoweredBoxIsDarkAboveAndLightBelow) {
  const std::string drawn = Drawn(bsBox);
  EXPECT_EQ("ddddddddd", drawn.substr(0, 9));
  EXPECT_EQ("/d........l/", drawn.substr(10, 12));
  EXPECT_EQ("lllllllll", drawn.substr(drawn.size() - 9));
}

TEST_F(BevelTest, ARaisedBoxIsLightAboveAndDarkBelow) {
  const std::string drawn = Drawn(bsBox, bsRaised);
  EXPECT_EQ("lllllllll", drawn.substr(0, 9));
  EXPECT_EQ("/l........d/", drawn.substr(10, 12));
  EXPECT_EQ("ddddddddd", drawn.substr(drawn.size() - 9));
}

TEST_F(BevelTest, AFrameIsTwoPixelsWide) {
  const std::string drawn = Drawn(bsFrame);
  EXPECT_EQ("/dl......dl/", drawn.substr(3 * 11 - 1, 12));
}

TEST_F(BevelTest, LinesAreOnTheirSides) {
  EXPECT_EQ("dddddddddd/llllllllll/........../........../........../........../........../..........",
            Drawn(bsTopLine));
  EXPECT_EQ("........../........../........../........../........../........../dddddddddd/llllllllll",
            Drawn(bsBottomLine));
  EXPECT_EQ("dl......../", Drawn(bsLeftLine).substr(0, 11));
  EXPECT_EQ("........ld/", Drawn(bsRightLine, bsRaised).substr(0, 11));
}

TEST_F(BevelTest, ASpacerIsSeenInADesignerAlone) {
  const std::string nothing = "........../........../........../........../........../........../........../..........";
  Bevel.SetShape(bsSpacer);
  const QImage plain = Shown();
  EXPECT_EQ(nothing, Drawn(bsSpacer));
  FForm->SetDesigning(true);
  EXPECT_NE(plain, Shown());
}

TEST_F(BevelTest, AFormFileSaysShapeAndStyle) {
  Bevel.SetShape(bsTopLine);
  Bevel.SetStyle(bsRaised);
  EXPECT_EQ(
      "object Bevel: TBevel\n  Left = 0\n  Top = 0\n  Width = 10\n  Height = 8\n  Shape = bsTopLine\n"
      "  Style = bsRaised\nend\n",
      tests::TextOf(&Bevel));
  EXPECT_EQ("object TBevel\n  Left = 0\n  Top = 0\n  Width = 50\n  Height = 50\nend\n",
            tests::TextOf(Make<TBevel>().get()));
}

}  // namespace
}  // namespace kt
