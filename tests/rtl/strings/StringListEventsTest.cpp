#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/objects/Exceptions.h"
#include "rtl/strings/StringsFixture.h"

#include <functional>

namespace kt::tests {
namespace {

/// A value list as rows of a grid have them: reading a line makes sure that the line is there, storing an equal line is
/// silent, and so is everything while it is being filled.
class TPaddedList : public TStringList {
 public:
  explicit TPaddedList(int wanted) : FWanted(wanted) {}

 protected:
  QString Get(int index) override {
    FIsFilling = true;
    while (index < FWanted && GetCount() < FWanted) Add(QString());
    FIsFilling = false;
    return TStringList::Get(index);
  }
  void Put(int index, const QString& text) override {
    if (TStringList::Get(index) != text) TStringList::Put(index, text);
  }
  void Changing() override {
    if (!FIsFilling) TStringList::Changing();
  }
  void Changed() override {
    if (!FIsFilling) TStringList::Changed();
  }

 private:
  int FWanted;
  bool FIsFilling = false;
};

TEST(StringListEventsTest, ADescendantCanFillItselfWhileItIsRead) {
  auto list = Make<TPaddedList>(2);
  list->Add("a");
  TEventLog log(*list);
  EXPECT_EQ("", list->GetStrings(1));
  EXPECT_EQ(2, list->GetCount());
  EXPECT_EQ("", log.Take());
}

TEST(StringListEventsTest, ADescendantCanKeepEqualTextsSilent) {
  auto list = Make<TPaddedList>(1);
  list->Add("a");
  TEventLog log(*list);
  list->SetStrings(0, "a");
  EXPECT_EQ("", log.Take());
  list->SetStrings(0, "A");
  EXPECT_EQ("changing(a) changed(A)", log.Take());
}

TEST(StringListEventsTest, TheSenderIsTheList) {
  auto list = NewList();
  TObject* sender = nullptr;
  list->OnChange = [&sender](TObject* object) { sender = object; };
  list->Add("a");
  EXPECT_EQ(list.get(), sender);
}

struct TOperation {
  const char* Name;
  /// What the list shows after the operation on "b | c | a".
  const char* Result;
  std::function<void(TStringList&)> Run;
};

void PrintTo(const TOperation& operation, std::ostream* out) { *out << operation.Name; }

const TOperation Operations[] = {
    {"Add", "b | c | a | x", [](TStringList& list) { list.Add("x"); }},
    {"AddObject", "b | c | a | x", [](TStringList& list) { list.AddObject("x", &list); }},
    {"Insert", "b | x | c | a", [](TStringList& list) { list.Insert(1, "x"); }},
    {"InsertObject", "b | x | c | a", [](TStringList& list) { list.InsertObject(1, "x", &list); }},
    {"Delete", "b | a", [](TStringList& list) { list.Delete(1); }},
    {"Clear", "", [](TStringList& list) { list.Clear(); }},
    {"Put", "b | x | a", [](TStringList& list) { list.SetStrings(1, "x"); }},
    {"PutObject", "b | c | a", [](TStringList& list) { list.SetObjects(1, &list); }},
    {"Exchange", "a | c | b", [](TStringList& list) { list.Exchange(0, 2); }},
    {"Move", "c | a | b", [](TStringList& list) { list.Move(0, 2); }},
    {"Sort", "a | b | c", [](TStringList& list) { list.Sort(); }},
    {"Text", "x | y", [](TStringList& list) { list.SetText("x\ny"); }},
    {"CommaText", "x | y", [](TStringList& list) { list.SetCommaText("x,y"); }},
    {"AddStrings", "b | c | a | x", [](TStringList& list) { list.AddStrings(*NewList({"x"})); }},
    {"Assign", "x", [](TStringList& list) { list.Assign(NewList({"x"}).get()); }},
    // Last: not finished when OnChange comes, so that its handler must not free the list.
    {"Sorted", "a | b | c", [](TStringList& list) { list.SetSorted(true); }},
};

class StringListRaisingEventsTest : public testing::TestWithParam<TOperation> {
 protected:
  void SetUp() override { FList = NewList({"b", "c", "a"}); }

  static void Raise(TObject*) { throw EAbort(QStringLiteral("stop")); }
  void Run() { GetParam().Run(*FList); }
  void ExpectConsistent() {
    EXPECT_EQ(0, FList->GetUpdateCount());
    EXPECT_FALSE(FList->GetSorted());
    FList->OnChanging = nullptr;
    FList->OnChange = nullptr;
    FList->Add("z");
    EXPECT_EQ("z", FList->GetStrings(FList->GetCount() - 1));
  }

