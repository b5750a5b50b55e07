#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "kt/vcl/imagelist/ImageListStream.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Images.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

/// Numbers as they stand in a stream.
QByteArray Words(const std::vector<quint16>& values) {
  QByteArray bytes;
  for (quint16 value : values) bytes.append(static_cast<char>(value & 0xFF)).append(static_cast<char>(value >> 8));
  return bytes;
}
QByteArray Longs(const std::vector<quint32>& values) {
  QByteArray bytes;
  for (quint32 value : values) {
    bytes += Words({static_cast<quint16>(value & 0xFFFF), static_cast<quint16>(value >> 16)});
  }
  return bytes;
}

/// A list of pictures of 2 by 2 pixels: "IL", version 1.1, counts, sizes, no ground, flags, no overlays.
QByteArray ListHeader(quint16 count, quint16 capacity, quint16 flags) {
  return QByteArray("IL") + Words({0x0101, count, capacity, 4, 2, 2}) + Longs({0xFFFFFFFF}) +
         Words({flags, 0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF});
}
QByteArray BitmapHeader(int width, int height, quint16 depth, const std::vector<quint32>& palette) {
  const auto offset = static_cast<quint32>(54 + 4 * palette.size());
  return QByteArray("BM") + Longs({0, 0, offset}) +
         Longs({40, static_cast<quint32>(width), static_cast<quint32>(height)}) + Words({1, depth}) +
         Longs({0, 0, 0, 0, static_cast<quint32>(palette.size()), 0}) + Longs(palette);
}
/// Two pictures, "r#/##" and ".../..", in one row of four, from below, with 32 bits.
QByteArray Pixels32(quint32 alpha = 0) {
  const quint32 red = 0xFF0000 | alpha;
  const quint32 white = 0xFFFFFF | alpha;
  return BitmapHeader(8, 2, 32, {}) + Longs({alpha, alpha, white, white, 0, 0, 0, 0}) +
         Longs({red, alpha, white, white, 0, 0, 0, 0});
}
/// The same pictures with 24 bits.
QByteArray Pixels24() {
  const QByteArray rest(12, '\0');
  return BitmapHeader(8, 2, 24, {}) + QByteArray(6, '\0') + QByteArray(6, '\xFF') + rest +
         QByteArray::fromHex("0000FF000000") + QByteArray(6, '\xFF') + rest;
}
/// Masks the upper left pixel of the first picture, the lower right one of the second, and what is not used.
QByteArray Mask() {
  return BitmapHeader(8, 2, 1, {0, 0xFFFFFF}) + QByteArray::fromHex("1F000000") + QByteArray::fromHex("8F000000");
}

std::string PicturesOf(const QByteArray& bytes) {
  const auto data = ReadImageListStream(bytes);
  if (!data) return "unreadable";
  QStringList texts;
  for (const QImage& image : data->Images) texts += QString::fromStdString(LettersOf(image));
  return texts.join(u'|').toStdString();
}

TEST(ImageListStreamTest, ReadsPixelsOf32BitsWithMask) {
  EXPECT_EQ(" #/##|../. ", PicturesOf(ListHeader(2, 4, 0x10FF) + Pixels32() + Mask()));
}

TEST(ImageListStreamTest, ReadsPixelsOf24BitsWithMask) {
  EXPECT_EQ(" #/##|../. ", PicturesOf(ListHeader(2, 4, 0x00FF) + Pixels24() + Mask()));
}

TEST(ImageListStreamTest, ReadsPixelsWithoutMask) {
  EXPECT_EQ("r#/##|../..", PicturesOf(ListHeader(2, 4, 0x00FE) + Pixels32()));
  EXPECT_EQ("r#/##|../..", PicturesOf(ListHeader(2, 4, 0x0018) + Pixels24()));
}

TEST(ImageListStreamTest, ReadsPicturesThatStandOneBelowTheOther) {
  const QByteArray pixels = BitmapHeader(2, 4, 32, {}) + Longs({0, 0xFF0000, 0, 0}) + Longs({0xFFFFFF, 0, 0, 0xFFFFFF});
  EXPECT_EQ("#./.#|##/#r", PicturesOf(ListHeader(2, 2, 0x00FE) + pixels));
}

TEST(ImageListStreamTest, ReadsTranslucentPixels) {
  const QByteArray bytes = ListHeader(2, 4, 0x0020) + Pixels32(0x80000000);
  const auto data = ReadImageListStream(bytes);
  ASSERT_TRUE(data);
  EXPECT_EQ(0x80, qAlpha(data->Images[0].pixel(0, 0)));
}

