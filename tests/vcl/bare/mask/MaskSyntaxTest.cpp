#include "kt/vcl/mask/MaskSyntax.h"
#include "support/Expect.h"

#include <QStringList>

namespace kt {
namespace {

/// The cells of a mask: 'L', 'A', 'C', '0' and '#' for their kinds, small ones for those that may stay blank, with a
/// sign before those whose case is shifted; literals in quotes.
QString Cells(QStringView mask, const TFormatSettings& settings = {}) {
  const TMaskSyntax syntax(mask, settings);
  QString result;
  for (const TMaskCell& cell : syntax.GetCells()) {
    if (cell.Kind == mkLiteral) {
      result += QStringLiteral("'%1'").arg(cell.Literal);
      continue;
    }
    result += QStringList{{}, QStringLiteral(">"), QStringLiteral("<")}[cell.Case];
    result += (cell.IsRequired ? QStringLiteral("?LACD#") : QStringLiteral("?lacd#"))[cell.Kind];
  }
  return result;
}

/// One mask character, what it accepts, and what it does not.
struct TCharacterRow {
  const char* Name;
  const char16_t* Mask;
  const char16_t* Accepted;
  const char16_t* Refused;
  bool IsRequired;
};
void PrintTo(const TCharacterRow& row, std::ostream* out) { *out << row.Name; }

class MaskCharacterTest : public testing::TestWithParam<TCharacterRow> {
 protected:
  /// Those of the characters that fit.
  QString Fitting(QStringView characters) const {
    const TMaskSyntax syntax(GetParam().Mask, TFormatSettings());
    QString result;
    for (QChar character : characters) result += syntax.Fits(0, character) ? QString(character) : QString();
    return result;
  }
};

TEST_P(MaskCharacterTest, AcceptsWhatItSays) {
  EXPECT_EQ(Fitting(GetParam().Accepted), QStringView(GetParam().Accepted).toString());
}

TEST_P(MaskCharacterTest, RefusesTheRest) { EXPECT_EQ(Fitting(GetParam().Refused), ""); }

TEST_P(MaskCharacterTest, KnowsWhetherItMayStayBlank) {
  EXPECT_EQ(TMaskSyntax(GetParam().Mask, TFormatSettings()).GetCells().at(0).IsRequired, GetParam().IsRequired);
}

INSTANTIATE_TEST_SUITE_P(All, MaskCharacterTest,
                         testing::Values(TCharacterRow{"CapitalL", u"L", u"aZé", u"1 -_", true},
                                         TCharacterRow{"SmallL", u"l", u"aZé", u"1 -_", false},
                                         TCharacterRow{"CapitalA", u"A", u"aZé09", u" -+_", true},
                                         TCharacterRow{"SmallA", u"a", u"aZé09", u" -+_", false},
                                         TCharacterRow{"CapitalC", u"C", u"aZé09 -+;", u"_\t\n\x7f\xd83d", true},
                                         TCharacterRow{"SmallC", u"c", u"aZé09 -+;", u"_\t\n\x7f\xd83d", false},
                                         TCharacterRow{"Zero", u"0", u"0123456789", u"a -+.\u0661_", true},
                                         TCharacterRow{"Nine", u"9", u"0123456789", u"a -+.\u0661_", false},
                                         TCharacterRow{"NumberSign", u"#", u"0123456789+-", u"a ._", false},
                                         TCharacterRow{"CapitalLInUpperCase", u">L", u"AZÉ", u"az1", true},
                                         TCharacterRow{"CapitalLInLowerCase", u"<L", u"azé", u"AZ1", true}),
                         [](const auto& test) { return std::string(test.param.Name); });

TEST(MaskSyntaxTest, UpperCaseLastsUntilTheNextCase) { EXPECT_EQ(Cells(u">Ll<aC<>cA"), ">L>l<a<CcA"); }

TEST(MaskSyntaxTest, CaseIsShiftedOnlyWhereTheMaskSays) {
  const TMaskSyntax syntax(u">L<L<>L", TFormatSettings());
  EXPECT_EQ(syntax.Shifted(0, u'b'), u'B');
  EXPECT_EQ(syntax.Shifted(1, u'B'), u'b');
  EXPECT_EQ(syntax.Shifted(2, u'b'), u'b');
  EXPECT_EQ(syntax.Shifted(2, u'B'), u'B');
}

TEST(MaskSyntaxTest, ABackslashMakesALiteral) { EXPECT_EQ(Cells(u"\\L\\\\\\;\\_L"), "'L''\\'';''_'L"); }

TEST(MaskSyntaxTest, ABackslashAtTheEndIsItself) { EXPECT_EQ(Cells(u"0\\"), "D'\\'"); }

TEST(MaskSyntaxTest, AnUnderscoreIsALiteralSpace) { EXPECT_EQ(Cells(u"0_0"), "D' 'D"); }

TEST(MaskSyntaxTest, OtherCharactersAreLiterals) { EXPECT_EQ(Cells(u"(9)-x"), "'('d')''-''x'"); }

TEST(MaskSyntaxTest, ASlashIsTheDateSeparatorOfTheLocale) {
  TFormatSettings settings;
  settings.DateSeparator = QStringLiteral(".");
  EXPECT_EQ(Cells(u"0/0", settings), "D'.'D");
}

TEST(MaskSyntaxTest, AColonIsTheTimeSeparatorOfTheLocale) {
  TFormatSettings settings;
  settings.TimeSeparator = QStringLiteral("h");
  EXPECT_EQ(Cells(u"0:0", settings), "D'h'D");
}

TEST(MaskSyntaxTest, ALongSeparatorTakesAPlacePerCharacter) {
  TFormatSettings settings;
  settings.DateSeparator = QStringLiteral(". ");
  EXPECT_EQ(Cells(u"0/0", settings), "D'.'' 'D");
}

TEST(MaskSyntaxTest, AnExclamationMarkAnywhereFillsFromTheRight) {
  EXPECT_TRUE(TMaskSyntax(u"!99").IsFilledFromRight());
  EXPECT_TRUE(TMaskSyntax(u"99!").IsFilledFromRight());
  EXPECT_FALSE(TMaskSyntax(u"99").IsFilledFromRight());
  EXPECT_FALSE(TMaskSyntax(u"99\\!").IsFilledFromRight());
  EXPECT_EQ(Cells(u"9!9"), "dd");
}

/// A mask with its fields: "saved" or "not", then the blank.
QString Fields(QStringView mask) {
  const TMaskSyntax syntax(mask);
  return (syntax.IsLiteralSaved() ? QStringLiteral("saved ") : QStringLiteral("not ")) + syntax.GetBlank();
}

TEST(MaskSyntaxTest, LiteralsAreSavedAndBlanksAreUnderscoresUnlessSaidOtherwise) {
  EXPECT_EQ(Fields(u"00"), "saved _");
  EXPECT_EQ(Fields(u"00;"), "saved _");
}

TEST(MaskSyntaxTest, TheSecondFieldTellsWhetherLiteralsAreSaved) {
  EXPECT_EQ(Fields(u"00;0"), "not _");
  EXPECT_EQ(Fields(u"00;1"), "saved _");
  EXPECT_EQ(Fields(u"00;0;"), "not _");
}

TEST(MaskSyntaxTest, TheThirdFieldIsTheBlank) {
  EXPECT_EQ(Fields(u"00;0;*"), "not *");
  EXPECT_EQ(Fields(u"00;1; "), "saved  ");
  EXPECT_EQ(Fields(u"00;0;;"), "not ;");
  EXPECT_EQ(Fields(u"00;;*"), "saved *");
}

TEST(MaskSyntaxTest, FieldsAreNoCells) { EXPECT_EQ(Cells(u"00;0;9"), "DD"); }

TEST(MaskSyntaxTest, ASemicolonThatIsALiteralPartsNothing) {
  EXPECT_EQ(Cells(u"0\\;0;0"), "D';'D");
  EXPECT_EQ(Fields(u"0\\;0;0"), "not _");
}

TEST(MaskSyntaxTest, AnEmptyMaskHasNoCells) {
  EXPECT_EQ(TMaskSyntax(u"").Size(), 0);
  EXPECT_EQ(TMaskSyntax(u";0;*").Size(), 0);
  EXPECT_EQ(TMaskSyntax(u"").NextEditable(0), 0);
  EXPECT_EQ(TMaskSyntax(u"").PreviousEditable(0), -1);
}

TEST(MaskSyntaxTest, FindsCellsAndFieldsBetweenLiterals) {
  const TMaskSyntax syntax(u"(00)-00");
  EXPECT_EQ(syntax.NextEditable(0), 1);
  EXPECT_EQ(syntax.NextEditable(3), 5);
  EXPECT_EQ(syntax.PreviousEditable(5), 2);
  EXPECT_EQ(syntax.PreviousEditable(1), -1);
  EXPECT_EQ(syntax.FieldStart(2), 1);
  EXPECT_EQ(syntax.FieldEnd(1), 3);
  EXPECT_EQ(syntax.LiteralsEnd(3), 5);
}

TEST(MaskSyntaxTest, OutsideTheCellsNothingIsEditable) {
  const TMaskSyntax syntax(u"0");
  EXPECT_FALSE(syntax.IsEditable(-1));
  EXPECT_FALSE(syntax.IsEditable(1));
  EXPECT_FALSE(syntax.Fits(1, u'0'));
}

}  // namespace
}  // namespace kt
