// The program as its users run it.
#include "support/Print.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kt::tests {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

struct TProgramRun {
  int Status;
  std::string Output;
  std::string Errors;
};

constexpr char kMenu[] =
    "object Menu: TPopupMenu\n  AutoPopup = False\n  object Open: TMenuItem\n    Caption = 'Open'\n  end\nend\n";

class InspectDumpTest : public testing::Test {
 protected:
  InspectDumpTest() { Write(kMenu); }

  void Write(const QByteArray& content) {
    QFile file(FFile);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray Content() {
    QFile file(FFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }
  static TProgramRun Run(const QStringList& arguments) {
    QProcess program;
    program.start(QStringLiteral(KT_INSPECTDUMP), arguments);
    program.waitForFinished(60000);
    const int status = program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    return {status, program.readAllStandardOutput().toStdString(), program.readAllStandardError().toStdString()};
  }

  QTemporaryDir FFolder;
  const QString FFile = FFolder.filePath("form.dfm");
};

TEST_F(InspectDumpTest, AFormIsPrinted) {
  const TProgramRun run = Run({FFile});
  EXPECT_EQ(0, run.Status);
  EXPECT_EQ("", run.Errors);
  EXPECT_THAT(run.Output, StartsWith("Menu: TPopupMenu\n"));
  EXPECT_THAT(run.Output, HasSubstr("\n  * AutoPopup = False\n"));
  EXPECT_THAT(run.Output, HasSubstr("\n    * Caption = Open\n"));
  EXPECT_EQ(kMenu, Content());
}

TEST_F(InspectDumpTest, SeveralValuesAreWrittenAndSaved) {
  const TProgramRun run = Run({"--set", "Menu.AutoPopup=True", "--set", "Open.Caption=a=b", FFile});
  EXPECT_EQ(0, run.Status);
  EXPECT_EQ("", run.Errors);
  EXPECT_THAT(run.Output, HasSubstr("\n    AutoPopup = True\n"));
  EXPECT_THAT(run.Output, HasSubstr("\n    * Caption = a=b\n"));
  EXPECT_THAT(Content().toStdString(), HasSubstr("Caption = 'a=b'"));
  EXPECT_THAT(Content().toStdString(), Not(HasSubstr("AutoPopup")));
}

TEST_F(InspectDumpTest, AValueThatCannotBeWrittenLeavesTheFileAsItWas) {
  const std::pair<const char*, const char*> refused[] = {
      {"AutoPopup=maybe", "inspectdump: error: Invalid property element: maybe\n"},
      {"Open.Nothing=1", "inspectdump: error: Open.Nothing: there is no such property\n"},
      {"Caption", "inspectdump: error: 'Caption' is not of the form Path=Value\n"},
      {"=1", "inspectdump: error: '=1' is not of the form Path=Value\n"}};
  for (const auto& [assignment, error] : refused) {
    const TProgramRun run = Run({"--set", "Open.Caption=changed", "--set", assignment, FFile});
    EXPECT_EQ(1, run.Status) << assignment;
    EXPECT_EQ("", run.Output) << assignment;
    EXPECT_EQ(error, run.Errors) << assignment;
    EXPECT_EQ(kMenu, Content()) << assignment;
  }
}

TEST_F(InspectDumpTest, AFileThatIsNoFormIsTold) {
  Write("object Menu: TPopupMenu\n  AutoPopup =\nend\n");
  const TProgramRun run = Run({FFile});
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("", run.Output);
  EXPECT_THAT(run.Errors, StartsWith("inspectdump: error: "));
  EXPECT_EQ(1, Run({FFolder.filePath("nothing.dfm")}).Status);
}

TEST_F(InspectDumpTest, WithoutOneFileItTellsHowItIsUsed) {
  for (const QStringList& arguments : {QStringList(), QStringList({FFile, FFile})}) {
    const TProgramRun run = Run(arguments);
    EXPECT_EQ(2, run.Status);
    EXPECT_THAT(run.Output + run.Errors, HasSubstr("FILE"));
  }
  EXPECT_EQ(0, Run({"--help"}).Status);
}

TEST_F(InspectDumpTest, PropertiesAreListedBelowTheirCategories) {
  EXPECT_THAT(Run({FFile}).Output, Not(HasSubstr("[Action]")));
  const TProgramRun run = Run({"--categories", FFile});
  EXPECT_EQ(0, run.Status);
  EXPECT_THAT(run.Output, HasSubstr("\n    [Action]\n"));
}

TEST_F(InspectDumpTest, ABinaryFormStaysBinary) {
  // The menu alone, as the framework writes it.
  Write(
      QByteArray("TPF0\x0aTPopupMenu\x04Menu\x09"
                 "AutoPopup\x08\0\0",
                 34));
  const TProgramRun run = Run({"--set", "Tag=5", FFile});
  EXPECT_EQ("", run.Errors);
  EXPECT_EQ(0, run.Status);
  EXPECT_THAT(run.Output, HasSubstr("\n  * Tag = 5\n"));
  EXPECT_TRUE(Content().startsWith("TPF0\x0aTPopupMenu\x04Menu"));
  EXPECT_TRUE(Content().contains("\x03Tag\x02\x05"));
}

TEST_F(InspectDumpTest, AValueOfSeveralLinesTakesOne) {
  Write("object Menu: TPopupMenu\n  object Open: TMenuItem\n    Hint = 'one'#13#10'two'#10'three'\n  end\nend\n");
  const TProgramRun run = Run({FFile});
  EXPECT_EQ(0, run.Status);
  EXPECT_THAT(run.Output, HasSubstr("\n    * Hint = one\\r\\ntwo\\nthree\n"));
}

TEST_F(InspectDumpTest, ABackslashIsNoLineBreak) {
  Write("object Menu: TPopupMenu\n  object Open: TMenuItem\n    Hint = 'C:\\new'\n  end\nend\n");
  EXPECT_THAT(Run({FFile}).Output, HasSubstr("\n    * Hint = C:\\\\new\n"));
}

}  // namespace
}  // namespace kt::tests
