#include "kt/rtl/streams/TextWriter.h"
#include "support/FormTesting.h"

namespace kt {
namespace {

using namespace kt::tests;

/// The text of a form whose only property has the value that `feed` sends.
template <typename TFeed>
QByteArray Written(TFeed feed, const TTextWriterOptions& options = {}) {
  QByteArray text;
  TByteSink sink(text);
  TTextWriter writer(sink, options);
  writer.BeginObject({{}, u"TA", u"A"});
  writer.Property(u"X");
  feed(writer);
  writer.EndObject();
  sink.Flush();
  return text;
}

QByteArray WrittenString(QStringView value, const TTextWriterOptions& options = {}) {
  return Written([&](IFormSink& sink) { sink.String(value); }, options);
}

QByteArray WrittenFloat(TFloatKind kind, Extended value) {
  return Written([&](IFormSink& sink) { sink.Float(kind, value); });
}

QString NameError(const TFormObject& object) {
  QByteArray text;
  TByteSink sink(text);
  TTextWriter writer(sink);
  return ErrorOf([&] { writer.BeginObject(object); });
}

TEST(TextWriterTest, AStringOf64UnitsStaysOnTheLine) {
  const QString value(64, u'x');
  EXPECT_EQ(FormWith("'" + value.toLatin1() + "'"), WrittenString(value));
}

TEST(TextWriterTest, ALongerStringIsCutIntoPiecesBelow) {
  const QByteArray piece(64, 'x');
  EXPECT_EQ("object A: TA\n  X = \n    '" + piece + "' +\n    'x'\nend\n", WrittenString(QString(65, u'x')));
}

TEST(TextWriterTest, PiecesCountCharactersAndNotTheirCodes) {
  const QString value = QString(63, u'x') + u'\'' + u'y';
  EXPECT_EQ("object A: TA\n  X = \n    '" + QByteArray(63, 'x') + "'#39 +\n    'y'\nend\n", WrittenString(value));
}

TEST(TextWriterTest, WhatIsNotPrintableAsciiIsANumber) {
  EXPECT_EQ(FormWith("'a'#39#10#127#233'~'"), WrittenString(u"a'\n\x7f\u00e9~"));
}

TEST(TextWriterTest, SurrogatesAreTwoNumbers) { EXPECT_EQ(FormWith("#55357#56832"), WrittenString(u"\U0001F600")); }

TEST(TextWriterTest, RawTextKeepsCharactersReadable) {
  EXPECT_EQ(FormWith("'\xC3\xA9\xF0\x9F\x98\x80'#10'x'"), WrittenString(u"\u00e9\U0001F600\nx", {leLf, true}));
}

TEST(TextWriterTest, RawTextStillNumbersWhatCannotStandThere) {
  const char16_t value[] = {0x80, 0x9F, 0x2028, 0xD800, 0};
  EXPECT_EQ(FormWith("#128#159#8232#55296"), WrittenString(value, {leLf, true}));
}

TEST(TextWriterTest, RawTextNeverCutsACharacterInTwo) {
  const QString value = QString(63, u'x') + QStringLiteral("\U0001F600y");
  EXPECT_EQ("object A: TA\n  X = \n    '" + QByteArray(63, 'x') + "\xF0\x9F\x98\x80' +\n    'y'\nend\n",
            WrittenString(value, {leLf, true}));
}

TEST(TextWriterTest, LinesCanEndInPairs) {
  EXPECT_EQ("object A: TA\r\n  X = ''\r\nend\r\n", WrittenString({}, {leCrLf, false}));
}

TEST(TextWriterTest, ShortBinaryDataStaysOnTheLine) {
  EXPECT_EQ(FormWith("{" + QByteArray(62, 'F') + "}"),
            Written([](IFormSink& sink) { sink.Binary(QByteArray(31, '\xFF')); }));
}

TEST(TextWriterTest, LongBinaryDataHas32BytesALine) {
  EXPECT_EQ("object A: TA\n  X = {\n    " + QByteArray(64, '0') + "\n    00}\nend\n",
            Written([](IFormSink& sink) { sink.Binary(QByteArray(33, '\0')); }));
}

TEST(TextWriterTest, AnExactLineOfBinaryDataEndsInTheBrace) {
  EXPECT_EQ("object A: TA\n  X = {\n    " + QByteArray(64, '0') + "}\nend\n",
            Written([](IFormSink& sink) { sink.Binary(QByteArray(32, '\0')); }));
}

TEST(TextWriterTest, ALongStringInAListGoesOneLevelDeeper) {
  const QByteArray piece(64, 'x');
  EXPECT_EQ("object A: TA\n  X = (\n    1\n    \n      '" + piece + "' +\n      'x')\nend\n",
            ToText(FormWith("(1 '" + piece + "x')")));
}

TEST(TextWriterTest, ACollectionClosesBehindItsLastItem) {
  EXPECT_EQ("object A: TA\n  X = <\n    item\n      Y = <>\n    end\n    item [2]\n    end>\nend\n",
            ToText(FormWith("<item Y = <> end item [2] end>")));
}

TEST(TextWriterTest, ObjectsAreIndentedByTwo) {
  EXPECT_EQ("inherited A: TA [1]\n  object TB\n    X = []\n  end\n  inline C: TC\n  end\n  object D:\n  end\nend\n",
            ToText("inherited A: TA [1] object TB X = [] end inline C: TC end object D:\nend end"));
}

TEST(TextWriterTest, ExtendedNumbersHave18Decimals) {
  EXPECT_EQ(FormWith("25.400000000000000000"), ToText(FormWith("25.4")));
  EXPECT_EQ(FormWith("0.000100000000000000"), ToText(FormWith("0.0001")));
}

TEST(TextWriterTest, OrAsManyDigitsAsItTakes) {
  EXPECT_EQ(FormWith("0.10000000000000000555"), WrittenFloat(fkExtended, Extended(0.1)));
  EXPECT_EQ(FormWith("1E-20"), WrittenFloat(fkExtended, 1e-20L));
}

TEST(TextWriterTest, AWholeNumberBeyondTheFixedFormKeepsItsPoint) {
  EXPECT_EQ(FormWith("18446744073709551615.0"), WrittenFloat(fkExtended, 18446744073709551615.0L));
}

TEST(TextWriterTest, OtherKindsAreShortAndEndInTheirLetter) {
  EXPECT_EQ(FormWith("0.1s"), WrittenFloat(fkSingle, 0.1f));
  EXPECT_EQ(FormWith("0.1w"), WrittenFloat(fkDouble, 0.1));
  EXPECT_EQ(FormWith("2d"), WrittenFloat(fkDate, 2));
}

TEST(TextWriterTest, MoneyIsStatedInTenThousandths) {
  EXPECT_EQ(FormWith("-12345c"), Written([](IFormSink& sink) { sink.Currency(-12345); }));
}

TEST(TextWriterTest, RefusesAClassNameThatTextCannotHold) {
  EXPECT_EQ("EWriteError: The name 'T A' cannot be written as text (A)", NameError({{}, u"T A", u"A"}));
}

TEST(TextWriterTest, RefusesAnObjectNameThatTextCannotHold) {
  EXPECT_EQ("EWriteError: The name '1?' cannot be written as text (1?)", NameError({{}, u"TA", u"1\n"}));
}

TEST(TextWriterTest, RefusesAPropertyNamedLikeAKeyword) {
  EXPECT_EQ("EWriteError: The name 'End' cannot be written as text (A.End)", ErrorOf([] {
              Written([](IFormSink& sink) {
                sink.Integer(1);
                sink.Property(u"End");
              });
            }));
}

TEST(TextWriterTest, AnItemMayHaveAPropertyNamedObject) {
  EXPECT_EQ("object A: TA\n  X = <\n    item\n      object = 1\n    end>\nend\n",
            ToText(FormWith("<item object=1 end>")));
}

TEST(TextWriterTest, RefusesAnIdentifierThatTextCannotHold) {
  EXPECT_EQ("EWriteError: The name 'a..b' cannot be written as text (A.X)",
            ErrorOf([] { Written([](IFormSink& sink) { sink.Identifier(u"a..b"); }); }));
}

TEST(TextWriterTest, RefusesASetElementThatTextCannotHold) {
  EXPECT_EQ("EWriteError: The name '01' cannot be written as text (A.X)", ErrorOf([] {
              Written([](IFormSink& sink) {
                sink.BeginSet();
                sink.SetElement(u"1");
                sink.SetElement(u"01");
              });
            }));
}

TEST(TextWriterTest, ErrorsInItemsNameTheItem) {
  EXPECT_EQ("EWriteError: The name 'end' cannot be written as text (A.X[1].end)", ErrorOf([] {
              Written([](IFormSink& sink) {
                sink.BeginCollection();
                sink.BeginItem({});
                sink.EndItem();
                sink.BeginItem({});
                sink.Property(u"end");
              });
            }));
}

TEST(TextWriterTest, TheIndentationStopsGrowingAt60Levels) {
  const QByteArray text = Written([](IFormSink& sink) {
    for (int i = 0; i < 100; ++i) sink.BeginList();
    for (int i = 0; i < 100; ++i) sink.EndList();
  });
  const QByteArray deepest = '\n' + QByteArray(120, ' ') + "(\n" + QByteArray(120, ' ') + '(';
  EXPECT_TRUE(text.contains(deepest));
  EXPECT_FALSE(text.contains(QByteArray(121, ' ')));
}

TEST(TextWriterTest, TextBelow60LevelsParsesToTheSameEvents) {
  const QByteArray text = Written([](IFormSink& sink) {
    for (int i = 0; i < 100; ++i) sink.BeginList();
    sink.Integer(7);
    for (int i = 0; i < 100; ++i) sink.EndList();
  });
  EXPECT_EQ(EventsOf(FormWith(QByteArray(100, '(') + '7' + QByteArray(100, ')'))), EventsOf(text));
}

}  // namespace
}  // namespace kt
