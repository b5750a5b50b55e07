#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/comctrls/StatusBar.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "support/FormText.h"
#include "support/Published.h"
#include "support/WindowProbe.h"

#include <QLabel>
#include <QSizeGrip>
#include <QStatusBar>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class StatusBarTest : public testing::Test {
 protected:
  StatusBarTest() { Bar.SetParent(FForm.get()); }
  ~StatusBarTest() override {
    Application().OnHint = nullptr;
    Application().SetHint({});
  }

  TStatusPanel& Add(const QString& text, int width = 50) {
    TStatusPanel& panel = *Bar.GetPanels().Add();
    panel.SetText(text);
    panel.SetWidth(width);
    return panel;
  }
  void Show() {
    FForm->Show();
    QApplication::setActiveWindow(FForm->GetHandle());
    TWindowProbe::Settle();
  }
  QStatusBar& Window() { return *static_cast<QStatusBar*>(Bar.GetHandle()); }
  QList<QLabel*> Labels() { return Window().findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly); }
  /// "one<60 two>100": the texts, where they stand, and the widths.
  std::string Panels() {
    QStringList texts;
    for (const QLabel* label : Labels()) {
      const bool isCentered = label->alignment() & Qt::AlignHCenter;
      const QChar place = isCentered ? u'=' : (label->alignment() & Qt::AlignRight) ? u'>' : u'<';
      texts += label->text() + place + QString::number(label->width());
    }
    return texts.join(u' ').toStdString();
  }

  std::unique_ptr<TForm> FForm = Make<TForm>();
  TStatusBar& Bar = *New<TStatusBar>(FForm.get());
  QStringList FLog;
};

TEST_F(StatusBarTest, PublishesWhatItIsMadeOf) {
  EXPECT_EQ(
      "Action AutoHint=False Align=alBottom Anchors BiDiMode Color=-16777201 DragCursor=-12 DragKind=dkDrag "
      "DragMode=dmManual Enabled=True Font Constraints Panels ParentBiDiMode=True ParentColor=False ParentFont=False "
      "ParentShowHint=True PopupMenu ShowHint SimplePanel=False SimpleText SizeGrip=True UseSystemFont=True "
      "Visible=True OnClick OnContextPopup OnDblClick OnMouseDown OnMouseEnter OnMouseLeave OnMouseMove OnMouseUp "
      "OnDragDrop OnDragOver OnEndDrag OnStartDrag OnHint OnResize",
      PublishedOf(*Make<TStatusBar>()));
  EXPECT_EQ("Alignment=taLeftJustify Bevel=pbLowered BiDiMode ParentBiDiMode=True Style=psText Text Width",
            PublishedOf(Add("one")));
}

TEST_F(StatusBarTest, StandsAtTheBottom) {
  FForm->SetBounds(0, 0, 300, 200);
  EXPECT_EQ(QRect(0, 181, 300, 19), Bar.GetBoundsRect());
}

TEST_F(StatusBarTest, ShowsItsPanelsTheLastOneWithWhatIsLeft) {
  FForm->SetBounds(0, 0, 300, 200);
  Bar.SetSizeGrip(false);
  Add("one", 60);
  Add("two", 70).SetAlignment(taRightJustify);
  Add("three").SetAlignment(taCenter);
  Show();
  EXPECT_EQ("one<60 two>70 three=166", Panels());
  EXPECT_EQ(QRect(134, 2, 166, 17), Labels().back()->geometry());
  FForm->SetWidth(400);
  EXPECT_EQ("one<60 two>70 three=266", Panels());
}

TEST_F(StatusBarTest, FollowsItsPanels) {
  Add("one", 60);
  Add("two");
  Show();
  Bar.GetPanels().GetItems(0)->SetText("other");
  Bar.GetPanels().GetItems(0)->SetWidth(80);
  TWindowProbe::Settle();
  EXPECT_EQ(0U, Panels().find("other<80 two<"));
  Bar.GetPanels().Delete(0);
  EXPECT_EQ(0U, Panels().find("two<"));
  Bar.GetPanels().Clear();
  EXPECT_EQ("", Panels());
}

TEST_F(StatusBarTest, BevelsAreFrames) {
  Add("one");
  Add("two").SetBevel(pbRaised);
  Add("three").SetBevel(pbNone);
  Show();
  EXPECT_EQ(QFrame::Panel | QFrame::Sunken, Labels()[0]->frameStyle());
  EXPECT_EQ(QFrame::Panel | QFrame::Raised, Labels()[1]->frameStyle());
  EXPECT_EQ(QFrame::NoFrame, Labels()[2]->frameStyle());
}

