#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/GraphicsErrors.h"
#include "kt/vcl/graphics/Icon.h"
#include "kt/vcl/graphics/Pen.h"
#include "support/Expect.h"
#include "support/Images.h"

#include <QBuffer>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::FileOf;
using tests::IconOf;
using tests::ImageOf;
using tests::LettersOf;
using tests::MessageOf;

class BitmapTest : public ::testing::Test {
 protected:
  BitmapTest() {
    FBitmap->SetImage(ImageOf({"#.", "r."}));
    FBitmap->OnChange = [this](TObject*) { ++FChanges; };
  }

  std::string Letters() { return LettersOf(FBitmap->GetImage()); }

  /// What a canvas shows that the bitmap was drawn on at (1, 0).
  std::string Drawn() {
    QImage image = ImageOf({"rrrr", "rrrr"});
    QPainter painter(&image);
    const auto canvas = Make<TCanvas>();
    canvas->Begin(painter);
    canvas->Draw(1, 0, FBitmap.get());
    painter.end();
    return LettersOf(image);
  }

  std::unique_ptr<TBitmap> FBitmap = Make<TBitmap>();
  int FChanges = 0;
};

TEST_F(BitmapTest, ANewOneIsEmpty) {
  const auto bitmap = Make<TBitmap>();
  EXPECT_TRUE(bitmap->IsEmpty());
  EXPECT_EQ(0, bitmap->GetWidth());
  EXPECT_EQ(0, bitmap->GetHeight());
  EXPECT_EQ(clNone, bitmap->GetTransparentColor());
}

TEST_F(BitmapTest, ABitmapWithOneSizeHasNoPixels) {
  const auto bitmap = Make<TBitmap>();
  bitmap->SetWidth(3);
  EXPECT_TRUE(bitmap->IsEmpty());
  EXPECT_EQ(3, bitmap->GetWidth());
  bitmap->SetHeight(1);
  EXPECT_EQ("...", LettersOf(bitmap->GetImage()));
}

TEST_F(BitmapTest, ANewSizeKeepsWhatFits) {
  FBitmap->SetSize(3, 1);
  EXPECT_EQ("#..", Letters());
  FBitmap->SetSize(1, 2);
  EXPECT_EQ("#/.", Letters());
  FBitmap->SetSize(1, 2);
  EXPECT_EQ(2, FChanges);
}

TEST_F(BitmapTest, ASizeOfZeroEmpties) {
  FBitmap->SetWidth(0);
  EXPECT_TRUE(FBitmap->IsEmpty());
  EXPECT_EQ(2, FBitmap->GetHeight());
}

TEST_F(BitmapTest, ImpossibleSizesAreRefusedAndChangeNothing) {
  EXPECT_EQ(QStringLiteral("Bitmap image is not valid"), MessageOf<EInvalidGraphic>([&] { FBitmap->SetWidth(-1); }));
  EXPECT_EQ(QStringLiteral("Bitmap image is not valid"),
            MessageOf<EInvalidGraphic>([&] { FBitmap->SetSize(1 << 30, 1 << 30); }));
  EXPECT_EQ("#./r.", Letters());
}

TEST_F(BitmapTest, ItsCanvasDrawsIntoItAndTells) {
  FBitmap->GetCanvas().GetPen().SetColor(clRed);
  FBitmap->GetCanvas().MoveTo(0, 0);
  FBitmap->GetCanvas().LineTo(2, 0);
  EXPECT_EQ("rr/r.", Letters());
  EXPECT_EQ(1, FChanges);
}

TEST_F(BitmapTest, ItsCanvasReadsPixels) {
  TCanvas& canvas = FBitmap->GetCanvas();
  canvas.SetPixel(1, 1, clBlack);
  EXPECT_EQ(clBlack, canvas.GetPixel(1, 1));
  EXPECT_EQ(clRed, canvas.GetPixel(0, 1));
  EXPECT_EQ(clNone, canvas.GetPixel(2, 0));
  EXPECT_EQ(clNone, canvas.GetPixel(0, -1));
}

TEST_F(BitmapTest, PartsAreCopiedFromItsCanvas) {
  const auto other = Make<TBitmap>();
  other->SetSize(4, 2);
  other->GetCanvas().CopyRect({1, 0, 2, 2}, FBitmap->GetCanvas(), {0, 0, 2, 2});
  EXPECT_EQ(".#../.r..", LettersOf(other->GetImage()));
}

