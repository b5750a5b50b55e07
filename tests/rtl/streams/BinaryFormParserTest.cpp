#include "kt/rtl/streams/BinaryFormParser.h"
#include "support/FormTesting.h"

namespace kt {
namespace {

using namespace kt::tests;

QByteArray Hex(const char* text) { return QByteArray::fromHex(text); }

/// The events of one value, its bytes in hexadecimal with the type byte first.
QString BinaryValue(const char* hex) { return ValuePart(EventsOf(BinaryWith(Hex(hex)))); }

struct TCase {
  const char* Name;
  const char* Bytes;
  QString Expected;
};

void PrintTo(const TCase& value, std::ostream* out) { *out << value.Name; }

std::string CaseName(const ::testing::TestParamInfo<TCase>& info) { return info.param.Name; }

class BinaryFormValueTest : public ::testing::TestWithParam<TCase> {};

TEST_P(BinaryFormValueTest, ReadsTheValue) { EXPECT_EQ(GetParam().Expected, BinaryValue(GetParam().Bytes)); }

INSTANTIATE_TEST_SUITE_P(
    Values, BinaryFormValueTest,
    ::testing::Values(
        TCase{"Null", "00", "constant Null"}, TCase{"Int8", "02 80", "integer -128"},
        TCase{"Int16", "03 ff 7f", "integer 32767"}, TCase{"Int32", "04 00 00 00 80", "integer -2147483648"},
        TCase{"Int64", "13 00 00 00 00 01 00 00 00", "integer 4294967296"},
        TCase{"Extended", "05 00 00 00 00 00 00 00 c0 ff 3f", "extended 13835058055282163712p1"},
        TCase{"Single", "0f 00 00 c0 3f", "single 13835058055282163712p1"},
        TCase{"Currency", "10 39 30 00 00 00 00 00 00", "currency 12345"},
        TCase{"Date", "11 00 00 00 00 00 00 f8 3f", "date 13835058055282163712p1"},
        TCase{"Double", "15 00 00 00 00 00 00 f8 3f", "double 13835058055282163712p1"},
        TCase{"String", "06 02 61 80", QStringLiteral("string 2 a\u20ac")},
        TCase{"LString", "0c 01 00 00 00 61", "string 1 a"},
        TCase{"WString", "12 02 00 00 00 e9 00 00 d8", QStringLiteral("string 2 \u00e9") + QChar(0xD800)},
        TCase{"Utf8String", "14 02 00 00 00 c3 a9", QStringLiteral("string 1 \u00e9")},
        TCase{"Ident", "07 02 61 62", "identifier ab"}, TCase{"IdentThatIsAConstant", "07 03 6e 49 6c", "constant nil"},
        TCase{"False", "08", "constant False"}, TCase{"True", "09", "constant True"},
        TCase{"Nil", "0d", "constant nil"}, TCase{"Binary", "0a 02 00 00 00 00 ff", "binary 00FF"},
        TCase{"Set", "0b 01 61 01 62 00", "set | element a | element b | end set"},
        TCase{"List", "01 02 01 01 00 00", "list | integer 1 | list | end list | end list"},
        TCase{"EmptyCollection", "0e 00", "collection | end collection"},
        TCase{"Collection", "0e 01 01 59 02 01 00 03 2c 01 01 00 00",
              "collection | item | property Y | integer 1 | end item | item [300] | end item | end collection"}),
    CaseName);

class BinaryFormErrorTest : public ::testing::TestWithParam<TCase> {};

// The value begins at offset 11, its type byte included.
TEST_P(BinaryFormErrorTest, SaysWhatAndWhere) {
  EXPECT_EQ(GetParam().Expected, BinaryError(BinaryHead() + QByteArray("\1X", 2) + Hex(GetParam().Bytes)));
}

INSTANTIATE_TEST_SUITE_P(
    Values, BinaryFormErrorTest,
    ::testing::Values(
        TCase{"NoValue", "", "EReadError: Stream read error at offset 11 (A.X)"},
        TCase{"UnknownType", "16", "EReadError: Invalid property value at offset 11 (A.X)"},
        TCase{"CutInteger", "04 00 00", "EReadError: Stream read error at offset 12 (A.X)"},
        TCase{"HugeBinary", "0a 00 94 35 77 00", "EReadError: Stream read error at offset 16 (A.X)"},
        TCase{"LargestBinary", "0a ff ff ff ff", "EReadError: Stream read error at offset 16 (A.X)"},
        TCase{"HugeString", "0c 00 94 35 77", "EReadError: Stream read error at offset 16 (A.X)"},
        TCase{"HugeWideString", "12 ff ff ff ff 00", "EReadError: Stream read error at offset 16 (A.X)"},
        TCase{"HugeUtf8String", "14 00 94 35 77", "EReadError: Stream read error at offset 16 (A.X)"},
        TCase{"InvalidUtf8", "14 03 00 00 00 61 c3 28", "EReadError: Invalid UTF-8 text at offset 17 (A.X)"},
        TCase{"CutSet", "0b 01 61", "EReadError: Stream read error at offset 14 (A.X)"},
        TCase{"CutList", "01 08", "EReadError: Stream read error at offset 13 (A.X)"},
        TCase{"NoItem", "0e 09", "EReadError: Invalid property value at offset 12 (A.X)"},
        TCase{"IndexWithoutItem", "0e 02 01 09", "EReadError: Invalid property value at offset 14 (A.X)"},
        TCase{"IndexBeyond32Bits", "0e 13 00 00 00 00 01 00 00 00",
              "EReadError: Invalid property value at offset 12 (A.X)"},
        TCase{"InTheSecondItem", "0e 01 00 01 01 59 16", "EReadError: Invalid property value at offset 17 (A.X[1].Y)"}),
    CaseName);

TEST(BinaryFormParserTest, ReadsChildrenWithTheirFlags) {
  const QByteArray form = BinaryHead() + Hex("00"
                                             "f1 02 54 42 01 42 00 00"
                                             "f3 02 05 02 54 43 00 00 00"
                                             "f4 02 54 44 01 44 00 00"
                                             "00");
  EXPECT_EQ(
      "object A: TA | inherited B: TB | end object | inherited : TC [5] | end object | object inline D: TD | end "
      "object | "
      "end object",
      EventsOf(form));
}

TEST(BinaryFormParserTest, AnInheritedFrameCountsAsInherited) {
  EXPECT_EQ("inherited A: TA | end object", EventsOf(Hex("54504630 f5 02 54 41 01 41 00 00")));
}

TEST(BinaryFormParserTest, AnEmptyFileIsAReadError) {
  EXPECT_EQ("EReadError: Stream read error at offset 0", BinaryError({}));
}

TEST(BinaryFormParserTest, AnotherSignatureIsAnInvalidImage) {
  EXPECT_EQ("EInvalidImage: Invalid stream format at offset 0", BinaryError("TPF1...."));
}

TEST(BinaryFormParserTest, UnknownFlagsAreAnInvalidImage) {
  EXPECT_EQ("EInvalidImage: Invalid stream format at offset 4", BinaryError(Hex("54504630 f8 02 54 41 01 41 00 00")));
}

TEST(BinaryFormParserTest, ErrorsNameTheChild) {
  EXPECT_EQ("EReadError: Stream read error at offset 16 (A.B.Y)",
            BinaryError(BinaryHead() + Hex("00 01 54 01 42 01 59")));
}

TEST(BinaryFormParserTest, AnObjectWithoutANameIsShownByItsClass) {
  EXPECT_EQ("EReadError: Stream read error at offset 16 (A.TB.Y)",
            BinaryError(BinaryHead() + Hex("00 02 54 42 00 01") + "Y"));
}

TEST(BinaryFormParserTest, StopsRightBehindTheForm) {
  TIdleFormSink sink;
  TBinaryReader reader(BinaryWith(Hex("09")) + "more");
  TBinaryFormParser(reader, sink).ParseForm();
  EXPECT_EQ(14, reader.Position());
}

TEST(BinaryFormParserTest, NestingIsAllowedUpToTheLimit) {
  EXPECT_EQ("no error", BinaryError(BinaryWith(QByteArray(999, '\1') + QByteArray(999, '\0'))));
}

TEST(BinaryFormParserTest, NestingBeyondTheLimitIsAnError) {
  EXPECT_EQ("EReadError: Nesting deeper than 1000 levels at offset 1011 (A.X)",
            BinaryError(BinaryWith(QByteArray(1000, '\1') + QByteArray(1000, '\0'))));
}

TEST(BinaryFormParserTest, TenThousandObjectsInEachOtherAreOneCleanError) {
  const QByteArray form = "TPF0" + QByteArray("\1T\1A\0", 5).repeated(10000);
  EXPECT_TRUE(BinaryError(form).startsWith(
      QStringLiteral("EReadError: Nesting deeper than 1000 levels at offset 5008 (A.A.A.")));
}

TEST(BinaryFormParserTest, AHigherLimitDoesNotDeepenTheProgramsStack) {
  EXPECT_EQ("no error", BinaryError(BinaryWith(QByteArray(1000000, '\1') + QByteArray(1000000, '\0')), 2000000));
}

TEST(BinaryFormParserTest, EveryPrefixOfAFormIsOneErrorWithAPlace) {
  const QByteArray form = ToBinary(FileContent(QStringLiteral(KT_SOURCE_DIR "/examples/forms/collections.dfm")));
  const auto errorOf = [](const QByteArray& cut) { return BinaryError(cut); };
  EXPECT_EQ(QList<qsizetype>(), SilentCuts(form, errorOf, QStringLiteral(" at offset ")));
}

}  // namespace
}  // namespace kt
