#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "rtl/strings/StringsFixture.h"

namespace kt::tests {
namespace {

TEST(StringsTest, IsAnAbstractPersistentClassWithoutPublishedProperties) {
  EXPECT_EQ("TStrings", TStrings::Class()->ClassName());
  EXPECT_EQ(TPersistent::Class(), TStrings::Class()->ClassParent());
  EXPECT_FALSE(TStrings::Class()->IsCreatable());
  EXPECT_TRUE(TStrings::Class()->Props().empty());
}

TEST(StringsTest, AddInsertsAtTheEnd) {
  auto list = NewPlain({"a"});
  EXPECT_EQ(1, list->Add("b"));
  list->Append("c");
  EXPECT_EQ("Insert(1,b) Insert(2,c)", list->TakeLog());
}

TEST(StringsTest, AddObjectAddsTheLineAndThenPutsTheObject) {
  auto list = NewPlain({"a"});
  EXPECT_EQ(1, list->AddObject("b", list.get()));
  EXPECT_EQ("Insert(1,b) PutObject(1)", list->TakeLog());
}

TEST(StringsTest, InsertObjectInsertsTheLineAndThenPutsTheObject) {
  auto list = NewPlain({"a"});
  list->InsertObject(0, "b", list.get());
  EXPECT_EQ("Insert(0,b) PutObject(0)", list->TakeLog());
}

TEST(StringsTest, AStringIsPutByDeletingAndInserting) {
  auto list = NewPlain({"a", "b"});
  list->SetStrings(1, "c");
  EXPECT_EQ("Delete(1) Insert(1,c)", list->TakeLog());
  EXPECT_EQ("a | c", Lines(*list));
}

TEST(StringsTest, ObjectsAreNullWhereTheDescendantKeepsNone) {
  auto list = NewPlain({"a"});
  list->SetObjects(0, list.get());
  EXPECT_EQ(nullptr, list->GetObjects(0));
  EXPECT_EQ(-1, list->IndexOfObject(list.get()));
  EXPECT_EQ(0, list->IndexOfObject(nullptr));
}

TEST(StringsTest, CapacityIsTheCountWhereTheDescendantHasNone) {
  auto list = NewPlain({"a", "b"});
  list->SetCapacity(100);
  EXPECT_EQ(2, list->GetCapacity());
}

TEST(StringsTest, ExchangePutsBothLinesWithinABracket) {
  auto list = NewPlain({"a", "b", "c"});
  list->Exchange(0, 2);
  EXPECT_EQ("{ Delete(0) Insert(0,c) Delete(2) Insert(2,a) }", list->TakeLog());
  EXPECT_EQ("c | b | a", Lines(*list));
}

TEST(StringsTest, MoveDeletesAndInsertsWithinABracket) {
  auto list = NewPlain({"a", "b", "c"});
  list->Move(0, 2);
  EXPECT_EQ("{ Delete(0) Insert(2,a) }", list->TakeLog());
  EXPECT_EQ("b | c | a", Lines(*list));
  list->Move(2, 1);
  EXPECT_EQ("b | a | c", Lines(*list));
}

TEST(StringsTest, MoveToTheSamePlaceDoesNothing) {
  auto list = NewPlain({"a", "b"});
  list->Move(1, 1);
  EXPECT_EQ("", list->TakeLog());
}

TEST(StringsTest, MoveOutOfTheListRaisesAndLosesNoLine) {
  auto list = NewPlain({"a", "b"});
  EXPECT_EQ("List index out of bounds (2)", RaisedBy<EStringListError>([&] { list->Move(0, 2); }));
  EXPECT_EQ("List index out of bounds (-1)", RaisedBy<EStringListError>([&] { list->Move(0, -1); }));
  EXPECT_EQ("a | b", Lines(*list));
}

TEST(StringsTest, AddStringsAddsWithinABracket) {
  auto list = NewPlain({"a"});
  auto other = NewList({"b", "c"});
  other->SetObjects(0, other.get());
  list->AddStrings(*other);
  EXPECT_EQ("{ Insert(1,b) PutObject(1) Insert(2,c) }", list->TakeLog());
}

TEST(StringsTest, AListAddedToItselfIsDoubled) {
  auto list = NewPlain({"a", "b"});
  list->AddStrings(*list);
  EXPECT_EQ("a | b | a | b", Lines(*list));
}

TEST(StringsTest, AssignClearsAndAddsWithinOneBracket) {
  auto list = NewPlain({"x"});
  list->Assign(NewList({"a", "b"}).get());
  EXPECT_EQ("{ Clear Insert(0,a) Insert(1,b) }", list->TakeLog());
}

TEST(StringsTest, AssignCopiesLinesAndObjects) {
  auto list = NewList({"x"});
  auto other = NewList({"a", "b"});
  other->SetObjects(1, other.get());
  list->Assign(other.get());
  EXPECT_EQ("a | b", Lines(*list));
  EXPECT_EQ(nullptr, list->GetObjects(0));
  EXPECT_EQ(other.get(), list->GetObjects(1));
}

TEST(StringsTest, AssignCopiesTheSettings) {
  auto list = NewList();
  auto other = NewList();
  other->SetDelimiter(u';');
  other->SetQuoteChar(u'\'');
  other->SetNameValueSeparator(u':');
  other->SetLineBreak("\n");
  other->SetStrictDelimiter(true);
  list->Assign(other.get());
  EXPECT_EQ(u';', list->GetDelimiter());
  EXPECT_EQ(u'\'', list->GetQuoteChar());
  EXPECT_EQ(u':', list->GetNameValueSeparator());
  EXPECT_EQ("\n", list->GetLineBreak());
  EXPECT_TRUE(list->GetStrictDelimiter());
}

TEST(StringsTest, AssignTakesOverDefaultSettingsToo) {
  auto list = NewList();
  auto other = NewList();
  list->SetDelimiter(u';');
  list->Assign(other.get());
  EXPECT_EQ(u',', list->GetDelimiter());
}

TEST(StringsTest, AListAssignedToItselfStaysAsItIs) {
  auto list = NewPlain({"a", "b"});
  list->Assign(list.get());
  EXPECT_EQ("", list->TakeLog());
  EXPECT_EQ("a | b", Lines(*list));
}

TEST(StringsTest, AssignOfAnotherClassRaises) {
  auto list = NewList();
  auto other = Make<TPersistent>();
  EXPECT_EQ("Cannot assign a TPersistent to a TStringList",
            RaisedBy<EConvertError>([&] { list->Assign(other.get()); }));
  EXPECT_EQ("Cannot assign a nil to a TStringList", RaisedBy<EConvertError>([&] { list->Assign(nullptr); }));
}

TEST(StringsTest, EqualsComparesTheLinesExactly) {
  auto list = NewPlain({"a", "b"});
  EXPECT_TRUE(list->Equals(*NewList({"a", "b"})));
  EXPECT_FALSE(list->Equals(*NewList({"a", "B"})));
  EXPECT_FALSE(list->Equals(*NewList({"a"})));
  EXPECT_FALSE(list->Equals(*NewList({"a", "b", ""})));
}

TEST(StringsTest, IndexOfFindsTheFirstLineWithoutRegardToCase) {
  auto list = NewPlain({"a", "B", "b"});
  EXPECT_EQ(1, list->IndexOf(u"b"));
  EXPECT_EQ(-1, list->IndexOf(u"c"));
  EXPECT_EQ(-1, list->IndexOf(u""));
}

TEST(StringsTest, UpdateStateIsToldByTheOutermostBracketOnly) {
  auto list = NewPlain({});
  list->BeginUpdate();
  EXPECT_EQ(1, list->GetUpdateCount());
  list->BeginUpdate();
  EXPECT_EQ(2, list->GetUpdateCount());
  EXPECT_EQ("{", list->TakeLog());
  list->EndUpdate();
  EXPECT_EQ("", list->TakeLog());
  list->EndUpdate();
  EXPECT_EQ("}", list->TakeLog());
  EXPECT_EQ(0, list->GetUpdateCount());
}

TEST(StringsTest, LinesThatAreAddedOnReadingAreAssignedToo) {
  auto list = NewList();
  list->Assign(NewFilling(3, {"a"}).get());
  EXPECT_EQ("a | x | x", Lines(*list));
}

TEST(StringsTest, LinesThatAreDeletedOnReadingAreNotAssigned) {
  auto list = NewList();
  list->Assign(NewFilling(2, {"a", "b", "c", "d"}).get());
  EXPECT_EQ("a | b", Lines(*list));
}

TEST(StringsTest, ALineThatIsDeletedByItsOwnReadingHasNoObject) {
  auto list = NewList();
  auto source = NewFilling(0, {"a"});
  source->SetObjects(0, list.get());
  list->Assign(source.get());
  EXPECT_EQ("", Lines(*list));
  EXPECT_EQ(1, list->GetCount());
  EXPECT_EQ(nullptr, list->GetObjects(0));
}

TEST(StringsTest, AListIsEqualOnlyWhenReadingLeavesItAsLongAsTheOther) {
  EXPECT_FALSE(NewFilling(1, {"a", "b"})->Equals(*NewList({"a", "b"})));
  EXPECT_FALSE(NewFilling(3, {"a", "b"})->Equals(*NewList({"a", "b"})));
  EXPECT_FALSE(NewList({"a", "b"})->Equals(*NewFilling(1, {"a", "b"})));
  EXPECT_TRUE(NewFilling(2, {"a", "b"})->Equals(*NewList({"a", "b"})));
}

TEST(StringsTest, AListIsEqualToItselfWhateverReadingDoes) {
  auto list = NewFilling(1, {"a", "b"});
  EXPECT_TRUE(list->Equals(*list));
}

TEST(StringsTest, ASearchEndsWhereReadingLeavesTheList) {
  EXPECT_EQ(-1, NewFilling(1, {"a", "b", "c"})->IndexOf(u"c"));
  EXPECT_EQ(2, NewFilling(3, {"a", "b"})->IndexOf(u"x"));
  EXPECT_EQ(-1, NewFilling(1, {"a", "b=1"})->IndexOfName(u"b"));
}

TEST(StringsTest, ErrorPutsTheNumberIntoTheMessage) {
  EXPECT_EQ("List index out of bounds (7)",
            RaisedBy<EStringListError>([] { TPlainStrings::Error(SListIndexError, 7); }));
  EXPECT_EQ("String list does not allow duplicates",
            RaisedBy<EStringListError>([] { TPlainStrings::Error(SDuplicateString, 7); }));
}

}  // namespace
}  // namespace kt::tests
