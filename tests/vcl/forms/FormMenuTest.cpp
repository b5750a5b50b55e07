#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "kt/vcl/menus/MainMenu.h"
#include "kt/vcl/stdctrls/Button.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/WindowProbe.h"

#include <QMenu>
#include <QMenuBar>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class TDesignedForm : public TForm {
 public:
  void Design() { SetDesigning(true); }

 protected:
  TDesignedForm() : TForm(nullptr) {}
};

class FormMenuTest : public testing::Test {
 protected:
  FormMenuTest() {
    File = &Add("&File");
    Open = &Add("&Open", File);
    Open->SetShortCut(TextToShortCut(QStringLiteral("Ctrl+O")));
    Add("&Edit");
    FForm->SetMenu(Menu);
  }
  ~FormMenuTest() override {
    Application().OnException = nullptr;
    Application().SetHint({});
  }

  TMenuItem& Add(const QString& caption, TMenuItem* parent = nullptr) {
    auto& item = *New<TMenuItem>(Menu);
    item.SetCaption(caption);
    item.OnClick = TNotifyEvent([this, caption](TObject*) { FLog += QString(caption).remove(u'&'); });
    (parent ? *parent : Menu->GetItems()).Add(&item);
    return item;
  }
  void Show() {
    FForm->Show();
    QApplication::setActiveWindow(FForm->GetHandle());
    TWindowProbe::Settle();
  }
  QMenuBar* Bar() const { return FForm->GetHandle()->findChild<QMenuBar*>(); }
  std::string Entries() const {
    QStringList texts;
    if (!Bar()) return "none";
    for (const QAction* action : Bar()->actions()) texts += action->text();
    return texts.join(u'|').toStdString();
  }
  /// Does something when the next menu has opened, and closes what is open then.
  void WhenOpen(const std::function<void(QMenu&)>& what) {
    FWhat = what;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [this] {
          if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) FWhat(*menu);
          while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
        },
        Qt::QueuedConnection);
  }
  /// Opens a menu of the bar with the mouse.
  void OpenMenu(int index) {
    const QPoint place = Bar()->actionGeometry(Bar()->actions()[index]).center();
    QTest::mousePress(Bar(), Qt::LeftButton, Qt::NoModifier, place);
    TWindowProbe::Settle();
  }
  static void Choose(QMenu& menu, int index) {
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(menu.actions()[index]).center());
  }
  std::string Log() { return std::exchange(FLog, {}).join(u' ').toStdString(); }

  std::unique_ptr<TDesignedForm> FForm = Make<TDesignedForm>();
  TMainMenu* Menu = New<TMainMenu>(FForm.get());
  TMenuItem* File = nullptr;
  TMenuItem* Open = nullptr;
  QStringList FLog;
  std::function<void(QMenu&)> FWhat;
};

TEST_F(FormMenuTest, TheBarShowsTheItems) {
  Show();
  EXPECT_EQ("&File|&Edit", Entries());
  EXPECT_TRUE(Bar()->isVisible());
}

TEST_F(FormMenuTest, TheBarFollowsTheItems) {
  Show();
  Add("&View");
  File->SetVisible(false);
  TWindowProbe::Settle();
  EXPECT_EQ("&Edit|&View", Entries());
}

TEST_F(FormMenuTest, TheClientAreaLiesBelowTheBarAndTheHeightIsThatOfTheWhole) {
  FForm->SetBounds(0, 0, 300, 200);
  auto& button = *New<TButton>(FForm.get());
  button.SetParent(FForm.get());
  Show();
  const int bar = Bar()->height();
  EXPECT_GT(bar, 10);
  EXPECT_EQ(200, FForm->GetHeight());
  EXPECT_EQ(200 - bar, FForm->GetClientHeight());
  EXPECT_EQ(QRect(0, 0, 300, bar), Bar()->geometry());
  EXPECT_EQ(bar, button.GetHandle()->y());
  FForm->SetMenu(nullptr);
  EXPECT_EQ(200, FForm->GetClientHeight());
  EXPECT_EQ(0, button.GetHandle()->y());
}

