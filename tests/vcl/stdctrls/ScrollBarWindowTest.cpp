#include "kt/rtl/typeinfo/EnumNames.h"
#include "kt/vcl/stdctrls/ScrollBar.h"
#include "vcl/stdctrls/ControlsFixture.h"

#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

namespace kt::tests {
namespace {

/// A scroll bar on a form that shows.
class ScrollBarWindowTest : public TControlsTest {
 protected:
  void ShowBar() {
    Bar.OnScroll = [this](TObject*, TScrollCode code, int& position) {
      FLog += GetEnumName(TypeInfoOf<TScrollCode>(), code).mid(2) + QStringLiteral("(%1)").arg(position);
    };
    Bar.OnChange = [this](TObject*) { FLog += QStringLiteral("=%1").arg(Bar.GetPosition()); };
    Show();
  }
  QScrollBar& View() { return *static_cast<QScrollBar*>(Bar.GetHandle()); }
  QPoint At(QStyle::SubControl part) {
    QStyleOptionSlider option;
    option.initFrom(&View());
    option.orientation = View().orientation();
    option.minimum = View().minimum();
    option.maximum = View().maximum();
    option.sliderPosition = View().sliderPosition();
    option.sliderValue = View().value();
    option.singleStep = View().singleStep();
    option.pageStep = View().pageStep();
    if (View().orientation() == Qt::Horizontal) option.state |= QStyle::State_Horizontal;
    return View().style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &View()).center();
  }

