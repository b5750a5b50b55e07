#include "support/Print.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace uiview::tests {

/// The program as its users run it, without a display.
class UiProgramTest : public testing::Test {
 protected:
  /// Its exit code.
  int Run(const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) environment.remove(QLatin1String(name));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(Folder.path());
    process.start(QStringLiteral(KT_UIVIEW), arguments);
    EXPECT_TRUE(process.waitForFinished(120000));
    Output = QString::fromUtf8(process.readAllStandardOutput());
    Errors = QString::fromUtf8(process.readAllStandardError()).section(QStringLiteral("uiview: "), 1);
    return process.exitCode();
  }

  QTemporaryDir Folder;
  QString Output;
  QString Errors;
};

TEST_F(UiProgramTest, DrawsItselfAndPrintsTheTreeAndThePropertiesOfTheSelectedObject) {
  const QString picture = Folder.filePath(QStringLiteral("drawn.png"));
  EXPECT_EQ(Run({QStringLiteral(KT_SOURCE_DIR "/examples/ui/settings.ui"), QStringLiteral("--draw"), picture,
                 QStringLiteral("--select"), QStringLiteral("startCheck")}),
            0);
  EXPECT_TRUE(QFile::exists(picture));
  const QStringList lines = Output.split(u'\n');
  EXPECT_EQ(lines.first(), QStringLiteral("SettingsDialog: QDialog"));
  EXPECT_TRUE(lines.contains(QStringLiteral("      startCheck: QCheckBox"))) << qUtf8Printable(Output);
  EXPECT_TRUE(lines.contains(QStringLiteral("  * text = &Open the last file at the start"))) << qUtf8Printable(Output);
  EXPECT_EQ(Errors, QString());
}

TEST_F(UiProgramTest, SaysThatThereIsNoDisplay) {
  EXPECT_EQ(Run({QStringLiteral(KT_SOURCE_DIR "/examples/ui/notes.ui")}), 0);
  EXPECT_THAT(Output.toStdString(), testing::EndsWith("uiview: there is no display to show a window on\n"
                                                      "uiview: drawn into uiview.png\n"));
}

TEST_F(UiProgramTest, AFileThatIsNoFormEndsItWithOneMessage) {
  EXPECT_EQ(Run({QStringLiteral("none.ui"), QStringLiteral("--draw"), QStringLiteral("drawn.png")}), 1);
  EXPECT_EQ(Errors, QStringLiteral("error: Cannot read none.ui: No such file or directory\n"));
  EXPECT_EQ(Output, QString());
  EXPECT_FALSE(QFile::exists(Folder.filePath(QStringLiteral("drawn.png"))));
}

TEST_F(UiProgramTest, ANameThatTheFormDoesNotHaveEndsItWithOneMessage) {
  const QString file = QStringLiteral(KT_SOURCE_DIR "/examples/ui/notes.ui");
  EXPECT_EQ(Run({file, QStringLiteral("--draw"), QStringLiteral("drawn.png"), QStringLiteral("--select"),
                 QStringLiteral("nobody")}),
            1);
  EXPECT_EQ(Errors, QStringLiteral("error: %1 has no object named nobody\n").arg(file));
}

TEST_F(UiProgramTest, APictureThatCannotBeWrittenEndsItWithOneMessage) {
  EXPECT_EQ(Run({QStringLiteral(KT_SOURCE_DIR "/examples/ui/notes.ui"), QStringLiteral("--draw"),
                 QStringLiteral("/nowhere/drawn.png")}),
            1);
  EXPECT_EQ(Errors, QStringLiteral("cannot write /nowhere/drawn.png\n"));
}

}  // namespace uiview::tests
