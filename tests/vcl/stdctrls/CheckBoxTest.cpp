#include "kt/vcl/stdctrls/CheckBox.h"
#include "vcl/stdctrls/ButtonFixture.h"

#include <QCheckBox>

namespace kt::tests {
namespace {

class CheckBoxTest : public TButtonTest {
 protected:
  /// What Qt's box shows: "-" none, "x" checked, "?" neither.
  static QString Shown(TCheckBox& box) {
    const auto state = static_cast<QCheckBox*>(box.GetHandle())->checkState();
    return state == Qt::Checked ? "x" : state == Qt::Unchecked ? "-" : "?";
  }
};

TEST_F(CheckBoxTest, AClickChecksAndUnchecks) {
  TCheckBox& box = Add<TCheckBox>("box");
  Show();
  Click(box);
  EXPECT_TRUE(box.IsChecked());
  EXPECT_EQ("x", Shown(box));
  Click(box);
  EXPECT_FALSE(box.IsChecked());
  EXPECT_EQ("-", Shown(box));
  EXPECT_EQ("box box", TakeLog());
}

TEST_F(CheckBoxTest, WithAllowGrayedAClickGoesThroughAllThree) {
  TCheckBox& box = Add<TCheckBox>("box");
  box.SetAllowGrayed(true);
  Show();
  QStringList shown;
  for (int i = 0; i < 3; ++i) {
    Click(box);
    shown += Shown(box);
  }
  EXPECT_EQ("? x -", shown.join(u' '));
}

TEST_F(CheckBoxTest, TheProgramMayGrayItWithoutAllowGrayed) {
  TCheckBox& box = Add<TCheckBox>("box");
  box.SetState(cbGrayed);
  Show();
  EXPECT_EQ("?", Shown(box));
  Click(box);
  EXPECT_EQ("x", Shown(box));
  Click(box);
  EXPECT_EQ("-", Shown(box));
}

TEST_F(CheckBoxTest, AnotherStateSetByTheProgramIsAClick) {
  TCheckBox& box = Add<TCheckBox>("box");
  box.SetChecked(true);
  EXPECT_EQ("box", TakeLog());
  box.SetChecked(true);
  EXPECT_EQ("", TakeLog());
}

TEST_F(CheckBoxTest, AHandlerMayTakeTheCheckBack) {
  TCheckBox& box = Add<TCheckBox>("box");
  box.OnClick = [&box](TObject*) {
    if (box.IsChecked()) box.SetChecked(false);
  };
  Show();
  Click(box);
  EXPECT_EQ("-", Shown(box));
}

TEST_F(CheckBoxTest, TheCaptionStandsOnTheSideThatIsAskedFor) {
  TCheckBox& box = Add<TCheckBox>("box");
  Show();
  EXPECT_EQ(Qt::LeftToRight, box.GetHandle()->layoutDirection());
  box.SetAlignment(taLeftJustify);
  EXPECT_EQ(Qt::RightToLeft, box.GetHandle()->layoutDirection());
  box.SetBiDiMode(bdRightToLeft);
  EXPECT_EQ(Qt::LeftToRight, box.GetHandle()->layoutDirection());
}

TEST_F(CheckBoxTest, TheCaptionStaysOnItsSideWhenTheFontChanges) {
  TCheckBox& box = Add<TCheckBox>("box");
  box.SetAlignment(taLeftJustify);
  Show();
  box.GetFont().SetSize(20);
  EXPECT_EQ(Qt::RightToLeft, box.GetHandle()->layoutDirection());
}

TEST_F(CheckBoxTest, AFormFileChecksWithoutAClick) {
  ReadFormText(*FForm, R"(object Form: TForm
    object Box: TCheckBox
      Checked = True
      State = cbChecked
    end
  end
)");
  auto* box = dynamic_cast<TCheckBox*>(FForm->FindComponent(u"Box"));
  ASSERT_NE(nullptr, box);
  EXPECT_TRUE(box->IsChecked());
}

TEST_F(CheckBoxTest, AnOwnColorFillsTheGround) {
  TCheckBox& box = Add<TCheckBox>("box");
  Show();
  EXPECT_FALSE(box.GetHandle()->autoFillBackground());
  box.SetColor(clLime);
  EXPECT_TRUE(box.GetHandle()->autoFillBackground());
  EXPECT_EQ(QColor(Qt::green), box.GetHandle()->palette().color(QPalette::Window));
}

}  // namespace
}  // namespace kt::tests
