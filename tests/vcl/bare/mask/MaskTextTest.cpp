#include "kt/vcl/mask/MaskText.h"
#include "support/Expect.h"

namespace kt {
namespace {

/// A mask, a value, and the masked text of it.
struct TMaskRow {
  const char* Name;
  const char16_t* Mask;
  const char16_t* Value;
  const char16_t* Text;
};
void PrintTo(const TMaskRow& row, std::ostream* out) { *out << row.Name; }

class MaskValueTest : public testing::TestWithParam<TMaskRow> {};

TEST_P(MaskValueTest, IsMasked) {
  const TMaskSyntax syntax(GetParam().Mask, TFormatSettings());
  EXPECT_EQ(MaskValue(syntax, GetParam().Value), QStringView(GetParam().Text).toString());
}

INSTANTIATE_TEST_SUITE_P(All, MaskValueTest,
                         testing::Values(TMaskRow{"Whole", u"(000) 000;0", u"555123", u"(555) 123"},
                                         TMaskRow{"Short", u"(000) 000;0", u"5551", u"(555) 1__"},
                                         TMaskRow{"Empty", u"(000) 000;0", u"", u"(___) ___"},
                                         TMaskRow{"TooLong", u"00;0", u"1234", u"12"},
                                         TMaskRow{"OwnBlank", u"00-00;0;*", u"1", u"1*-**"},
                                         TMaskRow{"SpacesAreBlanks", u"9999;0", u"1 3", u"1_3_"},
                                         TMaskRow{"SpacesInsideStayWhereAnythingGoes", u"CCCC;0", u"a b ", u"a b_"},
                                         TMaskRow{"CaseIsShifted", u">LL<LL;0", u"aBcD", u"ABcd"},
                                         TMaskRow{"WhatDoesNotFitIsKept", u"00;0", u"xy", u"xy"},
                                         TMaskRow{"FromTheRight", u"!9999;0", u"12", u"__12"},
                                         TMaskRow{"FromTheRightPastLiterals", u"!99.99;0", u"123", u"_1.23"},
                                         TMaskRow{"FromTheRightTooLong", u"!99;0", u"123", u"23"},
                                         TMaskRow{"WithLiterals", u"(000) 000", u"(555) 123", u"(555) 123"},
                                         TMaskRow{"WithShortFields", u"99\\/99\\/99", u"1/2/3", u"1_/2_/3_"},
                                         TMaskRow{"WithSomeLiterals", u"99-99-99", u"1-2", u"1_-2_-__"},
                                         TMaskRow{"WithoutItsLiterals", u"99-99-99", u"123456", u"12-34-56"},
                                         TMaskRow{"WithBlanksForCells", u"99-99", u"  -3 ", u"__-3_"},
                                         TMaskRow{"AFullFieldIsNotCutAtALiteralInside", u"CCC-C", u"a-b-c", u"a-b-c"},
                                         TMaskRow{"FieldsFromTheRight", u"!99-99", u"1-2", u"_1-_2"},
                                         TMaskRow{"WithoutItsLiteralsFromTheRight", u"!99-99", u"123", u"_1-23"},
                                         TMaskRow{"LiteralsAtBothEnds", u"<>(9)", u"(4)", u"(4)"},
                                         TMaskRow{"LiteralsAlone", u"(-)", u"x", u"(-)"}),
                         [](const auto& test) { return std::string(test.param.Name); });

/// A mask, a masked text, and the value that it shows.
class UnmaskValueTest : public testing::TestWithParam<TMaskRow> {};

TEST_P(UnmaskValueTest, GivesTheValueBack) {
  const TMaskSyntax syntax(GetParam().Mask, TFormatSettings());
  EXPECT_EQ(UnmaskValue(syntax, GetParam().Text), QStringView(GetParam().Value).toString());
}

INSTANTIATE_TEST_SUITE_P(All, UnmaskValueTest,
                         testing::Values(TMaskRow{"WithoutLiterals", u"(000) 000;0", u"5551", u"(555) 1__"},
                                         TMaskRow{"WithLiterals", u"(000) 000;1", u"(555) 1  ", u"(555) 1__"},
                                         TMaskRow{"EmptyWithLiterals", u"99\\/99", u"  /  ", u"__/__"},
                                         TMaskRow{"EmptyWithoutLiterals", u"99\\/99;0", u"", u"__/__"},
                                         TMaskRow{"BlanksInsideAreSpaces", u"9999;0", u"1 3", u"1_3_"},
                                         TMaskRow{"BlanksBeforeAreSpaces", u"9999;0", u"  3", u"__3_"},
                                         TMaskRow{"FromTheRight", u"!9999;0", u"12", u"__12"},
                                         TMaskRow{"FromTheRightTypedFromTheLeft", u"!9999;0", u"12", u"12__"},
                                         TMaskRow{"OwnBlank", u"99;0;*", u"1", u"1*"},
                                         TMaskRow{"ABlankAmongTheLiteralsIsOne", u"9\\_9", u"1_ ", u"1__"}),
                         [](const auto& test) { return std::string(test.param.Name); });

/// A mask, and a text with the place of its first fault as text, or "-".
class FindMaskFaultTest : public testing::TestWithParam<TMaskRow> {};

TEST_P(FindMaskFaultTest, FindsTheFirstFault) {
  const TMaskSyntax syntax(GetParam().Mask, TFormatSettings());
  const std::optional<int> fault = FindMaskFault(syntax, GetParam().Text);
  EXPECT_EQ(fault ? QString::number(*fault) : QStringLiteral("-"), QStringView(GetParam().Value).toString());
}

INSTANTIATE_TEST_SUITE_P(All, FindMaskFaultTest,
                         testing::Values(TMaskRow{"Complete", u"00-00", u"-", u"12-34"},
                                         TMaskRow{"ABlankThatMayBe", u"09-90", u"-", u"1_-_4"},
                                         TMaskRow{"ABlankThatMustNotBe", u"09-90", u"4", u"1_-2_"},
                                         TMaskRow{"ASpaceThatMustNotBe", u"0L", u"1", u"1 "},
                                         TMaskRow{"ASpaceIsACharacter", u"CC", u"-", u"a "},
                                         TMaskRow{"ASpaceIsNoneWhenItIsTheBlank", u"CC;1; ", u"1", u"a "},
                                         TMaskRow{"AWrongCharacter", u"99", u"1", u"1x"},
                                         TMaskRow{"AWrongCase", u">LL", u"1", u"Ab"},
                                         TMaskRow{"AWrongLiteral", u"9-9", u"1", u"1+2"},
                                         TMaskRow{"TooShort", u"99", u"1", u"1"}),
                         [](const auto& test) { return std::string(test.param.Name); });

TEST(FormatMaskTextTest, ShowsSpacesForBlanks) {
  EXPECT_EQ(FormatMaskText(u"(000) 000-0000;0;*", u"555"), "(555)    -    ");
}

TEST(FormatMaskTextTest, TakesAValueWithLiteralsWhenTheyAreSaved) {
  EXPECT_EQ(FormatMaskText(u"000-00;1;_", u"1-2"), "1  -2 ");
}

TEST(FormatMaskTextTest, TakesAValueWithoutLiteralsWhenTheyAreNot) {
  EXPECT_EQ(FormatMaskText(u"000-00;0;_", u"12345"), "123-45");
}

TEST(FormatMaskTextTest, FillsLeadingBlanksFromTheRight) { EXPECT_EQ(FormatMaskText(u"!999;0;_", u"7"), "  7"); }

TEST(FormatMaskTextTest, UsesTheSeparatorsOfTheLocale) {
  const QLocale outer = FormatLocale();
  SetFormatLocale(QLocale(QStringLiteral("de_DE")));
  const QString date = FormatMaskText(u"00/00/0000;0;_", u"24122006");
  SetFormatLocale(outer);
  EXPECT_EQ(date, "24.12.2006");
}

TEST(FormatMaskTextTest, AnEmptyMaskHasNoRoom) { EXPECT_EQ(FormatMaskText(u"", u"abc"), ""); }

TEST(AlignToMaskTest, KeepsCharactersAtTheirPlacesAndLiteralsAtTheirs) {
  const TMaskSyntax syntax(u">LL-99");
  EXPECT_EQ(AlignToMask(syntax, u"ab+12345"), "AB-12");
  EXPECT_EQ(AlignToMask(syntax, u"a"), "A_-__");
}

TEST(ReflowMaskedTest, MovesWhatWasTypedToTheRight) {
  EXPECT_EQ(ReflowMasked(TMaskSyntax(u"!99-99"), QStringLiteral("12-3_")), "_1-23");
  EXPECT_EQ(ReflowMasked(TMaskSyntax(u"!9999"), QStringLiteral("1_2_")), "_1_2");
}

TEST(ReflowMaskedTest, MovesNothingToWhereItDoesNotFit) {
  EXPECT_EQ(ReflowMasked(TMaskSyntax(u"!l99"), QStringLiteral("a1_")), "a1_");
}

TEST(ReflowMaskedTest, LeavesOtherMasksAlone) {
  EXPECT_EQ(ReflowMasked(TMaskSyntax(u"9999"), QStringLiteral("12__")), "12__");
}

TEST(ReflowMaskedTest, HasNothingToMoveInAnEmptyText) {
  EXPECT_EQ(ReflowMasked(TMaskSyntax(u"!99-99"), QStringLiteral("__-__")), "__-__");
}

}  // namespace
}  // namespace kt
