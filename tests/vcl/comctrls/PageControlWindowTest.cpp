// Page controls on the screen.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "kt/vcl/stdctrls/Button.h"
#include "support/WindowProbe.h"

#include <QTabBar>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class TPagesForm : public TForm {
 public:
  void Design() { SetDesigning(true); }

 protected:
  TPagesForm() : TForm(nullptr) {}
};

class PageControlWindowTest : public testing::Test {
 protected:
  PageControlWindowTest() {
    FForm->SetBounds(0, 0, 400, 300);
    Pages.SetParent(FForm.get());
    Pages.SetBounds(10, 10, 300, 200);
    for (const char* caption : {"&aaa", "&bbb", "&ccc"}) Add(QLatin1String(caption));
  }

  TTabSheet& Add(const QString& caption) {
    auto& page = *New<TTabSheet>(FForm.get());
    const QString name = QString(caption).remove(u'&');
    page.SetCaption(caption);
    page.SetPageControl(&Pages);
    page.OnShow = TNotifyEvent([this, name](TObject*) { FLog += "show " + name; });
    page.OnHide = TNotifyEvent([this, name](TObject*) { FLog += "hide " + name; });
    return page;
  }
  TButton& AddButton(int page) {
    auto& button = *New<TButton>(FForm.get());
    button.SetParent(Pages.GetPages(page));
    return button;
  }
  void Show() {
    FForm->Show();
    QApplication::setActiveWindow(FForm->GetHandle());
    TWindowProbe::Settle();
    FLog.clear();
  }
  void Listen() {
    Pages.OnChange = TNotifyEvent([this](TObject*) { FLog += "change"; });
    Pages.OnChanging = TTabChangingEvent([this](TObject*, bool&) { FLog += "changing"; });
  }
  void ClickTab(int tab) {
    QTest::mouseClick(Pages.GetHandle(), Qt::LeftButton, Qt::NoModifier, Pages.TabRect(tab).center());
  }
  QTabBar& Tabs() { return *Pages.GetHandle()->findChild<QTabBar*>(); }
  std::string Texts() {
    QStringList texts;
    for (int i = 0; i < Tabs().count(); ++i) {
      texts += i == Tabs().currentIndex() ? u'[' + Tabs().tabText(i) + u']' : Tabs().tabText(i);
    }
    return texts.join(u' ').toStdString();
  }
  std::string Log() { return std::exchange(FLog, {}).join(u", ").toStdString(); }

  std::unique_ptr<TPagesForm> FForm = Make<TPagesForm>();
  TPageControl& Pages = *New<TPageControl>(FForm.get());
  QStringList FLog;
};

TEST_F(PageControlWindowTest, ShowsTheTabsOfItsPages) {
  Show();
  EXPECT_EQ("[&aaa] &bbb &ccc", Texts());
  Pages.GetPages(1)->SetTabVisible(false);
  Pages.GetPages(2)->SetCaption("other");
  Pages.SetActivePageIndex(2);
  EXPECT_EQ("&aaa [other]", Texts());
}

TEST_F(PageControlWindowTest, AClickOnATabTellsInOrder) {
  Listen();
  Show();
  ClickTab(1);
  EXPECT_EQ("changing, show bbb, hide aaa, change", Log());
  EXPECT_EQ(1, Pages.GetActivePageIndex());
  ClickTab(1);
  EXPECT_EQ("", Log());
}

TEST_F(PageControlWindowTest, AFormThatGoesAndComesBackHasTheSamePages) {
  Show();
  FForm->Hide();
  FForm->Show();
  EXPECT_EQ("", Log());
  FForm->Hide();
  Pages.SetActivePageIndex(1);
  EXPECT_EQ("hide aaa", Log());
  FForm->Show();
  EXPECT_EQ("show bbb", Log());
  Pages.SetActivePageIndex(0);
  EXPECT_EQ("show aaa, hide bbb", Log());
}

TEST_F(PageControlWindowTest, AHandlerKeepsTheUserWhereHeIs) {
  Pages.OnChanging = TTabChangingEvent([](TObject*, bool& isAllowed) { isAllowed = false; });
  Show();
  ClickTab(1);
  EXPECT_EQ("[&aaa] &bbb &ccc", Texts());
  EXPECT_EQ("", Log());
}

TEST_F(PageControlWindowTest, TheMouseIsToldBesides) {
  Pages.OnMouseDown = TMouseEvent([this](TObject*, TMouseButton, TShiftState, int, int) { FLog += "down"; });
  Pages.OnMouseUp = TMouseEvent([this](TObject*, TMouseButton, TShiftState, int, int) { FLog += "up"; });
  Show();
  ClickTab(1);
  EXPECT_EQ("show bbb, hide aaa, down, up", Log());
}

TEST_F(PageControlWindowTest, KeysChangeThePageOnTheTabs) {
  Listen();
  Show();
  Pages.SetFocus();
  Log();
  TWindowProbe::Key(Qt::Key_Right);
  EXPECT_EQ("changing, show bbb, hide aaa, change", Log());
  TWindowProbe::Key(Qt::Key_Left);
  EXPECT_EQ(0, Pages.GetActivePageIndex());
  EXPECT_TRUE(Pages.Focused());
}

TEST_F(PageControlWindowTest, CtrlTabChangesThePageFromInside) {
  TButton& button = AddButton(0);
  TButton& other = AddButton(1);
  Show();
  button.SetFocus();
  TWindowProbe::Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(1, Pages.GetActivePageIndex());
  EXPECT_TRUE(other.Focused());
  TWindowProbe::Key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(0, Pages.GetActivePageIndex());
  EXPECT_TRUE(button.Focused());
}

