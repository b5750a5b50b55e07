#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/GraphicsErrors.h"
#include "kt/vcl/graphics/Icon.h"
#include "kt/vcl/graphics/Picture.h"
#include "support/Expect.h"
#include "support/Images.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::IconOf;
using tests::ImageOf;
using tests::LettersOf;
using tests::MessageOf;

class IconTest : public ::testing::Test {
 protected:
  IconTest() { FIcon->ReadData(IconOf({ImageOf({"r #"})})); }

  std::unique_ptr<TIcon> FIcon = Make<TIcon>();
};

TEST_F(IconTest, ANewOneIsEmpty) {
  EXPECT_TRUE(Make<TIcon>()->IsEmpty());
  EXPECT_EQ(0, Make<TIcon>()->GetWidth());
}

TEST_F(IconTest, ShowsItsPicture) {
  EXPECT_EQ("r #", LettersOf(FIcon->ToImage()));
  EXPECT_EQ(3, FIcon->GetWidth());
  EXPECT_EQ(1, FIcon->GetHeight());
}

TEST_F(IconTest, OfSeveralSizesTheOneNearestTo32PixelsCounts) {
  FIcon->ReadData(IconOf({QImage(16, 16, QImage::Format_RGB32), QImage(30, 30, QImage::Format_RGB32),
                          QImage(64, 64, QImage::Format_RGB32)}));
  EXPECT_EQ(3, FIcon->Images().size());
  EXPECT_EQ(30, FIcon->GetWidth());
}

TEST_F(IconTest, WritesTheFileThatItRead) {
  const QByteArray file = IconOf({ImageOf({"##"})});
  FIcon->ReadData(file);
  EXPECT_EQ(file, FIcon->WriteData());
}

TEST_F(IconTest, ItsSizeCannotBeChanged) {
  FIcon->SetWidth(3);
  FIcon->SetHeight(1);
  EXPECT_EQ(QStringLiteral("Cannot change the size of an icon"),
            MessageOf<EInvalidGraphicOperation>([&] { FIcon->SetWidth(4); }));
  EXPECT_EQ(QStringLiteral("Cannot change the size of an icon"),
            MessageOf<EInvalidGraphicOperation>([&] { FIcon->SetHeight(4); }));
}

TEST_F(IconTest, IsAlwaysTransparent) {
  FIcon->SetTransparent(false);
  EXPECT_TRUE(FIcon->IsTransparent());
}

TEST_F(IconTest, OtherBytesAreNoIconAndChangeNothing) {
  EXPECT_EQ(QStringLiteral("Icon image is not valid"),
            MessageOf<EInvalidGraphic>([&] { FIcon->ReadData(QByteArray("no icon")); }));
  EXPECT_EQ("r #", LettersOf(FIcon->ToImage()));
}

TEST_F(IconTest, AssigningCopiesAndNilEmpties) {
  const auto copy = Make<TIcon>();
  copy->Assign(FIcon.get());
  EXPECT_TRUE(copy->Equals(FIcon.get()));
  copy->Assign(nullptr);
  EXPECT_TRUE(copy->IsEmpty());
}

TEST_F(IconTest, AssigningAPictureTakesItsIcon) {
  const auto picture = Make<TPicture>();
  picture->SetIcon(FIcon.get());
  const auto copy = Make<TIcon>();
  copy->Assign(picture.get());
  EXPECT_TRUE(copy->Equals(FIcon.get()));
}

TEST_F(IconTest, ABitmapIsNoIcon) {
  EXPECT_EQ(QStringLiteral("Cannot assign a TBitmap to a TIcon"),
            MessageOf<EConvertError>([&] { FIcon->Assign(Make<TBitmap>().get()); }));
}

TEST_F(IconTest, TheGroundShowsThrough) {
  QImage image = ImageOf({"....."});
  QPainter painter(&image);
  const auto canvas = Make<TCanvas>();
  canvas->Begin(painter);
  canvas->Draw(1, 0, FIcon.get());
  painter.end();
  EXPECT_EQ(".r.#.", LettersOf(image));
}

}  // namespace
}  // namespace kt
