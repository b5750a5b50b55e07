#include "support/Print.h"
#include "uiview/UiFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace uiview::tests {

/// Files with a form, or with none.
class UiFileTest : public testing::Test {
 protected:
  QString FileWith(const QByteArray& content) {
    QFile file(Folder.filePath(QStringLiteral("form.ui")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }
  /// What opening the file tells, with "FILE" for its name.
  static QString ErrorOf(const QString& fileName) {
    try {
      LoadUi(fileName);
      return QString();
    } catch (const EUiFile& error) {
      return error.Message().replace(fileName, QStringLiteral("FILE"));
    }
  }
  QString ErrorIn(const QByteArray& content) { return ErrorOf(FileWith(content)); }
  QStringList RemarksOn(const QByteArray& content) { return LoadUi(FileWith(content)).Remarks; }

  QTemporaryDir Folder;
};

TEST_F(UiFileTest, AFormIsMadeOfItsFile) {
  const TUiForm form =
      LoadUi(FileWith("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\"><property name=\"windowTitle\">"
                      "<string>Title</string></property></widget></ui>"));
  EXPECT_EQ(form.Widget->objectName(), QStringLiteral("Form"));
  EXPECT_EQ(form.Widget->windowTitle(), QStringLiteral("Title"));
  EXPECT_EQ(form.Remarks, QStringList());
}

TEST_F(UiFileTest, AFileThatIsNotThereIsNamedWithTheReason) {
  EXPECT_EQ(ErrorOf(Folder.filePath(QStringLiteral("none.ui"))),
            QStringLiteral("Cannot read FILE: No such file or directory"));
}

TEST_F(UiFileTest, AFolderIsNoForm) { EXPECT_EQ(ErrorOf(Folder.path()), QStringLiteral("FILE is a folder")); }

TEST_F(UiFileTest, AnEmptyFileIsNoForm) {
  EXPECT_EQ(ErrorIn(""), QStringLiteral("FILE is no Qt form: line 1, column 0: Premature end of document."));
}

TEST_F(UiFileTest, WhatIsNoXmlIsNoForm) {
  EXPECT_EQ(ErrorIn("object Form1: TForm1\nend\n"),
            QStringLiteral("FILE is no Qt form: line 1, column 1: Start tag expected."));
}

TEST_F(UiFileTest, DamageIsToldWithItsPlace) {
  EXPECT_EQ(ErrorIn("<ui version=\"4.0\">\n<widget class=\"QWidget\">\n</ui>"),
            QStringLiteral("FILE is no Qt form: line 3, column 5: Opening and ending tag mismatch."));
}

TEST_F(UiFileTest, AnotherKindOfXmlIsNoForm) {
  EXPECT_EQ(ErrorIn("<html><body/></html>"), QStringLiteral("FILE is no Qt form: it holds <html> instead of <ui>"));
}

TEST_F(UiFileTest, AFormWithoutAWidgetIsNone) {
  EXPECT_THAT(ErrorIn("<ui version=\"4.0\"/>").toStdString(), testing::StartsWith("Cannot open FILE: "));
}

TEST_F(UiFileTest, AFormOfAnUnknownClassIsToldWithTheClass) {
  EXPECT_THAT(ErrorIn("<ui version=\"4.0\"><widget class=\"TDial\" name=\"Form\"/></ui>").toStdString(),
              testing::AllOf(testing::StartsWith("Cannot open FILE: "), testing::HasSubstr("'TDial'")));
}

TEST_F(UiFileTest, AWidgetOfAnUnknownClassIsLeftOutAndRemarked) {
  const QStringList remarks = RemarksOn(
      "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\"><widget class=\"TDial\" "
      "name=\"dial\"/></widget></ui>");
  ASSERT_FALSE(remarks.isEmpty());
  EXPECT_THAT(remarks.front().toStdString(), testing::HasSubstr("'TDial'"));
}

TEST_F(UiFileTest, AWidgetOfAPromotedClassIsOneOfItsBase) {
  const TUiForm form = LoadUi(FileWith(
      "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"Form\"><widget class=\"TDial\" name=\"dial\"/></widget>"
      "<customwidgets><customwidget><class>TDial</class><extends>QDial</extends><header>dial.h</header></customwidget>"
      "</customwidgets></ui>"));
  const auto* dial = form.Widget->findChild<QWidget*>(QStringLiteral("dial"));
  ASSERT_TRUE(dial);
  EXPECT_STREQ(dial->metaObject()->className(), "QDial");
}

/// The forms that come with the program.
class ShippedUiTest : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(All, ShippedUiTest, testing::Values("catalogue.ui", "notes.ui", "settings.ui"));

TEST_P(ShippedUiTest, OpensWithoutARemark) {
  const TUiForm form = LoadUi(QStringLiteral(KT_SOURCE_DIR "/examples/ui/") + QLatin1String(GetParam()));
  EXPECT_EQ(form.Remarks, QStringList());
  EXPECT_GT(form.Widget->findChildren<QWidget*>().size(), 8);
}

TEST(ShippedUiListTest, EachIsInTheTable) {
  EXPECT_EQ(QDir(QStringLiteral(KT_SOURCE_DIR "/examples/ui")).entryList(QDir::Files, QDir::Name),
            QStringList({QStringLiteral("catalogue.ui"), QStringLiteral("notes.ui"), QStringLiteral("settings.ui")}));
}

}  // namespace uiview::tests
