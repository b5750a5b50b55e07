#include "kt/rtl/objects/Exceptions.h"
#include "rtl/strings/StringsFixture.h"

namespace kt::tests {
namespace {

TEST(StringsNamesTest, TheNameIsWhatStandsBeforeTheFirstSeparator) {
  auto list = NewList({"a=b=c", "=x", "plain", ""});
  EXPECT_EQ("a", list->GetNames(0));
  EXPECT_EQ("", list->GetNames(1));
  EXPECT_EQ("", list->GetNames(2));
  EXPECT_EQ("", list->GetNames(3));
}

TEST(StringsNamesTest, ValuesAreFoundByNameWithoutRegardToCase) {
  auto list = NewList({"plain", "Size=3", "size=4"});
  EXPECT_EQ("3", list->GetValues(u"size"));
  EXPECT_EQ("", list->GetValues(u"plain"));
  EXPECT_EQ("", list->GetValues(u"none"));
}

TEST(StringsNamesTest, ValuesAreFoundByNameWithRegardToCaseInACaseSensitiveList) {
  auto list = NewList({"Size=3", "size=4"});
  list->SetCaseSensitive(true);
  EXPECT_EQ("4", list->GetValues(u"size"));
  EXPECT_EQ("", list->GetValues(u"SIZE"));
}

TEST(StringsNamesTest, AValueMayHoldTheSeparator) { EXPECT_EQ("b=c", NewList({"a=b=c"})->GetValues(u"a")); }

TEST(StringsNamesTest, AnEmptyNameIsFoundWhereASeparatorStandsFirst) {
  auto list = NewList({"plain", "=x"});
  EXPECT_EQ(1, list->IndexOfName(u""));
  EXPECT_EQ("x", list->GetValues(u""));
}

TEST(StringsNamesTest, IndexOfNameSkipsLinesWithoutASeparator) {
  auto list = NewList({"a", "ab=1", "a=2"});
  EXPECT_EQ(2, list->IndexOfName(u"A"));
  EXPECT_EQ(-1, list->IndexOfName(u"b"));
}

TEST(StringsNamesTest, SettingAValueChangesTheFirstLineOfThatName) {
  auto list = NewList({"x", "A=1", "a=2"});
  TEventLog log(*list);
  list->SetValues("a", "3");
  EXPECT_EQ("changing(x | A=1 | a=2) changed(x | a=3 | a=2)", log.Take());
}

TEST(StringsNamesTest, SettingAValueKeepsTheObject) {
  auto list = NewList({"a=1"});
  list->SetObjects(0, list.get());
  list->SetValues("a", "2");
  EXPECT_EQ(list.get(), list->GetObjects(0));
}

TEST(StringsNamesTest, ANewNameIsAddedInTwoSteps) {
  auto list = NewList({"a=1"});
  TEventLog log(*list);
  list->SetValues("b", "2");
  EXPECT_EQ("changing(a=1) changed(a=1 | ) changing(a=1 | ) changed(a=1 | b=2)", log.Take());
}

TEST(StringsNamesTest, AnEmptyValueDeletesTheLine) {
  auto list = NewList({"a=1", "b=2"});
  TEventLog log(*list);
  list->SetValues("a", "");
  EXPECT_EQ("changing(a=1 | b=2) changed(b=2)", log.Take());
}

TEST(StringsNamesTest, AnEmptyValueOfAnUnknownNameDoesNothing) {
  auto list = NewList({"a=1"});
  TEventLog log(*list);
  list->SetValues("b", "");
  EXPECT_EQ("", log.Take());
}

// The line is added first and named afterwards, which a sorted list refuses: the framework's lists leave it like that.
TEST(StringsNamesTest, ANewNameInASortedListRaisesAndLeavesAnEmptyLine) {
  auto list = NewSortedList({"a=1"});
  EXPECT_EQ("Operation not allowed on sorted list", RaisedBy<EStringListError>([&] { list->SetValues("b", "2"); }));
  EXPECT_EQ(" | a=1", Lines(*list));
}

TEST(StringsNamesTest, AnotherSeparatorReplacesTheEqualsSign) {
  auto list = NewList({"a=b:c"});
  list->SetNameValueSeparator(u':');
  EXPECT_EQ("a=b", list->GetNames(0));
  list->SetValues("a=b", "d");
  EXPECT_EQ("a=b:d", Lines(*list));
}

TEST(StringsNamesTest, AValueIsReadByIndex) {
  auto list = NewList({"a=b=c", "=x", "a="});
  EXPECT_EQ("b=c", list->GetValueFromIndex(0));
  EXPECT_EQ("x", list->GetValueFromIndex(1));
  EXPECT_EQ("", list->GetValueFromIndex(2));
}

// A name of no characters and a separator of one are skipped, whether the separator is there or not.
TEST(StringsNamesTest, AValueByIndexOfALineWithoutSeparatorLacksTheFirstCharacter) {
  auto list = NewList({"plain", "p", ""});
  EXPECT_EQ("lain", list->GetValueFromIndex(0));
  EXPECT_EQ("", list->GetValueFromIndex(1));
  EXPECT_EQ("", list->GetValueFromIndex(2));
}

TEST(StringsNamesTest, AValueByANegativeIndexIsEmpty) { EXPECT_EQ("", NewList({"a=1"})->GetValueFromIndex(-1)); }

TEST(StringsNamesTest, AValueIsSetByIndex) {
  auto list = NewList({"a=1", "plain"});
  list->SetValueFromIndex(0, "2");
  list->SetValueFromIndex(1, "x");
  EXPECT_EQ("a=2 | =x", Lines(*list));
}

TEST(StringsNamesTest, AnEmptyValueSetByIndexDeletesTheLine) {
  auto list = NewList({"a=1", "b=2"});
  list->SetValueFromIndex(0, "");
  EXPECT_EQ("b=2", Lines(*list));
}

TEST(StringsNamesTest, AValueSetByANegativeIndexAddsALineWithoutName) {
  auto list = NewList({"a=1"});
  list->SetValueFromIndex(-1, "x");
  list->SetValueFromIndex(-1, "");
  EXPECT_EQ("a=1 | =x", Lines(*list));
}

TEST(StringsNamesTest, IndicesOutOfTheListRaise) {
  auto list = NewList({"a=1"});
  EXPECT_EQ("List index out of bounds (1)", RaisedBy<EStringListError>([&] { list->GetNames(1); }));
  EXPECT_EQ("List index out of bounds (1)", RaisedBy<EStringListError>([&] { list->GetValueFromIndex(1); }));
  EXPECT_EQ("List index out of bounds (1)", RaisedBy<EStringListError>([&] { list->SetValueFromIndex(1, "x"); }));
}

TEST(StringsNamesTest, ADescendantCanExtractANameFromAnyLine) {
  auto list = NewPlain({});
  EXPECT_EQ("a", list->ExtractName("a=b"));
  EXPECT_EQ("", list->ExtractName("ab"));
}

}  // namespace
}  // namespace kt::tests