TEST_F(BitmapTest, AnEmptyOneCannotBeDrawnInto) {
  const auto bitmap = Make<TBitmap>();
  EXPECT_EQ(QStringLiteral("Canvas does not allow drawing"), MessageOf<EInvalidOperation>([&] {
              bitmap->GetCanvas().FillRect({0, 0, 1, 1});
            }));
}

TEST_F(BitmapTest, PixelsOfAColourTableCanBeDrawnOn) {
  FBitmap->SetImage(FBitmap->GetImage().convertToFormat(QImage::Format_Indexed8));
  FBitmap->GetCanvas().SetPixel(1, 0, clRed);
  EXPECT_EQ("#r/r.", Letters());
}

TEST_F(BitmapTest, CopiesShareTheirPixelsUntilOneIsChanged) {
  const auto copy = Make<TBitmap>();
  copy->Assign(FBitmap.get());
  EXPECT_EQ(FBitmap->GetImage().constBits(), copy->GetImage().constBits());
  copy->GetCanvas().SetPixel(0, 0, clRed);
  EXPECT_EQ("r./r.", LettersOf(copy->GetImage()));
  EXPECT_EQ("#./r.", Letters());
}

TEST_F(BitmapTest, AssigningCopiesTheTransparency) {
  FBitmap->SetTransparent(true);
  FBitmap->SetTransparentColor(clBlack);
  const auto copy = Make<TBitmap>();
  copy->Assign(FBitmap.get());
  EXPECT_TRUE(copy->IsTransparent());
  EXPECT_EQ(clBlack, copy->GetTransparentColor());
}

TEST_F(BitmapTest, AssigningNilEmpties) {
  FBitmap->Assign(nullptr);
  EXPECT_TRUE(FBitmap->IsEmpty());
  EXPECT_EQ(1, FChanges);
}

TEST_F(BitmapTest, AnIconIsTakenAsPixels) {
  const auto icon = Make<TIcon>();
  icon->ReadData(IconOf({ImageOf({"r#"})}));
  FBitmap->Assign(icon.get());
  EXPECT_EQ("r#", Letters());
}

TEST_F(BitmapTest, APenIsNoPicture) {
  EXPECT_EQ(QStringLiteral("Cannot assign a TPen to a TBitmap"),
            MessageOf<EConvertError>([&] { FBitmap->Assign(Make<TPen>().get()); }));
}

TEST_F(BitmapTest, IsDrawnAsItIs) { EXPECT_EQ("r#.r/rr.r", Drawn()); }

TEST_F(BitmapTest, TheColourOfTheLowerLeftPixelIsLeftOutWhenTransparent) {
  FBitmap->SetImage(ImageOf({"#.", ".#"}));
  FBitmap->SetTransparent(true);
  EXPECT_EQ(clWhite, FBitmap->GetTransparentColor());
  EXPECT_EQ("r#rr/rr#r", Drawn());
}

TEST_F(BitmapTest, AFixedColourIsLeftOutUntilItIsAutomaticAgain) {
  FBitmap->SetImage(ImageOf({"#.", ".#"}));
  FBitmap->SetTransparent(true);
  FBitmap->SetTransparentColor(clBlack);
  EXPECT_EQ(tmFixed, FBitmap->GetTransparentMode());
  EXPECT_EQ("rr.r/r.rr", Drawn());
  FBitmap->SetTransparentMode(tmAuto);
  EXPECT_EQ("r#rr/rr#r", Drawn());
  FBitmap->SetTransparentMode(tmFixed);
  EXPECT_EQ(clWhite, FBitmap->GetTransparentColor());
  EXPECT_EQ(tmFixed, FBitmap->GetTransparentMode());
}

TEST_F(BitmapTest, ATransparentOneShowsWhatIsDrawnIntoIt) {
  FBitmap->SetTransparent(true);
  Drawn();
  FBitmap->GetCanvas().SetPixel(1, 0, clBlack);
  EXPECT_EQ("r##r/rr.r", Drawn());
}

