#include "kt/rtl/objects/Exceptions.h"
#include "rtl/strings/StringsFixture.h"

namespace kt::tests {
namespace {

/// Counts the comparisons that a list asks for.
class TCountingList : public TStringList {
 public:
  mutable int Comparisons = 0;

 protected:
  int CompareStrings(QStringView a, QStringView b) const override {
    ++Comparisons;
    return TStringList::CompareStrings(a, b);
  }
};

/// `count` numbers of five digits: number i is valueAt(i).
template <class F>
QStringList Numbers(int count, F&& valueAt) {
  QStringList lines;
  for (int i = 0; i < count; ++i) lines.append(QString::number(valueAt(i)).rightJustified(5, u'0'));
  return lines;
}

/// How many comparisons sorting the lines takes; fails when they are not in order then.
int ComparisonsFor(const QStringList& lines) {
  auto list = Make<TCountingList>();
  for (const QString& line : lines) list->Add(line);
  list->Sort();
  const int result = list->Comparisons;
  QStringList expected = lines;
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(expected.join(" | ").toStdString(), Lines(*list));
  return result;
}

TEST(StringListSortTest, SortIsOneChange) {
  auto list = NewList({"c", "a", "b"});
  TEventLog log(*list);
  list->Sort();
  EXPECT_EQ("changing(c | a | b) changed(a | b | c)", log.Take());
  EXPECT_FALSE(list->GetSorted());
}

TEST(StringListSortTest, SortOfLessThanTwoLinesTellsNothing) {
  auto list = NewList({"a"});
  TEventLog log(*list);
  list->Sort();
  EXPECT_EQ("", log.Take());
}

TEST(StringListSortTest, SortKeepsTheOrderOfEqualLines) {
  auto list = NewList({"b", "A", "B", "a"});
  list->Sort();
  EXPECT_EQ("A | a | b | B", Lines(*list));
}

TEST(StringListSortTest, SortRegardsCaseInACaseSensitiveList) {
  auto list = NewList({"b", "a", "B", "A"});
  list->SetCaseSensitive(true);
  list->Sort();
  EXPECT_EQ("A | B | a | b", Lines(*list));
}

TEST(StringListSortTest, ObjectsGoWithTheirLines) {
  auto list = NewList({"c", "b", "a"});
  list->SetObjects(0, list.get());
  list->Sort();
  EXPECT_EQ(list.get(), list->GetObjects(2));
}

TEST(StringListSortTest, OrderedInputTakesOneComparisonALine) {
  EXPECT_EQ(9'999, ComparisonsFor(Numbers(10'000, [](int i) { return i; })));
  EXPECT_EQ(9'999, ComparisonsFor(Numbers(10'000, [](int) { return 7; })));
}

