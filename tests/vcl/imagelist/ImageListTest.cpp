#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/imagelist/ChangeLink.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Images.h"
#include "support/Published.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class ImageListTest : public testing::Test {
 protected:
  ImageListTest() { FList->SetSize(2, 2); }

  static std::unique_ptr<TBitmap> Bitmap(const QStringList& rows) {
    auto bitmap = Make<TBitmap>();
    bitmap->SetImage(ImageOf(rows));
    return bitmap;
  }
  int Add(const QStringList& rows) { return FList->Add(Bitmap(rows).get(), nullptr); }
  /// All pictures, " " where they are transparent.
  std::string Pictures() const {
    QStringList texts;
    for (int i = 0; i < FList->GetCount(); ++i) texts += QString::fromStdString(LettersOf(FList->GetImage(i)));
    return texts.join(u'|').toStdString();
  }

  std::unique_ptr<TImageList> FList = Make<TImageList>();
};

TEST_F(ImageListTest, PublishesWhatItIsMadeOf) {
  EXPECT_EQ(
      "AllocBy=4 BlendColor=536870911 BkColor=536870911 DrawingStyle=dsNormal Height=16 ImageType=itImage Masked=True "
      "ShareImages=False Width=16 OnChange",
      PublishedOf(*Make<TImageList>()));
}

TEST_F(ImageListTest, ABitmapOfSeveralPicturesGivesThemAll) {
  EXPECT_EQ(0, Add({"..", "##"}));
  EXPECT_EQ(1, Add({"#..#", "#..#"}));
  EXPECT_EQ("../##|#./#.|.#/.#", Pictures());
}

TEST_F(ImageListTest, WhiteInTheMaskIsTransparent) {
  FList->Add(Bitmap({"##", "rr"}).get(), Bitmap({".#", "#."}).get());
  EXPECT_EQ(" #/r ", Pictures());
}

TEST_F(ImageListTest, AColorCanBeTheTransparentOne) {
  FList->AddMasked(Bitmap({"r#", "#r"}).get(), clRed);
  FList->AddMasked(Bitmap({"r#", ".r"}).get(), clDefault);
  EXPECT_EQ(" #/# |r#/ r", Pictures());
}

TEST_F(ImageListTest, ABitmapThatIsTooSmallFails) {
  EXPECT_EQ("Invalid image size", MessageOf<EInvalidOperation>([this] { Add({"#"}); }));
  EXPECT_EQ("Invalid image size", MessageOf<EInvalidOperation>([this] { FList->Add(nullptr, nullptr); }));
}

TEST_F(ImageListTest, PicturesAreInsertedReplacedMovedAndDeleted) {
  Add({"..", ".."});
  Add({"##", "##"});
  FList->Insert(1, Bitmap({"rr", "rr"}).get(), nullptr);
  EXPECT_EQ("../..|rr/rr|##/##", Pictures());
  FList->Move(0, 2);
  EXPECT_EQ("rr/rr|##/##|../..", Pictures());
  FList->ReplaceMasked(0, Bitmap({"r#", "r#"}).get(), clRed);
  EXPECT_EQ(" #/ #|##/##|../..", Pictures());
  FList->Delete(1);
  EXPECT_EQ(" #/ #|../..", Pictures());
  FList->Delete(-1);
  EXPECT_EQ("", Pictures());
}

TEST_F(ImageListTest, AnIndexOutOfRangeFails) {
  Add({"..", ".."});
  const QString message = QStringLiteral("Invalid ImageList Index");
  EXPECT_EQ(message, MessageOf<EInvalidOperation>([this] { FList->Delete(1); }));
  EXPECT_EQ(message, MessageOf<EInvalidOperation>([this] { FList->Move(0, 1); }));
  EXPECT_EQ(message, MessageOf<EInvalidOperation>([this] { FList->Replace(-1, nullptr, nullptr); }));
  EXPECT_EQ(message, MessageOf<EInvalidOperation>([this] { FList->Insert(2, nullptr, nullptr); }));
}

TEST_F(ImageListTest, AnotherSizeTakesThePicturesAway) {
  Add({"..", ".."});
  FList->SetWidth(2);
  EXPECT_EQ(1, FList->GetCount());
  FList->SetWidth(3);
  EXPECT_EQ(0, FList->GetCount());
  EXPECT_EQ("Invalid image size", MessageOf<EInvalidOperation>([this] { FList->SetHeight(0); }));
}

