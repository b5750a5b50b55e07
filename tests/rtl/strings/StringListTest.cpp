#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "rtl/strings/StringsFixture.h"

namespace kt::tests {
namespace {

TEST(StringListTest, IsCreatableAndPublishesNothing) {
  EXPECT_EQ("TStringList", TStringList::Class()->ClassName());
  EXPECT_EQ(TStrings::Class(), TStringList::Class()->ClassParent());
  EXPECT_TRUE(TStringList::Class()->Props().empty());
  const std::unique_ptr<TObject> object(TStringList::Class()->CreateInstance(nullptr));
  EXPECT_TRUE(object->ClassNameIs(u"TStringList"));
}

TEST(StringListTest, ANewListIsEmptyAndUnsorted) {
  auto list = Make<TStringList>();
  EXPECT_EQ(0, list->GetCount());
  EXPECT_FALSE(list->GetSorted());
  EXPECT_FALSE(list->GetCaseSensitive());
  EXPECT_EQ(dupIgnore, list->GetDuplicates());
  EXPECT_EQ(0u, list->HeapSize());
}

// A million items may own a list each.
TEST(StringListTest, AListIsSmall) {
  EXPECT_LE(sizeof(TStrings), 3 * sizeof(void*));
  EXPECT_LE(sizeof(TStringList), 7 * sizeof(void*));
}

TEST(StringListTest, AddTellsBeforeAndAfter) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  EXPECT_EQ(1, list->Add("b"));
  EXPECT_EQ("changing(a) changed(a | b)", log.Take());
}

TEST(StringListTest, AddObjectIsOneChange) {
  auto list = NewList();
  TEventLog log(*list);
  list->AddObject("a", list.get());
  EXPECT_EQ("changing() changed(a)", log.Take());
  EXPECT_EQ(list.get(), list->GetObjects(0));
}

TEST(StringListTest, InsertTellsBeforeAndAfter) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  list->Insert(0, "b");
  EXPECT_EQ("changing(a) changed(b | a)", log.Take());
  list->InsertObject(2, "c", list.get());
  EXPECT_EQ("changing(b | a) changed(b | a | c)", log.Take());
  EXPECT_EQ(list.get(), list->GetObjects(2));
}

TEST(StringListTest, DeleteTellsBeforeAndAfter) {
  auto list = NewList({"a", "b"});
  TEventLog log(*list);
  list->Delete(0);
  EXPECT_EQ("changing(a | b) changed(b)", log.Take());
}

TEST(StringListTest, ClearTellsBeforeAndAfter) {
  auto list = NewList({"a", "b"});
  TEventLog log(*list);
  list->Clear();
  EXPECT_EQ("changing(a | b) changed()", log.Take());
}

TEST(StringListTest, ClearOfAnEmptyListTellsNothing) {
  auto list = NewList();
  TEventLog log(*list);
  list->Clear();
  EXPECT_EQ("", log.Take());
}

TEST(StringListTest, PutTellsBeforeAndAfterEvenWhenNothingDiffers) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  list->SetStrings(0, "b");
  list->SetStrings(0, "b");
  EXPECT_EQ("changing(a) changed(b) changing(b) changed(b)", log.Take());
}

TEST(StringListTest, PutObjectTellsBeforeAndAfter) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  list->SetObjects(0, list.get());
  EXPECT_EQ("changing(a) changed(a)", log.Take());
}

TEST(StringListTest, ExchangeSwapsLinesWithTheirObjectsAsOneChange) {
  auto list = NewList({"a", "b", "c"});
  list->SetObjects(0, list.get());
  TEventLog log(*list);
  list->Exchange(0, 2);
  EXPECT_EQ("changing(a | b | c) changed(c | b | a)", log.Take());
  EXPECT_EQ(list.get(), list->GetObjects(2));
  EXPECT_EQ(nullptr, list->GetObjects(0));
}

TEST(StringListTest, MoveIsOneChangeAndTakesTheObjectAlong) {
  auto list = NewList({"a", "b", "c"});
  list->SetObjects(0, list.get());
  TEventLog log(*list);
  list->Move(0, 1);
  EXPECT_EQ("changing(a | b | c) changed(b | a | c)", log.Take());
  EXPECT_EQ(list.get(), list->GetObjects(1));
  EXPECT_EQ(1, list->IndexOfObject(list.get()));
}

