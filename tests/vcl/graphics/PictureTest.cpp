#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/GraphicsErrors.h"
#include "kt/vcl/graphics/Icon.h"
#include "kt/vcl/graphics/KeptGraphic.h"
#include "kt/vcl/graphics/Pen.h"
#include "kt/vcl/graphics/Picture.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Images.h"

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::FileOf;
using tests::IconOf;
using tests::ImageOf;
using tests::LettersOf;
using tests::MessageOf;
using tests::TextOf;

/// A component with a picture and a glyph.
class TPictureHolder : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TPictureHolder>("TPictureHolder")
                                       .Property<&TPictureHolder::GetGlyph, &TPictureHolder::SetGlyph>("Glyph")
                                       .Property<&TPictureHolder::GetPicture, &TPictureHolder::SetPicture>("Picture")
                                       .Creatable()
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  TBitmap& GetGlyph() { return *FGlyph; }
  void SetGlyph(TBitmap* value) { FGlyph->Assign(value); }
  TPicture& GetPicture() { return *FPicture; }
  void SetPicture(TPicture* value) { FPicture->Assign(value); }

 protected:
  explicit TPictureHolder(TComponent* owner = nullptr) : TComponent(owner) {}
  void Construct() override {
    TComponent::Construct();
    FGlyph = Make<TBitmap>();
    FPicture = Make<TPicture>();
  }

 private:
  std::unique_ptr<TBitmap> FGlyph;
  std::unique_ptr<TPicture> FPicture;
};

class PictureTest : public ::testing::Test {
 protected:
  PictureTest() {
    RegisterClass(TPictureHolder::Class());
    FPicture->OnChange = [this](TObject*) { ++FChanges; };
  }
  ~PictureTest() override { UnRegisterClass(TPictureHolder::Class()); }

  /// The holder that a form with this picture data gives.
  std::unique_ptr<TComponent> Loaded(const QByteArray& data) {
    const QByteArray form = "object TPictureHolder\n  Picture.Data = {" + data.toHex() + "}\nend\n";
    return ReadComponentFromBinary(BinaryOf(form.constData()));
  }

  std::unique_ptr<TPicture> FPicture = Make<TPicture>();
  int FChanges = 0;
};

TEST_F(PictureTest, ANewOneIsEmpty) {
  EXPECT_EQ(nullptr, FPicture->GetGraphic());
  EXPECT_EQ(0, FPicture->GetWidth());
  EXPECT_EQ(0, FPicture->GetHeight());
}

TEST_F(PictureTest, AskingForTheBitmapMakesOne) {
  FPicture->GetBitmap().SetImage(ImageOf({"##"}));
  EXPECT_EQ(2, FPicture->GetWidth());
  EXPECT_EQ(1, FPicture->GetHeight());
  EXPECT_EQ(&FPicture->GetBitmap(), FPicture->GetGraphic());
}

TEST_F(PictureTest, AskingForAnIconReplacesABitmap) {
  FPicture->GetBitmap().SetImage(ImageOf({"##"}));
  EXPECT_TRUE(FPicture->GetIcon().IsEmpty());
  EXPECT_EQ(0, FPicture->GetWidth());
}

TEST_F(PictureTest, ChangesOfTheGraphicAreTold) {
  TBitmap& bitmap = FPicture->GetBitmap();
  EXPECT_EQ(1, FChanges);
  bitmap.SetImage(ImageOf({"##"}));
  EXPECT_EQ(2, FChanges);
}

TEST_F(PictureTest, SettingAGraphicCopiesIt) {
  const auto bitmap = Make<TBitmap>();
  bitmap->SetImage(ImageOf({"#r"}));
  bitmap->SetTransparent(true);
  FPicture->SetBitmap(bitmap.get());
  EXPECT_NE(bitmap.get(), FPicture->GetGraphic());
  EXPECT_EQ("#r", LettersOf(FPicture->GetBitmap().GetImage()));
  EXPECT_TRUE(FPicture->GetBitmap().IsTransparent());
  EXPECT_EQ(1, FChanges);
}

TEST_F(PictureTest, SettingItsOwnGraphicChangesNothing) {
  FPicture->GetBitmap();
  FPicture->SetGraphic(FPicture->GetGraphic());
  EXPECT_EQ(1, FChanges);
}

