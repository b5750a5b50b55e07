#include "kt/vcl/mask/MaskLine.h"
#include "kt/vcl/mask/MaskText.h"
#include "support/Expect.h"
#include "support/MaskOracle.h"

#include <QDir>
#include <QFile>

#include <random>

namespace kt {
namespace {

/// A masked text with the selection in brackets, or the caret as a bar.
class MaskLineTest : public testing::Test {
 protected:
  void Begin(QStringView mask, QStringView value = {}, int anchor = 0, int caret = 0) {
    FSyntax = TMaskSyntax(mask, TFormatSettings());
    FLine.emplace(FSyntax, MaskValue(FSyntax, value), anchor, caret);
  }
  TMaskLine& Line() { return *FLine; }
  QString Shown() const {
    QString text = FLine->GetText();
    const auto [start, end] = std::minmax({FLine->GetAnchor(), FLine->GetCaret()});
    if (start == end) return text.insert(start, u'|');
    return text.insert(end, u']').insert(start, u'[');
  }

 private:
  TMaskSyntax FSyntax;
  std::optional<TMaskLine> FLine;
};

TEST_F(MaskLineTest, BeginsAtTheFirstCell) {
  Begin(u"(00) 00;0");
  EXPECT_EQ(Shown(), "(|__) __");
}

TEST_F(MaskLineTest, TypingFillsCellsAndPassesByLiterals) {
  Begin(u"(00) 00;0");
  EXPECT_TRUE(Line().Insert(u"1"));
  EXPECT_EQ(Shown(), "(1|_) __");
  EXPECT_TRUE(Line().Insert(u"2"));
  EXPECT_EQ(Shown(), "(12) |__");
}

TEST_F(MaskLineTest, TypingOverwrites) {
  Begin(u"0000;0", u"1234", 1, 1);
  Line().Insert(u"9");
  EXPECT_EQ(Shown(), "19|34");
}

TEST_F(MaskLineTest, WhatDoesNotFitIsNotTyped) {
  Begin(u"0000;0", u"12", 0, 2);
  EXPECT_FALSE(Line().Insert(u"x"));
  EXPECT_EQ(Shown(), "[12]__");
}

TEST_F(MaskLineTest, BehindTheLastCellNothingIsTyped) {
  Begin(u"00;0", u"12", 2, 2);
  EXPECT_FALSE(Line().Insert(u"3"));
  EXPECT_EQ(Shown(), "12|");
}

TEST_F(MaskLineTest, TypingShiftsTheCase) {
  Begin(u">L<L<>LL");
  Line().Insert(u"aBcD");
  EXPECT_EQ(Shown(), "AbcD|");
}

TEST_F(MaskLineTest, TypingOverASelectionBlanksTheRestOfIt) {
  Begin(u"00-00;0", u"1234", 4, 1);
  Line().Insert(u"9");
  EXPECT_EQ(Shown(), "19-|_4");
}

TEST_F(MaskLineTest, ASpaceBlanksACellThatMayBeBlank) {
  Begin(u"99;0", u"12");
  Line().Insert(u" ");
  EXPECT_EQ(Shown(), "_|2");
}

TEST_F(MaskLineTest, ASpaceIsRefusedWhereSomethingIsRequired) {
  Begin(u"00;0", u"12");
  EXPECT_FALSE(Line().Insert(u" "));
  EXPECT_EQ(Shown(), "|12");
}

TEST_F(MaskLineTest, TheBlankItselfBlanksACell) {
  Begin(u"00;0;*", u"12");
  Line().Insert(u"*");
  EXPECT_EQ(Shown(), "*|2");
}

TEST_F(MaskLineTest, ALiteralEndsItsField) {
  Begin(u"99-99;0");
  Line().Insert(u"1");
  Line().Insert(u"-");
  EXPECT_EQ(Shown(), "1_-|__");
}

TEST_F(MaskLineTest, ALiteralThatWasPassedByMayBeTypedAllTheSame) {
  Begin(u"99-99-99;0");
  Line().Insert(u"12");
  Line().Insert(u"-");
  EXPECT_EQ(Shown(), "12-|__-__");
}

TEST_F(MaskLineTest, ALiteralOfALaterFieldIsNotFollowedFromTheStartOfOne) {
  Begin(u"(99) 99+99;0");
  Line().Insert(u"12");
  EXPECT_FALSE(Line().Insert(u"+"));
  EXPECT_EQ(Shown(), "(12) |__+__");
}

TEST_F(MaskLineTest, APasteTakesLiteralsAlong) {
  Begin(u"(000) 000-00;0");
  Line().Insert(u"(555) 123-45");
  EXPECT_EQ(Shown(), "(555) 123-45|");
}

TEST_F(MaskLineTest, APasteLeavesOutWhatDoesNotFit) {
  Begin(u"(000) 000-00;0");
  Line().Insert(u"555-123.45");
  EXPECT_EQ(Shown(), "(555) 123-45|");
}

TEST_F(MaskLineTest, APasteKeepsItsBlanks) {
  Begin(u"00-00;0");
  Line().Insert(u"1_-_4");
  EXPECT_EQ(Shown(), "1_-_4|");
}

TEST_F(MaskLineTest, APasteIntoCellsThatTakeAnythingKeepsItsLiteralsInPlace) {
  Begin(u"CC-CC;0");
  Line().Insert(u"ab-cd");
  EXPECT_EQ(Shown(), "ab-cd|");
}

TEST_F(MaskLineTest, LeftAndRightPassByLiterals) {
  Begin(u"(0)-0;0");
  Line().Move(TMaskLine::mvRight, false);
  EXPECT_EQ(Shown(), "(_)-|_");
  Line().Move(TMaskLine::mvRight, false);
  Line().Move(TMaskLine::mvRight, false);
  EXPECT_EQ(Shown(), "(_)-_|");
  Line().Move(TMaskLine::mvLeft, false);
  Line().Move(TMaskLine::mvLeft, false);
  Line().Move(TMaskLine::mvLeft, false);
  EXPECT_EQ(Shown(), "(|_)-_");
}

TEST_F(MaskLineTest, HomeAndEndAreTheFirstCellAndBehindTheLast) {
  Begin(u"(00);0");
  Line().Move(TMaskLine::mvEnd, false);
  EXPECT_EQ(Shown(), "(__|)");
  Line().Move(TMaskLine::mvHome, false);
  EXPECT_EQ(Shown(), "(|__)");
}

TEST_F(MaskLineTest, MovesByFields) {
  Begin(u"00-00-00;0", u"", 1, 1);
  Line().Move(TMaskLine::mvFieldRight, false);
  EXPECT_EQ(Shown(), "__-|__-__");
  Line().Move(TMaskLine::mvFieldRight, false);
  Line().Move(TMaskLine::mvFieldRight, false);
  EXPECT_EQ(Shown(), "__-__-__|");
  Line().Move(TMaskLine::mvFieldLeft, false);
  EXPECT_EQ(Shown(), "__-__-|__");
  Line().Move(TMaskLine::mvFieldLeft, false);
  EXPECT_EQ(Shown(), "__-|__-__");
}

TEST_F(MaskLineTest, SelectingMovesTheCaretAndKeepsTheAnchor) {
  Begin(u"00-00;0", u"", 1, 1);
  Line().Move(TMaskLine::mvRight, true);
  EXPECT_EQ(Shown(), "_[_-]__");
  Line().Move(TMaskLine::mvEnd, true);
  EXPECT_EQ(Shown(), "_[_-__]");
  Line().Move(TMaskLine::mvHome, true);
  EXPECT_EQ(Shown(), "[_]_-__");
}

TEST_F(MaskLineTest, LeftAndRightGoToTheEndsOfASelection) {
  Begin(u"0000;0", u"", 1, 3);
  Line().Move(TMaskLine::mvLeft, false);
  EXPECT_EQ(Shown(), "_|___");
  Begin(u"0000;0", u"", 3, 1);
  Line().Move(TMaskLine::mvRight, false);
  EXPECT_EQ(Shown(), "___|_");
}

TEST_F(MaskLineTest, BackspaceBlanksTheCellBeforeTheCaret) {
  Begin(u"00-00;0", u"1234", 3, 3);
  Line().Erase(TMaskLine::mvLeft);
  EXPECT_EQ(Shown(), "1|_-34");
}

TEST_F(MaskLineTest, BackspaceAtTheFirstCellDoesNothing) {
  Begin(u"(00);0", u"12");
  Line().Erase(TMaskLine::mvLeft);
  EXPECT_EQ(Shown(), "(|12)");
}

TEST_F(MaskLineTest, DeleteBlanksTheCellAtTheCaret) {
  Begin(u"00-00;0", u"1234", 1, 1);
  Line().Erase(TMaskLine::mvRight);
  EXPECT_EQ(Shown(), "1|_-34");
}

TEST_F(MaskLineTest, DeletingByFieldsBlanksTheFieldOnOneSide) {
  Begin(u"00-00;0", u"1234", 4, 4);
  Line().Erase(TMaskLine::mvFieldLeft);
  EXPECT_EQ(Shown(), "12-|_4");
  Line().Erase(TMaskLine::mvFieldRight);
  EXPECT_EQ(Shown(), "12-|__");
}

TEST_F(MaskLineTest, DeletingASelectionKeepsLiterals) {
  Begin(u"00-00;0", u"1234", 1, 4);
  Line().Erase(TMaskLine::mvLeft);
  EXPECT_EQ(Shown(), "1|_-_4");
}

TEST_F(MaskLineTest, AMaskOfLiteralsAloneHasNowhereToGo) {
  Begin(u"()");
  EXPECT_FALSE(Line().Insert(u"x"));
  Line().Move(TMaskLine::mvEnd, false);
  Line().Erase(TMaskLine::mvRight);
  EXPECT_EQ(Shown(), "|()");
}

TEST_F(MaskLineTest, TakesOverWhatWasInserted) {
  Begin(u"00-00;0", u"1234", 1, 1);
  Line().TakeOver(QStringLiteral("1892-34"), 3);
  EXPECT_EQ(Shown(), "18-9|4");
}

TEST_F(MaskLineTest, TakesOverWhatWasRemoved) {
  Begin(u"00-00;0", u"1234", 4, 4);
  Line().TakeOver(QStringLiteral("14"), 1);
  EXPECT_EQ(Shown(), "1|_-_4");
}

TEST_F(MaskLineTest, TakesOverWhatWasReplaced) {
  Begin(u"00-00;0", u"1234", 0, 5);
  Line().TakeOver(QStringLiteral("98"), 2);
  EXPECT_EQ(Shown(), "98-|__");
}

TEST_F(MaskLineTest, TakesOverACharacterLikeTheOneBehindIt) {
  Begin(u"0000;0", u"11", 0, 0);
  Line().TakeOver(QStringLiteral("111__"), 1);
  EXPECT_EQ(Shown(), "1|1__");
}

TEST_F(MaskLineTest, RefusesToTakeOverWhatDoesNotFit) {
  Begin(u"0000;0", u"1234", 1, 1);
  Line().TakeOver(QStringLiteral("1x234"), 2);
  EXPECT_EQ(Shown(), "1|234");
}

QStringList Broken() {
  const QDir folder(QStringLiteral(KT_SOURCE_DIR "/fuzz/corpus/fuzz_edit_mask"));
  const QStringList names = folder.entryList(QDir::Files);
  QStringList broken;
  if (names.size() < 10) broken += QStringLiteral("files are missing");
  for (const QString& name : names) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) broken += name;
    try {
      oracle::CheckMaskKeys(file.readAll());
    } catch (const std::logic_error& error) {
      broken += name + QStringLiteral(": ") + QString::fromUtf8(error.what());
    }
  }
  return broken;
}

