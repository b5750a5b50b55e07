#include "kt/vcl/comctrls/ProgressBar.h"
#include "vcl/stdctrls/ControlsFixture.h"

#include <QProgressBar>

namespace kt::tests {
namespace {

class ProgressBarWindowTest : public TControlsTest {
 protected:
  /// "3 of 0..10" as the window has it.
  static QString Shown(TProgressBar& bar) {
    const auto& view = *static_cast<QProgressBar*>(bar.GetHandle());
    return QStringLiteral("%1 of %2..%3").arg(view.value()).arg(view.minimum()).arg(view.maximum());
  }

  TProgressBar& Bar = Add<TProgressBar>();
};

TEST_F(ProgressBarWindowTest, TheWindowShowsHowFarItIs) {
  Bar.SetMax(10);
  Bar.SetPosition(3);
  Show();
  EXPECT_EQ("3 of 0..10", Shown(Bar));
  Bar.StepBy(4);
  EXPECT_EQ("7 of 0..10", Shown(Bar));
  Bar.SetMin(-5);
  EXPECT_EQ("7 of -5..10", Shown(Bar));
}

TEST_F(ProgressBarWindowTest, ARangeOfNothingDoesNotLookBusy) {
  Bar.SetMax(0);
  Show();
  EXPECT_EQ("0 of 0..1", Shown(Bar));
}

TEST_F(ProgressBarWindowTest, AnUprightOneStandsUpright) {
  Show();
  Bar.SetOrientation(pbVertical);
  EXPECT_EQ(Qt::Vertical, static_cast<QProgressBar*>(Bar.GetHandle())->orientation());
}

TEST_F(ProgressBarWindowTest, AFormBringsItBackWhateverTheOrder) {
  ReadFormText(*FForm, R"(object Form: TForm
    object Read: TProgressBar
      Position = 250
      Min = 200
      Max = 300
      Step = 5
    end
  end
)");
  auto* bar = dynamic_cast<TProgressBar*>(FForm->FindComponent(u"Read"));
  ASSERT_NE(nullptr, bar);
  EXPECT_EQ("250 of 200..300", Shown(*bar));
  EXPECT_EQ(
      "object Read: TProgressBar\n  Left = 0\n  Top = 0\n  Width = 150\n  Height = 17\n  Min = 200\n  Max = 300\n"
      "  Position = 250\n  Step = 5\n  TabOrder = 1\nend\n",
      TextOf(bar));
}

}  // namespace
}  // namespace kt::tests
