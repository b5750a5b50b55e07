#include "kt/rtl/objects/Exceptions.h"
#include "rtl/strings/StringsFixture.h"
#include "support/FaultyDevices.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

namespace kt::tests {
namespace {

/// Lets no file of this process grow beyond some bytes, so that writing fails as on a full disk.
class TFileSizeLimit {
 public:
  explicit TFileSizeLimit(rlim_t bytes) : FOldHandler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &FOld);
    const rlimit limit{bytes, FOld.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~TFileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &FOld);
    std::signal(SIGXFSZ, FOldHandler);
  }

 private:
  void (*FOldHandler)(int);
  rlimit FOld{};
};

/// A device whose reads fail.
class TBrokenDevice : public QIODevice {
 public:
  TBrokenDevice() { open(ReadWrite | Unbuffered); }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char*, qint64 size) override { return size / 2; }
};

class StringsFilesTest : public testing::Test {
 protected:
  QString Path(const QString& name) const { return FFolder.filePath(name); }
  void Write(const QString& name, const QByteArray& bytes) {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray Read(const QString& name) {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  std::string Files() const {
    return QDir(FFolder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
        .join(" ")
        .toStdString();
  }

  QTemporaryDir FFolder;
};

TEST_F(StringsFilesTest, AFileIsReadAsText) {
  Write("in.txt", "a\nb\r\n\xc3\xa9");
  auto list = NewList({"old"});
  list->LoadFromFile(Path("in.txt"));
  EXPECT_EQ("a | b | \u00e9", Lines(*list));
}

TEST_F(StringsFilesTest, AnOldEightBitFileIsReadToo) {
  Write("in.txt", "caf\xe9\r\n\x80");
  auto list = NewList();
  list->LoadFromFile(Path("in.txt"));
  EXPECT_EQ("caf\u00e9 | \u20ac", Lines(*list));
}

TEST_F(StringsFilesTest, LoadingIsOneChange) {
  Write("in.txt", "a\nb\n");
  auto list = NewList({"x"});
  TEventLog log(*list);
  list->LoadFromFile(Path("in.txt"));
  EXPECT_EQ("changing(x) changed(a | b)", log.Take());
}

TEST_F(StringsFilesTest, AFileIsWrittenInUtf8) {
  NewList({"a", "\u00e9"})->SaveToFile(Path("out.txt"));
  EXPECT_EQ("a\r\n\xc3\xa9\r\n", Read("out.txt"));
  EXPECT_EQ("out.txt", Files());
}

TEST_F(StringsFilesTest, AFileIsReplaced) {
  Write("out.txt", "a long text that was here before");
  NewList({"a"})->SaveToFile(Path("out.txt"));
  EXPECT_EQ("a\r\n", Read("out.txt"));
}

TEST_F(StringsFilesTest, WhatIsWrittenComesBack) {
  auto list = NewList({"", "\u00e9\U0001f600", " ", ""});
  list->SaveToFile(Path("out.txt"));
  auto copy = NewList();
  copy->LoadFromFile(Path("out.txt"));
  EXPECT_TRUE(copy->Equals(*list));
}

TEST_F(StringsFilesTest, ALargeFileComesBack) {
  auto list = NewList({QString(200'000, u'x'), "end"});
  list->SaveToFile(Path("out.txt"));
  auto copy = NewList();
  copy->LoadFromFile(Path("out.txt"));
  EXPECT_TRUE(copy->Equals(*list));
}

TEST_F(StringsFilesTest, AMissingFileRaisesAndLeavesTheListAlone) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  const std::string name = Path("none.txt").toStdString();
  EXPECT_EQ("Cannot open file \"" + name + "\". No such file or directory",
            RaisedBy<EFOpenError>([&] { list->LoadFromFile(Path("none.txt")); }));
  EXPECT_EQ("a", Lines(*list));
  EXPECT_EQ("", log.Take());
}

TEST_F(StringsFilesTest, TheMessageNamesTheFileWithItsFolder) {
  const std::string name = QDir::current().absoluteFilePath("none.txt").toStdString();
  EXPECT_EQ("Cannot open file \"" + name + "\". No such file or directory",
            RaisedBy<EFOpenError>([&] { NewList()->LoadFromFile("none.txt"); }));
}

TEST_F(StringsFilesTest, AFolderCannotBeLoaded) {
  EXPECT_NE("", RaisedBy<EFOpenError>([&] { NewList()->LoadFromFile(FFolder.path()); }));
}

TEST_F(StringsFilesTest, AMissingFolderRaisesAndNothingIsLeftBehind) {
  const std::string name = Path("none/out.txt").toStdString();
  EXPECT_EQ("Cannot create file \"" + name + "\". No such file or directory",
            RaisedBy<EFCreateError>([&] { NewList({"a"})->SaveToFile(Path("none/out.txt")); }));
  EXPECT_EQ("", Files());
}

TEST_F(StringsFilesTest, AFileInTheWayOfTheFolderRaisesAndStaysAsItIs) {
  Write("file", "kept");
  EXPECT_NE("", RaisedBy<EFCreateError>([&] { NewList({"a"})->SaveToFile(Path("file/out.txt")); }));
  EXPECT_EQ("file", Files());
  EXPECT_EQ("kept", Read("file"));
}

TEST_F(StringsFilesTest, AFolderCannotBeReplacedByAFile) {
  QDir(FFolder.path()).mkdir("folder");
  EXPECT_NE("", RaisedBy<EFCreateError>([&] { NewList({"a"})->SaveToFile(Path("folder")); }));
  EXPECT_EQ("folder", Files());
}

TEST_F(StringsFilesTest, AFullDiskLeavesTheOldFile) {
  Write("out.txt", "kept");
  auto list = NewList({QString(100'000, u'x')});
  const TFileSizeLimit limit(1000);
  EXPECT_EQ("Cannot write file \"" + Path("out.txt").toStdString() + "\". File too large",
            RaisedBy<EWriteError>([&] { list->SaveToFile(Path("out.txt")); }));
  EXPECT_EQ("out.txt", Files());
  EXPECT_EQ("kept", Read("out.txt"));
}

TEST_F(StringsFilesTest, ADiskThatIsFullInTheMiddleOfAShortFileLeavesTheOldFile) {
  Write("out.txt", "kept");
  // Little enough for a buffer that would be written by the commit only.
  auto list = NewList({QString(2000, u'x')});
  const TFileSizeLimit limit(1000);
  EXPECT_EQ("Cannot write file \"" + Path("out.txt").toStdString() + "\". File too large",
            RaisedBy<EWriteError>([&] { list->SaveToFile(Path("out.txt")); }));
  EXPECT_EQ("out.txt", Files());
  EXPECT_EQ("kept", Read("out.txt"));
}

TEST_F(StringsFilesTest, AStreamIsReadFromItsPositionToTheEnd) {
  QBuffer stream;
  stream.setData("skip a\nb");
  stream.open(QIODevice::ReadOnly);
  stream.seek(5);
  auto list = NewList();
  list->LoadFromStream(stream);
  EXPECT_EQ("a | b", Lines(*list));
  EXPECT_TRUE(stream.atEnd());
}

TEST_F(StringsFilesTest, AStreamIsWrittenAtItsPosition) {
  QBuffer stream;
  stream.open(QIODevice::WriteOnly);
  stream.write("head ");
  NewList({"a"})->SaveToStream(stream);
  EXPECT_EQ("head a\r\n", stream.data());
}

TEST_F(StringsFilesTest, AStreamThatCannotBeReadRaisesAndLeavesTheListAlone) {
  TBrokenDevice stream;
  auto list = NewList({"a"});
  EXPECT_EQ("Stream read error at offset 0: Unknown error",
            RaisedBy<EReadError>([&] { list->LoadFromStream(stream); }));
  EXPECT_EQ("a", Lines(*list));
}

TEST_F(StringsFilesTest, ADeviceThatStopsBeforeItsEndRaises) {
  TFaultyDevice stream(70'000, 0);
  auto list = NewList({"a"});
  EXPECT_EQ("Stream read error at offset 70000: the disk is gone",
            RaisedBy<EReadError>([&] { list->LoadFromStream(stream); }));
  EXPECT_EQ("a", Lines(*list));
}

TEST_F(StringsFilesTest, ASequentialDeviceMayEndWithAFailure) {
  TPipe stream;
  auto list = NewList();
  list->LoadFromStream(stream);
  EXPECT_EQ("p", Lines(*list));
}

TEST_F(StringsFilesTest, AStreamThatTakesNotAllRaises) {
  TBrokenDevice stream;
  EXPECT_EQ("Stream write error", RaisedBy<EWriteError>([&] { NewList({"abc"})->SaveToStream(stream); }));
}

}  // namespace
}  // namespace kt::tests
