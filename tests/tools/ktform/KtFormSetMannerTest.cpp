// What an edit leaves of the file as it was: everything but the value.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/FormTextEdit.h"
#include "tools/ktform/KtFormFixture.h"

namespace {

using ktform::tests::KtFormTest;
using ktform::tests::TEdit;

constexpr char kUtf8Mark[] = "\xEF\xBB\xBF";

class KtFormSetMannerTest : public KtFormTest {
 protected:
  /// The file that `content` becomes.
  QByteArray Set(const QByteArray& content, const QStringList& assignments) {
    Write("a.dfm", content);
    EXPECT_EQ("", Run(QStringList{"set", "a.dfm", "b.dfm"} + assignments).Errors);
    return Content("b.dfm");
  }
};

QByteArray Utf16(QString text, bool bigEndian) {
  QByteArray bytes(bigEndian ? "\xFE\xFF" : "\xFF\xFE");
  for (const QChar c : text) {
    bytes.append(char(bigEndian ? c.row() : c.cell()));
    bytes.append(char(bigEndian ? c.cell() : c.row()));
  }
  return bytes;
}

QByteArray WithLineEnds(QByteArray text, const char* lineEnd) { return text.replace("\n", lineEnd); }

class KtFormSetLineEndTest : public KtFormSetMannerTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(KtFormSetLineEndTest, LinesEndAsBefore) {
  EXPECT_EQ(WithLineEnds("object A: TA\n  X = 2\n  Y = 'y'\nend\n", GetParam()),
            Set(WithLineEnds("object A: TA\n  X = 1\n  Y = 'y'\nend\n", GetParam()), {"X=2"}));
}

TEST_P(KtFormSetLineEndTest, NewLinesEndLikeTheOthers) {
  const QByteArray piece(64, 'x');
  EXPECT_EQ(WithLineEnds("object A: TA\n  X = \n    '" + piece + "' +\n    'x'\n  Y = 'y'\nend", GetParam()),
            Set(WithLineEnds("object A: TA\n  X = ''\n  Y = 'y'\nend", GetParam()),
                {"X=" + QString::fromLatin1(piece) + "x"}));
}

INSTANTIATE_TEST_SUITE_P(Ends, KtFormSetLineEndTest, ::testing::Values("\n", "\r\n", "\r"));

TEST_F(KtFormSetMannerTest, WhereLineEndsAreMixedNewLinesEndLikeMost) {
  const QByteArray piece(64, 'x');
  EXPECT_EQ("object A: TA\r\n  X = \r\n    '" + piece + "' +\r\n    'x'\n  Y = 1\r\nend\r\n",
            Set("object A: TA\r\n  X = ''\n  Y = 1\r\nend\r\n", {"X=" + QString::fromLatin1(piece) + "x"}));
}

TEST_F(KtFormSetMannerTest, AMissingFinalLineEndStaysMissing) {
  EXPECT_EQ("object A: TA\n  X = 2\nend", Set("object A: TA\n  X = 1\nend", {"X=2"}));
}

TEST_F(KtFormSetMannerTest, AByteOrderMarkStays) {
  EXPECT_EQ(kUtf8Mark + QByteArray("object A: TA\n  X = 2\nend\n"),
            Set(kUtf8Mark + QByteArray("object A: TA\n  X = 1\nend\n"), {"X=2"}));
}

TEST_F(KtFormSetMannerTest, Utf16StaysUtf16InItsByteOrder) {
  const QString before = QStringLiteral("object A: TA\r\n  X = 'a'\r\n  Y = '\u0436'\r\nend\r\n");
  const QString after = QStringLiteral("object A: TA\r\n  X = '\u00E9'\r\n  Y = '\u0436'\r\nend\r\n");
  EXPECT_EQ(Utf16(after, false), Set(Utf16(before, false), {QStringLiteral("X=\u00E9")}));
  EXPECT_EQ(Utf16(after, true), Set(Utf16(before, true), {QStringLiteral("X=\u00E9")}));
}

TEST_F(KtFormSetMannerTest, WhereCharactersStandAsTheyAreNewOnesDoToo) {
  EXPECT_EQ("object A: TA\n  X = '\xC3\xA9'\n  Y = '\xD0\xB6'\nend\n",
            Set("object A: TA\n  X = 'a'\n  Y = '\xD0\xB6'\nend\n", {QStringLiteral("X=\u00E9")}));
}

TEST_F(KtFormSetMannerTest, WhereCharactersAreNumbersNewOnesAreToo) {
  EXPECT_EQ("object A: TA\n  X = #233\n  Y = 'b'#1078\nend\n",
            Set("object A: TA\n  X = 'a'\n  Y = 'b'#1078\nend\n", {QStringLiteral("X=\u00E9")}));
}

TEST_F(KtFormSetMannerTest, NumbersDecideAlsoInAMarkedFile) {
  EXPECT_EQ(kUtf8Mark + QByteArray("object A: TA\n  X = #233\n  Y = #$436\nend\n"),
            Set(kUtf8Mark + QByteArray("object A: TA\n  X = 'a'\n  Y = #$436\nend\n"), {QStringLiteral("X=\u00E9")}));
}

TEST_F(KtFormSetMannerTest, WithoutAnExampleAMarkedFileTakesCharactersAsTheyAre) {
  EXPECT_EQ(kUtf8Mark + QByteArray("object A: TA\n  X = '\xC3\xA9'\nend\n"),
            Set(kUtf8Mark + QByteArray("object A: TA\n  X = 'a'\nend\n"), {QStringLiteral("X=\u00E9")}));
}

TEST_F(KtFormSetMannerTest, WithoutAnExampleAFileWithSuchNamesTakesCharactersAsTheyAre) {
  EXPECT_EQ("object \xD0\xB6: TA\n  X = '\xC3\xA9'\nend\n",
            Set("object \xD0\xB6: TA\n  X = 'a'\nend\n", {QStringLiteral("X=\u00E9")}));
}

TEST_F(KtFormSetMannerTest, AnOld8BitFileStaysOne) {
  EXPECT_EQ("object A: TA\n  X = '\xF6\x80'\n  Y = '\x93\x81\xE9'\nend\n",
            Set("object A: TA\n  X = 'a'\n  Y = '\x93\x81\xE9'\nend\n", {QStringLiteral("X=\u00F6\u20AC")}));
}

TEST_F(KtFormSetMannerTest, ACharacterThatAnOld8BitFileLacksBecomesANumber) {
  EXPECT_EQ("object A: TA\n  X = 'a'#1078#233\n  Y = '\xE9'\nend\n",
            Set("object A: TA\n  X = 'a'\n  Y = '\xE9'\nend\n", {QStringLiteral("X=a\u0436\u00E9")}));
}

/// The names that a user can give are ASCII, but a class may publish others.
TEST_F(KtFormSetMannerTest, AnOld8BitFileCannotTakeANameThatItLacks) {
  const QByteArray original("object A: TA\n  X = red\n  Y = '\xE9'\nend\n");
  QByteArray before;
  kt::ObjectTextToBinary(original, before);
  const QByteArray after = QByteArray(before).replace("\3red", "\2\xD0\xB6");
  EXPECT_EQ(QStringLiteral("the encoding of the file lacks a character of a name"),
            kt::tests::MessageOf<kt::EWriteError>([&] { kt::EditFormText(original, before, after); }));
}

/// As no program would write it.
constexpr char kByHand[] = R"(OBJECT A : TA [3]

