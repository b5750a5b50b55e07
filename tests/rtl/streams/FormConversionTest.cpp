#include "kt/rtl/streams/FormConversion.h"
#include "support/FormTesting.h"

#include <QBuffer>
#include <QDir>

namespace kt {
namespace {

using namespace kt::tests;

constexpr char kText[] = "object A: TA\n  X = 'x'\nend\n";

QByteArray Resource() {
  QByteArray resource;
  ObjectTextToResource(kText, resource);
  return resource;
}

QStringList FilesIn(const QString& folder, const QString& pattern) {
  QStringList names;
  for (const QString& name : QDir(folder).entryList({pattern}, QDir::Files)) names += folder + u'/' + name;
  return names;
}

bool SurvivesTheOtherFormat(const QByteArray& form) {
  if (TestStreamFormat(form) == sofBinary) return ToBinary(ToText(form)) == form;
  const QByteArray text = QByteArray(form).replace("\r\n", "\n");
  return ToText(ToBinary(text)) == text;
}

/// The files that do not come back the same through the other format.
QStringList ChangedFiles(const QStringList& names) {
  QStringList changed;
  for (const QString& name : names) {
    if (!SurvivesTheOtherFormat(FileContent(name))) changed += name.section(u'/', -1);
  }
  return changed;
}

/// The files whose events differ on the way through binary and canonical text.
QStringList FilesWithOtherValues(const QStringList& names) {
  QStringList changed;
  for (const QString& name : names) {
    const QByteArray text = FileContent(name);
    const QByteArray binary = ToBinary(text);
    if (EventsOf(text) != EventsOf(binary) || EventsOf(text) != EventsOf(ToText(binary)))
      changed += name.section(u'/', -1);
  }
  return changed;
}

TEST(FormConversionTest, TextBecomesBinaryAndTextAgain) {
  QByteArray binary;
  QByteArray text;
  ObjectTextToBinary(kText, binary);
  ObjectBinaryToText(binary, text);
  EXPECT_EQ(BinaryWith(QByteArray("\6\1x", 3)), binary);
  EXPECT_EQ(kText, text);
}

TEST(FormConversionTest, AResourceIsNamedAfterTheClass) {
  const QByteArray binary = BinaryWith(QByteArray("\6\1x", 3));
  EXPECT_EQ(QByteArray("\xFF\x0A\0TA\0\x30\x10\x10\0\0\0", 12) + binary, Resource());
}

TEST(FormConversionTest, AResourceBecomesText) {
  QByteArray text;
  ObjectResourceToText(Resource(), text);
  EXPECT_EQ(kText, text);
}

TEST(FormConversionTest, AResourceHasTheEventsOfItsForm) { EXPECT_EQ(EventsOf(kText), EventsOf(Resource())); }

TEST(FormConversionTest, APaddedResourceBecomesText) {
  QByteArray text;
  ObjectResourceToText(Resource() + QByteArray(3, '\0'), text);
  EXPECT_EQ(kText, text);
}

TEST(FormConversionTest, AFormBeyondTheSizeInItsHeaderIsAnInvalidImage) {
  QByteArray resource = Resource();
  resource[8] = 5;
  QByteArray text;
  EXPECT_EQ("EInvalidImage: Invalid stream format at offset 28",
            ErrorOf([&] { ObjectResourceToText(resource, text); }));
}

TEST(FormConversionTest, ACutResourceIsAReadError) {
  QByteArray text;
  EXPECT_EQ("EReadError: Stream read error at offset 27 (A)",
            ErrorOf([&] { ObjectResourceToText(Resource().chopped(1), text); }));
}

TEST(FormConversionTest, DataBehindABinaryFormIsAnError) {
  QByteArray text;
  EXPECT_EQ("EInvalidImage: Unexpected data after the end of the form at offset 17",
            ErrorOf([&] { ObjectBinaryToText(ToBinary(kText) + QByteArray("\0x", 2), text); }));
}

TEST(FormConversionTest, AFailureLeavesTheOutputAlone) {
  QByteArray output("old");
  EXPECT_NE("no error", ErrorOf([&] { ObjectTextToBinary("object A: TA X = ", output); }));
  EXPECT_NE("no error", ErrorOf([&] { ObjectBinaryToText(ToBinary(kText).chopped(1), output); }));
  EXPECT_NE("no error", ErrorOf([&] { ObjectTextToResource("object", output); }));
  EXPECT_NE("no error", ErrorOf([&] { ObjectResourceToText("object", output); }));
  EXPECT_EQ("old", output);
}

TEST(FormConversionTest, OutputMayBeTheInput) {
  QByteArray form(kText);
  ObjectTextToBinary(form, form);
  ObjectBinaryToText(form, form);
  EXPECT_EQ(kText, form);
}

TEST(FormConversionTest, DevicesConvertAndStandBehindWhatWasRead) {
  QBuffer text;
  text.setData(kText);
  text.open(QIODevice::ReadOnly);
  QBuffer binary;
  binary.open(QIODevice::ReadWrite);
  ObjectTextToBinary(text, binary);
  binary.write("rest");
  binary.seek(0);
  QBuffer again;
  again.open(QIODevice::WriteOnly);
  ObjectBinaryToText(binary, again);
  EXPECT_EQ(kText, again.data());
  EXPECT_EQ("rest", binary.readAll());
}

TEST(FormConversionTest, ADeviceStandsBehindTheWholeResource) {
  QByteArray padded = Resource() + QByteArray(4, '\0');
  padded[8] = char(padded[8] + 4);
  QBuffer resource;
  resource.setData(padded + Resource());
  resource.open(QIODevice::ReadOnly);
  QBuffer text;
  text.open(QIODevice::WriteOnly);
  ObjectResourceToText(resource, text);
  EXPECT_EQ(Resource(), resource.readAll());
}

TEST(FormConversionTest, TextBecomesAResourceOnDevices) {
  QBuffer text;
  text.setData(kText);
  text.open(QIODevice::ReadOnly);
  QBuffer resource;
  resource.open(QIODevice::WriteOnly);
  ObjectTextToResource(text, resource);
  EXPECT_EQ(Resource(), resource.data());
}

TEST(FormConversionTest, OptionsReachParserAndWriter) {
  TFormOptions options;
  options.Encoding = eeLatin1;
  options.Text = {leCrLf, true};
  QByteArray text;
  ObjectBinaryToText(BinaryWith(QByteArray("\6\1\xE9", 3)), text, options);
  EXPECT_EQ("object A: TA\r\n  X = '\xC3\xA9'\r\nend\r\n", text);
}

TEST(FormConversionTest, FormatsAreToldApart) {
  EXPECT_EQ(sofBinary, TestStreamFormat("TPF0"));
  EXPECT_EQ(sofText, TestStreamFormat("  \r\nObject A"));
  EXPECT_EQ(sofText, TestStreamFormat("INHERITED\tA"));
  EXPECT_EQ(sofText, TestStreamFormat("inline"));
  EXPECT_EQ(sofText, TestStreamFormat("\xEF\xBB\xBFwhatever"));
  EXPECT_EQ(sofText, TestStreamFormat("\xFF\xFEo"));
  EXPECT_EQ(sofResource, TestStreamFormat(QByteArray("\xFF\x0A\0", 3)));
  EXPECT_EQ(sofUnknown, TestStreamFormat("objects A"));
  EXPECT_EQ(sofUnknown, TestStreamFormat(""));
}

TEST(FormConversionTest, LookingAtADeviceMovesNothing) {
  QBuffer device;
  device.setData("TPF0");
  device.open(QIODevice::ReadOnly);
  EXPECT_EQ(sofBinary, TestStreamFormat(device));
  EXPECT_EQ(0, device.pos());
}

TEST(FormConversionTest, EveryConstructSurvivesByteForByte) {
  const QStringList names = FilesIn(QStringLiteral(KT_SOURCE_DIR "/examples/forms"), QStringLiteral("*.dfm"));
  EXPECT_LE(5, names.size());
  EXPECT_EQ(QStringList(), ChangedFiles(names));
}

TEST(FormConversionTest, ANullInAListIsNotTheEndOfTheList) {
  EXPECT_EQ("list | constant Null | integer 1 | end list", ValuePart(EventsOf(ToBinary(FormWith("(Null 1)")))));
}

TEST(FormConversionTest, AVeryLongStringSurvives) {
  const QByteArray form = ToText(FormWith("'" + QByteArray(1000000, 'x') + "'"));
  EXPECT_EQ(form, ToText(ToBinary(form)));
}

class RealFormsTest : public ::testing::Test {
 protected:
  const QString Folder = QStringLiteral(KT_SOURCE_DIR "/../shared/forms");

  void SetUp() override {
    if (!QDir(Folder).exists()) GTEST_SKIP() << "no collection of real forms beside the project";
  }
};

// Written by the component framework itself, all but one that was edited by hand: a line is indented wrongly.
TEST_F(RealFormsTest, FormsOfTheFrameworkSurviveByteForByte) {
  const QStringList names = FilesIn(Folder, QStringLiteral("*.dfm"));
  EXPECT_EQ(QStringList{QStringLiteral("PascalCoin__src__gui-classic__UFRMSelectLanguage.dfm")}, ChangedFiles(names));
}

TEST_F(RealFormsTest, FormsInTheDialectSurviveByValue) {
  const QStringList names = FilesIn(Folder, QStringLiteral("*.lfm"));
  EXPECT_FALSE(names.isEmpty());
  EXPECT_EQ(QStringList(), FilesWithOtherValues(names));
}

}  // namespace
}  // namespace kt