TEST_F(FormMenuTest, AMenuWithoutVisibleItemsTakesNoRoom) {
  FForm->SetBounds(0, 0, 300, 200);
  Show();
  Menu->GetItems().Clear();
  TWindowProbe::Settle();
  EXPECT_EQ(200, FForm->GetClientHeight());
}

TEST_F(FormMenuTest, TheBarIsAsWideAsTheForm) {
  Show();
  FForm->SetWidth(500);
  EXPECT_EQ(500, Bar()->width());
}

TEST_F(FormMenuTest, ADialogShowsNone) {
  FForm->SetBorderStyle(bsDialog);
  Show();
  EXPECT_EQ("none", Entries());
}

TEST_F(FormMenuTest, AMenuThatOpensClicksItsItemAndIsFilledThen) {
  File->OnClick = TNotifyEvent([this](TObject*) {
    FLog += "File";
    if (File->GetCount() == 1) Add("&Recent", File);
  });
  Show();
  QString texts;
  WhenOpen([&](QMenu& menu) {
    for (const QAction* action : menu.actions()) texts += action->text().replace(u'\t', u'~') + u'|';
  });
  OpenMenu(0);
  EXPECT_EQ("&Open~Ctrl+O|&Recent|", texts.toStdString());
  EXPECT_EQ("File", Log());
}

TEST_F(FormMenuTest, AnItemIsClickedWithTheMouse) {
  Show();
  WhenOpen([](QMenu& menu) { Choose(menu, 0); });
  OpenMenu(0);
  EXPECT_EQ("File Open", Log());
}

TEST_F(FormMenuTest, AnItemIsClickedWithKeys) {
  Show();
  WhenOpen([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_O); });
  QTest::keyClick(FForm->GetHandle(), Qt::Key_F, Qt::AltModifier);
  TWindowProbe::Settle();
  EXPECT_EQ("File Open", Log());
}

TEST_F(FormMenuTest, AnItemWithoutItemsBelowIsClickedInTheBar) {
  Show();
  QTest::mouseClick(Bar(), Qt::LeftButton, Qt::NoModifier, Bar()->actionGeometry(Bar()->actions()[1]).center());
  TWindowProbe::Settle();
  EXPECT_EQ("Edit", Log());
}

TEST_F(FormMenuTest, ShortCutsWorkWhereverTheKeyboardIs) {
  auto& button = *New<TButton>(FForm.get());
  button.SetParent(FForm.get());
  Show();
  button.SetFocus();
  TWindowProbe::Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ("Open", Log());
  Open->SetEnabled(false);
  TWindowProbe::Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ("", Log());
}

TEST_F(FormMenuTest, AnItemShowsItsPicture) {
  auto bitmap = Make<TBitmap>();
  bitmap->SetSize(16, 16);
  auto& images = *New<TImageList>(FForm.get());
  images.Add(bitmap.get(), nullptr);
  Menu->SetImages(&images);
  Open->SetImageIndex(0);
  Show();
  bool hasIcon = false;
  WhenOpen([&](QMenu& menu) { hasIcon = !menu.actions()[0]->icon().isNull(); });
  OpenMenu(0);
  EXPECT_TRUE(hasIcon);
}

TEST_F(FormMenuTest, TheHighlightedEntryTellsItsHint) {
  Open->SetHint(QStringLiteral("Short|Opens a file"));
  Show();
  QString hint;
  WhenOpen([&](QMenu& menu) {
    menu.setActiveAction(menu.actions()[0]);
    hint = Application().GetHint();
  });
  OpenMenu(0);
  EXPECT_EQ("Opens a file", hint.toStdString());
}

TEST_F(FormMenuTest, AHandlerMayFreeTheForm) {
  Open->OnClick = TNotifyEvent([this](TObject*) { FForm.reset(); });
  Show();
  WhenOpen([](QMenu& menu) { Choose(menu, 0); });
  OpenMenu(0);
  EXPECT_EQ(nullptr, FForm.get());
}

