#include "kt/vcl/comctrls/TrackBar.h"
#include "vcl/stdctrls/ControlsFixture.h"

#include <QSlider>

namespace kt::tests {
namespace {

/// A track bar on a form that shows.
class TrackBarWindowTest : public TControlsTest {
 protected:
  void ShowBar() {
    Bar.OnChange = [this](TObject*) { FLog += QString::number(Bar.GetPosition()); };
    Show();
  }
  QSlider& View() { return *static_cast<QSlider*>(Bar.GetHandle()); }
  /// How many pixels have a colour.
  int CountOf(const QColor& color) {
    const QImage image = View().grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == color;
    }
    return count;
  }

  TTrackBar& Bar = Add<TTrackBar>();
};

TEST_F(TrackBarWindowTest, AFormKeepsWhatIsNotUsualAndBringsItBack) {
  ReadFormText(*FForm, R"(object Form: TForm
    object Read: TTrackBar
      Max = 200
      Min = 100
      Position = 150
      TickStyle = tsNone
    end
  end
)");
  auto* bar = dynamic_cast<TTrackBar*>(FForm->FindComponent(u"Read"));
  ASSERT_NE(nullptr, bar);
  EXPECT_EQ(
      "object Read: TTrackBar\n  Left = 0\n  Top = 0\n  Width = 150\n  Height = 45\n  Max = 200\n  Min = 100\n"
      "  Position = 150\n  TabOrder = 1\n  TickStyle = tsNone\nend\n",
      TextOf(bar));
}

TEST_F(TrackBarWindowTest, KeysMoveTheSlider) {
  ShowBar();
  Bar.SetFocus();
  Key(Qt::Key_Right);
  Key(Qt::Key_PageUp);
  Key(Qt::Key_End);
  Key(Qt::Key_Left);
  EXPECT_EQ("1 3 10 9", TakeLog());
}

TEST_F(TrackBarWindowTest, AnUprightOneHasItsLeastValueAtTheTop) {
  Bar.SetOrientation(trVertical);
  ShowBar();
  Bar.SetFocus();
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  Key(Qt::Key_Up);
  EXPECT_EQ("1 2 1", TakeLog());
  EXPECT_TRUE(View().invertedAppearance());
}

TEST_F(TrackBarWindowTest, TheMouseLeadsOnByAPage) {
  ShowBar();
  QTest::mouseClick(&View(), Qt::LeftButton, {}, QPoint(140, 18));
  EXPECT_EQ("2", TakeLog());
}

TEST_F(TrackBarWindowTest, TheWheelMovesItOnlyWithTheKeyboard) {
  TTrackBar& other = Add<TTrackBar>(8, 80);
  ShowBar();
  other.SetFocus();
  EXPECT_FALSE(Turn(&View(), 120));
  EXPECT_EQ("", TakeLog());
  Bar.SetFocus();
  EXPECT_TRUE(Turn(&View(), 120));
  EXPECT_TRUE(Turn(&View(), 240));
  EXPECT_EQ("1 3", TakeLog());
}

TEST_F(TrackBarWindowTest, TicksAreWhereTheyAreAskedFor) {
  Show();
  EXPECT_EQ(QSlider::TicksBelow, View().tickPosition());
  EXPECT_EQ(1, View().tickInterval());
  Bar.SetTickMarks(tmBoth);
  Bar.SetFrequency(5);
  EXPECT_EQ(QSlider::TicksBothSides, View().tickPosition());
  EXPECT_EQ(5, View().tickInterval());
  Bar.SetTickStyle(tsManual);
  EXPECT_EQ(10, View().tickInterval());
  Bar.SetTickStyle(tsNone);
  EXPECT_EQ(QSlider::NoTicks, View().tickPosition());
}

TEST_F(TrackBarWindowTest, ARangeShowsInTheColourOfSelections) {
  Bar.SetPosition(10);
  Show();
  const QColor color = View().palette().color(QPalette::Highlight);
  const int before = CountOf(color);
  Bar.SetSelStart(2);
  Bar.SetSelEnd(5);
  EXPECT_GT(CountOf(color), before + 60);
}

TEST_F(TrackBarWindowTest, TheSliderMayBeHidden) {
  Show();
  const QImage with = View().grab().toImage();
  Bar.SetSliderVisible(false);
  EXPECT_NE(with, View().grab().toImage());
}

TEST_F(TrackBarWindowTest, AFormMayGoWhileItMoves) {
  Show();
  Bar.OnChange = FreeForm();
  QTest::mousePress(&View(), Qt::LeftButton, {}, QPoint(140, 18));
  EXPECT_EQ(nullptr, FForm);
}

}  // namespace
}  // namespace kt::tests
