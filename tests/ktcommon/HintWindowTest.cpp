#include "kt/ktcommon/HintWindow.h"
#include "kt/rtl/objects/Make.h"
#include "support/Expect.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

namespace kt {
namespace {

class HintWindowTest : public testing::Test {
 protected:
  /// The window on the screen, or null.
  static QLabel* Label() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* label = qobject_cast<QLabel*>(widget)) return label;
    }
    return nullptr;
  }
  QSize SizeOf(const QString& text) {
    Hint.ActivateHint({100, 100}, text);
    return Label()->size();
  }
  QRect PlaceAt(QPoint point, const QString& text = QStringLiteral("a text")) {
    Hint.ActivateHint(point, text);
    return Label()->geometry();
  }
  static QRect Area() { return QGuiApplication::primaryScreen()->availableGeometry(); }

  std::unique_ptr<TKTHintWindow> FHint = Make<TKTHintWindow>();
  TKTHintWindow& Hint = *FHint;
};

TEST_F(HintWindowTest, ShowsAtOnceWithoutAnInterval) {
  EXPECT_FALSE(Hint.IsShown());
  Hint.ActivateHint({10, 20}, QStringLiteral("a"));
  EXPECT_TRUE(Hint.IsShown());
  EXPECT_EQ(Hint.GetText(), "a");
}

TEST_F(HintWindowTest, WaitsForItsInterval) {
  Hint.SetInterval(20);
  Hint.ActivateHint({10, 20}, QStringLiteral("a"));
  EXPECT_FALSE(Hint.IsShown());
  EXPECT_TRUE(QTest::qWaitFor([this] { return Hint.IsShown(); }, 5000));
}

TEST_F(HintWindowTest, IsNotShownAnyMoreWhenItIsHiddenBeforeItsIntervalEnds) {
  Hint.SetInterval(20);
  Hint.ActivateHint({10, 20}, QStringLiteral("a"));
  Hint.HideHint();
  QTest::qWait(60);
  EXPECT_FALSE(Hint.IsShown());
}

TEST_F(HintWindowTest, ANewTextReplacesTheOneThatWaits) {
  Hint.SetInterval(20);
  Hint.ActivateHint({10, 20}, QStringLiteral("first"));
  Hint.ActivateHint({10, 20}, QStringLiteral("second"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Hint.IsShown(); }, 5000));
  EXPECT_EQ(Label()->text(), "second");
}

TEST_F(HintWindowTest, HidesAndShowsAgain) {
  Hint.HideHint();
  Hint.ActivateHint({10, 20}, QStringLiteral("a"));
  Hint.HideHint();
  EXPECT_FALSE(Hint.IsShown());
  Hint.ActivateHint({10, 20}, QStringLiteral("b"));
  EXPECT_TRUE(Hint.IsShown());
}

TEST_F(HintWindowTest, ItsTopLeftIsThePoint) { EXPECT_EQ(PlaceAt({123, 45}).topLeft(), QPoint(123, 45)); }

TEST_F(HintWindowTest, AtTheFarCornerAllOfItIsOnTheScreen) {
  EXPECT_EQ(PlaceAt(Area().bottomRight()).bottomRight(), Area().bottomRight());
}

TEST_F(HintWindowTest, BeforeTheNearCornerAllOfItIsOnTheScreen) {
  const QRect place = PlaceAt(Area().topLeft() - QPoint(50, 60));
  EXPECT_TRUE(Area().contains(place));
  // The offscreen platform keeps the width of a window frame from the edge.
  EXPECT_LE(place.left(), Area().left() + 2);
  EXPECT_LE(place.top(), Area().top() + 2);
}

TEST_F(HintWindowTest, ATextThatIsWiderThanTheScreenIsBrokenIntoLines) {
  const int line = SizeOf(QStringLiteral("word")).height();
  const QRect place = PlaceAt({100, 100}, QStringLiteral("word ").repeated(200));
  EXPECT_EQ(place.left(), Area().left());
  EXPECT_EQ(place.width(), Area().width());
  EXPECT_GT(place.height(), line);
}

TEST_F(HintWindowTest, WhatLooksLikeMarkupIsShownAsItIs) {
  const QSize plain = SizeOf(QStringLiteral("x"));
  EXPECT_GT(SizeOf(QStringLiteral("<b>x</b>")).width(), plain.width());
  EXPECT_EQ(Label()->textFormat(), Qt::PlainText);
}

TEST_F(HintWindowTest, CarriageReturnAndLineFeedAreOneBreak) {
  const QSize two = SizeOf(QStringLiteral("one\ntwo"));
  EXPECT_GT(two.height(), SizeOf(QStringLiteral("one")).height());
  EXPECT_EQ(SizeOf(QStringLiteral("one\r\ntwo")), two);
}

TEST_F(HintWindowTest, ALargerFontMakesALargerWindow) {
  const QSize usual = SizeOf(QStringLiteral("text"));
  Hint.GetFont().SetSize(30);
  EXPECT_GT(SizeOf(QStringLiteral("text")).height(), usual.height());
}

TEST_F(HintWindowTest, DoesNotTakeTheKeyboardAndAsksForNoMouse) {
  QLineEdit edit;
  edit.show();
  QApplication::setActiveWindow(&edit);
  edit.setFocus();
  Hint.ActivateHint(edit.mapToGlobal(QPoint(0, 0)), QStringLiteral("a"));
  QCoreApplication::processEvents();
  EXPECT_EQ(QApplication::activeWindow(), &edit);
  EXPECT_TRUE(edit.hasFocus());
  EXPECT_TRUE(Label()->windowFlags().testFlag(Qt::WindowTransparentForInput));
}

TEST_F(HintWindowTest, GoesWithItsWindow) {
  Hint.ActivateHint({10, 20}, QStringLiteral("a"));
  FHint.reset();
  EXPECT_EQ(Label(), nullptr);
}

}  // namespace
}  // namespace kt