TEST(MaskCorpusTest, EveryKeyOfTheCorpusLeavesATextThatFits) { EXPECT_EQ(QStringList(), Broken()); }

/// Random masks made of mask characters, with random keys.
class MaskRandomTest : public testing::TestWithParam<unsigned> {};

TEST_P(MaskRandomTest, EveryKeyLeavesATextThatFits) {
  const QByteArray maskCharacters = "!><\\LlAaCc09#:/;_-() .x";
  const QByteArray keys =
      QByteArray("\0\1\2\3\4\5\6\7\b\t\v\f\r\16\17\20\21\22\23\24\30\31\32\33\34\37", 26) + "0123456789aBzZ+-/:() ._x";
  std::mt19937 random(GetParam());
  const auto pick = [&random](const QByteArray& from) { return from[qsizetype(random() % unsigned(from.size()))]; };
  for (int run = 0; run < 200; ++run) {
    QByteArray bytes;
    for (unsigned i = random() % 16; i > 0; --i) bytes += pick(maskCharacters);
    bytes += '\n';
    for (unsigned i = random() % 60; i > 0; --i) bytes += pick(keys);
    ASSERT_NO_THROW(oracle::CheckMaskKeys(bytes))
        << "seed " << GetParam() << ", run " << run << ": " << bytes.toPercentEncoding().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, MaskRandomTest, testing::Values(1U, 2U, 3U, 20060101U));

}  // namespace
}  // namespace kt
