#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FileSaving.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TextOf;
using tests::TSample;

/// No file of this process grows beyond `bytes` while this lives, as if the disk were full.
class TFullDisk {
 public:
  explicit TFullDisk(rlim_t bytes) : FSignal(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &FFormer);
    const rlimit limit = {bytes, FFormer.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~TFullDisk() {
    setrlimit(RLIMIT_FSIZE, &FFormer);
    std::signal(SIGXFSZ, FSignal);
  }
  TFullDisk(const TFullDisk&) = delete;
  TFullDisk& operator=(const TFullDisk&) = delete;

 private:
  rlimit FFormer = {};
  void (*FSignal)(int);
};

class FileSavingTest : public ::testing::Test {
 protected:
  QString Path() const { return FFolder.filePath(QStringLiteral("out.bin")); }
  QByteArray Content() const {
    QFile file(Path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
  }
  QStringList Files() const { return QDir(FFolder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

  QTemporaryDir FFolder;
};

TEST_F(FileSavingTest, TheFileHoldsTheBytes) {
  SaveBytesToFile(Path(), QByteArray("a\0b", 3));
  EXPECT_EQ(QByteArray("a\0b", 3), Content());
}

TEST_F(FileSavingTest, AnEmptyFileIsSavedToo) {
  SaveBytesToFile(Path(), "old");
  SaveBytesToFile(Path(), QByteArray());
  EXPECT_EQ(QByteArray(), Content());
}

TEST_F(FileSavingTest, APipeIsWrittenToAndStaysAPipe) {
  const QByteArray name = QFile::encodeName(Path());
  ASSERT_EQ(0, mkfifo(name.constData(), 0600));
  const int reader = open(name.constData(), O_RDONLY | O_NONBLOCK);
  SaveBytesToFile(Path(), "abc");
  char read[8] = {};
  EXPECT_EQ(3, ::read(reader, read, sizeof(read)));
  EXPECT_STREQ("abc", read);
  close(reader);
  struct stat now = {};
  ASSERT_EQ(0, lstat(name.constData(), &now));
  EXPECT_TRUE(S_ISFIFO(now.st_mode));
}

TEST_F(FileSavingTest, ALinkToADeviceStaysALink) {
  ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), Path()));
  EXPECT_THROW(SaveBytesToFile(Path(), "abc"), EWriteError);
  EXPECT_TRUE(QFileInfo(Path()).isSymLink());
}

TEST_F(FileSavingTest, AFullDiskLeavesTheOldFileAndNothingElse) {
  SaveBytesToFile(Path(), "old");
  const TFullDisk disk(1000);
  EXPECT_EQ(QStringLiteral("Cannot write file \"") + Path() + QStringLiteral("\". File too large"),
            MessageOf<EWriteError>([&] { SaveBytesToFile(Path(), QByteArray(2000, 'x')); }));
  EXPECT_EQ("old", Content());
  EXPECT_EQ(QStringList{QStringLiteral("out.bin")}, Files());
}

TEST_F(FileSavingTest, AMissingFolderIsNamed) {
  const QString path = FFolder.filePath(QStringLiteral("missing/out.bin"));
  EXPECT_TRUE(MessageOf<EFCreateError>([&] {
                SaveBytesToFile(path, "x");
              }).startsWith(QStringLiteral("Cannot create file \"") + path + QStringLiteral("\". ")));
  EXPECT_EQ(QStringList(), Files());
}

TEST_F(FileSavingTest, AComponentIsSavedAsBinary) {
  const auto sample = Make<TSample>();
  sample->Whole = 5;
  SaveComponentToFile(Path(), sample.get());
  EXPECT_EQ(sofBinary, TestStreamFormat(Content()));
  EXPECT_EQ(TextOf(sample.get()), TextOf(Content()));
}

TEST_F(FileSavingTest, AComponentIsSavedAsText) {
  const auto sample = Make<TSample>();
  SaveComponentToFile(Path(), sample.get(), sofText);
  EXPECT_EQ("object TSample\n  Small = 0\n  Color = 0\n  Items = <>\nend\n", Content());
}

TEST_F(FileSavingTest, AComponentIsSavedAsAResource) {
  const auto sample = Make<TSample>();
  SaveComponentToFile(Path(), sample.get(), sofResource);
  EXPECT_EQ(sofResource, TestStreamFormat(Content()));
  EXPECT_TRUE(Content().contains("TSAMPLE"));
}

}  // namespace
}  // namespace kt