TEST(ImageListStreamTest, WhatIsCutOffIsUnreadable) {
  const QByteArray whole = ListHeader(2, 4, 0x10FF) + Pixels32() + Mask();
  QStringList readable;
  for (qsizetype size = 0; size < whole.size(); ++size) {
    if (ReadImageListStream(whole.left(size))) readable += QString::number(size);
  }
  EXPECT_EQ("", readable.join(u' ').toStdString());
}

TEST(ImageListStreamTest, WhatDoesNotFitTogetherIsUnreadable) {
  EXPECT_EQ("unreadable", PicturesOf("Ile" + QByteArray(200, '\0')));
  EXPECT_EQ("unreadable", PicturesOf(ListHeader(9, 12, 0x00FE) + Pixels32()));
  EXPECT_EQ("unreadable", PicturesOf(ListHeader(5, 4, 0x00FE) + Pixels32()));
  const QByteArray huge = BitmapHeader(0x7FFFFFFF, 0x7FFFFFFF, 32, {});
  EXPECT_EQ("unreadable", PicturesOf(ListHeader(1, 1, 0x00FE) + huge));
}

TEST(ImageListStreamTest, ReadsWhatItWrites) {
  const QStringList rows = {" #", "r."};
  TImageListData data{{2, 2}, 4, true, {}};
  for (int i = 0; i < 5; ++i) data.Images.push_back(ImageOf(rows));
  EXPECT_EQ(" #/r.| #/r.| #/r.| #/r.| #/r.", PicturesOf(WriteImageListStream(data)));
}

TEST(ImageListStreamTest, ReadsTranslucencyThatItWrites) {
  QImage image(2, 2, QImage::Format_ARGB32);
  image.fill(qRgba(255, 0, 0, 100));
  const auto data = ReadImageListStream(WriteImageListStream({{2, 2}, 4, true, {image}}));
  ASSERT_TRUE(data);
  EXPECT_EQ(qRgba(255, 0, 0, 100), data->Images[0].pixel(1, 1));
}

class ImageListFormTest : public testing::Test {
 protected:
  ImageListFormTest() { RegisterVisualPlatform(); }
  /// A form with a list of these bytes.
  TImageList& Read(const QByteArray& bytes) {
    const QByteArray text = "object F: TForm\n object L: TImageList\n  Width = 2\n  Height = 2\n  Bitmap = {" +
                            bytes.toHex() + "}\n end\nend\n";
    FForm = Make<TForm>();
    ReadFormText(*FForm, text);
    return *dynamic_cast<TImageList*>(FForm->FindComponent(u"L"));
  }
  /// The bytes that a list writes.
  static QByteArray Written(TImageList& list) {
    const QString text = QString::fromStdString(TextOf(&list));
    const QString bytes = text.section(u'{', 1).section(u'}', 0, 0).remove(u' ').remove(u'\n');
    return QByteArray::fromHex(bytes.toLatin1());
  }

  std::unique_ptr<TForm> FForm;
};

TEST_F(ImageListFormTest, WritesWhatItReadUntilAPictureChanges) {
  const QByteArray bytes = ListHeader(2, 4, 0x10FF) + Pixels24() + Mask();
  TImageList& list = Read(bytes);
  EXPECT_EQ(2, list.GetCount());
  EXPECT_EQ(bytes.toHex().toStdString(), Written(list).toHex().toStdString());
  list.Delete(1);
  EXPECT_EQ(" #/##", PicturesOf(Written(list)));
}

TEST_F(ImageListFormTest, KeepsWhatItCannotRead) {
  const QByteArray bytes = "IL of another kind";
  TImageList& list = Read(bytes);
  EXPECT_EQ(0, list.GetCount());
  EXPECT_EQ(bytes.toStdString(), Written(list).toStdString());
  auto bitmap = Make<TBitmap>();
  bitmap->SetImage(ImageOf({"##", "##"}));
  EXPECT_EQ("Invalid ImageList", MessageOf<EInvalidOperation>([&] { list.Add(bitmap.get(), nullptr); }));
  EXPECT_EQ(bytes.toStdString(), Written(list).toStdString());
  list.Clear();
  EXPECT_EQ(0, list.Add(bitmap.get(), nullptr));
}

}  // namespace
}  // namespace kt::tests
