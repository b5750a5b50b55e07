#include "kt/rtl/objects/Make.h"
#include "kt/vcl/stdctrls/EditButton.h"
#include "support/Expect.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace kt {
namespace {

/// A button of 20 x 20 pixels in a picture.
class EditButtonTest : public testing::Test {
 protected:
  QImage Draw(const TEditButton& button) {
    QImage image(24, 24, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    auto canvas = Make<TCanvas>();
    canvas->Begin(painter);
    button.Draw(*canvas, {2, 2, 20, 20});
    canvas->End();
    return image;
  }
  /// The pixels of one line that have a colour: "7 8 11 12".
  static QString Columns(const QImage& image, int y, QColor color) {
    QStringList columns;
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == color) columns += QString::number(x);
    }
    return columns.join(u' ');
  }
  static QColor TextColor(QPalette::ColorGroup group = QPalette::Active) {
    return QApplication::palette().color(group, QPalette::ButtonText);
  }
};

TEST_F(EditButtonTest, AnEllipsisIsThreeSquaresAsFarApartAsTheyAreWide) {
  const QImage image = Draw({TEditButton::Ellipsis});
  EXPECT_EQ(Columns(image, 11, TextColor()), "7 8 11 12 15 16");
  EXPECT_EQ(Columns(image, 12, TextColor()), "7 8 11 12 15 16");
  EXPECT_EQ(Columns(image, 10, TextColor()), "");
  EXPECT_EQ(Columns(image, 13, TextColor()), "");
}

TEST_F(EditButtonTest, WhatIsPressedMovesByAPixel) {
  const QImage image = Draw({TEditButton::Ellipsis, true});
  EXPECT_EQ(Columns(image, 12, TextColor()), "8 9 12 13 16 17");
  EXPECT_EQ(Columns(image, 11, TextColor()), "");
}

TEST_F(EditButtonTest, ADisabledOneIsGray) {
  ASSERT_NE(TextColor(), TextColor(QPalette::Disabled));
  const QImage image = Draw({TEditButton::Ellipsis, false, false});
  EXPECT_EQ(Columns(image, 11, TextColor(QPalette::Disabled)), "7 8 11 12 15 16");
}

TEST_F(EditButtonTest, PaintsAllOfItsPlaceAndNothingElse) {
  const QImage image = Draw({TEditButton::DropDown});
  EXPECT_EQ(Columns(image, 1, Qt::red).count(u' '), 23);
  EXPECT_EQ(Columns(image, 12, Qt::red), "0 1 22 23");
}

TEST_F(EditButtonTest, ADropDownShowsAnotherSignThanAnEllipsis) {
  const QImage image = Draw({TEditButton::DropDown});
  EXPECT_NE(image, Draw({TEditButton::Ellipsis}));
  EXPECT_NE(image, Draw({TEditButton::DropDown, true}));
  // Something in the middle that the ground around it has not.
  EXPECT_NE(image.pixelColor(12, 12), image.pixelColor(5, 12));
}

TEST_F(EditButtonTest, IsUsuallyAsWideAsAScrollBar) {
  const QScrollBar bar(Qt::Vertical);
  EXPECT_EQ(TEditButton::UsualWidth(), bar.sizeHint().width());
}

}  // namespace
}  // namespace kt
