// Where the program's words go: terminals, pipes, and places that take nothing.
#include "tools/ktform/KtFormFixture.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {

using ktform::tests::KtFormTest;
using ktform::tests::TRun;

/// A terminal that nobody sits at.
class TPseudoTerminal {
 public:
  TPseudoTerminal() : FMaster(posix_openpt(O_RDWR | O_NOCTTY)) {
    if (grantpt(FMaster) == 0 && unlockpt(FMaster) == 0) FSlave = open(ptsname(FMaster), O_RDWR | O_NOCTTY);
  }
  ~TPseudoTerminal() {
    CloseSlave();
    close(FMaster);
  }
  TPseudoTerminal(const TPseudoTerminal&) = delete;
  TPseudoTerminal& operator=(const TPseudoTerminal&) = delete;

  int Slave() const { return FSlave; }
  /// All that was written to it, once the program has ended.
  QByteArray Written() {
    CloseSlave();
    QByteArray bytes;
    std::array<char, 4096> part{};
    for (ssize_t count; (count = read(FMaster, part.data(), part.size())) > 0;) bytes.append(part.data(), count);
    return bytes;
  }

 private:
  void CloseSlave() {
    if (FSlave >= 0) close(FSlave);
    FSlave = -1;
  }

  int FMaster;
  int FSlave = -1;
};

class KtFormOutputTest : public KtFormTest {
 protected:
  KtFormOutputTest() { Write("a.dfm", "object A: TA\n  X = 'x'\nend\n"); }

  static QStringList CheckOf(int count) { return QStringList{"check"} + QStringList(count, "a.dfm"); }
  static void OpenAs(int number, const char* path, int flags) {
    const int file = open(path, flags);
    dup2(file, number);
    close(file);
  }

  /// Standard error is a terminal.
  QByteArray TerminalOf(const QStringList& arguments) {
    TPseudoTerminal terminal;
    Run(arguments, [&] { dup2(terminal.Slave(), STDERR_FILENO); });
    return terminal.Written();
  }
};

TEST_F(KtFormOutputTest, ManyFilesShowTheirProgressOnATerminal) {
  const QByteArray shown = TerminalOf(CheckOf(20));
  EXPECT_TRUE(shown.startsWith("\r0 of 20 files\r\033[K\r1 of 20 files\r\033[K")) << shown.toStdString();
  EXPECT_TRUE(shown.endsWith("\r19 of 20 files\r\033[K")) << shown.toStdString();
}

TEST_F(KtFormOutputTest, FewFilesShowNone) { EXPECT_EQ("", TerminalOf(CheckOf(19))); }

TEST_F(KtFormOutputTest, ProgressMakesWayForAnError) {
  const QByteArray shown = TerminalOf(QStringList{"check", "no.dfm"} + CheckOf(19).mid(1));
  EXPECT_TRUE(shown.startsWith("\r0 of 20 files\r\033[Kno.dfm: error: ")) << shown.toStdString();
}

TEST_F(KtFormOutputTest, NoProgressWhereThereIsNoTerminal) { EXPECT_EQ("", Run(CheckOf(50)).Errors); }

TEST_F(KtFormOutputTest, AFullDiskUnderTheOutputIsAFailure) {
  const TRun run = Run(CheckOf(1), [] { OpenAs(STDOUT_FILENO, "/dev/full", O_WRONLY); });
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("ktform: cannot write to standard output: No space left on device\n", run.Errors);
}

TEST_F(KtFormOutputTest, SoIsOneThatIsFullLongBeforeTheEnd) {
  const TRun run = Run(CheckOf(1000), [] { OpenAs(STDOUT_FILENO, "/dev/full", O_WRONLY); });
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("ktform: cannot write to standard output: No space left on device\n", run.Errors);
}

TEST_F(KtFormOutputTest, AClosedOutputIsAFailure) {
  const TRun run = Run(CheckOf(1), [] { close(STDOUT_FILENO); });
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("ktform: cannot write to standard output: Bad file descriptor\n", run.Errors);
}

TEST_F(KtFormOutputTest, HelpThatNobodyGetsIsAFailure) {
  EXPECT_EQ(1, Run({"--help"}, [] { close(STDOUT_FILENO); }).Status);
}

TEST_F(KtFormOutputTest, WhatPrintsNothingNeedsNoOutput) {
  const TRun run = Run({"to-binary", "a.dfm", "a.bin"}, [] { close(STDOUT_FILENO); });
  EXPECT_EQ(0, run.Status);
  EXPECT_EQ("", run.Errors);
}

/// The file that is saved would get the number of standard error.
TEST_F(KtFormOutputTest, NoMessageGetsIntoAFileWhereAllIsClosed) {
  const TRun run = Run({"check", "a.dfm", "no.dfm"}, [] {
    close(STDIN_FILENO);
    close(STDOUT_FILENO);
    close(STDERR_FILENO);
  });
  EXPECT_EQ(1, run.Status);
  EXPECT_EQ("object A: TA\n  X = 'x'\nend\n", Content("a.dfm"));
}

}  // namespace
