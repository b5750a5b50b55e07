// Pages and tabs without a window.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/stdctrls/Button.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Published.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class PageControlTest : public testing::Test {
 protected:
  TTabSheet& Add(const QString& caption) {
    auto& page = *New<TTabSheet>(FPages.get());
    page.SetCaption(caption);
    page.SetPageControl(FPages.get());
    return page;
  }
  /// "a [b] (c)": the pages, the active one and those without tab.
  std::string State() {
    QStringList texts;
    for (int i = 0; i < FPages->GetPageCount(); ++i) {
      const TTabSheet* page = FPages->GetPages(i);
      QString text = page->GetCaption();
      if (!page->IsTabVisible()) text = u'(' + text + u')';
      if (page == FPages->GetActivePage()) text = u'[' + text + u']';
      if (page->IsVisible() != (page == FPages->GetActivePage())) text += u'!';
      texts += text;
    }
    return texts.join(u' ').toStdString();
  }

  std::unique_ptr<TPageControl> FPages = Make<TPageControl>();
};

TEST_F(PageControlTest, PublishesWhatItIsMadeOf) {
  EXPECT_EQ(
      "ActivePage Align=alNone Anchors BiDiMode Constraints DragCursor=-12 DragKind=dkDrag DragMode=dmManual "
      "Enabled=True Font HotTrack=False Images MultiLine=False ParentBiDiMode=True ParentFont=True "
      "ParentShowHint=True PopupMenu RaggedRight=False ScrollOpposite=False ShowHint Style=tsTabs TabHeight=0 TabIndex "
      "TabOrder=-1 TabPosition=tpTop TabStop=True TabWidth=0 Visible=True OnChange OnChanging OnContextPopup "
      "OnDragDrop OnDragOver OnEndDrag OnStartDrag OnEnter OnExit OnGetImageIndex OnMouseDown OnMouseEnter "
      "OnMouseLeave OnMouseMove OnMouseUp OnResize",
      PublishedOf(*FPages));
  EXPECT_EQ(
      "Left Top Width Height Caption Constraints DragMode=dmManual Enabled=True Font Highlighted=False ImageIndex=0 "
      "PageIndex ParentFont=True ParentShowHint=True PopupMenu ShowHint TabVisible=True Visible OnContextPopup "
      "OnDragDrop OnDragOver OnEndDrag OnStartDrag OnEnter OnExit OnHide OnMouseDown OnMouseEnter OnMouseLeave "
      "OnMouseMove OnMouseUp OnResize OnShow",
      PublishedOf(Add("a")));
}

TEST_F(PageControlTest, TheFirstPageIsActiveUntilAnotherIsSet) {
  Add("a");
  TTabSheet& b = Add("b");
  EXPECT_EQ("[a] b", State());
  FPages->SetActivePage(&b);
  EXPECT_EQ("a [b]", State());
  FPages->SetActivePageIndex(0);
  EXPECT_EQ("[a] b", State());
  FPages->SetActivePageIndex(7);
  EXPECT_EQ("a b", State());
}

TEST_F(PageControlTest, APageOfSomebodyElsesIsNotTaken) {
  Add("a");
  auto other = Make<TTabSheet>();
  FPages->SetActivePage(other.get());
  EXPECT_EQ("[a]", State());
}

TEST_F(PageControlTest, TheProgramRaisesNoEvents) {
  QStringList log;
  FPages->OnChange = TNotifyEvent([&](TObject*) { log += "change"; });
  FPages->OnChanging = TTabChangingEvent([&](TObject*, bool&) { log += "changing"; });
  Add("a");
  FPages->SetActivePage(&Add("b"));
  FPages->SetTabIndex(0);
  EXPECT_EQ("", log.join(u' ').toStdString());
  EXPECT_EQ("[a] b", State());
}

TEST_F(PageControlTest, PagesGoRoundAndRoundAsTheUserDoesIt) {
  QStringList log;
  FPages->OnChange = TNotifyEvent([&](TObject*) { log += FPages->GetActivePage()->GetCaption(); });
  FPages->OnChanging =
      TTabChangingEvent([&](TObject*, bool&) { log += "leave " + FPages->GetActivePage()->GetCaption(); });
  Add("a");
  Add("b").SetTabVisible(false);
  Add("c");
  FPages->SelectNextPage(true);
  FPages->SelectNextPage(true);
  FPages->SelectNextPage(false);
  EXPECT_EQ("leave a c leave c a leave a c", log.join(u' ').toStdString());
  FPages->SelectNextPage(false, false);
  EXPECT_EQ("a [(b)] c", State());
}

TEST_F(PageControlTest, AHandlerMayForbidTheChange) {
  FPages->OnChanging = TTabChangingEvent([](TObject*, bool& isAllowed) { isAllowed = false; });
  Add("a");
  Add("b");
  FPages->SelectNextPage(true);
  EXPECT_EQ("[a] b", State());
}

