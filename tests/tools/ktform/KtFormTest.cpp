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
  EXPECT_EQ("a.dfm: ok (1 object, 1 property)\na.bin: ok (1 object, 1 property)\n", run.Output);
  EXPECT_EQ("", run.Errors);
}

TEST_F(KtFormTest, CheckGoesOnAfterAnErrorAndFails) {
  Write("a.dfm", "object A: TA\n  X 5\nend");
  Write("b.bin", kBinary.chopped(1));
  Write("c.dfm", kText);
  const TRun run = Run({"check", "a.dfm", "b.bin", "c.dfm"});
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("c.dfm: ok (1 object, 1 property)\n", run.Output);
  EXPECT_EQ("a.dfm: error: '=' expected on line 2, column 5\nb.bin: error: Stream read error at offset 15 (A)\n",
            run.Errors);
}

TEST_F(KtFormTest, CheckFindsWhatTheOtherFormatCannotHold) {
  Write("a.dfm", "object " + QByteArray(256, 'x') + ": TA\nend");
  const TRun run = Run({"check", "a.dfm"});
  EXPECT_EQ(1, run.Status);
  EXPECT_TRUE(run.Errors.contains("x' is too long to be stored on line 1, column 1"));
  Write("b.dfm", "object A: TA\n  " + QByteArray(256, 'x') + " = 1\nend");
  EXPECT_TRUE(Run({"to-binary", "b.dfm", "b.bin"}).Errors.contains("x' is too long to be stored on line 2, column 3"));
}

TEST_F(KtFormTest, ToTextTellsWhereTheNameStandsThatTextCannotHold) {
  Write("a.bin", QByteArray("TPF0\x02TA\x01"
                            "A\x03"
                            "B-1\x02\x05\0\0",
                            17));
  const TRun run = Run({"to-text", "a.bin", "a.dfm"});
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("a.bin: error: The name 'B-1' cannot be written as text at offset 13 (A.B-1)\n", run.Errors);
}

TEST_F(KtFormTest, AMessageStaysShortWhateverTheFileHolds) {
  Write("a.dfm", "object A: TA\n  B = " + QByteArray(1000000, '1') + "\nend");
  Write("b.dfm", "object A" + QByteArray(1000000, 'b') + ": TA\nend");
  EXPECT_LT(Run({"to-binary", "a.dfm", "a.bin"}).Errors.size(), 200);
  EXPECT_LT(Run({"to-binary", "b.dfm", "b.bin"}).Errors.size(), 200);
}

TEST_F(KtFormTest, AMarkOfTheEndBehindTheFormIsNoFault) {
  Write("a.dfm", "object A: TA\nend\r\n\x1A");
  EXPECT_EQ(0, Run({"to-text", "a.dfm", "b.dfm"}).Status);
  EXPECT_EQ("object A: TA\nend\n", Content("b.dfm"));
}

TEST_F(KtFormTest, CheckTellsAFolderAnEmptyFileAndWhatIsNotThere) {
  QDir(FFolder.path()).mkdir(QStringLiteral("folder"));
  Write("empty.dfm", "");
  const TRun run = Run({"check", "folder", "empty.dfm", "nowhere.dfm", ""});
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("", run.Output);
  EXPECT_EQ(
      "folder: error: Cannot open file \"folder\". It is a folder; name the files in it\n"
      "empty.dfm: error: OBJECT expected on line 1, column 1\n"
      "nowhere.dfm: error: Cannot open file \"nowhere.dfm\". No such file or directory\n"
      ": error: Cannot open file \"\". The name is empty\n",
      run.Errors);
}

struct TSampleForm {
  const char* Name;
  const char* Counts;
};

void PrintTo(const TSampleForm& form, std::ostream* out) { *out << form.Name; }

QString SampleForm(const char* name) { return QStringLiteral(KT_SOURCE_DIR "/examples/forms/") + name; }

class KtFormSampleTest : public KtFormTest, public ::testing::WithParamInterface<TSampleForm> {};

TEST_P(KtFormSampleTest, CheckTakesTheForm) {
  const QString name = SampleForm(GetParam().Name);
  const TRun run = Run({"check", name});
  EXPECT_EQ(0, run.Status) << run.Errors.toStdString();
  EXPECT_EQ((name + ": ok " + GetParam().Counts + "\n").toUtf8(), run.Output);
}

TEST_P(KtFormSampleTest, TheFormStandsAsTheProgramWritesIt) {
  EXPECT_EQ(0, Run({"to-binary", SampleForm(GetParam().Name), "a.bin"}).Status);
  EXPECT_EQ(0, Run({"to-text", "a.bin", "a.dfm"}).Status);
  QFile sample(SampleForm(GetParam().Name));
  ASSERT_TRUE(sample.open(QIODevice::ReadOnly));
  const QByteArray form = sample.readAll();
  EXPECT_EQ(form, form.startsWith("TPF0") ? Content("a.bin") : Content("a.dfm"));
}

INSTANTIATE_TEST_SUITE_P(Forms, KtFormSampleTest,
                         ::testing::Values(TSampleForm{"about.dfm", "(8 objects, 71 properties)"},
                                           TSampleForm{"collections.dfm", "(3 objects, 18 properties)"},
                                           TSampleForm{"contact.dfm", "(13 objects, 87 properties)"},
                                           TSampleForm{"drawing.dfm", "(17 objects, 130 properties)"},
                                           TSampleForm{"inherited.dfm", "(6 objects, 16 properties)"},
                                           TSampleForm{"nested.dfm", "(6 objects, 50 properties)"},
                                           TSampleForm{"notepad.dfm", "(27 objects, 120 properties)"},
                                           TSampleForm{"player.dfm", "(11 objects, 83 properties)"},
                                           TSampleForm{"preferences.dfm", "(23 objects, 177 properties)"},
                                           TSampleForm{"settings.dfm", "(12 objects, 88 properties)"},
                                           TSampleForm{"strings.dfm", "(1 object, 9 properties)"},
                                           TSampleForm{"values.dfm", "(1 object, 21 properties)"}));

TEST_F(KtFormTest, EverySampleFormIsChecked) {
  EXPECT_EQ(QString("about.dfm collections.dfm contact.dfm drawing.dfm inherited.dfm nested.dfm notepad.dfm player.dfm "
                    "preferences.dfm settings.dfm strings.dfm values.dfm"),
            QDir(SampleForm("")).entryList(QDir::Files, QDir::Name).join(u' '));
}

TEST_F(KtFormTest, HelpNamesEveryCommand) {
  const TRun run = Run({"--help"});
  EXPECT_EQ(0, run.Status);
  EXPECT_TRUE(run.Output.contains("\n  to-text "));
  EXPECT_TRUE(run.Output.contains("\n  to-binary "));
  EXPECT_TRUE(run.Output.contains("\n  set "));
  EXPECT_TRUE(run.Output.contains("\n  check "));
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
