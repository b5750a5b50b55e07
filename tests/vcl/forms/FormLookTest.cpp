// How the window of a form looks among others, and what forms say besides.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/controls/VirtualKeys.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/graphics/Icon.h"
#include "kt/vcl/menus/MainMenu.h"
#include "kt/vcl/menus/MenuItem.h"
#include "support/FormText.h"
#include "support/Print.h"
#include "support/WindowProbe.h"

#include <QBuffer>
#include <QIcon>
#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kt {
namespace {

using testing::HasSubstr;
using testing::Not;
using tests::TWindowProbe;

class FormLookTest : public testing::Test {
 protected:
  FormLookTest() { RegisterVisualPlatform(); }
  void GiveIcon() {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QBuffer file;
    file.open(QIODevice::ReadWrite);
    ASSERT_TRUE(image.save(&file, "ICO"));
    file.seek(0);
    FForm->GetIcon().LoadFromStream(file);
  }

  std::unique_ptr<TForm> FForm = Make<TForm>();
};

TEST_F(FormLookTest, AFormThatStaysOnTopLiesAboveOthersAtOnceAndWhenItShows) {
  FForm->SetFormStyle(fsStayOnTop);
  EXPECT_TRUE(FForm->GetHandle()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  FForm->Show();
  FForm->SetFormStyle(fsNormal);
  EXPECT_FALSE(FForm->GetHandle()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(FForm->IsShowing());
}

TEST_F(FormLookTest, AlphaBlendLetsThroughWhatIsBelow) {
  FForm->SetAlphaBlendValue(51);
  FForm->Show();
  // The offscreen platform has no translucent windows, but Qt keeps what it was told.
  EXPECT_EQ(FForm->GetHandle()->windowOpacity(), 1.0);
  FForm->SetAlphaBlend(true);
  EXPECT_NEAR(FForm->GetHandle()->windowOpacity(), 0.2, 0.01);
  FForm->SetAlphaBlendValue(255);
  EXPECT_EQ(FForm->GetHandle()->windowOpacity(), 1.0);
}

TEST_F(FormLookTest, TheIconIsThatOfTheWindow) {
  GiveIcon();
  EXPECT_EQ(FForm->GetHandle()->windowIcon().pixmap(16, 16).toImage().pixelColor(3, 3), QColor(Qt::red));
  FForm->SetIcon(nullptr);
  EXPECT_TRUE(FForm->GetHandle()->windowIcon().isNull());
}

TEST_F(FormLookTest, OnlyAnIconThatThereIsIsWritten) {
  EXPECT_THAT(tests::TextOf(FForm.get()), Not(HasSubstr("Icon")));
  GiveIcon();
  const std::string written = tests::TextOf(FForm.get());
  EXPECT_THAT(written, HasSubstr("Icon.Data = {"));
  const auto other = Make<TForm>();
  ReadFormText(*other, QByteArray::fromStdString(written));
  EXPECT_EQ(other->GetIcon().GetWidth(), 16);
}

TEST_F(FormLookTest, WhatFormsSayBesidesIsKept) {
  const char text[] = R"(object Form1: TForm
  Left = 0
  Top = 0
  Width = 320
  Height = 240
  Ctl3D = False
  DefaultMonitor = dmPrimary
  FormStyle = fsMDIForm
  HelpFile = 'help.hlp'
  PrintScale = poNone
  Scaled = False
  SnapBuffer = 12
  TransparentColor = True
  TransparentColorValue = clFuchsia
  UseDockManager = True
end
)";
  ReadFormText(*FForm, text);
  const std::string written = tests::TextOf(FForm.get());
  for (const char* line : {"Ctl3D = False", "DefaultMonitor = dmPrimary", "FormStyle = fsMDIForm",
                           "HelpFile = 'help.hlp'", "PrintScale = poNone", "Scaled = False", "SnapBuffer = 12",
                           "TransparentColor = True", "TransparentColorValue = clFuchsia", "UseDockManager = True"}) {
    EXPECT_THAT(written, HasSubstr(line));
  }
}

TEST_F(FormLookTest, MenuItemsThatGoAreForgotten) {
  auto* const menu = New<TMainMenu>(FForm.get());
  const auto other = Make<TForm>();
  other->SetWindowMenu(&menu->GetItems());
  other->SetObjectMenuItem(&menu->GetItems());
  FForm.reset();
  EXPECT_EQ(other->GetWindowMenu(), nullptr);
  EXPECT_EQ(other->GetObjectMenuItem(), nullptr);
}

TEST_F(FormLookTest, OnShortCutComesBeforeTheKey) {
  QStringList log;
  FForm->OnShortCut = [&log](TObject*, TMessage& message, bool& isUsed) {
    log += QStringLiteral("short cut");
    isUsed = message.WParam == VK_F4;
  };
  FForm->OnKeyDown = [&log](TObject*, quint16&, TShiftState) { log += QStringLiteral("key"); };
  FForm->Show();
  QApplication::setActiveWindow(FForm->GetHandle());
  TWindowProbe::Settle();
  FForm->SetFocus();
  QTest::keyClick(FForm->GetHandle(), Qt::Key_F4);
  EXPECT_EQ(log.join(u' '), "short cut");
  log.clear();
  QTest::keyClick(FForm->GetHandle(), Qt::Key_F3);
  EXPECT_EQ(log.join(u' '), "short cut key");
  FForm->OnShortCut = [this](TObject*, TMessage&, bool&) { FForm.reset(); };
  QTest::keyClick(FForm->GetHandle(), Qt::Key_F4);
  EXPECT_EQ(FForm, nullptr);
}

}  // namespace
}  // namespace kt