  TScrollBar& Bar = Add<TScrollBar>();
};

TEST_F(ScrollBarWindowTest, AFormKeepsWhatIsNotUsualAndBringsItBack) {
  Bar.SetName(QStringLiteral("Bar"));
  Bar.SetKind(sbVertical);
  Bar.SetParams(-20, -30, -10);
  EXPECT_EQ(
      "object Bar: TScrollBar\n  Left = 8\n  Top = 8\n  Width = 17\n  Height = 121\n  Kind = sbVertical\n  Max = -10\n"
      "  Min = -30\n  Position = -20\n  TabOrder = 0\nend\n",
      TextOf(&Bar));
  ReadFormText(*FForm, R"(object Form: TForm
    object Read: TScrollBar
      Width = 17
      Height = 121
      Kind = sbVertical
      Max = -10
      Min = -30
      Position = -20
    end
  end
)");
  auto* bar = dynamic_cast<TScrollBar*>(FForm->FindComponent(u"Read"));
  ASSERT_NE(nullptr, bar);
  EXPECT_EQ(-20, bar->GetPosition());
  EXPECT_EQ(17, bar->GetWidth());
}

TEST_F(ScrollBarWindowTest, AnArrowKeyIsALine) {
  Bar.SetSmallChange(3);
  ShowBar();
  Bar.SetFocus();
  Key(Qt::Key_Right);
  EXPECT_EQ("LineDown(3) =3 EndScroll(3)", TakeLog());
  Key(Qt::Key_Left);
  EXPECT_EQ("LineUp(0) =0 EndScroll(0)", TakeLog());
}

TEST_F(ScrollBarWindowTest, KeysLeadDownAnUprightOne) {
  Bar.SetKind(sbVertical);
  Bar.SetLargeChange(10);
  ShowBar();
  Bar.SetFocus();
  Key(Qt::Key_Down);
  Key(Qt::Key_PageDown);
  Key(Qt::Key_End);
  Key(Qt::Key_Up);
  EXPECT_EQ(
      "LineDown(1) =1 EndScroll(1) PageDown(11) =11 EndScroll(11) Bottom(100) =100 EndScroll(100) LineUp(99) =99 "
      "EndScroll(99)",
      TakeLog());
}

TEST_F(ScrollBarWindowTest, TheButtonAtItsEndIsALine) {
  ShowBar();
  QTest::mouseClick(&View(), Qt::LeftButton, {}, At(QStyle::SC_ScrollBarAddLine));
  EXPECT_EQ("LineDown(1) =1 EndScroll(1)", TakeLog());
}

TEST_F(ScrollBarWindowTest, BesideTheThumbIsAPage) {
  Bar.SetLargeChange(25);
  Bar.SetPageSize(10);
  ShowBar();
  QTest::mouseClick(&View(), Qt::LeftButton, {}, At(QStyle::SC_ScrollBarAddPage));
  EXPECT_EQ("PageDown(25) =25 EndScroll(25)", TakeLog());
}

TEST_F(ScrollBarWindowTest, TheThumbIsFollowedAndLetGo) {
  ShowBar();
  const QPoint thumb = At(QStyle::SC_ScrollBarSlider);
  QTest::mousePress(&View(), Qt::LeftButton, {}, thumb);
  QMouseEvent move(QEvent::MouseMove, thumb + QPoint(400, 0), View().mapToGlobal(thumb + QPoint(400, 0)), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&View(), &move);
  EXPECT_EQ("Track(100) =100", TakeLog());
  QTest::mouseRelease(&View(), Qt::LeftButton, {}, thumb);
  EXPECT_EQ("Position(100) EndScroll(100)", TakeLog());
}

TEST_F(ScrollBarWindowTest, AHandlerMaySayWhereItLeads) {
  ShowBar();
  Bar.OnScroll = [](TObject*, TScrollCode, int& position) { position = 42; };
  Bar.SetFocus();
  QTest::keyPress(&View(), Qt::Key_Right);
  EXPECT_EQ(42, Bar.GetPosition());
  EXPECT_EQ(42, View().value());
}

TEST_F(ScrollBarWindowTest, WithAPageItsEndIsTheLastPage) {
  Bar.SetPageSize(30);
  ShowBar();
  Bar.SetFocus();
  QTest::keyPress(&View(), Qt::Key_End);
  EXPECT_EQ("Bottom(71) =71", TakeLog());
}

TEST_F(ScrollBarWindowTest, TheWheelScrollsOnlyWithTheKeyboard) {
  TScrollBar& other = Add<TScrollBar>(8, 60);
  ShowBar();
  other.SetFocus();
  EXPECT_FALSE(Turn(&View(), -120));
  EXPECT_EQ("", TakeLog());
  Bar.SetFocus();
  EXPECT_TRUE(Turn(&View(), -120));
  EXPECT_EQ("LineDown(1) =1 LineDown(2) =2 LineDown(3) =3 EndScroll(3)", TakeLog());
}

TEST_F(ScrollBarWindowTest, AClickTakesTheKeyboard) {
  TScrollBar& other = Add<TScrollBar>(8, 60);
  ShowBar();
  other.SetFocus();
  QWidget* const window = FForm->GetHandle();
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, View().mapTo(window, QPoint(60, 8)));
  EXPECT_TRUE(Bar.Focused());
}

TEST_F(ScrollBarWindowTest, FromRightToLeftTheArrowsAreExchanged) {
  Bar.SetBiDiMode(bdRightToLeft);
  ShowBar();
  Bar.SetFocus();
  QTest::keyPress(&View(), Qt::Key_Left);
  EXPECT_EQ("LineDown(1) =1", TakeLog());
}

TEST_F(ScrollBarWindowTest, AFormMayGoWhileItScrolls) {
  ShowBar();
  Bar.OnScroll = [this](TObject*, TScrollCode, int&) { FForm.reset(); };
  QTest::mousePress(&View(), Qt::LeftButton, {}, At(QStyle::SC_ScrollBarAddLine));
  EXPECT_EQ(nullptr, FForm);
}

TEST_F(ScrollBarWindowTest, AFormMayGoWhenItHasScrolled) {
  ShowBar();
  Bar.OnChange = FreeForm();
  Bar.SetFocus();
  QTest::keyPress(&View(), Qt::Key_Right);
  EXPECT_EQ(nullptr, FForm);
}

}  // namespace
}  // namespace kt::tests