TEST_F(FormMenuTest, AHandlerMayFreeTheMenu) {
  Open->OnClick = TNotifyEvent([this](TObject*) { delete Menu; });
  Show();
  WhenOpen([](QMenu& menu) { Choose(menu, 0); });
  OpenMenu(0);
  EXPECT_EQ(nullptr, FForm->GetMenu());
  EXPECT_EQ("none", Entries());
}

TEST_F(FormMenuTest, AMenuThatOpensMayFreeTheForm) {
  File->OnClick = TNotifyEvent([this](TObject*) { FForm.reset(); });
  Show();
  WhenOpen([](QMenu&) {});
  OpenMenu(0);
  EXPECT_EQ(nullptr, FForm.get());
}

TEST_F(FormMenuTest, WhatAHandlerThrowsGoesToTheApplication) {
  Application().OnException = TExceptionEvent([this](TObject*, const Exception& error) { FLog += error.Message(); });
  Open->OnClick = TNotifyEvent([](TObject*) { throw Exception(QStringLiteral("no file")); });
  Show();
  WhenOpen([](QMenu& menu) { Choose(menu, 0); });
  OpenMenu(0);
  EXPECT_EQ("File no file", Log());
}

TEST_F(FormMenuTest, AMenuIsOfOneFormOnly) {
  Menu->SetName(QStringLiteral("Main"));
  auto other = Make<TForm>();
  EXPECT_EQ("Menu 'Main' is already being used by another form",
            MessageOf<EInvalidOperation>([&] { other->SetMenu(Menu); }));
}

TEST_F(FormMenuTest, ADesignerMakesTheFirstOneTheMenuOfTheForm) {
  auto form = Make<TDesignedForm>();
  New<TMainMenu>(form.get());
  EXPECT_EQ(nullptr, form->GetMenu());
  form->Design();
  auto* first = New<TMainMenu>(form.get());
  New<TMainMenu>(form.get());
  EXPECT_EQ(first, form->GetMenu());
}

TEST_F(FormMenuTest, NothingIsClickedInADesigner) {
  FForm->Design();
  Show();
  // A form in design mode appears where its designer puts it.
  FForm->GetHandle()->show();
  WhenOpen([](QMenu& menu) { Choose(menu, 0); });
  OpenMenu(0);
  EXPECT_EQ("", Log());
}

TEST_F(FormMenuTest, TheClientHeightOfAFormFileHoldsForTheFormWithItsMenu) {
  RegisterVisualPlatform();
  auto form = Make<TForm>();
  ReadFormText(*form, R"(object TheForm: TForm
    ClientHeight = 200
    Menu = Main
    object Low: TButton
      Top = 160
      Height = 25
      Anchors = [akLeft, akBottom]
    end
    object Main: TMainMenu
      object FileItem: TMenuItem
        Caption = '&File'
        object OpenItem: TMenuItem
          Caption = '&Open'
        end
      end
    end
  end
)");
  ASSERT_NE(nullptr, form->GetMenu());
  EXPECT_EQ("FileItem", form->GetMenu()->GetItems().GetItems(0)->GetName().toStdString());
  EXPECT_EQ(200, form->GetClientHeight());
  EXPECT_GT(form->GetHeight(), 210);
  EXPECT_EQ(160, dynamic_cast<TButton*>(form->FindComponent(u"Low"))->GetTop());
  const std::string text = TextOf(form.get());
  EXPECT_NE(std::string::npos, text.find("  Menu = Main\n"));
  EXPECT_NE(std::string::npos, text.find("  ClientHeight = 200\n"));
}

TEST_F(FormMenuTest, RightToLeftFollowsTheForm) {
  Show();
  FForm->SetBiDiMode(bdRightToLeft);
  EXPECT_EQ(Qt::RightToLeft, Bar()->layoutDirection());
  Menu->SetBiDiMode(bdLeftToRight);
  TWindowProbe::Settle();
  EXPECT_EQ(Qt::LeftToRight, Bar()->layoutDirection());
}

}  // namespace
}  // namespace kt::tests
