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
  EXPECT_EQ(Path() + QStringLiteral(": Class TNoSuch not found on line 1, column 1 (A)"),
            MessageOf<EClassNotFound>([&] { LoadComponentFromFile(Path()); }));
}

TEST_F(FileLoadingTest, AnUnknownPropertyInATextTellsTheLine) {
  SaveBytesToFile(
      Path(),
      "object A: TSample\r\n  Whole = 5\r\n  object B: TSample\r\n    Nothing =\r\n      1\r\n  end\r\nend\r\n");
  EXPECT_EQ(
      Path() + QStringLiteral(
                   ": Error reading B.Nothing: Property Nothing does not exist on line 4, column 5 (A.B.Nothing)"),
      MessageOf<EReadError>([&] { LoadComponentFromFile(Path()); }));
}

TEST_F(FileLoadingTest, AValueInATextThatDoesNotFitTellsTheLine) {
  SaveBytesToFile(Path(), "object A: TSample\n  Whole = 'five'\nend\n");
  EXPECT_EQ(Path() + QStringLiteral(": Error reading A.Whole: Invalid property value on line 2, column 3 (A.Whole)"),
            MessageOf<EReadError>([&] { LoadComponentFromFile(Path()); }));
  SaveBytesToFile(Path(),
                  "object A: TSample\n  Items = <\n    item\n    end\n    item\n      Caption = 1\n    end>\nend\n");
  const QString message = MessageOf<EReadError>([&] { LoadComponentFromFile(Path()); });
  EXPECT_TRUE(message.endsWith(QStringLiteral(" on line 6, column 7 (A.Items[1].Caption)"))) << message.toStdString();
}

TEST_F(FileLoadingTest, AReferenceInATextThatCannotBeSetTellsTheLine) {
  RegisterClass(TComponent::Class());
  SaveBytesToFile(Path(), "object A: TSample\n  Sibling = B\n  object B: TComponent\n  end\nend\n");
  EXPECT_EQ(
      Path() + QStringLiteral(": Error reading A.Sibling: Invalid class typecast on line 2, column 3 (A.Sibling)"),
      MessageOf<EReadError>([&] { LoadComponentFromFile(Path()); }));
  UnRegisterClass(TComponent::Class());
}

QByteArray SampleInBinary() { return tests::BinaryOf("object A: TSample\n  Whole = 5\nend\n"); }

TEST_F(FileLoadingTest, DataBehindTheFormRaises) {
  const QByteArray form = SampleInBinary();
  SaveBytesToFile(Path(), form + "\1");
  EXPECT_EQ(Path() + QStringLiteral(": Unexpected data after the end of the form at offset %1").arg(form.size()),
            MessageOf<EInvalidImage>([&] { LoadComponentFromFile(Path()); }));
  SaveBytesToFile(Path(), WithResourceHeader(form) + form);
  EXPECT_THROW(LoadComponentFromFile(Path()), EInvalidImage);
  EXPECT_EQ(0, TSample::Alive);
}

TEST_F(FileLoadingTest, ZeroBytesBehindTheFormArePadding) {
  SaveBytesToFile(Path(), SampleInBinary() + QByteArray(3, '\0'));
  EXPECT_NE(nullptr, LoadComponentFromFile(Path()));
}

TEST_F(FileLoadingTest, AFormBeyondItsResourceRaises) {
  const QByteArray form = SampleInBinary();
  QByteArray resource = WithResourceHeader(form);
  char& size = resource.data()[resource.size() - form.size() - 4];
  ASSERT_EQ(form.size(), size);
  --size;
  SaveBytesToFile(Path(), resource);
  EXPECT_EQ(Path() + QStringLiteral(": Invalid stream format at offset %1").arg(resource.size()),
            MessageOf<EInvalidImage>([&] { LoadComponentFromFile(Path()); }));
  size = char(form.size() + 1);
  SaveBytesToFile(Path(), resource);
  EXPECT_THROW(LoadComponentFromFile(Path()), EReadError);
  EXPECT_EQ(0, TSample::Alive);
}

TEST_F(FileLoadingTest, AReaderLeavesWhatIsBehindTheFormToOthers) {
  TReader reader(SampleInBinary() + "more");
  EXPECT_EQ(5, reader.ReadRoot<TSample>()->Whole);
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
  EXPECT_EQ(Path() + QStringLiteral(
                         ": Error reading A.Nothing: Property Nothing does not exist on line 4, column 3 (A.Nothing)"),
            MessageOf<EReadError>([&] { LoadComponentFromFile(Path()); }));
  const auto passesProperties = [&] { LoadComponentFromFile(Path(), {.UnknownProperties = upSkip}); };
  EXPECT_EQ(Path() + QStringLiteral(": Class TNoSuch not found on line 6, column 3 (A.B)"),
            MessageOf<EClassNotFound>(passesProperties));
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
