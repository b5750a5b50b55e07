// Pictures and lists of images, from files.
#include "DesignerFixture.h"
#include "kt/vcl/extctrls/Image.h"
#include "kt/vcl/imagelist/ImageList.h"

#include <QImage>

namespace designer::tests {
namespace {

class PicturesTest : public TDesignerTest {
 protected:
  PicturesTest() {
    FFile = FileWith("pictures.dfm",
                     "object PictureForm: TPictureForm\n"
                     "  ClientHeight = 200\n"
                     "  ClientWidth = 300\n"
                     "  object Image: TImage\n"
                     "    Left = 16\n"
                     "    Top = 16\n"
                     "    Width = 64\n"
                     "    Height = 64\n"
                     "  end\n"
                     "  object Images: TImageList\n"
                     "    Left = 200\n"
                     "    Top = 32\n"
                     "  end\n"
                     "end\n");
    EXPECT_TRUE(FWindow->Open(FFile));
    FWindow->Questions().AskPictureName = [this] { return FAnswered.value(0); };
    FWindow->Questions().AskPictureNames = [this] { return FAnswered; };
  }
  QString Picture(const QString& name, QSize size, const QColor& colour) {
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    const QString file = FFolder.filePath(name);
    EXPECT_TRUE(image.save(file));
    return file;
  }
  /// By the key of the row's button.
  void Load(const QString& file) {
    FAnswered = {file};
    Select("Image");
    GoToRow("Picture");
    Key(Qt::Key_Return, Qt::AltModifier);
  }
  QSize ShownSize() {
    auto& picture = dynamic_cast<kt::TImage&>(Component("Image")).GetPicture();
    return {picture.GetWidth(), picture.GetHeight()};
  }
  int ImageCount() { return dynamic_cast<kt::TImageList&>(Component("Images")).GetCount(); }
  QString File() { return QString::fromUtf8(Document().FileBytes()); }

  QStringList FAnswered;
};

TEST_F(PicturesTest, AFileIsLoadedByTheButtonOfTheRowAndUndone) {
  Load(Picture("red.png", {12, 10}, Qt::red));
  EXPECT_EQ(ShownSize(), QSize(12, 10));
  EXPECT_EQ(UndoText(), "Change Picture");
  EXPECT_TRUE(File().contains("    Picture.Data = {\n"));
  Key(Qt::Key_F12);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(File(), ContentOf(FFile));
}

TEST_F(PicturesTest, NothingChangesWhenNoFileIsChosen) {
  Load(QString());
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(PicturesTest, AFileWithoutAPictureIsToldOnceAndTheOldOneStays) {
  Load(Picture("red.png", {12, 10}, Qt::red));
  Load(FileWith("broken.png", "no picture"));
  EXPECT_EQ(FTold.size(), 1) << FTold.join(u'|').toStdString();
  EXPECT_EQ(ShownSize(), QSize(12, 10));
  EXPECT_EQ(Document().UndoStack().count(), 1);
}

TEST_F(PicturesTest, APictureIsCleared) {
  Select("Image");
  EXPECT_FALSE(FWindow->Action("clearPicture")->isEnabled());
  Load(Picture("red.png", {12, 10}, Qt::red));
  EXPECT_TRUE(FWindow->Action("clearPicture")->isEnabled());
  Do("clearPicture");
  EXPECT_EQ(ShownSize(), QSize(0, 0));
  EXPECT_EQ(File(), ContentOf(FFile));
  EXPECT_EQ(UndoText(), "Clear picture of Image");
}

TEST_F(PicturesTest, ImagesAreAddedFromFilesInOneStep) {
  Select("Images");
  FAnswered = {Picture("one.png", {16, 16}, Qt::red), Picture("large.png", {64, 48}, Qt::blue)};
  Do("addImages");
  EXPECT_EQ(ImageCount(), 2);
  EXPECT_EQ(UndoText(), "Add images to Images");
  const QImage large = dynamic_cast<kt::TImageList&>(Component("Images")).GetImage(1);
  EXPECT_EQ(large.pixelColor(8, 8), QColor(Qt::blue));
  EXPECT_EQ(large.pixelColor(8, 0).alpha(), 0);
  Do("undo");
  EXPECT_EQ(ImageCount(), 0);
  EXPECT_EQ(File(), ContentOf(FFile));
}

TEST_F(PicturesTest, ARowOfImagesIsCutIntoThese) {
  Select("Images");
  FAnswered = {Picture("row.png", {48, 16}, Qt::red)};
  Do("addImages");
  EXPECT_EQ(ImageCount(), 3);
}

TEST_F(PicturesTest, WhenOneFileIsNoPictureNoneIsAdded) {
  Select("Images");
  FAnswered = {Picture("one.png", {16, 16}, Qt::red), FileWith("broken.png", "no picture")};
  Do("addImages");
  EXPECT_EQ(FTold.size(), 1) << FTold.join(u'|').toStdString();
  EXPECT_EQ(ImageCount(), 0);
  EXPECT_FALSE(Document().IsModified());
}

TEST_F(PicturesTest, AllImagesAreCleared) {
  Select("Images");
  FAnswered = {Picture("one.png", {16, 16}, Qt::red)};
  Do("addImages");
  Do("clearImages");
  EXPECT_EQ(ImageCount(), 0);
  EXPECT_FALSE(FWindow->Action("clearImages")->isEnabled());
}

}  // namespace
}  // namespace designer::tests
