#include "kt/rtl/objects/Make.h"
#include "kt/vcl/Registration.h"
#include "kt/vcl/dialogs/FileFilters.h"
#include "kt/vcl/dialogs/OpenDialog.h"
#include "kt/vcl/forms/Application.h"
#include "kt/vcl/forms/Form.h"
#include "support/FormText.h"
#include "support/Published.h"
#include "support/WindowProbe.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class OpenDialogTest : public testing::Test {
 protected:
  OpenDialogTest() {
    for (const char* name : {"one.txt", "two.txt", "three.ini"}) {
      QFile file(PathOf(name));
      EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    FOpen->SetInitialDir(FFolder.path());
    FSave->SetInitialDir(FFolder.path());
  }
  ~OpenDialogTest() override { Application().OnException = nullptr; }

  QString PathOf(const QString& name) const { return FFolder.filePath(name); }
  static QFileDialog& Box() { return *qobject_cast<QFileDialog*>(QApplication::activeModalWidget()); }
  static QLineEdit& NameEdit() { return *Box().findChild<QLineEdit*>(QStringLiteral("fileNameEdit")); }
  /// The name of a file and the key that agrees.
  static void Enter(const QString& name) {
    QApplication::setActiveWindow(&Box());
    NameEdit().setFocus();
    NameEdit().selectAll();
    QTest::keyClicks(&NameEdit(), name);
    QTest::keyClick(&NameEdit(), Qt::Key_Return);
  }
  /// Has something done when the dialog is on the screen.
  static void WhenOpen(TOpenDialog& dialog, const std::function<void()>& what) {
    dialog.OnShow = TNotifyEvent([what](TObject*) { what(); });
  }
  static void Cancel() { QTest::keyClick(&Box(), Qt::Key_Escape); }
  std::string Log() const { return FLog.join(u", ").toStdString(); }

  QTemporaryDir FFolder;
  std::unique_ptr<TOpenDialog> FOpen = Make<TOpenDialog>();
  std::unique_ptr<TSaveDialog> FSave = Make<TSaveDialog>();
  QStringList FLog;
};

TEST_F(OpenDialogTest, PublishesWhatItIsMadeOf) {
  EXPECT_EQ(
      "DefaultExt FileName Filter FilterIndex=1 InitialDir Options=ofHideReadOnly,ofEnableSizing OptionsEx= Title "
      "OnCanClose OnFolderChange OnSelectionChange OnTypeChange",
      PublishedOf(*FOpen));
  EXPECT_EQ("", PublishedOf(*FSave));
  EXPECT_EQ("object TOpenDialog\nend\n", TextOf(Make<TOpenDialog>().get()));
}

TEST_F(OpenDialogTest, AnswersTheFileThatIsTyped) {
  FOpen->SetOptions({ofFileMustExist});
  WhenOpen(*FOpen, [] { Enter("two.txt"); });
  EXPECT_TRUE(FOpen->Execute());
  EXPECT_EQ(PathOf("two.txt"), FOpen->GetFileName());
  EXPECT_EQ(1, FOpen->GetFiles().GetCount());
  EXPECT_EQ(PathOf("two.txt"), FOpen->GetFiles().GetStrings(0));
}

TEST_F(OpenDialogTest, WhoCancelsGetsNothing) {
  FOpen->SetFileName(PathOf("one.txt"));
  WhenOpen(*FOpen, [] { Cancel(); });
  EXPECT_FALSE(FOpen->Execute());
  EXPECT_EQ(PathOf("one.txt"), FOpen->GetFileName());
}

TEST_F(OpenDialogTest, BeginsWithWhatTheProgramSays) {
  FOpen->SetTitle("Pick one");
  FOpen->SetFilter("Texts|*.txt|Settings|*.ini;*.cfg|All|*.*");
  FOpen->SetFilterIndex(2);
  FOpen->SetOptions({ofAllowMultiSelect, ofForceShowHidden});
  QStringList seen;
  WhenOpen(*FOpen, [&] {
    seen = QStringList{Box().windowTitle(), Box().selectedNameFilter(), Box().directory().dirName(),
                       QString::number(Box().fileMode()), QString::number(Box().acceptMode())};
    Cancel();
  });
  FOpen->Execute();
  EXPECT_EQ(QString("Pick one|Settings|%1|%2|%3")
                .arg(QDir(FFolder.path()).dirName())
                .arg(QFileDialog::ExistingFiles)
                .arg(QFileDialog::AcceptOpen)
                .toStdString(),
            seen.join(u'|').toStdString());
}

TEST_F(OpenDialogTest, TheKindOfFilesIsTheUsers) {
  FOpen->SetFilter("Texts|*.txt|All|*.*");
  FOpen->OnTypeChange = TNotifyEvent([this](TObject*) { FLog += QString::number(FOpen->GetFilterIndex()); });
  WhenOpen(*FOpen, [] {
    auto* kinds = Box().findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    kinds->setFocus();
    QTest::keyClick(kinds, Qt::Key_Down);
    Enter("three.ini");
  });
  EXPECT_TRUE(FOpen->Execute());
  EXPECT_EQ(2, FOpen->GetFilterIndex());
  EXPECT_EQ("2", Log());
}

TEST_F(OpenDialogTest, AHandlerKeepsTheDialogOpen) {
  int asked = 0;
  FOpen->OnCanClose = TCloseQueryEvent([&](TObject*, bool& canClose) {
    FLog += QFileInfo(FOpen->GetFileName()).fileName();
    canClose = ++asked == 2;
  });
  WhenOpen(*FOpen, [] {
    Enter("one.txt");
    Enter("two.txt");
  });
  EXPECT_TRUE(FOpen->Execute());
  EXPECT_EQ("one.txt, two.txt", Log());
  EXPECT_EQ(PathOf("two.txt"), FOpen->GetFileName());
}

