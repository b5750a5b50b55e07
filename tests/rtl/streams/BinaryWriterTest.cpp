#include "kt/rtl/streams/BinaryWriter.h"
#include "kt/rtl/streams/FormErrors.h"
#include "support/FormTesting.h"

#include <QBuffer>

namespace kt {
namespace {

using namespace kt::tests;

template <typename TWrite>
QByteArray Written(TWrite write) {
  QByteArray bytes;
  TBinaryWriter writer(bytes);
  write(writer);
  writer.Flush();
  return bytes.toHex(' ');
}

QByteArray WrittenInteger(qint64 value) {
  return Written([=](TBinaryWriter& writer) { writer.WriteInteger(value); });
}

QByteArray WrittenString(QStringView value) {
  return Written([=](TBinaryWriter& writer) { writer.WriteString(value); });
}

QByteArray WrittenHeader(const TFormObject& object) {
  return Written([=](TBinaryWriter& writer) { writer.WriteObjectHeader(object); });
}

/// Takes nothing.
class TFullDevice : public QIODevice {
 public:
  TFullDevice() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char*, qint64) override { return -1; }
};

TEST(BinaryWriterTest, IntegersTakeAsLittleRoomAsTheyCan) {
  EXPECT_EQ("02 7f", WrittenInteger(127));
  EXPECT_EQ("02 80", WrittenInteger(-128));
  EXPECT_EQ("03 80 00", WrittenInteger(128));
  EXPECT_EQ("03 00 80", WrittenInteger(-32768));
  EXPECT_EQ("04 00 80 00 00", WrittenInteger(32768));
  EXPECT_EQ("04 00 00 00 80", WrittenInteger(-2147483648));
  EXPECT_EQ("13 00 00 00 80 00 00 00 00", WrittenInteger(2147483648));
}

TEST(BinaryWriterTest, AsciiIsStoredInBytes) {
  EXPECT_EQ("06 00", WrittenString({}));
  EXPECT_EQ("06 02 61 7f", WrittenString(u"a\x7f"));
}

TEST(BinaryWriterTest, LongAsciiHasAWideLength) {
  EXPECT_EQ("06 ff 78", WrittenString(QString(255, u'x')).left(8));
  EXPECT_EQ("0c 00 01 00 00 78", WrittenString(QString(256, u'x')).left(17));
}

TEST(BinaryWriterTest, AnythingElseIsStoredInUtf16) {
  EXPECT_EQ("12 02 00 00 00 61 00 e9 00", WrittenString(u"a\u00e9"));
}

TEST(BinaryWriterTest, LoneSurrogatesAreKept) {
  const char16_t lone[] = {0xD800, 0};
  EXPECT_EQ("12 01 00 00 00 00 d8", WrittenString(lone));
}

TEST(BinaryWriterTest, WritesNumbersOfEveryKind) {
  EXPECT_EQ("05 00 00 00 00 00 00 00 80 ff 3f", Written([](TBinaryWriter& writer) { writer.WriteFloat(1); }));
  EXPECT_EQ("0f 00 00 80 3f", Written([](TBinaryWriter& writer) { writer.WriteSingle(1); }));
  EXPECT_EQ("11 00 00 00 00 00 00 f0 3f", Written([](TBinaryWriter& writer) { writer.WriteDate(1); }));
  EXPECT_EQ("15 00 00 00 00 00 00 f0 3f", Written([](TBinaryWriter& writer) { writer.WriteDouble(1); }));
  EXPECT_EQ("10 01 00 00 00 00 00 00 00", Written([](TBinaryWriter& writer) { writer.WriteCurrency(1); }));
}

TEST(BinaryWriterTest, IdentifiersThatAreConstantsAreStoredAsConstants) {
  EXPECT_EQ("09 08 0d 00 07 01 61", Written([](TBinaryWriter& writer) {
              writer.WriteIdent(u"true");
              writer.WriteIdent(u"False");
              writer.WriteIdent(u"nil");
              writer.WriteIdent(u"Null");
              writer.WriteIdent(u"a");
            }));
}

TEST(BinaryWriterTest, WritesBooleansBinaryDataAndSets) {
  EXPECT_EQ("09 08 0a 01 00 00 00 ff 0b 01 61 00", Written([](TBinaryWriter& writer) {
              writer.WriteBoolean(true);
              writer.WriteBoolean(false);
              writer.WriteBinary("\xFF");
              writer.WriteSetBegin();
              writer.WriteSetElement(u"a");
              writer.WriteSetEnd();
            }));
}

TEST(BinaryWriterTest, APrefixIsWrittenOnlyForFlags) {
  EXPECT_EQ("01 54 01 41", WrittenHeader({{}, u"T", u"A"}));
  EXPECT_EQ("f1 01 54 01 41", WrittenHeader({ffInherited, u"T", u"A"}));
  EXPECT_EQ("f6 02 03 01 54 01 41", WrittenHeader({ffInline | ffChildPos, u"T", u"A", 3}));
}

TEST(BinaryWriterTest, AnEmptyClassNameNeedsAPrefix) { EXPECT_EQ("f0 00 01 41", WrittenHeader({{}, u"", u"A"})); }

TEST(BinaryWriterTest, AClassNameThatLooksLikeAPrefixNeedsOne) {
  EXPECT_EQ("ef 78", WrittenHeader({{}, QString(239, u'x'), u"A"}).left(5));
  EXPECT_EQ("f0 f0 78", WrittenHeader({{}, QString(240, u'x'), u"A"}).left(8));
}

TEST(BinaryWriterTest, NamesBeyondAsciiAreStoredInUtf8) {
  EXPECT_EQ("03 54 c3 a9 01 41", WrittenHeader({{}, u"T\u00e9", u"A"}));
}

TEST(BinaryWriterTest, ANameOf255BytesFits) {
  EXPECT_EQ("01 54 ff 78", WrittenHeader({{}, u"T", QString(255, u'x')}).left(11));
}

TEST(BinaryWriterTest, ALongerNameIsRefusedByName) {
  const QString name(256, u'x');
  EXPECT_EQ(QStringLiteral("EWriteError: The name '%1' is too long to be stored at offset 2").arg(ShownName(name)),
            ErrorOf([&] {
              WrittenHeader({{}, u"T", name});
            }));
}

TEST(BinaryWriterTest, ALongerClassNameIsRefusedByName) {
  const QString name(128, u'\u00e9');
  EXPECT_EQ(QStringLiteral("EWriteError: The name '%1' is too long to be stored at offset 1").arg(ShownName(name)),
            ErrorOf([&] {
              WrittenHeader({{}, name, u"A"});
            }));
}

TEST(BinaryWriterTest, AnEmptyPropertyNameIsRefused) {
  EXPECT_EQ("EWriteError: The name '' cannot be stored at offset 0",
            ErrorOf([] { Written([](TBinaryWriter& writer) { writer.WritePropertyName({}); }); }));
}

TEST(BinaryWriterTest, AnEmptySetElementIsRefused) {
  EXPECT_EQ("EWriteError: The name '' cannot be stored at offset 0",
            ErrorOf([] { Written([](TBinaryWriter& writer) { writer.WriteSetElement({}); }); }));
}

TEST(BinaryWriterTest, ANameWithALoneSurrogateIsRefused) {
  const char16_t lone[] = {u'a', 0xD800, 0};
  EXPECT_TRUE(ErrorOf([&] {
                Written([&](TBinaryWriter& writer) { writer.WriteShortString(lone); });
              }).endsWith(QStringLiteral("cannot be stored at offset 0")));
}

TEST(BinaryWriterTest, AByteArrayGetsItsContentWhenFlushed) {
  QByteArray bytes("old");
  TBinaryWriter writer(bytes);
  writer.WriteInteger(1);
  EXPECT_EQ("old", bytes);
  writer.Flush();
  EXPECT_EQ(QByteArray("\2\1"), bytes);
}

TEST(BinaryWriterTest, ADeviceGetsEverythingInOrder) {
  QBuffer device;
  device.open(QIODevice::WriteOnly);
  TBinaryWriter writer(device);
  const QByteArray large(100000, 'x');
  writer.WriteInteger(1);
  writer.WriteBinary(large);
  writer.WriteInteger(2);
  EXPECT_EQ(100009, writer.Position());
  writer.Flush();
  EXPECT_EQ(QByteArray("\2\1\x0A\xA0\x86\1\0", 7) + large + "\2\2", device.data());
}

TEST(BinaryWriterTest, AFullDeviceIsAWriteError) {
  TFullDevice device;
  TBinaryWriter writer(device);
  writer.WriteInteger(1);
  EXPECT_EQ("EWriteError: Stream write error at offset 0", ErrorOf([&] { writer.Flush(); }));
}

}  // namespace
}  // namespace kt