  std::unique_ptr<TStringList> FList;
};

TEST_P(StringListRaisingEventsTest, AnExceptionOfOnChangingPreventsTheChange) {
  FList->OnChanging = &StringListRaisingEventsTest::Raise;
  EXPECT_EQ("stop", RaisedBy<EAbort>([this] { Run(); }));
  EXPECT_EQ("b | c | a", Lines(*FList));
  EXPECT_EQ(-1, FList->IndexOfObject(FList.get()));
  ExpectConsistent();
}

TEST_P(StringListRaisingEventsTest, AnExceptionOfOnChangeComesAfterTheChange) {
  FList->OnChange = &StringListRaisingEventsTest::Raise;
  EXPECT_EQ("stop", RaisedBy<EAbort>([this] { Run(); }));
  EXPECT_EQ(GetParam().Result, Lines(*FList));
  ExpectConsistent();
}

TEST_P(StringListRaisingEventsTest, ChangesAsSaidWithoutAnException) {
  Run();
  EXPECT_EQ(GetParam().Result, Lines(*FList));
}

INSTANTIATE_TEST_SUITE_P(StringListEventsTest, StringListRaisingEventsTest, testing::ValuesIn(Operations),
                         [](const auto& test) { return std::string(test.param.Name); });

class StringListReentrantEventsTest : public testing::TestWithParam<TOperation> {};

TEST_P(StringListReentrantEventsTest, AHandlerThatClearsTheListBeforehandIsSafe) {
  auto list = NewList({"b", "c", "a"});
  list->OnChanging = [&list](TObject*) {
    list->OnChanging = nullptr;
    list->Clear();
  };
  try {
    GetParam().Run(*list);
  } catch (const EStringListError& error) {
    EXPECT_TRUE(error.Message().startsWith("List ")) << error.what();
  }
  EXPECT_LE(list->GetCount(), 2);
  EXPECT_EQ(0, list->GetUpdateCount());
}

class StringListFreedByItsEventTest : public testing::TestWithParam<TOperation> {};

TEST_P(StringListFreedByItsEventTest, AHandlerMayFreeTheListAfterwards) {
  TStringList* list = NewList({"b", "c", "a"}).release();
  int calls = 0;
  list->OnChange = [&calls, list](TObject*) {
    ++calls;
    delete list;
  };
  GetParam().Run(*list);
  EXPECT_EQ(1, calls);
}

INSTANTIATE_TEST_SUITE_P(StringListEventsTest, StringListReentrantEventsTest, testing::ValuesIn(Operations),
                         [](const auto& test) { return std::string(test.param.Name); });
INSTANTIATE_TEST_SUITE_P(StringListEventsTest, StringListFreedByItsEventTest,
                         testing::ValuesIn(std::begin(Operations), std::end(Operations) - 1),
                         [](const auto& test) { return std::string(test.param.Name); });

TEST(StringListEventsTest, AnExceptionOfOnChangingKeepsTheBracketClosed) {
  auto list = NewList({"a"});
  list->OnChanging = [](TObject*) { throw EAbort(QString()); };
  EXPECT_THROW(list->BeginUpdate(), EAbort);
  EXPECT_EQ(0, list->GetUpdateCount());
}

TEST(StringListEventsTest, AnExceptionOfOnChangeLeavesTheBracketClosed) {
  auto list = NewList({"a"});
  list->OnChange = [](TObject*) { throw EAbort(QString()); };
  list->BeginUpdate();
  EXPECT_THROW(list->EndUpdate(), EAbort);
  EXPECT_EQ(0, list->GetUpdateCount());
}

TEST(StringListEventsTest, AnExceptionWhileSortingAnewLeavesTheListUnsorted) {
  auto list = NewSortedList({"a", "b"});
  list->OnChange = [](TObject*) { throw EAbort(QString()); };
  EXPECT_THROW(list->SetCaseSensitive(true), EAbort);
  EXPECT_FALSE(list->GetSorted());
  EXPECT_TRUE(list->GetCaseSensitive());
}

TEST(StringListEventsTest, AListThatGoesWhileItsBracketBeginsIsLeftAlone) {
  auto list = Make<TStringList>();
  list->OnChanging = [&list](TObject*) { list.reset(); };
  const TUpdateBracket bracket(*list);
  EXPECT_EQ(nullptr, list);
  EXPECT_FALSE(bracket.IsAlive());
}

}  // namespace
}  // namespace kt::tests
