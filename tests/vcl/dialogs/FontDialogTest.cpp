#include "kt/rtl/objects/Make.h"
#include "kt/vcl/dialogs/FontDialog.h"
#include "support/FormText.h"
#include "support/Published.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class FontDialogTest : public testing::Test {
 protected:
  FontDialogTest() {
    FDialog->GetFont().SetName("DejaVu Sans");
    FDialog->GetFont().SetSize(10);
  }

  static QFontDialog& Box() { return *qobject_cast<QFontDialog*>(QApplication::activeModalWidget()); }
  static QPushButton* Button(QDialogButtonBox::StandardButton button) {
    return Box().findChild<QDialogButtonBox*>()->button(button);
  }
  static void Press(QDialogButtonBox::StandardButton button) { QTest::mouseClick(Button(button), Qt::LeftButton); }
  void WhenOpen(const std::function<void()>& what) {
    FDialog->OnShow = TNotifyEvent([what](TObject*) { what(); });
  }
  /// The user chooses a font of that size.
  static void Choose(int size, bool isUnderlined) {
    QFont font = Box().currentFont();
    font.setPointSize(size);
    font.setUnderline(isUnderlined);
    Box().setCurrentFont(font);
  }
  std::string Font() {
    const TFontStyles style = FDialog->GetFont().GetStyle();
    return QString("%1 %2%3")
        .arg(FDialog->GetFont().GetName())
        .arg(FDialog->GetFont().GetSize())
        .arg(style.Has(fsUnderline) ? " underlined" : "")
        .toStdString();
  }

  std::unique_ptr<TFontDialog> FDialog = Make<TFontDialog>();
};

TEST_F(FontDialogTest, PublishesWhatItIsMadeOf) {
  EXPECT_EQ("Font Device=fdScreen MinFontSize=0 MaxFontSize=0 Options=fdEffects OnApply", PublishedOf(*FDialog));
}

TEST_F(FontDialogTest, TakesOverWhatWasChosen) {
  WhenOpen([] {
    Choose(14, true);
    Press(QDialogButtonBox::Ok);
  });
  EXPECT_TRUE(FDialog->Execute());
  EXPECT_EQ("DejaVu Sans 14 underlined", Font());
}

TEST_F(FontDialogTest, WhoCancelsGetsNothing) {
  WhenOpen([] {
    Choose(14, true);
    Press(QDialogButtonBox::Cancel);
  });
  EXPECT_FALSE(FDialog->Execute());
  EXPECT_EQ("DejaVu Sans 10", Font());
}

TEST_F(FontDialogTest, WhatIsLeftAloneStays) {
  FDialog->GetFont().SetName("No Such Face");
  FDialog->GetFont().SetHeight(-17);
  const auto before = Make<TFont>();
  before->Assign(&FDialog->GetFont());
  WhenOpen([] { Press(QDialogButtonBox::Ok); });
  EXPECT_TRUE(FDialog->Execute());
  EXPECT_TRUE(before->IsSameAs(FDialog->GetFont()));
}

TEST_F(FontDialogTest, OptionsLimitWhatIsTaken) {
  FDialog->SetOptions({fdNoStyleSel});
  FDialog->SetMaxFontSize(12);
  EXPECT_TRUE(FDialog->GetOptions().Has(fdLimitSize));
  WhenOpen([] {
    Choose(14, true);
    Press(QDialogButtonBox::Ok);
  });
  FDialog->Execute();
  EXPECT_EQ("DejaVu Sans 12", Font());
}

TEST_F(FontDialogTest, AppliesWithoutClosing) {
  QStringList log;
  FDialog->OnApply = TFDApplyEvent([&](TObject*, QWidget* window) {
    log += QString::fromStdString(Font()) + (window == &Box() ? "" : " elsewhere");
  });
  WhenOpen([] {
    Choose(14, false);
    Press(QDialogButtonBox::Apply);
    Press(QDialogButtonBox::Cancel);
  });
  EXPECT_FALSE(FDialog->Execute());
  EXPECT_EQ("DejaVu Sans 14", log.join(u'|').toStdString());
}

TEST_F(FontDialogTest, HasNoButtonForWhatNobodyDoes) {
  bool hasButton = true;
  WhenOpen([&] {
    hasButton = Button(QDialogButtonBox::Apply) != nullptr;
    Press(QDialogButtonBox::Cancel);
  });
  FDialog->Execute();
  EXPECT_FALSE(hasButton);
}

TEST_F(FontDialogTest, MayBeFreedWhileItIsOpen) {
  WhenOpen([this] { FDialog.reset(); });
  EXPECT_FALSE(FDialog->Execute());
}

TEST_F(FontDialogTest, ApplyingMayFreeIt) {
  FDialog->OnApply = TFDApplyEvent([this](TObject*, QWidget*) { FDialog.reset(); });
  WhenOpen([] { Press(QDialogButtonBox::Apply); });
  EXPECT_FALSE(FDialog->Execute());
}

}  // namespace
}  // namespace kt::tests