TEST_F(PageControlTest, HandlersMayFreeAnything) {
  Add("a");
  TTabSheet* b = &Add("b");
  FPages->OnChanging = TTabChangingEvent([&](TObject*, bool&) { delete std::exchange(b, nullptr); });
  FPages->SelectNextPage(true);
  EXPECT_EQ("[a]", State());
  Add("c");
  FPages->OnChanging = nullptr;
  FPages->OnChange = TNotifyEvent([&](TObject*) { FPages.reset(); });
  FPages->SelectNextPage(true);
  EXPECT_EQ(nullptr, FPages.get());
}

TEST_F(PageControlTest, ChangingMayFreeThePageControl) {
  Add("a");
  Add("b");
  FPages->OnChanging = TTabChangingEvent([&](TObject*, bool&) { FPages.reset(); });
  FPages->SelectNextPage(true);
  EXPECT_EQ(nullptr, FPages.get());
}

TEST_F(PageControlTest, WhenTheActivePageGoesTheNextOneIsActive) {
  TTabSheet& a = Add("a");
  TTabSheet& b = Add("b");
  TTabSheet& c = Add("c");
  FPages->SetActivePage(&b);
  delete &b;
  EXPECT_EQ("a [c]", State());
  delete &a;
  EXPECT_EQ("[c]", State());
  c.SetPageControl(nullptr);
  EXPECT_EQ("", State());
  EXPECT_EQ(nullptr, FPages->GetActivePage());
  EXPECT_EQ(-1, c.GetPageIndex());
}

TEST_F(PageControlTest, AnActivePageWithoutTabGivesWay) {
  TTabSheet& a = Add("a");
  TTabSheet& b = Add("b");
  a.SetTabVisible(false);
  EXPECT_EQ("(a) [b]", State());
  EXPECT_EQ(-1, a.GetTabIndex());
  EXPECT_EQ(0, b.GetTabIndex());
  EXPECT_EQ(1, b.GetPageIndex());
  b.SetTabVisible(false);
  EXPECT_EQ("(a) (b)", State());
  b.SetTabVisible(true);
  EXPECT_EQ("(a) [b]", State());
}

TEST_F(PageControlTest, PagesCanBeMoved) {
  TTabSheet& a = Add("a");
  Add("b");
  Add("c");
  a.SetPageIndex(2);
  EXPECT_EQ("b c [a]", State());
  EXPECT_EQ("3 is an invalid PageIndex value. PageIndex must be between 0 and 2",
            MessageOf<EListError>([&] { a.SetPageIndex(3); }));
  EXPECT_EQ("List index out of bounds (3)", MessageOf<EListError>([&] { FPages->GetPages(3); }));
}

TEST_F(PageControlTest, PagesFillWhatTheTabsLeave) {
  FPages->SetBounds(0, 0, 200, 100);
  TTabSheet& a = Add("a");
  TTabSheet& b = Add("b");
  EXPECT_EQ(QRect(4, 24, 192, 72), a.GetBoundsRect());
  EXPECT_EQ(QRect(4, 24, 192, 72), b.GetBoundsRect());
  FPages->SetTabPosition(tpBottom);
  EXPECT_EQ(QRect(4, 4, 192, 72), a.GetBoundsRect());
}

constexpr char kPages[] =
    "  object Pages: TPageControl\n"
    "    Left = 10\n"
    "    Top = 20\n"
    "    Width = 200\n"
    "    Height = 100\n"
    "    ActivePage = Second\n"
    "    TabOrder = 0\n"
    "    object First: TTabSheet\n"
    "      Caption = '&First'\n"
    "      object Anchored: TButton\n"
    "        Left = 100\n"
    "        Top = 10\n"
    "        Width = 80\n"
    "        Height = 25\n"
    "        Anchors = [akTop, akRight]\n"
    "        TabOrder = 0\n"
    "      end\n"
    "    end\n"
    "    object Second: TTabSheet\n"
    "      Caption = 'Second'\n"
    "      ImageIndex = 3\n"
    "      TabVisible = False\n"
    "    end\n"
    "  end\n";

TEST_F(PageControlTest, IsReadFromAFormFileAndWrittenBack) {
  RegisterVisualPlatform();
  auto form = Make<TForm>();
  ReadFormText(*form, QByteArray("object F: TForm\n") + kPages + "end\n");
  EXPECT_NE(std::string::npos, TextOf(form.get()).find(kPages)) << TextOf(form.get());
  auto* pages = dynamic_cast<TPageControl*>(form->FindComponent(u"Pages"));
  ASSERT_NE(nullptr, pages);
  EXPECT_EQ(1, pages->GetActivePageIndex());
  EXPECT_EQ(form->FindComponent(u"First"), pages->GetPages(0));
}

TEST_F(PageControlTest, WhatIsAnchoredOnAPageFollowsThePageControl) {
  RegisterVisualPlatform();
  auto form = Make<TForm>();
  ReadFormText(*form, QByteArray("object F: TForm\n") + kPages + "end\n");
  auto* pages = dynamic_cast<TPageControl*>(form->FindComponent(u"Pages"));
  const auto* button = dynamic_cast<TButton*>(form->FindComponent(u"Anchored"));
  EXPECT_EQ(100, button->GetLeft());
  pages->SetWidth(250);
  EXPECT_EQ(150, button->GetLeft());
}

}  // namespace
}  // namespace kt::tests
