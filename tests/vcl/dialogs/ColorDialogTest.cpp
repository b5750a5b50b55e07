#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/dialogs/ColorDialog.h"
#include "kt/vcl/forms/Form.h"
#include "support/FormText.h"
#include "support/Published.h"

#include <QApplication>
#include <QColorDialog>
#include <QTest>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class ColorDialogTest : public testing::Test {
 protected:
  static QColorDialog& Box() { return *qobject_cast<QColorDialog*>(QApplication::activeModalWidget()); }
  void WhenOpen(const std::function<void()>& what) {
    FDialog->OnShow = TNotifyEvent([what](TObject*) { what(); });
  }
  static void Agree() { QTest::keyClick(&Box(), Qt::Key_Return); }

  std::unique_ptr<TColorDialog> FDialog = Make<TColorDialog>();
};

TEST_F(ColorDialogTest, PublishesWhatItIsMadeOf) { EXPECT_EQ("Color=0 CustomColors Options=", PublishedOf(*FDialog)); }

TEST_F(ColorDialogTest, BeginsWithItsColorAndTakesOverWhatWasChosen) {
  QColor first;
  FDialog->SetColor(clRed);
  WhenOpen([&] {
    first = Box().currentColor();
    Box().setCurrentColor(QColor(0x12, 0x34, 0x56));
    Agree();
  });
  EXPECT_TRUE(FDialog->Execute());
  EXPECT_EQ(QColor(Qt::red), first);
  EXPECT_EQ("$00563412", ColorToString(FDialog->GetColor()).toStdString());
}

TEST_F(ColorDialogTest, WhoCancelsGetsNothing) {
  WhenOpen([] {
    Box().setCurrentColor(Qt::red);
    QTest::keyClick(&Box(), Qt::Key_Escape);
  });
  EXPECT_FALSE(FDialog->Execute());
  EXPECT_EQ(clBlack, FDialog->GetColor());
}

TEST_F(ColorDialogTest, AColorOfTheDesktopThatIsLeftAloneStaysOne) {
  FDialog->SetColor(clBtnFace);
  WhenOpen([] { Agree(); });
  EXPECT_TRUE(FDialog->Execute());
  EXPECT_EQ(clBtnFace, FDialog->GetColor());
}

TEST_F(ColorDialogTest, OffersAndTakesTheColorsThatTheUserHasMixed) {
  FDialog->GetCustomColors().Add("ColorB=FF8000");
  QColor second;
  WhenOpen([&] {
    second = QColorDialog::customColor(1);
    QColorDialog::setCustomColor(2, QColor(1, 2, 3));
    Agree();
  });
  EXPECT_TRUE(FDialog->Execute());
  EXPECT_EQ(QColor(0, 0x80, 0xFF), second);
  TStrings& colors = FDialog->GetCustomColors();
  EXPECT_EQ(16, colors.GetCount());
  EXPECT_EQ("ColorA=FFFFFFFF ColorB=FF8000 ColorC=030201",
            QString("%1 %2 %3").arg(colors.GetStrings(0), colors.GetStrings(1), colors.GetStrings(2)).toStdString());
  EXPECT_EQ("ColorP=FFFFFFFF", colors.GetStrings(15).toStdString());
}

TEST_F(ColorDialogTest, MayBeFreedWhileItIsOpen) {
  WhenOpen([this] { FDialog.reset(); });
  EXPECT_FALSE(FDialog->Execute());
}

TEST_F(ColorDialogTest, IsReadFromAFormFileAndWrittenBack) {
  RegisterVisualPlatform();
  const std::string text =
      "object ColorDialog1: TColorDialog\n"
      "  Color = clRed\n"
      "  CustomColors.Strings = (\n"
      "    'ColorA=FFFFFF')\n"
      "  Options = [cdFullOpen]\n"
      "end\n";
  auto form = Make<TForm>();
  ReadFormText(*form, QByteArray::fromStdString("object F: TForm\n" + text + "end\n"));
  EXPECT_EQ(text, TextOf(form->FindComponent(u"ColorDialog1")));
}

}  // namespace
}  // namespace kt::tests