// 10,000 lines have 14 rounds of merging at most; the check before each merge comes on top.
TEST(StringListSortTest, AnyOtherInputTakesNLogNComparisons) {
  EXPECT_LE(ComparisonsFor(Numbers(10'000, [](int i) { return 10'000 - i; })), 150'000);
  EXPECT_LE(ComparisonsFor(Numbers(10'000, [](int i) { return i % 10; })), 150'000);
  EXPECT_LE(ComparisonsFor(Numbers(10'000, [](int i) { return i * 7919 % 10'007; })), 150'000);
}

TEST(StringListSortTest, CustomSortComparesLinesByIndex) {
  auto list = NewList({"ccc", "a", "bb"});
  list->CustomSort([](TStringList* lines, int first, int second) {
    return static_cast<int>(lines->GetStrings(second).size() - lines->GetStrings(first).size());
  });
  EXPECT_EQ("ccc | bb | a", Lines(*list));
}

TEST(StringListSortTest, CustomSortDoesNothingInASortedList) {
  auto list = NewSortedList({"a", "b"});
  TEventLog log(*list);
  list->CustomSort([](TStringList*, int first, int second) { return second - first; });
  EXPECT_EQ("a | b", Lines(*list));
  EXPECT_EQ("", log.Take());
}

TEST(StringListSortTest, AComparisonThatRaisesLeavesTheListAsItWas) {
  auto list = NewList({"c", "a", "b"});
  const auto raise = [](TStringList*, int, int) -> int { throw EAbort(QString()); };
  EXPECT_THROW(list->CustomSort(raise), EAbort);
  EXPECT_EQ("c | a | b", Lines(*list));
}

TEST(StringListSortTest, AComparisonThatContradictsItselfLosesNoLine) {
  auto list = NewList(Numbers(1000, [](int i) { return i; }));
  int calls = 0;
  list->CustomSort([&calls](TStringList*, int, int) { return (++calls * 2654435761u >> 13) % 3 - 1; });
  list->Sort();
  EXPECT_TRUE(list->Equals(*NewList(Numbers(1000, [](int i) { return i; }))));
}

TEST(StringListSortTest, AComparisonThatRemovesLinesRaises) {
  auto list = NewList({"c", "b", "a"});
  EXPECT_EQ("List count out of bounds (0)", RaisedBy<EStringListError>([&] {
              list->CustomSort([](TStringList* lines, int, int) {
                lines->Clear();
                return 1;
              });
            }));
  EXPECT_EQ(0, list->GetCount());
}

TEST(StringListSortTest, SettingSortedSortsAndTellsBeforeItCounts) {
  auto list = NewList({"b", "a"});
  std::string seen;
  list->OnChange = [&](TObject*) { seen = Lines(*list) + (list->GetSorted() ? " sorted" : " not yet sorted"); };
  list->SetSorted(true);
  EXPECT_EQ("a | b not yet sorted", seen);
  EXPECT_TRUE(list->GetSorted());
}

TEST(StringListSortTest, SettingSortedKeepsDuplicatesThatAreThere) {
  auto list = NewList({"b", "a", "b"});
  list->SetSorted(true);
  EXPECT_EQ("a | b | b", Lines(*list));
}

TEST(StringListSortTest, SettingSortedAgainDoesNothing) {
  auto list = NewSortedList({"a", "b"});
  TEventLog log(*list);
  list->SetSorted(true);
  EXPECT_EQ("", log.Take());
}

TEST(StringListSortTest, ClearingSortedKeepsTheLines) {
  auto list = NewSortedList({"b", "a"});
  TEventLog log(*list);
  list->SetSorted(false);
  list->Add("A");
  EXPECT_EQ("changing(a | b) changed(a | b | A)", log.Take());
}

TEST(StringListSortTest, ASortedListFindsThePlaceOfANewLine) {
  auto list = NewSortedList({"c", "a"});
  TEventLog log(*list);
  EXPECT_EQ(1, list->Add("B"));
  EXPECT_EQ("changing(a | c) changed(a | B | c)", log.Take());
}

TEST(StringListSortTest, DupIgnoreAnswersTheLineThatIsThere) {
  auto list = NewSortedList({"a", "b"});
  TEventLog log(*list);
  EXPECT_EQ(1, list->AddObject("B", list.get()));
  EXPECT_EQ("", log.Take());
  EXPECT_EQ("a | b", Lines(*list));
  EXPECT_EQ(nullptr, list->GetObjects(1));
}

TEST(StringListSortTest, DupErrorRaises) {
  auto list = NewSortedList({"a", "b"}, dupError);
  TEventLog log(*list);
  EXPECT_EQ("String list does not allow duplicates", RaisedBy<EStringListError>([&] { list->Add("A"); }));
  EXPECT_EQ("", log.Take());
  EXPECT_EQ("a | b", Lines(*list));
}

TEST(StringListSortTest, DupAcceptInsertsBeforeEqualLines) {
  auto list = NewSortedList({"a", "b", "c"}, dupAccept);
  EXPECT_EQ(1, list->Add("B"));
  EXPECT_EQ("a | B | b | c", Lines(*list));
}

TEST(StringListSortTest, DuplicatesMeanNothingInAnUnsortedList) {
  auto list = NewList({"a"});
  list->SetDuplicates(dupError);
  EXPECT_EQ(1, list->Add("a"));
}

TEST(StringListSortTest, CaseSensitivityDecidesWhatADuplicateIs) {
  auto list = NewSortedList({}, dupError);
  list->SetCaseSensitive(true);
  list->Add("a");
  list->Add("A");
  EXPECT_EQ("A | a", Lines(*list));
}

TEST(StringListSortTest, FindAnswersTheFirstOfEqualLines) {
  auto list = NewSortedList({"b", "a", "c", "b", "b"}, dupAccept);
  int index = -1;
  EXPECT_TRUE(list->Find(u"B", index));
  EXPECT_EQ(1, index);
}

TEST(StringListSortTest, FindAnswersThePlaceOfAMissingLine) {
  auto list = NewSortedList({"b", "d"});
  int index = -1;
  EXPECT_FALSE(list->Find(u"a", index));
  EXPECT_EQ(0, index);
  EXPECT_FALSE(list->Find(u"c", index));
  EXPECT_EQ(1, index);
  EXPECT_FALSE(list->Find(u"e", index));
  EXPECT_EQ(2, index);
}

TEST(StringListSortTest, IndexOfSearchesASortedListByHalves) {
  auto list = Make<TCountingList>();
  list->SetText(Numbers(1000, [](int i) { return i; }).join(u'\n'));
  list->SetSorted(true);
  list->Comparisons = 0;
  EXPECT_EQ(500, list->IndexOf(u"00500"));
  EXPECT_LE(list->Comparisons, 10);
  EXPECT_EQ(-1, list->IndexOf(u"x"));
}

TEST(StringListSortTest, OperationsThatNameAPlaceRaiseInASortedList) {
  auto list = NewSortedList({"a", "b"});
  TEventLog log(*list);
  const std::string message = "Operation not allowed on sorted list";
  EXPECT_EQ(message, RaisedBy<EStringListError>([&] { list->Insert(0, "x"); }));
  EXPECT_EQ(message, RaisedBy<EStringListError>([&] { list->InsertObject(9, "x", nullptr); }));
  EXPECT_EQ(message, RaisedBy<EStringListError>([&] { list->SetStrings(0, "x"); }));
  EXPECT_EQ(message, RaisedBy<EStringListError>([&] { list->Move(0, 1); }));
  EXPECT_EQ("a | b", Lines(*list));
  EXPECT_EQ("", log.Take());
}

TEST(StringListSortTest, ExchangeIsAllowedInASortedList) {
  auto list = NewSortedList({"a", "b"});
  list->Exchange(0, 1);
  EXPECT_EQ("b | a", Lines(*list));
}

TEST(StringListSortTest, ObjectsCanBePutInASortedList) {
  auto list = NewSortedList({"a"});
  list->SetObjects(0, list.get());
  EXPECT_EQ(list.get(), list->GetObjects(0));
}

TEST(StringListSortTest, CaseSensitivitySortsASortedListAnew) {
  auto list = NewSortedList({"b", "a", "B"}, dupAccept);
  EXPECT_EQ("a | B | b", Lines(*list));
  TEventLog log(*list);
  list->SetCaseSensitive(true);
  EXPECT_EQ("changing(a | B | b) changed(B | a | b)", log.Take());
  EXPECT_TRUE(list->GetSorted());
}

TEST(StringListSortTest, CaseSensitivityLeavesAnUnsortedListAlone) {
  auto list = NewList({"b", "a"});
  TEventLog log(*list);
  list->SetCaseSensitive(true);
  EXPECT_EQ("", log.Take());
  EXPECT_EQ("b | a", Lines(*list));
}

}  // namespace
}  // namespace kt::tests
