#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FileSaving.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::MessageOf;
using tests::TextOf;
using tests::TSample;

class FileLoadingTest : public ::testing::TestWithParam<TStreamOriginalFormat> {
 protected:
  FileLoadingTest() { RegisterClass(TSample::Class()); }
  ~FileLoadingTest() override { UnRegisterClass(TSample::Class()); }

  QString Path() const { return FFolder.filePath(QStringLiteral("form.bin")); }

  QTemporaryDir FFolder;
};

INSTANTIATE_TEST_SUITE_P(Formats, FileLoadingTest, ::testing::Values(sofBinary, sofText, sofResource));

TEST_P(FileLoadingTest, WhatWasSavedIsLoaded) {
  const auto saved = Make<TSample>();
  saved->SetName(QStringLiteral("Form1"));
  saved->Text = QStringLiteral("\u20AC");
  New<TSample>(saved.get())->SetName(QStringLiteral("Child"));
  SaveComponentToFile(Path(), saved.get(), GetParam());
  EXPECT_EQ(TextOf(saved.get()), TextOf(LoadComponentFromFile(Path()).get()));
  const auto root = Make<TSample>();
  LoadComponentFromFile(Path(), root.get());
  EXPECT_EQ(TextOf(saved.get()), TextOf(root.get()));
}

TEST_P(FileLoadingTest, WhatIsWrongInAFileIsToldWithItsName) {
  auto saved = Make<TSample>();
  New<TSample>(saved.get());
  SaveComponentToFile(Path(), saved.get(), GetParam());
  QFile file(Path());
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.resize(file.size() - 5);
  file.close();
  EXPECT_TRUE(MessageOf<Exception>([&] { LoadComponentFromFile(Path()); }).startsWith(Path() + QStringLiteral(": ")));
  EXPECT_EQ(2, TSample::Alive);
}

TEST_F(FileLoadingTest, AnUnknownClassKeepsItsKindOfException) {
  SaveBytesToFile(Path(), "object A: TNoSuch\nend\n");
  EXPECT_EQ(Path() + QStringLiteral(": Class TNoSuch not found at offset 4 (A)"),
            MessageOf<EClassNotFound>([&] { LoadComponentFromFile(Path()); }));
}

TEST_F(FileLoadingTest, AnErrorInATextTellsTheLine) {
  SaveBytesToFile(Path(), "object A: TSample\n  Whole 5\nend\n");
  EXPECT_EQ(Path() + QStringLiteral(": '=' expected on line 2, column 9"),
            MessageOf<EParserError>([&] { LoadComponentFromFile(Path()); }));
}

TEST_F(FileLoadingTest, AMissingFileCannotBeOpened) {
  EXPECT_EQ(QStringLiteral("Cannot open file \"") + Path() + QStringLiteral("\". No such file or directory"),
            MessageOf<EFOpenError>([&] { LoadComponentFromFile(Path()); }));
}

}  // namespace
}  // namespace kt
