#include "support/Expect.h"
#include "support/ItemLists.h"
#include "support/WindowProbe.h"

#include <QImage>

namespace kt::tests {
namespace {

/// The boxes before names, pixel by pixel.
class ItemListEditorGlyphsTest : public TItemListTest {
 protected:
  void Show() {
    Fill("a [b] c [d] e [f] g [h]");
    FWindow = std::make_unique<TWindowProbe>(*FEditor, QSize(300, 200));
  }
  /// The editor as a screen of that scale shows it.
  QImage Shot(qreal scale) {
    QImage image(FWindow->Body()->size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    FWindow->Body()->render(&image);
    return image;
  }
  /// The row of pixels through the middle of a glyph, a letter each: frame, sign, or blank. Seen from (2, 2), where the
  /// cells start.
  QString Across(const QImage& image, int row) {
    const qreal scale = image.devicePixelRatio();
    const QRect cell = FEditor->CellRect(0, row).translated(2, 2);
    const int left = qRound(cell.left() * scale);
    const int y = qRound((cell.top() + (cell.height() - 9) / 2) * scale) + Middle(scale);
    return Letters(image, {left, y}, {1, 0}, scale);
  }
  QString Down(const QImage& image, int row) {
    const qreal scale = image.devicePixelRatio();
    const QRect cell = FEditor->CellRect(0, row).translated(2, 2);
    const QPoint start(qRound(cell.left() * scale) + Middle(scale),
                       qRound((cell.top() + (cell.height() - 9) / 2) * scale));
    return Letters(image, start, {0, 1}, scale);
  }
  /// The first pixel of a sign in its box.
  static int Middle(qreal scale) { return scale == 1 ? 4 : scale == 1.5 ? 6 : 8; }
  QString Letters(const QImage& image, QPoint at, QPoint step, qreal scale) {
    const QColor ground = FWindow->Body()->palette().color(QPalette::Base);
    const QColor sign = FWindow->Body()->palette().color(QPalette::WindowText);
    QString letters;
    for (int i = 0; i < qRound(9 * scale); ++i, at += step) {
      const QColor color = image.pixelColor(at);
      letters += color == ground ? u'.' : color == sign ? u's' : u'f';
    }
    return letters;
  }

  std::unique_ptr<TWindowProbe> FWindow;
};

TEST_F(ItemListEditorGlyphsTest, APlusHasArmsOfFivePixels) {
  Show();
  const QImage image = Shot(1);
  EXPECT_EQ("f.sssss.f", Across(image, 1));
  EXPECT_EQ("f.sssss.f", Down(image, 1));
}

TEST_F(ItemListEditorGlyphsTest, AMinusHasNoArmsUpAndDown) {
  Show();
  Item("a").Expand();
  const QImage image = Shot(1);
  EXPECT_EQ("f.sssss.f", Across(image, 1));
  EXPECT_EQ("f...s...f", Down(image, 1));
}

/// Wherever the rows come to lie.
TEST_F(ItemListEditorGlyphsTest, GlyphsAreEquallyThickAtOneAndAHalf) {
  Show();
  const QImage image = Shot(1.5);
  EXPECT_EQ("f.sssssssss.f.", Across(image, 1));
  EXPECT_EQ("f.sssssssss.f.", Across(image, 2));
  EXPECT_EQ("f.sssssssss.f.", Down(image, 1));
  EXPECT_EQ("f.sssssssss.f.", Down(image, 2));
  EXPECT_EQ("f.sssssssss.f.", Down(image, 3));
}

TEST_F(ItemListEditorGlyphsTest, AtTwoEachLineIsTwoPixels) {
  Show();
  EXPECT_EQ("ff..ssssssssss..ff", Across(Shot(2), 2));
}

TEST_F(ItemListEditorGlyphsTest, GlyphsShowOnADarkGround) {
  Show();
  QPalette dark(QColor(40, 40, 40));
  dark.setColor(QPalette::Base, QColor(20, 20, 20));
  dark.setColor(QPalette::WindowText, Qt::white);
  FWindow->Window()->setPalette(dark);
  TWindowProbe::Settle();
  const QImage image = Shot(1);
  EXPECT_EQ("f.sssss.f", Across(image, 1));
  EXPECT_EQ("f.sssss.f", Down(image, 1));
  EXPECT_GT(image.pixelColor(FEditor->CellRect(0, 1).topLeft() + QPoint(2, 11)).lightness(), 100);
}

}  // namespace
}  // namespace kt::tests
