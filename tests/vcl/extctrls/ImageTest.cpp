#include "kt/rtl/objects/Exceptions.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/extctrls/Image.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Icon.h"
#include "support/FormText.h"
#include "support/PaintWorld.h"
#include "support/Published.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

class ImageTest : public tests::TPaintWorld {
 protected:
  /// A picture all of one colour.
  void Load(int width, int height, const QColor& color = Qt::red) {
    QImage pixels(width, height, QImage::Format_RGB32);
    pixels.fill(color);
    Image.GetPicture().GetBitmap().SetImage(pixels);
  }
  /// Where the form is red: "left,top width x height".
  std::string Red() {
    const QImage image = Shown();
    QRect red;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == Qt::red) red |= QRect(x, y, 1, 1);
      }
    }
    return QStringLiteral("%1,%2 %3x%4").arg(red.x()).arg(red.y()).arg(red.width()).arg(red.height()).toStdString();
  }

  TImage& Image = Add<TImage>("Image", {10, 10, 60, 40});
};

TEST_F(ImageTest, ItPublishesWhatFormsSay) {
  EXPECT_EQ(
      "Align=alNone Anchors AutoSize=False Center=False Constraints DragCursor=-12 DragKind=dkDrag DragMode=dmManual "
      "Enabled=True IncrementalDisplay=False ParentShowHint=True Picture PopupMenu Proportional=False ShowHint "
      "Stretch=False Transparent=False Visible=True OnClick OnContextPopup OnDblClick OnMouseDown OnMouseEnter "
      "OnMouseLeave OnMouseMove OnMouseUp OnDragDrop OnDragOver OnEndDrag OnStartDrag",
      tests::PublishedOf(TImage::Class()));
  EXPECT_EQ("object TImage\n  Left = 0\n  Top = 0\n  Width = 105\n  Height = 105\nend\n",
            tests::TextOf(Make<TImage>().get()));
}

TEST_F(ImageTest, ThePictureStandsInTheCornerInItsOwnSize) {
  Load(20, 10);
  EXPECT_EQ("10,10 20x10", Red());
}

TEST_F(ImageTest, OrInTheMiddle) {
  Load(20, 10);
  Image.SetCenter(true);
  EXPECT_EQ("30,25 20x10", Red());
}

TEST_F(ImageTest, ATooLargeOneIsCutOffOrBecomesSmaller) {
  Load(120, 40);
  EXPECT_EQ("10,10 60x40", Red());
  Image.SetProportional(true);
  EXPECT_EQ("10,10 60x20", Red());
  Image.SetCenter(true);
  EXPECT_EQ("10,20 60x20", Red());
}

TEST_F(ImageTest, ASmallOneIsStretchedWithOrWithoutItsShape) {
  Load(10, 10);
  Image.SetProportional(true);
  EXPECT_EQ("10,10 10x10", Red());
  Image.SetStretch(true);
  EXPECT_EQ("10,10 40x40", Red());
  Image.SetProportional(false);
  EXPECT_EQ("10,10 60x40", Red());
}

TEST_F(ImageTest, WithAutoSizeItIsAsLargeAsItsPicture) {
  Load(20, 10);
  Image.SetAutoSize(true);
  EXPECT_EQ(QRect(10, 10, 20, 10), Image.GetBoundsRect());
  Load(25, 15);
  EXPECT_EQ(QRect(10, 10, 25, 15), Image.GetBoundsRect());
  Image.SetAlign(alTop);
  Load(30, 20);
  EXPECT_EQ(QRect(0, 0, 200, 20), Image.GetBoundsRect());
}

TEST_F(ImageTest, OneColorOfABitmapMayBeLeftOut) {
  Load(20, 10);
  Image.SetTransparent(true);
  EXPECT_EQ("clWhite", ColorsAt({{15, 15}}));
  Load(25, 15);
  EXPECT_TRUE(Image.GetPicture().GetBitmap().IsTransparent());
  EXPECT_EQ("clWhite", ColorsAt({{15, 15}}));
  Image.SetTransparent(false);
  EXPECT_EQ("10,10 25x15", Red());
}

TEST_F(ImageTest, ItCanBeDrawnOn) {
  Image.GetCanvas().GetBrush().SetColor(clRed);
  Image.GetCanvas().FillRect({5, 5, 10, 10});
  EXPECT_EQ(60, Image.GetPicture().GetWidth());
  EXPECT_EQ("15,15 10x10", Red());
}

TEST_F(ImageTest, AnIconCannotBeDrawnOn) {
  Image.GetPicture().GetIcon();
  EXPECT_EQ("Can only modify an image if it contains a bitmap",
            tests::MessageOf<EInvalidOperation>([this] { Image.GetCanvas(); }));
}

TEST_F(ImageTest, InADesignerAnEmptyOneShowsWhereItIs) {
  const QImage running = Shown();
  FForm->SetDesigning(true);
  EXPECT_NE(running, Shown());
}

TEST_F(ImageTest, AFormFileHasThePicture) {
  RegisterVisualPlatform();
  Load(20, 10);
  Image.SetStretch(true);
  const std::string text = tests::TextOf(FForm.get());
  auto form = Make<TForm>();
  ReadFormText(*form, QByteArray::fromStdString(text));
  auto* copy = dynamic_cast<TImage*>(form->FindComponent(u"Image"));
  ASSERT_NE(nullptr, copy);
  EXPECT_TRUE(copy->IsStretch());
  EXPECT_EQ(20, copy->GetPicture().GetWidth());
  EXPECT_EQ(QColor(Qt::red), copy->GetPicture().GetBitmap().GetImage().pixelColor(3, 3));
  EXPECT_EQ(text, tests::TextOf(form.get()));
}

TEST_F(ImageTest, ItIsClickedWhereThePictureIsAndElsewhere) {
  Listen(Image, "image");
  Show();
  MoveTo({50, 40});
  Log();
  Press({50, 40});
  Release({50, 40});
  EXPECT_EQ("image down 40,30 | image click | image up 40,30", Log());
}

}  // namespace
}  // namespace kt
