// What bytes beyond ASCII mean where a file does not say.
#include "tools/ktform/KtFormFixture.h"

namespace {

using ktform::tests::KtFormTest;
using ktform::tests::TRun;

/// Byte 128 is the euro sign in one encoding and a control character in another.
constexpr char kEightBit[] = "object A: TA\n  X = '\x80\xE9'\nend\n";
constexpr char kAsWindows[] = "object A: TA\n  X = #8364#233\nend\n";
constexpr char kAsLatin1[] = "object A: TA\n  X = #128#233\nend\n";
/// The same as a string of the 8-bit type.
const QByteArray kEightBitBinary("TPF0\2TA\1A\1X\6\2\x80\xE9\0\0", 17);

class KtFormEncodingTest : public KtFormTest {
 protected:
  KtFormEncodingTest() {
    Write("a.dfm", kEightBit);
    Write("a.bin", kEightBitBinary);
  }

  QByteArray ToText(const QStringList& arguments) {
    const TRun run = Run(QStringList{"to-text"} + arguments + QStringList{"b.dfm"});
    return run.Status == 0 ? Content("b.dfm") : run.Errors;
  }
};

TEST_F(KtFormEncodingTest, WithoutAWordItIsWindows1252) {
  EXPECT_EQ(kAsWindows, ToText({"a.dfm"}));
  EXPECT_EQ(kAsWindows, ToText({"a.bin"}));
}

TEST_F(KtFormEncodingTest, ToTextTakesTheNameOfAnother) {
  EXPECT_EQ(kAsLatin1, ToText({"--encoding", "latin1", "a.dfm"}));
  EXPECT_EQ(kAsLatin1, ToText({"--encoding=latin1", "a.bin"}));
}

TEST_F(KtFormEncodingTest, NamesAreTakenInAnyCase) { EXPECT_EQ(kAsLatin1, ToText({"--encoding=Latin1", "a.dfm"})); }

TEST_F(KtFormEncodingTest, OfSeveralNamesTheLastCounts) {
  EXPECT_EQ(kAsWindows, ToText({"--encoding=latin1", "a.dfm", "--encoding", "windows-1252"}));
}

TEST_F(KtFormEncodingTest, UnderUtf8SuchBytesAreAnError) {
  EXPECT_EQ("a.dfm: error: Invalid UTF-8 text on line 2, column 8\n", ToText({"--encoding=utf-8", "a.dfm"}));
}

TEST_F(KtFormEncodingTest, ValidUtf8IsUtf8UnderAnyName) {
  Write("a.dfm", "object A: TA\n  X = '\xC3\xA9'\nend\n");
  EXPECT_EQ("object A: TA\n  X = #233\nend\n", ToText({"--encoding=latin1", "a.dfm"}));
}

TEST_F(KtFormEncodingTest, ToBinaryTakesIt) {
  EXPECT_EQ(0, Run({"to-binary", "--encoding=latin1", "a.dfm", "b.bin"}).Status);
  EXPECT_EQ(kAsLatin1, ToText({"b.bin"}));
}

TEST_F(KtFormEncodingTest, CheckTakesIt) {
  EXPECT_EQ(0, Run({"check", "--encoding=latin1", "a.dfm", "a.bin"}).Status);
  EXPECT_EQ(1, Run({"check", "--encoding=utf-8", "a.dfm"}).Status);
}

TEST_F(KtFormEncodingTest, SetWritesInTheEncodingThatItReads) {
  EXPECT_EQ(0, Run({"set", "--encoding=latin1", "a.dfm", "b.dfm", QStringLiteral("X=\u00E9\u00EA")}).Status);
  EXPECT_EQ(QByteArray(kEightBit).replace("\x80\xE9", "\xE9\xEA"), Content("b.dfm"));
  EXPECT_EQ(0, Run({"set", "--encoding=latin1", "a.dfm", "b.dfm", QStringLiteral("X=\u20AC")}).Status);
  EXPECT_EQ("object A: TA\n  X = #8364\nend\n", Content("b.dfm"));
}

TEST_F(KtFormEncodingTest, CyrillicTextIsReadAndWrittenInItsCodePage) {
  Write("a.dfm", "object A: TA\n  X = '\xC4\xE0'\n  Y = 1\nend\n");
  EXPECT_EQ("object A: TA\n  X = #1044#1072\n  Y = 1\nend\n", ToText({"--encoding=windows-1251", "a.dfm"}));
  EXPECT_EQ(0,
            Run({"set", "--encoding=windows-1251", "a.dfm", "a.dfm", QStringLiteral("X=\u041D\u0435\u0442")}).Status);
  EXPECT_EQ("object A: TA\n  X = '\xCD\xE5\xF2'\n  Y = 1\nend\n", Content("a.dfm"));
}

TEST_F(KtFormEncodingTest, StringsOfABinaryFormAreReadInItsCodePage) {
  EXPECT_EQ("object A: TA\n  X = #1026#1081\nend\n", ToText({"--encoding=windows-1251", "a.bin"}));
}

TEST_F(KtFormEncodingTest, AnUnknownNameIsWrongUsage) {
  const TRun run = Run({"check", "--encoding", "morse", "a.dfm"});
  EXPECT_EQ(2, run.Status);
  EXPECT_TRUE(run.Errors.startsWith("ktform: there is no encoding 'morse', only windows-1252, ")) << run.Errors.data();
}

TEST_F(KtFormEncodingTest, AMissingNameIsWrongUsage) {
  const TRun run = Run({"check", "a.dfm", "--encoding"});
  EXPECT_EQ(2, run.Status);
  EXPECT_TRUE(run.Errors.startsWith("ktform: --encoding needs one of windows-1252, ")) << run.Errors.data();
}

TEST_F(KtFormEncodingTest, TheHelpNamesTheEncodings) {
  const QByteArray help = Run({"--help"}).Output;
  EXPECT_TRUE(help.contains("it takes\nwindows-1252, windows-1250, windows-1251, ")) << help.data();
  EXPECT_TRUE(help.contains("windows-1258, windows-874, latin1, utf-8.\n")) << help.data();
}

}  // namespace
