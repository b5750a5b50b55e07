#include "kt/rtl/streams/BinaryReader.h"
#include "support/FormTesting.h"

#include <QBuffer>

namespace kt {
namespace {

using namespace kt::tests;

TBinaryReader ReaderOf(const char* hex) { return TBinaryReader(QByteArray::fromHex(hex)); }

/// Delivers a few bytes at a time and cannot seek.
class TDripDevice : public QIODevice {
 public:
  explicit TDripDevice(QByteArray data) : FData(std::move(data)) { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }
  bool isSequential() const override { return true; }

 protected:
  qint64 readData(char* data, qint64 size) override {
    const QByteArray part = FData.left(std::min<qint64>(size, 3));
    FData.remove(0, part.size());
    std::copy(part.begin(), part.end(), data);
    return part.size();
  }
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  QByteArray FData;
};

TEST(BinaryReaderTest, ReadsIntegersOfEveryWidth) {
  auto reader = ReaderOf("02 ff 03 00 01 04 00 00 01 00 13 00 00 00 00 01 00 00 00");
  EXPECT_EQ(-1, reader.ReadInteger());
  EXPECT_EQ(256, reader.ReadInteger());
  EXPECT_EQ(65536, reader.ReadInteger());
  EXPECT_EQ(4294967296, reader.ReadInt64());
  EXPECT_TRUE(reader.IsAtEnd());
}

TEST(BinaryReaderTest, AnIntegerBeyond32BitsIsNoInteger) {
  auto reader = ReaderOf("13 00 00 00 80 00 00 00 00");
  EXPECT_EQ("EReadError: Invalid property value at offset 0", ErrorOf([&] { reader.ReadInteger(); }));
}

TEST(BinaryReaderTest, AFloatMayBeStoredAsAnyNumber) {
  auto reader = ReaderOf("0f 00 00 c0 3f 10 10 27 00 00 00 00 00 00 02 07");
  EXPECT_EQ(Extended(1.5), reader.ReadFloat());
  EXPECT_EQ(Extended(1), reader.ReadFloat());
  EXPECT_EQ(Extended(7), reader.ReadFloat());
}

TEST(BinaryReaderTest, AWordIsNoNumber) {
  auto reader = ReaderOf("09");
  EXPECT_EQ("EReadError: Invalid property value at offset 0", ErrorOf([&] { reader.ReadFloat(); }));
}

TEST(BinaryReaderTest, ReadsStringsOfEveryKind) {
  auto reader = ReaderOf("06 01 61 0c 01000000 62 12 01000000 6300 14 02000000 c3a9");
  EXPECT_EQ("a", reader.ReadString());
  EXPECT_EQ("b", reader.ReadString());
  EXPECT_EQ("c", reader.ReadString());
  EXPECT_EQ(QStringLiteral("\u00e9"), reader.ReadString());
}

TEST(BinaryReaderTest, ANumberIsNoString) {
  auto reader = ReaderOf("02 01");
  EXPECT_EQ("EReadError: Invalid property value at offset 0", ErrorOf([&] { reader.ReadString(); }));
}

TEST(BinaryReaderTest, EightBitStringsAreReadInTheChosenEncoding) {
  auto reader = ReaderOf("06 01 80 06 01 80");
  EXPECT_EQ(QStringLiteral("\u20ac"), reader.ReadString());
  reader.SetEncoding(eeLatin1);
  EXPECT_EQ(QStringLiteral("\u0080"), reader.ReadString());
}

TEST(BinaryReaderTest, EightBitStringsInUtf8MustBeValid) {
  auto reader = ReaderOf("06 02 61 80");
  reader.SetEncoding(eeUtf8);
  EXPECT_EQ("EReadError: Invalid UTF-8 text at offset 3", ErrorOf([&] { reader.ReadString(); }));
}

TEST(BinaryReaderTest, ConstantsAreIdentifiersToo) {
  auto reader = ReaderOf("00 0d 08 09 07 01 61 02");
  EXPECT_EQ("Null", reader.ReadIdent());
  EXPECT_EQ("nil", reader.ReadIdent());
  EXPECT_EQ("False", reader.ReadIdent());
  EXPECT_EQ("True", reader.ReadIdent());
  EXPECT_EQ("a", reader.ReadIdent());
  EXPECT_EQ("EReadError: Invalid property value at offset 7", ErrorOf([&] { reader.ReadIdent(); }));
}

TEST(BinaryReaderTest, ReadsBooleans) {
  auto reader = ReaderOf("09 08 0d");
  EXPECT_TRUE(reader.ReadBoolean());
  EXPECT_FALSE(reader.ReadBoolean());
  EXPECT_EQ("EReadError: Invalid property value at offset 2", ErrorOf([&] { reader.ReadBoolean(); }));
}

TEST(BinaryReaderTest, ReadsMoneyBinaryDataAndSets) {
  auto reader = ReaderOf("10 0100000000000000 0a 01000000 ff 0b 0161 00");
  EXPECT_EQ(1, reader.ReadCurrency());
  EXPECT_EQ(QByteArray("\xFF"), reader.ReadBinary());
  reader.ReadSetBegin();
  EXPECT_EQ("a", reader.ReadSetElement());
  EXPECT_EQ("", reader.ReadSetElement());
}

TEST(BinaryReaderTest, ReadsListsStepByStep) {
  auto reader = ReaderOf("01 02 05 00 0e 00");
  reader.ReadListBegin();
  EXPECT_FALSE(reader.EndOfList());
  EXPECT_EQ(5, reader.ReadInteger());
  EXPECT_TRUE(reader.EndOfList());
  reader.ReadListEnd();
  reader.ReadCollectionBegin();
  EXPECT_EQ(vaNull, reader.NextValue());
}

TEST(BinaryReaderTest, SkipsAValueHoweverDeep) {
  auto reader = ReaderOf("0e 01 0159 01 01 0b 0161 00 00 00 00 00 02 2a");
  reader.SkipValue();
  EXPECT_EQ(42, reader.ReadInteger());
}

TEST(BinaryReaderTest, SkippingKeepsThePath) {
  auto reader = ReaderOf("0e 01 00 00");
  reader.Path().EnterObject(u"A", u"TA");
  reader.Path().SetProperty(u"X");
  reader.SkipValue();
  EXPECT_EQ("EReadError: Stream read error at offset 4 (A.X)", ErrorOf([&] { reader.ReadValue(); }));
}

TEST(BinaryReaderTest, ADeviceInDripsReadsLikeMemory) {
  const QByteArray form = ToBinary(FileContent(QStringLiteral(KT_SOURCE_DIR "/examples/forms/collections.dfm")));
  TDripDevice device(form);
  TBinaryReader reader(device);
  TFormEventLog log;
  TBinaryFormParser(reader, log).ParseForm();
  EXPECT_EQ(EventsOf(form), OneLine(log.Text()));
}

TEST(BinaryReaderTest, ADeviceStandsBehindTheFormAfterwards) {
  QBuffer device;
  device.setData(BinaryWith(QByteArray(1, '\x09')) + "rest");
  device.open(QIODevice::ReadOnly);
  {
    TBinaryReader reader(device);
    TIdleFormSink sink;
    TBinaryFormParser(reader, sink).ParseForm();
  }
  EXPECT_EQ("rest", device.readAll());
}

TEST(BinaryReaderTest, AHugeCountInAShortDeviceCostsNoMemory) {
  QBuffer device;
  device.setData(QByteArray::fromHex("0a 00943577") + QByteArray(1000, 'x'));
  device.open(QIODevice::ReadOnly);
  TBinaryReader reader(device);
  EXPECT_EQ("EReadError: Stream read error at offset 5", ErrorOf([&] { reader.ReadBinary(); }));
  EXPECT_LT(reader.BufferSize(), 10000);
}

TEST(BinaryReaderTest, SkipsResourceHeadersWithANameOrANumber) {
  auto named = ReaderOf("ff 0a00 544100 3010 0e000000 09");
  EXPECT_EQ(14, named.ReadResourceHeader());
  EXPECT_TRUE(named.ReadBoolean());
  auto numbered = ReaderOf("ff 0a00 ff0100 3010 0e000000 09");
  EXPECT_EQ(14, numbered.ReadResourceHeader());
  EXPECT_TRUE(numbered.ReadBoolean());
}

TEST(BinaryReaderTest, OtherResourcesAreAnInvalidImage) {
  auto reader = ReaderOf("ff 0b00 544100");
  EXPECT_EQ("EInvalidImage: Invalid stream format at offset 3", ErrorOf([&] { reader.ReadResourceHeader(); }));
  auto none = ReaderOf("54");
  EXPECT_EQ("EInvalidImage: Invalid stream format at offset 0", ErrorOf([&] { none.ReadResourceHeader(); }));
}

TEST(BinaryReaderTest, ACutResourceHeaderIsAReadError) {
  auto reader = ReaderOf("ff 0a00 5441");
  EXPECT_EQ("EReadError: Stream read error at offset 5", ErrorOf([&] { reader.ReadResourceHeader(); }));
}

}  // namespace
}  // namespace kt