TEST_F(PictureTest, AssigningNilEmptiesOnce) {
  FPicture->GetBitmap();
  FPicture->Assign(nullptr);
  FPicture->Assign(nullptr);
  EXPECT_EQ(nullptr, FPicture->GetGraphic());
  EXPECT_EQ(2, FChanges);
}

TEST_F(PictureTest, AssigningAPictureCopiesItsGraphic) {
  const auto other = Make<TPicture>();
  other->GetIcon().ReadData(IconOf({ImageOf({"r"})}));
  FPicture->Assign(other.get());
  EXPECT_EQ(TIcon::Class(), FPicture->GetGraphic()->ClassType());
  EXPECT_EQ(1, FPicture->GetWidth());
}

TEST_F(PictureTest, AssigningAGraphicCopiesIt) {
  const auto bitmap = Make<TBitmap>();
  bitmap->SetImage(ImageOf({"#r"}));
  FPicture->Assign(bitmap.get());
  EXPECT_EQ("#r", LettersOf(FPicture->GetBitmap().GetImage()));
}

TEST_F(PictureTest, ABitmapTakesWhatAPictureShows) {
  FPicture->GetBitmap().SetImage(ImageOf({"#r"}));
  const auto bitmap = Make<TBitmap>();
  bitmap->Assign(FPicture.get());
  EXPECT_EQ("#r", LettersOf(bitmap->GetImage()));
}

TEST_F(PictureTest, APenIsNoPicture) {
  EXPECT_EQ(QStringLiteral("Cannot assign a TPen to a TPicture"),
            MessageOf<EConvertError>([&] { FPicture->Assign(Make<TPen>().get()); }));
  EXPECT_EQ(QStringLiteral("Cannot assign a TPicture to a TPen"),
            MessageOf<EConvertError>([&] { Make<TPen>()->Assign(FPicture.get()); }));
}

TEST_F(PictureTest, TheExtensionOfAFileTellsItsKind) {
  QTemporaryDir folder;
  const QString icon = folder.filePath(QStringLiteral("a.ICO"));
  QFile file(icon);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(IconOf({ImageOf({"r"})}));
  file.close();
  FPicture->LoadFromFile(icon);
  EXPECT_EQ(TIcon::Class(), FPicture->GetGraphic()->ClassType());
  const QString image = folder.filePath(QStringLiteral("a.png"));
  ImageOf({"rr"}).save(image, "PNG");
  FPicture->LoadFromFile(image);
  EXPECT_EQ("rr", LettersOf(FPicture->GetBitmap().GetImage()));
}

TEST_F(PictureTest, AnUnknownExtensionIsRefusedAndChangesNothing) {
  FPicture->GetBitmap().SetImage(ImageOf({"##"}));
  EXPECT_EQ(QStringLiteral("Unknown picture file extension (.doc)"),
            MessageOf<EInvalidGraphic>([&] { FPicture->LoadFromFile(QStringLiteral("a.DOC")); }));
  EXPECT_EQ(2, FPicture->GetWidth());
}

TEST_F(PictureTest, AFileThatIsMissingChangesNothing) {
  FPicture->GetBitmap().SetImage(ImageOf({"##"}));
  EXPECT_THROW(FPicture->LoadFromFile(QStringLiteral("/no/such.bmp")), EFOpenError);
  EXPECT_EQ(2, FPicture->GetWidth());
}

TEST_F(PictureTest, SavingWritesItsGraphic) {
  QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("a.bmp"));
  FPicture->SaveToFile(name);
  EXPECT_FALSE(QFile::exists(name));
  FPicture->GetBitmap().SetImage(ImageOf({"#r"}));
  FPicture->SaveToFile(name);
  EXPECT_EQ("#r", LettersOf(QImage(name)));
}

TEST_F(PictureTest, EmptyPicturesAreNotStreamed) {
  const auto holder = Make<TPictureHolder>();
  holder->GetPicture().GetBitmap();
  EXPECT_EQ("object TPictureHolder\nend\n", TextOf(holder.get()));
}