	x=$0a   Y = 1.50
  Z = 'a' + 'b' +
   'c'   Ratio=1E3
  Set=[ a,b ]  List = ( 1  (2 3)
   'x' )
  Items = < item X = 1 END
    item [1]
      object = { 00 ff }
  end  >
  Font . Size = 8
    Inherited B:
    B=TRUE
    end
  object : TC q = nil END
end
)";

class KtFormSetByHandTest : public KtFormSetMannerTest, public ::testing::WithParamInterface<TEdit> {};

TEST_P(KtFormSetByHandTest, WhatWasWrittenByHandStaysButForTheValue) {
  EXPECT_EQ(QByteArray(kByHand).replace(GetParam().Old, GetParam().New),
            Set(kByHand, {QString::fromUtf8(GetParam().Assignment)}));
}

INSTANTIATE_TEST_SUITE_P(
    Values, KtFormSetByHandTest,
    ::testing::Values(TEdit{"X=10", "", ""}, TEdit{"X=11", "$0a", "11"}, TEdit{"Y=2", "1.50", "2.000000000000000000"},
                      TEdit{"Z=abc", "", ""}, TEdit{"Z=d", "'a' + 'b' +\n   'c'", "'d'"},
                      TEdit{"Ratio=1", "1E3", "1.000000000000000000"}, TEdit{"Set=a,c", "[ a,b ]", "[a, c]"},
                      TEdit{"Font.Size=9", "Size = 8", "Size = 9"}, TEdit{"B.B=False", "TRUE", "False"}));

TEST_F(KtFormSetMannerTest, AValueThatGetsShortComesBackToItsLine) {
  EXPECT_EQ("object A: TA\n  X = 'b'\n  Y = 1\nend\n",
            Set("object A: TA\n  X = \n    'a' +\n    'b'\n  Y = 1\nend\n", {"X=b"}));
}

TEST_F(KtFormSetMannerTest, OfSeveralPropertiesOfOneNameTheFirstIsSet) {
  EXPECT_EQ("object A: TA\n  X = 9\n  X = 2\n  X = 3\nend\n",
            Set("object A: TA\n  X = 1\n  X = 2\n  X = 3\nend\n", {"X=9"}));
}

TEST_F(KtFormSetMannerTest, ObjectsWithoutNamesAreToldApart) {
  EXPECT_EQ(
      "object A: TA\n  object TB\n    X = 1\n  end\n  object TB\n    X = 1\n    object C: TC\n      X=2\n    end\n"
      "  end\nend\n",
      Set("object A: TA\n  object TB\n    X = 1\n  end\n  object TB\n    X = 1\n    object C: TC\n      X=1\n"
          "    end\n  end\nend\n",
          {"C.X=2"}));
}

TEST_F(KtFormSetMannerTest, APropertyBehindACollectionIsNoneOfItsLastItem) {
  EXPECT_EQ("object A: TA\n  Items = <\n    item\n      X = 1\n    end>\n  X = 3\nend\n",
            Set("object A: TA\n  Items = <\n    item\n      X = 1\n    end>\n  X = 2\nend\n", {"X=3"}));
}

}  // namespace
