#include "kt/rtl/streams/TextParser.h"
#include "support/FormTesting.h"

#include <QStringConverter>

namespace kt {
namespace {

using namespace kt::tests;

struct TCase {
  const char* Name;
  QByteArray Text;
  QString Expected;
};

void PrintTo(const TCase& value, std::ostream* out) { *out << value.Name; }

std::string CaseName(const ::testing::TestParamInfo<TCase>& info) { return info.param.Name; }

class TextParserValueTest : public ::testing::TestWithParam<TCase> {};

TEST_P(TextParserValueTest, ReadsTheValue) { EXPECT_EQ(GetParam().Expected, ValueEvents(GetParam().Text)); }

INSTANTIATE_TEST_SUITE_P(
    Numbers, TextParserValueTest,
    ::testing::Values(TCase{"Zero", "0", "integer 0"}, TCase{"Decimal", "1024", "integer 1024"},
                      TCase{"Negative", "-7", "integer -7"}, TCase{"Hexadecimal", "$Ff", "integer 255"},
                      TCase{"HexadecimalBeyond32Bits", "$1FFFFFFFF", "integer 8589934591"},
                      TCase{"HexadecimalSign", "$FFFFFFFFFFFFFFFF", "integer -1"},
                      TCase{"Beyond32Bits", "4294967296", "integer 4294967296"},
                      TCase{"Largest", "9223372036854775807", "integer 9223372036854775807"},
                      TCase{"Smallest", "-9223372036854775808", "integer -9223372036854775808"},
                      TCase{"Currency", "12345c", "currency 12345"}, TCase{"CurrencyCapital", "-5C", "currency -5"},
                      TCase{"CurrencyFractionIsRounded", "12.6c", "currency 13"},
                      TCase{"CurrencyExact", "9223372036854775807c", "currency 9223372036854775807"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(Strings, TextParserValueTest,
                         ::testing::Values(TCase{"Empty", "''", "string 0 "}, TCase{"Plain", "'abc'", "string 3 abc"},
                                           TCase{"DoubledQuote", "'it''s'", "string 4 it's"},
                                           TCase{"OnlyAQuote", "''''", "string 1 '"},
                                           TCase{"Codes", "#65#$42'c'", "string 3 ABc"},
                                           TCase{"CodeInTheMiddle", "'a'#66'c'", "string 3 aBc"},
                                           TCase{"Plus", "'a' +\n    'b'", "string 2 ab"},
                                           TCase{"PlusOnTheNextLine", "'a'\n + 'b'", "string 2 ab"},
                                           TCase{"PlusBeforeACode", "'a' + #98", "string 2 ab"},
                                           TCase{"RawUtf8", "'\xC3\xA9'", QStringLiteral("string 1 \u00e9")},
                                           TCase{"RawUtf8AfterACode", "#18'\xEF\xBB\xBF' + '\xEF\xBB\xBF'",
                                                 QStringLiteral("string 3 \x12\ufeff\ufeff")},
                                           TCase{"CodeBeyondLatin", "#8364", QStringLiteral("string 1 \u20ac")},
                                           TCase{"CodeBeyond16Bits", "#128512", QStringLiteral("string 2 \U0001F600")}),
                         CaseName);

INSTANTIATE_TEST_SUITE_P(Words, TextParserValueTest,
                         ::testing::Values(TCase{"Identifier", "clRed", "identifier clRed"},
                                           TCase{"Dotted", "Data.Query1", "identifier Data.Query1"},
                                           TCase{"True", "True", "constant True"},
                                           TCase{"FalseInAnyCase", "FALSE", "constant False"},
                                           TCase{"Nil", "nil", "constant nil"}, TCase{"Null", "Null", "constant Null"},
                                           TCase{"Underscore", "DEFAULT_CHARSET", "identifier DEFAULT_CHARSET"},
                                           TCase{"Keyword", "object", "identifier object"},
                                           TCase{"Letters",
                                                 "Gr\xC3\xB6\xC3\x9F"
                                                 "e2",
                                                 QStringLiteral("identifier Gr\u00f6\u00dfe2")}),
                         CaseName);

INSTANTIATE_TEST_SUITE_P(
    Containers, TextParserValueTest,
    ::testing::Values(
        TCase{"EmptySet", "[]", "set | end set"}, TCase{"Set", "[a, b]", "set | element a | element b | end set"},
        TCase{"SetOverLines", "[\n a,\n b\n ]", "set | element a | element b | end set"},
        TCase{"SetOfNumbers", "[1, $A]", "set | element 1 | element 10 | end set"},
        TCase{"SetWithALastComma", "[a,]", "set | element a | end set"}, TCase{"EmptyList", "()", "list | end list"},
        TCase{"ListOfAnything", "(1 'a' 'b' x nil\n2c)",
              "list | integer 1 | string 1 a | string 1 b | identifier x | constant nil | currency 2 | end list"},
        TCase{"NestedLists", "((1) ())", "list | list | integer 1 | end list | list | end list | end list"},
        TCase{"ListOfContainers", "([a] {00} <>)",
              "list | set | element a | end set | binary 00 | collection | end collection | end list"},
        TCase{"EmptyBinary", "{}", "binary "}, TCase{"Binary", "{0aFF}", "binary 0AFF"},
        TCase{"BinaryWithSpace", "{ 00\r\n\t01 }", "binary 0001"},
        TCase{"EmptyCollection", "<>", "collection | end collection"},
        TCase{"Collection", "<item\nA = 1\nend item [3] end>",
              "collection | item | property A | integer 1 | end item | item [3] | end item | end collection"},
        TCase{"NestedCollection", "<item B = <item end> end>",
              "collection | item | property B | collection | item | end item | end collection | end item | end "
              "collection"},
        TCase{"ItemPropertyNamedObject", "<item object = 1 end>",
              "collection | item | property object | integer 1 | end item | end collection"}),
    CaseName);

class TextParserFloatTest : public ::testing::TestWithParam<TCase> {};

// Written and read again: the text states the exact value and kind.
TEST_P(TextParserFloatTest, ReadsTheNumber) {
  EXPECT_EQ("object A: TA\n  X = " + GetParam().Expected.toLatin1() + "\nend\n", ToText(FormWith(GetParam().Text)));
}

INSTANTIATE_TEST_SUITE_P(
    Floats, TextParserFloatTest,
    ::testing::Values(TCase{"Point", "1.5", "1.500000000000000000"}, TCase{"Exponent", "15e-1", "1.500000000000000000"},
                      TCase{"BigExponent", "1E20", "1E20"}, TCase{"PlusExponent", "1.25e+2", "125.000000000000000000"},
                      TCase{"NothingBehindThePoint", "3.", "3.000000000000000000"},
                      TCase{"NegativeZero", "-0.0", "-0.000000000000000000"}, TCase{"Single", "0.1s", "0.1s"},
                      TCase{"SingleOfAnInteger", "5S", "5s"}, TCase{"Date", "38718.75d", "38718.75d"},
                      TCase{"Double", "0.1W", "0.1w"}, TCase{"Infinite", "+Inf", "+Inf"},
                      TCase{"MinusInfinite", "-infs", "-Infs"}, TCase{"NotANumber", "+NaNd", "+NaNd"},
                      TCase{"TooSmallIsZero", "1e-9999w", "0w"}),
    CaseName);

class TextParserErrorTest : public ::testing::TestWithParam<TCase> {};

TEST_P(TextParserErrorTest, SaysWhatAndWhere) {
  EXPECT_EQ(QStringLiteral("EParserError: ") + GetParam().Expected, TextError(GetParam().Text));
}

INSTANTIATE_TEST_SUITE_P(
    Structure, TextParserErrorTest,
    ::testing::Values(
        TCase{"NoText", "", "OBJECT expected on line 1, column 1"},
        TCase{"SomethingElse", "  hello", "OBJECT expected on line 1, column 3"},
        TCase{"NoName", "object 12", "Identifier expected on line 1, column 8"},
        TCase{"NoClass", "object A: 12", "Identifier expected on line 1, column 11"},
        TCase{"NoEnd", "object A: TA", "Identifier expected on line 1, column 13"},
        TCase{"NoEqualsSign", "object A: TA\n  Left 5\nend", "'=' expected on line 2, column 8"},
        TCase{"NoPropertyBehindTheDot", "object A: TA\n  Font. = 5\nend", "Identifier expected on line 2, column 9"},
        TCase{"NoValue", "object A: TA\n  Left =\n", "Invalid property value on line 3, column 1"},
        TCase{"StrayBracket", "object A: TA\n  Left = ]\n", "Invalid property value on line 2, column 10"},
        TCase{"PropertyBehindAChild", "object A: TA\n  object B: TB\n  end\n  Left = 5\nend",
              "END expected on line 4, column 3"},
        TCase{"TextBehindTheEnd", "object A: TA\nend\nobject B: TB\nend",
              "Unexpected data after the end of the form on line 3, column 1"},
        TCase{"BadPosition", "object A: TA [x]\nend", "Number expected on line 1, column 15"},
        TCase{"HugePosition", "object A: TA [4294967296]\nend",
              "'4294967296' is not a valid integer value on line 1, column 15"},
        TCase{"OpenPosition", "object A: TA [1\nend", "']' expected on line 2, column 1"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    Values, TextParserErrorTest,
    ::testing::Values(
        TCase{"OpenString", FormWith("'abc"), "Invalid string constant on line 2, column 7"},
        TCase{"StringToTheEnd", "object A: TA X = 'abc", "Invalid string constant on line 1, column 18"},
        TCase{"NothingBehindThePlus", FormWith("'abc' +"), "String expected on line 3, column 1"},
        TCase{"NoCode", FormWith("'a'#"), "Invalid string constant on line 2, column 10"},
        TCase{"NoHexCode", FormWith("#$x"), "Invalid string constant on line 2, column 7"},
        TCase{"CodeTooLarge", FormWith("#1114112"), "Invalid string constant on line 2, column 7"},
        TCase{"HugeCode", FormWith("#99999999999999999999"), "Invalid string constant on line 2, column 7"},
        TCase{"OnlyAMinus", FormWith("-"), "Number expected on line 2, column 8"},
        TCase{"MinusWord", FormWith("-x"), "Number expected on line 2, column 7"},
        TCase{"SignedWord", FormWith("+infinity"), "Number expected on line 2, column 7"},
        TCase{"SignedWordWithAWrongLetter", FormWith("+infx"), "Number expected on line 2, column 7"},
        TCase{"NoHexDigit", FormWith("$G"), "Number expected on line 2, column 8"},
        TCase{"NoExponent", FormWith("1.5e+"), "Number expected on line 2, column 12"},
        TCase{"IntegerTooLarge", FormWith("9223372036854775808"),
              "'9223372036854775808' is not a valid integer value on line 2, column 7"},
        TCase{"HexTooLarge", FormWith("$10000000000000000"),
              "'$10000000000000000' is not a valid integer value on line 2, column 7"},
        TCase{"FloatTooLarge", FormWith("1e9999"), "'1e9999' is not a valid floating point value on line 2, column 7"},
        TCase{"SingleTooLarge", FormWith("1e40s"), "'1e40s' is not a valid floating point value on line 2, column 7"},
        TCase{"CurrencyTooLarge", FormWith("1e30c"), "'1e30c' is not a valid currency value on line 2, column 7"},
        TCase{"InfiniteCurrency", FormWith("+Infc"), "'+Infc' is not a valid currency value on line 2, column 7"},
        TCase{"SetWithoutComma", FormWith("[a b]"), "',' expected on line 2, column 10"},
        TCase{"SetOfStrings", FormWith("['a']"), "Identifier expected on line 2, column 8"},
        TCase{"SetOfHugeNumbers", FormWith("[99999999999999999999]"),
              "'99999999999999999999' is not a valid integer value on line 2, column 8"},
        TCase{"OpenSet", "object A: TA X = [a", "',' expected on line 1, column 20"},
        TCase{"OpenList", "object A: TA X = (a", "Invalid property value on line 1, column 20"},
        TCase{"OddBinary", FormWith("{012}"), "Invalid binary value on line 2, column 11"},
        TCase{"NoHexInBinary", FormWith("{0G}"), "Invalid binary value on line 2, column 9"},
        TCase{"OpenBinary", "object A: TA X = {00", "Invalid binary value on line 1, column 21"},
        TCase{"NoItem", FormWith("<thing end>"), "ITEM expected on line 2, column 8"},
        TCase{"OpenCollection", "object A: TA X = <", "ITEM expected on line 1, column 19"},
        TCase{"OpenItem", "object A: TA X = <item", "Identifier expected on line 1, column 23"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    Encodings, TextParserErrorTest,
    ::testing::Values(
        TCase{"Nul", QByteArray("object A: TA\n  X\0\nend", 21), "Invalid character on line 2, column 4"},
        TCase{"InvalidUtf8BehindAMark", "\xEF\xBB\xBFobject A: TA\n X = '\xC3('\nend",
              "Invalid UTF-8 text on line 2, column 7"},
        TCase{"OddUtf16", QByteArray("\xFF\xFEo\0b", 5), "Invalid UTF-16 text on line 1, column 2"},
        TCase{"LoneSurrogate", QByteArray("\xFE\xFF\0\n\xD8\0\0x", 8), "Invalid UTF-16 text on line 2, column 1"},
        TCase{"SecondOfAPairFirst", QByteArray("\xFF\xFEo\0\x00\xDC", 6), "Invalid UTF-16 text on line 1, column 2"},
        TCase{"FirstOfAPairAtTheEnd", QByteArray("\xFF\xFEo\0\x3D\xD8", 6), "Invalid UTF-16 text on line 1, column 2"},
        TCase{"ColumnsAreCharacters", "object A: TA X = '\xC3\xA9\xC3\xA9' 5",
              "Identifier expected on line 1, column 23"},
        TCase{"CarriageReturnsCount", "object A: TA\r\r  5", "Identifier expected on line 3, column 3"},
        TCase{"PairsCountOnce", "object A: TA\r\n\r\n  5", "Identifier expected on line 3, column 3"}),
    CaseName);

TEST(TextParserTest, ReadsHeadersOfEveryKind) {
  EXPECT_EQ("inherited A: TA [2] | object inline B: TB | end object | object : TC | end object | end object",
            EventsOf("INHERITED A : TA [2]\ninline B:TB end Object TC\nend END"));
}

TEST(TextParserTest, AColonWithNothingBehindItMeansNoClass) {
  EXPECT_EQ("object A:  | property Left | integer 1 | end object", EventsOf("object A:\n  Left = 1\nend"));
}

TEST(TextParserTest, AnObjectMayLackBothNames) { EXPECT_EQ("object :  | end object", EventsOf("object :\nend")); }

TEST(TextParserTest, AnObjectWithoutAClassMayHaveAPosition) {
  EXPECT_EQ("object A:  [1] | end object", EventsOf("object A: [1]\nend"));
}

TEST(TextParserTest, PropertyPathsMayHaveBlanksAroundTheirDots) {
  EXPECT_EQ("object A: TA | property Font.Style.X | integer 1 | end object",
            EventsOf("object A: TA Font . Style.X = 1 end"));
}

TEST(TextParserTest, EveryKindOfLineEndReadsTheSame) {
  const QByteArray text = "object A: TA\n  X = 'a' +\n    'b'\nend";
  const QString expected = EventsOf(text);
  EXPECT_EQ(expected, EventsOf(QByteArray(text).replace("\n", "\r\n")));
  EXPECT_EQ(expected, EventsOf(QByteArray(text).replace("\n", "\r")));
}

TEST(TextParserTest, TextThatIsNoUtf8IsReadInTheOldEncoding) {
  EXPECT_EQ(QStringLiteral("string 3 \u20ac\u0081\u00e9"), ValueEvents("'\x80\x81\xE9'"));
}

TEST(TextParserTest, TheOldEncodingCanBeLatin1) {
  TFormOptions options;
  options.Encoding = eeLatin1;
  EXPECT_EQ(QStringLiteral("string 1 \u0080"), ValuePart(EventsOf(FormWith("'\x80'"), options)));
}

TEST(TextParserTest, TheOldEncodingCanBeForbidden) {
  EXPECT_EQ("EParserError: Invalid UTF-8 text on line 2, column 8", TextError(FormWith("'\x80'"), {eeUtf8}));
}

TEST(TextParserTest, AUtf8MarkIsNoPartOfTheText) {
  EXPECT_EQ("object A: TA | end object", EventsOf("\xEF\xBB\xBFobject A: TA end"));
}

TEST(TextParserTest, Utf16IsReadInBothOrders) {
  const QByteArray little("\xFF\xFEo\0b\0j\0e\0c\0t\0 \0\xE9\0 \0e\0n\0d\0", 26);
  const QByteArray big("\xFE\xFF\0o\0b\0j\0e\0c\0t\0 \0\xE9\0 \0e\0n\0d", 26);
  EXPECT_EQ(QStringLiteral("object : \u00e9 | end object"), EventsOf(little));
  EXPECT_EQ(QStringLiteral("object : \u00e9 | end object"), EventsOf(big));
}

TEST(TextParserTest, Utf16MayHavePairs) {
  QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
  const QByteArray form = encoder.encode(QString::fromUtf8(FormWith("'\xF0\x9F\x98\x80'")));
  EXPECT_EQ(QStringLiteral("string 2 \U0001F600"), ValuePart(EventsOf(form)));
}

TEST(TextParserTest, NamesMayHaveLettersOfEveryLength) {
  const QByteArray text("object \xE4\xB8\xAD\xF0\xA0\x80\x80: T\xC3\xA9\xE4\xB8\xAD\nend\n");
  EXPECT_EQ(text, ToText(ToBinary(text)));
}

TEST(TextParserTest, AStringMayBeVeryLong) {
  const QByteArray letters(100000, 'x');
  EXPECT_EQ(QStringLiteral("string 100000 ") + QString::fromLatin1(letters), ValueEvents("'" + letters + "'"));
}

TEST(TextParserTest, NestingIsAllowedUpToTheLimit) {
  const QByteArray lists = QByteArray(999, '(') + QByteArray(999, ')');
  EXPECT_EQ("no error", TextError(FormWith(lists)));
}

TEST(TextParserTest, NestingBeyondTheLimitIsAnError) {
  const QByteArray lists = QByteArray(1000, '(') + QByteArray(1000, ')');
  EXPECT_EQ("EParserError: Nesting deeper than 1000 levels on line 2, column 1006", TextError(FormWith(lists)));
}

TEST(TextParserTest, TenThousandLevelsAreOneCleanError) {
  EXPECT_EQ("EParserError: Nesting deeper than 1000 levels on line 1001, column 1",
            TextError(QByteArray("object A: TA\n").repeated(10000)));
}

TEST(TextParserTest, ItemsCountAsLevelsToo) {
  EXPECT_EQ("EParserError: Nesting deeper than 3 levels on line 2, column 17",
            TextError(FormWith("<item Y = <item end> end>"), {eeWindows1252, 3}));
}

TEST(TextParserTest, AHigherLimitDoesNotDeepenTheProgramsStack) {
  const QByteArray lists = QByteArray(1000000, '(') + QByteArray(1000000, ')');
  EXPECT_EQ("no error", TextError(FormWith(lists), {eeWindows1252, 2000000}));
}

TEST(TextParserTest, EveryPrefixOfAFormIsOneErrorWithAPlace) {
  const QByteArray text = FileContent(QStringLiteral(KT_SOURCE_DIR "/examples/forms/collections.dfm")).trimmed();
  const auto errorOf = [](const QByteArray& cut) { return TextError(cut); };
  EXPECT_EQ(QList<qsizetype>(), SilentCuts(text, errorOf, QStringLiteral(" on line ")));
}

QString EventsOfObjects(const QByteArray& text) {
  TFormEventLog log;
  TTextParser(text, log).ParseObjects();
  return OneLine(log.Text());
}

TEST(TextParserTest, SeveralObjectsStandOneBehindTheOther) {
  const QString a = EventsOf("object A: TA X=1 end");
  const QString b = EventsOf("object B: TB\nend");
  EXPECT_EQ(a, EventsOfObjects("object A: TA X=1 end"));
  EXPECT_EQ(a + QStringLiteral(" | ") + b, EventsOfObjects("object A: TA X=1 end object B: TB\nend\n"));
}

TEST(TextParserTest, BehindSeveralObjectsNothingElseStands) {
  const auto errorOf = [](const QByteArray& text) { return ErrorOf([&text] { EventsOfObjects(text); }); };
  EXPECT_EQ("EParserError: OBJECT expected on line 2, column 1", errorOf("object A: TA X=1 end\nX=1"));
  EXPECT_EQ("EParserError: OBJECT expected on line 1, column 1", errorOf(""));
}

}  // namespace
}  // namespace kt
