// Saving while each step of it fails, or while the process is killed before it.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FileSaving.h"
#include "support/Expect.h"
#include "support/FailingFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kt {
namespace {

using namespace kt::tests;

class FileFaultsTest : public ::testing::Test {
 protected:
  FileFaultsTest() { SaveBytesToFile(Path(), "old content"); }

  QString Path() const { return FFolder.filePath(QStringLiteral("form.bin")); }
  QByteArray Content() const {
    QFile file(Path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
  }
  QStringList Files() const { return QDir(FFolder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }
  /// What a save raises while a step fails.
  QString ErrorOf(int step, int error) {
    const TFileFault fault(ffFail, step, 0, error);
    const QString message = MessageOf<EWriteError>([this] { SaveBytesToFile(Path(), "new content"); });
    EXPECT_TRUE(TFileFault::HasHappened());
    return message;
  }
  QString Expected(const char* reason) const {
    return QStringLiteral("Cannot write file \"") + Path() + QStringLiteral("\". ") + QLatin1StringView(reason);
  }
  /// Saves in a process that dies before its step number `step`; answers whether there was such a step.
  bool SaveKilledBefore(int step) {
    const pid_t child = fork();
    if (child == 0) {
      const TFileFault fault(ffKill, fsAny, step);
      SaveBytesToFile(Path(), "new content");
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WEXITSTATUS(status) == 9;
  }
  /// What the file holds after each number of steps; stops at the first save that is complete.
  QStringList ContentsAfterKills() {
    QStringList contents;
    while (SaveKilledBefore(static_cast<int>(contents.size()))) contents += QString::fromLatin1(Content());
    return contents;
  }

  QTemporaryDir FFolder;
};

/// A step, the system's error number, and what is said about it.
struct TFaultCase {
  const char* Name;
  int Step;
  int Error;
  const char* Reason;
};

class FailingStepTest : public FileFaultsTest, public ::testing::WithParamInterface<TFaultCase> {};

TEST_P(FailingStepTest, TheOldFileStaysAndNothingElseIsLeft) {
  EXPECT_EQ(Expected(GetParam().Reason), ErrorOf(GetParam().Step, GetParam().Error));
  EXPECT_EQ("old content", Content());
  EXPECT_EQ(QStringList{QStringLiteral("form.bin")}, Files());
}

TEST_P(FailingStepTest, TheNextSaveWorks) {
  ErrorOf(GetParam().Step, GetParam().Error);
  SaveBytesToFile(Path(), "new content");
  EXPECT_EQ("new content", Content());
}

INSTANTIATE_TEST_SUITE_P(Steps, FailingStepTest,
                         ::testing::Values(TFaultCase{"Write", fsWrite, EIO, "Input/output error"},
                                           TFaultCase{"FullDisk", fsWrite, ENOSPC, "No space left on device"},
                                           TFaultCase{"Sync", fsSync, EIO, "Input/output error"},
                                           TFaultCase{"Close", fsClose, EIO, "Input/output error"},
                                           TFaultCase{"Rename", fsRename, EACCES, "Permission denied"}),
                         [](const auto& fault) { return fault.param.Name; });

TEST_F(FileFaultsTest, AWriteThatTakesAPartGoesOnWithTheRest) {
  const TFileFault fault(ffHalf, fsWrite);
  SaveBytesToFile(Path(), "new content");
  EXPECT_TRUE(TFileFault::HasHappened());
  EXPECT_EQ("new content", Content());
}

TEST_F(FileFaultsTest, AFileSystemThatCannotSyncIsNoFailure) {
  const TFileFault fault(ffFail, fsSync, 0, EINVAL);
  SaveBytesToFile(Path(), "new content");
  EXPECT_TRUE(TFileFault::HasHappened());
  EXPECT_EQ("new content", Content());
}

TEST_F(FileFaultsTest, AProcessKilledAtAnyStepLeavesTheOldFileUntilTheNewOneIsWhole) {
  const QStringList contents = ContentsAfterKills();
  EXPECT_GE(contents.size(), 4);
  EXPECT_EQ(contents.size(), contents.count(QStringLiteral("old content")));
  EXPECT_EQ("new content", Content());
}

}  // namespace
}  // namespace kt