TEST_F(BitmapTest, StreamsKeepThePixelsAndCountTheirBytes) {
  const QByteArray data = FBitmap->WriteData();
  EXPECT_EQ("BM", data.mid(4, 2));
  EXPECT_EQ(data.size() - 4, static_cast<unsigned char>(data[0]));
  const auto copy = Make<TBitmap>();
  copy->ReadData(data);
  EXPECT_EQ("#./r.", LettersOf(copy->GetImage()));
}

TEST_F(BitmapTest, TranslucentPixelsSurviveTheStream) {
  FBitmap->SetImage(ImageOf({"# ", " r"}));
  const auto copy = Make<TBitmap>();
  copy->ReadData(FBitmap->WriteData());
  EXPECT_EQ("# / r", LettersOf(copy->GetImage()));
}

TEST_F(BitmapTest, AnEmptyOneIsAStreamOfNoBytes) {
  EXPECT_EQ(QByteArray(4, '\0'), Make<TBitmap>()->WriteData());
  FBitmap->ReadData(QByteArray(4, '\0'));
  EXPECT_TRUE(FBitmap->IsEmpty());
}

class BitmapStreamErrorTest : public BitmapTest, public ::testing::WithParamInterface<QByteArray> {};

TEST_P(BitmapStreamErrorTest, LeavesThePixelsAlone) {
  EXPECT_EQ(QStringLiteral("Bitmap image is not valid"),
            MessageOf<EInvalidGraphic>([&] { FBitmap->ReadData(GetParam()); }));
  EXPECT_EQ("#./r.", Letters());
  EXPECT_EQ(0, FChanges);
}

INSTANTIATE_TEST_SUITE_P(BitmapTest, BitmapStreamErrorTest,
                         ::testing::Values(QByteArray(), QByteArray("\1\0", 2), QByteArray("\7\0\0\0BM", 6),
                                           QByteArray("\xFF\xFF\xFF\xFFzz", 6), QByteArray("\3\0\0\0xyz", 7)));

TEST_F(BitmapTest, OtherFormatsAreReadFromFiles) {
  QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("a.png"));
  ImageOf({"rr"}).save(name, "PNG");
  FBitmap->LoadFromFile(name);
  EXPECT_EQ("rr", Letters());
}

TEST_F(BitmapTest, FilesGiveBackWhatWasSaved) {
  QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("a.bmp"));
  FBitmap->SaveToFile(name);
  EXPECT_EQ("#./r.", LettersOf(QImage(name)));
}

TEST_F(BitmapTest, AFileThatIsMissingIsAnError) {
  EXPECT_EQ(QStringLiteral("Cannot open file \"/no/such.bmp\". No such file or directory"),
            MessageOf<EFOpenError>([&] { FBitmap->LoadFromFile(QStringLiteral("/no/such.bmp")); }));
}

TEST_F(BitmapTest, AFileThatCannotBeWrittenIsAnError) {
  EXPECT_EQ(QStringLiteral("Cannot create file \"/no/such.bmp\". No such file or directory"),
            MessageOf<EFCreateError>([&] { FBitmap->SaveToFile(QStringLiteral("/no/such.bmp")); }));
}

/// A device that is full.
class TFullDevice : public QIODevice {
 public:
  TFullDevice() { open(QIODevice::WriteOnly); }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char*, qint64) override { return -1; }
};

TEST_F(BitmapTest, AStreamThatTakesNothingIsAnError) {
  TFullDevice device;
  EXPECT_EQ(QStringLiteral("Stream write error"), MessageOf<EWriteError>([&] { FBitmap->SaveToStream(device); }));
}

TEST_F(BitmapTest, ChangesMarkItAsModified) {
  FBitmap->SetModified(false);
  FBitmap->SetTransparent(true);
  EXPECT_TRUE(FBitmap->IsModified());
}

TEST_F(BitmapTest, EqualMeansTheSamePixels) {
  const auto other = Make<TBitmap>();
  EXPECT_FALSE(FBitmap->Equals(other.get()));
  EXPECT_FALSE(FBitmap->Equals(nullptr));
  other->SetImage(ImageOf({"#.", "r."}));
  EXPECT_TRUE(FBitmap->Equals(other.get()));
  other->GetCanvas().SetPixel(0, 0, clRed);
  EXPECT_FALSE(FBitmap->Equals(other.get()));
  EXPECT_FALSE(FBitmap->Equals(Make<TIcon>().get()));
}

}  // namespace
}  // namespace kt