TEST_F(StatusBarTest, ASimplePanelHidesTheOthers) {
  Add("one");
  Bar.SetSimpleText("simple");
  Show();
  EXPECT_EQ("", Window().currentMessage().toStdString());
  Bar.SetSimplePanel(true);
  EXPECT_EQ("", Panels());
  EXPECT_EQ("simple", Window().currentMessage().toStdString());
  Bar.SetSimpleText("other");
  EXPECT_EQ("other", Window().currentMessage().toStdString());
  Bar.SetSimplePanel(false);
  EXPECT_EQ("", Window().currentMessage().toStdString());
  EXPECT_EQ(0U, Panels().find("one<"));
}

TEST_F(StatusBarTest, TheCornerIsAGripWhenItIsAskedFor) {
  Show();
  EXPECT_TRUE(Window().isSizeGripEnabled());
  Bar.SetSizeGrip(false);
  EXPECT_FALSE(Window().isSizeGripEnabled());
}

TEST_F(StatusBarTest, ShowsTheHintOfTheProgramWithAutoHint) {
  Show();
  Application().SetHint("first");
  EXPECT_EQ("", Bar.GetSimpleText().toStdString());
  Bar.SetAutoHint(true);
  Application().SetHint("second");
  EXPECT_EQ("second", Bar.GetSimpleText().toStdString());
  Add("one");
  Application().SetHint("third");
  EXPECT_EQ("third", Bar.GetPanels().GetItems(0)->GetText().toStdString());
}

TEST_F(StatusBarTest, HandlersForHintsGoBefore) {
  Bar.SetAutoHint(true);
  Bar.OnHint = TNotifyEvent([this](TObject*) { FLog += "bar"; });
  Show();
  Application().SetHint("a");
  Application().OnHint = TNotifyEvent([this](TObject*) { FLog += "application"; });
  Application().SetHint("b");
  EXPECT_EQ("bar application", FLog.join(u' ').toStdString());
  EXPECT_EQ("", Bar.GetSimpleText().toStdString());
}

TEST_F(StatusBarTest, AHandlerMayFreeTheForm) {
  Bar.SetAutoHint(true);
  Bar.OnHint = TNotifyEvent([&](TObject*) { FForm.reset(); });
  Show();
  Application().SetHint("a");
  EXPECT_EQ(nullptr, FForm.get());
}

TEST_F(StatusBarTest, TheMouseOnAPanelIsTheBars) {
  Add("one");
  Bar.OnClick = TNotifyEvent([this](TObject*) { FLog += "click"; });
  Bar.OnMouseDown =
      TMouseEvent([this](TObject*, TMouseButton, TShiftState, int x, int) { FLog += QString::number(x); });
  Show();
  QTest::mouseClick(&Window(), Qt::LeftButton, Qt::NoModifier, {20, 9});
  EXPECT_EQ("20 click", FLog.join(u' ').toStdString());
}

TEST_F(StatusBarTest, AnotherFontEndsTheSystemsOne) {
  EXPECT_TRUE(Bar.IsUseSystemFont());
  EXPECT_FALSE(Bar.IsBarFontStored());
  Bar.GetFont().SetSize(20);
  EXPECT_FALSE(Bar.IsUseSystemFont());
  EXPECT_TRUE(Bar.IsBarFontStored());
}

TEST_F(StatusBarTest, AnOwnColorFillsTheGround) {
  Show();
  EXPECT_FALSE(Window().autoFillBackground());
  Bar.SetColor(clLime);
  EXPECT_TRUE(Window().autoFillBackground());
  EXPECT_EQ(QColor(Qt::green), Window().palette().color(QPalette::Window));
}

TEST_F(StatusBarTest, PanelsFollowTheDirectionOfTheBar) {
  TStatusPanel& panel = Add("one");
  Show();
  Bar.SetBiDiMode(bdRightToLeft);
  EXPECT_EQ(bdRightToLeft, panel.GetBiDiMode());
  EXPECT_EQ(0U, Panels().find("one>"));
  panel.SetBiDiMode(bdLeftToRight);
  EXPECT_EQ(0U, Panels().find("one<"));
}

TEST_F(StatusBarTest, IsReadFromAFormFileAndWrittenBack) {
  RegisterVisualPlatform();
  const std::string text =
      "object StatusBar1: TStatusBar\n"
      "  Left = 0\n"
      "  Top = 181\n"
      "  Width = 300\n"
      "  Height = 19\n"
      "  Panels = <\n"
      "    item\n"
      "      Alignment = taCenter\n"
      "      Text = 'one'\n"
      "      Width = 60\n"
      "    end\n"
      "    item\n"
      "      Width = 50\n"
      "    end>\n"
      "end\n";
  auto form = Make<TForm>();
  ReadFormText(*form, QByteArray::fromStdString("object F: TForm\n Width = 300\n Height = 200\n" + text + "end\n"));
  EXPECT_EQ(text, TextOf(form->FindComponent(u"StatusBar1")));
}

}  // namespace
}  // namespace kt::tests