TEST_F(PageControlWindowTest, CtrlTabFromOutsideDoesNothing) {
  auto& button = *New<TButton>(FForm.get());
  button.SetParent(FForm.get());
  button.SetBounds(10, 250, 75, 25);
  Show();
  button.SetFocus();
  TWindowProbe::Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(0, Pages.GetActivePageIndex());
}

TEST_F(PageControlWindowTest, TheKeyboardGoesAlongToAPageWithoutControls) {
  TButton& button = AddButton(0);
  Show();
  button.SetFocus();
  Pages.SetActivePageIndex(1);
  EXPECT_TRUE(Pages.Focused());
}

TEST_F(PageControlWindowTest, AltWithALetterChoosesATab) {
  Listen();
  Show();
  Pages.SetFocus();
  QTest::keyClick(Pages.GetHandle(), Qt::Key_C, Qt::AltModifier);
  TWindowProbe::Settle();
  EXPECT_EQ("changing, show ccc, hide aaa, change", Log());
}

TEST_F(PageControlWindowTest, PagesLieInsideTheFrame) {
  Show();
  const QRect room = Pages.GetDisplayRect();
  EXPECT_EQ(room, Pages.GetPages(0)->GetHandle()->geometry());
  EXPECT_GE(room.top(), Pages.TabRect(0).bottom());
  EXPECT_TRUE(Pages.GetClientRect().contains(room));
  Pages.SetTabPosition(tpBottom);
  EXPECT_LE(Pages.GetDisplayRect().bottom(), Pages.TabRect(0).top());
  Pages.SetTabPosition(tpLeft);
  EXPECT_GE(Pages.GetDisplayRect().left(), Pages.TabRect(0).right());
  Pages.SetTabPosition(tpRight);
  EXPECT_LE(Pages.GetDisplayRect().right(), Pages.TabRect(0).left());
  EXPECT_EQ(Pages.GetDisplayRect(), Pages.GetPages(0)->GetHandle()->geometry());
}

TEST_F(PageControlWindowTest, TabsHaveTheSizeThatIsAskedFor) {
  Pages.SetTabWidth(80);
  Show();
  EXPECT_EQ(80, Pages.TabRect(1).width());
  Pages.SetTabHeight(40);
  EXPECT_EQ(40, Pages.TabRect(1).height());
}

TEST_F(PageControlWindowTest, TabsShowPictures) {
  auto bitmap = Make<TBitmap>();
  bitmap->SetSize(16, 16);
  auto& images = *New<TImageList>(FForm.get());
  images.Add(bitmap.get(), nullptr);
  Pages.SetImages(&images);
  Pages.GetPages(1)->SetImageIndex(-1);
  Show();
  EXPECT_FALSE(Tabs().tabIcon(0).isNull());
  EXPECT_TRUE(Tabs().tabIcon(1).isNull());
  Pages.OnGetImageIndex = TTabGetImageEvent([](TObject*, int tab, int& index) { index = tab == 1 ? 0 : -1; });
  images.SetBkColor(clRed);
  EXPECT_TRUE(Tabs().tabIcon(0).isNull());
  EXPECT_FALSE(Tabs().tabIcon(1).isNull());
}

TEST_F(PageControlWindowTest, DesignersFindTheTabAtAPoint) {
  Show();
  const QPoint point = Pages.TabRect(2).center();
  EXPECT_EQ(2, Pages.IndexOfTabAt(point.x(), point.y()));
  EXPECT_EQ(Pages.GetPages(2), Pages.FindPageOfTabAt(point.x(), point.y()));
  EXPECT_EQ(nullptr, Pages.FindPageOfTabAt(150, 150));
  EXPECT_EQ(1, Pages.Perform(CM_DESIGNHITTEST, 0, MessagePoint(point.x(), point.y())));
  const QPoint active = Pages.TabRect(0).center();
  EXPECT_EQ(0, Pages.Perform(CM_DESIGNHITTEST, 0, MessagePoint(active.x(), active.y())));
}

TEST_F(PageControlWindowTest, InADesignerTabsChangeThePageWithoutAWord) {
  FForm->Design();
  Listen();
  Show();
  ClickTab(1);
  EXPECT_EQ(1, Pages.GetActivePageIndex());
  EXPECT_EQ("", Log());
}

TEST_F(PageControlWindowTest, HandlersMayFreeTheFormWhileATabIsClicked) {
  Pages.OnChange = TNotifyEvent([this](TObject*) { FForm.reset(); });
  Show();
  ClickTab(1);
  EXPECT_EQ(nullptr, FForm.get());
}

TEST_F(PageControlWindowTest, AShownPageMayFreeThePageControl) {
  Pages.GetPages(1)->OnShow = TNotifyEvent([this](TObject*) { delete &Pages; });
  Show();
  ClickTab(1);
  EXPECT_EQ(0, FForm->GetComponentCount());
}

TEST_F(PageControlWindowTest, ButtonsHaveNoFrame) {
  Show();
  const QRect framed = Pages.GetDisplayRect();
  Pages.SetStyle(tsFlatButtons);
  EXPECT_GT(Pages.GetDisplayRect().width(), framed.width());
  ClickTab(2);
  EXPECT_EQ(2, Pages.GetActivePageIndex());
}

TEST_F(PageControlWindowTest, TheWindowTakesOverWhatWasSetBefore) {
  Pages.SetActivePageIndex(2);
  Pages.SetTabPosition(tpBottom);
  Show();
  EXPECT_EQ("&aaa &bbb [&ccc]", Texts());
  EXPECT_TRUE(Pages.GetPages(2)->IsShowing());
  EXPECT_FALSE(Pages.GetPages(0)->IsShowing());
}

}  // namespace
}  // namespace kt::tests