TEST_F(ImageListTest, APictureIsCopiedOntoTheGround) {
  FList->AddMasked(Bitmap({"r#", "#r"}).get(), clRed);
  auto bitmap = Make<TBitmap>();
  EXPECT_TRUE(FList->GetBitmap(0, *bitmap));
  EXPECT_EQ(".#/#.", LettersOf(bitmap->GetImage()));
  FList->SetBkColor(clRed);
  FList->GetBitmap(0, *bitmap);
  EXPECT_EQ("r#/#r", LettersOf(bitmap->GetImage()));
  EXPECT_FALSE(FList->GetBitmap(1, *bitmap));
}

TEST_F(ImageListTest, DrawsAPicture) {
  FList->AddMasked(Bitmap({"r#", "#r"}).get(), clRed);
  const auto canvas = Bitmap({"....", "....", "...."});
  FList->Draw(canvas->GetCanvas(), 1, 1, 0);
  EXPECT_EQ("..../..#./.#..", LettersOf(canvas->GetImage()));
  FList->Draw(canvas->GetCanvas(), 0, 0, 7);
  EXPECT_EQ("..../..#./.#..", LettersOf(canvas->GetImage()));
}

TEST_F(ImageListTest, DrawsTheMaskWhenToldSo) {
  FList->AddMasked(Bitmap({"r#", "#r"}).get(), clRed);
  const auto canvas = Bitmap({"rr", "rr"});
  FList->Draw(canvas->GetCanvas(), 0, 0, 0, dsNormal, itMask, true);
  EXPECT_EQ(".#/#.", LettersOf(canvas->GetImage()));
}

TEST_F(ImageListTest, ADisabledPictureIsPale) {
  Add({"##", "##"});
  const auto canvas = Bitmap({"..", ".."});
  FList->Draw(canvas->GetCanvas(), 0, 0, 0, false);
  EXPECT_GT(qGray(canvas->GetImage().pixel(0, 0)), 100);
  EXPECT_LT(qGray(canvas->GetImage().pixel(0, 0)), 200);
}

TEST_F(ImageListTest, ASelectedPictureIsBlended) {
  Add({"##", "##"});
  FList->SetBlendColor(clRed);
  const auto canvas = Bitmap({"..", ".."});
  FList->Draw(canvas->GetCanvas(), 0, 0, 0, dsSelected, itImage, true);
  EXPECT_NEAR(qRed(canvas->GetImage().pixel(0, 0)), 128, 2);
  EXPECT_EQ(qGreen(canvas->GetImage().pixel(0, 0)), 0);
}

TEST_F(ImageListTest, TellsItsChanges) {
  QStringList log;
  FList->OnChange = TNotifyEvent([&](TObject*) { log += "list"; });
  auto link = Make<TChangeLink>();
  link->OnChange = TNotifyEvent([&](TObject* sender) { log += sender ? "link" : "gone"; });
  FList->RegisterChanges(*link);
  Add({"..", ".."});
  FList->SetBkColor(clRed);
  FList->SetBkColor(clRed);
  EXPECT_EQ("link list link list", log.join(u' ').toStdString());
  FList.reset();
  EXPECT_EQ("gone", log.back().toStdString());
  EXPECT_EQ(nullptr, link->GetSender());
}

TEST_F(ImageListTest, ALinkThatDiesIsForgotten) {
  auto link = Make<TChangeLink>();
  FList->RegisterChanges(*link);
  link.reset();
  Add({"..", ".."});
  EXPECT_EQ(1, FList->GetCount());
}

TEST_F(ImageListTest, AHandlerMayFreeTheList) {
  FList->OnChange = TNotifyEvent([&](TObject*) { FList.reset(); });
  Add({"..", ".."});
  EXPECT_EQ(nullptr, FList.get());
}

TEST_F(ImageListTest, ACopyHasThePicturesAndTheirLook) {
  Add({"#.", "##"});
  FList->SetBkColor(clRed);
  auto copy = Make<TImageList>();
  copy->Assign(FList.get());
  EXPECT_EQ(TextOf(FList.get()), TextOf(copy.get()));
  EXPECT_EQ("#./##", LettersOf(copy->GetImage(0)));
}

TEST_F(ImageListTest, WritesNothingWithoutPictures) {
  EXPECT_EQ("object TImageList\nend\n", TextOf(Make<TImageList>().get()));
}

}  // namespace
}  // namespace kt::tests
