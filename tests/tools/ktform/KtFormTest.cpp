#include "tools/ktform/KtFormFixture.h"

namespace {

using ktform::tests::KtFormTest;
using ktform::tests::TRun;

constexpr char kText[] = "object A: TA\n  X = 'x'\nend\n";
const QByteArray kBinary("TPF0\2TA\1A\1X\6\1x\0\0", 16);

TEST_F(KtFormTest, WritesBinary) {
  Write("a.dfm", kText);
  EXPECT_EQ(0, Run({"to-binary", "a.dfm", "a.bin"}).Status);
  EXPECT_EQ(kBinary, Content("a.bin"));
}

TEST_F(KtFormTest, WritesText) {
  Write("a.bin", kBinary);
  EXPECT_EQ(0, Run({"to-text", "a.bin", "a.dfm"}).Status);
  EXPECT_EQ(kText, Content("a.dfm"));
}

TEST_F(KtFormTest, OutMayBeIn) {
  Write("a.dfm", kText);
  EXPECT_EQ(0, Run({"to-binary", "a.dfm", "a.dfm"}).Status);
  EXPECT_EQ(kBinary, Content("a.dfm"));
}

TEST_F(KtFormTest, LinesCanEndInPairs) {
  Write("a.dfm", kText);
  EXPECT_EQ(0, Run({"to-text", "--crlf", "a.dfm", "b.dfm"}).Status);
  EXPECT_EQ(QByteArray(kText).replace("\n", "\r\n"), Content("b.dfm"));
}

TEST_F(KtFormTest, CharactersCanStayReadable) {
  Write("a.dfm", "object A: TA X = #233 end");
  EXPECT_EQ(0, Run({"to-text", "--utf8", "a.dfm", "b.dfm"}).Status);
  EXPECT_EQ("object A: TA\n  X = '\xC3\xA9'\nend\n", Content("b.dfm"));
}

TEST_F(KtFormTest, AResourceCanBeWrittenAndIsRead) {
  Write("a.dfm", kText);
  EXPECT_EQ(0, Run({"to-binary", "--resource", "a.dfm", "a.res"}).Status);
  EXPECT_EQ(QByteArray("\xFF\x0A\0TA\0\x30\x10\x10\0\0\0", 12) + kBinary, Content("a.res"));
  EXPECT_EQ(0, Run({"to-text", "a.res", "b.dfm"}).Status);
  EXPECT_EQ(kText, Content("b.dfm"));
}

TEST_F(KtFormTest, ABrokenFormLeavesTheOutputAlone) {
  Write("a.dfm", "object A: TA\n  X = \nend");
  Write("b.dfm", "old");
  const TRun run = Run({"to-text", "a.dfm", "b.dfm"});
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("a.dfm: error: Identifier expected on line 3, column 4\n", run.Errors);
  EXPECT_EQ("old", Content("b.dfm"));
}

TEST_F(KtFormTest, NothingIsLeftOfAFileThatCannotBeSaved) {
  Write("a.dfm", kText);
  const TRun run = Run({"to-binary", "a.dfm", "nowhere/a.bin"});
  EXPECT_EQ(1, run.Status);
  EXPECT_TRUE(run.Errors.contains("/nowhere/a.bin\". ")) << run.Errors.toStdString();
  EXPECT_EQ(QStringList{QStringLiteral("a.dfm")}, QDir(FFolder.path()).entryList(QDir::Files));
}

TEST_F(KtFormTest, TheNameOfAFileMayLookLikeAPlaceholder) {
  Write("a.dfm", kText);
  const TRun run = Run({"to-binary", "a.dfm", "nowhere/%s%d%%.bin"});
  EXPECT_EQ(1, run.Status);
  EXPECT_TRUE(run.Errors.contains("/nowhere/%s%d%%.bin\". ")) << run.Errors.toStdString();
}

TEST_F(KtFormTest, CheckPrintsOneLineAFile) {
  Write("a.dfm", kText);
  Write("a.bin", kBinary);
  const TRun run = Run({"check", "a.dfm", "a.bin"});
  EXPECT_EQ(0, run.Status);
  EXPECT_EQ("a.dfm: ok (1 objects, 1 properties)\na.bin: ok (1 objects, 1 properties)\n", run.Output);
  EXPECT_EQ("", run.Errors);
}

TEST_F(KtFormTest, CheckGoesOnAfterAnErrorAndFails) {
  Write("a.dfm", "object A: TA\n  X 5\nend");
  Write("b.bin", kBinary.chopped(1));
  Write("c.dfm", kText);
  const TRun run = Run({"check", "a.dfm", "b.bin", "c.dfm"});
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("c.dfm: ok (1 objects, 1 properties)\n", run.Output);
  EXPECT_EQ("a.dfm: error: '=' expected on line 2, column 5\nb.bin: error: Stream read error at offset 15 (A)\n",
            run.Errors);
}

TEST_F(KtFormTest, CheckFindsWhatTheOtherFormatCannotHold) {
  Write("a.dfm", "object " + QByteArray(256, 'x') + ": TA\nend");
  const TRun run = Run({"check", "a.dfm"});
  EXPECT_EQ(1, run.Status);
  EXPECT_TRUE(run.Errors.contains("x' is too long to be stored at offset 7"));
}

TEST_F(KtFormTest, CheckTakesTheSampleForms) {
  const QString folder = QStringLiteral(KT_SOURCE_DIR "/examples/forms/");
  const TRun run = Run({"check", folder + "nested.dfm", folder + "values.dfm", folder + "strings.dfm"});
  EXPECT_EQ(0, run.Status);
  EXPECT_TRUE(run.Output.contains("nested.dfm: ok (6 objects, 50 properties)\n"));
}

TEST_F(KtFormTest, NoProgressWhereThereIsNoTerminal) {
  Write("a.dfm", kText);
  EXPECT_EQ("", Run(QStringList{"check"} + QStringList(50, "a.dfm")).Errors);
}

TEST_F(KtFormTest, HelpNamesEveryCommand) {
  const TRun run = Run({"--help"});
  EXPECT_EQ(0, run.Status);
  EXPECT_TRUE(run.Output.contains("\n  to-text "));
  EXPECT_TRUE(run.Output.contains("\n  to-binary "));
  EXPECT_TRUE(run.Output.contains("\n  check FILE..."));
}

class KtFormUsageTest : public KtFormTest, public ::testing::WithParamInterface<QStringList> {};

TEST_P(KtFormUsageTest, WrongUsageIsStatus2AndAHint) {
  const TRun run = Run(GetParam());
  EXPECT_EQ(2, run.Status);
  EXPECT_EQ("", run.Output);
  EXPECT_TRUE(run.Errors.endsWith("Try 'ktform --help'.\n"));
}

INSTANTIATE_TEST_SUITE_P(Calls, KtFormUsageTest,
                         ::testing::Values(QStringList{}, QStringList{"sing"}, QStringList{"to-text"},
                                           QStringList{"to-text", "a"}, QStringList{"to-text", "a", "b", "c"},
                                           QStringList{"to-text", "--loud", "a", "b"}, QStringList{"to-binary", "a"},
                                           QStringList{"check"}, QStringList{"check", "--loud", "a"}));

}  // namespace
