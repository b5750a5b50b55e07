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

TEST_F(FileLoadingTest, WhatIsNoFormAtAllIsReadAsTextAndTellsTheLine) {
  SaveBytesToFile(Path(), "\n\n  hello\n");
  EXPECT_EQ(Path() + QStringLiteral(": OBJECT expected on line 3, column 3"),
            MessageOf<EParserError>([&] { LoadComponentFromFile(Path()); }));
  SaveBytesToFile(Path(), "");
  EXPECT_EQ(Path() + QStringLiteral(": OBJECT expected on line 1, column 1"),
            MessageOf<EParserError>([&] { LoadComponentFromFile(Path()); }));
}

constexpr char kUnknown[] =
    "object A: TSample\n  Small = 0\n  Color = 0\n  Nothing = 1\n  Items = <>\n  object B: TNoSuch\n"
    "    X = 2\n  end\nend\n";

TEST_F(FileLoadingTest, UnknownThingsStopTheLoadUnlessAskedFor) {
  SaveBytesToFile(Path(), kUnknown);
  EXPECT_TRUE(MessageOf<EReadError>([&] {
                LoadComponentFromFile(Path());
              }).startsWith(Path() + QStringLiteral(": Error reading A.Nothing: Property Nothing does not exist at ")));
  const auto passesProperties = [&] { LoadComponentFromFile(Path(), {.UnknownProperties = upSkip}); };
  EXPECT_TRUE(MessageOf<EClassNotFound>(passesProperties).contains(QStringLiteral(": Class TNoSuch not found at ")));
}

TEST_F(FileLoadingTest, UnknownThingsCanBePassedOverOrKept) {
  SaveBytesToFile(Path(), kUnknown);
  const TLoadOptions skip{upSkip, upSkip}, keep{upKeep, upKeep};
  EXPECT_EQ("object A: TSample\n  Small = 0\n  Color = 0\n  Items = <>\nend\n",
            TextOf(LoadComponentFromFile(Path(), skip).get()));
  const auto root = Make<TSample>();
  LoadComponentFromFile(Path(), root.get(), keep);
  EXPECT_NE(std::string::npos, TextOf(root.get()).find("  object B: TNoSuch\n    X = 2\n  end\n"));
  EXPECT_NE(std::string::npos, TextOf(root.get()).find("  Nothing = 1\n"));
}

TEST_F(FileLoadingTest, TheEncodingSaysWhatBytesBeyondAsciiMean) {
  SaveBytesToFile(Path(), "object A: TSample\n  Text = '\xE0'\nend\n");
  const auto textIn = [&](TEightBitEncoding encoding) {
    const auto root = LoadComponentFromFile(Path(), {.Encoding = encoding});
    return static_cast<TSample*>(root.get())->Text;
  };
  EXPECT_EQ(QStringLiteral("\u00E0"), textIn(eeWindows1252));
  EXPECT_EQ(QStringLiteral("\u0430"), textIn(eeWindows1251));
  SaveBytesToFile(Path(), QByteArray("TPF0\7TSample\1A\4Text\6\1\xE0\0\0", 24));
  EXPECT_EQ(QStringLiteral("\u0430"), textIn(eeWindows1251));
}

TEST_F(FileLoadingTest, AMissingFileCannotBeOpened) {
  EXPECT_EQ(QStringLiteral("Cannot open file \"") + Path() + QStringLiteral("\". No such file or directory"),
            MessageOf<EFOpenError>([&] { LoadComponentFromFile(Path()); }));
}

}  // namespace
}  // namespace kt