TEST_F(PictureTest, AFormNamesTheClassOfAPictureAndNotThatOfAGlyph) {
  const auto holder = Make<TPictureHolder>();
  holder->GetPicture().GetBitmap().SetImage(ImageOf({"#"}));
  holder->GetGlyph().SetImage(ImageOf({"r"}));
  const QByteArray form = WriteComponentToBinary(holder.get());
  EXPECT_TRUE(form.contains(QByteArray("\7TBitmap\x3A\0\0\0BM", 14)));
  EXPECT_TRUE(form.contains(QByteArray("\nGlyph.Data\n\x3E\0\0\0\x3A\0\0\0BM", 22)));
}

TEST_F(PictureTest, AFormGivesPicturesBack) {
  const auto holder = Make<TPictureHolder>();
  holder->GetPicture().GetIcon().ReadData(IconOf({ImageOf({"r#"})}));
  holder->GetGlyph().SetImage(ImageOf({"#."}));
  const auto copy = ReadComponentFromBinary(WriteComponentToBinary(holder.get()));
  EXPECT_EQ("r#", LettersOf(static_cast<TPictureHolder&>(*copy).GetPicture().GetIcon().ToImage()));
  EXPECT_EQ("#.", LettersOf(static_cast<TPictureHolder&>(*copy).GetGlyph().GetImage()));
}

TEST_F(PictureTest, ADescendantFormKeepsOnlyAnotherPicture) {
  const auto ancestor = Make<TPictureHolder>();
  const auto descendant = Make<TPictureHolder>();
  ancestor->GetPicture().GetBitmap().SetImage(ImageOf({"#"}));
  descendant->GetPicture().GetBitmap().SetImage(ImageOf({"#"}));
  TWriter same;
  same.WriteRootComponent(descendant.get(), ancestor.get());
  EXPECT_EQ("inherited TPictureHolder\nend\n", TextOf(same.Data()));
  descendant->GetPicture().GetBitmap().SetImage(ImageOf({"r"}));
  TWriter other;
  other.WriteRootComponent(descendant.get(), ancestor.get());
  EXPECT_TRUE(other.Data().contains("Picture.Data"));
}

TEST_F(PictureTest, APictureOfAnUnknownClassIsShownAndKept) {
  const QByteArray data = "\tTPngImage" + FileOf(ImageOf({"r#"}), "PNG");
  const auto form = Loaded(data);
  TGraphic* graphic = static_cast<TPictureHolder&>(*form).GetPicture().GetGraphic();
  EXPECT_EQ("r#", LettersOf(graphic->ToImage()));
  EXPECT_TRUE(WriteComponentToBinary(form.get()).contains(data));
}

TEST_F(PictureTest, BytesThatNobodyCanReadAreKept) {
  const QByteArray data = "\x09TMetafile some bytes";
  const auto form = Loaded(data);
  TPicture& picture = static_cast<TPictureHolder&>(*form).GetPicture();
  EXPECT_EQ(0, picture.GetWidth());
  FPicture->Assign(&picture);
  EXPECT_EQ(QStringLiteral("TMetafile"), static_cast<TKeptGraphic*>(FPicture->GetGraphic())->GetStreamedClass());
  EXPECT_TRUE(WriteComponentToBinary(form.get()).contains(data));
}

TEST_F(PictureTest, DataWithoutAClassIsAnEmptyPicture) {
  const auto form = Loaded(QByteArray(1, '\0'));
  EXPECT_EQ(nullptr, static_cast<TPictureHolder&>(*form).GetPicture().GetGraphic());
}

TEST_F(PictureTest, DataThatEndsInTheNameOfItsClassIsAnError) {
  EXPECT_EQ(QStringLiteral("Error reading TPictureHolder.Picture.Data: Invalid stream format"),
            tests::WithoutPlace(MessageOf<EReadError>([&] { Loaded(QByteArray("\7TBit")); })));
}

TEST_F(PictureTest, ABrokenBitmapIsAnErrorThatNamesTheProperty) {
  EXPECT_EQ(QStringLiteral("Error reading TPictureHolder.Picture.Data: Bitmap image is not valid"),
            tests::WithoutPlace(MessageOf<EReadError>([&] { Loaded(QByteArray("\7TBitmap\3\0\0\0xyz", 15)); })));
}

}  // namespace
}  // namespace kt