TEST_F(OpenDialogTest, EventsComeInOrder) {
  FOpen->OnCanClose = TCloseQueryEvent([&](TObject*, bool&) { FLog += "can close"; });
  FOpen->OnClose = TNotifyEvent([&](TObject*) { FLog += "close"; });
  WhenOpen(*FOpen, [&] {
    FLog += "show";
    Enter("one.txt");
  });
  FOpen->Execute();
  EXPECT_EQ("show, can close, close", Log());
}

TEST_F(OpenDialogTest, ANameToBeWrittenGetsTheDefaultExtension) {
  FSave->SetDefaultExt(".txt");
  WhenOpen(*FSave, [] { Enter("new"); });
  EXPECT_TRUE(FSave->Execute());
  EXPECT_EQ(PathOf("new.txt"), FSave->GetFileName());
  EXPECT_FALSE(FSave->GetOptions().Has(ofExtensionDifferent));
  WhenOpen(*FSave, [] { Enter("new.ini"); });
  EXPECT_TRUE(FSave->Execute());
  EXPECT_TRUE(FSave->GetOptions().Has(ofExtensionDifferent));
}

TEST_F(OpenDialogTest, AFileIsReplacedWithoutAQuestionUnlessItIsAskedFor) {
  WhenOpen(*FSave, [] { Enter("one.txt"); });
  EXPECT_TRUE(FSave->Execute());
  EXPECT_EQ(PathOf("one.txt"), FSave->GetFileName());
  FSave->SetOptions({ofOverwritePrompt});
  WhenOpen(*FSave, [this] {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [this] {
          auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
          FLog += question ? "question" : "none";
          if (question) question->button(QMessageBox::No)->click();
        },
        Qt::QueuedConnection);
    Enter("one.txt");
    Cancel();
  });
  EXPECT_FALSE(FSave->Execute());
  EXPECT_EQ("question", Log());
}

TEST_F(OpenDialogTest, ADialogThatIsFreedWhileItIsOpenCloses) {
  WhenOpen(*FOpen, [this] { FOpen.reset(); });
  EXPECT_FALSE(FOpen->Execute());
  EXPECT_EQ(nullptr, QApplication::activeModalWidget());
}

TEST_F(OpenDialogTest, AFormThatIsFreedWhileItsDialogIsOpenTakesItAlong) {
  auto form = Make<TForm>();
  auto& dialog = *New<TOpenDialog>(form.get());
  form->Show();
  QApplication::setActiveWindow(form->GetHandle());
  TWindowProbe::Settle();
  WhenOpen(dialog, [&] {
    EXPECT_EQ(form->GetHandle(), Box().parentWidget());
    form.reset();
  });
  EXPECT_FALSE(dialog.Execute());
  EXPECT_EQ(nullptr, QApplication::activeModalWidget());
}

TEST_F(OpenDialogTest, CanCloseMayFreeTheDialog) {
  FOpen->OnCanClose = TCloseQueryEvent([this](TObject*, bool&) { FOpen.reset(); });
  WhenOpen(*FOpen, [] { Enter("one.txt"); });
  EXPECT_FALSE(FOpen->Execute());
}

TEST_F(OpenDialogTest, IsNotOpenedTwice) {
  WhenOpen(*FOpen, [this] {
    EXPECT_FALSE(FOpen->Execute());
    Cancel();
  });
  EXPECT_FALSE(FOpen->Execute());
}

TEST_F(OpenDialogTest, WhatAHandlerThrowsGoesToTheApplication) {
  Application().OnException = TExceptionEvent([this](TObject*, const Exception& error) { FLog += error.Message(); });
  FOpen->OnCanClose = TCloseQueryEvent([](TObject*, bool&) { throw Exception(QStringLiteral("bad name")); });
  WhenOpen(*FOpen, [] {
    Enter("one.txt");
    Cancel();
  });
  EXPECT_FALSE(FOpen->Execute());
  EXPECT_EQ("bad name", Log());
}

TEST_F(OpenDialogTest, IsReadFromAFormFileAndWrittenBack) {
  RegisterVisualPlatform();
  const std::string text =
      "object OpenDialog1: TOpenDialog\n"
      "  HelpContext = 7\n"
      "  DefaultExt = 'TXT'\n"
      "  Filter = 'Texts|*.txt'\n"
      "  FilterIndex = 2\n"
      "  Options = [ofHideReadOnly, ofShowHelp, ofPathMustExist, ofFileMustExist, ofEnableSizing]\n"
      "  Title = 'Load'\n"
      "end\n";
  auto form = Make<TForm>();
  ReadFormText(*form, QByteArray::fromStdString("object F: TForm\n" + text + "end\n"));
  EXPECT_EQ(text, TextOf(form->FindComponent(u"OpenDialog1")));
}

TEST(FileFiltersTest, AreThoseOfQt) {
  EXPECT_EQ("Texts (*.txt *.text)|All (*)", QtFileFilters("Texts|*.txt;*.text|All|*.*").join(u'|').toStdString());
  EXPECT_EQ("Lonely (*)", QtFileFilters("Lonely").join(u'|').toStdString());
  EXPECT_EQ("", QtFileFilters("").join(u'|').toStdString());
}

}  // namespace
}  // namespace kt::tests