TEST(StringListTest, ABracketTellsOnce) {
  auto list = NewList();
  TEventLog log(*list);
  list->BeginUpdate();
  list->Add("a");
  list->BeginUpdate();
  list->Add("b");
  list->EndUpdate();
  list->Delete(0);
  EXPECT_EQ("changing()", log.Take());
  list->EndUpdate();
  EXPECT_EQ("changed(b)", log.Take());
}

TEST(StringListTest, AnEmptyBracketTellsToo) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  list->BeginUpdate();
  list->EndUpdate();
  EXPECT_EQ("changing(a) changed(a)", log.Take());
}

TEST(StringListTest, AssignIsOneChange) {
  auto list = NewList({"x", "y"});
  TEventLog log(*list);
  list->Assign(NewList({"a", "b"}).get());
  EXPECT_EQ("changing(x | y) changed(a | b)", log.Take());
}

TEST(StringListTest, AssignKeepsOrderingAndEvents) {
  auto list = NewSortedList({"x"}, dupAccept);
  list->SetCaseSensitive(true);
  list->Assign(NewList({"b", "a", "b"}).get());
  EXPECT_EQ("a | b | b", Lines(*list));
  EXPECT_TRUE(list->GetSorted());
  EXPECT_TRUE(list->GetCaseSensitive());
  EXPECT_EQ(dupAccept, list->GetDuplicates());
}

TEST(StringListTest, DestructionTellsNothing) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  list.reset();
  EXPECT_EQ("", log.Take());
}

TEST(StringListTest, IndicesOutOfTheListRaiseWithoutAnEvent) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  EXPECT_EQ("List index out of bounds (1)", RaisedBy<EStringListError>([&] { list->GetStrings(1); }));
  EXPECT_EQ("List index out of bounds (-1)", RaisedBy<EStringListError>([&] { list->GetStrings(-1); }));
  EXPECT_EQ("List index out of bounds (1)", RaisedBy<EStringListError>([&] { list->SetStrings(1, "x"); }));
  EXPECT_EQ("List index out of bounds (1)", RaisedBy<EStringListError>([&] { list->GetObjects(1); }));
  EXPECT_EQ("List index out of bounds (1)", RaisedBy<EStringListError>([&] { list->SetObjects(1, nullptr); }));
  EXPECT_EQ("List index out of bounds (2)", RaisedBy<EStringListError>([&] { list->Insert(2, "x"); }));
  EXPECT_EQ("List index out of bounds (-1)", RaisedBy<EStringListError>([&] { list->Insert(-1, "x"); }));
  EXPECT_EQ("List index out of bounds (1)", RaisedBy<EStringListError>([&] { list->Delete(1); }));
  EXPECT_EQ("List index out of bounds (1)", RaisedBy<EStringListError>([&] { list->Exchange(0, 1); }));
  EXPECT_EQ("List index out of bounds (2)", RaisedBy<EStringListError>([&] { list->Exchange(2, 0); }));
  EXPECT_EQ("a", Lines(*list));
  EXPECT_EQ("", log.Take());
}

TEST(StringListTest, MoveOutOfTheListRaisesAndLosesNoLine) {
  auto list = NewList({"a", "b"});
  EXPECT_EQ("List index out of bounds (5)", RaisedBy<EStringListError>([&] { list->Move(5, 0); }));
  EXPECT_EQ("List index out of bounds (2)", RaisedBy<EStringListError>([&] { list->Move(0, 2); }));
  EXPECT_EQ("a | b", Lines(*list));
  EXPECT_EQ(0, list->GetUpdateCount());
}

TEST(StringListTest, CapacityCanBeSetButNotBelowTheCount) {
  auto list = NewList({"a", "b"});
  list->SetCapacity(20);
  EXPECT_EQ(20, list->GetCapacity());
  EXPECT_EQ("List capacity out of bounds (1)", RaisedBy<EStringListError>([&] { list->SetCapacity(1); }));
  list->SetCapacity(2);
  EXPECT_EQ(2, list->GetCapacity());
  EXPECT_EQ("a | b", Lines(*list));
}

TEST(StringListTest, IndexOfTakesTheFirstWithoutRegardToCase) {
  auto list = NewList({"b", "A", "a"});
  EXPECT_EQ(1, list->IndexOf(u"a"));
  EXPECT_EQ(-1, list->IndexOf(u"c"));
}

TEST(StringListTest, IndexOfRegardsCaseInACaseSensitiveList) {
  auto list = NewList({"b", "A", "a"});
  list->SetCaseSensitive(true);
  EXPECT_EQ(2, list->IndexOf(u"a"));
  EXPECT_EQ(-1, list->IndexOf(u"B"));
}

}  // namespace
}  // namespace kt::tests
